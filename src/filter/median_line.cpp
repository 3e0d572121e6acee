// FilterMedianHoriz, FilterMedianVert and FilterMedianCross: the median of a row, a column, or a row and a column
// through the pixel.
#include "core/stamp.h"
#include "filter/medians.h"
#include "huxi_filter.h"

namespace hux {
namespace {

// One of two masks, each with the function for a row of its windows.
template <class T>
struct MaskRow {
  HuxiMaskSize mask;
  Reach reach;
  void (*row)(Window<T> window, Index neighbour, Element<T>* dst, Index count);
};

template <class L, class T>
HuxStatus filterLine(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiMaskSize mask,
                     const MaskRow<T>& small, const MaskRow<T>& large) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep),
                          failUnless(mask == small.mask || mask == large.mask, huxStsBadMaskSize)))
    return s;
  const MaskRow<T>& chosen = mask == small.mask ? small : large;
  forEachRow(roi, windowRows<L>(pSrc, srcStep, chosen.reach), rows<L>(pDst, dstStep),
             [&](auto window, auto* dst, Index n) { chosen.row(window, L::channels, dst, elementsOf<L>(n)); });
  return huxStsOk;
}

template <class L, class T>
HuxStatus filterMedianHoriz(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiMaskSize mask) {
  using Store = StoreOf<L>;
  return filterLine<L, T>(pSrc, srcStep, pDst, dstStep, roi, mask,
                          {huxMskSize3x1, centred(3, 1), ownhuxiFilterMedianHoriz<3, Store, T>},
                          {huxMskSize5x1, centred(5, 1), ownhuxiFilterMedianHoriz<5, Store, T>});
}

template <class L, class T>
HuxStatus filterMedianVert(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiMaskSize mask) {
  using Store = StoreOf<L>;
  return filterLine<L, T>(pSrc, srcStep, pDst, dstStep, roi, mask,
                          {huxMskSize1x3, centred(1, 3), ownhuxiFilterMedianVert<3, Store, T>},
                          {huxMskSize1x5, centred(1, 5), ownhuxiFilterMedianVert<5, Store, T>});
}

template <class L, class T>
HuxStatus filterMedianCross(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiMaskSize mask) {
  using Store = StoreOf<L>;
  return filterLine<L, T>(pSrc, srcStep, pDst, dstStep, roi, mask,
                          {huxMskSize3x3, centred(3), ownhuxiFilterMedianCross<3, Store, T>},
                          {huxMskSize5x5, centred(5), ownhuxiFilterMedianCross<5, Store, T>});
}

}  // namespace
}  // namespace hux

#define EXPORT_SHAPE(Shape, t, l)                                                                              \
  HuxStatus huxiFilterMedian##Shape##_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, \
                                                   HuxiSize dstRoiSize, HuxiMaskSize mask) {                   \
    return hux::filterMedian##Shape<hux::l>(pSrc, srcStep, pDst, dstStep, dstRoiSize, mask);                   \
  }
#define EXPORT(t, l) EXPORT_SHAPE(Horiz, t, l) EXPORT_SHAPE(Vert, t, l)
HUX_STAMP(EXPORT, (8u, 16s), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, l) EXPORT_SHAPE(Cross, t, l)
HUX_STAMP(EXPORT, (8u, 16s), (C1, C3, AC4))
