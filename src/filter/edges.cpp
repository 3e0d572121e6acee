// Prewitt, Sobel and Scharr: first and second derivatives of the image, smoothed across their direction.
#include "core/stamp.h"
#include "filter/fixed.h"
#include "huxi_filter.h"

namespace hux {
namespace {

// Beside the sums that other filters have as well.
struct Smooth5 {  // 1 4 6 4 1
  static constexpr int size = 5;
  static auto of(const auto& v) { return v[-2] + v[2] + times<4>(v[-1] + v[1]) + times<6>(v[0]); }
};
struct SmoothScharr {  // 3 10 3
  static constexpr int size = 3;
  static auto of(const auto& v) { return times<3>(v[-1] + v[1]) + times<10>(v[0]); }
};
struct Rise3 {  // -1 0 1
  static constexpr int size = 3;
  static auto of(const auto& v) { return v[1] - v[-1]; }
};
struct Fall3 {  // 1 0 -1
  static constexpr int size = 3;
  static auto of(const auto& v) { return v[-1] - v[1]; }
};
struct Rise5 {  // -1 -2 0 2 1
  static constexpr int size = 5;
  static auto of(const auto& v) {
    const auto inner = v[1] - v[-1];
    return v[2] - v[-2] + inner + inner;
  }
};
struct Fall5 {  // 1 2 0 -2 -1
  static constexpr int size = 5;
  static auto of(const auto& v) {
    const auto inner = v[-1] - v[1];
    return v[-2] - v[2] + inner + inner;
  }
};
struct Bend3 {  // 1 -2 1
  static constexpr int size = 3;
  static auto of(const auto& v) { return v[-1] + v[1] - v[0] - v[0]; }
};
struct Bend5 {  // 1 0 -2 0 1
  static constexpr int size = 5;
  static auto of(const auto& v) { return v[-2] + v[2] - v[0] - v[0]; }
};

// Sums along the rows, then of the rows. Signed words hold all sums of bytes.
template <class Row, class Column>
struct Separable {
  static_assert(Row::size == Column::size);
  static constexpr int height = Column::size;
  static auto row(const auto& p) { return Row::of(p); }
  template <class D>
  static auto column(const auto& r, const auto&) {
    return saturate<D>(Column::of(r));
  }
};

// The filters by their names. A vertical edge lies between columns.
using PrewittVert = Separable<Fall3, Sum3>;
using PrewittHoriz = Separable<Sum3, Rise3>;
using SobelVert3 = Separable<Fall3, Smooth3>;
using SobelVert5 = Separable<Fall5, Smooth5>;
using SobelHoriz3 = Separable<Smooth3, Rise3>;
using SobelHoriz5 = Separable<Smooth5, Rise5>;
using SobelVertSecond3 = Separable<Bend3, Smooth3>;
using SobelVertSecond5 = Separable<Bend5, Smooth5>;
using SobelHorizSecond3 = Separable<Smooth3, Bend3>;
using SobelHorizSecond5 = Separable<Smooth5, Bend5>;
using SobelCross3 = Separable<Fall3, Rise3>;
using SobelCross5 = Separable<Fall5, Rise5>;
using ScharrVert = Separable<Rise3, SmoothScharr>;  // its sign is opposite to that of the others: required
using ScharrHoriz = Separable<SmoothScharr, Rise3>;

// The Sobel filters of floats look for one mask size and take any other for 5 by 5: established behaviour.
template <class L, class Filter3x3, class Filter5x5, class T>
HuxStatus lenientFilter(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiMaskSize mask) {
  return mask == huxMskSize3x3 ? fixedFilter<L, Filter3x3>(pSrc, srcStep, pDst, dstStep, roi)
                               : fixedFilter<L, Filter5x5>(pSrc, srcStep, pDst, dstStep, roi);
}

}  // namespace
}  // namespace hux

#define EXPORT_FIXED(name, types, t, d, l, filter)                                                          \
  HuxStatus huxiFilter##name##_##types##_##l##R(const Hux##t* pSrc, int srcStep, Hux##d* pDst, int dstStep, \
                                                HuxiSize roiSize) {                                         \
    return hux::fixedFilter<hux::l, hux::filter>(pSrc, srcStep, pDst, dstStep, roiSize);                    \
  }
#define EXPORT_SIZED(name, types, t, d, body, filter)                                                       \
  HuxStatus huxiFilter##name##_##types##_C1R(const Hux##t* pSrc, int srcStep, Hux##d* pDst, int dstStep,    \
                                             HuxiSize roiSize, HuxiMaskSize mask) {                         \
    return hux::body<hux::C1, hux::filter##3, hux::filter##5>(pSrc, srcStep, pDst, dstStep, roiSize, mask); \
  }

#define EXPORT(t, l)                                   \
  EXPORT_FIXED(PrewittVert, t, t, t, l, PrewittVert)   \
  EXPORT_FIXED(PrewittHoriz, t, t, t, l, PrewittHoriz) \
  EXPORT_FIXED(SobelVert, t, t, t, l, SobelVert3)      \
  EXPORT_FIXED(SobelHoriz, t, t, t, l, SobelHoriz3)
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT_C1(types, t, d, vert, horiz, body)                     \
  EXPORT_FIXED(ScharrVert, types, t, d, C1, ScharrVert)               \
  EXPORT_FIXED(ScharrHoriz, types, t, d, C1, ScharrHoriz)             \
  EXPORT_SIZED(vert, types, t, d, body, SobelVert)                    \
  EXPORT_SIZED(horiz, types, t, d, body, SobelHoriz)                  \
  EXPORT_SIZED(SobelVertSecond, types, t, d, body, SobelVertSecond)   \
  EXPORT_SIZED(SobelHorizSecond, types, t, d, body, SobelHorizSecond) \
  EXPORT_SIZED(SobelCross, types, t, d, body, SobelCross)
EXPORT_C1(8u16s, 8u, 16s, SobelVert, SobelHoriz, fixedFilter)
EXPORT_C1(8s16s, 8s, 16s, SobelVert, SobelHoriz, fixedFilter)
EXPORT_C1(32f, 32f, 32f, SobelVertMask, SobelHorizMask, lenientFilter)
