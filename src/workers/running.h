// Running sums of a window: a window's sum is that of its neighbour, with what enters added and what leaves taken off,
// so that its cost does not grow with the mask.
//
// Columns come first: for each element of a row, the sum of the window's rows there, moved on from row to row. Along
// the row the sums of columns are added up, by one of two ways. Where any order of additions is exact (integers, which
// may wrap, and floats that stay below 2^24) a vector adds up its neighbours at once: windowSums. Where the order is
// told, each row is a lane, and many rows are added up side by side: windowSumsInOrder.
#pragma once

#include <algorithm>
#include <array>
#include <bit>

#include "core/fetch.h"
#include "core/rows.h"
#include "core/window.h"
#include "lanes/row_lanes.h"
#include "lanes/scan.h"
#include "lanes/unrolled.h"

namespace hux {

// The first `count` lanes from a row's end; `ahead` elements of the row stand before p. Nothing else is read.
template <class V, class T>
V loadEnd(const Element<T>* p, int count, Index ahead) {
  constexpr int lanes = lanesIn<V>;
  if (count == 0 || ahead + count < lanes) return loadLanes<V>(p, count, 0);
  T around[2 * lanes] = {};
  storeLanes(around, loadLanes<V>(p + count - lanes));
  return loadLanes<V>(around + lanes - count);
}

// The sums of columns, as integers S, each the sum of the elements of `height` rows.
template <class S>
class ColumnSums {
 public:
  static constexpr int lanes = laneCount<S>;
  // Behind the last column there is room for what whole vectors read beyond it.
  static Index room(Index columns) { return columns + 4 * laneCount<Hux8u>; }

  ColumnSums(S* sums, Index columns) : sums_(sums), columns_(columns) {
    std::fill_n(sums + columns, room(columns) - columns, S(0));
  }
  const S* get() const { return sums_; }

  template <class T>
  void start(Window<T> window, Index height, S bias) {
    std::fill_n(sums_, columns_, S(S(height) * bias));
    for (Index j = 0; j < height; ++j) eachVector<T>([](V sum, auto row) { return sum + convert<S>(row); }, window[j]);
  }
  template <class T>
  void move(const Element<T>* entering, const Element<T>* leaving) {
    eachVector<T>([](V sum, auto in, auto out) { return sum + (convert<S>(in) - convert<S>(out)); }, entering, leaving);
  }

 private:
  using V = Lanes<S, lanes>;

  // The last vector reaches back over columns that others move too: it is taken from the sums as they were.
  template <class T, class Rule, class... Row>
  void eachVector(Rule rule, const Row*... row) {
    using VT = Lanes<T, lanes>;
    if (columns_ < lanes) {
      const int count = int(columns_);
      storeLanes(sums_, rule(loadLanes<V>(sums_), loadLanes<VT>(row, count, 0)...));
      return;
    }
    const Index end = columns_ - lanes;
    const V last = rule(loadLanes<V>(sums_ + end), loadLanes<VT>(row + end)...);
    for (Index j = 0; j < end; j += lanes)
      storeLanes(sums_ + j, rule(loadLanes<V>(sums_ + j), loadLanes<VT>(row + j)...));
    storeLanes(sums_ + end, last);
  }

