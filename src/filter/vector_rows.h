// Rows of a filter, a vector of elements at a time. Where a rule treats all elements alike, the pixels to the left and
// right of an element are the elements at whole pixels' distance, and the layout shows in the stores only.
#pragma once

#include <algorithm>
#include <array>

#include "core/window.h"
#include "lanes/lanes.h"

namespace hux {

// How many elements from the first of a row a form touches: all of n pixels, but for the alpha of the last one.
template <class L>
constexpr Index elementsOf(Index n) {
  return n * L::channels - (L::channels - L::processed);
}

// Bodies of loops are taken by value, and hold what they use by value: what is kept behind a reference would have to be
// read again after every store.

// body(i) for vectors at i that cover `count` elements together. The last one ends where they end, so it may lie across
// the one before; of less than a vector there is one at 0.
template <int lanes, class Body>
void coverRow(Index count, Body body) {
  Index i = 0;
  for (; i + lanes <= count; i += lanes) body(i);
  if (i < count) body(std::max<Index>(count - lanes, 0));
}

// What the stores of a layout depend on: whether there are alphas to be left alone.
template <class L>
using StoreOf = std::conditional_t<L::channels == L::processed, C1, L>;

// Stores a vector at element i of a row of `count` elements, all but alphas and what lies behind the row.
template <class L, class V, class T>
void storePixels(Element<T>* row, Index i, V v, Index count) {
  constexpr int colours = L::channels == 4 ? L::processed : 4;
  if (count - i < lanesIn<V>)
    storeColours<colours>(row + i, v, int(count - i));
  else if constexpr (colours == 4)
    storeLanes(row + i, v);
  else if (i % L::channels == 0)
    storeColours<colours>(row + i, v);
  else {  // a vector that ends with the row, without the last alpha, starts with one
    Element<T> shifted[lanesIn<V>];
    storeLanes(shifted, v);
    for (int j = 1; j < lanesIn<V>; j += L::channels) std::copy_n(shifted + j, L::processed, row + i + j);
  }
}

// A row to read: of each vector also the `margin` elements behind its own.
template <class T>
struct SourceRow {
  const Element<T>* first;
  Index margin;
};
inline constexpr Index kWidestMargin = 20;  // five pixels of four elements

// body(rows, i, found) for vectors V at i that cover `count` elements, as coverRow does, with the starts of the source
// rows, of which no more is read than told, and with what the body before gave; gives what the last one does. Rows of
// less than a vector are seen as copies with readable memory behind them.
template <class V, std::size_t Count, class T, class Found, class Body>
Found foldRows(const std::array<SourceRow<T>, Count>& sources, Index count, Found found, Body body) {
  constexpr int lanes = lanesIn<V>;
  std::array<const Element<T>*, Count> rows;
  Element<T> narrow[Count][lanes + kWidestMargin];
  for (std::size_t j = 0; j < Count; ++j) rows[j] = sources[j].first;
  if (count < lanes)
    for (std::size_t j = 0; j < Count; ++j) {
      std::fill(std::begin(narrow[j]), std::end(narrow[j]), Element<T>{});
      std::copy_n(rows[j], count + sources[j].margin, narrow[j]);
      rows[j] = narrow[j];
    }
  // By value, as the bodies are.
  const auto at = [rows, body](Index i, Found found) { return body(rows, i, found); };
  Index i = 0;
  for (; i + lanes <= count; i += lanes) found = at(i, found);
  if (i < count) found = at(std::max<Index>(count - lanes, 0), found);
  return found;
}
// body(rows, i) where nothing is given on.
template <class V, std::size_t Count, class T, class Body>
void alongRows(const std::array<SourceRow<T>, Count>& sources, Index count, Body body) {
  foldRows<V>(sources, count, nullptr, [body](const auto& rows, Index i, std::nullptr_t) {
    body(rows, i);
    return nullptr;
  });
}

// The rows of a window of a fixed height, in each of which it reaches `margin` elements beyond the row's own.
template <std::size_t Height, class T>
std::array<SourceRow<T>, Height> sourceRows(Window<T> window, Index margin) {
  std::array<SourceRow<T>, Height> rows;
  for (std::size_t j = 0; j < Height; ++j) rows[j] = {window[Index(j)], margin};
  return rows;
}

}  // namespace hux
