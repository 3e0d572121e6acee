// The pixels at computed positions of an image, by the nearest pixel, linear or cubic interpolation: what remap and all
// warps share. Positions come in blocks, so that where they come from, which is often a chain of additions, is apart
// from what is done with them, which runs over vectors.
#pragma once

#include "geometry/image.h"

namespace hux {

// How many positions are computed before they are used.
inline constexpr Index kBlock = 128;

// Positions of neighbours in a row of the destination, in the coordinates of the source image.
struct Positions {
  alignas(64) Hux64f x[kBlock], y[kBlock];
};

// An image as positions see it.
struct Extent {
  Hux64f xMax, yMax, step, pixelBytes;
};

// Finds the places of n positions in an image, and takes the pixels of one plane from there.
struct Places;
using Locate = void (*)(const Extent& image, const Hux64f* x, const Hux64f* y, Index n, Places& places);
using Fetch = void (*)(const std::byte* plane, Index step, const Places& places, std::byte* dst, Index n);

// The sampler of one image. No position makes it read outside the image: pixels are looked for at its edge instead. So
// are those of NaNs, but it is the caller's part to leave those out.
class Sampler {
 public:
  // The interpolation gives way to what the image has room for: cubic needs four rows and columns, linear two.
  Sampler(const Format& format, const Image<const std::byte>& image, HuxiSize size, HuxiInterpolation interpolation);

  // Writes n pixels, up to a block, from `dst` on in each plane.
  void operator()(const Hux64f* x, const Hux64f* y, Index n, const std::array<std::byte*, 4>& dst) const;

 private:
  Image<const std::byte> image_;
  int planes_;
  Extent extent_;
  Locate locate_;
  Fetch fetch_;
};

}  // namespace hux
