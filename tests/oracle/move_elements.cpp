// Copies, extracts, identities and transposes: objects, rows and elements in ascending order, each moved by itself.
#include "../harness/job.h"

namespace {

using namespace harness;

// `place(dst, i, r, c, value)` puts the element of the source at row r, column c.
template <class T, class Place> int32_t moveAll(const Model<T>& m, int first, int n, Place place)
{
    View<T> src = m.view("src"), dst = m.view("dst");
    for (int i = first; i < first + n; ++i) {
        for (int r = 0; r < src.rows(); ++r) {
            for (int c = 0; c < src.cols(); ++c) {
                place(dst, i, r, c, src.get(i, r, c));
            }
        }
    }
    return 0;
}

struct Copy {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        return moveAll(m, first, n, [](View<T>& dst, int i, int r, int c, T value) { dst.set(i, r, c, value); });
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

struct Transpose {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        return moveAll(m, first, n, [](View<T>& dst, int i, int r, int c, T value) { dst.set(i, c, r, value); });
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
