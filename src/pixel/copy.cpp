// Copy: moves the pixels of a region, changing only the arrangement of channels.
//
// Every form is a move of `Taken` elements per pixel between two sides (move.h), or the same under a mask (masked.h).
// Only bits move: the types are handled by their width.
#include "core/stamp.h"
#include "huxi_pixel.h"
#include "workers/fill.h"
#include "workers/masked.h"
#include "workers/move.h"

namespace hux {
namespace {

// C1R, C3R, C4R: every element.
template <class L, class T>
HuxStatus copyAll(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi))) return s;
  const auto src = wordRows<L>(pSrc, srcStep);
  const auto dst = wordRows<L>(pDst, dstStep);
  const simd::Streaming streaming(roi, src, dst);
  forEachRow(roi, src, dst, [&](auto* s, auto* d, Index n) { copyPixels<L, Word<T>>(s, d, n, streaming); });
  return huxStsOk;
}

// Interleaved to interleaved: `Taken` elements from pixels of SrcStride to pixels of DstStride elements.
template <int SrcStride, int DstStride, int Taken, class T>
HuxStatus copyChannels(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi))) return s;
  const auto src = wordRows<Layout<SrcStride, Taken>>(pSrc, srcStep);
  const auto dst = wordRows<Layout<DstStride, Taken>>(pDst, dstStep);
  const simd::Streaming streaming(roi, src, dst);
  forEachRow(roi, src, dst, [&](auto* s, auto* d, Index n) {
    moveRow<Word<T>, Interleaved<SrcStride>, Interleaved<DstStride>, Taken>(s, d, n, streaming);
  });
  return huxStsOk;
}

template <int N, class T>
HuxStatus copyToPlanes(const T* pSrc, int srcStep, T* const* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc), planePointers<N>(pDst), size(roi))) return s;
  const auto src = wordRows<Layout<N, N>>(pSrc, srcStep);
  const auto dst = wordPlanes<N>(pDst, dstStep);
  const simd::Streaming streaming(roi, src, dst);
  forEachRow(roi, src, dst, [&](auto* s, const auto& d, Index n) {
    moveRow<Word<T>, Interleaved<N>, Planar<N>, N>(s, d, n, streaming);
  });
  return huxStsOk;
}

template <int N, class T>
HuxStatus copyFromPlanes(const T* const* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(planePointers<N>(pSrc), pointers(pDst), size(roi))) return s;
  const auto src = wordPlanes<N>(pSrc, srcStep);
  const auto dst = wordRows<Layout<N, N>>(pDst, dstStep);
  const simd::Streaming streaming(roi, src, dst);
  forEachRow(roi, src, dst, [&](const auto& s, auto* d, Index n) {
    moveRow<Word<T>, Planar<N>, Interleaved<N>, N>(s, d, n, streaming);
  });
  return huxStsOk;
}

template <class L, class T>
HuxStatus copyMasked(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, const Hux8u* pMask, int maskStep) {
  if (HuxStatus s = check(pointers(pSrc, pDst, pMask), size(roi))) return s;
  forEachRow(roi, wordRows<L>(pSrc, srcStep), wordRows<L>(pDst, dstStep), rows<C1>(pMask, maskStep),
             [](auto* src, auto* dst, auto* mask, Index n) { copyRowMasked<L, Word<T>>(src, dst, mask, n); });
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                              \
  HuxStatus huxiCopy_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize roiSize) { \
    return hux::copyAll<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize);                                           \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32s, 32f), (C1, C3, C4))
#undef EXPORT

#define EXPORT_CHANNELS(t, form, srcStride, dstStride, taken)                                                        \
  HuxStatus huxiCopy_##t##_##form##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize roiSize) { \
    return hux::copyChannels<srcStride, dstStride, taken>(pSrc, srcStep, pDst, dstStep, roiSize);                    \
  }
#define EXPORT(t, _)                 \
  EXPORT_CHANNELS(t, AC4, 4, 4, 3)   \
  EXPORT_CHANNELS(t, AC4C3, 4, 3, 3) \
  EXPORT_CHANNELS(t, C3AC4, 3, 4, 3) \
  EXPORT_CHANNELS(t, C3C, 3, 3, 1)   \
  EXPORT_CHANNELS(t, C4C, 4, 4, 1)   \
  EXPORT_CHANNELS(t, C3C1, 3, 1, 1)  \
  EXPORT_CHANNELS(t, C4C1, 4, 1, 1)  \
  EXPORT_CHANNELS(t, C1C3, 1, 3, 1)  \
  EXPORT_CHANNELS(t, C1C4, 1, 4, 1)
HUX_STAMP(EXPORT, (8u, 16s, 32s, 32f), (_))
#undef EXPORT

#define EXPORT(t, n)                                                                                          \
  HuxStatus huxiCopy_##t##_C##n##P##n##R(const Hux##t* pSrc, int srcStep, Hux##t* const pDst[n], int dstStep, \
                                         HuxiSize roiSize) {                                                  \
    return hux::copyToPlanes<n>(pSrc, srcStep, pDst, dstStep, roiSize);                                       \
  }                                                                                                           \
  HuxStatus huxiCopy_##t##_P##n##C##n##R(const Hux##t* const pSrc[n], int srcStep, Hux##t* pDst, int dstStep, \
                                         HuxiSize roiSize) {                                                  \
    return hux::copyFromPlanes<n>(pSrc, srcStep, pDst, dstStep, roiSize);                                     \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32s, 32f), (3, 4))
#undef EXPORT

#define EXPORT(t, l)                                                                                             \
  HuxStatus huxiCopy_##t##_##l##MR(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize roiSize, \
                                   const Hux8u* pMask, int maskStep) {                                           \
    return hux::copyMasked<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);                      \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32s, 32f), (C1, C3, C4, AC4))
