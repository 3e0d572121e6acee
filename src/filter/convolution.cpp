// ConvFull and ConvValid: the convolution of two images, and that part of it where the smaller lies within the larger.
//
// There are three ways: a sum as it stands, by the spectra of both images, and by those of blocks of the larger one.
// They round differently, so which is taken at what sizes is part of the result. All of them work on one channel;
// images of several are taken apart and put together again.
#include <cmath>
#include <limits>

#include "core/stamp.h"
#include "huxi_arith.h"
#include "huxi_filter.h"
#include "huxi_pixel.h"
#include "workers/channels.h"
#include "workers/convert.h"
#include "workers/fft/blocks.h"
#include "workers/taps_sum.h"

namespace hux {
namespace {

using fft::Blocks;

template <class T>
struct Image {
  const T* first;
  int step;
  HuxiSize size;

  const Element<T>* row(Index y) const { return advance(elements(first), y * step); }
};

// The sizes of results, which may be beyond those of an image.
struct Extent {
  Index width, height;

  // In double precision, for the product may be beyond 64 bits.
  Index areaUpTo(Index most) const { return Index(std::min(Hux64f(width) * Hux64f(height), Hux64f(most))); }
  bool fits(Index elements) const { return areaUpTo(elements) < elements; }
};
constexpr Index kMostElements = Index(1) << 40;  // no machine has the memory of more

// What becomes of a sum of a transform, and of one that was added up.
template <class T>
struct Ending {
  Hux32f recip;
  FromScaledFloat<Hux32f, Hux32f, T, true> ofTransform() const { return {recip}; }
  auto ofSum() const { return ofTransform(); }
};
template <>
struct Ending<Hux32f> {
  Same<Hux32f> ofTransform() const { return {}; }
  auto ofSum() const {
    return [](auto sum) { return sum; };
  }
};

// Half up, in single precision.
struct HalfUp {
  static constexpr int lanes = laneCount<Hux32f>;
  Hux32f recip;
  template <class V>
  auto operator()(V sum) const {
    using Floats = Lanes<Hux32f, lanesIn<V>>;
    Floats f;
    if constexpr (std::is_same_v<LaneType<V>, Hux32f>)
      f = sum * recip;
    else
      f = convert<Hux32f>(Lanes<Hux32s, lanesIn<V>>(sum)) * recip;
    return convert<Hux32s>(lesser(greater(f, Floats{}) + 0.5f, splat<Floats>(255)));
  }
};
template <>
struct Ending<Hux8u> {
  Hux32f recip;
  FromScaledFloat<Hux32f, Hux32f, Hux8u, true> ofTransform() const { return {recip}; }
  HalfUp ofSum() const { return {recip}; }
};

// --- By blocks.

// Along one axis: how large blocks are, and how many results each gives.
struct Division {
  int order;
  Index step, count;
};
// At least twice the smaller image; four times, where the result is as large, up to 256.
Division divided(Index small, Index result) {
  const int order = fft::blockOrder(small, result, 8);
  const Index step = (Index(1) << order) - small + 1;
  return {order, step, (result + step - 1) / step};
}

// Of one block, along one axis: the results, where its pixels begin and how many there are, and how many results wrap
// around and are passed over.
struct Part {
  Index first = 0, count = 0, from = 0, pixels = 0, skip = 0;
};
Part partOf(Division division, Index number, Index big, Index small, Index result, bool valid) {
  Part p;
  p.first = number * division.step;
  p.count = std::min(division.step, result - p.first);
  p.skip = valid || p.first > 0 ? small - 1 : 0;
  p.from = valid ? p.first : p.first - p.skip;
  p.pixels = std::min(big - p.from, division.step + p.skip);
  return p;
}

// Brings rows of an image to the lines of a block.
template <class T>
auto linesOf(Image<T> image, Index x, Index y, Index width, const Blocks& blocks) {
  return [=, to = blocks.width()](Index line, Hux32f* dst) {
    mapRow<C1>(image.row(y + line) + x, elements(dst), width, Converted<T, Hux32f>{});
    std::fill(dst + width, dst + to, 0.0f);
  };
}
// Takes lines of results to rows of an image.
template <class T, class Rule>
auto linesTo(Rows<T> dst, Part x, Part y, Rule rule) {
  return [=](Index line, const Hux32f* src) {
    mapRow<C1>(elements(src + x.skip), dst.row(y.first + line - y.skip) + x.first, x.count, rule);
  };
}

constexpr Index kFloatBytes = sizeof(Hux32f);
Hux32f* floatsAt(std::byte* memory) { return reinterpret_cast<Hux32f*>(memory); }

template <class T>
HuxStatus convBlocks(Image<T> big, Image<T> small, Rows<T> dst, Extent result, bool valid, Ending<T> ending) {
  const Division across = divided(small.size.width, result.width), down = divided(small.size.height, result.height);
  const Blocks blocks(across.order, down.order);
  if (HuxStatus s = blocks.status()) return s;
  const Index spectrum = blocks.spectrumFloats(), own = blocks.blockFloats() + blocks.roomFloats();
  const auto slice = [&](Hux32f* memory) { return blocks.room(memory + blocks.blockFloats()); };
  return runTiles(
      {std::size_t((spectrum + own) * kFloatBytes), std::size_t(own * kFloatBytes)},
      [&](std::byte* shared, Index& tiles) -> HuxStatus {
        Hux32f *factor = floatsAt(shared), *block = factor + spectrum;
        const Index rows = small.size.height;
        blocks.rowsForward(rows, linesOf(small, 0, 0, small.size.width, blocks), block, slice(block));
        blocks.columnsForward({0, rows}, block, factor, false, slice(block));
        tiles = across.count * down.count;
        return huxStsOk;
      },
      [&](Index tile, std::byte* shared, std::byte* memory) -> HuxStatus {
        const Part x = partOf(across, tile % across.count, big.size.width, small.size.width, result.width, valid);
        const Part y = partOf(down, tile / across.count, big.size.height, small.size.height, result.height, valid);
        Hux32f* block = floatsAt(memory);
        const Blocks::Room room = slice(block);
        const RowRange results{y.skip, y.count};
        blocks.rowsForward(y.pixels, linesOf(big, x.from, y.from, x.pixels, blocks), block, room);
        blocks.columnsThrough({0, y.pixels}, block, floatsAt(shared), results, room);
        blocks.rowsInverse(block, results, linesTo(dst, x, y, ending.ofTransform()), room);
        return huxStsOk;
      });
}

// --- By the spectra of both.

// The two images are transformed side by side; columns and rows of the product are shared out.
template <class T>
HuxStatus convWhole(Image<T> big, Image<T> small, Rows<T> dst, Extent result, Ending<T> ending) {
  const Blocks blocks(fft::orderOf(result.width), fft::orderOf(result.height));
  if (HuxStatus s = blocks.status()) return s;
  const Index block = blocks.blockFloats(), own = blocks.spectrumFloats() + block;
  const Scratch<Hux32f> memory(2 * own + kAlignment);
  if (!memory) return huxStsNoMem;
  Hux32f* images = reinterpret_cast<Hux32f*>(roundedUp(reinterpret_cast<std::uintptr_t>(memory.get()), 64));
  const std::size_t room = std::size_t(blocks.roomFloats() * kFloatBytes);
  const auto two = [](std::byte*, Index& tiles) -> HuxStatus {
    tiles = 2;
    return huxStsOk;
  };
  HuxStatus status = runTiles({0, room}, two, [&](Index tile, std::byte*, std::byte* slice) -> HuxStatus {
    const Image<T> image = tile == 0 ? big : small;
    Hux32f *rows = images + tile * own, *spectrum = rows + block;
    blocks.rowsForward(image.size.height, linesOf(image, 0, 0, image.size.width, blocks), rows,
                       blocks.room(floatsAt(slice)));
    blocks.columnsForward({0, image.size.height}, rows, spectrum, false, blocks.room(floatsAt(slice)));
    return huxStsOk;
  });
  if (status) return status;
  status = loopRows(blocks.groups(), true, room, [&](RowRange share, std::byte* slice) {
    for (Index g = share.first; g < share.first + share.count; ++g)
      blocks.columnsOfProduct(g, images + block, images + own + block, images, {0, result.height},
                              blocks.room(floatsAt(slice)));
  });
  if (status) return status;
  return loopRows(result.height, true, room, [&](RowRange share, std::byte* slice) {
    const Part x{.count = result.width}, y{.count = result.height};
    blocks.rowsInverse(images, share, linesTo(dst, x, y, ending.ofTransform()), blocks.room(floatsAt(slice)));
  });
}

// --- As it stands, of the full convolution.

// What sums are made of: products of bytes as integers, all others in single precision.
template <class T, class Finish>
void sumRange(Taps<T> taps, WindowRows<T> src, Rows<T> dst, RowRange range, Index width, Finish finish) {
  tapsSum<C1>(PlainProducts<T, T, Hux32f>(taps, 1), taps, src, dst, range, width, finish);
}
template <class Finish>
void sumRange(Taps<Hux32s> taps, WindowRows<Hux8u> src, Rows<Hux8u> dst, RowRange range, Index width, Finish finish) {
  if (PairProducts::serve(taps))
    tapsSum<C1>(PairProducts(taps, 1), taps, src, dst, range, width, finish);
  else
    tapsSum<C1>(PlainProducts<Hux8u, Hux32s, Hux32u>(taps, 1), taps, src, dst, range, width, finish);
}

// Some rows at a time are brought to memory with zeros around. Sums of taps go through the window from its top left,
// which meets the last tap. That order serves bytes and floats; the sums of 16s begin with the first tap, and so both
// images are turned by half a circle, and the results turned back.
template <class T>
HuxStatus owniDirConvF(Image<T> big, Image<T> small, Rows<T> dst, Extent result, Ending<T> ending) {
  using Tap = std::conditional_t<std::is_same_v<T, Hux8u>, Hux32s, T>;
  constexpr bool turned = std::is_same_v<T, Hux16s>;
  constexpr Index atOnce = 32, bytes = sizeof(T);
  const Index w = small.size.width, h = small.size.height, count = w * h;
  const Index framed = result.width + w - 1, frameRows = atOnce + h - 1;
  const Scratch<Tap> taps(count);
  if (!taps) return huxStsNoMem;
  for (Index i = 0; i < count; ++i) taps[turned ? count - 1 - i : i] = Tap(T(small.row(i / w)[i % w]));
  const Taps<Tap> all{elements(static_cast<const Tap*>(taps.get())), small.size};

  const Index elementsOfSlice = frameRows * framed + (turned ? atOnce * result.width : 0);
  return loopRows(result.height, true, std::size_t(elementsOfSlice * bytes), [&](RowRange share, std::byte* slice) {
    T *frame = reinterpret_cast<T*>(slice), *results = frame + frameRows * framed;
    const WindowRows<T> windows{{elements(static_cast<const T*>(frame)), framed * bytes}};
    forPieces(share.count, atOnce, [&](Index first, Index n) {
      const Index top = share.first + first;
      for (Index r = 0; r < n + h - 1; ++r) {
        const Index y = top + r - (h - 1);
        T* row = frame + (turned ? n + h - 2 - r : r) * framed;
        std::fill_n(row, framed, T(0));
        if (y < 0 || y >= big.size.height) continue;
        if (turned)
          std::reverse_copy(big.row(y), big.row(y) + big.size.width, row + w - 1);
        else
          std::memcpy(row + w - 1, big.row(y), std::size_t(big.size.width) * sizeof(T));
      }
      const Rows<T> to = turned ? Rows<T>{elements(results), result.width * bytes, bytes} : dst.from(top);
      sumRange(all, windows, to, {0, n}, result.width, ending.ofSum());
      if (turned)
        for (Index r = 0; r < n; ++r)
          std::reverse_copy(to.row(n - 1 - r), to.row(n - 1 - r) + result.width, dst.row(top + r));
    });
  });
}

// Floats are also added up where there is no memory, and where a pixel of the smaller image is no finite number, which
// must not meet the zeros around the larger one.
template <class L>
void convInPlace(Image<Hux32f> big, Image<Hux32f> small, Rows<Hux32f> dst, Extent result) {
  for (Index y = 0; y < result.height; ++y)
    for (Index x = 0; x < result.width; ++x)
      for (int c = 0; c < L::processed; ++c) {
        Hux32f sum = 0;
        const auto ends = [](Index at, Index over, Index n) {
          return std::pair(std::max<Index>(0, at - over + 1), std::min<Index>(n, at + 1));
        };
        const auto [top, bottom] = ends(y, big.size.height, small.size.height);
        const auto [left, right] = ends(x, big.size.width, small.size.width);
        for (Index j = bottom; j-- > top;)
          for (Index i = right; i-- > left;)
            sum += small.row(j)[i * L::channels + c] * big.row(y - j)[(x - i) * L::channels + c];
        dst.row(y)[x * L::channels + c] = sum;
      }
}
template <class L>
bool allFinite(Image<Hux32f> image) {
  for (Index y = 0; y < image.size.height; ++y)
    for (Index x = 0; x < image.size.width; ++x)
      for (int c = 0; c < L::processed; ++c)
        if (!std::isfinite(Hux32f(image.row(y)[x * L::channels + c]))) return false;
  return true;
}

// --- As it stands, of the valid part.

HuxiSize sizeOf(Extent result) { return {int(result.width), int(result.height)}; }

// A smaller image of few pixels is the kernel of a filter, which divides in its own way and judges the steps. That of
// bytes takes a divisor, made of the factor.
HuxStatus filtered(Image<Hux8u> big, Image<Hux8u> small, Hux8u* pDst, int dstStep, HuxiSize size, Ending<Hux8u> ending,
                   HuxiPoint anchor) {
  const Scratch<Hux32s> taps(area(small.size));
  if (!taps) return huxStsNoMem;
  huxiConvert_8u32s_C1R(small.first, small.step, taps.get(), small.size.width * int(sizeof(Hux32s)), small.size);
  constexpr Hux64f least = std::numeric_limits<Hux32s>::min(), most = std::numeric_limits<Hux32s>::max();
  const Hux64f divisor = Hux64f(1.0f / ending.recip) + (ending.recip > 0 ? 0.5 : -0.5);
  return huxiFilter_8u_C1R(big.first, big.step, pDst, dstStep, size, taps.get(), small.size, anchor,
                           Hux32s(std::clamp(divisor, least, most)));
}
HuxStatus filtered(Image<Hux16s> big, Image<Hux16s> small, Hux16s* pDst, int dstStep, HuxiSize size,
                   Ending<Hux16s> ending, HuxiPoint anchor) {
  const Scratch<Hux32f> taps(area(small.size));
  if (!taps) return huxStsNoMem;
  const int step = small.size.width * int(kFloatBytes);
  huxiConvert_16s32f_C1R(small.first, small.step, taps.get(), step, small.size);
  huxiMulC_32f_C1IR(ending.recip, taps.get(), step, small.size);
  return huxiFilter32f_16s_C1R(big.first, big.step, pDst, dstStep, size, taps.get(), small.size, anchor);
}
HuxStatus filtered(Image<Hux32f> big, Image<Hux32f> small, Hux32f* pDst, int dstStep, HuxiSize size, Ending<Hux32f>,
                   HuxiPoint anchor) {
  const int step = small.size.width * int(kFloatBytes);
  if (small.step == step)
    return huxiFilter_32f_C1R(big.first, big.step, pDst, dstStep, size, small.first, small.size, anchor);
  const Scratch<Hux32f> taps(area(small.size));
  if (!taps) return huxStsNoMem;
  huxiCopy_32f_C1R(small.first, small.step, taps.get(), step, small.size);
  return huxiFilter_32f_C1R(big.first, big.step, pDst, dstStep, size, taps.get(), small.size, anchor);
}
template <class T>
HuxStatus owniFirstValid(Image<T> big, Image<T> small, T* pDst, int dstStep, Extent result, Ending<T> ending) {
  return filtered(big, small, pDst, dstStep, sizeOf(result), ending, {small.size.width - 1, small.size.height - 1});
}

// A result of few pixels is the sum of the results of the rows of the smaller image, from the last one back, which
// meets the upper rows of the larger.
constexpr Index kFewPixels = 81;

// Of integers, sums of rows are exact and each is rounded to a float.
Hux64s sumOfProducts(const Element<Hux8u>* a, const Hux8u* b, Index n) {
  Hux64s total = 0;
  forPieces(n, 1 << 15, [&](Index first, Index count) {
    Hux32s sum = 0;
    for (Index i = first; i < first + count; ++i) sum += Hux32s(a[i]) * b[i];
    total += sum;
  });
  return total;
}
Hux64s sumOfProducts(const Element<Hux16s>* a, const Hux16s* b, Index n) {
  Hux64s total = 0;
  for (Index i = 0; i < n; ++i) total += Hux32s(a[i]) * b[i];
  return total;
}
template <class T>
HuxStatus owniLastValid(Image<T> big, Image<T> small, T* pDst, int dstStep, Extent result, Ending<T> ending) {
  const Index w = small.size.width, h = small.size.height;
  if (!Extent{w, h}.fits(kMostElements)) return huxStsNoMem;
  const Scratch<T> turned(w * h);
  if (!turned) return huxStsNoMem;
  for (Index j = 0; j < h; ++j) std::reverse_copy(small.row(j), small.row(j) + w, turned.get() + (h - 1 - j) * w);
  const Rows<T> dst = rows<C1>(pDst, dstStep);
  return loopRows(result.height, true, 0, [&](RowRange share, std::byte*) {
    for (Index y = share.first; y < share.first + share.count; ++y) {
      Hux32f sums[kFewPixels] = {};
      for (Index j = 0; j < h; ++j)
        for (Index x = 0; x < result.width; ++x)
          sums[x] += Hux32f(sumOfProducts(big.row(y + j) + x, turned.get() + j * w, w));
      mapRow<C1>(elements(static_cast<const Hux32f*>(sums)), dst.row(y), result.width, ending.ofSum());
    }
  });
}
// Of floats, filters of rows add up, and judge the step.
HuxStatus owniLastValid(Image<Hux32f> big, Image<Hux32f> small, Hux32f* pDst, int dstStep, Extent result,
                        Ending<Hux32f>) {
  const HuxiSize size = sizeOf(result);
  const int w = small.size.width, step = size.width * int(kFloatBytes);
  Hux32f sums[kFewPixels];
  for (Index j = 0; j < small.size.height; ++j) {
    if (HuxStatus s = huxiFilterRow_32f_C1R(advance(big.first, j * big.step), big.step, sums, step, size,
                                            advance(small.first, (small.size.height - 1 - j) * small.step), w, w - 1))
      return s;
    if (j == 0) huxiSet_32f_C1R(0, pDst, dstStep, size);
    huxiAdd_32f_C1IR(sums, step, pDst, dstStep, size);
  }
  return huxStsOk;
}

// --- Whichever way.

// Calls method(big, small, pDst, dstStep) for every channel, of images without gaps where there are several. Nothing is
// written before all have come about.
template <class L, class T, class Method>
HuxStatus byChannels(Image<T> big, Image<T> small, T* pDst, int dstStep, Extent result, Method method) {
  if constexpr (L::channels == 1) {
    return method(big, small, pDst, dstStep);
  } else {
    using Members = ChannelCopy<L::channels, sizeof(T)>;
    using W = typename Members::T;
    const Extent bigSize{big.size.width, big.size.height}, smallSize{small.size.width, small.size.height};
    constexpr Index widest = std::numeric_limits<int>::max() / Index(sizeof(T));
    if (std::max({result.width, bigSize.width, smallSize.width}) > widest || result.height > widest ||
        !result.fits(kMostElements) || !bigSize.fits(kMostElements) || !smallSize.fits(kMostElements))
      return huxStsNoMem;
    const Index plane = result.width * result.height;
    const Scratch<T> bigPlane(area(big.size)), smallPlane(area(small.size)), planes(plane * L::processed);
    if (!bigPlane || !smallPlane || !planes) return huxStsNoMem;
    const auto stepOf = [](Index width) { return int(width * Index(sizeof(T))); };
    const auto take = [&](Image<T> image, int c, const Scratch<T>& to) {
      const int step = stepOf(image.size.width);
      Members::out(argument<W>(image.first + c), image.step, argument<W>(to.get()), step, image.size);
      return Image<T>{to.get(), step, image.size};
    };
    const int step = stepOf(result.width);
    for (int c = 0; c < L::processed; ++c)
      if (HuxStatus s = method(take(big, c, bigPlane), take(small, c, smallPlane), planes.get() + c * plane, step))
        return s;
    for (int c = 0; c < L::processed; ++c)
      Members::in(argument<W>(planes.get() + c * plane), step, argument<W>(pDst + c), dstStep, sizeOf(result));
    return huxStsOk;
  }
}

template <class L, class T>
HuxStatus convFull(Image<T> big, Image<T> small, T* pDst, int dstStep, Ending<T> ending) {
  if (big.size.width < small.size.width) std::swap(big, small);  // widths alone decide
  const Extent result{Index(big.size.width) + small.size.width - 1, Index(big.size.height) + small.size.height - 1};
  const bool direct = result.areaUpTo(1705) < 1705 || area(small.size) < 121;
  // big <= 7 * small, which might be beyond 64 bits.
  const bool whole = (area(big.size) + 6) / 7 <= area(small.size);
  const auto method = [=](Image<T> a, Image<T> b, T* p, int step) {
    const Rows<T> dst = rows<C1>(p, step);
    if (direct) return owniDirConvF(a, b, dst, result, ending);
    return whole ? convWhole(a, b, dst, result, ending) : convBlocks(a, b, dst, result, false, ending);
  };
  if constexpr (std::is_floating_point_v<T>)
    if (direct) {
      if (!allFinite<L>(small) || byChannels<L>(big, small, pDst, dstStep, result, method) == huxStsNoMem)
        convInPlace<L>(big, small, rows<L>(pDst, dstStep), result);
      return huxStsOk;
    }
  return byChannels<L>(big, small, pDst, dstStep, result, method);
}

template <class L, class T>
HuxStatus convValid(Image<T> big, Image<T> small, T* pDst, int dstStep, Ending<T> ending) {
  if (big.size.width < small.size.width || big.size.height < small.size.height) std::swap(big, small);
  const Extent result{Index(big.size.width) - small.size.width + 1, Index(big.size.height) - small.size.height + 1};
  if (result.width < 1 || result.height < 1) return huxStsBadSize;
  const bool few = result.areaUpTo(kFewPixels) < kFewPixels;
  const bool first = area(small.size) < 121 || (few && std::is_floating_point_v<T> && L::channels > 1);
  return byChannels<L>(big, small, pDst, dstStep, result, [=](Image<T> a, Image<T> b, T* p, int step) {
    if (first) return owniFirstValid(a, b, p, step, result, ending);
    if (few) return owniLastValid(a, b, p, step, result, ending);
    return convBlocks(a, b, rows<C1>(p, step), result, true, ending);
  });
}

// The checks, and what follows them: convolve(big, small, pDst, dstStep, ending).
template <class T, class Convolve, class... Divisor>
HuxStatus convolution(const T* pSrc1, int src1Step, HuxiSize src1Size, const T* pSrc2, int src2Step, HuxiSize src2Size,
                      T* pDst, int dstStep, Convolve convolve, Divisor... divisor) {
  if (HuxStatus s = check(pointers(pSrc1, pSrc2, pDst), size(src1Size), size(src2Size),
                          steps(src1Step, src2Step, dstStep), failUnless(((divisor != 0) && ...), huxStsBadDivisor)))
    return s;
  return convolve(Image<T>{pSrc1, src1Step, src1Size}, Image<T>{pSrc2, src2Step, src2Size}, pDst, dstStep,
                  Ending<T>{1.0f / Hux32f(divisor)...});
}

}  // namespace
}  // namespace hux

#define EXPORT_NAME(name, call, t, l, parameters, arguments)                                                     \
  HuxStatus huxi##name##_##t##_##l##R(const Hux##t* pSrc1, int src1Step, HuxiSize src1Size, const Hux##t* pSrc2, \
                                      int src2Step, HuxiSize src2Size, Hux##t* pDst,                             \
                                      int dstStep HUX_LIST parameters) {                                         \
    return hux::convolution(pSrc1, src1Step, src1Size, pSrc2, src2Step, src2Size, pDst, dstStep,                 \
                            hux::call<hux::l, Hux##t> HUX_LIST arguments);                                       \
  }
#define EXPORT_BOTH(t, l, parameters, arguments)               \
  EXPORT_NAME(ConvFull, convFull, t, l, parameters, arguments) \
  EXPORT_NAME(ConvValid, convValid, t, l, parameters, arguments)
#define EXPORT(t, l) EXPORT_BOTH(t, l, (, Hux32s divisor), (, divisor))
HUX_STAMP(EXPORT, (8u, 16s), (C1, C3, AC4))
#undef EXPORT
#define EXPORT(t, l) EXPORT_BOTH(t, l, (), ())
HUX_STAMP(EXPORT, (32f), (C1, C3, AC4))
