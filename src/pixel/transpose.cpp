// Transpose: pixel (x, y) goes to (y, x), in blocks that keep both images in cache.
#include <cstring>

#include "core/rows.h"
#include "core/simd.h"
#include "core/stamp.h"
#include "huxi_pixel.h"

namespace hux {
namespace {

// Pixels are moved as blocks of bytes: all that matters of type and layout is their size.
template <int Bytes>
struct Plane {
  std::byte* first;
  Index step;
  std::byte* at(Index x, Index y) const { return first + y * step + x * Bytes; }
};

// A square of 16 / Bytes pixels in registers: interleaving the first half of the rows with the second, as often as
// halving leads to one row, transposes it.
template <int Bytes>
void transposeSquare(const std::byte* src, Index srcStep, std::byte* dst, Index dstStep) {
  constexpr int n = 16 / Bytes;
  simd::Quad v[n], t[n];
  for (int i = 0; i < n; ++i) std::memcpy(&v[i], src + i * srcStep, 16);
  for (int stage = 1; stage < n; stage *= 2) {
    for (int i = 0; i < n / 2; ++i) {
      t[2 * i] = simd::zip<Bytes, false>(v[i], v[i + n / 2]);
      t[2 * i + 1] = simd::zip<Bytes, true>(v[i], v[i + n / 2]);
    }
    for (int i = 0; i < n; ++i) v[i] = t[i];
  }
  for (int i = 0; i < n; ++i) std::memcpy(dst + i * dstStep, &v[i], 16);
}

// The source region of `width` by `height` pixels at src, transposed to dst.
template <int Bytes>
void transposeBlock(const std::byte* src, Index srcStep, std::byte* dst, Index dstStep, Index width, Index height) {
  const auto plain = [&](Index x0, Index x1, Index y0, Index y1) {
    for (Index x = x0; x < x1; ++x)
      for (Index y = y0; y < y1; ++y) std::memcpy(dst + x * dstStep + y * Bytes, src + y * srcStep + x * Bytes, Bytes);
  };
  if constexpr (Bytes <= 4 && Bytes != 3) {
    constexpr Index n = 16 / Bytes;
    const Index wide = width / n * n, high = height / n * n;
    for (Index x = 0; x < wide; x += n)
      for (Index y = 0; y < high; y += n)
        transposeSquare<Bytes>(src + y * srcStep + x * Bytes, srcStep, dst + x * dstStep + y * Bytes, dstStep);
    plain(wide, width, 0, high);
    plain(0, width, high, height);
  } else {
    plain(0, width, 0, height);
  }
}

template <int Bytes>
void transposeImage(Plane<Bytes> src, Plane<Bytes> dst, Index width, Index height) {
  constexpr Index block = 64;
  for (Index y = 0; y < height; y += block)
    for (Index x = 0; x < width; x += block)
      transposeBlock<Bytes>(src.at(x, y), src.step, dst.at(y, x), dst.step, std::min(block, width - x),
                            std::min(block, height - y));
}

// Pairs of blocks across the diagonal change places, one of them by way of a copy; a block on the diagonal is its own
// pair.
template <int Bytes>
void transposeSquareImage(Plane<Bytes> image, Index size) {
  constexpr Index block = 32, keptStep = block * Bytes;
  std::byte kept[block * keptStep];
  for (Index y = 0; y < size; y += block)
    for (Index x = y; x < size; x += block) {
      const Index width = std::min(block, size - x), height = std::min(block, size - y);
      transposeBlock<Bytes>(image.at(x, y), image.step, kept, keptStep, width, height);
      if (x != y) transposeBlock<Bytes>(image.at(y, x), image.step, image.at(x, y), image.step, height, width);
      for (Index row = 0; row < width; ++row)
        std::memcpy(image.at(y, x + row), kept + row * keptStep, std::size_t(height * Bytes));
    }
}

template <class L, class T>
auto plane(const T* p, int step) {
  return Plane<L::channels* int(sizeof(T))>{const_cast<std::byte*>(reinterpret_cast<const std::byte*>(p)), step};
}

template <class L, class T>
HuxStatus transpose(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi))) return s;
  transposeImage(plane<L>(pSrc, srcStep), plane<L>(pDst, dstStep), roi.width, roi.height);
  return huxStsOk;
}

template <class L, class T>
HuxStatus transposeInPlace(T* pSrcDst, int step, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrcDst), size(roi), failUnless(roi.width == roi.height, huxStsBadSize))) return s;
  transposeSquareImage(plane<L>(pSrcDst, step), roi.width);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                                   \
  HuxStatus huxiTranspose_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize roiSize) { \
    return hux::transpose<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize);                                              \
  }                                                                                                                    \
  HuxStatus huxiTranspose_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize) {                           \
    return hux::transposeInPlace<hux::l>(pSrcDst, srcDstStep, roiSize);                                                \
  }
HUX_STAMP(EXPORT, (8u, 16u, 32s), (C1, C3, C4))
