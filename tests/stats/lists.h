// What the tests of histograms and look-up tables share: images with a list of levels for each channel.
#pragma once

#include <array>
#include <bit>
#include <functional>
#include <limits>

#include "support/forms.h"

namespace hux::test {

// Calls body(T()) with the type of elements of a family of levels.
template <class Body>
void withPixels(Number type, Body body) {
  if (type == Number::k8u) return body(Hux8u());
  if (type == Number::k16s) return body(Hux16s());
  return type == Number::k16u ? body(Hux16u()) : body(Hux32f());
}

// The number type of levels and values.
template <class T>
using NumberOf = std::conditional_t<std::is_floating_point_v<T>, Hux32f, Hux32s>;

// One list for each channel, also as the arrays that functions take.
template <class N>
struct Lists {
  std::vector<std::vector<N>> of;
  std::array<N*, 4> data{};

  Lists(int channels, int length) : of(std::size_t(channels), std::vector<N>(std::size_t(length))) { update(); }
  explicit Lists(std::vector<std::vector<N>> lists) : of(std::move(lists)) { update(); }
  Lists(const Lists&) = delete;
  Lists& operator=(const Lists&) = delete;
  std::array<int, 4> lengths() const {
    std::array<int, 4> n{};
    for (std::size_t c = 0; c < of.size(); ++c) n[c] = int(of[c].size());
    return n;
  }

 private:
  void update() {
    for (std::size_t c = 0; c < of.size(); ++c) data[c] = of[c].data();
  }
};

// Values at the ends of a type, in it, and around it.
template <class T>
NumberOf<T> anyNumber(Rng& rng) {
  if constexpr (std::is_floating_point_v<T>) {
    return Hux32f(between(rng, -400, 400)) / 4;
  } else {
    constexpr int low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    const int some[] = {low, low + 1, low - 1, high, high + 1, high - 1, INT32_MIN, INT32_MAX, -100000, 100000};
    return between(rng, 0, 9) ? between(rng, low, high) : some[rng() % std::size(some)];
  }
}

// Levels in one of several manners: strictly ascending, with equal neighbours, falling, anyhow.
enum class Manner { kStrict, kEqual, kFalling, kAny };
template <class T>
std::vector<NumberOf<T>> anyLevels(Rng& rng, int count, Manner manner) {
  std::vector<NumberOf<T>> levels;
  while (int(levels.size()) < count) {
    for (int i = int(levels.size()); i < count; ++i) levels.push_back(anyNumber<T>(rng));
    if (manner != Manner::kAny) std::sort(levels.begin(), levels.end());
    if (manner == Manner::kStrict) levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
  }
  if (manner == Manner::kFalling) std::reverse(levels.begin(), levels.end());
  return levels;
}
template <class T>
Lists<NumberOf<T>> anyLists(Rng& rng, Layout layout, int least, int most, Manner manner) {
  std::vector<std::vector<NumberOf<T>>> lists;
  for (int c = 0; c < layout.touched; ++c) lists.push_back(anyLevels<T>(rng, between(rng, least, most), manner));
  return Lists<NumberOf<T>>(std::move(lists));
}

// Any bits on integers; on floats numbers on and between levels, and now and then some that are none.
template <class T>
void fillPixels(Rng& rng, Image& image, int nans = 50) {
  if constexpr (std::is_floating_point_v<T>)
    image.fill<T>([&] {
      constexpr T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
      const T odd[] = {nan, inf, -inf, -T(0)};
      return between(rng, 1, 100) > nans / 10 ? T(between(rng, -900, 900)) / 8 : odd[rng() % 4];
    });
}

}  // namespace hux::test
