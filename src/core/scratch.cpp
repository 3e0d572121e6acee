// Aligned allocation. A block is a malloc region of the requested bytes plus 36; the block starts at the raw pointer
// plus 35 rounded down to a multiple of 32, and the word before it holds the raw pointer. That word is pointer-sized:
// malloc returns multiples of 8, so at least 8 bytes always lie between the raw pointer and the block.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "core/scratch.h"

namespace hux {

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

}  // namespace hux
