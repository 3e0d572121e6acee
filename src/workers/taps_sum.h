// Sums of taps times the pixels of a window. The pixels are taken from the window's top left on, row by row, and the
// taps from the last one back, so that a kernel is flipped; a sum starts from 0 and takes the products in this order.
//
// The work is cut into tiles of a few vectors in a few rows, whose sums stay in registers while the window goes by:
// each vector of pixels serves all rows of the tile. Every output has a sum of its own, so that tiles do not show.
// Elements of all layouts are treated alike, but that the pixels of a window lie `neighbour` elements apart.
#pragma once

#include <algorithm>
#include <array>
#include <limits>

#include "core/team.h"
#include "core/window.h"
#include "lanes/byte_pairs.h"
#include "lanes/held.h"
#include "lanes/lanes.h"

namespace hux {

template <class K>
struct Taps {
  const Element<K>* first;
  HuxiSize size;

  Index count() const { return Index(size.width) * size.height; }
  // The tap over row j and column i of the window; that of the next column lies before it.
  const Element<K>* over(Index j, Index i) const { return first + (count() - 1 - j * size.width - i); }
};

namespace detail {

// The window rows under a tile, from its first element on: the columns from `column` on, as many as are asked for.
template <class T>
struct OpenRows {
  static constexpr Index columns = std::numeric_limits<Index>::max() / 2;  // at a time
  Window<T> window;
  Index first, neighbour;

  const Element<T>* operator()(Index row, Index column, Index, int = 0) {
    return window[row] + first + column * neighbour;
  }
};

// The same where whole vectors would read behind the window: the columns are brought to memory of ours. The taps of one
// or two rows can be at work at a time.
template <class T, int Elements>
struct FencedRows {
  static constexpr Index columns = 16;
  Window<T> window;
  Index first, neighbour, elements;  // of the tile, those that are computed
  Element<T> lines[2][Elements + columns * 4] = {};

  const Element<T>* operator()(Index row, Index column, Index n, int line = 0) {
    std::memcpy(lines[line], window[row] + first + column * neighbour,
                std::size_t(elements + (n - 1) * neighbour) * sizeof(T));
    return lines[line];
  }
};

// What of a tile is stored: its first `count` elements, without those of alpha.
struct TilePart {
  Index count;
  bool alpha;
};

// Where the part is not the whole tile.
template <class D>
[[gnu::noinline]] void storePart(const Element<D>* values, Element<D>* dst, TilePart part) {
  if (!part.alpha) return void(std::memcpy(dst, values, std::size_t(part.count) * sizeof(D)));
  for (Index i = 0; i < part.count; i += 4) std::memcpy(dst + i, values + i, 3 * sizeof(D));
}

}  // namespace detail

// How many rows a tile has, where there are as many: what the registers have room for.
inline constexpr int kTileRows = kLaneBytes == 64 ? 4 : 2;

// Products of elements T and taps K in single precision, where each product and each sum is rounded; or, for A
// unsigned, modulo 2^32.
template <class T, class K, class A>
class PlainProducts {
 public:
  using AnyWidth = PlainProducts;
  static constexpr int lanes = laneCount<A>;
  template <int R>
  static constexpr int vectors = R == 1 ? 8 : 4;
  template <int R>
  static constexpr int elements = vectors<R>* lanes;
  template <int R>
  using Sums = Lanes<A, lanes>[R][vectors<R>];

  PlainProducts(Taps<K> taps, Index neighbour) : taps_(taps), neighbour_(neighbour) {}

  int tileRows() const { return taps_.size.height > 1 ? kTileRows : 1; }
  Index reach() const { return (taps_.size.width - 1) * neighbour_; }
  void arrange(int) {}

  template <int R, class Rows>
  HUX_INLINE void add(Rows& rows, Sums<R>& sums) const {
    const Index height = taps_.size.height, width = taps_.size.width;
    for (Index row = 0; row < height + R - 1; ++row)
      for (Index column = 0; column < width; column += rows.columns) {
        const Index n = std::min<Index>(rows.columns, width - column);
        const Element<T>* pixels = rows(row, column, n);
        if (row >= R - 1 && row < height) {
          addColumns<0, R>(pixels, n, row, column, sums);
        } else {
          unrolled<R>([&](auto r) HUX_INLINE {
            if (row >= r && row - r < height) addColumns<r, 1>(pixels, n, row, column, sums);
          });
        }
      }
  }

