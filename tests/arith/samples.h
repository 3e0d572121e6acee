// Elements on which comparisons differ, as bytes: all values of 8u, the edges of the other types.
#pragma once

#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "support/image.h"

namespace hux::test {

template <class T>
std::vector<std::byte> samples() {
  std::vector<T> values;
  if constexpr (sizeof(T) == 1) {
    for (int v = 0; v < 256; ++v) values.push_back(T(v));
  } else if constexpr (sizeof(T) == 2) {
    for (int v : {0, 1, 2, 127, 128, 255, 256, 32766, 32767})
      for (int s : {v, -v, -v - 1}) values.push_back(T(s));
  } else {
    using Limits = std::numeric_limits<Hux32f>;
    const Hux32f edges[] = {0, Limits::denorm_min(), Limits::min(), 1, 1.5f, 300, Limits::max(), Limits::infinity()};
    for (Hux32f v : edges)
      for (Hux32f x : {v, std::nextafter(v, 0.0f), std::nextafter(v, Limits::infinity())})
        for (Hux32f s : {x, -x}) values.push_back(s);
    for (Hux32u nan : {0x7f800001u, 0x7fbfffffu, 0x7fc00000u, 0x7fffffffu})
      for (Hux32u sign : {0u, 0x80000000u}) values.push_back(std::bit_cast<Hux32f>(nan | sign));
  }
  const auto* first = reinterpret_cast<const std::byte*>(values.data());
  return {first, first + values.size() * sizeof(T)};
}

}  // namespace hux::test
