// CrossCorr and SqrDistance: how well a template agrees with an image at each place, by normalised correlation, the
// same without the means, or normalised squared distance.
//
// The result is cut into tiles. The pixels that a tile sees are brought into a block of floats, whose transform times
// the template's spectrum is the sum of products at all places of the tile; sums over the windows make the
// denominators. Everything but bringing pixels in and putting results down is the same for all types and layouts.
#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "core/check.h"
#include "core/stamp.h"
#include "core/team.h"
#include "huxi_stats.h"
#include "stats/windows.h"
#include "workers/convert.h"
#include "workers/fft/blocks.h"

namespace hux {
namespace {

enum class Extent { full, same, valid };
enum class Measure { correlation, level, distance };

// --- Pixels.

// One channel of n pixels as floats, and back.
template <class T, int Channels>
void bring(const void* pixels, Index n, Hux32f* to) {
  const auto* p = static_cast<const Element<T>*>(pixels);
  if constexpr (Channels == 1)
    mapRow<C1>(p, elements(to), n, Converted<T, Hux32f>{});
  else
    for (Index x = 0; x < n; ++x) to[x] = Hux32f(T(p[x * Channels]));
}
// The results come in memory that may be used up.
template <class T, int Channels>
void put(Hux32f* from, Index n, void* pixels) {
  auto* p = static_cast<Element<T>*>(pixels);
  if constexpr (std::is_same_v<T, Hux32f>) {
    for (Index x = 0; x < n; ++x) p[x * Channels] = from[x];
  } else {
    auto* to = Channels == 1 ? p : elementsAs<T>(from);
    mapRow<C1>(elements(from), to, n, FromFloat<Hux32f, T, true>{});
    if constexpr (Channels != 1)
      for (Index x = 0; x < n; ++x) p[x * Channels] = to[x];
  }
}

// What tells a member's pixels from others', and the least that the terms of its denominators may be.
struct Pixels {
  Index channels, processed, bytes, resultBytes;
  void (*bring)(const void* pixels, Index n, Hux32f* to);
  void (*put)(Hux32f* from, Index n, void* pixels);
  bool areBytes;
  Hux32f floor;
};
template <class L, class S, class D>
inline constexpr Pixels kPixels = {
    L::channels,           L::processed,        sizeof(S),      sizeof(D),
    bring<S, L::channels>, put<D, L::channels>, sizeof(S) == 1, std::is_same_v<S, Hux32f> ? 0.0005f : 1.0f,
};

template <class P>
struct Image {
  P* first;
  Index step;
  HuxiSize size;
  // Channel c of a pixel, of pixels of so many elements of so many bytes.
  P* at(Index x, Index y, Index c, Index channels, Index bytes) const {
    return advance(first, y * step + (x * channels + c) * bytes);
  }
};
using Source = Image<const void>;
using Result = Image<void>;

// --- Tiles.

struct Axis {
  Index origin;  // of the window of the first result
  Index result;
  int order;
};
Axis axisOf(Extent extent, Index image, Index tpl) {
  Axis axis = extent == Extent::full   ? Axis{1 - tpl, image + tpl - 1, 0}
              : extent == Extent::same ? Axis{-(tpl >> 1), image, 0}
                                       : Axis{0, image - tpl + 1, 0};
  axis.order = fft::blockOrder(tpl, axis.result, 7);
  return axis;
}

// Places of results, and the pixels that their windows see.
struct Grid {
  Axis x, y;
  Index width, height, across, down;  // of a tile, and numbers of tiles
  Index columns, rows;                // of a block in memory

  // A full result that fits a block is one tile, though its windows reach beyond the block: what they see there are the
  // zeros around the image, in sums of products by way of the block's other end.
  Grid(Extent extent, HuxiSize image, HuxiSize tpl)
      : x(axisOf(extent, image.width, tpl.width)), y(axisOf(extent, image.height, tpl.height)) {
    const Index blockWidth = Index(1) << x.order, blockHeight = Index(1) << y.order;
    const bool whole = extent == Extent::full && blockWidth >= x.result && blockHeight >= y.result;
    width = whole ? x.result : blockWidth - tpl.width + 1;
    height = whole ? y.result : blockHeight - tpl.height + 1;
    across = (x.result + width - 1) / width, down = (y.result + height - 1) / height;
    columns = std::max(blockWidth, width + tpl.width - 1), rows = std::max(blockHeight, height + tpl.height - 1);
  }
};

// --- Denominators and results.

// 2^scaleFactor by its exponent, whose bits run on into the sign.
Hux32f powerOfTwo(int scaleFactor) { return std::bit_cast<Hux32f>((Hux32u(scaleFactor) + 127) << 23); }

// What a channel's template gives to denominators and, for distances, to numerators.
struct Terms {
  Hux32f denominator, squared;

