// Rings of processed rows, and the order of forms in place.
#pragma once

#include <algorithm>
#include <limits>

#include "core/layout.h"

namespace hux {

// Lines of work memory for rows of an image: row r lies in line r modulo the number of lines, until a later row takes
// its place. Lines do not share cache lines where the memory starts on one.
template <class T>
class Ring {
 public:
  // More than there can be where the product does not fit.
  static std::size_t bytes(Index lines, Index elements) {
    std::size_t total;
    const bool fits = !__builtin_mul_overflow(std::size_t(lineBytes(elements)), std::size_t(lines), &total);
    return fits ? total : std::numeric_limits<std::size_t>::max();
  }
  Ring(std::byte* memory, Index lines, Index elements)
      : memory_(memory), lines_(lines), lineBytes_(lineBytes(elements)) {}

  Element<T>* operator[](Index row) const { return reinterpret_cast<Element<T>*>(memory_ + row % lines_ * lineBytes_); }

 private:
  static Index lineBytes(Index elements) { return (elements * Index(sizeof(T)) + 63) / 64 * 64; }

  std::byte* memory_;
  Index lines_, lineBytes_;
};

// A filter in place computes its rows ahead of writing them: a row of the image must stand until the last window that
// reads it has been seen. `lines` is the size of the ring that holds the rows between, of which `atOnce` are computed
// in one go.
struct InPlace {
  Index rows, lines, atOnce = 1;
};

// For windows that reach `above` rows up. A region that is lower than that is computed and written on down to row
// `above`, below the region, where the caller's image must be writable: established behaviour.
constexpr InPlace rowsInPlace(Index height, Index above, Index atOnce = 1) {
  return {std::max(height, above + 1), above + atOnce, atOnce};
}

// For 3 by 3 windows around their pixel: nothing outside the region is written.
constexpr InPlace rowsInPlace3x3(Index height) { return {height, 2}; }

// compute(first, count) computes the rows [first, first + count) into the ring; write(row) copies a row from there to
// the image. No row is written before the rows whose windows start at it or above have been computed.
template <class Compute, class Write>
void inPlace(InPlace order, Compute compute, Write write) {
  Index written = 0;
  for (Index row = 0; row < order.rows; row += order.atOnce) {
    const Index end = std::min(row + order.atOnce, order.rows);
    for (; written + order.lines < end; ++written) write(written);
    compute(row, end - row);
  }
  for (; written < order.rows; ++written) write(written);
}

}  // namespace hux
