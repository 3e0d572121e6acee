// Aligned allocation. A block is a malloc region of the requested bytes plus 36; the block starts at the raw pointer
// plus 35 rounded down to a multiple of 32, and the word before it holds the raw pointer. That word is pointer-sized:
// malloc returns multiples of 8, so at least 8 bytes always lie between the raw pointer and the block.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "core/scratch.h"
#include "core/stamp.h"
#include "huxi.h"
#include "huxs.h"

namespace hux {

constexpr int kAlignment = 32;

void* allocate(std::size_t bytes) {
  constexpr std::size_t kOverhead = 36;
  if (bytes > std::numeric_limits<std::size_t>::max() - kOverhead) return nullptr;
  void* raw = std::malloc(bytes + kOverhead);
  if (!raw) return nullptr;
  const auto block = (reinterpret_cast<std::uintptr_t>(raw) + 35) & ~std::uintptr_t(kAlignment - 1);
  void* result = reinterpret_cast<void*>(block);
  std::memcpy(static_cast<std::byte*>(result) - sizeof raw, &raw, sizeof raw);
  return result;
}

void release(void* block) {
  if (!block) return;
  void* raw;
  std::memcpy(&raw, static_cast<std::byte*>(block) - sizeof raw, sizeof raw);
  std::free(raw);
}

namespace {

template <class T>
T* mallocVector(int len) {
  return len < 1 ? nullptr : static_cast<T*>(allocate(std::size_t(len) * sizeof(T)));
}

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

#define EXPORT(t, _) \
  Hux##t* huxsMalloc_##t(int len) { return hux::mallocVector<Hux##t>(len); }
HUX_STAMP(EXPORT, (8u, 8s, 16u, 16s, 32u, 32s, 32f, 16sc, 32sc, 32fc, 64fc), (_))
#undef EXPORT

#define EXPORT_IMAGE(t, l, channels)                                                  \
  Hux##t* huxiMalloc_##t##_##l(int widthPixels, int heightPixels, int* pStepBytes) {  \
    return hux::mallocImage<Hux##t>(widthPixels, heightPixels, channels, pStepBytes); \
  }
#define EXPORT(t, _) \
  EXPORT_IMAGE(t, C1, 1) EXPORT_IMAGE(t, C2, 2) EXPORT_IMAGE(t, C3, 3) EXPORT_IMAGE(t, C4, 4) EXPORT_IMAGE(t, AC4, 4)
HUX_STAMP(EXPORT, (8u, 16u, 16s, 32s, 32f, 32sc, 32fc), (_))

void huxsFree(void* pVector) { hux::release(pVector); }
void huxiFree(void* pImage) { hux::release(pImage); }
