// Sources of neighbourhood filters: regions with pixels all around.
#pragma once

#include "numbers.h"

namespace bench {

template <class T, int C>
struct Windowed {
  static constexpr int pixelBytes = Numbers<T, C>::pixelBytes;
  static constexpr int kAround = 16;
  Numbers<T, C> all;
  T* data = nullptr;
  int step = 0;
#ifdef HUX_BENCH_OPENCV
  cv::Mat mat;  // of which OpenCV, too, reads the pixels around
#endif

  Windowed() = default;
  Windowed(HuxiSize s, int = 0) : all({s.width + 2 * kAround, s.height + 2 * kAround}), step(all.step) {
    data = all.data + kAround * (std::int64_t(step) / int(sizeof(T)) + C);
#ifdef HUX_BENCH_OPENCV
    mat = all.mat(inside());
#endif
  }
#ifdef HUX_BENCH_OPENCV
  cv::Rect inside() const { return {kAround, kAround, all.size.width - 2 * kAround, all.size.height - 2 * kAround}; }
#endif
  std::span<std::uint8_t> bytes() const { return all.bytes(); }
  std::int64_t traffic() const {
    return std::int64_t(all.size.width - 2 * kAround) * (all.size.height - 2 * kAround) * pixelBytes;
  }
};

}  // namespace bench
