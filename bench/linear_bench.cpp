// General linear filters beside filter2D and sepFilter2D. Taps are whole numbers without zeros that add up to 1, so
// that integer results are alike whatever the rounding; symmetric, as most kernels are.
#include <vector>

#include "windowed.h"

namespace {

using bench::add, bench::Numbers, bench::Shape, bench::Windowed;

template <class K>
std::vector<K> line(int n) {
  const K pattern[] = {1, -1, 2, -1, 1};
  std::vector<K> taps;
  K rest = 1;
  for (int i = 0; i < n; ++i) taps.push_back(pattern[std::min(i, n - 1 - i) % 5]), rest -= taps.back();
  taps[std::size_t(n / 2)] += rest;
  return taps;
}
template <class K>
std::vector<K> square(int n) {
  std::vector<K> taps;
  for (const K a : line<K>(n))
    for (const K b : line<K>(n)) taps.push_back(a * b);
  return taps;
}

#ifdef HUX_BENCH_OPENCV
cv::Mat kernel(int rows, int columns) {
  const auto taps = rows == columns ? square<float>(rows) : line<float>(rows * columns);
  return cv::Mat(taps, true).reshape(1, rows);
}
const cv::Mat kOne = cv::Mat::ones(1, 1, CV_32F);

// Of a large kernel filter2D transforms whole images, but not a part of one: it is given all pixels where it gains by
// that.
template <class Operands>
void filter2d(Operands& o, const cv::Mat& k) {
  if (k.rows < 31 || o.src.mat.depth() != CV_8U) return cv::filter2D(o.src.mat, o.dst.mat, -1, k);
  static cv::Mat all;
  cv::filter2D(o.src.all.mat, all, -1, k);
  all(o.src.inside()).copyTo(o.dst.mat);
}
#endif
#define FILTER2D(n) PEER("filter2D", static const auto k = kernel(n, n); filter2d(o, k))
#define SEPARABLE(n, x, y) \
  PEER("sepFilter2D", static const auto k = kernel(1, n); cv::sepFilter2D(o.src.mat, o.dst.mat, -1, x, y))

// The shapes of a kernel of n taps a side; what follows the anchor is the divisor.
#define CASE(name, taps, peer, t, c, n, call, ...) \
  add<Windowed<Hux##t, c>, Numbers<Hux##t, c>>(    \
      name, Shape::Same, RUN(static const auto k = taps; call(SRC, DST, ROI, k.data(), __VA_ARGS__)), peer);
#define CASES(kind, t, tap, l, c, n, ...)                                                            \
  CASE("Filter" #kind "_" #t "_" #l " " #n "x" #n, square<Hux##tap>(n), FILTER2D(n), t, c, n,        \
       huxiFilter##kind##_##t##_##l, {n, n}, {n / 2, n / 2} __VA_OPT__(, ) __VA_ARGS__)              \
  CASE("FilterRow" #kind "_" #t "_" #l " " #n, line<Hux##tap>(n), SEPARABLE(n, k, kOne), t, c, n,    \
       huxiFilterRow##kind##_##t##_##l, n, n / 2 __VA_OPT__(, ) __VA_ARGS__)                         \
  CASE("FilterColumn" #kind "_" #t "_" #l " " #n, line<Hux##tap>(n), SEPARABLE(n, kOne, k), t, c, n, \
       huxiFilterColumn##kind##_##t##_##l, n, n / 2 __VA_OPT__(, ) __VA_ARGS__)

}  // namespace

void addCases() {
  CASES(, 8u, 32s, C1R, 1, 3, 1)
  CASES(, 8u, 32s, C1R, 1, 5, 1)
  CASES(, 8u, 32s, C1R, 1, 15, 1)
  CASES(, 8u, 32s, C1R, 1, 31, 1)
  CASES(, 8u, 32s, C3R, 3, 5, 1)
  CASES(, 8u, 32s, C4R, 4, 5, 1)
  CASES(, 16s, 32s, C1R, 1, 3, 1)
  CASES(, 16s, 32s, C1R, 1, 5, 1)
  CASES(, 32f, 32f, C1R, 1, 3)
  CASES(, 32f, 32f, C1R, 1, 5)
  CASES(, 32f, 32f, C1R, 1, 15)
  CASES(, 32f, 32f, C1R, 1, 31)
  CASES(, 32f, 32f, C3R, 3, 5)
  CASES(32f, 8u, 32f, C1R, 1, 3)
  CASES(32f, 8u, 32f, C1R, 1, 5)
  CASES(32f, 8u, 32f, C1R, 1, 15)
}
