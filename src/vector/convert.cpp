// Convert on vectors: between element types, from floats with a scale.
#include "workers/convert.h"

#include "core/check.h"
#include "huxs.h"

namespace hux {
namespace {

template <class S, class D>
HuxStatus convertVector(const S* pSrc, D* pDst, int len) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  mapRow<C1>(elements(pSrc), elements(pDst), len, Converted<S, D>{});
  return huxStsOk;
}

// Floats times a power of two that is itself a float, to 32-bit integers. The rule is one of double precision; single
// gives the same: only products too small to count are inexact, and from 2^23 on they are whole numbers.
template <bool Near>
struct ScaledTo32s {
  static constexpr int lanes = laneCount<Hux32f>;
  Hux32f factor;
  auto operator()(Lanes<Hux32f, lanes> v) const {
    v *= factor;
    return integersOf<Near>(v) ^ (v >= 0x1p31f);  // beyond the top all bits are the wrong way round
  }
};

// F is the precision of the scaled value.
template <class F, class S, class D>
HuxStatus convertScaled(const S* pSrc, D* pDst, int len, HuxRoundMode roundMode, int scaleFactor) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  const bool near = roundMode == huxRndNear;
  const auto map = [&](auto rule) { mapRow<C1>(elements(pSrc), elements(pDst), len, rule); };
  if constexpr (std::is_same_v<S, Hux32f> && std::is_same_v<D, Hux32s>)
    if (scaleFactor >= -126 && scaleFactor <= 126) {
      const Hux32f factor = powerOfTwo<Hux32f>(scaleFactor);
      near ? map(ScaledTo32s<true>{factor}) : map(ScaledTo32s<false>{factor});
      return huxStsOk;
    }
  const F factor = powerOfTwo<F>(scaleFactor);
  near ? map(FromScaledFloat<S, F, D, true>{factor}) : map(FromScaledFloat<S, F, D, false>{factor});
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
