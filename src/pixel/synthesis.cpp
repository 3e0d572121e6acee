// ImageRamp and ImageJaehne: test images that are computed from the coordinates of a pixel, the same for all channels.
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <numbers>

#include "core/stamp.h"
#include "huxi_pixel.h"
#include "lanes/elementwise.h"
#include "lanes/lanes_math.h"
#include "workers/move.h"
#include "workers/nearest.h"
#include "workers/pattern.h"
#include "workers/portable.h"

namespace hux {
namespace {

// The operand of the rules: the columns, from `first` on.
template <int N>
struct Columns {
  static constexpr int period = 1;
  Index first;

  Lanes<Hux32s, N> load(Index i, int) const {
    Lanes<Hux32u, N> columns;
    for (int k = 0; k < N; ++k) columns[k] = Hux32u(k);
    return Lanes<Hux32s, N>(columns + Hux32u(first + i));
  }
  Lanes<Hux32s, N> load(Index i, int phase, int) const { return load(i, phase); }
};

template <class L, class T, class Rule>
void drawRow(Element<T>* dst, Index width, Rule rule) {
  if constexpr (L::channels == 1) {
    applyRule<C1>(dst, width, rule, Columns<Rule::lanes>{0});
  } else {
    constexpr Index block = 256;
    Element<T> values[block];
    forPieces(width, block, [&](Index x, Index n) {
      applyRule<C1>(values, n, rule, Columns<Rule::lanes>{x});
      moveRow<Word<T>, Repeated, Interleaved<L::channels>, L::processed>(elementsAs<const Word<T>>(values),
                                                                         elementsAs<Word<T>>(dst + x * L::channels), n);
    });
  }
}

// Makes each row with draw(row, y), or copies it from the row original(y) if that lies above. Rows that overlap are all
// drawn, for the last one shows.
template <class L, class T, class Original, class Draw>
void drawRows(Rows<T> dst, HuxiSize roi, Original original, Draw draw) {
  const bool apart = dst.step >= roi.width * dst.pixelBytes;
  const simd::Streaming streaming(roi, dst);
  for (int y = 0; y < roi.height; ++y) {
    if (const int from = original(y); apart && from < y)
      copyPixels<L, Word<T>>(elementsAs<const Word<T>>(dst.row(from)), elementsAs<Word<T>>(dst.row(y)), roi.width,
                             streaming);
    else
      draw(dst.row(y), y);
  }
}

// Halves away from zero, in single precision; saturated, and NaN as the lowest value.
template <class T, class V>
auto fromRamp(V v) {
  if constexpr (std::is_floating_point_v<T>) {
    return v;
  } else {
    constexpr bool wide = sizeof(T) == 4;  // whose highest value is no float
    constexpr T low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    const V in = lesser(greater(v, splat<V>(Hux32f(low))), splat<V>(wide ? 0x1.fffffep30f : Hux32f(high)));
    auto i = convert<Hux32s>(in + (std::is_unsigned_v<T> ? splat<V>(0.5f) : in > 0 ? splat<V>(0.5f) : splat<V>(-0.5f)));
    if constexpr (wide) i = v >= 0x1p31f ? splat<decltype(i)>(high) : i;
    return convert<T>(i);
  }
}

// c * slope + offset for c = x * factor. The product is exact in F, or rounded as its conversion would be, so that c is
// an integer converted to single precision.
template <class T, class F>
struct Slope {
  static constexpr int lanes = laneCount<F>;
  F factor;
  Hux32f offset, slope;
  Lanes<T, lanes> operator()(Lanes<Hux32s, lanes> x) const {
    return fromRamp<T>(convert<Hux32f>(convert<F>(x) * factor) * slope + offset);
  }
};

template <class L, class T, class F>
void drawRamp(Rows<T> dst, HuxiSize roi, Hux32f offset, Hux32f slope, HuxiAxis axis) {
  const auto original = [&](int y) { return axis == huxAxsHorizontal ? 0 : y; };
  drawRows<L>(dst, roi, original, [&](Element<T>* row, int y) {
    const Slope<T, F> rule{axis == huxAxsHorizontal ? F(1) : F(y), offset, slope};
    if (axis == huxAxsVertical) {
      Element<Word<T>> pixel[4];
      std::fill_n(pixel, 4, std::bit_cast<Word<T>>(rule(splat<Lanes<Hux32s, rule.lanes>>(1))[0]));
      Pattern<L, Word<T>>(pixel).fill(elementsAs<Word<T>>(row), roi.width);
    } else {
      drawRow<L>(row, roi.width, rule);
    }
  });
}

template <class L, class T>
HuxStatus ramp(T* pDst, int dstStep, HuxiSize roi, Hux32f offset, Hux32f slope, HuxiAxis axis) {
  if (HuxStatus s = check(pointers(pDst), steps(dstStep), size(roi))) return s;
  if (axis != huxAxsHorizontal && axis != huxAxsVertical && axis != huxAxsBoth) return huxStsOk;
  const auto dst = rows<L>(pDst, wholeElements<T>(dstStep));
  // Floats hold coordinates up to 2^24; and no region has so many pixels that a double does not hold their number.
  if (std::max(roi.width, roi.height) <= 1 << 24)
    drawRamp<L, T, Hux32f>(dst, roi, offset, slope, axis);
  else
    drawRamp<L, T, Hux64f>(dst, roi, offset, slope, axis);
  return huxStsOk;
}

using Doubles = Lanes<Hux64f, laneCount<Hux64f>>;

// sin(z) for z from 0 to kSineEnd, to within kSineError.
constexpr Hux64f kSineEnd = 0x1p20, kSineError = 0x1p-46;
Doubles sine(Doubles z) {
  // z = k pi + r with |r| at most pi/2: the sum with 1.5 * 2^52 holds k in its low bits. Pi is the sum of two parts, to
  // 2^-86; the high one is so short that its product with k is exact.
  constexpr Hux64f kInteger = 0x1.8p52, kHigh = 0x1.921fb544p1, kLow = 0x1.0b4611a626331p-33;
  const Doubles shifted = mulAdd(z, splat<Doubles>(std::numbers::inv_pi), splat<Doubles>(kInteger));
  const Doubles k = shifted - kInteger;
  const Doubles r = mulAdd(k, splat<Doubles>(-kLow), mulAdd(k, splat<Doubles>(-kHigh), z)), u = r * r;
  // r - r^3/3! + r^5/5! - ... + r^17/17! - r^19/19!
  static constexpr auto kTerms = [] {
    std::array<Hux64f, 9> terms{};
    Hux64f factorial = 1;
    for (int i = 0; i < 9; ++i) factorial *= -(2.0 * i + 2) * (2 * i + 3), terms[std::size_t(i)] = 1 / factorial;
    return terms;
  }();
  Doubles p = splat<Doubles>(kTerms[8]);
  for (std::size_t i = 8; i-- > 0;) p = mulAdd(p, u, splat<Doubles>(kTerms[i]));
  const Doubles s = mulAdd(p * u, r, r);
  using U = Lanes<std::uint64_t, lanesIn<Doubles>>;
  return bitsAs<Doubles>(bitsAs<U>(s) ^ bitsAs<U>(shifted) << std::uint64_t(63));
}

// The element of a sine; integers are truncated.
template <class T>
auto levelOf(Doubles s) {
  constexpr Hux64f scale = std::is_floating_point_v<T> ? 0.49999
                           : sizeof(T) == 1            ? 127.99999
                           : sizeof(T) == 2            ? 32767.99999
                                                       : 2147483647.99999;
  if constexpr (std::is_floating_point_v<T>)
    return convert<Hux32f>((s + 1.0) * scale);
  else if constexpr (std::is_unsigned_v<T>)
    return convert<Hux32s>((s + 1.0) * scale);
  else
    return convert<Hux32s>(s * scale);
}

// sin((a^2 + b^2) * 2 pi / divisor), a being the distance of the column from the centre. Where the interval that the
// sine lies in does not come to one level, which is rare, the accurate function decides, so that the approximation
// never shows; and beyond kSineEnd it always does.
template <class T>
struct Chirp {
  static constexpr int lanes = lanesIn<Doubles>;
  Hux64f centre, bSquared, divisor;
  bool far;

