// Magnitude, Phase and PolarToCart on vectors, in double precision.
#include <array>
#include <bit>
#include <cmath>
#include <numbers>

#include "core/check.h"
#include "core/stamp.h"
#include "huxs.h"
#include "lanes/lanes_pairs.h"
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
template <class V>
using BitsOf = Lanes<std::conditional_t<sizeof(LaneType<V>) == 4, Hux32s, Hux64s>, lanesIn<V>>;
template <class V>
V absolute(V v) {
  return bitsAs<V>(bitsAs<BitsOf<V>>(v) & std::numeric_limits<LaneType<BitsOf<V>>>::max());
}
template <class V>
V signOf(V v) {
  return bitsAs<V>(bitsAs<BitsOf<V>>(v) & std::numeric_limits<LaneType<BitsOf<V>>>::min());
}
template <class V>
V turned(V v, V sign) {
  return bitsAs<V>(bitsAs<BitsOf<V>>(v) ^ bitsAs<BitsOf<V>>(sign));
}

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
  return turned(result, signOf(im));
}

// atan2(im, re) narrowed. Where the interval that the true angle lies in does not narrow to one float, which is rare,
// the accurate function decides, so that the approximation never shows.
template <class C>
struct Phase {
  static constexpr int lanes = kLanes;
  using Operand = ComplexLanes<C>;
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

// The same two in single precision, by sums of two floats. What these leave open, and what is out of the range in which
// their products are exact, falls to double precision; zeros do not.
namespace pairs {

constexpr int kLanes = laneCount<Hux32f>;
using V = Lanes<Hux32f, kLanes>;
using I = Lanes<Hux32s, kLanes>;
// As many complex elements.
template <class C>
using Elements = std::array<V, sizeof(C) / sizeof(Hux32f)>;

// The parts of complex elements, and results in the same arrangement. Vectors of alternating parts are taken apart
// within 16 bytes, where that is one instruction; results are brought back into their order.
template <class C>
struct Parts {
  V re, im;
  explicit Parts(Elements<C> v) {
    if constexpr (sizeof(C) == 4) {
      re = convert<Hux32f>(wideRe<Hux16s>(bitsAs<I>(v[0])));
      im = convert<Hux32f>(wideIm<Hux16s>(bitsAs<I>(v[0])));
    } else {
      [&]<int... J>(std::integer_sequence<int, J...>) {
        re = __builtin_shufflevector(v[0], v[1], (J / 4 * 4 + J % 2 * 2 + J % 4 / 2 * kLanes)...);
        im = __builtin_shufflevector(v[0], v[1], (J / 4 * 4 + J % 2 * 2 + J % 4 / 2 * kLanes + 1)...);
      }
      (std::make_integer_sequence<int, kLanes>{});
    }
  }
  static V inOrder(V v) {
    if constexpr (sizeof(C) == 4) return v;
    using Halves = Lanes<Hux64f, kLanes / 2>;
    const auto halves = bitsAs<Halves>(v);
    return [&]<int... J>(std::integer_sequence<int, J...>) {
      return bitsAs<V>(Halves(__builtin_shufflevector(halves, halves, (J * 2 % (kLanes / 2) + J / (kLanes / 4))...)));
    }
    (std::make_integer_sequence<int, kLanes / 2>{});
  }
};

template <class Rule, class C>
[[gnu::noinline]] V careful(Elements<C> v) {
  const auto two = bitsAs<std::array<ComplexLanes<C>, 2>>(v);
  return joined(Rule{}(two[0]), Rule{}(two[1]));
}

// The larger and the smaller one of |re| and |im|, of which one is NaN where one of those is.
struct Ordered {
  V large, small;
  Ordered(V x, V y) : large(greater(y, x)), small(lesser(x, y)) {}
};

template <class C>
struct Magnitude {
  static constexpr int lanes = kLanes;
  using Operand = Elements<C>;
  V half = constant<V>(0.5), precision = constant<V>(0x1p-34);
  V operator()(Elements<C> v) const {
    const Parts<C> z(v);
    const auto [a, b] = Ordered(absolute(z.re), absolute(z.im));
    // a^2 + b^2 = sum + low, to 2^-47.
    const V square = a * a, sum = mulAdd(b, b, square);
    const V low = mulAdd(b, b, square - sum) + mulAdd(a, a, -square);
    // A root next to that of the sum, and how far it is from the root of all.
    const V root = squareRoot(sum), perTwice = roughReciprocal(root) * half;
    const V rest = mulAdd(-root, root, sum) + low, error = root * precision;
    V least = root + mulAdd(rest, perTwice, -error);
    const V most = root + mulAdd(rest, perTwice, error);
    // Compared as integers numbers without a sign have their order, and NaN is the largest.
    const I order = bitsAs<I>(a);
    const auto outside = (order < std::bit_cast<Hux32s>(0x1p-40f)) | (order > std::bit_cast<Hux32s>(0x1p60f));
    if (any(outside | (least != most))) [[unlikely]] {
      const auto zero = (order | bitsAs<I>(b)) == 0;
      if (any(outside & ~zero) || any(~zero & (least != most))) return careful<hux::Magnitude<C>, C>(v);
      least = zero ? V{} : least;
    }
    return Parts<C>::inOrder(least);
  }
};

// With t = b / a next to c = j / 8, atan t is atan c + atan q for q = (b - c a) / (a + c b), which is at most 1/15.
template <class C>
struct Phase {
  static constexpr int lanes = kLanes;
  using Operand = Elements<C>;
  struct alignas(32) Tables {
    Hux32f highs[8], lows[8];
  };
  // atan(j / 8), by its series.
  static constexpr Tables kTables = [] {
    Tables tables{};
    for (int j = 0; j < 8; ++j) {
      const Hux64f c = j / 8.0;
      Hux64f sum = 0, power = c;
      for (int k = 1; k < 300; k += 2, power *= -c * c) sum += power / k;
      tables.highs[j] = Hux32f(sum), tables.lows[j] = Hux32f(sum - tables.highs[j]);
    }
    return tables;
  }();
  static constexpr Hux64f kPi = std::numbers::pi;
  static constexpr Hux32f kPiHigh = Hux32f(kPi);
  LaneTable<Hux32f, 8> highs{kTables.highs}, lows{kTables.lows};
  V integer = constant<V>(0x1.8p23), eight = constant<V>(8), eighth = constant<V>(0.125), belowOne = constant<V>(0.93),
    third = constant<V>(-1.0 / 3), fifth = constant<V>(1.0 / 5), seventh = constant<V>(-1.0 / 7),
    ninth = constant<V>(1.0 / 9), pi = constant<V>(kPi), halfPi = constant<V>(kPi / 2),
    restOfPi = constant<V>((kPi - kPiHigh) / kPiHigh), errorOfSquare = constant<V>(0x1p-26),
    precision = constant<V>(0x1p-35);

