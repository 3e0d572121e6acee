// Filters of two passes: one along each source row, whose results are kept, and one over the rows of the window.
//
// A filter is a type of static members,
//
//   static constexpr int height                   the rows of its window, 3 or 5
//   static auto row(p)                            what is kept of a row: lanes of B, or an array of such
//   template <class D> static auto column(r, p)   the output, lanes of D
//
// where p[0] are the pixels computed and p[-1] their left neighbours (Pixels), r[0] is what row() gave for the row
// computed and r[-1] for the row above (KeptRows). Each source row is passed over once, and no pixel outside the window
// is read. What is kept lies on the stack, a strip of columns at a time: such a filter needs no memory.
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

// A piece of a row of n elements, no fewer than the filter has lanes. Its first vector starts at element 0, the others
// at multiples of their length less `lead`, so that they lie at vector boundaries of the output, and the last ends with
// the last element: vectors may overlap. The results kept of one element lie `pitch` apart.
struct PassRange {
  Index n, lead, pitch;
};

// The loops of a filter over one row, without its type.
template <class T, class D>
struct Passes {
  int height, results;   // rows of the window; what is kept of each,
  int keptBytes, lanes;  // as elements of so many bytes, so many at a time
  void (*keep)(const Element<T>* newest, Index distance, std::byte* line, PassRange);
  // The row pass over the newest row, that is the lowest of the window, and the column pass. `lines` are those of the
  // window's rows, of which the last is filled.
  void (*step)(const Element<T>* newest, const Element<T>* centre, Index distance, std::byte* const* lines,
               Element<D>* dst, PassRange);
};

// Runs a filter over a region of pixels of `channels` elements, of which the first `processed` are written.
template <class T, class D>
void runPasses(const Passes<T, D>&, Rows<const T> src, Rows<D> dst, HuxiSize roi, int channels, int processed);

namespace detail {

template <class R>
struct ResultsOf {
  static constexpr int count = 1;
  using B = LaneType<R>;
  static void load(R& r, const B* line, Index) { r = loadLanes<R>(line); }
  static void store(const R& r, B* line, Index) { storeLanes(line, r); }
};
template <class V, std::size_t N>
struct ResultsOf<std::array<V, N>> {
  static constexpr int count = int(N);
  using B = LaneType<V>;
  static void load(std::array<V, N>& r, const B* line, Index pitch) {
    for (std::size_t k = 0; k < N; ++k) r[k] = loadLanes<V>(line + Index(k) * pitch);
  }
  static void store(const std::array<V, N>& r, B* line, Index pitch) {
    for (std::size_t k = 0; k < N; ++k) storeLanes(line + Index(k) * pitch, r[k]);
  }
};

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
  using B = decltype(keptElement<Filter, T>());
  using P = Pixels<B, T>;
  using R = decltype(Filter::row(std::declval<P>()));
  using Results = ResultsOf<R>;
  static constexpr int lanes = P::lanes, height = Filter::height;

  static Index place(Index i, PassRange range) { return std::min(std::max<Index>(i, 0), range.n - lanes); }

  static void keep(const Element<T>* newest, Index distance, std::byte* line, PassRange range) {
    for (Index i = -range.lead; i < range.n; i += lanes) {
      const Index at = place(i, range);
      Results::store(Filter::row(P{newest + at, distance}), reinterpret_cast<B*>(line) + at, range.pitch);
    }
  }
  static void step(const Element<T>* newest, const Element<T>* centre, Index distance, std::byte* const* lines,
                   Element<D>* dst, PassRange range) {
    std::array<B*, height> line;
    for (std::size_t j = 0; j < height; ++j) line[j] = reinterpret_cast<B*>(lines[j]);
    for (Index i = -range.lead; i < range.n; i += lanes) {
      const Index at = place(i, range);
      KeptRows<R, height> kept;
      for (std::size_t j = 0; j + 1 < height; ++j) Results::load(kept.rows[j], line[j] + at, range.pitch);
      kept.rows[height - 1] = Filter::row(P{newest + at, distance});
      Results::store(kept.rows[height - 1], line[height - 1] + at, range.pitch);
      storeLanes(dst + at, Lanes<D, lanes>(Filter::template column<D>(kept, P{centre + at, distance})));
    }
  }
  static constexpr Passes<T, D> passes = {height, Results::count, sizeof(B), lanes, keep, step};
};

}  // namespace detail

// The filter for images of T and D. Lanes are of signed integers twice as wide as T, where the filter does not name
// another type KeptOfBytes, or of floats.
template <class Filter, class T, class D>
inline constexpr Passes<T, D> passesOf = detail::PassLoops<Filter, T, D>::passes;

}  // namespace hux
