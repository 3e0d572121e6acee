// Sums over the windows of matching: of the squares of the pixels in each window of a block, and of the pixels.
#pragma once

#include "core/layout.h"

namespace hux {

// A window of width by height pixels at each of across by down places, the first at `pixels`. Rows lie `step` floats
// apart, and have some more floats that may be read behind the last pixel, as blocks of transforms do. `bytes` tells
// that they are whole numbers of 8 bits.
struct Windows {
  const Hux32f* pixels;
  Index step, width, height, across, down;
  bool bytes;
};

// Work memory, in doubles.
Index windowRoom(Index across, Index width);

// The sums of squares, `step` floats from row to row; and the same less the square of the window's sum times `inverse`.
void owniAutoCorr(const Windows& windows, Hux32f* energies, Index step, Hux64f* room);
void windowVariances(const Windows& windows, Hux32f inverse, Hux32f* variances, Index step, Hux64f* room);

}  // namespace hux
