// Allocation of images.
#include <cstdint>
#include <limits>

#include "core/scratch.h"
#include "core/stamp.h"
#include "huxi.h"

namespace hux {
namespace {

template <class T>
T* mallocImage(int width, int height, int channels, int* pStepBytes) {
  if (!pStepBytes) return nullptr;
  *pStepBytes = 0;
  if (width < 1 || height < 1) return nullptr;
  const std::uint64_t rowBytes = std::uint64_t(width) * sizeof(T) * unsigned(channels);
  const std::uint64_t step = (rowBytes + (kAlignment - 1)) & ~std::uint64_t(kAlignment - 1);
  *pStepBytes = int(std::uint32_t(step));
  // Steps and sizes are signed 32-bit numbers: an image that they cannot describe is refused, so that a wrapped product
  // never yields a block that is too small.
  const std::uint64_t limit = std::numeric_limits<std::int32_t>::max();
  if (step > limit || step * std::uint64_t(height) > limit) return nullptr;
  return static_cast<T*>(allocate(step * std::uint64_t(height)));
}

}  // namespace
}  // namespace hux

#define EXPORT_IMAGE(t, l, channels)                                                  \
  Hux##t* huxiMalloc_##t##_##l(int widthPixels, int heightPixels, int* pStepBytes) {  \
    return hux::mallocImage<Hux##t>(widthPixels, heightPixels, channels, pStepBytes); \
  }
#define EXPORT(t, _) \
  EXPORT_IMAGE(t, C1, 1) EXPORT_IMAGE(t, C2, 2) EXPORT_IMAGE(t, C3, 3) EXPORT_IMAGE(t, C4, 4) EXPORT_IMAGE(t, AC4, 4)
HUX_STAMP(EXPORT, (8u, 16u, 16s, 32s, 32f, 32sc, 32fc), (_))

#undef EXPORT
#undef EXPORT_IMAGE

void huxiFree(void* pImage) { hux::release(pImage); }
