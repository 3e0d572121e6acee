// Scale: the full range of one type onto the full range of another.
#include "huxi_pixel.h"
#include "workers/convert.h"
#include "workers/map.h"

namespace hux {
namespace {

// From 8u to the integers D: the byte repeated over the width of D, less the middle of the range where D is signed.
template <class D>
struct Spread {
  static constexpr int lanes = laneCount<D>;
  using U = std::make_unsigned_t<D>;
  static constexpr U ones = U(U(~U(0)) / 255);
  static constexpr U middle = std::is_signed_v<D> ? U(U(1) << (8 * sizeof(D) - 1)) : U(0);
  Lanes<D, lanes> operator()(Lanes<Hux8u, lanes> v) const { return Lanes<D, lanes>(convert<U>(v) * ones + middle); }
};

// From 8u to floats: 0 to 255 onto vMin to vMax.
struct OntoRange {
  static constexpr int lanes = laneCount<Hux32f>;
  Hux32f step, vMin;
  OntoRange(Hux32f vMin, Hux32f vMax) : step((vMax - vMin) / 255.0f), vMin(vMin) {}
  auto operator()(Lanes<Hux8u, lanes> v) const { return convert<Hux32f>(v) * step + vMin; }
};

// From integers to 8u, quickly: the value from the middle of the range, times 255/256, shifted down.
template <class S>
struct Quick {
  static constexpr int lanes = laneCount<S>;
  static constexpr int bits = 8 * sizeof(S);
  using I = Lanes<std::make_signed_t<S>, lanes>;
  using U = Lanes<std::make_unsigned_t<S>, lanes>;
  auto operator()(Lanes<S, lanes> v) const {
    using T = LaneType<I>;
    const I w = std::is_signed_v<S> ? I(v) : I(v ^ S(S(1) << (bits - 1)));
    return lowerHalf(U(((w - (w >> T(8))) >> T(bits - 8)) + T(128)));
  }
};

// From integers to 8u, to nearest. The range is 255 times an odd number n, so that there are no ties, and the float
// sums v * factor + offset that define the result never come near enough to one to miss. It is (u + n / 2) / n, with u
// the value from the bottom of the range, and n divides by as much as 256/255 and a shift: both step at its multiples.
template <class S>
struct Accurate {
  using U = std::make_unsigned_t<S>;
  static constexpr int lanes = laneCount<S>;
  static constexpr int bits = 8 * sizeof(S);
  static constexpr U bottom = std::is_signed_v<S> ? U(U(1) << (bits - 1)) : U(0);
  static constexpr U half = U(~U(0)) / 255 / 2;
  auto operator()(Lanes<S, lanes> v) const {
    using V = Lanes<U, lanes>;
    const V t = lesser(V(v) ^ bottom, splat<V>(U(~half))) + half;
    return lowerHalf((t - (t >> U(8))) >> U(bits - 8));
  }
};

// From floats to 8u: vMin to vMax onto 0 to 255. The image v * factor + offset only grows with v. That of vMin is at
// most 1, whichever way its sums have rounded, and 1 counts as a tie, so that everything up to there is 0. That of vMax
// may fall short of 255; Guarded then compares. Images out of range are limited, and above at half a step beyond 255,
// where they can no longer be taken for a tie.
template <bool Guarded>
struct FromRange {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux32f, lanes>;
  Hux32f vMax, factor, offset;
  FromRange(Hux32f vMin, Hux32f vMax)
      : vMax(vMax), factor(255.0f / (vMax - vMin)), offset(0.5f + (0.0f - factor) * vMin) {}
  bool needsGuard() const { return (*this)(splat<V>(vMax))[0] < 255; }
  auto operator()(V v) const {
    const V top = splat<V>(255.5f);
    V t = lesser(top, v * factor + offset);  // keeps NaN, whose integer is the lowest
    if constexpr (Guarded) t = v >= splat<V>(vMax) ? top : t;
    return nearestInteger(t - 0.5f);
  }
};

template <class L, class D>
HuxStatus scaleUp(const Hux8u* pSrc, int srcStep, D* pDst, int dstStep, HuxiSize roi) {
  return mapImage<L>(pSrc, srcStep, pDst, dstStep, roi, Spread<D>{});
}

template <class L, class S>
HuxStatus scaleDown(const S* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roi, HuxAccuracyHint hint) {
  return hint == huxAlgHintAccurate ? mapImage<L>(pSrc, srcStep, pDst, dstStep, roi, Accurate<S>{})
                                    : mapImage<L>(pSrc, srcStep, pDst, dstStep, roi, Quick<S>{});
}

// The range is judged before anything else; one that holds a NaN is refused too.
template <class L>
HuxStatus scaleRange(const Hux8u* pSrc, int srcStep, Hux32f* pDst, int dstStep, HuxiSize roi, Hux32f vMin,
                     Hux32f vMax) {
  if (!(vMax - vMin > 0)) return huxStsBadScaleRange;
  return mapImage<L>(pSrc, srcStep, pDst, dstStep, roi, OntoRange(vMin, vMax));
}
template <class L>
HuxStatus scaleRange(const Hux32f* pSrc, int srcStep, Hux8u* pDst, int dstStep, HuxiSize roi, Hux32f vMin,
                     Hux32f vMax) {
  if (!(vMax - vMin > 0)) return huxStsBadScaleRange;
  const FromRange<false> plain(vMin, vMax);
  return plain.needsGuard() ? mapImage<L>(pSrc, srcStep, pDst, dstStep, roi, FromRange<true>(vMin, vMax))
                            : mapImage<L>(pSrc, srcStep, pDst, dstStep, roi, plain);
}

}  // namespace
}  // namespace hux

#define EXPORT_UP(s, d, l)                                                                                            \
  HuxStatus huxiScale_##s##d##_##l##R(const Hux##s* pSrc, int srcStep, Hux##d* pDst, int dstStep, HuxiSize roiSize) { \
    return hux::scaleUp<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize);                                               \
  }
#define EXPORT_DOWN(s, d, l)                                                                                        \
  HuxStatus huxiScale_##s##d##_##l##R(const Hux##s* pSrc, int srcStep, Hux##d* pDst, int dstStep, HuxiSize roiSize, \
                                      HuxAccuracyHint hint) {                                                       \
    return hux::scaleDown<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, hint);                                     \
  }
#define EXPORT_RANGE(s, d, l)                                                                                       \
  HuxStatus huxiScale_##s##d##_##l##R(const Hux##s* pSrc, int srcStep, Hux##d* pDst, int dstStep, HuxiSize roiSize, \
                                      Hux32f vMin, Hux32f vMax) {                                                   \
    return hux::scaleRange<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);                              \
  }
#define LAYOUTS(M, s, d) M(s, d, C1) M(s, d, C3) M(s, d, C4) M(s, d, AC4)
LAYOUTS(EXPORT_UP, 8u, 16u)
LAYOUTS(EXPORT_UP, 8u, 16s)
LAYOUTS(EXPORT_UP, 8u, 32s)
LAYOUTS(EXPORT_DOWN, 16u, 8u)
LAYOUTS(EXPORT_DOWN, 16s, 8u)
LAYOUTS(EXPORT_DOWN, 32s, 8u)
LAYOUTS(EXPORT_RANGE, 8u, 32f)
LAYOUTS(EXPORT_RANGE, 32f, 8u)
