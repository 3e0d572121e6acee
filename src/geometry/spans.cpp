#include "geometry/spans.h"

#include <limits>

namespace hux {
namespace {

using Coordinate = Hux64f Point::*;

// One side of a clip: what lies beyond the bound goes. Where the extreme of the polygon shows that nothing does, the
// polygon stays as it is; otherwise the walk begins at vertex 1.
template <class Beyond>
void clipSide(Polygon& from, Polygon& to, Coordinate along, Coordinate other, Hux64f extreme, Hux64f bound,
              Beyond beyond) {
  if (!beyond(extreme, bound)) {
    to = from;
    return;
  }
  to.count = 0;
  const auto emit = [&](Point p) { to.at[to.count++] = p; };
  if (from.count > 0) from.at[from.count] = from.at[0];
  for (int k = 1; k <= from.count; ++k) {
    const Point p = from.at[k - 1], q = from.at[k];
    const Hux64f a = p.*along, b = q.*along;
    const bool aKept = beyond(bound, a), bKept = beyond(bound, b);
    if (!aKept && beyond(b, bound)) continue;
    if (b == bound || ((aKept || a == bound) && bKept)) {
      emit(q);
      continue;
    }
    Point crossing;
    crossing.*along = bound;
    crossing.*other = (bound - a) * (q.*other - p.*other) / (b - a) + p.*other;
    emit(crossing);
    if (bKept) emit(q);
  }
}

constexpr auto above = [](Hux64f a, Hux64f b) { return a > b; };
constexpr auto below = [](Hux64f a, Hux64f b) { return a < b; };

void ownvi_ClipUpper(Polygon& from, Polygon& to, Hux64f least, Hux64f bound) {
  clipSide(from, to, &Point::y, &Point::x, least, bound, below);
}
void ownvi_ClipLower(Polygon& from, Polygon& to, Hux64f most, Hux64f bound) {
  clipSide(from, to, &Point::y, &Point::x, most, bound, above);
}
void ownvi_ClipLeft(Polygon& from, Polygon& to, Hux64f least, Hux64f bound) {
  clipSide(from, to, &Point::x, &Point::y, least, bound, below);
}
void ownvi_ClipRight(Polygon& from, Polygon& to, Hux64f most, Hux64f bound) {
  clipSide(from, to, &Point::x, &Point::y, most, bound, above);
}

// A column or row number; what is not a number comes out lowest.
Hux32s wholeOf(Hux64f v) {
  using Limits = std::numeric_limits<Hux32s>;
  return v >= Limits::max() ? Limits::max() : v > Limits::min() ? Hux32s(v) : Limits::min();
}

// One of the two chains of edges that run down from the top vertex.
struct Chain {
  int end;
  Point from{};
  Hux64f slope = 0;

