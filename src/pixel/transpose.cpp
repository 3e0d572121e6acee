// Transpose: pixel (x, y) goes to (y, x), in blocks that keep both images in cache.
#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#include "core/rows.h"
#include "core/stamp.h"
#include "huxi_pixel.h"
#include "lanes/unrolled.h"
#include "lanes/windows.h"

namespace hux {
namespace {

// Pixels are moved as blocks of bytes: all that matters of type and layout is their size.
template <int Bytes>
struct Plane {
  std::byte* first;
  Index step;
  std::byte* at(Index x, Index y) const { return first + y * step + x * Bytes; }
};

// Transposes the squares of cells that the lanes of these vectors hold, a row in each vector: interleaving the first
// half of the vectors with the second, as often as halving leads to one.
template <int Cell, class V, std::size_t N>
HUX_INLINE inline void transposeLanes(V (&v)[N]) {
  static_assert(N * Cell == 16);
  for (std::size_t stage = 1; stage < N; stage *= 2) {
    V t[N];
    for (std::size_t i = 0; i < N / 2; ++i) {
      t[2 * i] = simd::zip < Cell == 16 ? 8 : Cell, false > (v[i], v[i + N / 2]);
      t[2 * i + 1] = simd::zip < Cell == 16 ? 8 : Cell, true > (v[i], v[i + N / 2]);
    }
    for (std::size_t i = 0; i < N; ++i) v[i] = t[i];
  }
}

// Transposes `rows` by `columns` pixels of Bytes bytes in registers, to `columns` rows of whole vectors.
//
// Of each source row 16 bytes are loaded, rows to lanes in such a way that lane l of vector i holds row l * columns +
// i. With the square of each lane transposed, vector x is column x of all these rows in order. A pixel of three times a
// power of two bytes is moved in a cell of four times that; its groups of vectors are closed up when they are stored.
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
      V v[columns];
      for (int i = 0; i < columns; ++i) {
        v[i] = simd::loadQuads<V>(src + (g * groupRows + i) * srcStep - (Before ? rest : 0), columns * srcStep);
        if constexpr (cell != Bytes) v[i] = simd::permute<Open<Before>, 1>(&v[i]);
      }
      transposeLanes<cell>(v);
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
};

// The same of pixels of three times a power of two bytes, where vectors are short: lanes hold rows of their own, so
// that pixels are closed up without leaving their lane.
template <int Bytes>
struct LaneSquare {
  static constexpr int cell = 4 * Bytes / 3;
  static constexpr int columns = 16 / cell;
  static constexpr int laneRows = 4 * columns;
  static constexpr int rows = kWindows * laneRows;
  static constexpr int rest = 4;
  using V = WindowBytes;

  // Picks the same bytes in each lane; source(j) for byte j of one.
  template <class Source>
  static constexpr auto picks(Source source) {
    std::array<std::uint8_t, sizeof(V)> all{};
    for (int j = 0; j < int(sizeof(V)); ++j) all[std::size_t(j)] = std::uint8_t(source(j % 16));
    return all;
  }
  template <bool Before>
  static V open(V v) {
    static constexpr auto pick =
        picks([](int j) { return j % cell < Bytes ? (Before ? rest : 0) + j / cell * Bytes + j % cell : 0x80; });
    return Before || columns > 1 ? pickBytes(v, loadLanes<V>(pick.data())) : v;
  }
  // The 12 bytes of group g's pixels at the places that they have among those of all groups, modulo 16.
  template <int G>
  static V placed(V v) {
    static constexpr auto pick = picks([](int j) {
      const int q = (j - 12 * G + 48) % 16;
      return q < 12 ? q / Bytes * cell + q % Bytes : 0x80;
    });
    return pickBytes(v, loadLanes<V>(pick.data()));
  }
  // Of each lane the first `Words` words of a, the others of b.
  template <int Words>
  static V joined(V a, V b) {
    using W = Lanes<Hux32u, int(sizeof(V)) / 4>;
    return [&]<std::size_t... I>(std::index_sequence<I...>) {
      return V(__builtin_shufflevector(W(a), W(b), (int(I) % 4 < Words ? int(I) : int(I) + lanesIn<W>)...));
    }
    (std::make_index_sequence<std::size_t(lanesIn<W>)>{});
  }

