// Clipping, spans and the smoothing of edges: what all forward warps share.
#include "geometry/spans.h"

#include <cmath>
#include <vector>

#include "support/image.h"

namespace hux::test {
namespace {

Quad anyConvex(Rng& rng, double scale) {
  for (;;) {
    Quad q;
    for (Point& p : q) p = {between(rng, -400, 1200) * scale, between(rng, -400, 1200) * scale};
    if (ownvi_CheckQuad(q) >= 0) return q;
  }
}

// How far inside a point lies, in the sense of the cross products: above 0 on the inner side of every edge.
double depth(const Quad& q, double x, double y) {
  const double sense = ownvi_CheckQuad(q) ? 1 : -1;
  double least = INFINITY;
  for (std::size_t k = 0; k < 4; ++k) {
    const Point a = q[k], b = q[(k + 1) % 4];
    const double cross = (b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x);
    least = std::min(least, sense * cross / std::hypot(b.x - a.x, b.y - a.y));
  }
  return least;
}

// Pixels on an edge are inside; where vertices are not whole, those next to an edge are left to rounding.
void expectSpans(const Quad& q, const Box& box, double margin) {
  Spans spans;
  const bool any = ownvi_ClipQuad(q, box, ownvi_CheckQuad(q), spans);
  for (int y = int(box.y1) - 2; y <= box.y2 + 2; ++y)
    for (int x = int(box.x1) - 2; x <= box.x2 + 2; ++x) {
      const bool inSpan = any && y >= spans.first && y <= spans.last && x >= spans[y].left && x <= spans[y].right;
      const double d = box.holds({double(x), double(y)}) ? depth(q, x, y) : -1;
      const bool onEdge = d == 0 && margin < 1e-12;
      if (onEdge || d > margin || d < -margin) {
        ASSERT_EQ(inSpan, d >= 0) << x << ", " << y << " depth " << d;
      }
    }
}

TEST(Spans, HoldThePixelsOfTheClippedQuadrangle) {
  Rng rng(1);
  for (int n = 0; n < 1500; ++n) {
    const Box box = cornersOf({between(rng, 0, 20), between(rng, 0, 20), between(rng, 1, 40), between(rng, 1, 30)});
    const bool whole = n % 2;
    expectSpans(whole ? anyConvex(rng, 1) : anyConvex(rng, 0.0437), box, whole ? 1e-13 : 1e-9);
    const double x = between(rng, 0, 30), y = between(rng, 0, 30), side = between(rng, 1, 20);
    expectSpans({{{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}}}, box, 1e-13);
  }
}

TEST(Spans, PixelsJustOutsideAnEdgeCountAsInside) {
  Spans spans;
  const Box box = cornersOf({0, 0, 100, 100});
  const double by = 4e-15;
  const auto isSpan = [&](double edge, int left, int right) {
    ASSERT_TRUE(ownvi_ClipQuad({{{edge, 0}, {10 - edge, 0}, {10 - edge, 5}, {edge, 5}}}, box, 1, spans));
    EXPECT_EQ(spans[3].left, left);
    EXPECT_EQ(spans[3].right, right);
  };
  isSpan(3 + by, 3, 7);
  isSpan(3 + 1e-12, 4, 6);
  // A span whose quadrangle lies between two columns is empty, and no row at all is no span.
  ASSERT_TRUE(ownvi_ClipQuad({{{3.2, 0}, {4.6, 8}, {4.6, 9}, {3.2, 1}}}, box, 1, spans));
  EXPECT_GT(spans[1].left, spans[1].right);
  EXPECT_FALSE(ownvi_ClipQuad({{{3.2, 0.2}, {8, 0.2}, {8, 0.8}, {3.2, 0.8}}}, box, 1, spans));
  EXPECT_FALSE(ownvi_ClipQuad({{{3.2, 0}, {3.8, 0}, {3.8, 8}, {3.2, 8}}}, box, 1, spans));
  // A polygon on the boundary's row is kept, with what lies between its first two vertices.
  ASSERT_TRUE(ownvi_ClipQuad({{{2, -5}, {8, -5}, {8, 0}, {2, 0}}}, box, 1, spans));
  EXPECT_EQ(spans.first, 0);
  EXPECT_EQ(spans.last, 0);
  EXPECT_EQ(spans[0].left, 2);
  EXPECT_EQ(spans[0].right, 8);
}

// Huge vertices make whatever they make, but nothing outside the box.
TEST(Spans, NeverLeaveTheBox) {
  Rng rng(2);
  const Box box = cornersOf({3, 5, 50, 40});
  const double sizes[] = {1e-310, 1e-3, 1, 30, 1e9, 1e17, 1e150, 1e300};
  for (int n = 0; n < 20000; ++n) {
    Quad q;
    for (Point& p : q)
      p = {(between(rng, 0, 8) - 4) * sizes[rng() % 8], (between(rng, 0, 8) - 4) * sizes[rng() % 8] + 7};
    Spans spans;
    if (!ownvi_ClipQuad(q, box, int(rng() % 2), spans)) continue;
    ASSERT_TRUE(spans.first >= 5 && spans.last <= 44 && spans.first <= spans.last);
    for (Index y = spans.first; y <= spans.last; ++y)
      ASSERT_TRUE(spans[y].left > spans[y].right || (spans[y].left >= 3 && spans[y].right <= 52));
  }
}

// The edges of the clipped polygon in order, the closing one last: each point on a slanted edge rewrites its outside
// pixel.
template <class T>
void smooth(Image& image, int channels, const Quad& quad, const Box& box, int orientation) {
  Polygon polygon(quad);
  ownvi_ClipPolygon(polygon, box);
  const int n = polygon.count;
  for (int k = 0; n >= 3 && k < n; ++k) {
    const Point p = polygon.at[k], q = polygon.at[(k + 1) % n];
    const double dx = q.x - p.x, dy = q.y - p.y;
    if (dx == 0 || dy == 0) continue;
    const bool steep = std::fabs(dy) > std::fabs(dx);
    const double from = steep ? std::min(p.y, q.y) : std::min(p.x, q.x);
    const double to = steep ? std::max(p.y, q.y) : std::max(p.x, q.x);
    for (int v = int(std::ceil(from)); v <= std::floor(to); ++v) {
      const double c = steep ? (v - p.y) * (dx / dy) + p.x : (v - p.x) * (dy / dx) + p.y;
      const bool up = steep ? (orientation == 0 && !(dy > 0)) || (orientation == 1 && dy > 0)
                            : !((orientation == 0 && !(dx > 0)) || (orientation == 1 && dx > 0));
      const double o = up ? std::ceil(c) : std::floor(c), i = up ? std::floor(c) : std::ceil(c);
      if (o == i || o < 0 || i < 0) continue;
      for (int ch = 0; ch < channels; ++ch) {
        const T in = steep ? image.get<T>(int(i), v, ch) : image.get<T>(v, int(i), ch);
        const T out = steep ? image.get<T>(int(o), v, ch) : image.get<T>(v, int(o), ch);
        const double sum = double(out) * std::fabs(c - o) + double(in) * std::fabs(c - i);
        const T value = std::is_integral_v<T> ? T(sum + 0.5) : T(sum);
        steep ? image.set(int(o), v, ch, value) : image.set(v, int(o), ch, value);
      }
    }
  }
}

template <class T>
void compareSmoothing(Rng& rng, int channels) {
  for (int n = 0; n < 60; ++n) {
    Image image(rng, 64, 48, channels * int(sizeof(T)));
    image.fill<T>([&] { return T(between(rng, 0, 255)); });
    Image expected = image;
    const Quad q = anyConvex(rng, 0.0731);
    const Box box = cornersOf({between(rng, 0, 10), between(rng, 0, 10), between(rng, 1, 54), between(rng, 1, 38)});
    smooth<T>(expected, channels, q, box, ownvi_CheckQuad(q));
    Channels<T> dst{{}, channels, channels, image.step()};
    for (int c = 0; c < channels; ++c) dst.first[c] = elements(image.data<T>()) + c;
    ownvi_SmoothBorder(dst, q, box, ownvi_CheckQuad(q));
    ASSERT_TRUE(same(image, expected));
  }
}

TEST(Spans, SmoothingBlendsThePixelsOutsideSlantedEdges) {
  Rng rng(3);
  compareSmoothing<Hux8u>(rng, 1);
  compareSmoothing<Hux16u>(rng, 4);
  compareSmoothing<Hux32f>(rng, 3);
}

}  // namespace
}  // namespace hux::test
