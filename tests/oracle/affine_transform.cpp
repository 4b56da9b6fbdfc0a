// Homogeneous transform of points. The matrix is read once a call; the dense kernel reads a point before it stores the
// result of the one before.
#include <array>
#include <cmath>
#include <limits>

#include "../harness/job.h"

namespace {

using namespace harness;
using Point = std::array<float, 3>;

Point read(const View<float>& src, int i) { return {src.get(i, 0), src.get(i, 1), src.get(i, 2)}; }

std::array<float, 4> transform(const float (&a)[4][4], const Point& p, bool dense)
{
    std::array<float, 4> t;
    for (int r = 0; r < 4; ++r) {
        float x = a[r][0] * p[0], y = a[r][1] * p[1], z = a[r][2] * p[2], d = a[r][3];
        if (dense) {
            float left = x + y, right = z + d;
            t[r] = left + right;
        } else {
            float sum = x + d;
            sum = sum + y;
            t[r] = sum + z;
        }
    }
    return t;
}

int32_t run(const Model<float>& m, int first, int n)
{
    View<float> matrix = m.view("src1"), src = m.view("src2"), dst = m.view("dst");
    bool dense = m.kernel() == "";
    float a[4][4];
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            a[r][c] = matrix.get(0, r, c);
        }
    }
    int32_t status = 0;
    Point next{};
    for (int i = first; i < first + n; ++i) {
        Point p = dense && i > first ? next : read(src, i);
        if (dense && i + 1 < first + n) {
            next = read(src, i + 1);
        }
        std::array<float, 4> t = transform(a, p, dense);
        bool good = std::fabs(double(t[3])) > 1.1754943508222875e-38;
        float inverse = 1.0f / t[3];
        for (int j = 0; j < 3; ++j) {
            dst.set(i, j, good ? t[j] * inverse : std::numeric_limits<float>::max());
        }
        status = good ? status : -10;
    }
    return status;
}

const Oracle affine({"vokmAffineTransform3DH_mva"}, &run, nullptr);

}  // namespace
