// Ln: the natural logarithm. Of zero and of negative elements the first that is met decides the warning.
#include <algorithm>
#include <array>
#include <bit>
#include <limits>

#include "huxcore.h"
#include "lanes/elementwise.h"
#include "lanes/round.h"
#include "workers/elementary.h"
#include "workers/logarithm.h"
#include "workers/nearest.h"
#include "workers/portable.h"
#include "workers/table.h"

namespace hux {
namespace {

// 8u: a table for each scale factor. At the first every element above 1 saturates; at the last every result is 0.
constexpr int kFirstScale = -9, kLastScale = 4;
constexpr auto kTables = [] {
  std::array<std::array<Hux8u, 256>, kLastScale - kFirstScale + 1> tables{};
  for (int element = 1; element < 256; ++element) {
    Hux64f value = logarithm(element) / (1 << kLastScale);
    for (int scaleFactor = kLastScale; scaleFactor >= kFirstScale; --scaleFactor, value *= 2)
      tables[std::size_t(scaleFactor - kFirstScale)][std::size_t(element)] = value < 255 ? Hux8u(value + 0.5) : 255;
  }
  return tables;
}();

// The warning of the first lane that is not above 0. (Not inlined: lanes that are taken one by one live in memory.)
template <class V>
[[gnu::noinline]] HuxStatus firstWarning(V v) {
  for (int i = 0; i < lanesIn<V>; ++i)
    if (v[i] <= 0) return v[i] < 0 ? huxStsLogNegWarn : huxStsLogZeroWarn;
  return huxStsOk;
}

struct LnFloat {
  static constexpr int lanes = 2 * Logarithm::lanes;
  using V = Lanes<Hux32f, lanes>;
  using Half = Lanes<Hux32f, lanes / 2>;
  Logarithm logarithm;
  Hux32f nan = huxConstantOfNAN_32f;
  HuxStatus status = huxStsOk;

  V operator()(V v) {
    constexpr Hux32f infinity = std::numeric_limits<Hux32f>::infinity();
    // As unsigned integers, less one, all but the finite positive numbers lie above those.
    using U = Lanes<Hux32u, lanes>;
    const U last = splat<U>(std::bit_cast<Hux32u>(infinity) - 2), order = bitsAs<U>(v) - 1u;
    const bool special = anyBelow(last, order);
    V x = v;
    if (special) {
      if (status == huxStsOk) status = firstWarning(v);
      x = order <= last ? v : splat<V>(1);
    }
    const auto first = logarithm(convert<Hux64f>(half<0>(x))), second = logarithm(convert<Hux64f>(half<1>(x)));
    V result = joined(convert<Hux32f>(first), convert<Hux32f>(second));
    if (anyOpen<Logarithm::kErrorBits>(first, second)) [[unlikely]]
      result = joined(careful(half<0>(x)), careful(half<1>(x)));
    if (special) {
      const V limit = v == 0 ? splat<V>(-infinity) : v > 0 ? v : splat<V>(nan);
      result = order <= last ? result : limit;
    }
    return result;
  }
  [[gnu::noinline]] static Half careful(Half v) {
    return closed<LongLogarithm::kErrorBits>(LongLogarithm()(convert<Hux64f>(v)), v,
                                             [](Hux64f e) { return portable::log(e); });
  }
};

// The same from sums of two floats. What these leave open, and results of numbers that are not normal, fall to double
// precision.
struct LnByPairs {
  static constexpr int lanes = LogarithmByPairs::lanes;
  using V = Lanes<Hux32f, lanes>;
  using U = Lanes<Hux32u, lanes>;
  using I = Lanes<Hux32s, lanes>;
  // Moved up to the end of the range of integers, all but the positive normal numbers lie above those.
  static constexpr Hux32u kUp = 0x80000000 - 0x00800000;
  U up = held(splat<U>(kUp));
  I last = held(splat<I>(Hux32s(0x7F7FFFFF + kUp)));
  LogarithmByPairs logarithm;
  Hux32f nan = huxConstantOfNAN_32f;
  HuxStatus status = huxStsOk;