  // Stores what became of the sums of a row of the tile.
  template <int R, class D, class Finish>
  static HUX_INLINE void store(const Finish& finish, const Lanes<A, lanes> (&sums)[vectors<R>], Element<D>* dst) {
    constexpr int together = sizeof(D) < 4 ? kJoined<D, Lanes<Hux32s, lanes>> : 1;
    unrolled<vectors<R> / together>([&](auto g) HUX_INLINE {
      if constexpr (sizeof(D) == 4) {
        storeLanes(dst + g * lanes, finish(sums[g]));
      } else {
        std::array<Lanes<Hux32s, lanes>, together> values;
        unrolled<together>([&](auto u) HUX_INLINE { values[u] = finish(sums[g * together + u]); });
        storeLanes(dst + g * together * lanes, saturate<D>(values));
      }
    });
  }

 private:
  // The columns from `column` on of row `row` of the windows of Count rows of the tile.
  template <int From, int Count, int R, int U>
  HUX_INLINE void addColumns(const Element<T>* pixels, Index n, Index row, Index column,
                             Lanes<A, lanes> (&sums)[R][U]) const {
    using V = Lanes<A, lanes>;
    const Element<K>* taps[Count];
    unrolled<Count>([&](auto r) HUX_INLINE { taps[r] = taps_.over(row - From - r, column); });
    for (Index i = 0; i < n; ++i, pixels += neighbour_) {
      V tap[Count];
      unrolled<Count>([&](auto r) HUX_INLINE { tap[r] = splat<V>(A(K(taps[r][-i]))); });
      unrolled<U>([&](auto u) HUX_INLINE {
        const V p = pixelsAt<Count>(pixels + u * lanes);
        unrolled<Count>([&](auto r) HUX_INLINE { sums[From + r][u] = sums[From + r][u] + p * tap[r]; });
      });
    }
  }

 protected:
  // A vector of pixels for so many uses.
  template <int Uses>
  static HUX_INLINE Lanes<A, lanes> pixelsAt(const Element<T>* pixels) {
    const auto p = convert<A>(loadLanes<Lanes<T, lanes>>(pixels));
    if constexpr (Uses > 1)
      return held(p);
    else
      return p;
  }

  Taps<K> taps_;
  Index neighbour_;
};

// The same for windows of so few columns that the loop around them would cost more than they do.
template <class T, class K, class A, int Width>
class NarrowProducts : public PlainProducts<T, K, A> {
 public:
  using AnyWidth = PlainProducts<T, K, A>;
  using AnyWidth::AnyWidth, AnyWidth::lanes;

  template <int R, class Rows>
  HUX_INLINE void add(Rows& rows, typename AnyWidth::template Sums<R>& sums) const {
    const Index height = this->taps_.size.height;
    // Each window begins in one of the first rows, and ends in one of the last.
    unrolled<R>([&](auto row) HUX_INLINE {
      const Element<T>* const pixels = rows(row, 0, Width);
      unrolled<R>([&](auto r) HUX_INLINE {
        if constexpr (r == row)
          addRow<r, 1, true>(pixels, row, sums);
        else if (r < row && row - r < height)
          addRow<r, 1>(pixels, row, sums);
      });
    });
    Index row = R;
    for (; row < height; ++row) addRow<0, R>(rows(row, 0, Width), row, sums);
    for (; row < height + R - 1; ++row) {
      const Element<T>* const pixels = rows(row, 0, Width);
      unrolled<R>([&](auto r) HUX_INLINE {
        if (row - r < height) addRow<r, 1>(pixels, row, sums);
      });
    }
  }

