// Convert: an image in another type, its values kept, or limited to the range of the narrower type. The bit images are
// in halftone.cpp.
#include "workers/convert.h"
#include "core/stamp.h"
#include "huxi_pixel.h"
#include "workers/map.h"

namespace hux {
namespace {

template <class L, class S, class D>
HuxStatus convertImage(const S* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roi) {
  return mapImage<L>(pSrc, srcStep, pDst, dstStep, roi, Converted<S, D>{});
}

template <class L, class S, class D>
HuxStatus roundImage(const S* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roi, HuxRoundMode roundMode) {
  return roundMode == huxRndNear ? mapImage<L>(pSrc, srcStep, pDst, dstStep, roi, FromFloat<S, D, true>{})
                                 : mapImage<L>(pSrc, srcStep, pDst, dstStep, roi, FromFloat<S, D, false>{});
}

}  // namespace
}  // namespace hux

#define EXPORT(s, d, l)                                                                             \
  HuxStatus huxiConvert_##s##d##_##l##R(const Hux##s* pSrc, int srcStep, Hux##d* pDst, int dstStep, \
                                        HuxiSize roiSize) {                                         \
    return hux::convertImage<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize);                        \
  }
#define EXPORT_ROUND(s, d, l)                                                                                         \
  HuxStatus huxiConvert_##s##d##_##l##R(const Hux##s* pSrc, int srcStep, Hux##d* pDst, int dstStep, HuxiSize roiSize, \
                                        HuxRoundMode roundMode) {                                                     \
    return hux::roundImage<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);                                 \
  }
#define LAYOUTS(M, s, d) M(s, d, C1) M(s, d, C3) M(s, d, C4) M(s, d, AC4)
LAYOUTS(EXPORT, 8u, 16u)
LAYOUTS(EXPORT, 8u, 16s)
LAYOUTS(EXPORT, 8u, 32s)
LAYOUTS(EXPORT, 8u, 32f)
LAYOUTS(EXPORT, 8s, 32s)
LAYOUTS(EXPORT, 8s, 32f)
LAYOUTS(EXPORT, 16u, 8u)
LAYOUTS(EXPORT, 16u, 32s)
LAYOUTS(EXPORT, 16u, 32f)
LAYOUTS(EXPORT, 16s, 8u)
LAYOUTS(EXPORT, 16s, 32f)
LAYOUTS(EXPORT, 32s, 8u)
LAYOUTS(EXPORT, 32s, 8s)
LAYOUTS(EXPORT_ROUND, 32f, 8u)
LAYOUTS(EXPORT_ROUND, 32f, 8s)
LAYOUTS(EXPORT_ROUND, 32f, 16u)
LAYOUTS(EXPORT_ROUND, 32f, 16s)
