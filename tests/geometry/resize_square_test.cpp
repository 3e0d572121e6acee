// Resize to square pixels, by every interpolation.
#include "geometry/resampling.h"
#include "huxi_geometry.h"

namespace hux::test {
namespace {

using SquareFn = HuxStatus(const void*, HuxiSize, int, HuxiRect, void*, int, HuxiRect, double, double, double, double,
                           int, void*);
struct SquareForm : Format {
  SquareFn* resize;
};
#define FORM(t, l) SquareForm{HUX_FORMAT(t, l), as<SquareFn, huxiResizeSqrPixel_##t##_##l##R>},
std::vector<SquareForm> forms() {
  return { HUX_STAMP(FORM, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4)) };
}

// One axis: the pixels of the destination that are written, and where they come from.
struct Axis1d {
  long image, first, end;
  double factor, shift;

  Axis1d(long image, long origin, long extent, long dst, long dstExtent, double factor, double shift)
      : image(image), factor(factor), shift(shift) {
    const double from = double(origin) * factor + shift;
    const double to = double(origin + std::min(extent, image - origin)) * factor + shift;
    first = long(std::max(double(dst), from) + 0.4999999999);
    end = long(std::min(double(dst + dstExtent), to) + 0.4999999999);
  }
  double at(long i) const { return (double(i) + 0.5) / factor - 0.5 - shift / factor; }
  long nearest(long i) const { return inside(long((double(i) + 0.5) / factor + (1e-10 - shift / factor)), image); }
  bool outside(long i) const { return at(i) < 0 || at(i) > double(image - 1); }
  Place1d place(int mode, long i) const {
    const double s = at(i);
    long whole = long(std::floor(s));
    double fraction = s - std::floor(s);
    // The last sample lies at fraction 1 from the one before.
    if (s == double(image - 1) && mode != huxiInterLanczos) --whole, fraction = 1;
    return {whole - (mode == huxiInterLinear ? 0 : mode == huxiInterCubic ? 1 : 2), fraction};
  }
};

double once(int bytes, double p0, double p1, double fraction, bool across) {
  if (bytes < 4) {
    const long q = long(fraction * 16384 + 1e-7);
    return double((q * long(p1) + (16384 - q) * long(p0) + 8192) >> 14);
  }
  const float f = float(fraction), a = float(p0), b = float(p1);
  return across ? b * f + a * (1.0f - f) : (b - a) * f + a;
}

void expectPixels(const SquareForm& f, const Picture& src, const Picture& dst, const Axis1d& x, const Axis1d& y,
                  int mode) {
  for (long j = y.first; j < y.end; ++j)
    for (long i = x.first; i < x.end; ++i)
      for (int c = 0; c < f.channels(); ++c) {
        const auto get = [&](long u, long v) { return src.get(inside(u, x.image), inside(v, y.image), c); };
        const Place1d px = x.place(mode, i), py = y.place(mode, j);
        double value;
        if (mode == huxiInterNearest) {
          value = get(x.nearest(i), y.nearest(j));
        } else if (mode == huxiInterLinear && y.outside(j)) {
          const long row = y.at(j) < 0 ? 0 : y.image - 1;
          value = once(f.elementBytes, get(px.first, row), get(px.first + 1, row), px.fraction, false);
        } else if (mode == huxiInterLinear && x.outside(i)) {
          const long column = x.at(i) < 0 ? 0 : x.image - 1;
          value = once(f.elementBytes, get(column, py.first), get(column, py.first + 1), py.fraction, true);
        } else {
          value = interpolated(f.elementBytes, mode, px, py, x.image, y.image, get);
        }
        dst.set(i, j, c, value);
      }
}

TEST(ResizeSquare, PixelsAreThoseOfTheDefinition) {
  Rng rng(1);
  int written = 0;
  for (const SquareForm& f : forms())
    for (int mode : kResizeModes)
      for (int n = 0; n < 40; ++n) {
        SCOPED_TRACE(f.name + " mode " + std::to_string(mode) + " case " + std::to_string(n));
        const ResizeScene s(rng, f, n);
        const HuxiSize size = s.src.size(), room = s.dst.size();
        const bool whole = n % 4 == 0;
        const HuxiRect roi = {whole ? 0 : between(rng, 0, (size.width - 1) / 3),
                              whole ? 0 : between(rng, 0, (size.height - 1) / 3), between(rng, 1, size.width + 3),
                              between(rng, 1, size.height + 3)};
        const int dx = whole ? 0 : between(rng, 0, (room.width - 1) / 4),
                  dy = whole ? 0 : between(rng, 0, (room.height - 1) / 4);
        const HuxiRect dstRoi = {dx, dy, room.width - dx, room.height - dy};
        const double some[] = {1, 2, 0.5, 3, 0.1};
        const auto factor = [&] { return between(rng, 0, 2) ? between(rng, 50, 4000) / 1000.0 : some[rng() % 5]; };
        const double xf = factor(), yf = factor();
        const double xs = between(rng, -4, 4) * 0.5, ys = between(rng, -400, 400) / 100.0;
        const Axis1d x(size.width, roi.x, roi.width, dstRoi.x, dstRoi.width, xf, xs);
        const Axis1d y(size.height, roi.y, roi.height, dstRoi.y, dstRoi.height, yf, ys);
        const bool empty = x.first > x.end || y.first > y.end;
        const Picture expected = s.dst;
        if (!empty) expectPixels(f, s.src, expected, x, y, modeFor(size, mode));
        written += x.first < x.end && y.first < y.end;
        int bytes;
        ASSERT_EQ(huxiResizeSqrPixelGetBufSize({dstRoi.width, dstRoi.height}, f.planes > 1 ? 1 : f.layout.stride, mode,
                                               &bytes),
                  huxStsOk);
        const Image buffer(rng, bytes, 1, 1, Place::kEnd);
        ASSERT_EQ(f.resize(s.src.argument(), size, s.src.step(), roi, s.dst.argument(), s.dst.step(), dstRoi, xf, yf,
                           xs, ys, mode, buffer.bytes()),
                  empty ? huxStsEmptyDestWarn : huxStsOk);
        ASSERT_TRUE(same(s.dst, expected));
      }
  EXPECT_GT(written, 1000);
}

TEST(ResizeSquare, ChecksComeInOrder) {
  Rng rng(2);
  for (const SquareForm& f : forms()) {
    SCOPED_TRACE(f.name);
    Picture src(rng, f, {20, 12}), dst(rng, f, {9, 9});
    HuxiSize size = src.size();
    const void* pSrc = src.argument();
    void* pDst = dst.argument();
    Hux8u work[20000];
    void* buffer = work;
    HuxiRect roi = {2, 3, 10, 5}, dstRoi = {1, 1, 7, 7};
    double xf = 0.5, yf = 0.5, shift = 0;
    int mode = huxiInterCubic;
    const auto call = [&] {
      return f.resize(pSrc, size, src.step(), roi, pDst, dst.step(), dstRoi, xf, yf, shift, 0, mode, buffer);
    };
    CheckOrder order(call);
    order.nulls(pSrc, pDst);
    if (f.planes > 1) order.nulls(src.plane(f.planes - 1), dst.plane(f.planes - 1));
    order.nulls(buffer).sizes(size).sizes(roi).sizes(dstRoi);
    order.breaks(huxStsBadResizeFactor, xf, -1).breaks(huxStsBadResizeFactor, yf, 0);
    order.breaks(huxStsBadInterpolation, mode, huxiInterSuper);
    order.breaks(huxStsNoOverlapWarn, roi.x, 20).breaks(huxStsNoOverlapWarn, roi.y, 12).run(dst.memory);
    shift = std::nan("");
    EXPECT_EQ(call(), huxStsEmptyDestWarn);
  }
}

TEST(ResizeSquare, BufferSizes) {
  int size = 0;
  const auto is = [&](HuxiSize dst, int channels, int mode, int expected) {
    EXPECT_EQ(huxiResizeSqrPixelGetBufSize(dst, channels, mode, &size), huxStsOk);
    EXPECT_EQ(size, expected);
  };
  is({1, 1}, 1, huxiInterNearest, 143);
  is({17, 33}, 3, huxiInterLinear, 128 * 5 + 4 * 3 * 64 + 15);
  is({17, 33}, 4, huxiInterCubic, 128 * 5 + 4 * 4 * 128 + 15);
  is({17, 33}, 1, huxiInterLanczos, 128 * 5 + 4 * 192 + 64 * 12 + 64 * 18 + 15);
  EXPECT_EQ(huxiResizeSqrPixelGetBufSize({0, 1}, 2, 8, nullptr), huxStsNullPtr);
  EXPECT_EQ(huxiResizeSqrPixelGetBufSize({0, 1}, 2, 8, &size), huxStsBadSize);
  EXPECT_EQ(huxiResizeSqrPixelGetBufSize({1, 1}, 2, 8, &size), huxStsBadChannelCount);
  EXPECT_EQ(huxiResizeSqrPixelGetBufSize({1, 1}, 3, 8, &size), huxStsBadInterpolation);
}

}  // namespace
}  // namespace hux::test
