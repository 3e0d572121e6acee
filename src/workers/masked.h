// Copy and Set under a mask image: pixels whose mask byte is 0 are not stored to, by construction. With masked stores
// that goes by vectors; without them, by runs of pixels that the mask leaves on.
#pragma once

#include <bit>

#include "lanes/lanes.h"
#include "workers/move.h"
#include "workers/pattern.h"

namespace hux {
namespace detail {

// Byte j of vector `Out` of a group belongs to the pixel whose mask byte this names; a group is one vector of mask
// bytes.
template <class L, int ElementBytes, int Out>
struct MaskMap {
  static constexpr int source(int j) {
    const int byte = Out * simd::kBytes + j;
    if (byte / ElementBytes % L::channels >= L::processed) return -1;
    return byte / (ElementBytes * L::channels);
  }
};

// Calls put(out, address offset, bytes to store) for each vector of the destination that has something to store.
template <class L, int ElementBytes, class Put>
void forMaskedVectors(const Element<Hux8u>* mask, Index n, Put put) {
  constexpr int vectors = L::channels * ElementBytes;
  for (Index i = 0; i < n; i += simd::kBytes) {
    const simd::Vec m = n - i < simd::kBytes ? simd::load(mask + i, simd::lowBytes(n - i)) : simd::load(mask + i);
    if (simd::nonZero(m) == 0) continue;
    [&]<std::size_t... Out>(std::index_sequence<Out...>) {
      (
          [&] {
            using Map = MaskMap<L, ElementBytes, int(Out)>;
            const simd::Mask on = simd::nonZero(simd::permute<Map, 1>(&m)) & simd::written<Map>();
            put(int(Out), i * vectors + Index(Out) * simd::kBytes, on);
          }(),
          ...);
    }
    (std::make_index_sequence<vectors>{});
  }
}

// How many bits are set in each byte of a word and in those below it; the top byte tells of all.
inline std::uint64_t bitsUpTo(std::uint64_t word) {
  word -= word >> 1 & 0x5555555555555555;
  word = (word & 0x3333333333333333) + (word >> 2 & 0x3333333333333333);
  return ((word + (word >> 4)) & 0x0f0f0f0f0f0f0f0f) * 0x0101010101010101;
}

// The bits that are set in a byte, one behind the other.
struct BitsOfByte {
  Hux16u at[256][8] = {};
  constexpr BitsOfByte() {
    for (int byte = 0; byte < 256; ++byte)
      for (int b = 0, n = 0; b < 8; ++b)
        if (byte >> b & 1) at[byte][n++] = Hux16u(b);
  }
};
inline constexpr BitsOfByte kBitsOf;

// The pixels of a row that are on where the mask changes often, gathered before they are moved: then no branch depends
// on single bits of the mask.
class Scattered {
 public:
  // Takes the pixels i + b for the bits b that are set, and hands all over when there are many.
  template <class One>
  void add(std::uint64_t on, Index i, One one) {
    if (count_ > kMost - 64 || i - origin_ > 0xffff - 64) handOver(one);
    if (count_ == 0) origin_ = i;
    const std::uint64_t counts = bitsUpTo(on), before = counts << 8;
    const Eight first = splat<Eight>(Hux16u(i - origin_));
    Hux16u* const to = offsets_ + count_;
    for (int byte = 0; byte < 64; byte += 8)
      storeLanes(to + (before >> byte & 0xff),
                 Eight(first + loadLanes<Eight>(&kBitsOf.at[on >> byte & 0xff]) + Hux16u(byte)));
    count_ += int(counts >> 56);
  }
  template <class One>
  void handOver(One one) {
    // What no store of a pixel can change stays in registers.
    const int n = count_;
    const Index origin = origin_;
    int k = 0;
    for (; k + 4 <= n; k += 4) {
      std::uint64_t four;
      std::memcpy(&four, offsets_ + k, sizeof four);
      for (int i = 0; i < 64; i += 16) one(origin + Index(four >> i & 0xffff));
    }
    for (; k < n; ++k) one(origin + offsets_[k]);
    count_ = 0;
  }

 private:
  using Eight = Lanes<Hux16u, 8>;
  static constexpr int kMost = 1024;

