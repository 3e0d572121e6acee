// Resize of packed 4:2:2.
#include "geometry/resampling.h"
#include "huxi_geometry.h"

namespace hux::test {
namespace {

// Samples of one kind in a row: how many there are, how many bytes apart, from which on, and where the region begins.
struct Samples {
  long image, origin, extent, first;  // on the axis of positions, and the sample in memory where the region begins
  int apart, byte;
};

std::vector<Place1d> placesOf(const Samples& s, double factor, long count, int mode) {
  const bool nearest = mode == huxiInterNearest;
  const double by = nearest                           ? 1 / factor
                    : double(s.extent) * factor > 1.0 ? double(s.extent - 1) / (double(s.extent) * factor - 1.0)
                                                      : 0.0;
  std::vector<Place1d> all;
  double p = nearest ? 0.5 * by : 0;
  const long last = s.image - s.origin - 1;
  for (; count > 0; --count, p += by) {
    long i = long(std::trunc(p + 1e-7));
    double fraction = p - double(i);
    if (i > last) i = last, fraction = 0;
    if (mode == huxiInterLinear && i == last) --i, fraction = 1;
    if (mode == huxiInterCubic) {
      const long r = i + s.origin;
      if (r == s.image - 1)
        i -= 2, fraction = 2;
      else if (r == 0)
        i += 1, fraction -= 1;
      else if (r == s.image - 2)
        i -= 1, fraction += 1;
      --i;
    }
    all.push_back({i, fraction});
  }
  return all;
}

struct Yuv {
  HuxiSize size, room;
  HuxiRect roi;
  Image src, dst;
  double xf, yf;
  int mode;

