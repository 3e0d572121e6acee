// Set, Zero, Copy and Move on vectors. Only bits move: floats and complex elements are words of their width.
#include <bit>
#include <cstring>

#include "core/check.h"
#include "core/stamp.h"
#include "huxs.h"
#include "workers/fill.h"

namespace hux {
namespace {

void fill(Hux8u value, Hux8u* pDst, Index len) { ownsSet_8u(value, elements(pDst), len); }
void fill(Hux16s value, Hux16s* pDst, Index len) {
  ownsSet_16u(Hux16u(value), elements(reinterpret_cast<Hux16u*>(pDst)), len);
}
template <class T>
void fill(T value, T* pDst, Index len) {
  if constexpr (sizeof(T) == 4) {
    ownsSet_32s(std::bit_cast<Hux32s>(value), elements(reinterpret_cast<Hux32s*>(pDst)), len);
  } else {
    for (Index i = 0; i < len; ++i) elements(pDst)[i] = value;
  }
}

template <class T>
HuxStatus set(T value, T* pDst, int len) {
  if (HuxStatus s = check(pointers(pDst), length(len))) return s;
  fill(value, pDst, len);
  return huxStsOk;
}

template <class T>
HuxStatus zero(T* pDst, int len) {
  if (HuxStatus s = check(pointers(pDst), length(len))) return s;
  ownsZero_8u(pDst, len * Index(sizeof(T)));
  return huxStsOk;
}

template <class T>
HuxStatus copy(const T* pSrc, T* pDst, int len) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  ownsCopy_8u(pSrc, pDst, len * Index(sizeof(T)), sizeof(T));
  return huxStsOk;
}

// A source that starts less than one element behind the destination counts as the same place, and stays as it is.
template <class T>
HuxStatus move(const T* pSrc, T* pDst, int len) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  const auto ahead = reinterpret_cast<std::uintptr_t>(pSrc) - reinterpret_cast<std::uintptr_t>(pDst);
  if (ahead >= sizeof(T)) std::memmove(pDst, pSrc, std::size_t(len) * sizeof(T));
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, _) \
  HuxStatus huxsSet_##t(Hux##t value, Hux##t* pDst, int len) { return hux::set(value, pDst, len); }
HUX_STAMP(EXPORT, (8u, 16s, 32s, 32f, 16sc, 32fc), (_))
#undef EXPORT

#define EXPORT(t, _) \
  HuxStatus huxsZero_##t(Hux##t* pDst, int len) { return hux::zero(pDst, len); }
HUX_STAMP(EXPORT, (8u, 16s, 16sc, 32f), (_))
#undef EXPORT

#define EXPORT(t, _) \
  HuxStatus huxsCopy_##t(const Hux##t* pSrc, Hux##t* pDst, int len) { return hux::copy(pSrc, pDst, len); }
HUX_STAMP(EXPORT, (8u, 32f), (_))
#undef EXPORT

#define EXPORT(t, _) \
  HuxStatus huxsMove_##t(const Hux##t* pSrc, Hux##t* pDst, int len) { return hux::move(pSrc, pDst, len); }
HUX_STAMP(EXPORT, (16s, 32f), (_))
