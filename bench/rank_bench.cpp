// Rank filters. The peer's medians continue the region itself at its edges, so their results are not compared.
#include "windowed.h"

namespace {

using bench::add, bench::Numbers, bench::Shape, bench::Windowed;

template <class T, int C>
struct Medians : Numbers<T, C> {
  using Numbers<T, C>::Numbers;
  std::span<std::uint8_t> bytes() const { return {}; }
};

#define MEDIAN(t, l, c, n, ...)                        \
  add<Windowed<Hux##t, c>, Medians<Hux##t, c>>(        \
      "FilterMedian_" #t "_" #l "R, " #n, Shape::Same, \
      RUN(huxiFilterMedian_##t##_##l##R(SRC, DST, ROI, HuxiSize{n, n}, HuxiPoint{n / 2, n / 2})), __VA_ARGS__)
#define BLUR(n) PEER("medianBlur", cv::medianBlur(o.src.mat, o.dst.mat, n))
#define LINE(Shape_, t, l, c, mask)                                                                               \
  add<Windowed<Hux##t, c>, Medians<Hux##t, c>>("FilterMedian" #Shape_ "_" #t "_" #l "R, " #mask, Shape::Same,     \
                                               RUN(huxiFilterMedian##Shape_##_##t##_##l##R(SRC, DST, ROI, mask)), \
                                               bench::noPeer())

#define EXTREME(Name, peer, t, l, c, n)                                                             \
  add<Windowed<Hux##t, c>, Numbers<Hux##t, c>>(                                                     \
      "Filter" #Name "_" #t "_" #l "R, " #n, Shape::Same,                                           \
      RUN(huxiFilter##Name##_##t##_##l##R(SRC, DST, ROI, HuxiSize{n, n}, HuxiPoint{n / 2, n / 2})), \
      PEER(#peer, static const auto k = cv::Mat::ones(n, n, CV_8U); cv::peer(o.src.mat, o.dst.mat, k)))
#define EXTREMES(t, l, c)           \
  EXTREME(Min, erode, t, l, c, 3);  \
  EXTREME(Max, dilate, t, l, c, 5); \
  EXTREME(Min, erode, t, l, c, 15); \
  EXTREME(Max, dilate, t, l, c, 31)

}  // namespace

void addCases() {
  MEDIAN(8u, C1, 1, 3, BLUR(3));
  MEDIAN(8u, C1, 1, 5, BLUR(5));
  MEDIAN(8u, C1, 1, 7, BLUR(7));
  MEDIAN(8u, C1, 1, 15, BLUR(15));
  MEDIAN(8u, C1, 1, 31, BLUR(31));
  MEDIAN(8u, C3, 3, 3, BLUR(3));
  MEDIAN(8u, C3, 3, 5, BLUR(5));
  MEDIAN(8u, C3, 3, 15, BLUR(15));
  MEDIAN(16s, C1, 1, 3, BLUR(3));
  MEDIAN(16s, C1, 1, 5, BLUR(5));
  MEDIAN(16s, C1, 1, 7, bench::noPeer());
  LINE(Horiz, 8u, C1, 1, huxMskSize5x1);
  LINE(Vert, 8u, C1, 1, huxMskSize1x5);
  LINE(Cross, 8u, C1, 1, huxMskSize5x5);
  LINE(Color, 8u, C3, 3, huxMskSize3x3);
  LINE(Color, 8u, C3, 3, huxMskSize5x5);
  LINE(Color, 32f, C3, 3, huxMskSize5x5);
  EXTREMES(8u, C1, 1);
  EXTREMES(8u, C3, 3);
  EXTREMES(16s, C1, 1);
  EXTREMES(32f, C1, 1);
  EXTREMES(32f, C3, 3);
}
