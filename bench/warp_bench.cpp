// Warps, rotation and remap. The peer rounds positions to parts of a pixel and weights to parts of 2^15, so results are
// not compared. Maps are such that every pixel of the destination comes from inside the source.
#include <cmath>

#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Numbers, bench::Planes, bench::Shape;

template <class T, int C>
struct Warped : Image<T, C> {
  using Image<T, C>::Image;
  std::span<std::uint8_t> bytes() const { return {}; }
};

// The rotation by 20 degrees about the middle, enlarged by one half, from destination to source; in the last row, what
// makes it perspective.
constexpr double kPerspective = 0.05;  // over the width
struct Map {
  double rows[3][3];
  explicit Map(HuxiSize s, double perspective = 0) {
    const double cosine = std::cos(0.35) / 1.5, sine = std::sin(0.35) / 1.5, x = s.width / 2.0, y = s.height / 2.0;
    const double all[3][3] = {{cosine, sine, x - cosine * x - sine * y},
                              {-sine, cosine, y + sine * x - cosine * y},
                              {perspective / s.width, perspective / s.height, 1}};
    std::memcpy(rows, all, sizeof rows);
  }
};

// A source with the two tables of that map.
template <class T, int C>
struct Mapped : Numbers<T, C> {
  static constexpr int pixelBytes = Numbers<T, C>::pixelBytes + 8;
  Image<Hux32f, 1> x, y;
  Mapped() = default;
  Mapped(HuxiSize s, int margin = 0) : Numbers<T, C>(s, margin), x(s), y(s) {
    const Map m(s);
    for (int j = 0; j < s.height; ++j)
      for (int i = 0; i < s.width; ++i) {
        x.data[std::int64_t(j) * x.step / 4 + i] = float(m.rows[0][0] * i + m.rows[0][1] * j + m.rows[0][2]);
        y.data[std::int64_t(j) * y.step / 4 + i] = float(m.rows[1][0] * i + m.rows[1][1] * j + m.rows[1][2]);
      }
  }
  std::int64_t traffic() const { return Numbers<T, C>::traffic() + x.traffic() + y.traffic(); }
};

#define WHOLE \
  HuxiRect { 0, 0, o.size.width, o.size.height }
#ifdef HUX_BENCH_OPENCV
constexpr int modeOf(int interpolation) {
  return interpolation == huxiInterNearest  ? cv::INTER_NEAREST
         : interpolation == huxiInterLinear ? cv::INTER_LINEAR
                                            : cv::INTER_CUBIC;
}
#define WARP_PEER(name, ...) bench::Side(#name, [=](auto& o) { __VA_ARGS__; })
#else
#define WARP_PEER(...) bench::noPeer()
#endif

