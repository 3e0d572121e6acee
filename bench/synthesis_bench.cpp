// Test images and noise. A user without them would write a loop, or make a noise image and add it.
#include <algorithm>
#include <cmath>

#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Shape, bench::Side;

// An image to which noise is added: no two generators give the same bytes, so none are compared or refilled.
template <class T, int C>
struct Noisy : bench::Numbers<T, C> {
  using bench::Numbers<T, C>::Numbers;
  std::span<std::uint8_t> bytes() const { return {}; }
};

// pixel(x, y) to all channels.
template <class T, int C, class Pixel>
void drawLoop(const Image<T, C>& image, Pixel pixel) {
  for (int y = 0; y < image.size.height; ++y) {
    T* row = image.data + std::int64_t(y) * image.step / int(sizeof(T));
    for (int x = 0; x < image.size.width; ++x) {
      const T value = pixel(x, y);
      for (int c = 0; c < C; ++c) *row++ = value;
    }
  }
}
template <class T, int C>
void rampLoop(const Image<T, C>& image, float offset, float slope, HuxiAxis axis) {
  drawLoop(image, [=](int x, int y) {
    const float v = float(axis == huxAxsHorizontal ? x : axis == huxAxsVertical ? y : x * y) * slope + offset;
    if constexpr (std::is_floating_point_v<T>) return v;
    return T(std::clamp(v, 0.0f, float(std::numeric_limits<T>::max())) + 0.5f);
  });
}
template <class T, int C>
void jaehneLoop(const Image<T, C>& image) {
  drawLoop(image, [size = image.size](int x, int y) {
    const double a = x - (size.width - 1) * 0.5, b = y - (size.height - 1) * 0.5;
    const double s = std::sin((a * a + b * b) * 6.283185307179586 / (size.height * 4.0));
    return T((s + 1.0) * (std::is_floating_point_v<T> ? 0.49999 : sizeof(T) == 1 ? 127.99999 : 32767.99999));
  });
}

#define DRAWN(t, l, c)                                                                                            \
  void addDrawn_##t##_##l() {                                                                                     \
    const auto ramp = [](const char* name, auto hux, auto loop) {                                                 \
      add<Image<Hux##t, c>, Image<Hux##t, c>>(std::string("ImageRamp_" #t "_" #l "R, ") + name, Shape::Fill, hux, \
                                              loop);                                                              \
    };                                                                                                            \
    ramp("horizontal", RUN(huxiImageRamp_##t##_##l##R(DST, ROI, 3.25f, 0.375f, huxAxsHorizontal)),                \
         Side("a loop", [](auto& o) { rampLoop(o.dst, 3.25f, 0.375f, huxAxsHorizontal); }));                      \
    ramp("both", RUN(huxiImageRamp_##t##_##l##R(DST, ROI, 3.25f, 0.0625f, huxAxsBoth)),                           \
         Side("a loop", [](auto& o) { rampLoop(o.dst, 3.25f, 0.0625f, huxAxsBoth); }));                           \
    add<Image<Hux##t, c>, Image<Hux##t, c>>("ImageJaehne_" #t "_" #l "R", Shape::Fill,                            \
                                            RUN(huxiImageJaehne_##t##_##l##R(DST, ROI)),                          \
                                            Side("a loop", [](auto& o) { jaehneLoop(o.dst); }));                  \
  }
DRAWN(8u, C1, 1)
DRAWN(8u, C3, 3)
DRAWN(16u, C1, 1)
DRAWN(32f, C1, 1)

#ifdef HUX_BENCH_OPENCV
template <class Draw>
void addDrawnNoise(const cv::Mat& image, Draw draw) {
  static cv::Mat noise;
  noise.create(image.size(), image.type());
  draw(noise);
  cv::add(image, noise, image);
}
#endif

#define NOISE(t, l, c)                                                                                \
  void addNoise_##t##_##l() {                                                                         \
    add<Noisy<Hux##t, c>, Noisy<Hux##t, c>>(                                                          \
        "AddRandUniform_Direct_" #t "_" #l "IR", Shape::InPlace,                                      \
        RUN(static Hux32u seed = 1; huxiAddRandUniform_Direct_##t##_##l##IR(DST, ROI, 0, 50, &seed)), \
        PEER("randu, add", addDrawnNoise(o.dst.mat, [](cv::Mat& m) { cv::randu(m, 0, 50); })));       \
    add<Noisy<Hux##t, c>, Noisy<Hux##t, c>>(                                                          \
        "AddRandGauss_Direct_" #t "_" #l "IR", Shape::InPlace,                                        \
        RUN(static Hux32u seed = 1; huxiAddRandGauss_Direct_##t##_##l##IR(DST, ROI, 0, 20, &seed)),   \
        PEER("randn, add", addDrawnNoise(o.dst.mat, [](cv::Mat& m) { cv::randn(m, 0, 20); })));       \
  }
NOISE(8u, C1, 1)
NOISE(8u, C3, 3)
NOISE(16s, C1, 1)
NOISE(32f, C1, 1)

}  // namespace

void addCases() {
  addDrawn_8u_C1(), addDrawn_8u_C3(), addDrawn_16u_C1(), addDrawn_32f_C1();
  addNoise_8u_C1(), addNoise_8u_C3(), addNoise_16s_C1(), addNoise_32f_C1();
}
