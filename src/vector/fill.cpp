#include "vector/fill.h"

#include <cstring>

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

}  // namespace

void ownsSet_8u(Hux8u value, Element<Hux8u>* pDst, Index len) { std::memset(pDst, value, std::size_t(len)); }
void ownsSet_16u(Hux16u value, Element<Hux16u>* pDst, Index len) { fill(value, pDst, len); }
void ownsSet_32s(Hux32s value, Element<Hux32s>* pDst, Index len) { fill(value, pDst, len); }
void ownsZero_8u(void* pDst, Index bytes) { std::memset(pDst, 0, std::size_t(bytes)); }

void ownsCopy_8u(const void* pSrc, void* pDst, Index bytes, int elementBytes) {
  const auto ahead = reinterpret_cast<std::uintptr_t>(pDst) - reinterpret_cast<std::uintptr_t>(pSrc);
  if (ahead >= std::uintptr_t(bytes) || ahead == 0) {
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
