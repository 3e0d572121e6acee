// Warps by affine, bilinear and perspective maps, rotation and shear. Which pixels lie in a quadrangle, and how its
// edges are smoothed, is told by functions with tests of their own; here is what the pixels come from.
#include <bit>
#include <functional>
#include <limits>

#include "geometry/sampling.h"
#include "geometry/spans.h"
#include "huxi_geometry.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

using V = const void*;
using MapFn = HuxStatus(V, HuxiSize, int, HuxiRect, V, int, HuxiRect, V, HuxiInterpolation);
using QuadFn = HuxStatus(V, HuxiSize, int, HuxiRect, V, V, int, HuxiRect, V, HuxiInterpolation);
using RotateFn = HuxStatus(V, HuxiSize, int, HuxiRect, V, int, HuxiRect, Hux64f, Hux64f, Hux64f, HuxiInterpolation);
using ShearFn = HuxStatus(V, HuxiSize, int, HuxiRect, V, int, HuxiRect, Hux64f, Hux64f, Hux64f, Hux64f,
                          HuxiInterpolation);

enum Kind { affine, bilinear, perspective };
constexpr Kind kKinds[] = {affine, bilinear, perspective};
struct Member : Format {
  MapFn *forward[3], *back[3];
  QuadFn* quads[3];
  RotateFn *rotate, *rotateCenter;
  ShearFn* shear;
};
#define THREE(Fn, suffix, t, l)                                                                     \
  {                                                                                                 \
    as<Fn, huxiWarpAffine##suffix##_##t##_##l##R>, as<Fn, huxiWarpBilinear##suffix##_##t##_##l##R>, \
        as<Fn, huxiWarpPerspective##suffix##_##t##_##l##R>                                          \
  }
