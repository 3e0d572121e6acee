// Morphology with full and with round structuring elements.
#include "windowed.h"

namespace {

using bench::add, bench::Numbers, bench::Shape, bench::Windowed;

// A disc, by rows.
template <int side>
const std::array<Hux8u, side * side>& disc() {
  static const auto cells = [] {
    std::array<Hux8u, side * side> cells{};
    constexpr int r = side / 2;
    for (int j = -r; j <= r; ++j)
      for (int i = -r; i <= r; ++i) cells[std::size_t((j + r) * side + i + r)] = i * i + j * j <= r * r + r;
    return cells;
  }();
  return cells;
}
template <int side>
const std::array<Hux8u, side * side>& full() {
  static const auto cells = [] {
    std::array<Hux8u, side * side> cells;
    cells.fill(1);
    return cells;
  }();
  return cells;
}

#ifdef HUX_BENCH_OPENCV
template <std::size_t N>
cv::Mat matOf(const std::array<Hux8u, N>& cells, int side) {
  return cv::Mat(side, side, CV_8U, const_cast<Hux8u*>(cells.data()));
}
#endif

#define MASKED(Name, peer, t, l, c, shape, n)                                                                    \
  add<Windowed<Hux##t, c>, Numbers<Hux##t, c>>(                                                                  \
      #Name "_" #t "_" #l "R, " #shape " " #n, Shape::Same,                                                      \
      RUN(huxi##Name##_##t##_##l##R(SRC, DST, ROI, shape<n>().data(), HuxiSize{n, n}, HuxiPoint{n / 2, n / 2})), \
      PEER(#peer, static const auto k = matOf(shape<n>(), n); cv::peer(o.src.mat, o.dst.mat, k)))
#define NINE(Name, peer, t, l, c)                                                                \
  add<Windowed<Hux##t, c>, Numbers<Hux##t, c>>(#Name "3x3_" #t "_" #l "R", Shape::Same,          \
                                               RUN(huxi##Name##3x3_##t##_##l##R(SRC, DST, ROI)), \
                                               PEER(#peer, cv::peer(o.src.mat, o.dst.mat, cv::Mat())))
#define CASES(t, l, c)                       \
  NINE(Erode, erode, t, l, c);               \
  MASKED(Dilate, dilate, t, l, c, full, 5);  \
  MASKED(Erode, erode, t, l, c, full, 15);   \
  MASKED(Dilate, dilate, t, l, c, full, 31); \
  MASKED(Erode, erode, t, l, c, disc, 5);    \
  MASKED(Dilate, dilate, t, l, c, disc, 15); \
  MASKED(Erode, erode, t, l, c, disc, 31)

// In place the image shrinks from call to call; what it holds changes nothing in the time.
#define IN_PLACE(Name, t, l, c)                                                                        \
  add<Numbers<Hux##t, c>, Windowed<Hux##t, c>>(                                                        \
      #Name "_" #t "_" #l "IR, full 15", Shape::InPlace,                                               \
      RUN(huxi##Name##_##t##_##l##IR(DST, ROI, full<15>().data(), HuxiSize{15, 15}, HuxiPoint{7, 7})), \
      bench::noPeer())

}  // namespace

void addCases() {
  CASES(8u, C1, 1);
  CASES(8u, C3, 3);
  CASES(32f, C1, 1);
  CASES(32f, C3, 3);
  NINE(Dilate, dilate, 8u, C4, 4);
  IN_PLACE(Erode, 8u, C1, 1);
  IN_PLACE(Erode, 32f, C1, 1);
}