  template <bool Before, bool PastCache>
  static void move(const std::byte* src, Index srcStep, std::byte* dst, Index dstStep) {
    V column[columns][4];
    for (int g = 0; g < 4; ++g) {
      V v[columns];
      for (int i = 0; i < columns; ++i)
        v[i] = open<Before>(
            simd::loadQuads<V>(src + (g * columns + i) * srcStep - (Before ? rest : 0), laneRows * srcStep));
      transposeLanes<cell>(v);
      for (int x = 0; x < columns; ++x) column[x][g] = v[x];
    }
    for (int x = 0; x < columns; ++x) {
      const V a = placed<0>(column[x][0]), b = placed<1>(column[x][1]);
      const V c = placed<2>(column[x][2]), d = placed<3>(column[x][3]);
      const V closed[3] = {joined<3>(a, b), joined<2>(b, c), joined<1>(c, d)};
      for (int l = 0; l < kWindows; ++l)
        for (int k = 0; k < 3; ++k) {
          simd::Quad quad;
          std::memcpy(&quad, reinterpret_cast<const std::byte*>(&closed[k]) + 16 * l, 16);
          std::byte* to = dst + x * dstStep + (3 * l + k) * 16;
          if constexpr (PastCache)
            simd::stream(to, quad);
          else
            std::memcpy(to, &quad, 16);
        }
    }
  }
};

// The same without picks of bytes: a word holds the pixel of a row and what lies beside it, and shifts close four of
// them up to three words.
template <int Bytes>
struct WordSquare {
  static constexpr int columns = 1, rows = 4;

