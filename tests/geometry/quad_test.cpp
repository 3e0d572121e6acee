// Quadrangles of rectangles under each kind of map, their boxes, and the maps that make them.
#include <cmath>
#include <functional>
#include <limits>

#include "huxi_geometry.h"
#include "support/image.h"

namespace hux::test {
namespace {

constexpr double kPi = 3.141592653589793;
using Vertices = std::array<std::array<double, 2>, 4>;
using Map = std::function<std::array<double, 2>(double, double)>;

double coefficient(Rng& rng) { return between(rng, -3000, 3000) / 1000.0; }
HuxiRect anyRect(Rng& rng) {
  return {between(rng, 0, 50), between(rng, 0, 50), between(rng, 1, 40), between(rng, 1, 40)};
}

// The definition of convexity: the turns at all vertices go one way, and none is straight on.
bool convex(const Vertices& v) {
  int left = 0, right = 0;
  for (std::size_t k = 0; k < 4; ++k) {
    const auto &p = v[(k + 3) % 4], &q = v[k], &r = v[(k + 1) % 4];
    const double turn = (q[0] - p[0]) * (r[1] - q[1]) - (r[0] - q[0]) * (q[1] - p[1]);
    left += turn<0, right += turn> 0;
  }
  return left == 4 || right == 4;
}

Vertices carried(HuxiRect r, const Map& map) {
  const double x2 = double(r.x) + r.width - 1, y2 = double(r.y) + r.height - 1;
  return {map(r.x, r.y), map(x2, r.y), map(x2, y2), map(r.x, y2)};
}

// A Quad and a Bound function bound to one set of arguments, against their map.
void compare(HuxiRect r, const std::function<HuxStatus(double (*)[2])>& quadOf,
             const std::function<HuxStatus(double (*)[2])>& boundOf, const Map& map, bool tested = true) {
  const Vertices expected = carried(r, map);
  const HuxStatus status = !tested || convex(expected) ? huxStsOk : huxStsBadQuad;
  double quad[4][2], bound[2][2];
  EXPECT_EQ(quadOf(quad), status);
  EXPECT_EQ(boundOf(bound), status);
  for (std::size_t k = 0; k < 4; ++k)
    for (std::size_t i = 0; i < 2; ++i) EXPECT_EQ(quad[k][i], expected[k][i]);
  for (std::size_t i = 0; i < 2; ++i) {
    const auto [low, high] = std::minmax({expected[0][i], expected[1][i], expected[2][i], expected[3][i]});
    EXPECT_EQ(bound[0][i], low);
    EXPECT_EQ(bound[1][i], high);
  }
}

TEST(Quad, RectanglesAreCarriedThroughEachMap) {
  Rng rng(1);
  for (int n = 0; n < 400; ++n) {
    const HuxiRect r = anyRect(rng);
    double a[2][3], b[2][4], p[3][3];
    for (auto& row : a) std::generate_n(row, 3, [&] { return coefficient(rng); });
    for (auto& row : b) std::generate_n(row, 4, [&] { return coefficient(rng); });
    for (auto& row : p) std::generate_n(row, 3, [&] { return coefficient(rng); });
    if (n % 4 == 0) a[0][1] = a[0][0], a[1][1] = a[1][0];  // singular
    compare(
        r, [&](auto* q) { return huxiGetAffineQuad(r, q, a); }, [&](auto* q) { return huxiGetAffineBound(r, q, a); },
        [&](double x, double y) {
          return std::array{(a[0][0] * x + a[0][1] * y) + a[0][2], (a[1][0] * x + a[1][1] * y) + a[1][2]};
        });
    compare(
        r, [&](auto* q) { return huxiGetBilinearQuad(r, q, b); },
        [&](auto* q) { return huxiGetBilinearBound(r, q, b); },
        [&](double x, double y) {
          std::array<double, 2> to;
          for (std::size_t i = 0; i < 2; ++i) to[i] = ((b[i][0] * x) * y + b[i][1] * x + b[i][2] * y) + b[i][3];
          return to;
        });
    compare(
        r, [&](auto* q) { return huxiGetPerspectiveQuad(r, q, p); },
        [&](auto* q) { return huxiGetPerspectiveBound(r, q, p); },
        [&](double x, double y) {
          double v[3];
          for (int i = 0; i < 3; ++i) v[i] = (p[i][0] * x + p[i][1] * y) + p[i][2];
          return std::array{v[0] / v[2], v[1] / v[2]};
        });
    compare(
        r, [&](auto* q) { return huxiGetShearQuad(r, q, a[0][0], a[0][1], a[0][2], a[1][0]); },
        [&](auto* q) { return huxiGetShearBound(r, q, a[0][0], a[0][1], a[0][2], a[1][0]); },
        [&](double x, double y) {
          return std::array{x + a[0][0] * y + a[0][2], a[0][1] * x + y + a[1][0]};
        });
  }
}

// Sine and cosine of an angle in degrees as the rotations take them.
std::array<double, 2> turn(double angle) {
  double a = angle - std::trunc(angle / 360) * 360;
  if (a < 0) a += 360;
  if (a == 90) return {1, 0};
  if (a == 180) return {0, -1};
  if (a == 270) return {-1, 0};
  return {std::sin(a / 180 * kPi), std::cos(a / 180 * kPi)};
}

TEST(Quad, RotationsReduceTheAngleAndAreExactAtQuarterTurns) {
  Rng rng(2);
  for (double angle : {0.0, 90.0, 180.0, 270.0, 360.0, 450.0, -90.0, -1e-20, 30.5, -123.25, 725.0, 1e15}) {
    SCOPED_TRACE(angle);
    const HuxiRect r = anyRect(rng);
    const double xs = coefficient(rng), ys = coefficient(rng);
    const auto [sin, cos] = turn(angle);
    compare(
        r, [&](auto* q) { return huxiGetRotateQuad(r, q, angle, xs, ys); },
        [&](auto* q) { return huxiGetRotateBound(r, q, angle, xs, ys); },
        [&, sin = sin, cos = cos](double x, double y) {
          return std::array{cos * x + sin * y + xs, -sin * x + cos * y + ys};
        },
        false);
    // The centre stays where it is.
    const double x = coefficient(rng) * 100, y = coefficient(rng) * 100;
    double dx, dy, sumX = xs, sumY = ys;
    ASSERT_EQ(huxiGetRotateShift(x, y, angle, &dx, &dy), huxStsOk);
    EXPECT_NEAR(cos * x + sin * y + dx, x, 1e-11);
    EXPECT_NEAR(-sin * x + cos * y + dy, y, 1e-11);
    ASSERT_EQ(huxiAddRotateShift(x, y, angle, &sumX, &sumY), huxStsOk);
    EXPECT_EQ(sumX, xs + dx);
    EXPECT_EQ(sumY, ys + dy);
  }
  double dx = 1, dy = 1;
  for (double angle : {0.0, -720.0}) {
    ASSERT_EQ(huxiGetRotateShift(0.1, 0.2, angle, &dx, &dy), huxStsOk);
    EXPECT_TRUE(dx == 0 && dy == 0);
  }
  ASSERT_EQ(huxiGetRotateShift(0.1, 0.2, -90, &dx, &dy), huxStsOk);
  EXPECT_TRUE(dx == 0.1 + 0.2 && dy == 0.2 - 0.1);
  EXPECT_EQ(huxiGetRotateShift(1, 2, 3, nullptr, &dy), huxStsNullPtr);
  EXPECT_EQ(huxiGetRotateShift(1, 2, 3, &dx, nullptr), huxStsNullPtr);
  EXPECT_EQ(huxiAddRotateShift(1, 2, 3, nullptr, &dy), huxStsNullPtr);
  EXPECT_EQ(huxiAddRotateShift(1, 2, 3, &dx, nullptr), huxStsNullPtr);
}

TEST(Quad, TransformsCarryTheRectangleOnToTheQuadrangle) {
  Rng rng(3);
  for (int n = 0; n < 600; ++n) {
    HuxiRect r = anyRect(rng);
    ++r.width, ++r.height;
    double q[4][2], quad[4][2], a[2][3], b[2][4], p[3][3];
    for (auto& v : q) std::generate_n(v, 2, [&] { return coefficient(rng) * 100; });
    if (n % 3 == 0) q[3][0] = q[0][0] + q[2][0] - q[1][0], q[3][1] = q[0][1] + q[2][1] - q[1][1];
    if (n % 7 == 0) q[1][0] = q[2][0], q[1][1] = q[2][1];
    Vertices v;
    for (std::size_t k = 0; k < 4; ++k) v[k] = {q[k][0], q[k][1]};
    if (!convex(v)) {
      a[0][0] = 1.5;
      EXPECT_EQ(huxiGetAffineTransform(r, q, a), huxStsBadCoeffs);
      EXPECT_EQ(huxiGetBilinearTransform(r, q, b), huxStsBadCoeffs);
      EXPECT_EQ(huxiGetPerspectiveTransform(r, q, p), huxStsBadCoeffs);
      EXPECT_EQ(a[0][0], 1.5);
      continue;
    }
    const auto near = [&](int vertices) {
      for (int k = 0; k < vertices; ++k)
        for (int i = 0; i < 2; ++i) EXPECT_NEAR(quad[k][i], q[k][i], 1e-6) << k;
    };
    const bool parallelogram = n % 3 == 0;
    EXPECT_EQ(huxiGetAffineTransform(r, q, a), parallelogram ? huxStsOk : huxStsQuadNotAffineWarn);
    EXPECT_EQ(huxiGetAffineQuad(r, quad, a), huxStsOk);
    near(parallelogram ? 4 : 3);
    EXPECT_EQ(a[0][2], q[0][0] - a[0][1] * r.y - a[0][0] * r.x);
    EXPECT_EQ(a[1][2], q[0][1] - a[1][0] * r.x - a[1][1] * r.y);
    EXPECT_EQ(huxiGetBilinearTransform(r, q, b), huxStsOk);
    EXPECT_EQ(huxiGetBilinearQuad(r, quad, b), huxStsOk);
    near(4);
    EXPECT_EQ(b[1][3], q[0][1] - b[1][1] * r.x - b[1][2] * r.y - b[1][0] * r.x * r.y);
    EXPECT_EQ(huxiGetPerspectiveTransform(r, q, p), huxStsOk);
    huxiGetPerspectiveQuad(r, quad, p);
    near(4);
    EXPECT_EQ(p[2][2], 1 - r.x * p[2][0] - r.y * p[2][1]);
  }
}

// The rectangle is judged before the quadrangle, the quadrangle before the rectangle's extent.
TEST(Quad, ChecksRectangleThenQuadrangleThenExtent) {
  const HuxiRect bad[] = {{-1, 0, 1, 1}, {0, -1, 1, 1}, {0, 0, 0, 1}, {0, 0, 1, 0}}, row = {0, 0, 5, 1},
                 column = {0, 0, 1, 5}, good = {0, 0, 5, 5};
  double quad[4][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}}, bound[2][2], bowTie[4][2] = {{0, 0}, {1, 1}, {1, 0}, {0, 1}};
  double a[2][3] = {{1, 0, 0}, {0, 1, 0}}, b[2][4] = {}, p[3][3] = {};
  const auto all = [&](HuxiRect r, const double(*q)[2], HuxStatus transform) {
    EXPECT_EQ(huxiGetAffineTransform(r, q, a), transform);
    EXPECT_EQ(huxiGetBilinearTransform(r, q, b), transform);
    EXPECT_EQ(huxiGetPerspectiveTransform(r, q, p), transform);
  };
  for (HuxiRect r : bad) {
    all(r, bowTie, huxStsBadSize);
    EXPECT_EQ(huxiGetAffineQuad(r, nullptr, nullptr), huxStsBadSize);
    EXPECT_EQ(huxiGetBilinearBound(r, nullptr, nullptr), huxStsBadSize);
    EXPECT_EQ(huxiGetPerspectiveBound(r, nullptr, nullptr), huxStsBadSize);
    EXPECT_EQ(huxiGetShearQuad(r, nullptr, 0, 0, 0, 0), huxStsBadSize);
    EXPECT_EQ(huxiGetRotateQuad(r, nullptr, 0, 0, 0), huxStsBadSize);
    EXPECT_EQ(huxiGetRotateBound(r, nullptr, 0, 0, 0), huxStsBadSize);
  }
  all(row, bowTie, huxStsBadCoeffs);
  all(row, quad, huxStsBadRect);
  all(column, quad, huxStsBadRect);
  all(good, quad, huxStsOk);
  EXPECT_EQ(huxiGetAffineBound({3, 4, 1, 1}, bound, a), huxStsBadQuad);
  EXPECT_EQ(huxiGetRotateBound({3, 4, 1, 1}, bound, 45, 0, 0), huxStsOk);
  quad[2][0] = std::numeric_limits<double>::quiet_NaN();
  all(good, quad, huxStsBadCoeffs);
}

}  // namespace
}  // namespace hux::test
