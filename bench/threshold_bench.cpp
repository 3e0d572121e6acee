// Threshold: one-sided and two-sided, with one threshold for all elements and one per channel.
#include <cmath>

#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Numbers, bench::Shape;

// Thresholds in the midst of each type's numbers.
template <class T>
constexpr T kLow[] = {T(50), T(30), T(80), T(20)};
template <class T>
constexpr T kHigh[] = {T(100), T(120), T(200), T(90)};
template <class T>
T above(T t) {
  if constexpr (std::is_integral_v<T>)
    return T(t + 1);
  else
    return std::nextafter(t, T(1e9));
}

#ifdef HUX_BENCH_OPENCV
template <class T>
cv::Scalar scalar(const T* p) {
  return {double(p[0]), double(p[1]), double(p[2]), double(p[3])};
}
template <class Limit>
void clamp(const cv::Mat& src, cv::Mat& dst, const Limit& low, const Limit& high) {
  cv::max(src, low, dst);
  cv::min(dst, high, dst);
}
#endif

#define CASE(name, t, l, c, hux, ...) \
  add<Numbers<Hux##t, c>, Image<Hux##t, c>>("Threshold_" #name "_" #t "_" #l, Shape::Same, RUN(hux), __VA_ARGS__)
#define LOW(t) kLow<Hux##t>
#define HIGH(t) kHigh<Hux##t>

#define THRESHOLDS(t)                                                                                                \
  void addThreshold_##t() {                                                                                          \
    CASE(GT, t, C1R, 1, huxiThreshold_GT_##t##_C1R(SRC, DST, ROI, *HIGH(t)),                                         \
         PEER("threshold, trunc", cv::threshold(o.src.mat, o.dst.mat, *HIGH(t), 0, cv::THRESH_TRUNC)));              \
    CASE(LTVal, t, C1R, 1, huxiThreshold_LTVal_##t##_C1R(SRC, DST, ROI, above(*HIGH(t)), 0),                         \
         PEER("threshold, tozero", cv::threshold(o.src.mat, o.dst.mat, *HIGH(t), 0, cv::THRESH_TOZERO)));            \
    CASE(LTValGTVal, t, C1R, 1,                                                                                      \
         huxiThreshold_LTValGTVal_##t##_C1R(SRC, DST, ROI, *LOW(t), *LOW(t), *HIGH(t), *HIGH(t)),                    \
         PEER("max and min", clamp(o.src.mat, o.dst.mat, double(*LOW(t)), double(*HIGH(t)))));                       \
    CASE(GT, t, C3R, 3, huxiThreshold_GT_##t##_C3R(SRC, DST, ROI, HIGH(t)),                                          \
         PEER("min", cv::min(o.src.mat, scalar(HIGH(t)), o.dst.mat)));                                               \
    CASE(GTVal, t, C4R, 4, huxiThreshold_GTVal_##t##_C4R(SRC, DST, ROI, HIGH(t), HIGH(t)),                           \
         PEER("min", cv::min(o.src.mat, scalar(HIGH(t)), o.dst.mat)));                                               \
    CASE(GTVal, t, AC4R, 4, huxiThreshold_GTVal_##t##_AC4R(SRC, DST, ROI, HIGH(t), LOW(t)), bench::noPeer());        \
    CASE(LTValGTVal, t, C3R, 3, huxiThreshold_LTValGTVal_##t##_C3R(SRC, DST, ROI, LOW(t), LOW(t), HIGH(t), HIGH(t)), \
         PEER("max and min", clamp(o.src.mat, o.dst.mat, scalar(LOW(t)), scalar(HIGH(t)))));                         \
    add<Numbers<Hux##t, 1>, Numbers<Hux##t, 1>>(                                                                     \
        "Threshold_GT_" #t "_C1IR", Shape::InPlace, RUN(huxiThreshold_GT_##t##_C1IR(DST, ROI, *HIGH(t))),            \
        PEER("threshold, trunc", cv::threshold(o.dst.mat, o.dst.mat, *HIGH(t), 0, cv::THRESH_TRUNC)));               \
  }
THRESHOLDS(8u)
THRESHOLDS(16s)
THRESHOLDS(32f)

}  // namespace

void addCases() { addThreshold_8u(), addThreshold_16s(), addThreshold_32f(); }
