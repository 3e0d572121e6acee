// Transpose: pixel (x, y) goes to (y, x), in blocks that keep both images in cache.
#include <algorithm>
#include <bit>
#include <cstring>

#include "core/rows.h"
#include "core/stamp.h"
#include "huxi_pixel.h"
#include "lanes/simd.h"

namespace hux {
namespace {

// Pixels are moved as blocks of bytes: all that matters of type and layout is their size.
template <int Bytes>
struct Plane {
  std::byte* first;
  Index step;
  std::byte* at(Index x, Index y) const { return first + y * step + x * Bytes; }
};

// Transposes `rows` by `columns` pixels of Bytes bytes in registers, to `columns` rows of whole vectors.
//
// Of each source row 16 bytes are loaded, rows to lanes in such a way that lane l of vector i holds row l * columns +
// i. Interleaving the first half of the vectors with the second, as often as halving leads to one, transposes the
// square of each lane, after which vector x is column x of all these rows in order. A pixel of three times a power of
// two bytes is moved in a cell of four times that; its groups of vectors are closed up when they are stored.
template <int Bytes, class V, int Groups = 1>
struct Square {
  static constexpr int cell = int(std::bit_ceil(unsigned(Bytes)));
  static constexpr int columns = 16 / cell;
  static constexpr int groupRows = int(sizeof(V)) / 16 * columns;
  static constexpr int rows = Groups * groupRows;
  static constexpr int rest = 16 - columns * Bytes;  // bytes loaded beyond the pixels, or before them

  template <bool Before>
  struct Open {
    static constexpr int source(int j) {
      return j % cell < Bytes ? j / 16 * 16 + (Before ? rest : 0) + j % 16 / cell * Bytes + j % cell : -1;
    }
  };
  template <int Out>
  struct Close {
    static constexpr int source(int j) {
      const int pixel = (Out * int(sizeof(V)) + j) / Bytes, byte = (Out * int(sizeof(V)) + j) % Bytes;
      return pixel < rows ? pixel * cell + byte : -1;
    }
  };

  template <bool Before, bool PastCache>
  static void move(const std::byte* src, Index srcStep, std::byte* dst, Index dstStep) {
    V column[columns][Groups];
    for (int g = 0; g < Groups; ++g) {
      [[maybe_unused]] V v[columns], t[columns];
      for (int i = 0; i < columns; ++i) {
        v[i] = simd::loadQuads<V>(src + (g * groupRows + i) * srcStep - (Before ? rest : 0), columns * srcStep);
        if constexpr (cell != Bytes) v[i] = simd::permute<Open<Before>, 1>(&v[i]);
      }
      if constexpr (columns > 1) {
        for (int stage = 1; stage < columns; stage *= 2) {
          for (int i = 0; i < columns / 2; ++i) {
            t[2 * i] = simd::zip<cell, false>(v[i], v[i + columns / 2]);
            t[2 * i + 1] = simd::zip<cell, true>(v[i], v[i + columns / 2]);
          }
          for (int i = 0; i < columns; ++i) v[i] = t[i];
        }
      }
      for (int x = 0; x < columns; ++x) column[x][g] = v[x];
    }
    for (int x = 0; x < columns; ++x) {
      std::byte* to = dst + x * dstStep;
      const auto put = [&](int k, V v) {
        if constexpr (PastCache)
          simd::stream(to + k * sizeof v, v);
        else
          std::memcpy(to + k * sizeof v, &v, std::min(sizeof v, std::size_t(rows * Bytes)));
      };
      if constexpr (cell == Bytes) {
        put(0, column[x][0]);
      } else {
        put(0, simd::permute<Close<0>, Groups>(column[x]));
        if constexpr (Groups == 4) {
          put(1, simd::permute<Close<1>, Groups>(column[x]));
          put(2, simd::permute<Close<2>, Groups>(column[x]));
        }
      }
    }
  }