  V operator()(V v) {
    constexpr Hux32f infinity = std::numeric_limits<Hux32f>::infinity(), normal = std::numeric_limits<Hux32f>::min();
    const bool special = any(I(bitsAs<U>(v) + up) > last);
    V x = v;
    bool subnormal = false;
    if (special) {
      if (status == huxStsOk) status = firstWarning(v);
      x = ((v > 0) & (v < infinity)) ? v : splat<V>(1);
      subnormal = any(x < normal);
    }
    const auto sum = logarithm(x);
    V result = sum.high + (sum.low - sum.error);
    const V most = sum.high + (sum.low + sum.error);
    if (subnormal || any(result != most)) [[unlikely]]
      result = careful(x);
    if (special) {
      const V limit = v == 0 ? splat<V>(-infinity) : v > 0 ? v : splat<V>(nan);
      result = ((v > 0) & (v < infinity)) ? result : limit;
    }
    return result;
  }
  [[gnu::noinline]] static V careful(V v) { return LnFloat{}(v); }
};

// 16s. log v = e ln2 + log z with z from about 0.7 to 1.4, each times the factor, in single precision: the first is
// exact but for the last digits of ln2, so that the sum decides all results but those next to a rounding boundary, some
// in ten thousand. These fall to double precision, and none lies within the error of that.
struct LnShort {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux16s, lanes>;
  using F = Lanes<Hux32f, lanes>;
  using I = Lanes<Hux32s, lanes>;
  using U = Lanes<Hux32u, lanes>;
  static constexpr Hux32u kFirst = 0x3F350000;
  static constexpr Hux64f kLn2 = std::numbers::ln2, kLn2High = fewDigits(kLn2);
  // log z = 2 (t + t^3 / 3 + ...) with t = (z - 1) / (z + 1).
  static constexpr std::array<Hux32f, 5> kTerms = {2, 2.0f / 3, 2.0f / 5, 2.0f / 7, 2.0f / 9};
  Hux32f factor, decided;
  HuxStatus status = huxStsOk;

  // Beyond -16 every element above 1 saturates, beyond 5 every result is 0. The logarithm is good to 2^-22.
  explicit LnShort(int scaleFactor)
      : factor(powerOfTwo<Hux32f>(std::clamp(scaleFactor, -16, 5))), decided(0.5f - 0x1p-24f - factor * 0x1p-22f) {}
  I operator()(V v) {
    const I element = convert<Hux32s>(v);
    const auto good = element > 0;
    if (status == huxStsOk && any(~good)) status = firstWarning(v);
    const F x = greater(convert<Hux32f>(element), splat<F>(1));
    const U bits = bitsAs<U>(x), offset = bits - kFirst;
    const F z = bitsAs<F>(bits - (offset & 0xFF800000)), e = convert<Hux32f>(I(offset) >> 23);
    const F t = (z - 1.0f) / (z + 1.0f);
    const F low = mulAdd(e, splat<F>(Hux32f(kLn2 - kLn2High)), polynomial(kTerms, F(t * t)) * t) * factor;
    const F high = e * Hux32f(kLn2High) * factor;
    const I whole = nearestInteger(high);
    const F sum = (high - convert<Hux32f>(whole)) + low;
    const I nearest = nearestInteger(sum);
    const F rest = sum - convert<Hux32f>(nearest);
    I result = whole + nearest;
    if (any((rest > decided) | (rest < -decided))) [[unlikely]]
      result = careful(x, factor);
    return good ? result : splat<I>(-32768);
  }
  [[gnu::noinline]] static I careful(F x, Hux64f factor) {
    const Logarithm logarithm;
    const auto each = [&](auto x) { return convert<Hux32s>(logarithm(convert<Hux64f>(x)) * factor + 0.5); };
    return joined(each(half<0>(x)), each(half<1>(x)));
  }
};

}  // namespace

template <class T>
HuxStatus Ln<T>::operator()(const Element<T>* src, Element<T>* dst, Index n) const {
  if constexpr (std::is_same_v<T, Hux8u>) {
    const int table = std::clamp(scaleFactor, kFirstScale, kLastScale) - kFirstScale;
    const bool zero = n > 0 && std::memchr(src, 0, std::size_t(n));
    ByteTables<C1>(kTables[std::size_t(table)].data()).map(src, dst, n);
    return zero ? huxStsLogZeroWarn : huxStsOk;
  } else if constexpr (std::is_same_v<T, Hux16s>) {
    return applyRule<C1>(dst, n, LnShort(scaleFactor), FromRow<T, LnShort::lanes>{src, 1}).status;
  } else {
    using Rule = std::conditional_t<kByPairs, LnByPairs, LnFloat>;
    return applyRule<C1>(dst, n, Rule{}, FromRow<T, Rule::lanes>{src, 1}).status;
  }
}
template struct Ln<Hux8u>;
template struct Ln<Hux16s>;
template struct Ln<Hux32f>;

}  // namespace hux