  template <bool Before, bool PastCache>
  static void move(const std::byte* src, Index srcStep, std::byte* dst, Index) {
    if constexpr (Bytes == 12) {
      using W = Lanes<Hux32u, 4>;
      const auto pixel = [&](int row) {
        const W w = loadLanes<W>(src + row * srcStep - (Before ? 4 : 0));
        return Before ? W(__builtin_shufflevector(w, w, 1, 2, 3, 3)) : w;
      };
      const W a = pixel(0), b = pixel(1), c = pixel(2), d = pixel(3);
      storeLanes(dst, W(__builtin_shufflevector(a, b, 0, 1, 2, 4)));
      storeLanes(dst + 16, W(__builtin_shufflevector(b, c, 1, 2, 4, 5)));
      storeLanes(dst + 32, W(__builtin_shufflevector(c, d, 2, 4, 5, 6)));
    } else {
      using W = std::conditional_t<Bytes == 3, std::uint32_t, std::uint64_t>;
      constexpr int third = 8 * Bytes / 3;
      const auto pixel = [&](int row) {
        W w;
        std::memcpy(&w, src + row * srcStep - (Before ? int(sizeof w) - Bytes : 0), sizeof w);
        return Before ? w >> third : w & ((W(1) << 3 * third) - 1);
      };
      const W a = pixel(0), b = pixel(1), c = pixel(2), d = pixel(3);
      const auto put = [&](int k, W w) { std::memcpy(dst + k * int(sizeof w), &w, sizeof w); };
      put(0, a | (b << 3 * third));
      put(1, (b >> third) | (c << 2 * third));
      put(2, (c >> 2 * third) | (d << third));
    }
  }
};

// A source region S::rows high. The last columns may be moved twice, so that all are moved in registers.
template <int Bytes, class S, bool PastCache>
void transposeStrip(const std::byte* src, Index srcStep, std::byte* dst, Index dstStep, Index width) {
  for (Index next = 0; next < width; next += S::columns) {
    const Index x = std::min(next, width - S::columns);
    if (x * Bytes + 16 <= width * Bytes)
      S::template move<false, PastCache>(src + x * Bytes, srcStep, dst + x * dstStep, dstStep);
    else
      S::template move<true, PastCache>(src + x * Bytes, srcStep, dst + x * dstStep, dstStep);
  }
}

template <int Bytes>
constexpr bool kThirds = Bytes % 3 == 0;
template <int Bytes>
using WideSquare =
    std::conditional_t<!kThirds<Bytes>, Square<Bytes, simd::Quads>,
                       std::conditional_t<simd::kBytes == 64, Square<Bytes, simd::Vec, 4>,
                                          std::conditional_t<simd::kPermutes, LaneSquare<Bytes>, WordSquare<Bytes>>>>;
template <int Bytes>
using NarrowSquare =
    std::conditional_t<simd::kPermutes || !kThirds<Bytes>,
                       Square<Bytes, std::conditional_t<kThirds<Bytes>, simd::Vec, simd::Quad>>, WordSquare<Bytes>>;

// The source region of `width` by `height` pixels at src, transposed to dst, which lies elsewhere. With PastCache,
// columns of the destination are vectors and so many.
template <int Bytes, bool PastCache = false>
void transposeBlock(const std::byte* src, Index srcStep, std::byte* dst, Index dstStep, Index width, Index height) {
  const auto inStrips = [&]<class S>(S) {
    for (Index next = 0; next < height; next += S::rows) {
      const Index y = std::min(next, height - S::rows);
      transposeStrip<Bytes, S, PastCache>(src + y * srcStep, srcStep, dst + y * Bytes, dstStep, width);
    }
  };
  if (width * Bytes >= 16) {
    if (height >= WideSquare<Bytes>::rows) return inStrips(WideSquare<Bytes>{});
    if constexpr (!PastCache)
      if (height >= NarrowSquare<Bytes>::rows) return inStrips(NarrowSquare<Bytes>{});
  }
  // By way of a copy: where an image's rows lie over each other, so may a pixel and its mirror.
  for (Index x = 0; x < width; ++x)
    for (Index y = 0; y < height; ++y) {
      std::byte pixel[Bytes];
      std::memcpy(pixel, src + y * srcStep + x * Bytes, Bytes);
      std::memcpy(dst + x * dstStep + y * Bytes, pixel, Bytes);
    }
}

// Blocks of as many pixels as fill whole lines, on both sides, by way of a copy: rows of an image are often so far
// apart that their lines compete for few places in the cache, those of the copy do not. So each line of the source is
// read at once, and of the destination few are begun before they are full. Large pixels take two lines, which memory
// fetches together.
template <int Bytes>
constexpr Index kLinePixels = (Bytes < 4 || kThirds<Bytes> ? 64 : 128) / (Bytes & -Bytes);
template <int Bytes>
constexpr Index kTallPixels = kLinePixels<Bytes>*(Bytes > 6   ? 1
                                                  : Bytes < 3 ? 4
                                                              : 2);
template <int Bytes, class S>
void transposeLines(const std::byte* src, Index srcStep, std::byte* dst, Index dstStep, Index rows) {
  constexpr Index side = kLinePixels<Bytes>, step = side * Bytes;
  alignas(64) std::byte kept[kTallPixels<Bytes> * step + 16];
  for (Index y = 0; y < rows; ++y)
    for (Index k = 0; k < step; k += Index(sizeof(WindowBytes)))
      storeLanes(kept + y * step + k, loadLanes<WindowBytes>(src + y * srcStep + k));
  for (Index x = 0; x < side; x += S::columns)
    for (Index y = 0; y < rows; y += S::rows)
      S::template move<false, false>(kept + y * step + x * Bytes, step, dst + x * dstStep + y * Bytes, dstStep);
}

// The same past the cache, of so many rows that each row of the destination takes several lines one after the other:
// memory is slow to write single ones.
template <int Bytes, class S>
void streamLines(const std::byte* src, Index srcStep, std::byte* dst, Index dstStep) {
  constexpr Index side = kLinePixels<Bytes>, step = kTallPixels<Bytes> * Bytes;
  alignas(64) std::byte turned[side * step];
  transposeLines<Bytes, S>(src, srcStep, turned, step, kTallPixels<Bytes>);
  for (Index x = 0; x < side; ++x)
    for (Index k = 0; k < step; k += Index(sizeof(WindowBytes)))
      simd::stream(dst + x * dstStep + k, loadLanes<WindowBytes>(turned + x * step + k));
}

// In tiles, so that the pages of both images are used well before they are left.
template <int Bytes, bool PastCache>
void transposeTiles(Plane<Bytes> src, Plane<Bytes> dst, Index width, Index top, Index bottom) {
  const auto forTiles = [=](Index tileWidth, auto body) {
    constexpr Index tileHeight = 512;
    for (Index y = top; y < bottom; y += tileHeight)
      for (Index x = 0; x < width; x += tileWidth)
        body(x, y, std::min(x + tileWidth, width), std::min(y + tileHeight, bottom));
  };
  if constexpr (simd::kBytes < 64) {
    // The last blocks may lie over those before them.
    constexpr Index side = kLinePixels<Bytes>, tall = PastCache ? kTallPixels<Bytes> : side;
    if (width >= side && bottom - top >= tall)
      return forTiles(512, [=](Index left, Index above, Index right, Index below) {
        for (Index nextY = above; nextY < below; nextY += tall)
          for (Index nextX = left; nextX < right; nextX += side) {
            const Index x = std::min(nextX, width - side), y = std::min(nextY, bottom - tall);
            if constexpr (PastCache)
              streamLines<Bytes, WideSquare<Bytes>>(src.at(x, y), src.step, dst.at(y, x), dst.step);
            else
              transposeLines<Bytes, WideSquare<Bytes>>(src.at(x, y), src.step, dst.at(y, x), dst.step, side);
          }
      });
  }
  // What a strip has written of the destination's lines is still in the cache when the next strip adds the rest: rows
  // of large pixels are often so far apart that their lines compete for few places.
  forTiles(PastCache || Bytes <= 4 ? 512 : 256 / Bytes, [=](Index x, Index y, Index right, Index below) {
    transposeBlock<Bytes, PastCache>(src.at(x, y), src.step, dst.at(y, x), dst.step, right - x, below - y);
  });
}

template <int Bytes>
void transposeImage(Plane<Bytes> src, Plane<Bytes> dst, Index width, Index height, bool streaming) {
  constexpr Index rows = simd::kBytes < 64 ? kLinePixels<Bytes> : WideSquare<Bytes>::rows;
  const bool vectors =
      dst.step % 64 == 0 && width >= rows && width * Bytes >= 16 && height >= 2 * std::max(rows, kTallPixels<Bytes>);
  const Index head = streaming && vectors ? simd::pixelsToBoundary(dst.first, Bytes, 64) : -1;
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
