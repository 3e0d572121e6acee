// Remap.
#include <limits>

#include "geometry/sampling.h"
#include "huxi_geometry.h"

namespace hux::test {
namespace {

using RemapFn = HuxStatus (*)(const void*, HuxiSize, int, HuxiRect, const void*, int, const void*, int, const void*,
                              int, HuxiSize, HuxiInterpolation);
struct Member : Format {
  RemapFn remap;
};
#define MEMBER(t, l) Member{HUX_FORMAT(t, l), untyped<huxiRemap_##t##_##l##R>},
std::vector<Member> members() {
  return { HUX_STAMP(MEMBER, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4)) };
}

// A coordinate next to one of the ends, on a pixel, between pixels, far outside, or none.
Hux32f coordinate(Rng& rng, int first, int last) {
  const Hux32f inside = Hux32f(first) + Hux32f(last - first) * Hux32f(between(rng, 0, 1 << 20)) / (1 << 20);
  switch (between(rng, 0, 20)) {
    case 0:
      return std::nextafter(Hux32f(first), -1.0f);
    case 1:
      return Hux32f(first);
    case 2:
      return Hux32f(last);
    case 3:
      return std::nextafter(Hux32f(last), 1e9f);
    case 4:
      return std::numeric_limits<Hux32f>::quiet_NaN();
    case 5:
      return -1e30f;
    case 6:
      return std::numeric_limits<Hux32f>::infinity();
    case 7:
      return std::floor(inside);
    case 8:
      return std::nextafter(std::ceil(inside), -1.0f);
    default:
      return inside;
  }
}

TEST(Remap, PixelsComeFromWhereTheMapsTell) {
  Rng rng(1);
  for (const Member& f : members())
    for (HuxiInterpolation mode : kModes)
      for (int turn = 0; turn < 30; ++turn) {
        SCOPED_TRACE(f.name + " mode " + std::to_string(mode) + " turn " + std::to_string(turn));
        const Place place = Place(turn % 3);
        const int least = turn < 12 ? 1 + turn / 3 : 1;
        const Picture src(rng, f, between(rng, least, 20), between(rng, least, 12), place);
        const HuxiSize roi = {between(rng, 1, turn % 2 ? 300 : 20), between(rng, 1, 4)};
        const Image xMap(rng, roi.width, roi.height, 4, place), yMap(rng, roi.width, roi.height, 4, place);
        const int x1 = between(rng, 0, src.size().width - 1), y1 = between(rng, 0, src.size().height - 1);
        const HuxiRect part = {x1, y1, between(rng, 1, 25), between(rng, 1, 15)};
        const int x2 = std::min(src.size().width, x1 + part.width) - 1;
        const int y2 = std::min(src.size().height, y1 + part.height) - 1;
        const bool allInside = turn % 4 == 0;
        Picture dst(rng, f, roi.width, roi.height, place), expected = dst;
        for (int j = 0; j < roi.height; ++j)
          for (int i = 0; i < roi.width; ++i) {
            Hux32f x = coordinate(rng, x1, x2), y = coordinate(rng, y1, y2);
            const bool inside = x >= Hux32f(x1) && x <= Hux32f(x2) && y >= Hux32f(y1) && y <= Hux32f(y2);
            if (allInside && !inside) x = Hux32f(x2), y = Hux32f(y1);
            std::memcpy(xMap.bytes(i, j), &x, sizeof x), std::memcpy(yMap.bytes(i, j), &y, sizeof y);
            if (allInside || inside) setSampled(expected, i, j, src, f, mode, x, y);
          }
        ASSERT_EQ(f.remap(src.argument(), src.size(), src.step(), part, xMap.bytes(), xMap.step(), yMap.bytes(),
                          yMap.step(), dst.argument(), dst.step(), roi, mode),
                  huxStsOk);
        ASSERT_TRUE(same(dst.memory, expected.memory));
      }
}

TEST(Remap, ChecksInterpolationBeforeStepsAndPlanesLast) {
  Rng rng(2);
  for (const Member& f : members()) {
    SCOPED_TRACE(f.name);
    const Picture picture(rng, f, 4, 4);
    const Image map(rng, 4, 4, 4);
    const void *src = picture.argument(), *dst = src, *x = map.bytes(), *y = map.bytes();
    HuxiSize size = picture.size(), roi = {1, 1};
    HuxiRect part = {0, 0, 4, 4};
    int srcStep = picture.step(), dstStep = srcStep, xStep = 4, yStep = 4;
    HuxiInterpolation mode = huxiInterNearest;
    CheckOrder order([&] { return f.remap(src, size, srcStep, part, x, xStep, y, yStep, dst, dstStep, roi, mode); });
    order.breaks(huxStsNullPtr, src, nullptr)
        .breaks(huxStsNullPtr, dst, nullptr)
        .breaks(huxStsNullPtr, x, nullptr)
        .breaks(huxStsNullPtr, y, nullptr)
        .breaks(huxStsBadSize, size.width, 0)
        .breaks(huxStsBadSize, size.height, -1)
        .breaks(huxStsBadSize, part.x, -1)
        .breaks(huxStsBadSize, part.y, -1)
        .breaks(huxStsBadSize, part.width, 0)
        .breaks(huxStsBadSize, part.height, 0)
        .breaks(huxStsBadSize, roi.width, 0)
        .breaks(huxStsBadSize, roi.height, 0)
        .breaks(huxStsBadInterpolation, mode, huxiInterSuper)
        .breaks(huxStsBadInterpolation, mode, huxiInterLinear | huxiInterSmoothEdge)
        .breaks(huxStsBadStep, srcStep, 0)
        .breaks(huxStsBadStep, dstStep, 0)
        .breaks(huxStsBadStep, xStep, 0)
        .breaks(huxStsBadStep, yStep, -4)
        .breaks(huxStsNoOverlapWarn, part.x, 4)
        .breaks(huxStsNoOverlapWarn, part.y, 4);
    for (int p = 0; f.planes > 1 && p < f.planes; ++p)
      order.breaks(huxStsNullPtr, static_cast<void**>(picture.argument())[p], nullptr);
    order.run(picture.memory);
  }
}

}  // namespace
}  // namespace hux::test
