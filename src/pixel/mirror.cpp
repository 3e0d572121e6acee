// Mirror: the order of rows, of the pixels in each row, or of both reversed.
#include "core/stamp.h"
#include "huxi_pixel.h"
#include "lanes/planes.h"
#include "lanes/windows.h"
#include "workers/move.h"

namespace hux {
namespace {

// A group of pixels that fills whole vectors: one vector where a pixel is a power of two bytes, else three.
template <class L, class W>
struct Group {
  static constexpr int pixelBytes = L::channels * int(sizeof(W));
  static constexpr int vectors = L::channels == 3 ? 3 : 1;
  static constexpr int pixels = vectors * simd::kBytes / pixelBytes;
  static constexpr bool whole = L::processed == L::channels;
  static constexpr bool vectorised = simd::kPermutes ? whole || simd::kMasks : whole;

  template <int Out>
  struct Reverse {
    static constexpr int source(int j) {
      const int byte = Out * simd::kBytes + j;
      if (byte % pixelBytes / int(sizeof(W)) >= L::processed) return -1;
      return (pixels - 1 - byte / pixelBytes) * pixelBytes + byte % pixelBytes;
    }
  };

  // Bytes `from` to `to` of a group; what lies outside is not touched.
  struct Range {
    Index from, to;
    simd::Mask mask(int k) const {
      return simd::lowBytes(to - k * simd::kBytes) & ~simd::lowBytes(from - k * simd::kBytes);
    }
  };
  static constexpr Range first(Index count) { return {0, count * pixelBytes}; }
  static constexpr Range last(Index count) { return {(pixels - count) * pixelBytes, pixels * pixelBytes}; }

  simd::Vec in[vectors];

  void load(const Element<W>* src) {
    for (int k = 0; k < vectors; ++k) in[k] = simd::load(advance(src, k * simd::kBytes));
  }
  void load(const Element<W>* src, Range range) {
    for (int k = 0; k < vectors; ++k) in[k] = simd::load(advance(src, k * simd::kBytes), range.mask(k));
  }
  // Calls put(k, vector, bytes that a pixel of the layout writes).
  template <class Put>
  void reversed(Put put) const {
    if constexpr (!simd::kPermutes) {
      // Where bytes are not permuted freely, pixels of three elements go by way of planes.
      constexpr int unit = vectors == 3 ? int(sizeof(W)) : pixelBytes;
      simd::Vec v[vectors];
      std::memcpy(v, in, sizeof v);
      if constexpr (vectors == 3) simd::toPlanes<unit>(v);
      for (simd::Vec& part : v) part = simd::reversed<unit>(part);
      if constexpr (vectors == 3) simd::fromPlanes<unit>(v);
      for (int k = 0; k < vectors; ++k) put(k, v[k], simd::kAll);
      return;
    }
    [&]<std::size_t... Out>(std::index_sequence<Out...>) {
      (put(int(Out), simd::permute<Reverse<int(Out)>, vectors>(in), simd::written<Reverse<int(Out)>>()), ...);
    }
    (std::make_index_sequence<vectors>{});
  }
  void storeReversed(Element<W>* dst) const {
    reversed([&](int k, simd::Vec v, simd::Mask written) {
      if constexpr (whole)
        simd::store(advance(dst, k * simd::kBytes), v);
      else
        simd::store(advance(dst, k * simd::kBytes), v, written);
    });
  }
  void storeReversed(Element<W>* dst, Range range) const {
    reversed([&](int k, simd::Vec v, simd::Mask written) {
      simd::store(advance(dst, k * simd::kBytes), v, written & range.mask(k));
    });
  }
  void streamReversed(Element<W>* dst) const {
    reversed([&](int k, simd::Vec v, simd::Mask) { simd::stream(advance(dst, k * simd::kBytes), v); });
  }
};

// Two vectors of lanes, reversed: the lanes come last one first, and are reversed in themselves. For pixels of a power
// of two bytes, where vectors have several lanes but no wider permutations.
template <class L, class W>
struct LaneGroup {
  static constexpr bool serves =
      L::processed == L::channels && L::channels != 3 && simd::kBytes == 16 && kLaneBytes <= 32;
  static constexpr int bytes = L::channels * int(sizeof(W)), vector = int(sizeof(simd::Quads));
  static constexpr Index pixels = 2 * vector / bytes;
  static constexpr auto pick = [] {
    std::array<Hux8u, vector> all{};
    for (int j = 0; j < vector; ++j) all[std::size_t(j)] = Hux8u((16 / bytes - 1 - j % 16 / bytes) * bytes + j % bytes);
    return all;
  }();

