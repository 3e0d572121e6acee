// Fixed filters. Where the peer's kernel or its rounding differs, or its floats are added in another order, results are
// not compared.
#include "windowed.h"

namespace {

using bench::add, bench::Numbers, bench::Shape, bench::Windowed;

template <class T, int C>
struct Unlike : Numbers<T, C> {
  using Numbers<T, C>::Numbers;
  std::span<std::uint8_t> bytes() const { return {}; }
};
template <class T, int C>
using Alike = std::conditional_t<std::is_floating_point_v<T>, Unlike<T, C>, Numbers<T, C>>;

#define LIST(...) __VA_ARGS__
#define CASE(Dst, size, name, types, t, d, l, c, masked, ...)                                                   \
  add<Windowed<Hux##t, c>, Dst<Hux##d, c>>("Filter" #name "_" #types "_" #l "R" size, Shape::Same,              \
                                           RUN(huxiFilter##name##_##types##_##l##R(SRC, DST, ROI LIST masked)), \
                                           __VA_ARGS__);
#define PLAIN(Dst, name, types, t, d, l, c, ...) CASE(Dst, "", name, types, t, d, l, c, (), __VA_ARGS__)
#define SIZED(Dst, name, n, types, t, d, l, c, ...) \
  CASE(Dst, ", " #n "x" #n, name, types, t, d, l, c, (, huxMskSize##n##x##n), __VA_ARGS__)

#define PEER_OF(name, call) PEER(name, const cv::Mat& src = o.src.mat; cv::Mat& dst = o.dst.mat; call)
#define SOBEL(dx, dy, n) PEER_OF("Sobel", cv::Sobel(src, dst, dst.depth(), dx, dy, n))
#define SCHARR(dx, dy) PEER_OF("Scharr", cv::Scharr(src, dst, dst.depth(), dx, dy))
#define LAPLACIAN(n) PEER_OF("Laplacian", cv::Laplacian(src, dst, dst.depth(), n))
#define GAUSSIAN(n) PEER_OF("GaussianBlur", cv::GaussianBlur(src, dst, cv::Size(n, n), 0))
#define BLUR(n) PEER_OF("blur", cv::blur(src, dst, cv::Size(n, n)))
#define FILTER2D(n, middle, factor) \
  PEER_OF("filter2D", static const auto k = kernel(n, middle, factor); cv::filter2D(src, dst, dst.depth(), k))
#define PREWITT(x, y) \
  PEER_OF("sepFilter2D", static const auto k = lines(); cv::sepFilter2D(src, dst, dst.depth(), k.x, k.y))

#ifdef HUX_BENCH_OPENCV
// -1 but in the middle.
cv::Mat kernel(int n, float middle, float factor) {
  cv::Mat k(n, n, CV_32F, cv::Scalar(-factor));
  k.at<float>(n / 2, n / 2) = middle * factor;
  return k;
}
struct Lines {
  cv::Mat ones = cv::Mat::ones(1, 3, CV_32F), rise = (cv::Mat_<float>(1, 3) << -1, 0, 1);
};
Lines lines() { return {}; }
#endif

#define ALL_TYPES(t, l, c)                                       \
  PLAIN(Alike, PrewittHoriz, t, t, t, l, c, PREWITT(ones, rise)) \
  PLAIN(Unlike, SobelVert, t, t, t, l, c, SOBEL(1, 0, 3))        \
  PLAIN(Alike, SobelHoriz, t, t, t, l, c, SOBEL(0, 1, 3))        \
  PLAIN(Unlike, Sharpen, t, t, t, l, c, FILTER2D(3, 16, 0.125f)) \
  SIZED(Alike, Hipass, 3, t, t, t, l, c, FILTER2D(3, 8, 1))      \
  SIZED(Alike, Hipass, 5, t, t, t, l, c, FILTER2D(5, 24, 1))     \
  SIZED(Unlike, Laplace, 3, t, t, t, l, c, LAPLACIAN(3))         \
  SIZED(Unlike, Laplace, 5, t, t, t, l, c, LAPLACIAN(5))         \
  SIZED(Unlike, Gauss, 3, t, t, t, l, c, GAUSSIAN(3))            \
  SIZED(Unlike, Gauss, 5, t, t, t, l, c, GAUSSIAN(5))
#define ALL_BUT_C4(t, l, c)                         \
  SIZED(Unlike, Lowpass, 3, t, t, t, l, c, BLUR(3)) \
  SIZED(Unlike, Lowpass, 5, t, t, t, l, c, BLUR(5)) \
  PLAIN(Unlike, RobertsUp, t, t, t, l, c, bench::noPeer())
#define C1_ONLY(types, t, d, vert, horiz)                               \
  PLAIN(Alike, ScharrVert, types, t, d, C1, 1, SCHARR(1, 0))            \
  SIZED(Unlike, vert, 5, types, t, d, C1, 1, SOBEL(1, 0, 5))            \
  SIZED(Alike, horiz, 3, types, t, d, C1, 1, SOBEL(0, 1, 3))            \
  SIZED(Alike, horiz, 5, types, t, d, C1, 1, SOBEL(0, 1, 5))            \
  SIZED(Alike, SobelVertSecond, 3, types, t, d, C1, 1, SOBEL(2, 0, 3))  \
  SIZED(Alike, SobelHorizSecond, 5, types, t, d, C1, 1, SOBEL(0, 2, 5)) \
  SIZED(Unlike, SobelCross, 3, types, t, d, C1, 1, SOBEL(1, 1, 3))

}  // namespace

void addCases() {
  ALL_TYPES(8u, C1, 1)
  ALL_BUT_C4(8u, C1, 1)
  ALL_TYPES(16s, C1, 1)
  ALL_BUT_C4(16s, C1, 1)
  ALL_TYPES(32f, C1, 1)
  ALL_BUT_C4(32f, C1, 1)
  ALL_TYPES(8u, C3, 3)
  ALL_BUT_C4(32f, C3, 3)
  C1_ONLY(8u16s, 8u, 16s, SobelVert, SobelHoriz)
  C1_ONLY(32f, 32f, 32f, SobelVertMask, SobelHorizMask)
  SIZED(Unlike, Laplace, 3, 8u16s, 8u, 16s, C1, 1, LAPLACIAN(3))
  PLAIN(Unlike, SobelHoriz, 8u, 8u, 8u, AC4, 4, SOBEL(0, 1, 3))
}