  V operator()(Elements<C> v) const {
    const Parts<C> z(v);
    const V x = absolute(z.re), y = absolute(z.im);
    auto [a, b] = Ordered(x, y);
    if (any((bitsAs<I>(a) > std::bit_cast<Hux32s>(0x1p60f)) | (bitsAs<I>(b) < std::bit_cast<Hux32s>(0x1p-60f)))) {
      const auto zero = b == 0;
      if (any(~((a <= 0x1p60f) & (zero | (b >= 0x1p-60f))))) return careful<hux::Phase<C>, C>(v);
      a = zero ? splat<V>(1) : a;
    }
    const V shifted = mulAdd(lesser(b * roughReciprocal(a), belowOne), eight, integer);
    const auto j = bitsAs<Lanes<Hux32u, kLanes>>(shifted);
    const V c = (shifted - integer) * eighth;
    // The numerator is exact, the denominator the sum of two.
    const V numerator = mulAdd(-c, a, b), denominator = mulAdd(c, b, a), behind = mulAdd(c, b, a - denominator);
    const V q = numerator / denominator, square = q * q;
    const V rest = mulAdd(-q, behind, mulAdd(-q, denominator, numerator)) * roughReciprocal(denominator);
    const V p = mulAdd(mulAdd(mulAdd(ninth, square, seventh), square, fifth), square, third);
    const V base = highs(j), angle = base + q;
    const V behindAngle = (base - angle + q) + (mulAdd(q * square, p, rest) + lows(j));
    // The angle is counted from the nearest axis, and that one from the right.
    const auto steep = y > x;
    const V left = bitsAs<V>(bitsAs<I>(z.re) >> 31);
    const V axis = steep ? halfPi : bitsAs<V>(bitsAs<I>(left) & bitsAs<I>(pi));
    const V back = signOf(bitsAs<V>(I(steep) ^ bitsAs<I>(left)));
    const V part = turned(angle, back), sum = axis + part;
    const V low = (axis - sum + part) + mulAdd(axis, restOfPi, turned(behindAngle, back));
    const V error = mulAdd(square, errorOfSquare, sum * precision);
    const V least = sum + (low - error), most = sum + (low + error);
    if (any(least != most)) [[unlikely]]
      return careful<hux::Phase<C>, C>(v);
    return Parts<C>::inOrder(turned(least, signOf(z.im)));
  }
};

}  // namespace pairs

// Parts of 32 bits are no floats.
template <class C>
using MagnitudeRule = std::conditional_t<kByPairs && std::is_same_v<C, Hux32fc>, pairs::Magnitude<C>, Magnitude<C>>;
template <class C>
using PhaseRule = std::conditional_t<kByPairs && !std::is_same_v<C, Hux32sc>, pairs::Phase<C>, Phase<C>>;

// A half away from zero, truncated; what is out of range becomes its end, and the product of no angle and an infinite
// factor 0.
template <class T, class V>
auto roundAway(V v) {
  constexpr Hux32f top = sizeof(T) == 2 ? 32767.0f : 2147483648.0f, below = sizeof(T) == 2 ? top : 2147483520.0f;
  v = v + (v < 0 ? splat<V>(-0.5f) : splat<V>(0.5f));
  v = v == v ? v : V{};
  const auto i = convert<Hux32s>(greater(lesser(v, splat<V>(below)), splat<V>(std::numeric_limits<T>::min())));
  return convert<T>(v >= top ? splat<Lanes<Hux32s, lanesIn<V>>>(std::numeric_limits<T>::max()) : i);
}

// The phase of integers times a factor, in single precision.
template <class C>
struct ScaledPhase {
  static constexpr int lanes = PhaseRule<C>::lanes;
  Hux32f factor;
  PhaseRule<C> phase{};
  using Operand = typename PhaseRule<C>::Operand;
  auto operator()(Operand v) const { return roundAway<Part<C>>(phase(v) * factor); }
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
  if constexpr (requires { requires std::is_same_v<typename Rule::Operand, pairs::Elements<C>>; }) {
    using pairs::Elements;
    const auto* src = words(pSrc);
    auto* dst = elements(pDst);
    int i = 0;
    for (; i + Rule::lanes <= len; i += Rule::lanes) {
      Elements<C> block;
      for (std::size_t k = 0; k < block.size(); ++k)
        block[k] = loadLanes<pairs::V>(advance(src + i, Index(k * sizeof(pairs::V))));
      storeLanes(dst + i, rule(block));
    }
    if (i < len) {
      Elements<C> last{};
      std::memcpy(&last, src + i, std::size_t(len - i) * sizeof(C));
      storeColours<4>(dst + i, rule(last), len - i);
    }
  } else {
    mapRow<C1>(words(pSrc), elements(pDst), len, rule);
  }
  return huxStsOk;
}

template <class C, class D>
HuxStatus magnitudes(const C* pSrc, D* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  if constexpr (std::is_floating_point_v<D>)
    return mapVector(pSrc, pDst, len, MagnitudeRule<C>{});
  else if (scaleFactor > 0)
    return mapVector(pSrc, pDst, len, ScaledMagnitude<C, true>(scaleFactor));
  else
    return mapVector(pSrc, pDst, len, ScaledMagnitude<C, false>(scaleFactor));
}

template <class C, class D>
HuxStatus phases(const C* pSrc, D* pDst, int len, int scaleFactor = 0) {
  if (HuxStatus s = check(pointers(pSrc, pDst), length(len))) return s;
  if constexpr (std::is_floating_point_v<D>)
    return mapVector(pSrc, pDst, len, PhaseRule<C>{});
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
