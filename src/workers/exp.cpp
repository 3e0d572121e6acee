// Exp: e to the power of the element.
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numbers>

#include "huxcore.h"
#include "lanes/elementwise.h"
#include "workers/elementary.h"
#include "workers/nearest.h"
#include "workers/table.h"

namespace hux {
namespace {

// 2^(j/16), by the series of the exponential function. The position of j in the exponent is taken off, so that adding
// 16 e + j in that place leaves 2^e times the entry.
alignas(64) constexpr std::array<Hux64f, 16> kPowers = [] {
  std::array<Hux64f, 16> powers{};
  for (int j = 0; j < 16; ++j) {
    long double term = 1, sum = 1;
    for (int k = 1; k < 30; ++k) sum += term *= j * std::numbers::ln2_v<long double> / (16 * k);
    powers[std::size_t(j)] =
        std::bit_cast<Hux64f>(std::bit_cast<std::uint64_t>(Hux64f(sum)) - (std::uint64_t(j) << 48));
  }
  return powers;
}();

struct ExpFloat {
  static constexpr int lanes = laneCount<Hux64f>;
  using V = Lanes<Hux32f, lanes>;
  using D = Lanes<Hux64f, lanes>;
  using U = Lanes<std::uint64_t, lanes>;
  LaneTable<Hux64f, 16> powers{kPowers.data()};

  // To within this relative error, where the result is a normal double.
  static constexpr int kErrorBits = 38;
  D approximate(D x) const {
    // x = n ln2 / 16 + r with |r| at most half a step: the sum with 1.5 * 2^52 holds n in its low bits.
    constexpr Hux64f step = std::numbers::ln2 / 16, kInteger = 0x1.8p52;
    const D shifted = mulAdd(x, splat<D>(1 / step), splat<D>(kInteger));
    const D r = mulAdd(shifted - kInteger, splat<D>(-step), x);
    const U n = bitsAs<U>(shifted);
    const D power = bitsAs<D>(bitsAs<U>(powers(n)) + (n << std::uint64_t(48)));
    // 1 + r + r^2/2 + ... + r^5/120, with r^5 replaced by the nearest cubic on +-a.
    constexpr Hux64f a = step / 2;
    D p = splat<D>(1.0 / 24);
    p = mulAdd(p, r, splat<D>(1.0 / 6 + 5.0 / 4 * a * a / 120));
    p = mulAdd(p, r, splat<D>(1.0 / 2));
    p = mulAdd(p, r, splat<D>(1.0 - 5.0 / 16 * a * a * a * a / 120));
    return mulAdd(power * r, p, power);
  }

  V operator()(V v) const {
    // Beyond +-87 the result may not be a normal float.
    using M = Lanes<Hux32u, lanes>;
    const bool beyond = anyBelow(splat<M>(std::bit_cast<Hux32u>(87.0f) << 1), bitsAs<M>(v) << 1u);
    const D result = approximate(convert<Hux64f>(v));
    if (beyond || anyOpen<kErrorBits>(result)) [[unlikely]]
      return careful(v);
    return convert<Hux32f>(result);
  }

  // Beyond +-110 the result is infinity or 0.
  [[gnu::noinline]] V careful(V v) const {
    const V limited = greater(lesser(v, splat<V>(110)), splat<V>(-110));
    const V result =
        closed<kErrorBits>(approximate(convert<Hux64f>(limited)), limited, [](Hux64f e) { return std::exp(e); });
    return v == v ? result : splat<V>(huxConstantOfNAN_32f);
  }
};

// 16s: an index into the entries.
struct ExpShort {
  static constexpr int lanes = laneCount<Hux16s>;
  using V = Lanes<Hux16s, lanes>;
  using U = Lanes<Hux16u, lanes>;
  Hux16s first;
  LaneTable<Hux16s, 32> table;
  V operator()(V v) const { return table(lesser(U(greater(v, splat<V>(first))) - Hux16u(first), splat<U>(31))); }
};

}  // namespace

template <class T>
Exp<T>::Exp(int scaleFactor) {
  using Limits = std::numeric_limits<T>;
  constexpr Hux64f ln2 = std::numbers::ln2;
  // Far enough out for all elements to give 0, or all the largest value.
  const int scale = std::clamp(scaleFactor, -50000, 50000);
  // The first element whose result, e^(p - scale ln2), is not 0. The one tie there is, 0 at scale 1, deliberately goes
  // up on 8u and to even on 16s.
  const Hux64f half = (scale - 1) * ln2;
  const int start = int(std::floor(half)) + (sizeof(T) == 1 && scale == 1 ? 0 : 1);
  first = std::clamp(start - 1, int(Limits::min()), Limits::max() + 1 - size);
  for (int i = 0; i < size; ++i) {
    const Hux64f exponent = first + i - scale * ln2;
    if (first + i < start)
      entries[i] = 0;
    else if (exponent > 11)
      entries[i] = Limits::max();
    else
      entries[i] = T(std::clamp(std::floor(std::exp(exponent) + 0.5), 1.0, Hux64f(Limits::max())));
  }
}

template <class T>
HuxStatus Exp<T>::operator()(const Element<T>* src, Element<T>* dst, Index n) const {
  if constexpr (sizeof(T) == 1)
    ByteTables<C1>(entries).map(src, dst, n);
  else
    mapRow<C1>(src, dst, n, ExpShort{Hux16s(first), LaneTable<Hux16s, 32>(entries)});
  return huxStsOk;
}
template struct Exp<Hux8u>;
template struct Exp<Hux16s>;

HuxStatus Exp<Hux32f>::operator()(const Element<Hux32f>* src, Element<Hux32f>* dst, Index n) const {
  mapRow<C1>(src, dst, n, ExpFloat{});
  return huxStsOk;
}

}  // namespace hux
