// The Wiener filter beside what one would put together from OpenCV: means and mean squares by box filters, and
// arithmetic on whole images. Its results differ in the last places.
#include <vector>

#include "windowed.h"

namespace {

using bench::add, bench::Numbers, bench::Shape, bench::Windowed;

// A destination that is not compared.
template <class T, int C>
struct Unlike : Numbers<T, C> {
  using Numbers<T, C>::Numbers;
  std::span<std::uint8_t> bytes() const { return {}; }
};

Hux8u* workBuffer(HuxiSize roi, HuxiSize mask, int channels) {
  static std::vector<Hux8u> buffer;
  int bytes = 0;
  huxiFilterWienerGetBufferSize(roi, mask, channels, &bytes);
  if (buffer.size() < std::size_t(bytes)) buffer.resize(std::size_t(bytes));
  return buffer.data();
}

#ifdef HUX_BENCH_OPENCV
// Of floats the noise is relative to a range that has to be found first.
void composed(const cv::Mat& src, cv::Mat& dst, int n, double noise) {
  static cv::Mat pixels, mean, variance, weight;
  const int depth = CV_32F;
  double scale = 65025;
  if (src.depth() == CV_32F) {
    double low, high;
    cv::minMaxLoc(src.reshape(1), &low, &high);
    scale = (high - low) * (high - low);
  }
  cv::boxFilter(src, mean, depth, {n, n});
  cv::sqrBoxFilter(src, variance, depth, {n, n});
  src.convertTo(pixels, depth);
  cv::multiply(mean, mean, weight);
  cv::subtract(variance, weight, variance);
  cv::max(variance, cv::Scalar::all(noise * scale), variance);
  cv::subtract(variance, cv::Scalar::all(noise * scale), weight);
  cv::divide(weight, variance, weight);
  cv::subtract(pixels, mean, pixels);
  cv::multiply(pixels, weight, pixels);
  cv::add(pixels, mean, dst, cv::noArray(), dst.depth());
}
#endif

#define CASE(t, l, c, n)                                                                                            \
  add<Windowed<Hux##t, c>, Unlike<Hux##t, c>>(                                                                      \
      "FilterWiener_" #t "_" #l " " #n "x" #n, Shape::Same,                                                         \
      RUN(Hux32f noise[4] = {0.02f, 0.02f, 0.02f, 0.02f};                                                           \
          huxiFilterWiener_##t##_##l(SRC, DST, ROI, {n, n}, {n / 2, n / 2}, noise, workBuffer(o.size, {n, n}, c))), \
      PEER("boxFilter, sqrBoxFilter, arithmetic", composed(o.src.mat, o.dst.mat, n, 0.02)));

}  // namespace

void addCases() {
  CASE(8u, C1R, 1, 3)
  CASE(8u, C1R, 1, 5)
  CASE(8u, C1R, 1, 15)
  CASE(8u, C3R, 3, 5)
  CASE(16s, C1R, 1, 5)
  CASE(32f, C1R, 1, 5)
  CASE(32f, C3R, 3, 5)
}
