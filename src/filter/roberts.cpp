// Roberts: the difference of a pixel and a neighbour in the row above, along either diagonal.
#include "core/stamp.h"
#include "core/window.h"
#include "huxi_filter.h"
#include "lanes/elementwise.h"

namespace hux {
namespace {

template <class T>
struct Difference {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  V operator()(V pixel, V diagonal) const {
    if constexpr (std::is_floating_point_v<T>)
      return pixel - diagonal;
    else
      return subSaturated(pixel, diagonal);  // 0 where negative, for bytes
  }
};

// The neighbour lies `columns` pixels to the right, or to the left where negative.
template <class L, class T>
HuxStatus roberts(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, int columns) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep))) return s;
  const auto src = rows<L>(pSrc, wholeElements<T>(srcStep));
  const Rows<const T> above = {src.row(-1) + columns * L::channels, src.step, src.pixelBytes};
  forEachRow(
      roi, src, above, rows<L>(pDst, wholeElements<T>(dstStep)),
      [](auto* pixels, auto* diagonals, auto* dst, Index n) { zipRow<L>(pixels, diagonals, dst, n, Difference<T>()); });
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                       \
  HuxStatus huxiFilterRobertsDown_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, \
                                               HuxiSize roiSize) {                                         \
    return hux::roberts<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, -1);                                \
  }                                                                                                        \
  HuxStatus huxiFilterRobertsUp_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep,   \
                                             HuxiSize roiSize) {                                           \
    return hux::roberts<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, 1);                                 \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32f), (C1, C3, AC4))
