// Convert on vectors: between element types, from floats with a scale.
#include "vector/convert.h"

#include "huxs.h"
#include "vector/frame.h"

namespace hux {
namespace {

template <class S, class D>
HuxStatus convertVector(const S* pSrc, D* pDst, int len) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  mapRow<C1>(elements(pSrc), elements(pDst), len, Converted<S, D>{});
  return huxStsOk;
}

// F is the precision of the scaled value.
template <class F, class S, class D>
HuxStatus convertScaled(const S* pSrc, D* pDst, int len, HuxRoundMode roundMode, int scaleFactor) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  const F factor = powerOfTwo<F>(scaleFactor);
  if (roundMode == huxRndNear)
    mapRow<C1>(elements(pSrc), elements(pDst), len, FromScaledFloat<S, F, D, true>{factor});
  else
    mapRow<C1>(elements(pSrc), elements(pDst), len, FromScaledFloat<S, F, D, false>{factor});
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(s, d)                                                        \
  HuxStatus huxsConvert_##s##d(const Hux##s* pSrc, Hux##d* pDst, int len) { \
    return hux::convertVector(pSrc, pDst, len);                             \
  }
#define EXPORT_SFS(s, d, precision)                                                                     \
  HuxStatus huxsConvert_##s##d##_Sfs(const Hux##s* pSrc, Hux##d* pDst, int len, HuxRoundMode roundMode, \
                                     int scaleFactor) {                                                 \
    return hux::convertScaled<Hux##precision>(pSrc, pDst, len, roundMode, scaleFactor);                 \
  }
EXPORT(8u, 32f)
EXPORT(32s, 32f)
EXPORT(32s, 64f)
EXPORT_SFS(32f, 8u, 32f)
EXPORT_SFS(32f, 16s, 32f)
EXPORT_SFS(32f, 32s, 64f)
EXPORT_SFS(64f, 32s, 64f)