  HuxStatus run() const {
    return huxiResizeYUV422_8u_C2R(src.data<Hux8u>(), size, src.step(), roi, dst.data<Hux8u>(), dst.step(), room, xf,
                                   yf, mode);
  }
};
Yuv anyYuv(Rng& rng, int n, int mode) {
  const HuxiSize size = {2 * between(rng, 1, n % 8 == 0 ? 300 : n % 3 ? 30 : 5), between(rng, 1, 12)};
  const HuxiSize room = {between(rng, 2, n % 8 == 1 ? 1200 : 80), between(rng, 1, 20)};
  const bool whole = n % 2 == 0;
  const HuxiRect roi = {whole ? 0 : 2 * between(rng, 0, size.width / 2 - 1),
                        whole ? 0 : between(rng, 0, size.height - 1), 2 * between(rng, 1, size.width / 2 + 2),
                        between(rng, 1, size.height + 2)};
  const auto factor = [&] {
    return mode == huxiInterSuper ? between(rng, 100, 1000) / 1000.0 : between(rng, 50, 4000) / 1000.0;
  };
  return {size,
          room,
          roi,
          Image(rng, 2 * size.width, size.height, 1, Place(between(rng, 0, 2))),
          Image(rng, (room.width & ~1) * 2, room.height, 1, Place(between(rng, 0, 2))),
          factor(),
          factor(),
          mode};
}
long countOf(long extent, double factor, long most, long least) {
  const double n = double(extent) * factor + 1e-7;
  return n >= double(least) ? long(std::min(n, double(most))) : n >= double(least) - 0.5 ? least : 0;
}

TEST(ResizeYuv, PixelsAreThoseOfTheDefinition) {
  Rng rng(1);
  for (int mode : {huxiInterNearest, huxiInterLinear, huxiInterCubic})
    for (int n = 0; n < 400; ++n) {
      SCOPED_TRACE("mode " + std::to_string(mode) + " case " + std::to_string(n));
      const Yuv t = anyYuv(rng, n, mode);
      int used = mode;
      if (used == huxiInterCubic && (t.size.width < 8 || t.size.height < 4)) used = huxiInterLinear;
      if (used == huxiInterLinear && (t.size.width < 4 || t.size.height < 2)) used = huxiInterNearest;
      const long x = t.roi.x, w = std::min(t.roi.width, t.size.width - t.roi.x);
      const long h = std::min(t.roi.height, t.size.height - t.roi.y);
      const long width = countOf(w, t.xf, t.room.width, 2), height = countOf(h, t.yf, t.room.height, 1);
      const Image expected = t.dst;
      if (width && height) {
        const Samples rows{t.size.height, t.roi.y, h, t.roi.y, 0, 0};
        const Samples kinds[] = {{t.size.width, x, w, 2 * x, 2, 0},
                                 {t.size.width / 2, x / 2, w / 2, x, 4, 1},
                                 {t.size.width / 2, x / 2, w / 2, x, 4, 3}};
        const auto down = placesOf(rows, t.yf, height, used);
        for (const Samples& s : kinds) {
          const long count = s.apart == 2 ? width / 2 * 2 : width / 2;
          const auto across = placesOf(s, t.xf, count, used);
          const auto get = [&](long u, long v) {
            return double(t.src.get<Hux8u>(int(inside(s.first + u, s.image) * s.apart + s.byte),
                                           int(inside(t.roi.y + v, t.size.height))));
          };
          // Taps are limited by what lies in memory, not by where positions count from.
          const auto unlimited = [&](long u, long v) { return get(u - (1L << 30), v - (1L << 30)); };
          for (long j = 0; j < height; ++j)
            for (long i = 0; i < count; ++i) {
              Place1d px = across[std::size_t(i)], py = down[std::size_t(j)];
              double value;
              if (used == huxiInterNearest) {
                value = get(px.first, py.first);
              } else {
                px.first += 1L << 30, py.first += 1L << 30;
                value = interpolated(1, used, px, py, 1L << 31, 1L << 31, unlimited);
              }
              expected.bytes(int(i * s.apart + s.byte), int(j))[0] = std::byte(value);
            }
        }
      }
      ASSERT_EQ(t.run(), width && height ? huxStsOk : huxStsResizeTooSmall);
      ASSERT_TRUE(same(t.dst, expected));
    }
}

// Each kind of sample is decimated as a one-channel image of its own would be.
TEST(ResizeYuv, SupersamplingTakesSamplesOfAKindByThemselves) {
  Rng rng(2);
  for (int n = 0; n < 200; ++n) {
    SCOPED_TRACE(n);
    Yuv t = anyYuv(rng, n, huxiInterSuper);
    t.roi.x = 0;
    const long w = std::min(t.roi.width, t.size.width);
    const long width = countOf(w, t.xf, t.room.width, 2) / 2 * 2;
    const Image before = t.dst;
    const HuxStatus status = t.run();
    if (status == huxStsOk) {
      for (int kind : {0, 1, 3}) {
        const int apart = kind ? 4 : 2, columns = t.size.width * 2 / apart, count = int(width) * 2 / apart;
        Image plane(rng, columns, t.size.height, 1), small(rng, count, t.room.height, 1);
        forPixels({columns, t.size.height},
                  [&](int x, int y) { *plane.bytes(x, y) = *t.src.bytes(x * apart + kind, y); });
        // A plane that is a little wider, so that its own count of columns does not matter.
        const HuxStatus planar =
            huxiResize_8u_C1R(plane.data<Hux8u>(), plane.size(), plane.step(), {0, t.roi.y, columns, t.roi.height},
                              small.data<Hux8u>(), small.step(), small.size(), t.xf, t.yf, huxiInterSuper);
        const long enough = long(double(columns) * t.xf + 1e-7);
        if (planar != huxStsOk || enough < count) continue;
        for (int y = 0; y < countOf(std::min(t.roi.height, t.size.height - t.roi.y), t.yf, t.room.height, 1); ++y)
          for (int x = 0; x < count; ++x) ASSERT_EQ(*t.dst.bytes(x * apart + kind, y), *small.bytes(x, y));
      }
    } else {
      EXPECT_EQ(status, huxStsResizeTooSmall);
      ASSERT_TRUE(same(t.dst, before));
    }
  }
}

TEST(ResizeYuv, ChecksComeInOrder) {
  Rng rng(3);
  Image src(rng, 80, 20, 1), dst(rng, 40, 10, 1);
  HuxiSize size = {40, 20}, room = {20, 10};
  HuxiRect roi = {2, 2, 20, 10};
  const Hux8u* pSrc = src.data<Hux8u>();
  Hux8u* pDst = dst.data<Hux8u>();
  double xf = 0.5, yf = 0.5;
  int mode = huxiInterLinear;
  const auto call = [&] {
    return huxiResizeYUV422_8u_C2R(pSrc, size, src.step(), roi, pDst, dst.step(), room, xf, yf, mode);
  };
  CheckOrder order(call);
  order.nulls(pSrc, pDst).breaks(huxStsBadSize, size.width, 0).breaks(huxStsBadSize, roi.y, -1);
  order.breaks(huxStsBadSize, roi.height, 0).breaks(huxStsNoOverlapWarn, roi.x, 40);
  order.breaks(huxStsNoOverlapWarn, roi.y, 20).breaks(huxStsBadSize, room.height, 0);
  order.breaks(huxStsBadSize, size.width, 39).breaks(huxStsBadSize, roi.width, 19).breaks(huxStsBadSize, roi.x, 3);
  order.breaks(huxStsBadSize, room.width, 1).breaks(huxStsBadResizeFactor, xf, 0);
  order.breaks(huxStsBadResizeFactor, yf, std::nan("")).breaks(huxStsBadInterpolation, mode, huxiInterLanczos);
  order.breaks(huxStsBadInterpolation, mode, 3).run(dst);
  mode = huxiInterSuper, xf = 1.5;
  EXPECT_EQ(call(), huxStsBadResizeFactor);
  xf = 1.4 / 20, mode = huxiInterLinear;
  EXPECT_EQ(call(), huxStsResizeTooSmall);
  xf = 1.5 / 20;
  EXPECT_EQ(call(), huxStsOk);
  mode = huxiInterSuper, xf = yf = 0.3;
}

}  // namespace
}  // namespace hux::test
