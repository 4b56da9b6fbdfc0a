// Sums, differences and scalings of matrices: one rounding an element, read and written in turn.
#include "../harness/job.h"

namespace {

using namespace harness;

template <class T> T apply(const std::string& family, T a, T b)
{
    return family == "vokmAdd" ? a + b : family == "vokmSub" ? a - b : a * b;
}

struct Elementwise {
    template <class T> static int32_t run(const Model<T>& m, int first, int n)
    {
        const std::string& family = m.function().family;
        bool constant = m.function().form.find('c') != std::string::npos;
        View<T> a = m.view(constant ? "src" : "src1"), b = m.view(constant ? "src" : "src2"), dst = m.view("dst");
        for (int i = first; i < first + n; ++i) {
            for (int r = 0; r < dst.rows(); ++r) {
                for (int c = 0; c < dst.cols(); ++c) {
                    dst.set(i, r, c, apply(family, a.get(i, r, c), constant ? m.real("val") : b.get(i, r, c)));
                }
            }
        }
        return 0;
    }
};

const Oracle elementwise(
    {"vokmAdd_mm", "vokmAdd_tm", "vokmAdd_tt", "vokmAdd_mam", "vokmAdd_mat", "vokmAdd_tam", "vokmAdd_tat", "vokmAdd_mama",
        "vokmAdd_tama", "vokmAdd_tata", "vokmSub_mm", "vokmSub_mt", "vokmSub_tm", "vokmSub_tt", "vokmSub_mam", "vokmSub_mat",
        "vokmSub_mma", "vokmSub_mta", "vokmSub_tam", "vokmSub_tat", "vokmSub_tma", "vokmSub_tta", "vokmSub_mama", "vokmSub_mata",
        "vokmSub_tama", "vokmSub_tata", "vokmMul_mc", "vokmMul_tc", "vokmMul_mac", "vokmMul_tac"},
    &Elementwise::run<float>, &Elementwise::run<double>);

}  // namespace