  Hux16u offsets_[kMost + 8];  // from the origin; eight are written at a time
  int count_ = 0;
  Index origin_ = 0;
};

// Calls run(i, length) for runs of pixels that are on and, where those are so short that each would cost a mispredicted
// branch, one(i) for single ones, which may come later.
template <class One, class Run>
void forMaskedRuns(const Element<Hux8u>* mask, Index n, One one, Run run) {
  constexpr Index block = 64;
  constexpr int manyEdges = 16;
  Scattered scattered;
  for (Index i = 0; i < n; i += block) {
    std::uint64_t on;
    if (n - i >= block) {
      on = simd::nonZeroBytes(mask + i);
    } else {
      std::byte rest[block] = {};
      std::memcpy(rest, mask + i, std::size_t(n - i));
      on = simd::nonZeroBytes(rest);
    }
    if (on == 0) continue;
    if (on == ~std::uint64_t(0)) {
      run(i, block);
    } else if (bitsUpTo(on ^ on << 1) >> 56 <= manyEdges) {
      while (on != 0) {
        const int first = std::countr_zero(on), length = std::countr_one(on >> first);
        run(i + first, Index(length));
        on &= first + length < block ? ~std::uint64_t(0) << (first + length) : 0;
      }
    } else {
      scattered.add(on, i, one);
    }
  }
  scattered.handOver(one);
}

// One pixel, by words that the machine moves at once.
template <class L, class W>
void copyPixel(const Element<W>* src, Element<W>* dst) {
  std::memcpy(dst, src, L::processed * sizeof(W));
}

}  // namespace detail

template <class L, class W>
void copyRowMasked(const Element<W>* src, Element<W>* dst, const Element<Hux8u>* mask, Index n) {
  constexpr Index pixelBytes = L::channels * sizeof(W);
  if (apart<Interleaved<L::channels>, Interleaved<L::channels>>(src, dst, n, sizeof(W)) &&
      detail::disjoint(mask, n, dst, n * pixelBytes)) {
    if constexpr (simd::kPermutes && simd::kMasks)
      return detail::forMaskedVectors<L, sizeof(W)>(mask, n, [&](int, Index offset, simd::Mask on) {
        simd::store(advance(dst, offset), simd::load(advance(src, offset), on), on);
      });
    const auto one = [=](Index i) { detail::copyPixel<L>(src + i * L::channels, dst + i * L::channels); };
    return detail::forMaskedRuns(mask, n, one, [=](Index i, Index length) {
      if constexpr (L::channels == L::processed)
        simd::copyFew(dst + i * L::channels, src + i * L::channels, length * pixelBytes);
      else
        for (Index end = i + length; i < end; ++i) one(i);
    });
  }
  for (Index i = 0; i < n; ++i)
    if (mask[i])
      for (int c = 0; c < L::processed; ++c) dst[i * L::channels + c] = src[i * L::channels + c];
}

template <class L, class W>
void setRowMasked(const Pattern<L, W>& pattern, Element<W>* dst, const Element<Hux8u>* mask, Index n) {
  constexpr Index pixelBytes = L::channels * sizeof(W);
  if (detail::disjoint(mask, n, dst, n * pixelBytes)) {
    if constexpr (simd::kPermutes && simd::kMasks) {
      simd::Vec v[Pattern<L, W>::vectors];
      for (int k = 0; k < Pattern<L, W>::vectors; ++k) v[k] = pattern.vector(k);
      // A group starts at a whole number of periods: its vectors take those of the pattern in turn.
      detail::forMaskedVectors<L, sizeof(W)>(mask, n, [&](int out, Index offset, simd::Mask on) {
        simd::store(advance(dst, offset), v[out % Pattern<L, W>::vectors], on);
      });
      return;
    }
    // A copy of the pattern that no store can change.
    Element<W> pixels[Pattern<L, W>::bytes / sizeof(W)];
    std::memcpy(pixels, pattern.elements(), sizeof pixels);
    const auto one = [&](Index i) { detail::copyPixel<L>(pixels, dst + i * L::channels); };
    return detail::forMaskedRuns(mask, n, one, [&](Index i, Index length) {
      if constexpr (L::channels != L::processed)
        for (Index end = i + length; i < end; ++i) one(i);
      else if (length * pixelBytes <= Pattern<L, W>::bytes)
        simd::copyFew(dst + i * L::channels, pixels, length * pixelBytes);
      else
        pattern.fill(dst + i * L::channels, length);
    });
  }
  for (Index i = 0; i < n; ++i)
    if (mask[i])
      for (int c = 0; c < L::processed; ++c) dst[i * L::channels + c] = pattern.element(c);
}

}  // namespace hux
