// Box filter and window sums. The peer rounds its means, and adds floats in another order: results are not compared.
#include "support.h"

namespace {

using bench::add, bench::Image, bench::Shape;

template <class T, int C>
struct Means : Image<T, C> {
  using Image<T, C>::Image;
  std::span<std::uint8_t> bytes() const { return {}; }
};

// The region is what the largest window leaves of the image, so that both sides read the same pixels.
constexpr int kMargin = 16;
template <class I>
auto* inside(const I& image) {
  return image.data + kMargin * (image.step + I::pixelBytes) / int(sizeof *image.data);
}
constexpr HuxiSize insideSize(HuxiSize size) { return {size.width - 2 * kMargin, size.height - 2 * kMargin}; }

// The peer on the same region, which it knows to be part of an image.
#ifdef HUX_BENCH_OPENCV
template <class O>
void boxFilter(O& o, int depth, cv::Size mask, bool mean) {
  const cv::Rect part(kMargin, kMargin, o.size.width - 2 * kMargin, o.size.height - 2 * kMargin);
  cv::Mat dst = o.dst.mat(part);
  cv::boxFilter(o.src.mat(part), dst, depth, mask, cv::Point(-1, -1), mean, cv::BORDER_REPLICATE);
}
#define BOX_PEER(...) bench::Side("boxFilter", [=](auto& o) { boxFilter(o, __VA_ARGS__); })
#else
#define BOX_PEER(...) bench::noPeer()
#endif

#define INSIDE inside(o.src), o.src.step, inside(o.dst), o.dst.step, insideSize(o.size)

#define BOX(t, l, c)                                                                                         \
  for (int side : {3, 5, 15, 31})                                                                            \
  add<Image<Hux##t, c>, Means<Hux##t, c>>(                                                                   \
      "FilterBox_" #t "_" #l "R, " + std::to_string(side), Shape::Same,                                      \
      bench::Side("hux",                                                                                     \
                  [=](auto& o) {                                                                             \
                    huxiFilterBox_##t##_##l##R(INSIDE, HuxiSize{side, side}, HuxiPoint{side / 2, side / 2}); \
                  }),                                                                                        \
      BOX_PEER(-1, cv::Size(side, side), true))

#define SUM(way, t, l, c, width, height)                                                                  \
  for (int mask : {5, 31})                                                                                \
  add<Image<Hux##t, c>, Means<Hux32f, c>>(                                                                \
      "SumWindow" #way "_" #t "32f_" #l "R, " + std::to_string(mask), Shape::Same,                        \
      bench::Side("hux", [=](auto& o) { huxiSumWindow##way##_##t##32f_##l##R(INSIDE, mask, mask / 2); }), \
      BOX_PEER(CV_32F, cv::Size(width, height), false))

}  // namespace

void addCases() {
  BOX(8u, C1, 1);
  BOX(8u, C3, 3);
  BOX(8u, C4, 4);
  BOX(16s, C1, 1);
  BOX(16s, C3, 3);
  BOX(16s, C4, 4);
  BOX(32f, C1, 1);
  BOX(32f, C3, 3);
  BOX(32f, C4, 4);
  SUM(Row, 8u, C1, 1, mask, 1);
  SUM(Row, 16s, C3, 3, mask, 1);
  SUM(Column, 8u, C1, 1, 1, mask);
  SUM(Column, 16s, C3, 3, 1, mask);
}