  WindowBytes low, high;

  void loadReversed(const Element<W>* src) {
    const auto* from = reinterpret_cast<const std::byte*>(src);
    low = reversed(simd::loadQuads<simd::Quads>(from + 2 * vector - 16, -16));
    high = reversed(simd::loadQuads<simd::Quads>(from + vector - 16, -16));
  }
  static WindowBytes reversed(WindowBytes v) {
    if constexpr (kPicks)
      return pickBytes(v, loadLanes<WindowBytes>(pick.data()));
    else
      return simd::reversed<bytes>(v);
  }
  void store(Element<W>* dst) const { storeLanes(dst, low), storeLanes(advance(dst, vector), high); }
};

// dst[i] = src[n - 1 - i], pixel by pixel.
template <class L, class W>
void reverseRow(const Element<W>* src, Element<W>* dst, Index n, bool streaming) {
  using G = Group<L, W>;
  Index i = 0;
  if constexpr (G::vectorised) {
    using Lane = LaneGroup<L, W>;
    if constexpr (Lane::serves) {
      Lane group;
      for (; i + Lane::pixels <= n; i += Lane::pixels) {
        group.loadReversed(src + (n - i - Lane::pixels) * L::channels);
        group.store(dst + i * L::channels);
      }
    }
    G group;
    // The group of source pixels that go to `at` and behind.
    const auto source = [=](Index at) { return src + (n - at - G::pixels) * L::channels; };
    const auto part = [&](Index at, Index count) {
      group.load(source(at), G::last(count));
      group.storeReversed(dst + at * L::channels, G::first(count));
    };
    if constexpr (G::whole && simd::kStreams && simd::kMasks) {
      const Index head = streaming ? simd::pixelsToBoundary(dst, G::pixelBytes) : -1;
      if (head >= 0 && head <= n) {
        if (head > 0) part(0, head);
        // Last group first: memory is read forwards, which it is better at.
        i = head + (n - head) / G::pixels * G::pixels;
        for (Index at = i - G::pixels; at >= head; at -= G::pixels)
          group.load(source(at)), group.streamReversed(dst + at * L::channels);
      }
    }
    for (; i + G::pixels <= n; i += G::pixels) group.load(source(i)), group.storeReversed(dst + i * L::channels);
    if constexpr (simd::kMasks) {
      if (i < n) part(i, n - i);
      return;
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
    using Lane = LaneGroup<L, W>;
    if constexpr (Lane::serves) {
      Lane left, right;
      for (; i + Lane::pixels <= pairs; i += Lane::pixels) {
        auto *atA = a + i * L::channels, *atB = b + (n - i - Lane::pixels) * L::channels;
        left.loadReversed(atA), right.loadReversed(atB);
        left.store(atB), right.store(atA);
      }
    }
    G left, right;
    const auto atA = [&] { return a + i * L::channels; };
    const auto atB = [&] { return b + (n - i - G::pixels) * L::channels; };
    for (; i + G::pixels <= pairs; i += G::pixels) {
      left.load(atA()), right.load(atB());
      left.storeReversed(atB()), right.storeReversed(atA());
    }
    if constexpr (simd::kMasks) {
      if (i == pairs) return;
      const auto first = G::first(pairs - i), last = G::last(pairs - i);
      left.load(atA(), first), right.load(atB(), last);
      left.storeReversed(atB(), last), right.storeReversed(atA(), first);
      return;
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
  const simd::Streaming streaming(roi, src, dst);
  for (Index y = 0; y < roi.height; ++y) {
    Element<W>* to = dst.row(flip == huxAxsVertical ? y : roi.height - 1 - y);
    if (flip == huxAxsHorizontal)
      copyPixels<L, W>(src.row(y), to, roi.width, streaming);
    else
      reverseRow<L, W>(src.row(y), to, roi.width, streaming);
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
