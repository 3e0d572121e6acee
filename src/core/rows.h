// Images as rows: how a region is walked.
#pragma once

#include <algorithm>
#include <array>
#include <tuple>
#include <type_traits>
#include <utility>

#include "core/check.h"

namespace hux {

// `step` bytes on from a pointer; `const` follows the pointer.
template <class T>
T* advance(T* p, Index bytes) {
  using Byte = std::conditional_t<std::is_const_v<T>, const std::byte, std::byte>;
  return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + bytes);
}

// One interleaved image operand.
template <class T>
struct Rows {
  ElementOf<T>* first;
  Index step;
  Index pixelBytes;

  ElementOf<T>* row(Index y) const { return advance(first, y * step); }
  Rows from(Index y) const { return {row(y), step, pixelBytes}; }  // the rows from y on, as a thread's share begins
  bool contiguous(Index width) const { return step == width * pixelBytes; }
};

template <class L, class T>
Rows<T> rows(T* p, int step) {
  return {elements(p), step, Index(sizeof(T)) * L::channels};
}

// The same of elements seen as those of a type E of their width; for operations that only move bits, as plain words.
template <class L, class E, class T>
auto rowsAs(T* p, int step) {
  using As = std::conditional_t<std::is_const_v<T>, const E, E>;
  return Rows<As>{elementsAs<E>(p), step, Index(sizeof(E)) * L::channels};
}
template <class L, class T>
auto wordRows(T* p, int step) {
  return rowsAs<L, Word<T>>(p, step);
}

// One planar image operand: N planes that share a step. Its rows are arrays of N row pointers.
template <int N, class T>
struct PlanarRows {
  std::array<ElementOf<T>*, N> first;
  Index step;
  static constexpr Index pixelBytes = N * Index(sizeof(T));

  std::array<ElementOf<T>*, N> row(Index y) const {
    auto planes = first;
    for (auto& plane : planes) plane = advance(plane, y * step);
    return planes;
  }
  bool contiguous(Index width) const { return step == width * Index(sizeof(T)); }
};

template <int N, class T>
auto wordPlanes(T* const* planes, int step) {
  using W = std::conditional_t<std::is_const_v<T>, const Word<T>, Word<T>>;
  PlanarRows<N, W> r{{}, step};
  for (int c = 0; c < N; ++c) r.first[c] = elementsAs<Word<T>>(planes[c]);
  return r;
}

namespace detail {

template <class Body, class... Operands>
auto walk(HuxiSize roi, Body& body, const Operands&... operands) {
  Index width = roi.width, height = roi.height;
  // Rows that follow each other without a gap in every operand are one long row.
  if ((operands.contiguous(width) && ...)) width *= height, height = 1;
  using Result = decltype(body(operands.row(0)..., width));
  if constexpr (std::is_void_v<Result>) {
    for (Index y = 0; y < height; ++y) body(operands.row(y)..., width);
  } else {
    HuxStatus status = huxStsOk;
    for (Index y = 0; y < height; ++y) status = firstOf(status, body(operands.row(y)..., width));
    return status;
  }
}

}  // namespace detail

// forEachRow(roi, operand..., body): calls body(row..., n) for each row of the region, top to bottom, with the row
// pointers of the operands and the number of pixels. A body that returns a status is collected: the first that is not
// success is returned and the walk goes on.
template <class... Args>
auto forEachRow(HuxiSize roi, Args&&... args) {
  auto all = std::forward_as_tuple(args...);
  constexpr std::size_t last = sizeof...(Args) - 1;
  return [&]<std::size_t... I>(std::index_sequence<I...>) {
    return detail::walk(roi, std::get<last>(all), std::get<I>(all)...);
  }
  (std::make_index_sequence<last>{});
}

// Calls body(first, count) for each piece of n pixels, of `most` pixels but for the last: pieces that fit a buffer.
template <class Body>
void forPieces(Index n, Index most, Body body) {
  for (Index first = 0; first < n; first += most) body(first, std::min(most, n - first));
}

}  // namespace hux