  // A source region `rows` high. The last columns may be moved twice, so that all are moved in registers.
  template <bool PastCache>
  static void strip(const std::byte* src, Index srcStep, std::byte* dst, Index dstStep, Index width) {
    for (Index next = 0; next < width; next += columns) {
      const Index x = std::min(next, width - columns);
      if (x * Bytes + 16 <= width * Bytes)
        move<false, PastCache>(src + x * Bytes, srcStep, dst + x * dstStep, dstStep);
      else
        move<true, PastCache>(src + x * Bytes, srcStep, dst + x * dstStep, dstStep);
    }
  }
};

template <int Bytes>
constexpr bool kThirds = Bytes % 3 == 0;
template <int Bytes>
using WideSquare = Square<Bytes, simd::Vec, kThirds<Bytes> ? 4 : 1>;
template <int Bytes>
using NarrowSquare = Square<Bytes, std::conditional_t<kThirds<Bytes>, simd::Vec, simd::Quad>>;

// The source region of `width` by `height` pixels at src, transposed to dst, which lies elsewhere. With PastCache,
// columns of the destination are vectors and so many.
template <int Bytes, bool PastCache = false>
void transposeBlock(const std::byte* src, Index srcStep, std::byte* dst, Index dstStep, Index width, Index height) {
  const auto inStrips = [&]<class S>(S) {
    for (Index next = 0; next < height; next += S::rows) {
      const Index y = std::min(next, height - S::rows);
      S::template strip<PastCache>(src + y * srcStep, srcStep, dst + y * Bytes, dstStep, width);
    }
  };
  if ((simd::kPermutes || !kThirds<Bytes>)&&width * Bytes >= 16) {
    if (height >= WideSquare<Bytes>::rows) return inStrips(WideSquare<Bytes>{});
    if constexpr (!PastCache)
      if (height >= NarrowSquare<Bytes>::rows) return inStrips(NarrowSquare<Bytes>{});
  }
  for (Index x = 0; x < width; ++x)
    for (Index y = 0; y < height; ++y) std::memcpy(dst + x * dstStep + y * Bytes, src + y * srcStep + x * Bytes, Bytes);
}

// In tiles, so that the pages of both images are used well before they are left, and that what a strip has written of
// the destination's lines is still in the cache when the next strip adds the rest: rows of large pixels are often so
// far apart that their lines compete for few places. Where a vector is less than a line, a tile is as narrow as a line
// of the source, since the rest of each line of the destination is written when as many lines have been begun as the
// tile has columns.
template <int Bytes, bool PastCache>
void transposeTiles(Plane<Bytes> src, Plane<Bytes> dst, Index width, Index top, Index bottom) {
  constexpr Index tileHeight = 512, tileWidth = simd::kBytes < 64         ? std::max(64 / Bytes, 4)
                                                : PastCache || Bytes <= 4 ? 512
                                                                          : 256 / Bytes;
  for (Index y = top; y < bottom; y += tileHeight)
    for (Index x = 0; x < width; x += tileWidth)
      transposeBlock<Bytes, PastCache>(src.at(x, y), src.step, dst.at(y, x), dst.step, std::min(tileWidth, width - x),
                                       std::min(tileHeight, bottom - y));
}

template <int Bytes>
void transposeImage(Plane<Bytes> src, Plane<Bytes> dst, Index width, Index height, bool streaming) {
  constexpr Index rows = WideSquare<Bytes>::rows;
  const bool vectors = dst.step % simd::kBytes == 0 && width * Bytes >= 16 && height >= 2 * rows;
  const Index head = streaming && vectors ? simd::pixelsToBoundary(dst.first, Bytes) : -1;
  if (head < 0) return transposeTiles<Bytes, false>(src, dst, width, 0, height);
  const Index end = head + (height - head) / rows * rows;
  if (head > 0) transposeTiles<Bytes, false>(src, dst, width, 0, rows);
  transposeTiles<Bytes, true>(src, dst, width, head, end);
  if (end < height) transposeTiles<Bytes, false>(src, dst, width, height - rows, height);
}

// Pairs of blocks across the diagonal change places, one of them by way of a copy; a block on the diagonal is its own
// pair.
template <int Bytes>
void transposeSquareImage(Plane<Bytes> image, Index size) {
  constexpr Index block = 64, keptStep = block * Bytes;
  std::byte kept[block * keptStep];
  for (Index y = 0; y < size; y += block)
    for (Index x = y; x < size; x += block) {
      const Index width = std::min(block, size - x), height = std::min(block, size - y);
      transposeBlock<Bytes>(image.at(x, y), image.step, kept, keptStep, width, height);
      if (x != y) transposeBlock<Bytes>(image.at(y, x), image.step, image.at(x, y), image.step, height, width);
      for (Index row = 0; row < width; ++row)
        if (height == block)
          std::memcpy(image.at(y, x + row), kept + row * keptStep, keptStep);
        else
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
  const simd::Streaming streaming(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep));
  transposeImage(plane<L>(pSrc, srcStep), plane<L>(pDst, dstStep), roi.width, roi.height, streaming);
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