#define REMAP(t, l, c, mode)                                                                                      \
  add<Mapped<Hux##t, c>, Warped<Hux##t, c>>(                                                                      \
      "Remap_" #t "_" #l "R, " #mode, Shape::Same,                                                                \
      RUN(huxiRemap_##t##_##l##R(o.src.data, o.size, o.src.step, WHOLE, o.src.x.data, o.src.x.step, o.src.y.data, \
                                 o.src.y.step, DST, o.size, huxiInter##mode)),                                    \
      WARP_PEER(remap, cv::remap(o.src.mat, o.dst.mat, o.src.x.mat, o.src.y.mat, modeOf(huxiInter##mode),         \
                                 cv::BORDER_TRANSPARENT)))
#define AFFINE(t, l, c, mode)                                                                                  \
  add<Numbers<Hux##t, c>, Warped<Hux##t, c>>(                                                                  \
      "WarpAffineBack_" #t "_" #l "R, " #mode, Shape::Same,                                                    \
      RUN(huxiWarpAffineBack_##t##_##l##R(o.src.data, o.size, o.src.step, WHOLE, DST, WHOLE, Map(o.size).rows, \
                                          huxiInter##mode)),                                                   \
      WARP_PEER(warpAffine, Map m(o.size);                                                                     \
                cv::warpAffine(o.src.mat, o.dst.mat, cv::Mat(2, 3, CV_64F, m.rows), o.dst.mat.size(),          \
                               modeOf(huxiInter##mode) | cv::WARP_INVERSE_MAP, cv::BORDER_TRANSPARENT)))
#define PERSPECTIVE(t, l, c, mode)                                                                         \
  add<Numbers<Hux##t, c>, Warped<Hux##t, c>>(                                                              \
      "WarpPerspectiveBack_" #t "_" #l "R, " #mode, Shape::Same,                                           \
      RUN(huxiWarpPerspectiveBack_##t##_##l##R(o.src.data, o.size, o.src.step, WHOLE, DST, WHOLE,          \
                                               Map(o.size, kPerspective).rows, huxiInter##mode)),          \
      WARP_PEER(warpPerspective, Map m(o.size, kPerspective);                                              \
                cv::warpPerspective(o.src.mat, o.dst.mat, cv::Mat(3, 3, CV_64F, m.rows), o.dst.mat.size(), \
                                    modeOf(huxiInter##mode) | cv::WARP_INVERSE_MAP, cv::BORDER_TRANSPARENT)))
#define BILINEAR(t, l, c, mode)                                                                                    \
  add<Numbers<Hux##t, c>, Warped<Hux##t, c>>(                                                                      \
      "WarpBilinearQuad_" #t "_" #l "R, " #mode, Shape::Same,                                                      \
      bench::Side("hux",                                                                                           \
                  [](auto& o) {                                                                                    \
                    const double w = o.size.width - 1, h = o.size.height - 1;                                      \
                    const double from[4][2] = {{0, 0.1 * h}, {0.9 * w, 0}, {w, 0.9 * h}, {0.2 * w, h}};            \
                    const double to[4][2] = {{0, 0}, {w, 0}, {w, h}, {0, h}};                                      \
                    huxiWarpBilinearQuad_##t##_##l##R(o.src.data, o.size, o.src.step, WHOLE, from, DST, WHOLE, to, \
                                                      huxiInter##mode);                                            \
                  }),                                                                                              \
      bench::noPeer())
#define ROTATE(t, l, c, quarters, code, shape, ...)                                                           \
  add<Image<Hux##t, c>, Image<Hux##t, c>>(                                                                    \
      "Rotate_" #t "_" #l "R, " #quarters, Shape::shape,                                                      \
      RUN(huxiRotate_##t##_##l##R(o.src.data, o.size, o.src.step, WHOLE, DST,                                 \
                                  HuxiRect{0, 0, o.dst.size.width, o.dst.size.height}, quarters, __VA_ARGS__, \
                                  huxiInterNearest)),                                                         \
      PEER("rotate", cv::rotate(o.src.mat, o.dst.mat, cv::code)))
#define TURNS(t, l, c)                                                              \
  ROTATE(t, l, c, 90, ROTATE_90_COUNTERCLOCKWISE, Transposed, 0, o.size.width - 1); \
  ROTATE(t, l, c, 180, ROTATE_180, Same, o.size.width - 1, o.size.height - 1);      \
  ROTATE(t, l, c, 270, ROTATE_90_CLOCKWISE, Transposed, o.size.height - 1, 0)

#define MODES(warp, t, l, c) warp(t, l, c, Nearest), warp(t, l, c, Linear), warp(t, l, c, Cubic)
#define FORMATS(warp)                                                     \
  MODES(warp, 8u, C1, 1), MODES(warp, 8u, C3, 3), MODES(warp, 8u, C4, 4); \
  MODES(warp, 16u, C1, 1), MODES(warp, 16u, C3, 3), MODES(warp, 32f, C1, 1), MODES(warp, 32f, C3, 3)

}  // namespace

void addCases() {
  FORMATS(AFFINE);
  FORMATS(REMAP);
  // The peer writes alpha as well.
  AFFINE(8u, AC4, 4, Linear), AFFINE(32f, AC4, 4, Linear), REMAP(8u, AC4, 4, Linear), REMAP(32f, AC4, 4, Linear);
  MODES(PERSPECTIVE, 8u, C1, 1), MODES(PERSPECTIVE, 8u, C3, 3), MODES(PERSPECTIVE, 32f, C1, 1);
  BILINEAR(8u, C1, 1, Linear), BILINEAR(32f, C1, 1, Linear);
  TURNS(8u, C1, 1), TURNS(8u, C3, 3), TURNS(8u, C4, 4), TURNS(16u, C1, 1), TURNS(32f, C1, 1), TURNS(32f, C3, 3);
  // The peer's images have no alpha to leave alone.
  add<Image<Hux8u, 4>, Image<Hux8u, 4>>("Rotate_8u_AC4R, 90", Shape::Transposed,
                                        RUN(huxiRotate_8u_AC4R(o.src.data, o.size, o.src.step, WHOLE, DST,
                                                               HuxiRect{0, 0, o.dst.size.width, o.dst.size.height}, 90,
                                                               0, o.size.width - 1, huxiInterNearest)),
                                        bench::noPeer());
}
