// Copies, extracts, identities and transposes: objects, rows and elements in ascending order, each moved by itself.
#include "../harness/job.h"

namespace {

using namespace harness;

struct Copy {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), dst = m.view("dst");
        for (int i = first; i < first + n; ++i) {
            for (int r = 0; r < src.rows(); ++r) {
                for (int c = 0; c < src.cols(); ++c) {
                    dst.set(i, r, c, src.get(i, r, c));
                }
            }
        }
        return 0;
    }
};

// Behind tables, vectors and transposed matrices go position by position, and all objects of each.
struct Extract {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), dst = m.view("dst");
        const int width = src.cols(), elements = src.rows() * width;
        const bool byPosition = m.function().layout() == 'P' && (m.function().form == "va" || m.function().form == "ta");
        for (int k = 0; k < n * elements; ++k) {
            const int i = first + (byPosition ? k % n : k / elements), e = byPosition ? k / n : k % elements;
            dst.set(i, e, src.get(i, e / width, e % width));
        }
        return 0;
    }
};

// Sizes with straight code go along the rows of the result, others along those of the source.
struct Transpose {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> src = m.view("src"), dst = m.view("dst");
        const bool straight = src.rows() == src.cols() && src.rows() >= 3 && src.rows() <= 6;
        for (int i = first; i < first + n; ++i) {
            for (int at = 0; at < src.rows() * src.cols(); ++at) {
                const int outer = at / src.cols(), inner = at % src.cols();
                const int r = straight ? inner : outer, c = straight ? outer : inner;
                dst.set(i, c, r, src.get(i, r, c));
            }
        }
        return 0;
    }
};

struct LoadIdentity {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        View<T> dst = m.view("dst");
        for (int i = first; i < first + n; ++i) {
            for (int r = 0; r < dst.rows(); ++r) {
                for (int c = 0; c < dst.cols(); ++c) {
                    dst.set(i, r, c, 0);
                }
                if (r < dst.cols()) {
                    dst.set(i, r, r, 1);
                }
            }
        }
        return 0;
    }
};

const Oracle copy({"vokmCopy_ma", "vokmCopy_va"}, &Copy::run<float>, &Copy::run<double>);
const Oracle extract({"vokmExtract_m", "vokmExtract_t", "vokmExtract_v", "vokmExtract_ma", "vokmExtract_ta", "vokmExtract_va"},
    &Extract::run<float>, &Extract::run<double>);
const Oracle identity({"vokmLoadIdentity_ma"}, &LoadIdentity::run<float>, &LoadIdentity::run<double>);
const Oracle transpose({"vokmTranspose_m", "vokmTranspose_ma"}, &Transpose::run<float>, &Transpose::run<double>);

}  // namespace
