// vokmLoadIdentity: each row is cleared, then its one is set, as far as the diagonal goes.
#include "../frame/fixed.h"
#include "direct.h"

namespace vokm {

// Deliberate: 32f in the pointer layout tests the shift before the count.
inline constexpr Row rowLoadIdentity{{"NZCSs", "NZOCs", "NZCSO"}, {"NZCSs", "NZCOs", "NZCSO"}};

template <class D> inline void identityEach(const D& dst, Shape shape, i32 count)
{
    for (i32 i = 0; i < count; ++i) {
        const auto d = dst.object(i, shape);
        for (i32 r = 0; r < shape.rows; ++r) {
            for (i32 c = 0; c < shape.cols; ++c) d(r, c) = 0;
            if (r < shape.cols) d(r, r) = 1;
        }
    }
}

struct LoadIdentities {
    template <class D> void operator()(const D& dst, const Sizes<2>& sizes, Count count) const
    {
        const Shape shape = shapeOf(sizes);
        if (!dst.contiguous()) return identityEach(dst, shape, count.n);
        // Small squares of dense rows in straight code: the sizes are constants there.
        const auto straight = [&](auto size) {
            constexpr i32 n = decltype(size)::value;
            identityEach(dense(dst), Shape{n, n}, count.n);
        };
        onFixed(shape.rows == shape.cols ? shape.rows : 0, straight, [&] { identityEach(dense(dst), shape, count.n); });
    }
};

}  // namespace vokm

#define IDENTITY_PARAMS(L, T, code) VOKM_PARAM(L, code, T, dst), int32_t width, int32_t height, int32_t count
#define IDENTITY_ARGS(L, T, code) VOKM_VIEW(L, code, T, dst), vokm::Sizes{width, height}, vokm::Count{count}
#define IDENTITY_WORK LoadIdentities{}

extern "C" {
VOKM_EXPORTS_DIRECT_ARRAY(LoadIdentity, ma, vokm::rowLoadIdentity, IDENTITY, ma)
}
