// Sqrt: the square root. A negative element is a warning and gives 0 on 16s, NaN on 32f.
#include <algorithm>
#include <array>

#include "huxcore.h"
#include "lanes/elementwise.h"
#include "lanes/lanes_math.h"
#include "lanes/round.h"
#include "workers/elementary.h"
#include "workers/table.h"

namespace hux {
namespace {

// 8u: a table for each scale factor. At the first every element but 0 saturates; at the last every result is 0.
constexpr int kFirstScale = -8, kLastScale = 5;

// The roots of all bytes times 2^-scaleFactor, ties to even, by comparison of integers: root(p) * 2^-scaleFactor lies
// above r + 1/2 where p * 4^(1 - scaleFactor) lies above (2 r + 1)^2.
constexpr std::array<Hux8u, 256> rootTable(int scaleFactor) {
  std::array<Hux8u, 256> table{};
  std::uint64_t r = 0;
  for (std::uint64_t p = 0; p < 256; ++p) {
    const auto isAbove = [&] {
      const std::uint64_t square = (2 * r + 1) * (2 * r + 1) << 2 * kLastScale;
      const std::uint64_t element = p << 2 * (kLastScale + 1 - scaleFactor);
      return element > square || (element == square && r % 2 == 1);
    };
    while (r < 255 && isAbove()) ++r;
    table[p] = Hux8u(r);
  }
  return table;
}
constexpr auto kRootTables = [] {
  std::array<std::array<Hux8u, 256>, kLastScale - kFirstScale + 1> tables{};
  for (int scaleFactor = kFirstScale; scaleFactor <= kLastScale; ++scaleFactor)
    tables[std::size_t(scaleFactor - kFirstScale)] = rootTable(scaleFactor);
  return tables;
}();

// 16u and 16s, scaleFactor below 0. The root in single precision is within one of the result; whether the exact root
// lies above root + 1/2, which it never equals, is told by the element times 4^-scaleFactor. That product may wrap
// where the result saturates; then it does not matter.
template <class T>
struct RootUp {
  static constexpr int lanes = laneCount<Hux32s>;
  Hux32f factor;
  Hux32u shift;
  explicit RootUp(int scaleFactor)
      : factor(powerOfTwo<Hux32f>(std::max(scaleFactor, -16))),
        shift(Hux32u(std::min(-2 * std::max(scaleFactor, -16), 30))) {}
  auto operator()(Lanes<Hux32s, lanes> v) const {
    using U = Lanes<Hux32u, lanes>;
    using F = Lanes<Hux32f, lanes>;
    const F root = squareRoot(convert<Hux32f>(v)) * factor;
    const U whole = U(convert<Hux32s>(lesser(root, splat<F>(std::numeric_limits<T>::max()))));
    return Lanes<Hux32s, lanes>(whole - U(U(v) << shift > mulWords(whole, whole) + whole));
  }
};

// scaleFactor 0 and above: at most 8 bits, for which single precision is exact enough to tell ties.
template <class T>
struct RootDown {
  static constexpr int lanes = laneCount<Hux32s>;
  Hux32f factor;
  explicit RootDown(int scaleFactor) : factor(powerOfTwo<Hux32f>(std::min(scaleFactor, 10))) {}
  auto operator()(Lanes<Hux32s, lanes> v) const {
    return fitting<T>(nearestInteger(squareRoot(convert<Hux32f>(v)) * factor));
  }
};

// Takes the roots of what is at least 0 and notes whether all was.
template <class T, class Root>
struct NotingSign {
  static constexpr int lanes = Root::lanes;
  using V = Lanes<T, lanes>;
  Root root;
  V negative{};
  auto operator()(V v) {
    if constexpr (std::is_signed_v<T>) {
      negative |= v;
      v = greater(v, V{});
    }
    return root(convert<Hux32s>(v));
  }
  HuxStatus status() const {
    if constexpr (std::is_signed_v<T>)
      return any(negative < 0) ? huxStsSqrtNegWarn : huxStsOk;
    else
      return huxStsOk;
  }
};

// 32f: NaN is treated as a negative element.
struct RootFloat {
  static constexpr int lanes = laneCount<Hux32f>;
  using V = Lanes<Hux32f, lanes>;
  Hux32f nan = huxConstantOfNAN_32f;
  Lanes<Hux32s, lanes> negative{};
  V operator()(V v) {
    const auto good = v >= 0;
    negative |= ~good;
    return good ? squareRoot(v) : splat<V>(nan);
  }
  HuxStatus status() const { return any(negative) ? huxStsSqrtNegWarn : huxStsOk; }
};

}  // namespace

template <class T>
HuxStatus Sqrt<T>::operator()(const Element<T>* src, Element<T>* dst, Index n) const {
  if constexpr (std::is_same_v<T, Hux8u>) {
    const int table = std::clamp(scaleFactor, kFirstScale, kLastScale) - kFirstScale;
    ByteTables<C1>(kRootTables[std::size_t(table)].data()).map(src, dst, n);
    return huxStsOk;
  } else if constexpr (std::is_floating_point_v<T>) {
    return mapRow<C1>(src, dst, n, RootFloat{}).status();
  } else {
    if (scaleFactor < 0) return mapRow<C1>(src, dst, n, NotingSign<T, RootUp<T>>{RootUp<T>(scaleFactor)}).status();
    return mapRow<C1>(src, dst, n, NotingSign<T, RootDown<T>>{RootDown<T>(scaleFactor)}).status();
  }
}
template struct Sqrt<Hux8u>;
template struct Sqrt<Hux16u>;
template struct Sqrt<Hux16s>;
template struct Sqrt<Hux32f>;

}  // namespace hux
