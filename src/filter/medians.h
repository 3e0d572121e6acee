// Medians of a few pixels, a row of windows at a time. Elements are treated alike; `neighbour` is the distance between
// pixels in them.
#pragma once

#include "filter/networks.h"
#include "filter/vector_rows.h"

namespace hux {

template <class V, std::size_t Cells>
V medianOf(const std::array<V, Cells>& v) {
  if constexpr (Cells == 3) {
    return median3(v[0], v[1], v[2]);
  } else if constexpr (Cells == 5) {
    return median5(v[0], v[1], v[2], v[3], v[4]);
  } else {
    static_assert(Cells == 9);
    const auto triple = [&](std::size_t from) {
      Sorted<V, 3> sorted = {v[from], v[from + 1], v[from + 2]};
      ownsort3(sorted[0], sorted[1], sorted[2]);
      return sorted;
    };
    return ownmed9(triple(0), triple(3), triple(6));
  }
}

template <int Cells, class Store, class T>
void ownhuxiFilterMedianHoriz(Window<T> window, Index neighbour, Element<T>* dst, Index count) {
  using V = Lanes<T, laneCount<T>>;
  alongRows<V>(sourceRows<1>(window, (Cells - 1) * neighbour), count, [=](const auto& rows, Index i) {
    std::array<V, Cells> cells;
    for (std::size_t k = 0; k < Cells; ++k) cells[k] = loadLanes<V>(rows[0] + i + Index(k) * neighbour);
    storePixels<Store>(dst, i, medianOf(cells), count);
  });
}

template <int Cells, class Store, class T>
void ownhuxiFilterMedianVert(Window<T> window, Index, Element<T>* dst, Index count) {
  using V = Lanes<T, laneCount<T>>;
  alongRows<V>(sourceRows<Cells>(window, 0), count, [=](const auto& rows, Index i) {
    std::array<V, Cells> cells;
    for (std::size_t k = 0; k < Cells; ++k) cells[k] = loadLanes<V>(rows[k] + i);
    storePixels<Store>(dst, i, medianOf(cells), count);
  });
}

// A cross of `side` columns and rows. The rows above and below are read in the middle column only.
template <int side, class Store, class T>
void ownhuxiFilterMedianCross(Window<T> window, Index neighbour, Element<T>* dst, Index count) {
  using V = Lanes<T, laneCount<T>>;
  constexpr std::size_t half = side / 2;
  auto sources = sourceRows<side>(window, 0);
  for (auto& source : sources) source.first += Index(half) * neighbour;
  sources[half] = {window[half], (side - 1) * neighbour};
  alongRows<V>(sources, count, [=](const auto& rows, Index i) {
    std::array<V, 2 * side - 1> cells;
    for (std::size_t k = 0; k < side; ++k) cells[k] = loadLanes<V>(rows[half] + i + Index(k) * neighbour);
    for (std::size_t j = 0; j < half; ++j) {
      cells[side + 2 * j] = loadLanes<V>(rows[j] + i);
      cells[side + 2 * j + 1] = loadLanes<V>(rows[half + 1 + j] + i);
    }
    storePixels<Store>(dst, i, medianOf(cells), count);
  });
}

}  // namespace hux
