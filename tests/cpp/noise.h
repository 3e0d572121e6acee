// Images of any values, and whether two have the same bits.
#pragma once

#include <cstring>
#include <random>

#include "hux/hux.hpp"

namespace hux {

// Any values; of floats small ones.
template <class T, int C>
image<T, C> noise(extent size, unsigned seed) {
  image<T, C> out(size);
  std::mt19937 random(seed);
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width * detail::elements_of(C); ++x) {
      T& element = out.row(y)[x];
      if constexpr (std::is_same_v<T, std::complex<float>>)
        element = {float(random() % 100), float(random() % 100) - 50};
      else if constexpr (std::is_same_v<T, float>)
        element = float(int(random() % 20001) - 10000) / 7;
      else
        element = static_cast<T>(random());
    }
  return out;
}
template <class T, int C>
image<T, C> noise(int width, int height, unsigned seed) {
  return noise<T, C>({width, height}, seed);
}

template <class T, int C>
bool equal(const image<T, C>& a, const image<T, C>& b) {
  if (a.width() != b.width() || a.height() != b.height()) return false;
  for (int y = 0; y < a.height(); ++y)
    if (std::memcmp(a.row(y), b.row(y), sizeof(T) * std::size_t(detail::elements_of(C) * a.width())) != 0) return false;
  return true;
}

}  // namespace hux
