// Remap.
#include <limits>

#include "geometry/sampling.h"
#include "huxi_geometry.h"

namespace hux::test {
namespace {

using RemapFn = HuxStatus(const void*, HuxiSize, int, HuxiRect, const void*, int, const void*, int, const void*, int,
                          HuxiSize, HuxiInterpolation);
struct Member : Format {
  RemapFn* remap;
};
#define MEMBER(t, l) Member{HUX_FORMAT(t, l), as<RemapFn, huxiRemap_##t##_##l##R>},
std::vector<Member> members() {
  return { HUX_STAMP(MEMBER, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4)) };
}

// A coordinate next to one of the ends, on a pixel, in the middle between two or next to that, where results lie next
// to integers, elsewhere between pixels, far outside, or none.
Hux32f coordinate(Rng& rng, int first, int last) {
  constexpr Hux32f inf = std::numeric_limits<Hux32f>::infinity();
  const Hux32f a = Hux32f(first), b = Hux32f(last), inside = a + (b - a) * Hux32f(between(rng, 0, 1 << 20)) / (1 << 20);
  const Hux32f middle = std::floor(inside) + 0.5f;
  const Hux32f some[] = {middle,
                         std::nextafter(middle, -inf),
                         std::nextafter(middle, inf),
                         std::nextafter(a, -inf),
                         a,
                         b,
                         std::nextafter(b, inf),
                         NAN,
                         -1e30f,
                         inf,
                         std::floor(inside),
                         std::nextafter(std::ceil(inside), -1.0f)};
  return between(rng, 0, 1) ? some[rng() % std::size(some)] : inside;
}

TEST(Remap, PixelsComeFromWhereTheMapsTell) {
  Rng rng(1);
  for (const Member& f : members())
    for (HuxiInterpolation mode : kModes)
      for (int turn = 0; turn < 30; ++turn) {
        SCOPED_TRACE(f.name + " mode " + std::to_string(mode) + " turn " + std::to_string(turn));
        const Place place = Place(turn % 3);
        const int least = turn < 12 ? 1 + turn / 3 : 1;
        const Picture src(rng, f, {between(rng, least, 20), between(rng, least, 12)}, place);
        const HuxiSize roi = {between(rng, 1, turn % 2 ? 300 : 20), between(rng, 1, 4)};
        const Image xMap(rng, roi.width, roi.height, 4, place), yMap(rng, roi.width, roi.height, 4, place);
        const int x1 = between(rng, 0, src.size().width - 1), y1 = between(rng, 0, src.size().height - 1);
        const HuxiRect part = {x1, y1, between(rng, 1, 25), between(rng, 1, 15)};
        const int x2 = std::min(src.size().width, x1 + part.width) - 1;
        const int y2 = std::min(src.size().height, y1 + part.height) - 1;
        const bool allInside = turn % 4 == 0;
        const Picture dst(rng, f, roi, place), expected = dst;
        for (int j = 0; j < roi.height; ++j)
          for (int i = 0; i < roi.width; ++i) {
            Hux32f x = coordinate(rng, x1, x2), y = coordinate(rng, y1, y2);
            const bool inside = x >= Hux32f(x1) && x <= Hux32f(x2) && y >= Hux32f(y1) && y <= Hux32f(y2);
            if (allInside && !inside) x = Hux32f(x2), y = Hux32f(y1);
            xMap.set(i, j, 0, x), yMap.set(i, j, 0, y);
            if (allInside || inside) setSampled(expected, i, j, src, f, mode, x, y);
          }
        ASSERT_EQ(f.remap(src.argument(), src.size(), src.step(), part, xMap.bytes(), xMap.step(), yMap.bytes(),
                          yMap.step(), dst.argument(), dst.step(), roi, mode),
                  huxStsOk);
        ASSERT_TRUE(same(dst, expected));
      }
}

TEST(Remap, ChecksInterpolationBeforeStepsAndPlanesLast) {
  Rng rng(2);
  for (const Member& f : members()) {
    SCOPED_TRACE(f.name);
    Picture picture(rng, f, {4, 4});
    const Image map(rng, 4, 4, 4);
    Arguments a(picture.memory);
    a.a = a.d = picture.argument();
    const void *x = map.bytes(), *y = map.bytes();
    HuxiSize size = picture.size();
    HuxiRect part = {0, 0, 4, 4};
    int xStep = 4, yStep = 4;
    HuxiInterpolation mode = huxiInterNearest;
    CheckOrder order([&] { return f.remap(a.a, size, a.aStep, part, x, xStep, y, yStep, a.d, a.dStep, a.roi, mode); });
    order.in(a, "ad").nulls(x, y).sizes(size).sizes(part).in(a, "z");
    order.breaks(huxStsBadInterpolation, mode, huxiInterSuper);
    order.breaks(huxStsBadInterpolation, mode, huxiInterLinear | huxiInterSmoothEdge).in(a, "AD").steps(xStep, yStep);
    order.breaks(huxStsNoOverlapWarn, part.x, 4).breaks(huxStsNoOverlapWarn, part.y, 4);
    for (int p = 0; f.planes > 1 && p < f.planes; ++p) order.nulls(picture.plane(p));
    order.run(picture.memory);
  }
}

}  // namespace
}  // namespace hux::test
