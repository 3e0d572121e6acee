// Min, Max, MinMax, MinIndx, MaxIndx, CountInRange.
#include <limits>

#include "measures.h"

namespace {

using bench::add, bench::Image, bench::Measures, bench::Numbers, bench::Shape;

#ifdef HUX_BENCH_OPENCV
struct Found {
  double min = 0, max = 0;
  cv::Point minAt, maxAt;
};
Found both(const cv::Mat& m) {
  Found f;
  cv::minMaxLoc(m, &f.min, &f.max);
  return f;
}
Found least(const cv::Mat& m) {
  Found f;
  cv::minMaxLoc(m, &f.min, nullptr, &f.minAt);
  return f;
}
int counted(const cv::Mat& m, double lower, double upper) {
  thread_local cv::Mat inside;
  cv::inRange(m, lower, upper, inside);
  return cv::countNonZero(inside);
}
#endif

// Integers that never reach the ends of their type, at which a search for the extremes may stop.
template <class T, int C>
struct Inner : Numbers<T, C> {
  Inner() = default;
  Inner(HuxiSize s, int margin = 0) : Numbers<T, C>(s, margin) {
    if constexpr (std::is_integral_v<T>)
      for (std::size_t i = 0; i < Image<T, C>::bytes().size() / sizeof(T); ++i)
        this->data[i] = T(this->data[i] / 2 + std::numeric_limits<T>::max() / 4);
  }
  std::span<std::uint8_t> bytes() const { return {}; }  // not to be refilled
};

template <class T>
struct Results {
  T first[4] = {}, second[4] = {};
  int x[4] = {}, y[4] = {};
};

#define CASE(name, t, l, c, hux, ...) \
  add<Inner<Hux##t, c>, Measures<4>>(#name "_" #t "_" #l, Shape::Same, RUN(Results<Hux##t> r; hux), __VA_ARGS__)

#define EXTREMA(t)                                                                                                    \
  void addExtrema_##t() {                                                                                             \
    CASE(Min, t, C1R, 1, huxiMin_##t##_C1R(SRC, ROI, r.first);                                                        \
         o.dst.set(*r.first), PEER("minMaxLoc", o.dst.set(both(o.src.mat).min)));                                     \
    CASE(Max, t, C1R, 1, huxiMax_##t##_C1R(SRC, ROI, r.first);                                                        \
         o.dst.set(*r.first), PEER("minMaxLoc", o.dst.set(both(o.src.mat).max)));                                     \
    CASE(MinMax, t, C1R, 1, huxiMinMax_##t##_C1R(SRC, ROI, r.first, r.second);                                        \
         o.dst.set(*r.first, *r.second), PEER("minMaxLoc", const auto f = both(o.src.mat); o.dst.set(f.min, f.max))); \
    CASE(MinIndx, t, C1R, 1, huxiMinIndx_##t##_C1R(SRC, ROI, r.first, r.x, r.y);                                      \
         o.dst.set(*r.first, *r.x, *r.y),                                                                             \
         PEER("minMaxLoc", const auto f = least(o.src.mat); o.dst.set(f.min, f.minAt.x, f.minAt.y)));                 \
    CASE(MinMax, t, C3R, 3, huxiMinMax_##t##_C3R(SRC, ROI, r.first, r.second), bench::noPeer());                      \
    CASE(MinMax, t, AC4R, 4, huxiMinMax_##t##_AC4R(SRC, ROI, r.first, r.second), bench::noPeer());                    \
    CASE(MaxIndx, t, C3R, 3, huxiMaxIndx_##t##_C3R(SRC, ROI, r.first, r.x, r.y), bench::noPeer());                    \
  }
EXTREMA(8u)
EXTREMA(16s)
EXTREMA(32f)

template <class T>
constexpr T kLower[] = {T(50), T(30), T(80)};
template <class T>
constexpr T kUpper[] = {T(100), T(120), T(200)};

#define COUNTS(t)                                                                                            \
  void addCounts_##t() {                                                                                     \
    CASE(CountInRange, t, C1R, 1, huxiCountInRange_##t##_C1R(SRC, ROI, r.x, 50, 100);                        \
         o.dst.set(*r.x), PEER("inRange and countNonZero", o.dst.set(counted(o.src.mat, 50, 100))));         \
    CASE(CountInRange, t, C3R, 3, huxiCountInRange_##t##_C3R(SRC, ROI, r.x, kLower<Hux##t>, kUpper<Hux##t>), \
         bench::noPeer());                                                                                   \
  }
COUNTS(8u)
COUNTS(32f)

}  // namespace

void addCases() {
  addExtrema_8u(), addExtrema_16s(), addExtrema_32f();
  addCounts_8u(), addCounts_32f();
}
