// Compare: of two images and with a constant.
#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Numbers, bench::Pair, bench::Shape;

// Constants in the midst of each type's numbers.
template <class T>
constexpr T kPixel[] = {T(100), T(120), T(200), T(90)};

#ifdef HUX_BENCH_OPENCV
template <class T>
cv::Scalar scalar(const T* p) {
  return {double(p[0]), double(p[1]), double(p[2]), double(p[3])};
}
// What no number of the images is below, as a pixel and as an image, which is made once.
const cv::Scalar kBelowAll = cv::Scalar::all(-32768);
const cv::Mat& belowAll(const cv::Mat& like) {
  static cv::Mat image;
  if (image.size() != like.size() || image.type() != like.type()) image = cv::Mat(like.size(), like.type(), kBelowAll);
  return image;
}
#endif

#define PAIRS o.src.first, o.src.step, o.src.second, o.src.step
#define CASE(operands, name, what, t, l, c, hux, ...) \
  add<operands<Hux##t, c>, Image<Hux8u, 1>>(#name "_" #t "_" #l what, Shape::Same, RUN(hux), __VA_ARGS__)

#define COMPARES(t)                                                                                        \
  void addCompare_##t() {                                                                                  \
    CASE(Pair, Compare, ", Less", t, C1R, 1, huxiCompare_##t##_C1R(PAIRS, DST, ROI, huxCmpLess),           \
         PEER("compare", cv::compare(o.src.mat1, o.src.mat2, o.dst.mat, cv::CMP_LT)));                     \
    CASE(Pair, Compare, ", Eq", t, C1R, 1, huxiCompare_##t##_C1R(PAIRS, DST, ROI, huxCmpEq),               \
         PEER("compare", cv::compare(o.src.mat1, o.src.mat2, o.dst.mat, cv::CMP_EQ)));                     \
    CASE(Pair, Compare, ", GreaterEq", t, C1R, 1, huxiCompare_##t##_C1R(PAIRS, DST, ROI, huxCmpGreaterEq), \
         PEER("compare", cv::compare(o.src.mat1, o.src.mat2, o.dst.mat, cv::CMP_GE)));                     \
    CASE(Numbers, CompareC, ", Greater", t, C1R, 1,                                                        \
         huxiCompareC_##t##_C1R(SRC, *kPixel<Hux##t>, DST, ROI, huxCmpGreater),                            \
         PEER("compare", cv::compare(o.src.mat, double(*kPixel<Hux##t>), o.dst.mat, cv::CMP_GT)));         \
    CASE(Pair, Compare, ", LessEq", t, C3R, 3, huxiCompare_##t##_C3R(PAIRS, DST, ROI, huxCmpLessEq),       \
         PEER("inRange", cv::inRange(o.src.mat1, belowAll(o.src.mat1), o.src.mat2, o.dst.mat)));           \
    CASE(Pair, Compare, ", LessEq", t, C4R, 4, huxiCompare_##t##_C4R(PAIRS, DST, ROI, huxCmpLessEq),       \
         PEER("inRange", cv::inRange(o.src.mat1, belowAll(o.src.mat1), o.src.mat2, o.dst.mat)));           \
    CASE(Pair, Compare, ", LessEq", t, AC4R, 4, huxiCompare_##t##_AC4R(PAIRS, DST, ROI, huxCmpLessEq),     \
         bench::noPeer());                                                                                 \
    CASE(Numbers, CompareC, ", LessEq", t, C3R, 3,                                                         \
         huxiCompareC_##t##_C3R(SRC, kPixel<Hux##t>, DST, ROI, huxCmpLessEq),                              \
         PEER("inRange", cv::inRange(o.src.mat, kBelowAll, scalar(kPixel<Hux##t>), o.dst.mat)));           \
    CASE(Numbers, CompareC, ", LessEq", t, C4R, 4,                                                         \
         huxiCompareC_##t##_C4R(SRC, kPixel<Hux##t>, DST, ROI, huxCmpLessEq),                              \
         PEER("inRange", cv::inRange(o.src.mat, kBelowAll, scalar(kPixel<Hux##t>), o.dst.mat)));           \
  }
COMPARES(8u)
COMPARES(16s)
COMPARES(32f)

void addBinary() {
  CASE(Numbers, CompareC, ", Greater, binary", 8u, C1R, 1,
       huxiCompareC_8u_C1R(SRC, *kPixel<Hux8u>, DST, ROI, huxCmpGreater),
       PEER("threshold, binary", cv::threshold(o.src.mat, o.dst.mat, *kPixel<Hux8u>, 255, cv::THRESH_BINARY)));
}

void addEps() {
  CASE(Pair, CompareEqualEps, "", 32f, C1R, 1, huxiCompareEqualEps_32f_C1R(PAIRS, DST, ROI, 50), bench::noPeer());
  CASE(Numbers, CompareEqualEpsC, "", 32f, C1R, 1, huxiCompareEqualEpsC_32f_C1R(SRC, 100, DST, ROI, 50),
       PEER("inRange", cv::inRange(o.src.mat, 50, 150, o.dst.mat)));
  CASE(Numbers, CompareEqualEpsC, "", 32f, C3R, 3, huxiCompareEqualEpsC_32f_C3R(SRC, kPixel<Hux32f>, DST, ROI, 50),
       PEER("inRange", cv::inRange(o.src.mat, cv::Scalar(50, 70, 150), cv::Scalar(150, 170, 250), o.dst.mat)));
}

}  // namespace

void addCases() {
  addCompare_8u(), addCompare_16s(), addCompare_32f();
  addBinary();
  addEps();
}
