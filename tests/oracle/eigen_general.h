// From a general matrix to its quasi-triangular Schur form. Three-term sums of magnitudes and the square roots go through 64
// bits, everything else stays in the element type. Indices count from 1, as in the published routines.
#pragma once
#include "grid.h"

namespace harness {

template <class T> T root(T value) { return T(std::sqrt(double(value))); }
template <class T> T rootProduct(T u, T v) { return T(std::sqrt(magnitude(u)) * std::sqrt(magnitude(v))); }

template <class T> class Schur {
public:
    static constexpr T eps = std::numeric_limits<T>::epsilon();
    static constexpr T safmin = 2 * std::numeric_limits<T>::min(), safmin2 = 2 * safmin, realTol = 4 * eps;

    // With vectors the whole form and its orthogonal matrix are kept up, and deflation is relative.
    Schur(const Grid<T>& operand, bool withVectors)
        : n(operand.rows), vectors(withVectors), re(n), im(n), known(n, false), hs(n, n), zs(n, n)
    {
        smlnum = safmin * (T(n) * (T(1) / eps));
        for (int i = 1; i <= n; ++i) {
            for (int j = 1; j <= n; ++j) {
                h(i, j) = operand(j - 1, i - 1);
            }
        }
    }

    int32_t run()
    {
        reduce();
        int budget = 30 * n, its = 0, lo = 1;
        for (int hi = n; hi >= 1; hi = lo - 1, budget -= its) {
            lo = 1;
            for (its = 0; its < budget; ++its) {
                lo = deflate(lo, hi);
                if (lo > 1) {
                    h(lo, lo - 1) = 0;
                }
                if (lo >= hi - 1) {
                    break;
                }
                sweep(lo, hi, its);
            }
            if (lo < hi - 1) {
                return -205;
            }
            if (lo == hi) {
                setValue(hi, h(hi, hi), 0);
            } else {
                block(hi);
            }
        }
        return 0;
    }

    void storeValues(const Model<T>& m, int object) const
    {
        for (int k = 0; k < n; ++k) {
            if (known[k]) {
                m.view("dstRe").set(object, k, re[k]);
                m.view("dstIm").set(object, k, im[k]);
            }
        }
    }

    T& h(int i, int j) { return hs(i - 1, j - 1); }
    T& z(int i, int j) { return zs(i - 1, j - 1); }

    int n;
    bool vectors;
    std::vector<T> re, im;
    std::vector<bool> known;
    T smlnum;

private:
    static bool zero(T x) { return magnitude(x) <= double(safmin); }
    static bool negative(T x) { return x < 0; }

    static T hypotenuse(T u, T v)
    {
        if (u != u || v != v) {
            return u + v;
        }
        T w = std::max(u, v), least = std::min(u, v);
        if (least < safmin) {
            return w;
        }
        T quotient = (least * least) / (w * w);
        return w * T(std::sqrt(1.0 + double(quotient)));
    }

    static T reflector(T& alpha, std::vector<T>& x)
    {
        T sum = 0;
        for (T entry : x) {
            sum = sum + entry * entry;
        }
        T norm = root(sum);
        if (x.empty() || norm < safmin) {
            return 0;
        }
        T y = hypotenuse(std::fabs(alpha), std::fabs(norm));
        y = y < safmin ? safmin2 : y;
        T beta = alpha >= 0 ? -y : y, tau = (beta - alpha) / beta, r = T(1) / (alpha - beta);
        for (T& entry : x) {
            entry = entry * r;
        }
        alpha = beta;
        return tau;
    }

    void reduce()
    {
        std::vector<std::vector<T>> reflectors;
        std::vector<T> taus;
        for (int i = 1; i < n; ++i) {
            std::vector<T> x;
            for (int r = i + 2; r <= n; ++r) {
                x.push_back(h(r, i));
            }
            T tau = reflector(h(i + 1, i), x);
            for (int r = i + 2; r <= n; ++r) {
                h(r, i) = 0;
            }
            std::vector<T> v(size_t(i) + 1, T(0));  // v[k] belongs to row k
            v.push_back(1);
            v.insert(v.end(), x.begin(), x.end());
            taus.push_back(tau);
            reflectors.push_back(v);
            if (!(magnitude(tau) > double(safmin))) {
                continue;
            }
            for (int r = 1; r <= n; ++r) {
                T w = 0;
                for (int j = i + 1; j <= n; ++j) {
                    w = w + h(r, j) * v[j];
                }
                for (int j = i + 1; j <= n; ++j) {
                    h(r, j) = h(r, j) - (tau * w) * v[j];
                }
            }
            for (int c = i + 1; c <= n; ++c) {
                T w = 0;
                for (int k = i + 1; k <= n; ++k) {
                    w = w + h(k, c) * v[k];
                }
                for (int k = i + 1; k <= n; ++k) {
                    h(k, c) = h(k, c) - (tau * v[k]) * w;
                }
            }
        }
        if (vectors) {
            accumulate(reflectors, taus);
        }
    }

    void accumulate(const std::vector<std::vector<T>>& reflectors, const std::vector<T>& taus)
    {
        for (int k = 1; k <= n; ++k) {
            z(k, k) = 1;
        }
        for (int i = n - 1; i >= 1; --i) {
            const std::vector<T>& v = reflectors[i - 1];
            for (int c = i + 1; c <= n; ++c) {
                T w = 0;
                for (int k = i + 1; k <= n; ++k) {
                    w = w + z(k, c) * v[k];
                }
                for (int k = i + 1; k <= n; ++k) {
                    z(k, c) = z(k, c) - (taus[i - 1] * v[k]) * w;
                }
            }
        }
    }

    int deflate(int lo, int hi)
    {
        int k = hi;
        for (; k > lo; --k) {
            T limit = eps;
            if (vectors) {
                T tst = std::fabs(h(k - 1, k - 1)) + std::fabs(h(k, k));
                limit = std::max(T(eps * (tst <= safmin ? oneNorm(lo, hi) : tst)), smlnum);
            }
            if (magnitude(h(k, k - 1)) <= double(limit)) {
                break;
            }
        }
        return k;
    }

    T oneNorm(int lo, int hi)
    {
        T largest = 0;
        for (int j = lo; j <= hi; ++j) {
            T sum = 0;
            for (int i = lo; i <= std::min(j + 1, hi); ++i) {
                sum = sum + std::fabs(h(i, j));
            }
            largest = std::max(largest, sum);
        }
        return largest;
    }

    void sweep(int lo, int hi, int its)
    {
        T h44 = h(hi, hi), h33 = h(hi - 1, hi - 1), h43h34 = h(hi, hi - 1) * h(hi - 1, hi);
        if (its == 10 || its == 20) {
            T s = std::fabs(h(hi, hi - 1)) + std::fabs(h(hi - 1, hi - 2));
            h33 = h44 = T(0.75) * s + h(hi, hi);
            h43h34 = T(-0.4375) * s * s;
        } else {
            T half = T(0.5) * (h33 - h44), disc = half * half + h43h34;
            if (disc > 0) {
                disc = root(disc);
                T ave = T(0.5) * (h33 + h44), sgn = ave >= 0 ? disc : -disc;
                h44 = magnitude(h33) - magnitude(h44) > 0 ? (h33 * h44 - h43h34) / (sgn + ave) : sgn + ave;
                h33 = h44;
                h43h34 = 0;
            }
        }
        T r1, r2, r3;
        int m = hi - 2;
        for (;; --m) {
            T h11 = h(m, m), h22 = h(m + 1, m + 1), h44s = h44 - h11, h33s = h33 - h11;
            r1 = (h33s * h44s - h43h34) / h(m + 1, m) + h(m, m + 1);
            r2 = h22 - h11 - h33s - h44s;
            r3 = h(m + 2, m + 1);
            T s = T(magnitude(r1) + magnitude(r2) + magnitude(r3));
            r1 = r1 / s;
            r2 = r2 / s;
            r3 = r3 / s;
            if (m == lo) {
                break;
            }
            T three = T(magnitude(h(m - 1, m - 1)) + magnitude(h11) + magnitude(h22));
            double left = magnitude(h(m, m - 1)) * (magnitude(r2) + magnitude(r3));
            if (left <= double(T(T(eps * std::fabs(r1)) * three))) {
                break;
            }
        }
        for (int k = m; k < hi; ++k) {
            int count = std::min(3, hi - k + 1);
            if (k > m) {
                r1 = h(k, k - 1);
                r2 = h(k + 1, k - 1);
                r3 = count == 3 ? h(k + 2, k - 1) : T(0);
            }
            std::vector<T> x = {r2, r3};
            x.resize(count - 1);
            T t1 = reflector(r1, x);
            if (k > m) {
                h(k, k - 1) = r1;
                for (int i = 1; i < count; ++i) {
                    h(k + i, k - 1) = 0;
                }
            } else if (m > lo) {
                h(k, k - 1) = -h(k, k - 1);
            }
            r2 = x[0];
            r3 = count == 3 ? x[1] : T(0);
            apply(k, lo, hi, count, t1, x);
        }
    }

    void apply(int k, int lo, int hi, int count, T t1, const std::vector<T>& x)
    {
        auto reflect = [&](auto&& entry) {
            T sum = entry(0);
            for (int i = 1; i < count; ++i) {
                sum = sum + x[i - 1] * entry(i);
            }
            entry(0) = entry(0) - sum * t1;
            for (int i = 1; i < count; ++i) {
                entry(i) = entry(i) - sum * T(t1 * x[i - 1]);
            }
        };
        for (int j = k; j <= (vectors ? n : hi); ++j) {
            reflect([&](int i) -> T& { return h(k + i, j); });
        }
        for (int j = vectors ? 1 : lo; j <= std::min(k + 3, hi); ++j) {
            reflect([&](int i) -> T& { return h(j, k + i); });
        }
        for (int j = 1; j <= n && vectors; ++j) {
            reflect([&](int i) -> T& { return z(j, k + i); });
        }
    }

    void block(int hi)
    {
        T a = h(hi - 1, hi - 1), b = h(hi - 1, hi), c = h(hi, hi - 1), d = h(hi, hi);
        standardise(a, b, c, d);
        h(hi - 1, hi - 1) = a;
        h(hi - 1, hi) = b;
        h(hi, hi - 1) = c;
        h(hi, hi) = d;
        T wi = zero(c) ? T(0) : rootProduct(b, c);
        setValue(hi - 1, a, wi);
        setValue(hi, d, zero(c) ? T(0) : -wi);
        if (!vectors) {
            return;
        }
        auto rotate = [&](T& p, T& q) {
            T old = p;
            p = cs * old + sn * q;
            q = cs * q - sn * old;
        };
        for (int j = hi + 1; j <= n; ++j) {
            rotate(h(hi - 1, j), h(hi, j));
        }
        for (int i = 1; i <= hi - 2; ++i) {
            rotate(h(i, hi - 1), h(i, hi));
        }
        for (int i = 1; i <= n; ++i) {
            rotate(z(i, hi - 1), z(i, hi));
        }
    }

    void standardise(T& a, T& b, T& c, T& d)
    {
        T difference = a - d;
        if (zero(c)) {
            turn(1, 0);
        } else if (zero(b)) {
            turn(0, 1);
            std::swap(a, d);
            b = -c;
            c = 0;
        } else if (zero(difference)) {
            if (negative(b) != negative(c)) {
                turn(1, 0);
            }
        } else {
            split(a, b, c, d, difference);
        }
    }

    void split(T& a, T& b, T& c, T& d, T temp)
    {
        T p = T(0.5) * temp, most = std::max(std::fabs(b), std::fabs(c)), least = std::min(std::fabs(b), std::fabs(c));
        least = negative(b) == negative(c) ? least : -least;
        T scale = std::max(std::fabs(p), most), zz = (p / scale) * p + (most / scale) * least;
        if (zz >= realTol) {
            T roots = rootProduct(scale, zz);
            zz = p > 0 ? p + roots : p - roots;
            a = d + zz;
            d = d - (most / zz) * least;
            T tau = hypotenuse(std::fabs(c), std::fabs(zz));
            tau = tau < safmin ? safmin2 : tau;
            turn(zz / tau, c / tau);
            b = b - c;
            c = 0;
            return;
        }
        T sigma = b + c, tau = hypotenuse(std::fabs(sigma), std::fabs(temp));
        tau = tau < safmin ? safmin2 : tau;
        T x = root(T(T(0.5) * (1 + std::fabs(sigma) / tau))), y = p / (tau * x);
        y = sigma >= 0 ? -y : y;
        turn(x, y);
        T aa = a * x + b * y, bb = -a * y + b * x, cc = c * x + d * y, dd = -c * y + d * x;
        a = aa * x + cc * y;
        b = bb * x + dd * y;
        c = -aa * y + cc * x;
        d = -bb * y + dd * x;
        T mean = T(0.5) * (a + d);
        a = d = mean;
        if (zero(b) || zero(c)) {
            b = -c;
            c = 0;
            turn(-y, x);
        } else if (negative(b) == negative(c)) {
            T sab = root(std::fabs(b)), sac = root(std::fabs(c)), t = T(1) / root(std::fabs(T(b + c)));
            T cs1 = sab * t, sn1 = sac * t, q = c >= 0 ? p : -p;
            turn(x * cs1 - y * sn1, x * sn1 + y * cs1);
            a = mean + q;
            d = mean - q;
            b = b - c;
            c = 0;
        }
    }

    void turn(T c, T s)
    {
        cs = c;
        sn = s;
    }

    void setValue(int k, T real, T imaginary)
    {
        re[k - 1] = real;
        im[k - 1] = imaginary;
        known[k - 1] = true;
    }

    Grid<T> hs, zs;
    T cs = 1, sn = 0;  // a block that gives no rotation keeps the one before
};

// What a maximum of a not-a-number is, nobody says: sources are finite.
template <class T> void prepareGeneralAs(Job& job, Random& random)
{
    spoilSome<T>(job, "src", "iizdsttucrj", random);
    Source<T> src(job, "src");
    for (int i = 0; i < src.objects; ++i) {
        src.fill(i, [&](int r, int c) { return std::isfinite(src.get(i, r, c)) ? src.get(i, r, c) : T(r - c); });
    }
}

inline void prepareGeneral(Job& job, Random& random)
{
    job.function.isDouble ? prepareGeneralAs<double>(job, random) : prepareGeneralAs<float>(job, random);
}

}  // namespace harness
