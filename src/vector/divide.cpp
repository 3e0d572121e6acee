// Div and DivC on real vectors.
#include "workers/divide.h"

#include "core/check.h"
#include "huxs.h"

namespace hux {
namespace {

template <class T>
HuxStatus divide(const T* pSrc1, const T* pSrc2, T* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pDst), length(len))) return s;
  return withQuotient<T>(
      scaleFactor, [&](auto rule) { return ownDiv<C1>(elements(pSrc1), elements(pSrc2), elements(pDst), len, rule); });
}

template <class T>
HuxStatus divideC(const T* pSrc, T value, T* pDst, int len, int scaleFactor) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len), failUnless(value != 0, huxStsDivByZero))) return s;
  mapRow<C1>(elements(pSrc), elements(pDst), len, ReciprocalProduct<T>(value, scaleFactor));
  return huxStsOk;
}

}  // namespace
}  // namespace hux

HuxStatus huxsDiv_32f(const Hux32f* pSrc1, const Hux32f* pSrc2, Hux32f* pDst, int len) {
  return hux::divide(pSrc1, pSrc2, pDst, len);
}
HuxStatus huxsDiv_8u_Sfs(const Hux8u* pSrc1, const Hux8u* pSrc2, Hux8u* pDst, int len, int scaleFactor) {
  return hux::divide(pSrc1, pSrc2, pDst, len, scaleFactor);
}
HuxStatus huxsDiv_16s_Sfs(const Hux16s* pSrc1, const Hux16s* pSrc2, Hux16s* pDst, int len, int scaleFactor) {
  return hux::divide(pSrc1, pSrc2, pDst, len, scaleFactor);
}
HuxStatus huxsDivC_8u_Sfs(const Hux8u* pSrc, Hux8u value, Hux8u* pDst, int len, int scaleFactor) {
  return hux::divideC(pSrc, value, pDst, len, scaleFactor);
}
HuxStatus huxsDivC_16s_Sfs(const Hux16s* pSrc, Hux16s value, Hux16s* pDst, int len, int scaleFactor) {
  return hux::divideC(pSrc, value, pDst, len, scaleFactor);
}