  Terms() = default;
  Terms(Measure measure, Hux64f norm, Hux64f mean, Hux64f n, Hux32f floor, Hux32f factor)
      : squared(Hux32f(norm * norm)) {
    if (measure == Measure::level)
      denominator = std::max(Hux32f(norm * norm - n * mean * mean), floor) * factor * factor;
    else
      denominator = std::max(Hux32f(norm), floor) * factor;
    if (denominator < std::numeric_limits<Hux32f>::min()) denominator = 1;
  }
};

// Sums of products become results. For levels `energies` are those without the means.
template <Measure M>
void divideRow(Hux32f* __restrict sums, const Hux32f* __restrict energies, Index n, Terms terms, Hux32f floor) {
  for (Index x = 0; x < n; ++x) {
    const Hux32f energy = energies[x], floored = energy < floor ? floor : energy;
    if constexpr (M == Measure::level)
      sums[x] = sums[x] / std::sqrt(floored * terms.denominator);
    else if constexpr (M == Measure::correlation)
      sums[x] = sums[x] / (std::sqrt(floored) * terms.denominator);
    else
      sums[x] = (sums[x] * -2.0f + energy + terms.squared) / (std::sqrt(floored) * terms.denominator);
  }
}
void divideRow(Measure measure, Hux32f* sums, const Hux32f* energies, Index n, Terms terms, Hux32f floor) {
  const auto divide = measure == Measure::correlation ? divideRow<Measure::correlation>
                      : measure == Measure::level     ? divideRow<Measure::level>
                                                      : divideRow<Measure::distance>;
  divide(sums, energies, n, terms, floor);
}

// --- The work.

void normAndMean(Index channels, const Hux32f* pixels, HuxiSize size, Hux64f* norm, Hux64f* mean) {
  const int step = int(channels * size.width * Index(sizeof(Hux32f)));
  const auto measure = [=](auto normOf, auto meanOf) {
    normOf(pixels, step, size, norm, huxHintNone);
    meanOf(pixels, step, size, mean, huxHintNone);
  };
  if (channels == 1)
    measure(huxiNorm_L2_32f_C1R, huxiMean_32f_C1R);
  else if (channels == 3)
    measure(huxiNorm_L2_32f_C3R, huxiMean_32f_C3R);
  else
    measure(huxiNorm_L2_32f_C4R, huxiMean_32f_C4R);
}

constexpr std::size_t kLine = 64;  // of the cache

class Matcher {
 public:
  Matcher(const Pixels& pixels, Extent extent, Measure measure, Source src, Source tpl, Result dst, Hux32f factor)
      : pixels_(pixels),
        measure_(measure),
        src_(src),
        tpl_(tpl),
        dst_(dst),
        factor_(factor),
        grid_(extent, src.size, tpl.size),
        blocks_(grid_.x.order, grid_.y.order, grid_.columns) {}

  HuxStatus run() {
    if (HuxStatus s = blocks_.status()) return s;
    const TilePool pool = {spectraBytes() + sliceBytes(), sliceBytes()};
    const auto prepared = [&](std::byte* shared, Index& tiles) {
      prepare(shared);
      tiles = grid_.across * grid_.down;
      return huxStsOk;
    };
    const auto done = [&](Index number, std::byte* shared, std::byte* slice) {
      tile(number, shared, slice);
      return huxStsOk;
    };
    return measure_ == Measure::correlation ? oneByOne(pool, prepared, done) : runTiles(pool, prepared, done);
  }

 private:
  // The pool on the calling thread alone.
  template <class Prepare, class Body>
  static HuxStatus oneByOne(TilePool pool, Prepare prepare, Body body) {
    const Scratch<std::byte> memory(Index(pool.sharedBytes + pool.sliceBytes + kLine));
    if (!memory) return huxStsNoMem;
    auto* shared = reinterpret_cast<std::byte*>(roundedUp(reinterpret_cast<std::uintptr_t>(memory.get()), kLine));
    Index tiles = 0;
    HuxStatus status = prepare(shared, tiles);
    for (Index i = 0; i < tiles && !status; ++i) status = body(i, shared, shared + pool.sharedBytes);
    return status;
  }

