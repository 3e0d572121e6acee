// A quadrangle on the pixel grid: clipped to the destination, then one span of pixels for each row; and the pixels just
// outside its slanted edges, blended.
#pragma once

#include "core/rows.h"
#include "core/scratch.h"
#include "geometry/quad.h"

namespace hux {

// A convex polygon. Clipping a quadrangle at four sides, twice, leaves at most twelve vertices; the rest of the room is
// for polygons that rounding has bent, where a side can add one vertex for every two.
struct Polygon {
  int count = 0;
  std::array<Point, 96> at;

  Polygon() = default;
  explicit Polygon(const Quad& q) : count(4) { std::copy(q.begin(), q.end(), at.begin()); }
  Box bound() const;
};

// Clips to a box, whose edges belong to it; count 0 where nothing is left. A polygon that lies wholly inside stays as
// it is; another may start at a different vertex.
void ownvi_ClipPolygon(Polygon& polygon, const Box& box);

// The columns of one row, both inclusive; none where left is above right.
struct Span {
  Hux32s left, right;
};

// One span for each row from `first` to `last`.
class Spans {
 public:
  Index first = 0, last = -1;

  Spans() = default;
  Spans(const Spans&) = delete;
  ~Spans() { release(table_); }

  // Takes memory for these rows, whose spans are empty; false where there is none.
  bool take(Index firstRow, Index lastRow);
  bool noMemory() const { return noMemory_; }
  Span& operator[](Index row) const { return table_[row - first]; }

 private:
  Span* table_ = nullptr;
  bool noMemory_ = false;
};

// Fills the spans of a clipped polygon: `first` is the ceiling of its smallest y, `last` the floor of its largest. A
// pixel that lies less than 1e-14 outside an edge counts as inside. Spans do not leave the box.
void ownvi_FindPerimeter(const Polygon& polygon, int orientation, const Box& box, Spans& spans);

// The spans of a polygon that was clipped to the box, and of a quadrangle, which is clipped first. False where no pixel
// is left, and where there is no memory.
bool spansOf(const Polygon& clipped, int orientation, const Box& box, Spans& spans);
bool ownvi_ClipQuad(const Quad& quad, const Box& box, int orientation, Spans& spans);

// A destination by its channels, interleaved or planar: channel c of the pixel (x, y) is element x * stride of the row
// y * step bytes on from first[c].
template <class T>
struct Channels {
  std::array<Element<T>*, 4> first;
  int count;
  Index stride, step;

  Element<T>& at(int c, Index x, Index y) const { return advance(first[c], y * step)[x * stride]; }
};

// Blends into the destination, whose origin dst addresses, the pixels just outside the slanted edges of the quadrangle.
// Interleaved pixels are blended in all their channels, alpha included.
template <class T>
void ownvi_SmoothBorder(const Channels<T>& dst, const Quad& quad, const Box& box, int orientation);

}  // namespace hux