#define MEMBER(t, l)                                  \
  Member{HUX_FORMAT(t, l),                            \
         THREE(MapFn, , t, l),                        \
         THREE(MapFn, Back, t, l),                    \
         THREE(QuadFn, Quad, t, l),                   \
         as<RotateFn, huxiRotate_##t##_##l##R>,       \
         as<RotateFn, huxiRotateCenter_##t##_##l##R>, \
         as<ShearFn, huxiShear_##t##_##l##R>},
std::vector<Member> members() {
  return { HUX_STAMP(MEMBER, (8u, 16u, 32f), (C1, C3, AC4, C4, P3, P4)) };
}

// The images and regions of one call.
struct Scene {
  Picture src, dst;
  HuxiRect srcRoi, dstRoi;
  HuxiInterpolation mode;
  bool wide;

  Scene(Rng& rng, const Format& f, HuxiInterpolation mode, int turn)
      : src(rng, f, {between(rng, 2, 30), between(rng, 2, 20)}, Place(turn % 3)),
        dst(rng, f, {turn % 4 ? between(rng, 1, 30) : between(rng, 130, 300), between(rng, 1, turn % 4 ? 20 : 4)}),
        srcRoi(part(rng, src.size(), 2)),
        dstRoi(part(rng, dst.size(), 1)),
        mode(mode),
        wide(turn % 4 == 0) {
    // Nothing can be written behind a region that ends with the image.
    dstRoi.width = std::min(dstRoi.width, dst.size().width - dstRoi.x);
    dstRoi.height = std::min(dstRoi.height, dst.size().height - dstRoi.y);
  }

  static HuxiRect part(Rng& rng, HuxiSize size, int least) {
    const int x = between(rng, 0, size.width - least), y = between(rng, 0, size.height - least);
    return {x, y, between(rng, least, size.width + 3), between(rng, least, size.height + 3)};
  }
  Box source() const {
    return {Hux64f(srcRoi.x), Hux64f(srcRoi.y), Hux64f(std::min(srcRoi.x + srcRoi.width, src.size().width) - 1),
            Hux64f(std::min(srcRoi.y + srcRoi.height, src.size().height) - 1)};
  }
  Box destination() const { return cornersOf(dstRoi); }
};

Hux64f real(Rng& rng, Hux64f low, Hux64f high) { return std::uniform_real_distribution<Hux64f>(low, high)(rng); }

// A map from a scene's source to its destination, scaled so that the images mostly overlap.
AffineCoeffs affineMap(Rng& rng, const Scene& s) {
  const Hux64f sx = s.wide ? Hux64f(s.dst.size().width) / s.src.size().width : real(rng, 0.4, 2);
  const Hux64f sy = s.wide ? Hux64f(s.dst.size().height) / s.src.size().height : real(rng, 0.4, 2);
  const Hux64f t = between(rng, 0, 3) ? real(rng, -0.7, 0.7) * (s.wide ? 0.1 : 1) : 0;
  const Hux64f mirror = between(rng, 0, 3) ? 1 : -1;
  const Hux64f shift = mirror < 0 ? s.dst.size().width : 0;
  return {mirror * sx * std::cos(t), sy * std::sin(t), shift + real(rng, -3, 3),
          -sx * std::sin(t),         sy * std::cos(t), real(rng, -3, 3)};
}
BilinearCoeffs bilinearMap(Rng& rng, const Scene& s) {
  const AffineCoeffs a = affineMap(rng, s);
  const auto twist = [&] { return 0.01 * between(rng, -1, 1); };
  return {twist(), a.c00, a.c01, a.c02, twist(), a.c10, a.c11, a.c12};
}
PerspectiveCoeffs perspectiveMap(Rng& rng, const Scene& s) {
  const AffineCoeffs a = affineMap(rng, s);
  return {a.c00, a.c01, a.c02, a.c10, a.c11, a.c12, real(rng, -0.01, 0.01), real(rng, -0.01, 0.01), 1};
}

// Visits the pixels of a row with their positions in the source.
using Visit = std::function<void(Index x, Index y, Point position)>;
using Rows = std::function<Span(Index)>;

void along(const AffineCoeffs& c, Index first, Index last, Rows span, Visit visit) {
  Hux64f rx = c.c01 * Hux64f(first) + c.c02, ry = Hux64f(first) * c.c11 + c.c12;
  for (Index k = first; k <= last; ++k, rx += c.c01, ry += c.c11) {
    const Span s = span(k);
    Hux64f x = c.c00 * s.left + rx, y = s.left * c.c10 + ry;
    for (Index i = s.left; i <= s.right; ++i, x += c.c00, y += c.c10) visit(i, k, {x, y});
  }
}
void along(const PerspectiveCoeffs& c, Index first, Index last, Rows span, Visit visit) {
  Hux64f rx = c.c01 * Hux64f(first) + c.c02, ry = c.c11 * Hux64f(first) + c.c12, rd = c.c21 * Hux64f(first) + c.c22;
  for (Index k = first; k <= last; ++k, rx += c.c01, ry += c.c11, rd += c.c21) {
    const Span s = span(k);
    const Hux64f nx = c.c00 * s.left + rx, ny = c.c10 * s.left + ry, d = c.c20 * s.left + rd;
    for (Index i = s.left; i <= s.right; ++i) {
      const Hux64f n = Hux64f(i - s.left), q = 1 / (d + n * c.c20);
      visit(i, k, {(nx + n * c.c00) * q, (ny + n * c.c10) * q});
    }
  }
}
void along(const BilinearCoeffs& c, Index first, Index last, Rows span, Visit visit) {
  Hux64f sx = c.c00 * Hux64f(first) + c.c01, sy = c.c10 * Hux64f(first) + c.c11;
  Hux64f rx = c.c02 * Hux64f(first) + c.c03, ry = c.c12 * Hux64f(first) + c.c13;
  for (Index k = first; k <= last; ++k, sx += c.c00, sy += c.c10, rx += c.c02, ry += c.c12) {
    const Span s = span(k);
    Hux64f x = sx * s.left + rx, y = sy * s.left + ry;
    for (Index i = s.left; i <= s.right; ++i, x += sx, y += sy) visit(i, k, {x, y});
  }
}
// The pixels that a call is expected to write; of those whose positions leave a box, none.
struct Expected {
  const Scene& s;
  const Format& f;
  Picture picture;
  Box box;

  Expected(const Scene& s, const Format& f, Box box) : s(s), f(f), picture(s.dst), box(box) {}
  Visit visit() {
    return [this](Index x, Index y, Point p) {
      if (box.holds(p)) setSampled(picture, int(x), int(y), s.src, f, s.mode, p.x, p.y);
    };
  }
};
constexpr Box kEverywhere = {-1e300, -1e300, 1e300, 1e300};

// A call on the pixels of a quadrangle that lie in the destination, looked up by an inverse map.
template <class Coeffs, class Call>
void expectInside(const Quad& quad, const Coeffs& inverse, Scene& s, const Format& f, Call call, Box box = kEverywhere,
                  HuxStatus status = huxStsOk) {
  Expected expected(s, f, box);
  Spans spans;
  const bool any = ownvi_ClipQuad(quad, s.destination(), ownvi_CheckQuad(quad), spans);
  if (any)
    along(
        inverse, spans.first, spans.last, [&](Index k) { return spans[k]; }, expected.visit());
  ASSERT_EQ(call(), any ? status : huxStsQuadOutsideWarn);
  ASSERT_TRUE(same(s.dst, expected.picture));
}
// A call that looks up all pixels of the destination, and keeps what comes from within the source.
template <class Coeffs, class Call>
void expectLookedUp(const Coeffs& c, Scene& s, const Format& f, Call call, HuxStatus status = huxStsOk) {
  Expected expected(s, f, s.source());
  const Span row = {s.dstRoi.x, s.dstRoi.x + s.dstRoi.width - 1};
  if (status == huxStsOk)
    along(
        c, s.dstRoi.y, s.dstRoi.y + s.dstRoi.height - 1, [&](Index) { return row; }, expected.visit());
  ASSERT_EQ(call(), status);
  ASSERT_TRUE(same(s.dst, expected.picture));
}

const Hux64f* numbers(const AffineCoeffs& c) { return &c.c00; }
const Hux64f* numbers(const BilinearCoeffs& c) { return &c.c00; }
const Hux64f* numbers(const PerspectiveCoeffs& c) { return &c.c00; }
const Hux64f* numbers(const Quad& q) { return &q[0].x; }

template <class Body>
void forScenes(int seed, int turns, Body body) {
  Rng rng(seed);
  for (const Member& f : members())
    for (HuxiInterpolation mode : kModes)
      for (int turn = 0; turn < turns; ++turn) {
        SCOPED_TRACE(f.name + " mode " + std::to_string(mode) + " turn " + std::to_string(turn));
        Scene s(rng, f, mode, turn);
        body(rng, f, s);
        if (testing::Test::HasFatalFailure()) return;
      }
}

// The functions from source to destination, with what they take between their regions and the interpolation.
template <class Fn, class... A>
HuxStatus with(Scene& s, int flag, Fn* fn, A... parameters) {
  return fn(s.src.argument(), s.src.size(), s.src.step(), s.srcRoi, s.dst.argument(), s.dst.step(), s.dstRoi,
            parameters..., s.mode | flag);
}
HuxStatus call(MapFn fn, Scene& s, const Hux64f* coeffs, int flag = 0) { return with(s, flag, fn, coeffs); }
HuxStatus call(QuadFn fn, Scene& s, const Quad& srcQuad, const Quad& dstQuad, int flag = 0) {
  return fn(s.src.argument(), s.src.size(), s.src.step(), s.srcRoi, numbers(srcQuad), s.dst.argument(), s.dst.step(),
            s.dstRoi, numbers(dstQuad), s.mode | flag);
}

AffineCoeffs affineInverse(const Quad& q, const Box& box) {
  const Hux64f d = 1 / ((q[1].x - q[0].x) * (q[2].y - q[1].y) - (q[2].x - q[1].x) * (q[1].y - q[0].y));
  const Hux64f P = (box.x2 - box.x1) * d, Q = (box.y2 - box.y1) * d;
  AffineCoeffs i{(q[2].y - q[1].y) * P, -(q[2].x - q[1].x) * P, 0, -(q[1].y - q[0].y) * Q, (q[1].x - q[0].x) * Q, 0};
  i.c02 = box.x1 - i.c00 * q[0].x - i.c01 * q[0].y, i.c12 = box.y1 - i.c10 * q[0].x - i.c11 * q[0].y;
  return i;
}

TEST(WarpAffine, ForwardSamplesByTheInverseOfTheQuadrangle) {
  forScenes(1, 16, [](Rng& rng, const Member& f, Scene& s) {
    const AffineCoeffs c = affineMap(rng, s);
    const Quad quad = ownvi_WarpRect(c, s.source());
    expectInside(quad, affineInverse(quad, s.source()), s, f, [&] { return call(f.forward[affine], s, numbers(c)); });
  });
}

TEST(WarpAffine, BackSamplesByTheCoefficientsAndNeverSmooths) {
  forScenes(2, 8, [](Rng& rng, const Member& f, Scene& s) {
    const AffineCoeffs m = affineMap(rng, s);
    const Hux64f d = m.c00 * m.c11 - m.c01 * m.c10;
    const AffineCoeffs c = {m.c11 / d, -m.c01 / d, 2.5, -m.c10 / d, m.c00 / d, 1.5};
    const Hux64f D = c.c00 * c.c11 - c.c01 * c.c10;
    const AffineCoeffs forward = {c.c11 / D,  -c.c01 / D, (c.c01 * c.c12 - c.c11 * c.c02) / D,
                                  -c.c10 / D, c.c00 / D,  (c.c10 * c.c02 - c.c00 * c.c12) / D};
    expectInside(ownvi_WarpRect(forward, s.source()), c, s, f,
                 [&] { return call(f.back[affine], s, numbers(c), huxiInterSmoothEdge); });
  });
}

// Regions of a power of two and 1, so that every way of giving the map comes to exact coefficients.
TEST(WarpAffine, TheIdentityCopiesInEveryFormAndMode) {
  forScenes(3, 3, [](Rng&, const Member& f, Scene& s) {
    s.srcRoi = {0, 0, int(std::bit_floor(unsigned(s.src.size().width - 1))) + 1,
                int(std::bit_floor(unsigned(s.src.size().height - 1))) + 1};
    s.dstRoi = {0, 0, s.dst.size().width, s.dst.size().height};
    if (s.dstRoi.width < 2 || s.dstRoi.height < 2) return;  // of which the bilinear form refuses the image
    Picture expected = s.dst;
    for (int y = 0; y < std::min(s.srcRoi.height, s.dst.size().height); ++y)
      for (int x = 0; x < std::min(s.srcRoi.width, s.dst.size().width); ++x)
        for (int c = 0; c < f.channels(); ++c) expected.set(x, y, c, s.src.get(x, y, c));
    const Picture before = s.dst;
    const auto expectCopy = [&](const char* form, HuxStatus status) {
      // A vertex at 0 may come out next to it, which by the rule for nearly equal products is not equal.
      EXPECT_TRUE(status == huxStsOk || status == huxStsQuadNotAffineWarn) << form;
      EXPECT_TRUE(same(s.dst, expected)) << form;
      s.dst = before;
    };
    const AffineCoeffs a = {1, 0, 0, 0, 1, 0};
    const BilinearCoeffs b = {0, 1, 0, 0, 0, 0, 1, 0};
    const PerspectiveCoeffs p = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    const Hux64f* coeffs[] = {numbers(a), numbers(b), numbers(p)};
    const Quad quad = ownvi_WarpRect(a, s.source());
    for (Kind k : kKinds) {
      SCOPED_TRACE(k);
      expectCopy("forward", call(f.forward[k], s, coeffs[k]));
      expectCopy("back", call(f.back[k], s, coeffs[k]));
      expectCopy("quads", call(f.quads[k], s, quad, quad));
    }
    expectCopy("rotate", with(s, 0, f.rotate, 720, 0, 0));
    expectCopy("shear", with(s, 0, f.shear, 0, 0, 0, 0));
  });
}

TEST(WarpPerspective, ForwardSamplesByTheInverse) {
  forScenes(4, 12, [](Rng& rng, const Member& f, Scene& s) {
    const PerspectiveCoeffs c = perspectiveMap(rng, s);
    const Quad quad = ownvi_WarpRect(c, s.source());
    if (ownvi_CheckQuad(quad) < 0) return;
    expectInside(quad, adjugate(c), s, f, [&] { return call(f.forward[perspective], s, numbers(c)); });
  });
}

TEST(WarpPerspective, BehindTheHorizonPixelsInsideTheRegionAreLookedUp) {
  forScenes(5, 6, [](Rng& rng, const Member& f, Scene& s) {
    // The denominator is 0 on a line that crosses the image of the source region, in some turns on a pixel of it.
    const PerspectiveCoeffs c = {1, 0, real(rng, -2, 2), 0, 1, 0, between(rng, 0, 1) ? -0.25 : real(rng, -0.3, -0.1),
                                 0, 1};
    if (ownvi_CheckQuad(ownvi_WarpRect(adjugate(c), s.source())) >= 0) return;
    if (!ownvi_GetQuadrangleBound(ownvi_WarpRect(c, s.destination())).meets(s.source())) return;
    expectLookedUp(c, s, f, [&] { return call(f.back[perspective], s, numbers(c)); });
  });
}

TEST(WarpBilinear, BackLooksUpWhatLiesInTheSourceRegion) {
  forScenes(6, 8, [](Rng& rng, const Member& f, Scene& s) {
    const BilinearCoeffs c = {real(rng, -0.005, 0.005), real(rng, 0.3, 1.5),  real(rng, -0.2, 0.2), real(rng, -3, 3),
                              real(rng, -0.005, 0.005), real(rng, -0.2, 0.2), real(rng, 0.3, 1.5),  real(rng, -3, 3)};
    const Quad seen = ownvi_WarpRect(c, s.destination());
    const HuxStatus status = ownvi_CheckQuad(seen) < 0                          ? huxStsBadQuad
                             : ownvi_GetQuadrangleBound(seen).meets(s.source()) ? huxStsOk
                                                                                : huxStsQuadOutsideWarn;
    expectLookedUp(
        c, s, f, [&] { return call(f.back[bilinear], s, numbers(c)); }, status);
  });
}

// Where maps have no formula to repeat, an image whose values are their own coordinates tells where its pixels come
// from.
struct Located {
  Picture x, y;
};
template <class Call>
Located located(Scene& s, Call call) {
  const auto one = [&](bool column) {
    forPixels(s.src.size(), [&](int x, int y) { s.src.set(x, y, 0, column ? x : y); });
    forPixels(s.dst.size(), [&](int x, int y) { s.dst.set(x, y, 0, -1); });
    call();
    return s.dst;
  };
  return {one(true), one(false)};
}
// The point of a rectangle that a map carries to `to`, by Newton's method from the middle.
template <class Map>
Point inverseOf(const Map& map, const Box& box, Point to) {
  Point p = {(box.x1 + box.x2) / 2, (box.y1 + box.y2) / 2};
  for (int step = 0; step < 30; ++step) {
    constexpr Hux64f h = 1e-6;
    const Point at = map(p), right = map({p.x + h, p.y}), below = map({p.x, p.y + h});
    const Hux64f a = (right.x - at.x) / h, b = (below.x - at.x) / h, d = (right.y - at.y) / h, e = (below.y - at.y) / h;
    const Hux64f det = a * e - b * d, ex = to.x - at.x, ey = to.y - at.y;
    p.x += (e * ex - b * ey) / det, p.y += (a * ey - d * ex) / det;
  }
  return p;
}
// Pixels of the quadrangle come from where the box and the map tell, and those from outside the source region are
// untouched.
template <class Position>
void expectPositions(const Scene& s, const Located& found, const Quad& dstQuad, Position position) {
  Spans spans;
  if (!ownvi_ClipQuad(dstQuad, s.destination(), ownvi_CheckQuad(dstQuad), spans)) return;
  Box nearly = s.source(), within = nearly;
  nearly.x1 -= 1e-3, nearly.y1 -= 1e-3, nearly.x2 += 1e-3, nearly.y2 += 1e-3;
  within.x1 += 1e-3, within.y1 += 1e-3, within.x2 -= 1e-3, within.y2 -= 1e-3;
  for (Index y = spans.first; y <= spans.last; ++y)
    for (Index x = spans[y].left; x <= spans[y].right; ++x) {
      const Point p = position(Point{Hux64f(x), Hux64f(y)});
      if (!(p.x == p.x)) continue;  // too near to where two roots meet
      const Hux64f atX = found.x.get(int(x), int(y), 0), atY = found.y.get(int(x), int(y), 0);
      if (within.holds(p) || (nearly.holds(p) && atX != -1)) {
        ASSERT_NEAR(atX, p.x, 2e-3) << x << ", " << y;
        ASSERT_NEAR(atY, p.y, 2e-3) << x << ", " << y;
      } else if (!nearly.holds(p)) {
        ASSERT_EQ(atX, -1) << x << ", " << y;
      }
    }
}
// Calls body(rng, scene) on images of 32f_C1.
template <class Body>
void forLocated(int seed, int turns, Body body) {
  Rng rng(seed);
  const Member f = members()[12];
  for (int turn = 0; turn < turns; ++turn) {
    SCOPED_TRACE(turn);
    Scene s(rng, f, huxiInterLinear, turn);
    body(rng, f, s, turn);
    if (testing::Test::HasFatalFailure()) return;
  }
}
// A convex quadrangle about a rectangle, or that rectangle.
Quad quadAround(Rng& rng, HuxiSize size, Hux64f share, bool upright) {
  const Hux64f w = size.width - 1, h = size.height - 1;
  const auto off = [&](Hux64f extent) { return upright ? 0 : real(rng, -share, share) * extent; };
  return {{{off(w), off(h)}, {w + off(w), off(h)}, {w + off(w), h + off(h)}, {off(w), h + off(h)}}};
}

TEST(Warp, BilinearMapsAreInvertedAndQuadranglesJoined) {
  forLocated(7, 400, [](Rng& rng, const Member& f, Scene& s, int turn) {
    const BilinearCoeffs c = bilinearMap(rng, s);
    const Quad quad = ownvi_WarpRect(c, s.source());
    if (ownvi_CheckQuad(quad) >= 0) {
      const Located found = located(s, [&] { call(f.forward[bilinear], s, numbers(c)); });
      expectPositions(s, found, quad, [&](Point to) { return inverseOf(c, s.source(), to); });
    }
    const bool upright = turn % 3 == 0;
    const Quad from = quadAround(rng, s.src.size(), 0.2, upright),
               to = quadAround(rng, s.dst.size(), 0.3, turn % 5 == 0);
    if (ownvi_CheckQuad(from) < 0 || ownvi_CheckQuad(to) < 0) return;
    const Box unit = {0, 0, 1, 1};
    const auto through = [&](auto first, auto second) {
      return [=](Point p) { return second(inverseOf(first, unit, p)); };
    };
    Located found = located(s, [&] { call(f.quads[bilinear], s, from, to); });
    expectPositions(s, found, to,
                    through(ownvi_GetBilinearTransform(unit, to), ownvi_GetBilinearTransform(unit, from)));
    found = located(s, [&] { call(f.quads[perspective], s, from, to); });
    expectPositions(s, found, to,
                    through(ownvi_GetPerspectiveTransform(unit, to), ownvi_GetPerspectiveTransform(unit, from)));
  });
}

TEST(WarpAffine, QuadranglesGiveTheMapByThreeVertices) {
  forScenes(8, 8, [](Rng& rng, const Member& f, Scene& s) {
    const bool follows = between(rng, 0, 1);
    const Hux64f w = s.src.size().width - 1, h = s.src.size().height - 1;
    const AffineCoeffs shrink = {0.7, 0.1 * w / h, 0.1 * w, -0.1 * h / w, 0.6, 0.2 * h};
    const Quad from = ownvi_WarpRect(shrink, Box{0, 0, w, h});
    Quad to = ownvi_WarpRect(affineMap(rng, s), s.source());
    if (!follows) to[3].x += (to[3].x - to[2].x) * 0.4, to[3].y += (to[3].y - to[2].y) * 0.4;
    if (ownvi_CheckQuad(to) < 0) return;
    s.srcRoi = {0, 0, s.src.size().width, s.src.size().height};
    const auto map = [](const Quad& f, const Quad& t) {
      const Hux64f a = f[1].x - f[0].x, b = f[1].y - f[0].y, c = f[2].x - f[1].x, e = f[2].y - f[1].y;
      const Hux64f m = t[1].x - t[0].x, n = t[2].x - t[1].x, p = t[1].y - t[0].y, q = t[2].y - t[1].y;
      const Hux64f r = 1 / (a * e - c * b);
      AffineCoeffs k{(m * e - n * b) * r, (n * a - m * c) * r, 0, (e * p - b * q) * r, (q * a - p * c) * r, 0};
      k.c02 = t[2].x - k.c00 * f[2].x - k.c01 * f[2].y, k.c12 = t[2].y - k.c10 * f[2].x - k.c11 * f[2].y;
      return k;
    };
    const HuxiSize size = s.src.size();
    expectInside(
        to, map(to, from), s, f, [&] { return call(f.quads[affine], s, from, to); },
        follows ? kEverywhere : Box{-1e-7, -1e-7, size.width - 1 + 1e-7, size.height - 1 + 1e-7},
        follows ? huxStsOk : huxStsQuadNotAffineWarn);
  });
}

TEST(WarpAffine, OfAQuadrangleThatLeavesTheRegionTheRestIsWarped) {
  forLocated(9, 200, [](Rng& rng, const Member& f, Scene& s, int) {
    const AffineCoeffs c = affineMap(rng, s), turned = {0.9, 0.3, -2, -0.2, 1.1, 2};
    const Quad from =
        ownvi_WarpRect(turned, Box{0, 0, Hux64f(s.src.size().width - 1), Hux64f(s.src.size().height - 1)});
    Quad to;
    for (int k = 0; k < 4; ++k) to[k] = c(from[k]);
    const Located found = located(s, [&] { call(f.quads[affine], s, from, to); });
    expectPositions(s, found, to, [&](Point p) { return inverseOf(c, s.source(), p); });
  });
}

// Rotation and shear are affine warps by other names, but for quarter turns.
TEST(Rotate, AnyAngleAndShearAreAffineWarps) {
  forScenes(10, 4, [](Rng& rng, const Member& f, Scene& s) {
    const Hux64f angle = between(rng, 0, 2) ? real(rng, -400, 400) : 90.0 * between(rng, -5, 5), x = real(rng, 0, 20),
                 y = 3.5;
    const Picture before = s.dst;
    const auto compare = [&](HuxStatus status, const AffineCoeffs& c) {
      Scene again = s;
      again.dst = before;
      ASSERT_EQ(status, call(f.forward[affine], again, numbers(c), huxiInterSmoothEdge));
      ASSERT_TRUE(same(s.dst, again.dst));
      s.dst = before;
    };
    compare(with(s, huxiInterSmoothEdge, f.rotate, angle, x, y), rotation(reducedAngle(angle), x, y));
    compare(with(s, huxiInterSmoothEdge, f.shear, 0.3, -0.2, x, y), {1, 0.3, x, -0.2, 1, y});
    Hux64f xShift, yShift;
    huxiGetRotateShift(4.25, 7.5, angle, &xShift, &yShift);
    if (xShift != std::floor(xShift))
      compare(with(s, huxiInterSmoothEdge, f.rotateCenter, angle, 4.25, 7.5),
              rotation(reducedAngle(angle), xShift, yShift));
  });
}

TEST(Rotate, QuarterTurnsMovePixelsWhateverTheInterpolation) {
  forScenes(11, 12, [](Rng& rng, const Member& f, Scene& s) {
    const int quarter = between(rng, 1, 3), sx = between(rng, 0, 30), sy = between(rng, 0, 30);
    const auto map = [&](int x, int y) -> std::array<int, 2> {
      if (quarter == 1) return {y + sx, sy - x};
      if (quarter == 2) return {sx - x, sy - y};
      return {sx - y, x + sy};
    };
    Picture expected = s.dst;
    bool any = false;
    const Box source = s.source();
    for (int y = int(source.y1); y <= int(source.y2); ++y)
      for (int x = int(source.x1); x <= int(source.x2); ++x) {
        const auto [u, v] = map(x, y);
        if (!s.destination().holds({Hux64f(u), Hux64f(v)})) continue;
        any = true;
        for (int c = 0; c < f.channels(); ++c) expected.set(u, v, c, s.src.get(x, y, c));
      }
    const Hux64f angle = 90 * quarter + 360 * between(rng, -2, 2);
    ASSERT_EQ(f.rotate(s.src.argument(), s.src.size(), s.src.step(), s.srcRoi, s.dst.argument(), s.dst.step(), s.dstRoi,
                       angle, sx, sy, 99),
              any ? huxStsOk : huxStsNoOverlapWarn);
    ASSERT_TRUE(same(s.dst, expected));
  });
}

TEST(Warp, EdgesAreSmoothedBehindTheForwardForms) {
  forScenes(12, 2, [](Rng& rng, const Member& f, Scene& s) {
    const BilinearCoeffs b = bilinearMap(rng, s);
    const PerspectiveCoeffs p = perspectiveMap(rng, s);
    const AffineCoeffs a = affineMap(rng, s);
    const Hux64f* coeffs[] = {numbers(a), numbers(b), numbers(p)};
    const Quad quads[] = {ownvi_WarpRect(a, s.source()), ownvi_WarpRect(b, s.source()), ownvi_WarpRect(p, s.source())};
    for (Kind k : kKinds) {
      if (ownvi_CheckQuad(quads[k]) < 0) continue;
      Scene plain = s, smooth = s;
      if (call(f.forward[k], plain, coeffs[k]) != huxStsOk) continue;
      const auto blend = [&]<class T>(T) {
        Channels<T> channels{{}, f.planes > 1 ? f.planes : f.layout.stride, f.layout.stride, plain.dst.step()};
        for (int c = 0; c < channels.count; ++c)
          channels.first[c] = elements(reinterpret_cast<T*>(plain.dst.at(0, 0, c)));
        ownvi_SmoothBorder(channels, quads[k], s.destination(), ownvi_CheckQuad(quads[k]));
      };
      if (f.elementBytes == 1) blend(Hux8u());
      if (f.elementBytes == 2) blend(Hux16u());
      if (f.elementBytes == 4) blend(Hux32f());
      ASSERT_EQ(call(f.forward[k], smooth, coeffs[k], huxiInterSmoothEdge), huxStsOk);
      ASSERT_TRUE(same(smooth.dst, plain.dst)) << "kind " << k;
    }
  });
}

TEST(Warp, ChecksArgumentsThenTheMapThenTheRegions) {
  Rng rng(13);
  for (const Member& f : members()) {
    SCOPED_TRACE(f.name);
    Picture picture(rng, f, {4, 4});
    Arguments args(picture.memory);
    args.a = args.d = picture.argument();
    HuxiSize size = picture.size();
    HuxiRect part = {0, 0, 4, 4}, to = {0, 0, 4, 4};
    HuxiInterpolation mode = huxiInterNearest;
    AffineCoeffs a = {1, 0, 0, 0, 1, 0};
    BilinearCoeffs b = {0, 1, 0, 0, 0, 0, 1, 0};
    PerspectiveCoeffs p = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    Quad quad = ownvi_WarpRect(a, Box{0, 0, 3, 3}), other = quad, flat = quad;
    flat[2] = flat[3];
    // The arguments, then what breakMap says, then the regions and what breakRest says.
    const auto run = [&](auto call, bool examinesMode, auto breakMap, auto breakRest) {
      CheckOrder order(call);
      order.in(args, "ad").sizes(size).sizes(part).sizes(to).in(args, "AD");
      if (examinesMode) order.breaks(huxStsBadInterpolation, mode, huxiInterSuper | huxiInterSmoothEdge);
      for (int c = 0; f.planes > 1 && c < f.planes; ++c) order.nulls(picture.plane(c));
      breakMap(order);
      order.breaks(huxStsNoOverlapWarn, part.x, 4).breaks(huxStsNoOverlapWarn, part.y, 4);
      breakRest(order);
      order.run(picture.memory);
    };
    const auto with = [&](auto* fn, auto... map) {
      return fn(args.a, size, args.aStep, part, args.d, args.dStep, to, map..., mode);
    };
    const Hux64f* coeffs[] = {numbers(a), numbers(b), numbers(p)};
    for (Kind k : kKinds)
      for (bool back : {false, true})
        run([&] { return with((back ? f.back : f.forward)[k], coeffs[k]); }, true,
            [&](CheckOrder& order) {
              if (k == affine) order.breaks(huxStsBadQuad, a.c11, 0);
              if (k == perspective) order.breaks(huxStsBadQuad, p.c11, 0).breaks(huxStsBadQuad, p.c22, -1e-201);
              if (k == bilinear && back) order.breaks(huxStsBadQuad, b.c12, 0);
            },
            [&](CheckOrder& order) {
              if (!back) order.breaks(huxStsBadRect, part.width, 1).breaks(huxStsBadRect, part.height, 1);
              if (k != perspective && !back) order.breaks(huxStsQuadOutsideWarn, to.x, 9);
            });
    // No number is no small one: the map passes, and no position that it gives is looked up.
    p.c22 = std::numeric_limits<Hux64f>::quiet_NaN();
    EXPECT_EQ(with(f.back[perspective], coeffs[perspective]), huxStsOk);
    for (QuadFn* fn : f.quads)
      run(
          [&] {
            return fn(args.a, size, args.aStep, part, numbers(quad), args.d, args.dStep, to, numbers(other), mode);
          },
          true,
          [&](CheckOrder& order) { order.breaks(huxStsBadCoeffs, quad, flat).breaks(huxStsBadCoeffs, other, flat); },
          [&](CheckOrder& order) { order.breaks(huxStsQuadOutsideWarn, to.x, 9); });
    Hux64f xShift = 3;
    run([&] { return with(f.rotate, 180, xShift, 3); }, false, [](CheckOrder&) {},
        [&](CheckOrder& order) { order.breaks(huxStsNoOverlapWarn, xShift, 1e300); });
  }
}

// A quadrangle whose spans find no memory is nowhere to be seen; that of a part of the image is refused before.
TEST(WarpAffine, QuadranglesWithoutMemory) {
  forScenes(14, 1, [](Rng&, const Member& f, Scene& s) {
    s.srcRoi = {0, 0, s.src.size().width, s.src.size().height};
    s.dstRoi = {0, 0, s.dst.size().width, s.dst.size().height};
    const Quad quad = ownvi_WarpRect(AffineCoeffs{1, 0, 0, 0, 1, 0}, s.source());
    const auto refused = [&] {
      failAllocation(0);
      const HuxStatus status = call(f.quads[affine], s, quad, quad);
      stopFailing();
      return status;
    };
    EXPECT_EQ(refused(), huxStsQuadOutsideWarn);
    if (--s.srcRoi.width > 1) {
      EXPECT_EQ(refused(), huxStsNoMem);
    }
  });
}

}  // namespace
}  // namespace hux::test