  S* sums_;
  Index columns_;
};

template <class C>
struct Plain {
  using Type = C;
};
template <class T>
struct Plain<Element<T>> {
  using Type = T;
};
template <class C>
using PlainType = typename Plain<C>::Type;

// Window sums S along a row, in any order: store(x, sums, count) takes those of the elements [x, x + count) in lanes,
// for n elements in all. `Padded` columns may be read as far as vectors reach; others not beyond the last window.
template <int N, class S, bool Padded, class C, class Store>
void windowSums(const C* columns, Index mask, Index n, Store store) {
  constexpr int lanes = laneCount<S>;
  using V = Lanes<S, lanes>;
  S first[N] = {};
  for (Index k = 0; k < mask; ++k)
    for (int c = 0; c < N; ++c) first[c] = S(first[c] + S(columns[k * N + c]));
  V carried{};  // the sums of the pixel that comes next, in every lane of its channel
  for (int i = 0; i < lanes; ++i) carried[i] = first[i % N];

  using VT = Lanes<PlainType<C>, lanes>;
  const C *leaving = columns, *entering = columns + mask * N;
  const auto step = [&](Index x, VT in, VT out, int count) {
    const V change = convert<S>(in) - convert<S>(out);
    const V totals = runningTotals<N>(change);
    store(x, V(carried + (totals - change)), count);
    carried = lanes % N == 0 ? V(carried + lastPixel<N>(totals)) : lastPixel<N>(V(carried + totals));
  };
  Index x = 0;
  for (; x + lanes <= (Padded ? n : n - N); x += lanes)
    step(x, loadLanes<VT>(entering + x), loadLanes<VT>(leaving + x), lanes);
  for (; x < n; x += lanes) {
    const int count = int(std::min<Index>(lanes, n - x));
    if constexpr (Padded) {
      step(x, loadLanes<VT>(entering + x), loadLanes<VT>(leaving + x), count);
    } else {
      // The last pixel's sum needs no successor.
      const int in = int(std::clamp<Index>(n - N - x, 0, lanes));
      step(x, loadEnd<VT>(entering + x, in, x + mask * N), loadEnd<VT>(leaving + x, in, x), count);
    }
  }
}

// Rows side by side, in so many vectors that none waits for the addition before it. Lines are pieces of those rows: the
// rows of an image are gone through piece by piece, since many of them at once do not fit the ways of a cache.
inline constexpr int kOrderedLanes = laneCount<Hux32f>;
using OrderedLanes = Lanes<Hux32f, kOrderedLanes>;
template <int N>
inline constexpr int kRowsInOrder = N == 4 ? std::max(kOrderedLanes, 8) : 2 * kOrderedLanes;
template <int N>
inline constexpr int kOrderedPiece = (N == 3   ? 6
                                      : N == 4 ? 8
                                               : 4) *
                                     kOrderedLanes;
template <int N>
using OrderedLines = Hux32f[kRowsInOrder<N>][kOrderedPiece<N>];

// What windowSumsInOrder needs of work memory, in floats: a power of two of columns of its rows.
template <int N>
constexpr Index orderedColumns(Index mask) {
  return Index(std::bit_ceil(std::size_t(mask * N + 2 * kOrderedPiece<N>)));
}
template <int N>
constexpr Index orderedRoom(Index mask) {
  return orderedColumns<N>(mask) * kRowsInOrder<N>;
}

// Window sums of kRowsInOrder<N> rows in the told order: the first of each row and channel from left to right, each
// further one by rule(sum, entering, leaving). make(j, count, lines) gives the elements [j, j + count) of the rows;
// take(x, count, lines) takes their window sums, likewise.
//
// A vector holds one element of as many rows as it has lanes; of four channels a pixel of a quarter of them, so that
// but the parts of vectors have to be transposed.
template <int N, class Rule, class Make, class Take>
void windowSumsInOrder(Hux32f* room, Index columns, Index mask, Rule rule, Make make, Take take) {
  using V = OrderedLanes;
  constexpr int lanes = kOrderedLanes, piece = kOrderedPiece<N>;
  // Vectors of `wide` elements and `rows` rows, of which there are `sets`. In a turn, each goes on by `block` elements.
  constexpr int wide = N == 4 ? 4 : 1, rows = lanes / wide, sets = kRowsInOrder<N> / rows;
  constexpr int channels = N / wide, block = N == 3 ? 3 * lanes : lanes, steps = block / wide;
  const Index reach = (mask - 1) * N, n = columns - reach, around = orderedColumns<N>(mask) - 1;
  const auto column = [=](Index j, int set) HUX_INLINE { return room + (j & around) * kRowsInOrder<N> + set * lanes; };
  const auto turned = [](V(&square)[rows]) HUX_INLINE {
    if constexpr (wide == 4)
      transposeParts(square);
    else
      transpose(square);
  };
  OrderedLines<N> lines;
  V sum[sets][channels] = {};
  for (Index x = 0, made = 0; x < n; x += piece) {
    // The columns that this piece enters, each row's lanes beside the others'.
    for (const Index needed = std::min(columns, x + piece + reach); made < needed; made += piece) {
      make(made, int(std::min<Index>(piece, columns - made)), lines);
      for (int k = 0; k < piece; k += lanes)
        unrolled<sets>([&](auto s) HUX_INLINE {
          V square[rows];
          unrolled<rows>([&](auto r) HUX_INLINE { square[r] = loadLanes<V>(lines[s * rows + r] + k); });
          turned(square);
          unrolled<rows>([&](auto r) HUX_INLINE { storeLanes(column(made + k + r * wide, s), V(square[r])); });
        });
    }
    if (x == 0)
      for (Index j = 0; j < mask * channels; ++j)
        for (int s = 0; s < sets; ++s) {
          const V next = loadLanes<V>(column(j * wide, s));
          V& total = sum[s][j % channels];
          total = j < channels ? next : V(total + next);
        }
    for (int k = 0; k < piece; k += block) {
      V out[sets][steps];
      unrolled<steps>([&](auto e) HUX_INLINE {
        unrolled<sets>([&](auto s) HUX_INLINE {
          V& total = sum[s][e % channels];
          // The first sums stand as they are.
          if (e >= channels || x + k > 0)
            total = rule(total, loadLanes<V>(column(x + k + e * wide + reach, s)),
                         loadLanes<V>(column(x + k + e * wide - N, s)));
          out[s][e] = total;
        });
      });
      unrolled<sets * steps / rows>([&](auto i) HUX_INLINE {
        constexpr int s = i / (steps / rows), first = i % (steps / rows) * rows;
        V square[rows];
        unrolled<rows>([&](auto r) HUX_INLINE { square[r] = out[s][first + r]; });
        turned(square);
        unrolled<rows>([&](auto r) HUX_INLINE { storeLanes(lines[s * rows + r] + k + first * wide, V(square[r])); });
      });
    }
    take(x, int(std::min<Index>(piece, n - x)), lines);
  }
}

}  // namespace hux
