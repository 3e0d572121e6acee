// Mirror: the order of rows, of the pixels in each row, or of both reversed.
#include "core/stamp.h"
#include "huxi_pixel.h"
#include "pixel/move.h"

namespace hux {
namespace {

// A group of pixels that fills whole vectors: one vector where a pixel is a power of two bytes, else three.
template <class L, class W>
struct Group {
  static constexpr int pixelBytes = L::channels * int(sizeof(W));
  static constexpr int vectors = L::channels == 3 ? 3 : 1;
  static constexpr int pixels = vectors * simd::kBytes / pixelBytes;
  static constexpr bool whole = L::processed == L::channels;
  static constexpr bool vectorised = simd::kPermutes && (whole || simd::kMasks);

  template <int Out>
  struct Reverse {
    static constexpr int source(int j) {
      const int byte = Out * simd::kBytes + j;
      if (byte % pixelBytes / int(sizeof(W)) >= L::processed) return -1;
      return (pixels - 1 - byte / pixelBytes) * pixelBytes + byte % pixelBytes;
    }
  };

  simd::Vec in[vectors];

  void load(const Element<W>* src) {
    for (int k = 0; k < vectors; ++k) in[k] = simd::load(advance(src, k * simd::kBytes));
  }
  void storeReversed(Element<W>* dst) const {
    [&]<std::size_t... Out>(std::index_sequence<Out...>) {
      (
          [&] {
            using Map = Reverse<int(Out)>;
            auto* to = advance(dst, Index(Out) * simd::kBytes);
            const simd::Vec v = simd::permute<Map, vectors>(in);
            if constexpr (whole)
              simd::store(to, v);
            else
              simd::store(to, v, simd::written<Map>());
          }(),
          ...);
    }
    (std::make_index_sequence<vectors>{});
  }
};

// dst[i] = src[n - 1 - i], pixel by pixel.
template <class L, class W>
void reverseRow(const Element<W>* src, Element<W>* dst, Index n) {
  using G = Group<L, W>;
  Index i = 0;
  if constexpr (G::vectorised) {
    G group;
    for (; i + G::pixels <= n; i += G::pixels) {
      group.load(src + (n - i - G::pixels) * L::channels);
      group.storeReversed(dst + i * L::channels);
    }
  }
  for (; i < n; ++i)
    for (int c = 0; c < L::processed; ++c) dst[i * L::channels + c] = src[(n - 1 - i) * L::channels + c];
}

// Exchanges pixel i of a with pixel n - 1 - i of b, for the first `pairs` pixels of a. With both rows the same and n /
// 2 pairs that reverses the row; with two rows and n pairs it exchanges the rows, each reversed.
template <class L, class W>
void exchangeReversed(Element<W>* a, Element<W>* b, Index n, Index pairs) {
  using G = Group<L, W>;
  Index i = 0;
  if constexpr (G::vectorised) {
    G left, right;
    for (; i + G::pixels <= pairs; i += G::pixels) {
      Element<W>* atA = a + i * L::channels;
      Element<W>* atB = b + (n - i - G::pixels) * L::channels;
      left.load(atA), right.load(atB);
      left.storeReversed(atB), right.storeReversed(atA);
    }
  }
  for (; i < pairs; ++i)
    for (int c = 0; c < L::processed; ++c) {
      Element<W>&x = a[i * L::channels + c], &y = b[(n - 1 - i) * L::channels + c];
      const W keep = x;
      x = W(y), y = keep;
    }
}

template <class L, class W>
void exchangeRows(Element<W>* a, Element<W>* b, Index n) {
  for (Index i = 0; i < n; ++i)
    for (int c = 0; c < L::processed; ++c) {
      Element<W>&x = a[i * L::channels + c], &y = b[i * L::channels + c];
      const W keep = x;
      x = W(y), y = keep;
    }
}

HuxStatus axis(HuxiAxis flip) { return failUnless(flip >= huxAxsHorizontal && flip <= huxAxsBoth, huxStsBadAxis); }

template <class L, class T>
HuxStatus mirror(const T* pSrc, int srcStep, T* pDst, int dstStep, HuxiSize roi, HuxiAxis flip) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), axis(flip))) return s;
  using W = Word<T>;
  const auto src = wordRows<L>(pSrc, srcStep);
  const auto dst = wordRows<L>(pDst, dstStep);
  for (Index y = 0; y < roi.height; ++y) {
    Element<W>* to = dst.row(flip == huxAxsVertical ? y : roi.height - 1 - y);
    if (flip == huxAxsHorizontal)
      copyPixels<L, W>(src.row(y), to, roi.width);
    else
      reverseRow<L, W>(src.row(y), to, roi.width);
  }
  return huxStsOk;
}

// Pairs from the two ends up to the middle; the middle row of a flip of both axes is its own partner.
template <class L, class T>
HuxStatus mirrorInPlace(T* pSrcDst, int step, HuxiSize roi, HuxiAxis flip) {
  if (HuxStatus s = check(pointers(pSrcDst), size(roi), axis(flip))) return s;
  using W = Word<T>;
  const auto image = wordRows<L>(pSrcDst, step);
  const Index width = roi.width, height = roi.height;
  const auto reverse = [&](Index y) { exchangeReversed<L, W>(image.row(y), image.row(y), width, width / 2); };
  if (flip == huxAxsVertical) {
    for (Index y = 0; y < height; ++y) reverse(y);
    return huxStsOk;
  }
  for (Index y = 0; y < height / 2; ++y) {
    Element<W>*upper = image.row(y), *lower = image.row(height - 1 - y);
    if (flip == huxAxsHorizontal)
      exchangeRows<L, W>(upper, lower, width);
    else
      exchangeReversed<L, W>(upper, lower, width, width);
  }
  if (flip == huxAxsBoth && height % 2 == 1) reverse(height / 2);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT(t, l)                                                                                              \
  HuxStatus huxiMirror_##t##_##l##R(const Hux##t* pSrc, int srcStep, Hux##t* pDst, int dstStep, HuxiSize roiSize, \
                                    HuxiAxis flip) {                                                              \
    return hux::mirror<hux::l>(pSrc, srcStep, pDst, dstStep, roiSize, flip);                                      \
  }                                                                                                               \
  HuxStatus huxiMirror_##t##_##l##IR(Hux##t* pSrcDst, int srcDstStep, HuxiSize roiSize, HuxiAxis flip) {          \
    return hux::mirrorInPlace<hux::l>(pSrcDst, srcDstStep, roiSize, flip);                                        \
  }
HUX_STAMP(EXPORT, (8u, 16u, 32s), (C1, C3, C4, AC4))
