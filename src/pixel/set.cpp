// Set: fills a region with a constant pixel. Only bits move, so the types are handled by their width and a float keeps
// its NaN payload and the sign of zero.
#include "core/stamp.h"
#include "huxi_pixel.h"
#include "workers/masked.h"
#include "workers/pattern.h"

namespace hux {
namespace {

// L tells the distance between pixels and how many elements of each are written; pPixel addresses that many.
template <class L, class T>
HuxStatus set(const T* pPixel, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pPixel, pDst), size(roi), steps(dstStep))) return s;
  using W = Word<T>;
  const Pattern<L, W> pattern(elementsAs<W>(pPixel));
  const auto dst = wordRows<L>(pDst, dstStep);
  const simd::Streaming streaming(roi, dst);
  forEachRow(roi, dst, [&](auto* dst, Index n) { pattern.fill(dst, n, streaming); });
  return huxStsOk;
}

template <class L, class T>
HuxStatus setMasked(const T* pPixel, T* pDst, int dstStep, HuxiSize roi, const Hux8u* pMask, int maskStep) {
  if (HuxStatus s = check(pointers(pPixel, pDst, pMask), size(roi), steps(dstStep, maskStep))) return s;
  using W = Word<T>;
  const Pattern<L, W> pattern(elementsAs<W>(pPixel));
  forEachRow(roi, wordRows<L>(pDst, dstStep), rows<C1>(pMask, maskStep),
             [&](auto* dst, auto* mask, Index n) { setRowMasked(pattern, dst, mask, n); });
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT_VALUE(t, form, stride)                                                            \
  HuxStatus huxiSet_##t##_##form##R(Hux##t value, Hux##t* pDst, int dstStep, HuxiSize roiSize) { \
    return hux::set<hux::Layout<stride, 1>>(&value, pDst, dstStep, roiSize);                     \
  }
#define EXPORT(t, _) EXPORT_VALUE(t, C1, 1) EXPORT_VALUE(t, C3C, 3) EXPORT_VALUE(t, C4C, 4)
HUX_STAMP(EXPORT, (8u, 16s, 32s, 32f), (_))
#undef EXPORT

#define EXPORT(t, l)                                                                                  \
  HuxStatus huxiSet_##t##_##l##R(const Hux##t* pValue, Hux##t* pDst, int dstStep, HuxiSize roiSize) { \
    return hux::set<hux::l>(pValue, pDst, dstStep, roiSize);                                          \
  }                                                                                                   \
  HuxStatus huxiSet_##t##_##l##MR(const Hux##t* pValue, Hux##t* pDst, int dstStep, HuxiSize roiSize,  \
                                  const Hux8u* pMask, int maskStep) {                                 \
    return hux::setMasked<hux::l>(pValue, pDst, dstStep, roiSize, pMask, maskStep);                   \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32s, 32f), (C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, _)                                                                                          \
  HuxStatus huxiSet_##t##_C1MR(Hux##t value, Hux##t* pDst, int dstStep, HuxiSize roiSize, const Hux8u* pMask, \
                               int maskStep) {                                                                \
    return hux::setMasked<hux::C1>(&value, pDst, dstStep, roiSize, pMask, maskStep);                          \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32s, 32f), (_))
