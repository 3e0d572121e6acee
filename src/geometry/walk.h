// The walk over the pixels of a destination, span by span: positions from a map, pixels from a sampler.
//
// A map is a small type that is taken by value and gives the positions of `rows` rows side by side:
//   static constexpr int rows;        how many
//   static constexpr bool straight;   whether the coordinates of a row grow, or fall, from pixel to pixel, and are not
//                                     numbers from some pixel on, so that its ends tell what lies between
//   void start(int r, Index left);    row r of these begins at this column; called for each row from top to bottom
//   void fill(Positions (&)[rows], Index n);  the next n positions of each, n up to kBlock
#pragma once

#include <algorithm>

#include "core/rows.h"
#include "geometry/sampler.h"
#include "geometry/spans.h"
#include "lanes/lanes.h"
#include "lanes/lanes_math.h"

namespace hux {

// Quantities that grow by addition along a row, as positions of warps do: a sum waits for the one before it, but rows
// do not wait for each other, so that some stand side by side as lanes.
template <int K>
struct Chains {
  static constexpr int rows = 8;
  Hux64f value[K][rows] = {}, step[K][rows] = {};

  // The next n values of quantity q of row r to at(q, r), which has room for a whole block.
  template <class At>
  void run(Index n, At at) {
    using V = Lanes<Hux64f, 4>;
    constexpr int groups = rows / 4;
    V v[K][groups], by[K][groups];
    for (int q = 0; q < K; ++q)
      for (int g = 0; g < groups; ++g)
        v[q][g] = loadLanes<V>(&value[q][4 * g]), by[q][g] = loadLanes<V>(&step[q][4 * g]);
    for (Index k = 0; k < n; k += 4)
      for (int q = 0; q < K; ++q)
        for (int g = 0; g < groups; ++g) {
          const V s = by[q][g], v0 = v[q][g], v1 = v0 + s, v2 = v1 + s, v3 = v2 + s;
          v[q][g] = v3 + s;
          const V a = __builtin_shufflevector(v0, v1, 0, 4, 2, 6), b = __builtin_shufflevector(v0, v1, 1, 5, 3, 7);
          const V c = __builtin_shufflevector(v2, v3, 0, 4, 2, 6), d = __builtin_shufflevector(v2, v3, 1, 5, 3, 7);
          storeLanes(at(q, 4 * g) + k, __builtin_shufflevector(a, c, 0, 1, 4, 5));
          storeLanes(at(q, 4 * g + 1) + k, __builtin_shufflevector(b, d, 0, 1, 4, 5));
          storeLanes(at(q, 4 * g + 2) + k, __builtin_shufflevector(a, c, 2, 3, 6, 7));
          storeLanes(at(q, 4 * g + 3) + k, __builtin_shufflevector(b, d, 2, 3, 6, 7));
        }
    for (int q = 0; q < K; ++q)
      for (int g = 0; g < groups; ++g) storeLanes(&value[q][4 * g], v[q][g]);
  }
};

// Rows that all have the same span.
struct WholeRows {
  Index first, last;
  Span span;

  explicit WholeRows(HuxiRect r)
      : first(r.y),
        last(Index(r.y) + r.height - 1),
        span{r.x, Hux32s(std::min<Index>(Index(r.x) + r.width - 1, 0x7fffffff))} {}
  Span operator[](Index) const { return span; }
};

namespace detail {

// Whether the box holds all of n positions; it holds none that is not a number.
inline bool holdsAll(const Box& box, const Hux64f* x, const Hux64f* y, Index n) {
  using V = Lanes<Hux64f, laneCount<Hux64f>>;
  constexpr int lanes = lanesIn<V>;
  const V x1 = splat<V>(box.x1), y1 = splat<V>(box.y1), x2 = splat<V>(box.x2), y2 = splat<V>(box.y2);
  auto outside = x1 != x1;
  const auto look = [&](V x, V y) { outside |= ~((x >= x1) & (x <= x2) & (y >= y1) & (y <= y2)); };
  Index k = 0;
  for (; k + lanes <= n; k += lanes) look(loadLanes<V>(x + k), loadLanes<V>(y + k));
  if (k < n) look(loadLanes<V>(x + k, int(n - k), box.x1), loadLanes<V>(y + k, int(n - k), box.y1));
  return !any(outside);
}

}  // namespace detail

// Samples the pixels of the spans whose positions the box holds, and leaves all others. The origin of the destination
// is the pixel (0, 0).
template <class Spans, class Map>
void walkSpans(const Spans& spans, const Image<std::byte>& dst, const Format& format, Map map, const Box& box,
               const Sampler& sample) {
  constexpr int rows = Map::rows;
  const Index pixelBytes = format.pixelBytes();
  Positions block[rows];
  for (Index y = spans.first; y <= spans.last; y += rows) {
    const int count = int(std::min<Index>(rows, spans.last - y + 1));
    Index length[rows], longest = 0;
    std::array<std::byte*, 4> row[rows];
    for (int r = 0; r < count; ++r) {
      const Span span = spans[y + r];
      map.start(r, span.left);
      length[r] = Index(span.right) - span.left + 1;
      longest = std::max(longest, length[r]);
      row[r] = dst.plane;
      for (int c = 0; c < format.planes; ++c) row[r][c] += (y + r) * dst.step + span.left * pixelBytes;
    }
    for (Index at = 0; at < longest; at += kBlock) {
      map.fill(block, std::min(kBlock, longest - at));
      for (int r = 0; r < count; ++r) {
        const Index n = std::min(kBlock, length[r] - at);
        if (n <= 0) continue;
        const Hux64f *x = block[r].x, *y = block[r].y;
        const auto run = [&](Index first, Index n) {
          std::array<std::byte*, 4> to = row[r];
          for (int c = 0; c < format.planes; ++c) to[c] += (at + first) * pixelBytes;
          sample(x + first, y + first, n, to);
        };
        const auto holds = [&](Index k) { return box.holds({x[k], y[k]}); };
        if (Map::straight ? holds(0) && holds(n - 1) : detail::holdsAll(box, x, y, n)) {
          run(0, n);
          continue;
        }
        for (Index k = 0, first = 0; k < n; first = k) {
          const bool held = holds(first);
          while (k < n && holds(k) == held) ++k;
          if (held) run(first, k - first);
        }
      }
    }
  }
}

}  // namespace hux
