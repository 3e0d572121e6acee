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

// The logarithm of positive integers times a factor, to the nearest integer.
template <class V>
auto scaledLogarithm(const LogarithmByPairs& logarithm, V v, Hux32f factor) {
  const auto sum = logarithm(convert<Hux32f>(v));
  const auto high = sum.high * factor;
  const auto nearest = nearestInteger(high);
  const auto rest = (high - convert<Hux32f>(nearest)) + sum.low * factor;
  return nearest - (rest >= 0.5f) + (rest < -0.5f);
}
template <class V>
auto scaledLogarithm(const Logarithm& logarithm, V v, Hux64f factor) {
  const auto each = [&](auto x) { return convert<Hux32s>(logarithm(convert<Hux64f>(x)) * factor + 0.5); };
  return joined(each(half<0>(v)), each(half<1>(v)));
}

// 16s. No result lies within the error of either logarithm of a rounding boundary.
struct LnShort {
  using Function = std::conditional_t<kByPairs, LogarithmByPairs, Logarithm>;
  using Float = LaneType<Function::V>;
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux16s, lanes>;
  Float factor;
  Function logarithm;
  HuxStatus status = huxStsOk;

  // Beyond -16 every element above 1 saturates, beyond 5 every result is 0.
  explicit LnShort(int scaleFactor) : factor(powerOfTwo<Float>(std::clamp(scaleFactor, -16, 5))) {}
  V operator()(V v) {
    const auto good = v > 0;
    if (status == huxStsOk && any(~good)) status = firstWarning(v);
    const auto positive = convert<Hux32s>(greater(v, splat<V>(1)));
    const V result = saturate<Hux16s>(scaledLogarithm(logarithm, positive, factor));
    return good ? result : splat<V>(-32768);
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