  // Memory of one tile.
  struct Slice {
    Hux32f *block, *energies;
    Hux64f* sums;
    fft::Blocks::Room room;
  };
  Index energyStep() const { return (grid_.width + 15) / 16 * 16; }
  static std::size_t floats(Index count) { return roundedUp(std::size_t(count) * sizeof(Hux32f), kLine); }
  std::size_t blockBytes() const { return floats(blocks_.step() * grid_.rows); }
  std::size_t energyBytes() const { return floats(energyStep() * grid_.height); }
  std::size_t sumBytes() const { return floats(2 * windowRoom(grid_.width, tpl_.size.width)); }
  std::size_t sliceBytes() const { return blockBytes() + energyBytes() + sumBytes() + floats(blocks_.roomFloats()); }
  std::size_t spectraBytes() const { return floats(pixels_.processed * blocks_.spectrumFloats()); }
  Slice sliceAt(std::byte* memory) const {
    std::byte *energies = memory + blockBytes(), *sums = energies + energyBytes(), *room = sums + sumBytes();
    return {reinterpret_cast<Hux32f*>(memory), reinterpret_cast<Hux32f*>(energies), reinterpret_cast<Hux64f*>(sums),
            blocks_.room(reinterpret_cast<Hux32f*>(room))};
  }

  // Brings a rectangle of a channel to (left, top) of a block of zeros.
  void owniShiftClipRectZeroTail(const Source& image, Index c, HuxiRect from, Index left, Index top,
                                 Hux32f* block) const {
    const auto zero = [](Hux32f* first, Hux32f* last) { std::fill(first, last, 0.0f); };
    const Index step = blocks_.step();
    zero(block, block + top * step);
    for (Index y = 0; y < from.height; ++y) {
      Hux32f* row = block + (top + y) * step;
      zero(row, row + left);
      pixels_.bring(image.at(from.x, from.y + y, c, pixels_.channels, pixels_.bytes), from.width, row + left);
      zero(row + left + from.width, row + step);
    }
    zero(block + (top + from.height) * step, block + grid_.rows * step);
  }
  // The rows of a block that are not zeros alone.
  void rowsForward(RowRange rows, const Slice& slice) const {
    for (Index y = rows.first; y < rows.first + rows.count; ++y) {
      Hux32f* row = slice.block + y * blocks_.step();
      blocks_.rowForward(row, row, slice.room);
    }
  }

  void prepare(std::byte* shared) {
    auto* spectra = reinterpret_cast<Hux32f*>(shared);
    const Slice slice = sliceAt(shared + spectraBytes());
    const Index width = tpl_.size.width, height = tpl_.size.height, channels = pixels_.processed;
    Hux32f *all = slice.block, *row = slice.energies;
    for (Index y = 0; y < height; ++y)
      for (Index c = 0; c < channels; ++c) {
        pixels_.bring(tpl_.at(0, y, c, pixels_.channels, pixels_.bytes), width, row);
        for (Index x = 0; x < width; ++x) all[(y * width + x) * channels + c] = row[x];
      }
    Hux64f norm[4], mean[4];
    normAndMean(channels, all, tpl_.size, norm, mean);
    for (Index c = 0; c < channels; ++c) {
      terms_[c] = Terms(measure_, norm[c], mean[c], Hux64f(area(tpl_.size)), pixels_.floor, factor_);
      owniShiftClipRectZeroTail(tpl_, c, {0, 0, tpl_.size.width, tpl_.size.height}, 0, 0, slice.block);
      if (measure_ == Measure::level)
        for (Index y = 0; y < height; ++y)
          for (Index x = 0; x < width; ++x) slice.block[y * blocks_.step() + x] -= Hux32f(mean[c]);
      rowsForward({0, height}, slice);
      blocks_.columnsForward({0, height}, slice.block, spectra + c * blocks_.spectrumFloats(), true, slice.room);
    }
  }

