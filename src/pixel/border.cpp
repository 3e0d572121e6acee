// Border extension: a source region placed in a larger image, the frame around it filled with a constant, with the
// nearest pixel of the source, or with the periodic continuation of the source. AC4 pixels are three elements
// throughout: alpha is written neither in the frame nor in the copied source.
#include "core/stamp.h"
#include "huxi_pixel.h"
#include "workers/fill.h"
#include "workers/move.h"
#include "workers/pattern.h"

namespace hux {
namespace {

// Where the source lies in the destination; all sums in 64 bits.
struct Frame {
  Index left, right, top, bottom;  // border widths and heights
  Index width, height;             // of the source
  Index fullWidth;                 // of the destination
};

Frame frame(HuxiSize src, HuxiSize dst, int top, int left) {
  return {
      left,     Index(dst.width) - left - src.width, top, Index(dst.height) - top - src.height, src.width, src.height,
      dst.width};
}

HuxStatus fits(HuxiSize src, HuxiSize dst, int top, int left) {
  if (HuxStatus s = check(size(src), size(dst))) return s;
  const Frame f = frame(src, dst, top, left);
  return failUnless(top >= 0 && left >= 0 && f.right >= 0 && f.bottom >= 0, huxStsBadSize);
}

// Writes n copies of a pixel; borders are mostly a few pixels wide, for which laying out a pattern does not pay.
template <class L, class W>
void repeatPixel(const Element<W>* pixel, Element<W>* dst, Index n) {
  constexpr int pixelBytes = L::channels * int(sizeof(W)), processedBytes = L::processed * int(sizeof(W));
  constexpr int period = simd::kBytes / pixelBytes * pixelBytes;
  struct Repeat {
    static constexpr int source(int j) { return j < period && j % pixelBytes < processedBytes ? j % pixelBytes : -1; }
  };
  if constexpr (simd::kPermutes && simd::kMasks) {
    const simd::Vec one = simd::load(pixel, simd::lowBytes(processedBytes)), v = simd::permute<Repeat, 1>(&one);
    for (Index at = 0; at < n * pixelBytes; at += period)
      simd::store(advance(dst, at), v, simd::written<Repeat>() & simd::lowBytes(n * pixelBytes - at));
  } else {
    if (n >= 64) return Pattern<L, W>(pixel).fill(dst, n);
    if constexpr (pixelBytes == processedBytes && 16 % pixelBytes == 0) {
      // By several pixels, the last of which may overlap those before them.
      const auto covered = [&](auto several) {
        constexpr Index pixels = Index(sizeof several) / pixelBytes;
        if (n < pixels) return false;
        for (Index i = 0; i + pixels <= n; i += pixels) storeLanes(dst + i * L::channels, several);
        storeLanes(dst + (n - pixels) * L::channels, several);
        return true;
      };
      const simd::Quad v = simd::repeated<pixelBytes>(pixel);
      if (covered(v)) return;
      if constexpr (pixelBytes < 8)
        if (covered(bitsAs<Lanes<std::uint64_t, 2>>(v)[0])) return;
    }
    for (Index i = 0; i < n; ++i)
      for (int c = 0; c < L::processed; ++c) dst[i * L::channels + c] = pixel[c];
  }
}

template <class L, class T>
HuxStatus constBorder(const T* pSrc, int srcStep, HuxiSize srcRoi, T* pDst, int dstStep, HuxiSize dstRoi, int top,
                      int left, const T* pPixel) {
  if (HuxStatus s =
          check(pointers(pSrc, pDst), steps(srcStep, dstStep), fits(srcRoi, dstRoi, top, left), pointers(pPixel)))
    return s;
  using W = Word<T>;
  const Frame f = frame(srcRoi, dstRoi, top, left);
  const auto src = wordRows<L>(pSrc, srcStep);
  const auto dst = wordRows<L>(pDst, dstStep);
  const Pattern<L, W> pattern(elementsAs<W>(pPixel));
  const auto fill = [&](Element<W>* at, Index n) {
    if (n > 0) pattern.fill(at, n);
  };
  const simd::Streaming streaming(simd::traffic(srcRoi, src) + simd::traffic(dstRoi, dst));
  for (Index y = 0; y < f.top; ++y) fill(dst.row(y), f.fullWidth);
  for (Index y = 0; y < f.height; ++y) {
    Element<W>* row = dst.row(f.top + y);
    fill(row, f.left);
    copyPixels<L, W>(src.row(y), row + f.left * L::channels, f.width, streaming);
    fill(row + (f.left + f.width) * L::channels, f.right);
  }
  for (Index y = 0; y < f.bottom; ++y) fill(dst.row(f.top + f.height + y), f.fullWidth);
  return huxStsOk;
}

// Fills the borders left and right of a row of the destination from a row of the source, which may be in its place.
template <class L, class W>
void replicateSides(const Element<W>* source, Element<W>* row, const Frame& f) {
  repeatPixel<L, W>(source, row, f.left);
  repeatPixel<L, W>(source + (f.width - 1) * L::channels, row + (f.left + f.width) * L::channels, f.right);
}

template <class L, class T>
HuxStatus replicateBorder(const T* pSrc, int srcStep, HuxiSize srcRoi, T* pDst, int dstStep, HuxiSize dstRoi, int top,
                          int left) {
  if (HuxStatus s = check(pointers(pSrc, pDst), steps(srcStep, dstStep), fits(srcRoi, dstRoi, top, left))) return s;
  using W = Word<T>;
  const Frame f = frame(srcRoi, dstRoi, top, left);
  const auto src = wordRows<L>(pSrc, srcStep);
  const auto dst = wordRows<L>(pDst, dstStep);
  const simd::Streaming streaming(simd::traffic(srcRoi, src) + simd::traffic(dstRoi, dst));
  for (Index y = 0; y < f.height; ++y) {
    Element<W>* row = dst.row(f.top + y);
    copyPixels<L, W>(src.row(y), row + f.left * L::channels, f.width, streaming);
    replicateSides<L, W>(src.row(y), row, f);
  }
  for (Index y = 0; y < f.bottom; ++y)
    copyPixels<L, W>(dst.row(f.top + f.height - 1), dst.row(f.top + f.height + y), f.fullWidth);
  for (Index y = 0; y < f.top; ++y) copyPixels<L, W>(dst.row(f.top), dst.row(y), f.fullWidth);
  return huxStsOk;
}

// The larger image that an in-place form writes: it starts `top` rows and `left` pixels before the source region.
template <class L, class T>
auto imageAround(T* pSrc, int step, const Frame& f) {
  auto image = wordRows<L>(pSrc, step);
  image.first = advance(image.first, -f.top * Index(step) - f.left * image.pixelBytes);
  return image;
}

// In place, each row is extended before it is repeated, first row and top border
// first, so that no pixel is overwritten before it is read.
template <class L, class T>
HuxStatus replicateBorderInPlace(T* pSrc, int srcDstStep, HuxiSize srcRoi, HuxiSize dstRoi, int top, int left) {
  if (HuxStatus s = check(pointers(pSrc), steps(srcDstStep), fits(srcRoi, dstRoi, top, left))) return s;
  using W = Word<T>;
  const Frame f = frame(srcRoi, dstRoi, top, left);
  const auto image = imageAround<L>(pSrc, srcDstStep, f);
  const auto extend = [&](Index y) { replicateSides<L, W>(image.row(y) + f.left * L::channels, image.row(y), f); };
  extend(f.top);
  for (Index y = 0; y < f.top; ++y) copyPixels<L, W>(image.row(f.top), image.row(y), f.fullWidth);
  for (Index y = 1; y < f.height; ++y) extend(f.top + y);
  for (Index y = 0; y < f.bottom; ++y)
    copyPixels<L, W>(image.row(f.top + f.height - 1), image.row(f.top + f.height + y), f.fullWidth);
  return huxStsOk;
}

// Continues the period at `source` to the left and to the right, in chunks that double: what has been built is a whole
// number of periods and serves as the next source.
template <class E>
void wrapSides(E* source, Index period, Index left, Index right) {
  const auto copy = [](const E* from, E* to, Index n) { ownsCopy_8u(from, to, n * Index(sizeof(E)), sizeof(E)); };
  E* begin = source;
  for (Index built = period; left > 0;) {
    const Index n = std::min(built, left);
    copy(begin + built - n, begin - n, n);
    begin -= n, left -= n, built += n;
  }
  for (Index built = period; right > 0;) {
    const Index n = std::min(built, right);
    copy(source, source + built, n);
    right -= n, built += n;
  }
}

template <class T>
void wrapBorder(const Rows<const T>& src, const Rows<T>& dst, const Frame& f, bool streaming = false) {
  for (Index y = 0; y < f.height; ++y) {
    Element<T>* source = dst.row(f.top + y) + f.left;
    if (src.row(y) != source) copyPixels<C1, T>(src.row(y), source, f.width, streaming);
    wrapSides(source, f.width, f.left, f.right);
  }
  for (Index y = f.top - 1; y >= 0; --y) copyPixels<C1, T>(dst.row(y + f.height), dst.row(y), f.fullWidth);
  for (Index y = f.top; y < f.top + f.bottom; ++y) copyPixels<C1, T>(dst.row(y), dst.row(y + f.height), f.fullWidth);
}

HuxStatus wrapBorder(const Hux32s* pSrc, int srcStep, HuxiSize srcRoi, Hux32s* pDst, int dstStep, HuxiSize dstRoi,
                     int top, int left) {
  if (HuxStatus s = check(pointers(pSrc, pDst), steps(srcStep, dstStep), fits(srcRoi, dstRoi, top, left))) return s;
  const auto src = wordRows<C1>(pSrc, srcStep);
  const auto dst = wordRows<C1>(pDst, dstStep);
  const simd::Streaming streaming(simd::traffic(srcRoi, src) + simd::traffic(dstRoi, dst));
  wrapBorder(src, dst, frame(srcRoi, dstRoi, top, left), streaming);
  return huxStsOk;
}

HuxStatus wrapBorderInPlace(Hux32s* pSrc, int srcDstStep, HuxiSize srcRoi, HuxiSize dstRoi, int top, int left) {
  if (HuxStatus s = check(pointers(pSrc), steps(srcDstStep), fits(srcRoi, dstRoi, top, left))) return s;
  const Frame f = frame(srcRoi, dstRoi, top, left);
  wrapBorder(wordRows<C1>(static_cast<const Hux32s*>(pSrc), srcDstStep), imageAround<C1>(pSrc, srcDstStep, f), f);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT_CONST(t, l, constant, pPixel)                                                                     \
  HuxStatus huxiCopyConstBorder_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize srcRoiSize, Hux##t* pDst, \
                                             int dstStep, HuxiSize dstRoiSize, int topBorderHeight,              \
                                             int leftBorderWidth, constant) {                                    \
    return hux::constBorder<hux::l>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight,       \
                                    leftBorderWidth, pPixel);                                                    \
  }
#define EXPORT(t, l) EXPORT_CONST(t, l, const Hux##t* pValue, pValue)
HUX_STAMP(EXPORT, (8u, 16s, 32s), (C3, C4, AC4))
#undef EXPORT
#define EXPORT(t, l) EXPORT_CONST(t, l, Hux##t value, &value)
HUX_STAMP(EXPORT, (8u, 16s, 32s), (C1))
#undef EXPORT

#define EXPORT(t, l)                                                                                                 \
  HuxStatus huxiCopyReplicateBorder_##t##_##l##R(const Hux##t* pSrc, int srcStep, HuxiSize srcRoiSize, Hux##t* pDst, \
                                                 int dstStep, HuxiSize dstRoiSize, int topBorderHeight,              \
                                                 int leftBorderWidth) {                                              \
    return hux::replicateBorder<hux::l>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight,       \
                                        leftBorderWidth);                                                            \
  }                                                                                                                  \
  HuxStatus huxiCopyReplicateBorder_##t##_##l##IR(Hux##t* pSrc, int srcDstStep, HuxiSize srcRoiSize,                 \
                                                  HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {   \
    return hux::replicateBorderInPlace<hux::l>(pSrc, srcDstStep, srcRoiSize, dstRoiSize, topBorderHeight,            \
                                               leftBorderWidth);                                                     \
  }
HUX_STAMP(EXPORT, (8u, 16s, 32s), (C1, C3, C4, AC4))
#undef EXPORT

HuxStatus huxiCopyWrapBorder_32s_C1R(const Hux32s* pSrc, int srcStep, HuxiSize srcRoiSize, Hux32s* pDst, int dstStep,
                                     HuxiSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  return hux::wrapBorder(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}

HuxStatus huxiCopyWrapBorder_32s_C1IR(Hux32s* pSrc, int srcDstStep, HuxiSize srcRoiSize, HuxiSize dstRoiSize,
                                      int topBorderHeight, int leftBorderWidth) {
  return hux::wrapBorderInPlace(pSrc, srcDstStep, srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth);
}
