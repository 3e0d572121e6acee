// The results of functions that measure, in place of a destination image.
#pragma once

#include "numbers.h"

namespace bench {

// Up to N numbers, kept in single precision: two libraries need not add in the same order.
template <int N>
struct Measures {
  static constexpr int pixelBytes = 0;
  std::shared_ptr<std::array<float, N>> numbers;
  int step = 0;

  Measures() = default;
  Measures(HuxiSize, int = 0) : numbers(std::make_shared<std::array<float, N>>()) {}
  std::span<std::uint8_t> bytes() const { return {reinterpret_cast<std::uint8_t*>(numbers->data()), sizeof *numbers}; }
  std::int64_t traffic() const { return 0; }

  template <class... V>
  void set(V... values) const {
    numbers->fill(0);
    int i = 0;
    ((numbers->at(std::size_t(i++)) = float(values)), ...);
  }
};

}  // namespace bench
