// Windows: the pixels that a neighbourhood filter reads for one output pixel.
//
// A family says how far its mask reaches from the pixel that is computed, and walks the region with the rows of that
// window as one more operand:
//
//   forEachRow(roi, windowRows<L>(pSrc, srcStep, imageOrder(mask, anchor)), rows<L>(pDst, dstStep),
//              [&](auto window, auto* dst, Index n) { ... window[j] is row j of the mask, from its first column on ...
//              });
//
// No filter extends its image: pSrc is the pixel under the first output pixel, and the caller vouches for the pixels
// around the region as far as the mask reaches, but for no others.
#pragma once

#include "core/rows.h"

namespace hux {

// How far a window reaches from its pixel. Negative where the pixel lies outside the window.
struct Reach {
  Index left, right, above, below;
};

// The anchor is the mask cell over the pixel, counted as pixels are.
constexpr Reach imageOrder(HuxiSize mask, HuxiPoint anchor) {
  return {anchor.x, Index(mask.width) - 1 - anchor.x, anchor.y, Index(mask.height) - 1 - anchor.y};
}

// The anchor is counted from the window's last column and row: that of a kernel that is flipped.
constexpr Reach fromFarCorner(HuxiSize mask, HuxiPoint anchor) {
  return {Index(mask.width) - 1 - anchor.x, anchor.x, Index(mask.height) - 1 - anchor.y, anchor.y};
}

// The pixel is the middle of a mask of odd sides.
constexpr Reach centred(int width, int height) { return {width / 2, width / 2, height / 2, height / 2}; }
constexpr Reach centred(int side) { return centred(side, side); }

// The window rows of one row of output.
template <class T>
struct Window {
  const Element<T>* first;
  Index step;

  const Element<T>* operator[](Index j) const { return advance(first, j * step); }
};

// The operand: its rows are windows. Rows of windows share pixels, so they are never one long row.
template <class T>
struct WindowRows {
  Window<T> top;

  Window<T> row(Index y) const { return {top[y], top.step}; }
  WindowRows from(Index y) const { return {row(y)}; }
  static constexpr bool contiguous(Index) { return false; }
};

template <class L, class T>
WindowRows<T> windowRows(const T* p, int step, Reach reach) {
  const Index back = reach.above * step + reach.left * L::channels * Index(sizeof(T));
  return {{advance(elements(p), -back), step}};
}

}  // namespace hux