 private:
  // Row `row` of the windows of Count rows of the tile. Of a window's first row, the first column begins the sums;
  // floats then are added to 0, for the sign of a zero.
  template <int From, int Count, bool Begins = false, int R, int U>
  HUX_INLINE void addRow(const Element<T>* pixels, Index row, Lanes<A, lanes> (&sums)[R][U]) const {
    using V = Lanes<A, lanes>;
    unrolled<Width>([&](auto i) HUX_INLINE {
      V taps[Count];
      unrolled<Count>([&](auto r) HUX_INLINE { taps[r] = splat<V>(A(K(*this->taps_.over(row - From - r, i)))); });
      unrolled<U>([&](auto u) HUX_INLINE {
        const V p = AnyWidth::template pixelsAt<Count>(pixels + i * this->neighbour_ + u * lanes);
        unrolled<Count>([&](auto r) HUX_INLINE {
          V& sum = sums[From + r][u];
          if constexpr (Begins && i == 0 && !std::is_floating_point_v<T>)
            sum = p * taps[r];
          else
            sum = sum + p * taps[r];
        });
      });
    });
  }
};

// Products of bytes and taps of 16 bits modulo 2^32, two pixels at a time: from two rows, of which one may stand
// against taps of 0, or in a kernel of one row from two columns.
class PairProducts {
 public:
  using AnyWidth = PairProducts;
  static constexpr int lanes = laneCount<Hux32s>;
  template <int R>
  static constexpr int elements = 4 * lanes;
  template <int R>
  using Sums = Lanes<Hux32u, lanes>[R][4];

  // Whether the taps are such, and not too many.
  static bool serve(Taps<Hux32s> taps) {
    if (taps.size.height > kMost || taps.size.width > kMost) return false;
    const Index rows = (taps.size.height + kTileRows) / 2;
    if (rows * taps.size.width * kTileRows > kMost) return false;
    return std::all_of(taps.first, taps.first + taps.count(), [](Hux32s tap) { return tap == Hux16s(tap); });
  }

  PairProducts(Taps<Hux32s> taps, Index neighbour) : taps_(taps), neighbour_(neighbour) {}

  int tileRows() const { return alongRow() ? 1 : kTileRows; }
  Index reach() const { return (taps_.size.width - (alongRow() ? taps_.size.width % 2 == 0 : 1)) * neighbour_; }

  // Must be called before `add` is, with the number of rows in a tile.
  void arrange(int tileRows) {
    Hux32u* pair = pairs_.data();
    const auto put = [&](Index row, Index column, Index otherRow, Index otherColumn) {
      *pair++ = Hux32u(tap(row, column) & 0xffff) | Hux32u(tap(otherRow, otherColumn)) << 16;
    };
    if (alongRow()) {
      for (Index i = 0; i < taps_.size.width; i += 2) put(0, i, 0, i + 1);
    } else {
      for (Index row = 0; row < taps_.size.height + tileRows - 1; row += 2)
        for (Index i = 0; i < taps_.size.width; ++i)
          for (int r = 0; r < tileRows; ++r) put(row - r, i, row + 1 - r, i);
    }
  }

  template <int R, class Rows>
  HUX_INLINE void add(Rows& rows, Sums<R>& sums) const {
    using Pixels = Lanes<Hux8u, elements<R>>;
    using Pair = Lanes<Hux16s, 2 * lanes>;
    const Hux32u* pair = pairs_.data();
    const bool along = alongRow();
    const Index count = taps_.size.height + R - 1, width = taps_.size.width, stride = along ? 2 : 1;
    for (Index row = 0; row < count; row += 2)
      for (Index column = 0; column < width; column += rows.columns) {
        const Index n = std::min<Index>(rows.columns, width - column);
        const Element<Hux8u>* first = rows(row, column, n);
        const Element<Hux8u>* second = along             ? first + neighbour_
                                       : row + 1 < count ? rows(row + 1, column, n, 1)
                                                         : first;  // against 0
        const Index distance = stride * neighbour_;
        for (Index i = 0; i < n; i += stride, first += distance, second += distance, pair += R) {
          const auto pixels = bytePairs(loadLanes<Pixels>(first), loadLanes<Pixels>(second));
          unrolled<R>([&](auto r) HUX_INLINE {
            const Pair taps = bitsAs<Pair>(splat<Lanes<Hux32u, lanes>>(pair[r]));
            unrolled<4>([&](auto u) HUX_INLINE { sums[r][u] += Lanes<Hux32u, lanes>(pairProducts(pixels[u], taps)); });
          });
        }
      }
  }