  Chirp(HuxiSize roi, int y) : centre((roi.width - 1) * 0.5), divisor(roi.height * 4.0) {
    const Hux64f b = y - (roi.height - 1) * 0.5;
    bSquared = b * b;
    far = angle(-centre) >= kSineEnd;
  }
  template <class V>
  V angle(V a) const {
    return (a * a + bSquared) * 6.283185307179586 / divisor;
  }
  Lanes<T, lanes> operator()(Lanes<Hux32s, lanes> x) const {
    const Doubles z = angle(convert<Hux64f>(x) - centre), s = sine(z);
    const auto low = levelOf<T>(greater(s - kSineError, splat<Doubles>(-1)));
    const auto high = levelOf<T>(lesser(s + kSineError, splat<Doubles>(1)));
    const auto exact = [=] { return levelOf<T>(accurate(z)); };
    return convert<T>(far ? exact() : decided(low, high, exact));
  }
  [[gnu::noinline]] static Doubles accurate(Doubles z) {
    for (int i = 0; i < lanes; ++i) z[i] = portable::sin(z[i]);
    return z;
  }
};

template <class L, class T>
HuxStatus jaehne(T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pDst), steps(dstStep), size(roi))) return s;
  const auto original = [&](int y) { return std::min(y, roi.height - 1 - y); };
  drawRows<L>(rows<L>(pDst, dstStep), roi, original,
              [&](Element<T>* row, int y) { drawRow<L>(row, roi.width, Chirp<T>(roi, y)); });
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                             \
  HuxStatus huxiImageRamp_##t##_##l##R(Hux##t* pDst, int dstStep, HuxiSize roiSize, Hux32f offset, Hux32f slope, \
                                       HuxiAxis axis) {                                                          \
    return hux::ramp<hux::l>(pDst, dstStep, roiSize, offset, slope, axis);                                       \
  }                                                                                                              \
  HuxStatus huxiImageJaehne_##t##_##l##R(Hux##t* pDst, int dstStep, HuxiSize roiSize) {                          \
    return hux::jaehne<hux::l>(pDst, dstStep, roiSize);                                                          \
  }
HUX_STAMP(EXPORT, (8u, 8s, 16u, 16s, 32s, 32f), (C1, C3, C4, AC4))
