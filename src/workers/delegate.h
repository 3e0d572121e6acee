// Set and Copy as delegates of other image families: the exported members by element type and layout.
#pragma once

#include "core/layout.h"
#include "core/stamp.h"
#include "huxi_pixel.h"

namespace hux {

template <class L, class T>
struct SetMember;
template <class L, class T>
struct CopyMember;

#define HUX_MEMBERS(t, l)                                \
  template <>                                            \
  struct SetMember<l, Hux##t> {                          \
    static constexpr auto call = &huxiSet_##t##_##l##R;  \
  };                                                     \
  template <>                                            \
  struct CopyMember<l, Hux##t> {                         \
    static constexpr auto call = &huxiCopy_##t##_##l##R; \
  };
HUX_STAMP(HUX_MEMBERS, (8u, 16s, 32s, 32f), (C1, C3, C4, AC4))
#undef HUX_MEMBERS

// Types without members of their own use those of the same width: only bits move.
template <class T>
using Delegate = std::conditional_t<sizeof(T) == 1, Hux8u, std::conditional_t<sizeof(T) == 2, Hux16s, T>>;

// The exported Set of the layout, with one value for all channels: it checks the destination, the size and dstStep.
template <class L, class T>
HuxStatus setAll(T value, T* pDst, int dstStep, HuxiSize roi) {
  using D = Delegate<T>;
  const D pixel[4] = {D(value), D(value), D(value), D(value)};
  if constexpr (L::channels == 1)
    return SetMember<L, D>::call(pixel[0], argument<D>(pDst), dstStep, roi);
  else
    return SetMember<L, D>::call(pixel, argument<D>(pDst), dstStep, roi);
}

// The exported Copy of the layout.
template <class L, class T>
HuxStatus copyAll(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  using D = Delegate<T>;
  return CopyMember<L, D>::call(argument<D>(pSrc), srcStep, argument<D>(pDst), dstStep, roi);
}

}  // namespace hux