  template <int R, class Finish>
  static HUX_INLINE void store(const Finish& finish, const Lanes<Hux32u, lanes> (&sums)[4], Element<Hux8u>* dst) {
    std::array<Lanes<Hux32s, lanes>, 4> values;
    unrolled<4>([&](auto u) HUX_INLINE { values[u] = finish(sums[u]); });
    storeLanes(dst, gathered(values));
  }

 private:
  static constexpr Index kMost = 8192;  // pairs

  bool alongRow() const { return taps_.size.height == 1; }
  Hux32s tap(Index row, Index column) const {
    const bool inside = row >= 0 && row < taps_.size.height && column < taps_.size.width;
    return inside ? Hux32s(*taps_.over(row, column)) : 0;
  }

  Taps<Hux32s> taps_;
  Index neighbour_;
  std::array<Hux32u, kMost> pairs_;
};

namespace detail {

// The elements of a row, how far apart those of neighbouring pixels lie, and whether a fourth of each pixel is left
// out.
struct TileShape {
  Index elements, neighbour;
  bool alpha;
};

template <int R, class Products, class Rows, class D, class Finish>
HUX_INLINE inline void tapsTile(const Products& products, Rows& rows, Element<D>* dst, Index step, TilePart part,
                                const Finish& finish) {
  constexpr Index tile = Products::template elements<R>;
  typename Products::template Sums<R> sums = {};
  products.template add<R>(rows, sums);
  if (part.count == tile && !part.alpha) {
    unrolled<R>([&](auto r) HUX_INLINE { Products::template store<R>(finish, sums[r], advance(dst, r * step)); });
  } else {
    unrolled<R>([&](auto r) HUX_INLINE {
      Element<D> values[tile];
      Products::template store<R>(finish, sums[r], values);
      storePart(values, advance(dst, r * step), part);
    });
  }
}

// Kept apart, so that the usual tiles have the registers for themselves.
template <int R, class Products, class Rows, class D, class Finish>
[[gnu::noinline]] void fencedTile(const Products& products, Rows rows, Element<D>* dst, Index step, TilePart part,
                                  const Finish& finish) {
  tapsTile<R>(products, rows, dst, step, part, finish);
}

template <int R, class Products, class T, class D, class Finish>
void tapsRows(const Products& products, Window<T> window, Element<D>* dst, Index step, TileShape shape, Index reach,
              const Finish& finish) {
  constexpr Index tile = Products::template elements<R>;
  const Index last = shape.elements + reach - products.reach() - tile;  // start of an open tile
  for (Index at = 0; at < shape.elements; at += tile) {
    const TilePart part = {std::min(tile, shape.elements - at), shape.alpha};
    if (at <= last) {
      OpenRows<T> rows{window, at, shape.neighbour};
      tapsTile<R>(products, rows, dst + at, step, part, finish);
    } else {
      fencedTile<R, typename Products::AnyWidth>(
          products, FencedRows<T, int(tile)>{window, at, shape.neighbour, part.count}, dst + at, step, part, finish);
    }
  }
}

}  // namespace detail

// Computes the rows of a range: finish(sums) of each element, as D. The taps tell the window, whose top left pixel for
// output (0, 0) the operand `src` has.
template <class L, class Products, class T, class K, class D, class Finish>
void tapsSum(Products products, Taps<K> taps, WindowRows<T> src, Rows<D> dst, RowRange range, Index width,
             const Finish& finish) {
  constexpr bool alpha = L::channels != L::processed;
  const detail::TileShape shape = {width * L::channels - alpha, L::channels, alpha};
  const Index reach = (taps.size.width - 1) * shape.neighbour, end = range.first + range.count;
  const auto rowsOf = [&]<int R>(Index y, std::integral_constant<int, R>) {
    products.arrange(R);
    for (; y + R <= end; y += R) detail::tapsRows<R>(products, src.row(y), dst.row(y), dst.step, shape, reach, finish);
    return y;
  };
  Index y = range.first;
  if (products.tileRows() > 1 && range.count > 1) y = rowsOf(y, std::integral_constant<int, kTileRows>{});
  if (y < end) rowsOf(y, std::integral_constant<int, 1>{});
}

}  // namespace hux
