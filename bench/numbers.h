// Images whose floats are usual numbers: random bytes hold NaN, on which no two libraries agree.
#pragma once

#include "support.h"

namespace bench {

template <class T, int C>
struct Numbers : Image<T, C> {
  Numbers() = default;
  Numbers(HuxiSize s, int margin = 0) : Image<T, C>(s, margin) {
    fillRandom(Image<T, C>::bytes(), 3);
    if constexpr (std::is_floating_point_v<T>)
      for (std::size_t i = 0; i < Image<T, C>::bytes().size() / sizeof(T); ++i) {
        std::int16_t number;
        std::memcpy(&number, this->data + i, sizeof number);
        this->data[i] = T(number) / 64;
      }
  }
  // What may be refilled with random bytes.
  std::span<std::uint8_t> bytes() const {
    if constexpr (std::is_floating_point_v<T>) return {};
    return Image<T, C>::bytes();
  }
};

// Two images that share a step, in one piece of memory.
template <class T, int C>
struct Pair {
  static constexpr int pixelBytes = 2 * Image<T, C>::pixelBytes;
  Numbers<T, C> both;
  T *first = nullptr, *second = nullptr;
  int step = 0;
#ifdef HUX_BENCH_OPENCV
  cv::Mat mat1, mat2;
#endif

  Pair() = default;
  Pair(HuxiSize s, int margin = 0) : both({s.width, s.height * 2}, margin), first(both.data), step(both.step) {
    second = first + std::int64_t(step) / int(sizeof(T)) * s.height;
#ifdef HUX_BENCH_OPENCV
    mat1 = both.mat.rowRange(0, s.height), mat2 = both.mat.rowRange(s.height, 2 * s.height);
#endif
  }
  std::span<std::uint8_t> bytes() const { return both.bytes(); }
  std::int64_t traffic() const { return both.traffic(); }
};

}  // namespace bench