  // On to the next edge that has an extent in y; false where there is none before the other chain's end.
  bool advance(const Polygon& polygon, int direction, int otherEnd) {
    for (;;) {
      from = polygon.at[end];
      end += direction;
      if (end < 0) end = polygon.count - 1;
      if (end == polygon.count) end = 0;
      const Point to = polygon.at[end];
      if (to.y != from.y) {
        slope = (to.x - from.x) / (to.y - from.y);
        return true;
      }
      if (end == otherEnd) return false;
    }
  }
  Hux64f x(Hux64f y) const { return (y - from.y) * slope + from.x; }
};

}  // namespace

Box Polygon::bound() const {
  Box b{at[0].x, at[0].y, at[0].x, at[0].y};
  for (int k = 1; k < count; ++k) {
    const Point p = at[k];
    b.x1 = std::min(b.x1, p.x), b.x2 = std::max(b.x2, p.x);
    b.y1 = std::min(b.y1, p.y), b.y2 = std::max(b.y2, p.y);
  }
  return b;
}

void ownvi_ClipPolygon(Polygon& polygon, const Box& box) {
  const Box b = polygon.bound();
  if (!b.meets(box)) {
    polygon.count = 0;
    return;
  }
  if (b.x1 >= box.x1 && b.y1 >= box.y1 && b.x2 <= box.x2 && b.y2 <= box.y2) return;
  Polygon other;
  ownvi_ClipUpper(polygon, other, b.y1, box.y1);
  ownvi_ClipLower(other, polygon, b.y2, box.y2);
  ownvi_ClipLeft(polygon, other, b.x1, box.x1);
  ownvi_ClipRight(other, polygon, b.x2, box.x2);
  // A vertex that repeats the one before it goes; the last and the first are not compared.
  int kept = 0;
  for (int k = 0; k < polygon.count; ++k) {
    const Point p = polygon.at[k];
    if (k > 0 && p.x == polygon.at[kept - 1].x && p.y == polygon.at[kept - 1].y) continue;
    polygon.at[kept++] = p;
  }
  polygon.count = kept;
}

bool Spans::take(Index firstRow, Index lastRow) {
  const Index count = lastRow - firstRow + 1;
  release(table_);
  table_ = static_cast<Span*>(allocate(std::size_t(count) * sizeof(Span)));
  noMemory_ = !table_;
  if (noMemory_) return false;
  first = firstRow, last = lastRow;
  std::fill_n(table_, count, Span{0, -1});
  return true;
}

void ownvi_FindPerimeter(const Polygon& polygon, int orientation, const Box& box, Spans& spans) {
  const auto& at = polygon.at;
  const int n = polygon.count;
  int top = 0;
  for (int k = 1; k < n; ++k)
    if (at[k].y < at[top].y) top = k;
  // The box holds the polygon but for what overflow makes of huge coordinates.
  const auto store = [&](Index row, Hux64f left, Hux64f right) {
    spans[row] = {wholeOf(std::max(box.x1, left)), wholeOf(std::min(right, box.x2))};
    if (!(left <= right)) spans[row] = {0, -1};
  };
  if (n == 1) {
    store(spans.first, std::floor(at[0].x), std::floor(at[0].x));
    return;
  }
  // What a polygon keeps whose vertices lie on one row, drawn from vertices 0 and 1 whichever the top one is.
  store(spans.first, std::ceil(std::min(at[0].x, at[1].x)), std::floor(std::max(at[0].x, at[1].x)));

  Chain a{top}, b{top};
  Index row = spans.first;
  do {
    const Hux64f ya = at[a.end].y, yb = at[b.end].y;
    if (!(yb < ya) && !a.advance(polygon, -1, b.end)) return;
    if (!(ya < yb) && !b.advance(polygon, 1, a.end)) return;
    const Hux64f down = std::floor(std::min(at[a.end].y, at[b.end].y));
    for (; row <= spans.last && Hux64f(row) <= down; ++row) {
      const Hux64f xa = a.x(Hux64f(row)), xb = b.x(Hux64f(row));
      const Hux64f left = orientation ? xa : xb, right = orientation ? xb : xa;
      const Hux64f leftUp = std::ceil(left), rightDown = std::floor(right);
      store(row, left + 1 - leftUp < 1e-14 ? leftUp - 1 : leftUp,
            1 - right + rightDown < 1e-14 ? rightDown + 1 : rightDown);
    }
  } while (a.end != b.end);
}

bool spansOf(const Polygon& clipped, int orientation, const Box& box, Spans& spans) {
  if (clipped.count < 1) return false;
  const Box b = clipped.bound();
  const Hux64f first = std::max(std::ceil(b.y1), box.y1), last = std::min(std::floor(b.y2), box.y2);
  if (!(first <= last) || !(std::ceil(b.x1) <= std::floor(b.x2))) return false;
  if (!spans.take(Index(first), Index(last))) return false;
  ownvi_FindPerimeter(clipped, orientation, box, spans);
  return true;
}

bool ownvi_ClipQuad(const Quad& quad, const Box& box, int orientation, Spans& spans) {
  Polygon polygon(quad);
  ownvi_ClipPolygon(polygon, box);
  return spansOf(polygon, orientation, box, spans);
}

namespace {

// The outside pixel and the inside one, weighted by their distances from the edge.
template <class T>
void ownvi_SmoothPel(const Channels<T>& dst, Index xOut, Index yOut, Index xIn, Index yIn, Hux64f out, Hux64f in) {
  for (int c = 0; c < dst.count; ++c) {
    Element<T>& outside = dst.at(c, xOut, yOut);
    const Hux64f sum = Hux64f(T(outside)) * out + Hux64f(T(dst.at(c, xIn, yIn))) * in;
    outside = std::is_integral_v<T> ? T(sum + 0.5) : T(sum);
  }
}

}  // namespace

template <class T>
void ownvi_SmoothBorder(const Channels<T>& dst, const Quad& quad, const Box& box, int orientation) {
  Polygon polygon(quad);
  ownvi_ClipPolygon(polygon, box);
  if (polygon.count < 3) return;
  // Walks the whole numbers of one coordinate along an edge, c being the other one.
  const auto walk = [&](Point p, Point q, Coordinate along, Coordinate across, bool ceilingOutside) {
    const Hux64f slope = (q.*across - p.*across) / (q.*along - p.*along);
    const Hux64f least = std::max(std::ceil(std::min(p.*along, q.*along)), along == &Point::x ? box.x1 : box.y1);
    const Hux64f most = std::min(std::floor(std::max(p.*along, q.*along)), along == &Point::x ? box.x2 : box.y2);
    const Hux64f low = across == &Point::x ? box.x1 : box.y1, high = across == &Point::x ? box.x2 : box.y2;
    for (Hux64f v = least; v <= most; v += 1) {
      const Hux64f c = (v - p.*along) * slope + p.*across;
      const Hux64f floor = std::floor(c), ceiling = std::ceil(c);
      // Rounding may put a point of the destination's own edge a little beyond it.
      if (floor == ceiling || !(floor >= low) || !(ceiling <= high)) continue;
      const Hux64f o = ceilingOutside ? ceiling : floor, i = ceilingOutside ? floor : ceiling;
      const Hux64f out = std::fabs(c - o), in = std::fabs(c - i);
      if (across == &Point::x)
        ownvi_SmoothPel(dst, Index(o), Index(v), Index(i), Index(v), out, in);
      else
        ownvi_SmoothPel(dst, Index(v), Index(o), Index(v), Index(i), out, in);
    }
  };
  for (int k = 0; k < polygon.count; ++k) {
    const Point p = polygon.at[k], q = polygon.at[(k + 1) % polygon.count];
    const Hux64f dx = q.x - p.x, dy = q.y - p.y;
    if (dx == 0 || dy == 0) continue;
    if (std::fabs(dy) > std::fabs(dx))
      walk(p, q, &Point::y, &Point::x, (orientation == 1) == (dy > 0));
    else
      walk(p, q, &Point::x, &Point::y, (orientation == 1) != (dx > 0));
  }
}

template void ownvi_SmoothBorder(const Channels<Hux8u>&, const Quad&, const Box&, int);
template void ownvi_SmoothBorder(const Channels<Hux16u>&, const Quad&, const Box&, int);
template void ownvi_SmoothBorder(const Channels<Hux32f>&, const Quad&, const Box&, int);

}  // namespace hux
