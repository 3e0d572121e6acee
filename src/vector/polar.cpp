// Magnitude, Phase and PolarToCart on vectors, in double precision.
#include <array>
#include <cmath>
#include <numbers>

#include "core/check.h"
#include "core/stamp.h"
#include "huxs.h"
#include "lanes/lanes_math.h"
#include "lanes/round.h"
#include "workers/complex.h"
#include "workers/nearest.h"
#include "workers/portable.h"

namespace hux {
namespace {

constexpr int kLanes = laneCount<Hux64f>;
using Doubles = Lanes<Hux64f, kLanes>;
using Floats = Lanes<Hux32f, kLanes>;
using Ints = Lanes<Hux32s, kLanes>;
using Longs = Lanes<Hux64s, kLanes>;

constexpr Hux64s kSign = std::numeric_limits<Hux64s>::min();
Doubles absolute(Doubles v) { return bitsAs<Doubles>(bitsAs<Longs>(v) & ~kSign); }

// The parts of complex elements, exact.
template <class C>
struct DoubleParts {
  using W = WordOfComplex<C>;
  Doubles re, im;
  explicit DoubleParts(Lanes<W, kLanes> v) {
    if constexpr (sizeof(W) == 4) {
      re = convert<Hux64f>(wideRe<Hux16s>(Ints(v)));
      im = convert<Hux64f>(wideIm<Hux16s>(Ints(v)));
    } else {
      re = convert<Hux64f>(bitsAs<Lanes<Part<C>, kLanes>>(convert<Hux32s>(Longs(v))));
      im = convert<Hux64f>(bitsAs<Lanes<Part<C>, kLanes>>(convert<Hux32s>(Longs(v >> W(32)))));
    }
  }
};
template <class C>
using ComplexLanes = Lanes<WordOfComplex<C>, kLanes>;

template <class C, class V>
ComplexLanes<C> joinLanes(V re, V im) {
  if constexpr (sizeof(C) == 4)
    return joinWide<Hux16s>(re, im);
  else
    return joinWide<Hux32s>(convert<Hux64s>(bitsAs<Ints>(re)), convert<Hux64s>(bitsAs<Ints>(im)));
}

template <class C>
struct Magnitude {
  static constexpr int lanes = kLanes;
  auto operator()(ComplexLanes<C> v) const {
    const DoubleParts<C> z(v);
    return convert<Hux32f>(squareRoot(z.re * z.re + z.im * z.im));
  }
};

// On integers, scaled. Ties go up, but to the even neighbour where the scale factor is positive.
template <class C, bool Down>
struct ScaledMagnitude {
  static constexpr int lanes = kLanes;
  Hux64f factor;
  // Past these ends every result is 0, or out of range but for 0 itself.
  explicit ScaledMagnitude(int scaleFactor) : factor(powerOfTwo<Hux64f>(std::clamp(scaleFactor, -32, 40))) {}
  auto operator()(ComplexLanes<C> v) const {
    const DoubleParts<C> z(v);
    const Doubles r = squareRoot(z.re * z.re + z.im * z.im) * factor + 0.5;
    if constexpr (Down)
      return convert<Part<C>>(convert<Hux32s>(nearestEvenBits(r - 0.5)));
    else
      return convert<Part<C>>(convert<Hux32s>(lesser(r, splat<Doubles>(std::numeric_limits<Part<C>>::max()))));
  }
};

// The angle of (re, im), to within a relative 2^-44; of (0, 0) it is that of 0 over something. Where an argument is not
// finite it is right or not a number.
Doubles angle(Doubles im, Doubles re) {
  const Doubles y = absolute(im), x = absolute(re);
  const auto steep = y > x;
  const Doubles low = steep ? x : y, high = greater(splat<Doubles>(1e-300), steep ? y : x);
  // atan(t) is pi/4 + atan((t - 1) / (t + 1)), which keeps the argument below tan(pi/8).
  const auto far = low > high * (std::numbers::sqrt2 - 1);
  const Doubles t = (far ? low - high : low) / (far ? low + high : high), u = t * t;
  constexpr std::array<Hux64f, 9> kSeries = {0x1.fffffffffff0ep-1,  -0x1.55555554e5d36p-2, 0x1.99999911a2643p-3,
                                             -0x1.2492291436381p-3, 0x1.c714d3112b2c0p-4,  -0x1.73d9c2015f279p-4,
                                             0x1.35ce9b8d66a29p-4,  -0x1.e1392c03e886dp-5, 0x1.f653681b774dbp-6};
  Doubles result = mulAdd(polynomial(kSeries, u), t, far ? splat<Doubles>(std::numbers::pi / 4) : Doubles{});
  result = steep ? std::numbers::pi / 2 - result : result;
  result = bitsAs<Longs>(re) < 0 ? std::numbers::pi - result : result;
  return bitsAs<Doubles>(bitsAs<Longs>(result) ^ (bitsAs<Longs>(im) & kSign));
}

// atan2(im, re) narrowed. Where the interval that the true angle lies in does not narrow to one float, which is rare,
// the accurate function decides, so that the approximation never shows.
template <class C>
struct Phase {
  static constexpr int lanes = kLanes;
  Floats operator()(ComplexLanes<C> v) const {
    const DoubleParts<C> z(v);
    const Doubles a = angle(z.im, z.re);
    return decided(convert<Hux32f>(a * (1 - 0x1p-42)), convert<Hux32f>(a * (1 + 0x1p-42)), [&] {
      Floats phases{};
      for (int i = 0; i < kLanes; ++i) phases[i] = Hux32f(portable::atan2(z.im[i], z.re[i]));
      return phases;
    });
  }
};

// A half away from zero, truncated; what is out of range becomes its end, and the product of no angle and an infinite
// factor 0.
template <class T>
auto roundAway(Floats v) {
  constexpr Hux32f top = sizeof(T) == 2 ? 32767.0f : 2147483648.0f, below = sizeof(T) == 2 ? top : 2147483520.0f;
  v = v + (v < 0 ? splat<Floats>(-0.5f) : splat<Floats>(0.5f));
  v = v == v ? v : Floats{};
  const Ints i =
      convert<Hux32s>(greater(lesser(v, splat<Floats>(below)), splat<Floats>(std::numeric_limits<T>::min())));
  return convert<T>(v >= top ? splat<Ints>(std::numeric_limits<T>::max()) : i);
}

// The phase of integers times a factor, in single precision.
template <class C>
struct ScaledPhase {
  static constexpr int lanes = kLanes;
  Hux32f factor;
  auto operator()(ComplexLanes<C> v) const { return roundAway<Part<C>>(Phase<C>{}(v)*factor); }
};

// At scale factor 0, by a fast approximation: the arc tangent of a quotient is taken to be linear.
template <class C>
struct FastPhase {
  static constexpr int lanes = kLanes;
  auto operator()(ComplexLanes<C> v) const {
    constexpr Hux64f quarter = std::numbers::pi / 4;
    const DoubleParts<C> z(v);
    const Doubles y = absolute(z.im) + 1e-10, x = absolute(z.re);
    const auto left = z.re < 0;
    const Doubles turn = quarter * (left ? y - x : x - y) / (x + y);
    Floats phase = convert<Hux32f>((left ? splat<Doubles>(3 * quarter) : splat<Doubles>(quarter)) - turn);
    phase = convert<Hux32s>(Longs(z.im < 0)) != 0 ? -phase : phase;
    phase = convert<Hux32s>(Longs((z.re == 0) & (z.im == 0))) != 0 ? Floats{} : phase;
    return roundAway<Part<C>>(phase);
  }
};

// sin(r) for r of up to pi/2 either way, to eight digits.
Doubles sine(Doubles r) {
  const Doubles z = r * r;
  return r + z * r *
                 (((2.630033909762885e-06 * z - 0.00019820663968799938) * z + 0.008333215738643764) * z -
                  0.16666665094466732);
}

template <class T>
auto fromDouble(Doubles v) {
  if constexpr (std::is_floating_point_v<T>) {
    return convert<Hux32f>(v);
  } else {
    v = greater(lesser(v, splat<Doubles>(std::numeric_limits<T>::max())),
                splat<Doubles>(std::numeric_limits<T>::min()));
    return convert<Hux32s>(v);
  }
}

// (magnitude, phase) by a polynomial. Angles that are too large to be reduced with care, or not finite, are left to
// the accurate functions.
template <class C>
struct Cartesian {
  static constexpr int lanes = kLanes;
  using T = Part<C>;
  Hux64f factor;
  ComplexLanes<C> operator()(Lanes<T, kLanes> magnitudes, Lanes<T, kLanes> phases) const {
    const Doubles m = convert<Hux64f>(magnitudes), phase = convert<Hux64f>(phases) * factor, a = absolute(phase);
    const auto known = a < 0x1p20;
    const Ints k = convert<Hux32s>((known ? a : Doubles{}) * std::numbers::inv_pi);
    Doubles r = a - convert<Hux64f>(k) * std::numbers::pi;
    const auto back = r >= std::numbers::pi / 2;
    r = back ? std::numbers::pi - r : r;
    const Longs odd = convert<Hux64s>(k) << 63;
    const auto turned = [&](Doubles v, Longs sign) { return bitsAs<Doubles>(bitsAs<Longs>(v) ^ sign); };
    Doubles im = m * turned(sine(r), odd ^ (bitsAs<Longs>(phase) & kSign));
    Doubles re = m * turned(sine(std::numbers::pi / 2 - absolute(r)), odd ^ (Longs(back) & kSign));
    if constexpr (std::is_floating_point_v<T>)
      if (any(convert<Hux32s>(~known))) [[unlikely]]
        for (int i = 0; i < kLanes; ++i)
          if (!known[i]) re[i] = m[i] * portable::cos(phase[i]), im[i] = m[i] * portable::sin(phase[i]);
    return joinLanes<C>(fromDouble<T>(re), fromDouble<T>(im));
  }
};

// The same by the accurate functions, for one element.
template <class T>
T truncated(Hux64f v) {
  if constexpr (std::is_floating_point_v<T>)
    return T(v);
  else
    return T(std::clamp(v, Hux64f(std::numeric_limits<T>::min()), Hux64f(std::numeric_limits<T>::max())));
}
template <class C, class T>
C cartesian(T magnitude, T phase, Hux64f factor) {
  const Hux64f m = magnitude, angle = phase * factor;
  return {truncated<T>(m * portable::cos(angle)), truncated<T>(m * portable::sin(angle))};
}

// On 32-bit integers the accurate functions decide to the last bit. The products with sines and cosines that are good
// to 2^-48 are truncated; where that depends on the error, which is rare, those are called.
struct AccurateCartesian {
  static constexpr int lanes = kLanes;
  Hux64f factor;
  ComplexLanes<Hux32sc> operator()(Ints magnitudes, Ints phases) const {
    const Doubles m = convert<Hux64f>(magnitudes), phase = convert<Hux64f>(phases) * factor;
    const Longs quadrant = nearestEvenBits(phase * (2 * std::numbers::inv_pi));
    const Doubles k = bitsAs<Doubles>(quadrant) - 0x1.8p52;
    // pi/2 in three parts, of which the first two have so few digits that their multiples are exact.
    const Doubles r = ((phase - k * 0x1.921fbp+0) - k * 0x1.5110b4p-22) - k * 0x1.8469898cc5170p-48, z = r * r;
    constexpr std::array<Hux64f, 6> kSine = {-0x1.5555555555555p-3, 0x1.1111111110bb2p-7,   -0x1.a01a019e83816p-13,
                                             0x1.71de379654304p-19, -0x1.ae600aca92c64p-26, 0x1.5e0b05bff20f2p-33};
    constexpr std::array<Hux64f, 5> kCosine = {0x1.5555555555437p-5, -0x1.6c16c16b613d3p-10, 0x1.a019ff537986cp-16,
                                               -0x1.27e25f2996b83p-22, 0x1.1c81b3862d88cp-29};
    const Doubles s = r + r * z * polynomial(kSine, z), c = (1.0 - 0.5 * z) + z * z * polynomial(kCosine, z);
    const auto turned = [&](Doubles v, Longs quarter) {
      return bitsAs<Doubles>(bitsAs<Longs>(v) ^ ((quarter >> 1) << 63));
    };
    const auto odd = (quadrant & 1) != 0;
    const Doubles error = phase == 0 ? Doubles{} : absolute(m) * 0x1p-47;
    const auto product = [&](Doubles v, Hux32s Hux32sc::*part) {
      return decided(fromDouble<Hux32s>(m * v - error), fromDouble<Hux32s>(m * v + error), [&] {
        Ints parts{};
        for (int i = 0; i < kLanes; ++i) parts[i] = cartesian<Hux32sc>(magnitudes[i], phases[i], factor).*part;
        return parts;
      });
    };
    return joinLanes<Hux32sc>(product(turned(odd ? s : c, quadrant + 1), &Hux32sc::re),
                              product(turned(odd ? c : s, quadrant), &Hux32sc::im));
  }
};

template <class Rule, class C, class D>
HuxStatus mapVector(const C* pSrc, D* pDst, int len, Rule rule) {
  mapRow<C1>(words(pSrc), elements(pDst), len, rule);
  return huxStsOk;
}

template <class C, class D>
HuxStatus magnitudes(const C* pSrc, D* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  if constexpr (std::is_floating_point_v<D>)
    return mapVector(pSrc, pDst, len, Magnitude<C>{});
  else if (scaleFactor > 0)
    return mapVector(pSrc, pDst, len, ScaledMagnitude<C, true>(scaleFactor));
  else
    return mapVector(pSrc, pDst, len, ScaledMagnitude<C, false>(scaleFactor));
}

template <class C, class D>
HuxStatus phases(const C* pSrc, D* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  if constexpr (std::is_floating_point_v<D>)
    return mapVector(pSrc, pDst, len, Phase<C>{});
  else if (scaleFactor == 0)
    return mapVector(pSrc, pDst, len, FastPhase<C>{});
  else
    return mapVector(pSrc, pDst, len, ScaledPhase<C>{powerOfTwo<Hux32f>(scaleFactor)});
}

// A last element without a partner is computed by the accurate functions.
template <class C, class T>
HuxStatus polarToCart(const T* pMagnitude, const T* pPhase, C* pDst, int len, int fixedPoint = 0) {
  constexpr int maxFixedPoint = int(sizeof(T)) * 8 - 1;
  if (HuxStatus s = check(pointers(pMagnitude, pPhase, pDst), length(len),
                          failUnless(fixedPoint >= 0 && fixedPoint <= maxFixedPoint, huxStsBadSize)))
    return s;
  const Hux64f factor = powerOfTwo<Hux64f>(fixedPoint);
  const auto *m = elements(pMagnitude), *p = elements(pPhase);
  if constexpr (std::is_same_v<T, Hux32s>) {
    zipRow<C1>(m, p, words(pDst), len, AccurateCartesian{factor});
  } else {
    const int pairs = len & ~1;
    zipRow<C1>(m, p, words(pDst), pairs, Cartesian<C>{factor});
    if (pairs < len) elements(pDst)[pairs] = cartesian<C, T>(m[pairs], p[pairs], factor);
  }
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(name, call, t, r)                                                                 \
  HuxStatus huxs##name##_##t##_Sfs(const Hux##t* pSrc, Hux##r* pDst, int len, int scaleFactor) { \
    return hux::call(pSrc, pDst, len, scaleFactor);                                              \
  }
EXPORT(Magnitude, magnitudes, 16sc, 16s)
EXPORT(Magnitude, magnitudes, 32sc, 32s)
EXPORT(Phase, phases, 16sc, 16s)
EXPORT(Phase, phases, 32sc, 32s)
HuxStatus huxsMagnitude_32fc(const Hux32fc* pSrc, Hux32f* pDst, int len) { return hux::magnitudes(pSrc, pDst, len); }
HuxStatus huxsPhase_32fc(const Hux32fc* pSrc, Hux32f* pDst, int len) { return hux::phases(pSrc, pDst, len); }

#undef EXPORT
#define EXPORT(t, r)                                                                                               \
  HuxStatus huxsPolarToCart_##t(const Hux##r* pMagnitude, const Hux##r* pPhase, int phaseFixedPoint, Hux##t* pDst, \
                                int len) {                                                                         \
    return hux::polarToCart(pMagnitude, pPhase, pDst, len, phaseFixedPoint);                                       \
  }
EXPORT(16sc, 16s)
EXPORT(32sc, 32s)
HuxStatus huxsPolarToCart_32fc(const Hux32f* pMagnitude, const Hux32f* pPhase, Hux32fc* pDst, int len) {
  return hux::polarToCart(pMagnitude, pPhase, pDst, len);
}
