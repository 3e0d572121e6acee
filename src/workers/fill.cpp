#include "workers/fill.h"

#include <cstring>

#include "lanes/simd.h"

namespace hux {
namespace {

template <class T>
void fill(T value, Element<T>* pDst, Index len) {
  for (Index i = 0; i < len; ++i) pDst[i] = value;
}

template <class T>
void copyForward(const void* pSrc, void* pDst, Index len) {
  auto* src = static_cast<const Element<T>*>(pSrc);
  auto* dst = static_cast<Element<T>*>(pDst);
  for (Index i = 0; i < len; ++i) dst[i] = src[i];
}

// Only the lines that the row fills are streamed: its first and last bytes share theirs with other data.
void copyStreaming(const std::byte* src, std::byte* dst, Index bytes) {
  const Index head = simd::pixelsToBoundary(dst, 1), end = head + (bytes - head) / simd::kBytes * simd::kBytes;
  std::memcpy(dst, src, std::size_t(head));
  for (Index i = head; i < end; i += simd::kBytes) simd::stream(dst + i, simd::load(src + i));
  std::memcpy(dst + end, src + end, std::size_t(bytes - end));
}

}  // namespace

void ownsSet_8u(Hux8u value, Element<Hux8u>* pDst, Index len) { std::memset(pDst, value, std::size_t(len)); }
void ownsSet_16u(Hux16u value, Element<Hux16u>* pDst, Index len) { fill(value, pDst, len); }
void ownsSet_32s(Hux32s value, Element<Hux32s>* pDst, Index len) { fill(value, pDst, len); }
void ownsZero_8u(void* pDst, Index bytes) { std::memset(pDst, 0, std::size_t(bytes)); }

void ownsCopy_8u(const void* pSrc, void* pDst, Index bytes, int elementBytes, bool streaming) {
  const auto ahead = reinterpret_cast<std::uintptr_t>(pDst) - reinterpret_cast<std::uintptr_t>(pSrc);
  const bool apart = ahead >= std::uintptr_t(bytes) && -ahead >= std::uintptr_t(bytes);
  if (streaming && apart && bytes >= 2 * simd::kBytes) {
    copyStreaming(static_cast<const std::byte*>(pSrc), static_cast<std::byte*>(pDst), bytes);
  } else if (ahead >= std::uintptr_t(bytes) || ahead == 0) {
    std::memmove(pDst, pSrc, std::size_t(bytes));  // behind the source or clear of it: first to last is a plain move
  } else if (elementBytes == 1) {
    copyForward<Hux8u>(pSrc, pDst, bytes);
  } else if (elementBytes == 2) {
    copyForward<Hux16u>(pSrc, pDst, bytes / 2);
  } else {
    copyForward<Hux32u>(pSrc, pDst, bytes / 4);
  }
}

}  // namespace hux
