// Filters of two passes: one along each source row, whose results are kept, and one over the rows of the window.
//
// A filter is a type of static members,
//
//   static constexpr int height                   the rows of its window, 3 or 5
//   static auto row(p)                            what is kept of a row: lanes of B, or an array of such
//   template <class D> static auto column(r, p)   the output, lanes of D
//
// where p[0] are the pixels computed and p[-1] their left neighbours (Pixels), r[0] is what row() gave for the row
// computed and r[-1] for the row above (KeptRows). A vector of columns is gone down a block of rows at a time, so that
// what is kept lies in registers: such a filter needs no memory. No pixel outside the window is read.
//
// Where row() gives three sums, of the weights of the outermost rows, of those beside the middle one and of the middle
// one, ofSum<D>(sum) may stand in place of column(): it takes their sum from top to bottom.
#pragma once

#include <algorithm>
#include <array>

#include "core/window.h"
#include "lanes/lanes.h"

namespace hux {

// Elements of one source row as lanes of B. All channels are treated alike: neighbours lie `distance` elements apart.
template <class B, class T>
struct Pixels {
  static constexpr int lanes = laneCount<B>;
  const Element<T>* first;
  Index distance;

  Lanes<B, lanes> operator[](Index k) const { return convert<B>(loadLanes<Lanes<T, lanes>>(first + k * distance)); }
};

template <class R, int Height>
struct KeptRows {
  R rows[Height];

  const R& operator[](int k) const { return rows[k + Height / 2]; }
};

// A block of rows of n elements, no fewer than the filter has lanes. The first vector of a row starts at element 0, the
// others at multiples of their length less `lead`, so that they lie at vector boundaries of the output, and the last
// ends with the last element: vectors may overlap. Steps are in bytes.
struct PassBlock {
  Index n, lead, rows, srcStep, dstStep;
};

// A filter without its type: a loop over blocks of pixels whose neighbours lie `distance` elements apart.
template <class T, class D>
struct Passes {
  int height, lanes;
  void (*run)(const Element<T>* src, Index distance, Element<D>* dst, PassBlock);
};

// Runs a filter over a region of pixels of `channels` elements, of which the first `processed` are written.
template <class T, class D>
void runPasses(const Passes<T, D>&, Rows<const T> src, Rows<D> dst, HuxiSize roi, int channels, int processed);

namespace detail {

template <class Filter, class T>
auto keptElement() {
  if constexpr (std::is_floating_point_v<T>)
    return T();
  else if constexpr (sizeof(T) == 2)
    return Hux32s();
  else if constexpr (requires { typename Filter::KeptOfBytes; })
    return typename Filter::KeptOfBytes();
  else
    return Hux16s();
}

template <class Filter, class T, class D>
struct PassLoops {
  using P = Pixels<decltype(keptElement<Filter, T>()), T>;
  using R = decltype(Filter::row(std::declval<P>()));
  static constexpr int lanes = P::lanes, height = Filter::height;

  // What is kept of the rows above the newest one.
  struct ByRows {
    KeptRows<R, height> kept;

    void add(const P& newest) {
      for (int j = 0; j + 1 < height; ++j) kept.rows[j] = kept.rows[j + 1];
      kept.rows[height - 1] = Filter::row(newest);
    }
    auto next(const P& newest, const P& centre) {
      add(newest);
      return Filter::template column<D>(kept, centre);
    }
  };
  // The same where the output is made of a sum: those of the windows that are begun, by the rows that they have.
  template <class V>
  struct BySums {
    V one{}, two{}, three{}, four{};

    void add(const P& newest) { next(newest, newest); }
    auto next(const P& newest, const P&) {
      const std::array<V, 3> sums = Filter::row(newest);
      const V all = four + sums[0];
      four = three + sums[1], three = two + sums[2], two = one + sums[1], one = sums[0];
      return Filter::template ofSum<D>(all);
    }
  };
  static auto start() {
    if constexpr (requires(R r) { Filter::template ofSum<D>(r[0]); })
      return BySums<typename R::value_type>();
    else
      return ByRows();
  }

  // Goes down some vectors beside each other.
  template <int vectors>
  static void column(const Element<T>* src, Index distance, Element<D>* dst, const PassBlock& block) {
    const Element<T>*centre = src, *newest = advance(src, -(height / 2) * block.srcStep);
    const auto pixels = [distance](const Element<T>* row, int v) { return P{row + v * lanes, distance}; };
    decltype(start()) kept[vectors] = {};
    const auto down = [&](const Element<T>*& row) { row = advance(row, block.srcStep); };
    for (int j = 0; j + 1 < height; ++j, down(newest))
      for (int v = 0; v < vectors; ++v) kept[v].add(pixels(newest, v));
    for (Index y = 0; y < block.rows; ++y, down(newest), down(centre), dst = advance(dst, block.dstStep))
      for (int v = 0; v < vectors; ++v)
        storeLanes(dst + v * lanes, Lanes<D, lanes>(kept[v].next(pixels(newest, v), pixels(centre, v))));
  }
  // Two vectors together are a cache line of most images, or half of one. Where rows are a power of two apart, a line
  // is driven out by those of other rows before it is needed again.
  static void run(const Element<T>* src, Index distance, Element<D>* dst, PassBlock block) {
    constexpr Index pair = 2 * lanes;
    for (Index i = -block.lead; i < block.n;) {
      const Index at = std::min(std::max<Index>(i, 0), block.n - lanes);
      const bool first = reinterpret_cast<std::uintptr_t>(dst + at) / sizeof(D) % pair < lanes;
      if (first && i >= 0 && i + pair <= block.n) {
        column<2>(src + at, distance, dst + at, block);
        i += pair;
      } else {
        column<1>(src + at, distance, dst + at, block);
        i += lanes;
      }
    }
  }
  static constexpr Passes<T, D> passes = {height, lanes, run};
};

}  // namespace detail

// The filter for images of T and D. Lanes are of signed integers twice as wide as T, where the filter does not name
// another type KeptOfBytes, or of floats.
template <class Filter, class T, class D>
inline constexpr Passes<T, D> passesOf = detail::PassLoops<Filter, T, D>::passes;

}  // namespace hux
