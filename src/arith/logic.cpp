// And, Or, Xor and Not: bit operations on two images, or on an image and a constant. Complement: two's complement into
// sign and magnitude.
#include "arith/bitwise_images.h"
#include "core/stamp.h"
#include "huxi_arith.h"

namespace hux {
namespace {

template <class T, int N>
struct And {
  static constexpr int lanes = N;
  using V = Lanes<T, N>;
  V operator()(V a, V b) const { return a & b; }
};
template <class T, int N>
struct Or {
  static constexpr int lanes = N;
  using V = Lanes<T, N>;
  V operator()(V a, V b) const { return a | b; }
};
template <class T, int N>
struct Xor {
  static constexpr int lanes = N;
  using V = Lanes<T, N>;
  V operator()(V a, V b) const { return a ^ b; }
};

// Only the form out of place tests the size first.
template <class L, bool OutOfPlace>
HuxStatus invert(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = OutOfPlace ? delegated<L>(size(roi)) : HuxStatus(huxStsOk)) return s;
  constexpr Hux8u ones[] = {255, 255, 255, 255};
  return zipConstant<L, Xor<Hux8u, laneCount<Hux8u>>>(pSrc, srcStep, ones, pDst, dstStep, roi);
}

// A negative element is negated and gets the sign bit. The lowest value has no magnitude: the negation wraps to itself.
struct SignMagnitude {
  static constexpr int lanes = laneCount<Hux32s>;
  using V = Lanes<Hux32s, lanes>;
  V operator()(V v) const {
    using U = Lanes<Hux32u, lanes>;
    return v < 0 ? V(-U(v) | Hux32u(0x80000000)) : v;
  }
};

HuxStatus complement(Hux32s* pSrcDst, int srcDstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrcDst), steps(srcDstStep), size(roi))) return s;
  forEachRow(roi, rows<C1>(pSrcDst, srcDstStep),
             [](auto* row, Index n) { mapRow<C1, Hux32s>(row, row, n, SignMagnitude{}); });
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT_BITS(name, t, l)                                                                                      \
  HUX_EXPORT_ARITH_IMAGES(name, t, l, , hux::zipImages<hux::l, hux::name<Hux##t, hux::memoryLanes<Hux##t>>, Hux##t>) \
  HUX_EXPORT_ARITH_CONSTANT(name##C, t, l, ,                                                                         \
                            hux::zipConstant<hux::l, hux::name<Hux##t, hux::laneCount<Hux##t>>, Hux##t>)
#define EXPORT(t, l) EXPORT_BITS(And, t, l) EXPORT_BITS(Or, t, l) EXPORT_BITS(Xor, t, l)
HUX_STAMP(EXPORT, (8u, 16u, 32s), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, l)                                                                                             \
  HuxStatus huxiNot_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize roiSize) { \
    return hux::invert<hux::l, true>(pSrc, srcStep, pDst, dstStep, roiSize);                                     \
  }                                                                                                              \
  HuxStatus huxiNot_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize) {                           \
    return hux::invert<hux::l, false>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);                        \
  }
HUX_STAMP(EXPORT, (8u), (C1, C3, C4, AC4))

HuxStatus huxiComplement_32s_C1IR(Hux32s* pSrcDst, int srcDstStep, HuxiSize roiSize) {
  return hux::complement(pSrcDst, srcDstStep, roiSize);
}