  void tile(Index number, const std::byte* shared, std::byte* memory) const {
    const Slice slice = sliceAt(memory);
    const Index x = number % grid_.across * grid_.width, y = number / grid_.across * grid_.height;
    const Index width = std::min(grid_.width, grid_.x.result - x), height = std::min(grid_.height, grid_.y.result - y);
    // Where the window of the tile's first result begins, and the part of the block that lies in the image.
    const Index left = x + grid_.x.origin, top = y + grid_.y.origin;
    const Index outX = std::max<Index>(-left, 0), outY = std::max<Index>(-top, 0);
    const HuxiRect seen = {int(left + outX), int(top + outY),
                           int(std::min(src_.size.width - left, blocks_.width()) - outX),
                           int(std::min(src_.size.height - top, blocks_.height()) - outY)};
    const RowRange given{outY, seen.height};
    const Windows windows = {slice.block, blocks_.step(), tpl_.size.width, tpl_.size.height,
                             width,       height,         pixels_.areBytes};
    for (Index c = 0; c < pixels_.processed; ++c) {
      owniShiftClipRectZeroTail(src_, c, seen, outX, outY, slice.block);
      if (measure_ == Measure::level)
        windowVariances(windows, 1.0f / Hux32f(area(tpl_.size)), slice.energies, energyStep(), slice.sums);
      else
        owniAutoCorr(windows, slice.energies, energyStep(), slice.sums);
      rowsForward(given, slice);
      blocks_.columnsThrough(given, slice.block, reinterpret_cast<const Hux32f*>(shared) + c * blocks_.spectrumFloats(),
                             {0, height}, slice.room);
      for (Index row = 0; row < height; ++row) {
        Hux32f* sums = slice.block + row * blocks_.step();
        blocks_.rowInverse(sums, sums, slice.room);
        divideRow(measure_, sums, slice.energies + row * energyStep(), width, terms_[c], pixels_.floor);
        pixels_.put(sums, width, dst_.at(x, y + row, c, pixels_.channels, pixels_.resultBytes));
      }
    }
  }

  const Pixels& pixels_;
  Measure measure_;
  Source src_, tpl_;
  Result dst_;
  Hux32f factor_;
  Grid grid_;
  fft::Blocks blocks_;
  Terms terms_[4];
};

HuxStatus match(const Pixels& pixels, Extent extent, Measure measure, const void* pSrc, int srcStep, HuxiSize srcSize,
                const void* pTpl, int tplStep, HuxiSize tplSize, void* pDst, int dstStep, int scaleFactor) {
  const bool fits = tplSize.width <= srcSize.width && tplSize.height <= srcSize.height;
  if (HuxStatus s = check(pointers(pSrc, pTpl, pDst), size(srcSize), size(tplSize), failUnless(fits, huxStsBadSize),
                          steps(srcStep, tplStep, dstStep)))
    return s;
  return Matcher(pixels, extent, measure, {pSrc, srcStep, srcSize}, {pTpl, tplStep, tplSize}, {pDst, dstStep, {}},
                 powerOfTwo(scaleFactor))
      .run();
}

}  // namespace
}  // namespace hux

// Results in floats have no scale factor: that of 0.
#define EXPORT_MATCH(Name, extent, measure, types, s, d, l, suffix, scale, ...)                                        \
  HuxStatus huxi##Name##_##types##_##l##suffix(const Hux##s* pSrc, int srcStep, HuxiSize srcRoiSize,                   \
                                               const Hux##s* pTpl, int tplStep, HuxiSize tplRoiSize, Hux##d* pDst,     \
                                               int dstStep __VA_ARGS__) {                                              \
    return hux::match(hux::kPixels<hux::l, Hux##s, Hux##d>, hux::Extent::extent, hux::Measure::measure, pSrc, srcStep, \
                      srcRoiSize, pTpl, tplStep, tplRoiSize, pDst, dstStep, scale);                                    \
  }
#define EXPORT_EXTENT(N, extent, ...)                                 \
  EXPORT_MATCH(CrossCorr##N##_Norm, extent, correlation, __VA_ARGS__) \
  EXPORT_MATCH(CrossCorr##N##_NormLevel, extent, level, __VA_ARGS__)  \
  EXPORT_MATCH(SqrDistance##N##_Norm, extent, distance, __VA_ARGS__)
#define EXPORT_EXTENTS(...)              \
  EXPORT_EXTENT(Full, full, __VA_ARGS__) \
  EXPORT_EXTENT(Same, same, __VA_ARGS__) \
  EXPORT_EXTENT(Valid, valid, __VA_ARGS__)
#define EXPORT(_, l)                        \
  EXPORT_EXTENTS(32f, 32f, 32f, l, R, 0, )  \
  EXPORT_EXTENTS(8u32f, 8u, 32f, l, R, 0, ) \
  EXPORT_EXTENTS(8s32f, 8s, 32f, l, R, 0, ) \
  EXPORT_EXTENTS(8u, 8u, 8u, l, RSfs, scaleFactor, , int scaleFactor)
HUX_STAMP(EXPORT, (_), (C1, C3, C4, AC4))
