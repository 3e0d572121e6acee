// Moving elements between arrangements of channels, one row at a time: what Copy, Dup, SwapChannels and the border
// functions share. A move is described by its two sides and the number of elements taken from each pixel; the vector
// loop is derived from that description.
#pragma once

#include <algorithm>
#include <array>

#include "core/rows.h"
#include "lanes/planes.h"
#include "lanes/simd.h"
#include "workers/fill.h"

namespace hux {

// A side whose pixels lie `Stride` elements apart in one row.
template <int Stride>
struct Interleaved {
  static constexpr int vectors = Stride;  // vectors in a group of one vector's worth of pixels
  static constexpr int stride = Stride;
  template <class E>
  static E& at(E* row, Index pixel, int c) {
    return row[pixel * Stride + c];
  }
  // Byte of element c of a pixel within a group, vectors laid end to end.
  static constexpr int byteOf(int pixel, int c, int elementBytes) { return (pixel * Stride + c) * elementBytes; }
  template <class E>
  static auto* vectorAt(E* row, Index pixel, int k) {
    return advance(row, pixel * Stride * Index(sizeof(E)) + k * simd::kBytes);
  }
  // Bytes that vector k of a group may touch where `left` pixels remain and `taken` elements of the last belong to the
  // row.
  static constexpr Index bytesLeft(Index left, int taken, int elementBytes, int k) {
    return ((left - 1) * Stride + taken) * elementBytes - k * simd::kBytes;
  }
  // Pixels to pass until the vectors of a group can be streamed; -1 where they never can.
  template <class E>
  static Index toBoundary(E* row) {
    return simd::pixelsToBoundary(row, Stride * int(sizeof(E)));
  }
};

// A side with a plane for each element.
template <int Planes>
struct Planar {
  static constexpr int vectors = Planes;
  static constexpr int stride = 1;
  template <class E>
  static E& at(const std::array<E*, Planes>& row, Index pixel, int c) {
    return row[c][pixel];
  }
  static constexpr int byteOf(int pixel, int c, int elementBytes) { return c * simd::kBytes + pixel * elementBytes; }
  template <class E>
  static auto* vectorAt(const std::array<E*, Planes>& row, Index pixel, int k) {
    return row[k] + pixel;
  }
  static constexpr Index bytesLeft(Index left, int, int elementBytes, int) { return left * elementBytes; }
  template <class E>
  static Index toBoundary(const std::array<E*, Planes>& row) {
    const Index pixels = simd::pixelsToBoundary(row[0], sizeof(E));
    for (E* plane : row)
      if (simd::pixelsToBoundary(plane, sizeof(E)) != pixels) return -1;
    return pixels;
  }
};

// A one-channel side whose element serves every channel of the other.
struct Repeated : Interleaved<1> {
  template <class E>
  static E& at(E* row, Index pixel, int) {
    return row[pixel];
  }
  static constexpr int byteOf(int pixel, int, int elementBytes) { return pixel * elementBytes; }
  static constexpr Index bytesLeft(Index left, int, int elementBytes, int) { return left * elementBytes; }
};

namespace detail {

// Which source byte stands at byte j of output vector `Out` of a group.
template <class Src, class Dst, int ElementBytes, int Taken, int Out>
struct MoveMap {
  static constexpr int source(int j) {
    const int pixels = simd::kBytes / ElementBytes;
    for (int c = 0; c < Taken; ++c) {
      const int lane = (Out * simd::kBytes + j) / ElementBytes * ElementBytes;
      // Invert byteOf: the pixel whose element c stands at this lane, if there is one.
      const int base = Dst::byteOf(0, c, ElementBytes), pitch = Dst::byteOf(1, c, ElementBytes) - base;
      const int pixel = (lane - base) / pitch;
      if (lane >= base && (lane - base) % pitch == 0 && pixel < pixels)
        return Src::byteOf(pixel, c, ElementBytes) + (Out * simd::kBytes + j) % ElementBytes;
    }
    return -1;
  }
};

template <class Src, class Dst, int ElementBytes, int Taken, std::size_t... Out>
constexpr bool writesAll(std::index_sequence<Out...>) {
  return ((simd::written<MoveMap<Src, Dst, ElementBytes, Taken, int(Out)>>() == simd::kAll) && ...);
}

inline bool disjoint(const void* a, Index aBytes, const void* b, Index bBytes) {
  const auto x = reinterpret_cast<std::uintptr_t>(a), y = reinterpret_cast<std::uintptr_t>(b);
  return x + std::uintptr_t(aBytes) <= y || y + std::uintptr_t(bBytes) <= x;
}
template <class A>
std::array<A*, 1> starts(A* row) {
  return {row};
}
template <class A, std::size_t N>
std::array<A*, N> starts(const std::array<A*, N>& planes) {
  return planes;
}

}  // namespace detail

// Whether two sides of a move of n pixels lie apart.
template <class Src, class Dst, class SrcRow, class DstRow>
bool apart(const SrcRow& src, const DstRow& dst, Index n, int elementBytes) {
  for (auto* s : detail::starts(src))
    for (auto* d : detail::starts(dst))
      if (!detail::disjoint(s, n * Src::stride * elementBytes, d, n * Dst::stride * elementBytes)) return false;
  return true;
}

// The definition: elements first to last. Also what overlapping rows get, whose order shows.
template <class Src, class Dst, int Taken, class SrcRow, class DstRow>
void moveEach(const SrcRow& src, const DstRow& dst, Index first, Index n) {
  for (Index i = first; i < n; ++i)
    for (int c = 0; c < Taken; ++c) Dst::at(dst, i, c) = Src::at(src, i, c);
}

// The same between sides that lie apart, where the order does not show: several pixels at a time, and the elements of a
// pixel together where they stand together on both sides.
template <class Src, class Dst, int Taken, class SrcRow, class DstRow>
void moveApart(const SrcRow& src, const DstRow& dst, Index first, Index n) {
  constexpr bool together =
      std::is_same_v<Src, Interleaved<Src::stride>> && std::is_same_v<Dst, Interleaved<Dst::stride>> && Taken > 1;
  const auto one = [&](Index i) {
    if constexpr (together)
      std::memcpy(&Dst::at(dst, i, 0), &Src::at(src, i, 0), Taken * sizeof(Dst::at(dst, i, 0)));
    else
      for (int c = 0; c < Taken; ++c) Dst::at(dst, i, c) = Src::at(src, i, c);
  };
  // Colours of bytes, which leave in two parts, come by vectors; the last pixel's alpha is not read.
  if constexpr (together && Taken == 3 && Src::stride == 4 && Dst::stride == 4 && sizeof(Dst::at(dst, 0, 0)) == 1)
    for (constexpr Index pixels = kLaneBytes / 4; first + pixels < n; first += pixels)
      storeColours<3>(&Dst::at(dst, first, 0), loadLanes<WindowBytes>(&Src::at(src, first, 0)));
  constexpr Index many = 8;
  for (; first + many <= n; first += many)
    for (Index i = 0; i < many; ++i) one(first + i);
  for (; first < n; ++first) one(first);
}

// Whole pixels to planes, from planes, or each from one element, where bytes are permuted within 16 of them at most.
template <class Src, class Dst, int Taken>
inline constexpr bool kByPlanes = false;
template <int N>
inline constexpr bool kByPlanes<Interleaved<N>, Planar<N>, N> = (N == 3 || N == 4) && simd::kBytes == 16;
template <int N>
inline constexpr bool kByPlanes<Planar<N>, Interleaved<N>, N> = (N == 3 || N == 4) && simd::kBytes == 16;
template <int N>
inline constexpr bool kByPlanes<Repeated, Interleaved<N>, N> = (N == 3 || N == 4) && !simd::kPermutes;

// Moves groups of them, as long as those are whole, and returns the number of pixels moved. The first pixels, up to a
// boundary, go one by one where the others are streamed. Planes are not: several lines at once that are not full yet
// are more than stores past the cache can wait for.
template <class W, class Src, class Dst, int Taken, class SrcRow, class DstRow>
Index moveByPlanes(const SrcRow& src, const DstRow& dst, Index n, [[maybe_unused]] bool streaming) {
  constexpr int bytes = sizeof(W);
  constexpr Index group = kLaneBytes / bytes;
  // Window w of vector k: of planes they follow each other, of pixels a group of 16 bytes for each channel does.
  const auto groups = [&]<bool PastCache>(std::bool_constant<PastCache>, Index i) {
    for (; i + group <= n; i += group) {
      WindowBytes v[Taken];
      for (int k = 0; k < Taken; ++k) {
        const auto* from = reinterpret_cast<const std::byte*>(Src::vectorAt(src, i, Src::vectors == 1 ? 0 : k));
        v[k] = simd::loadQuads<WindowBytes>(from, Src::stride * kWindowBytes);
      }
      if constexpr (std::is_same_v<Dst, Planar<Taken>>)
        simd::toPlanes<bytes>(v);
      else
        simd::fromPlanes<bytes>(v);
      for (int k = 0; k < Taken; ++k)
        storeWindows<PastCache>(reinterpret_cast<std::byte*>(Dst::vectorAt(dst, i, k)), Dst::stride * kWindowBytes,
                                v[k]);
    }
    return i;
  };
  if constexpr (std::is_same_v<Dst, Interleaved<Dst::stride>>) {
    const Index head = streaming ? Dst::toBoundary(dst) : -1;
    if (head >= 0 && head <= n) {
      moveApart<Src, Dst, Taken>(src, dst, 0, head);
      return groups(std::true_type{}, head);
    }
  }
  return groups(std::false_type{}, 0);
}

// Moves `Taken` elements of each of n pixels of type W. Destinations of which every byte is written can be streamed.
template <class W, class Src, class Dst, int Taken, class SrcRow, class DstRow>
void moveRow(SrcRow src, DstRow dst, Index n, bool streaming = false) {
  constexpr int bytes = sizeof(W);
  constexpr Index group = simd::kBytes / bytes;
  constexpr auto outs = std::make_index_sequence<Dst::vectors>{};
  constexpr bool whole = detail::writesAll<Src, Dst, bytes, Taken>(outs);
  Index i = 0;
  constexpr bool byPlanes = kByPlanes<Src, Dst, Taken> && !simd::kMasks;
  if constexpr (simd::kPermutes && !byPlanes && (whole || simd::kMasks)) {
    if (apart<Src, Dst>(src, dst, n, bytes)) {
      enum Mode { Whole, Stream, Part };
      const auto moveGroup = [&]<Mode M, std::size_t... Out>(std::integral_constant<Mode, M>, Index left,
                                                             std::index_sequence<Out...>) {
        simd::Vec in[Src::vectors];
        for (int k = 0; k < Src::vectors; ++k) {
          const auto* from = Src::vectorAt(src, i, k);
          in[k] =
              M == Part ? simd::load(from, simd::lowBytes(Src::bytesLeft(left, Taken, bytes, k))) : simd::load(from);
        }
        (
            [&] {
              using Map = detail::MoveMap<Src, Dst, bytes, Taken, int(Out)>;
              constexpr simd::Mask written = simd::written<Map>();
              auto* to = Dst::vectorAt(dst, i, int(Out));
              const simd::Vec v = simd::permute<Map, Src::vectors>(in);
              if constexpr (M == Part)
                simd::store(to, v, written & simd::lowBytes(Dst::bytesLeft(left, Taken, bytes, int(Out))));
              else if constexpr (M == Stream)
                simd::stream(to, v);
              else if constexpr (written == simd::kAll)
                simd::store(to, v);
              else if constexpr (written != 0)
                simd::store(to, v, written);
            }(),
            ...);
      };
      // A group of a source that has elements behind the last one taken may reach past the row: it is left to the end.
      constexpr Index margin = Src::stride > Taken ? 1 : 0;
      constexpr std::integral_constant<Mode, Part> part;
      if constexpr (whole && simd::kStreams && simd::kMasks) {
        const Index head = streaming ? Dst::toBoundary(dst) : -1;
        if (head >= 0 && head <= n) {
          if (head > 0) moveGroup(part, head, outs);
          for (i = head; i + group + margin <= n; i += group)
            moveGroup(std::integral_constant<Mode, Stream>{}, group, outs);
        }
      }
      for (; i + group + margin <= n; i += group) moveGroup(std::integral_constant<Mode, Whole>{}, group, outs);
      if constexpr (simd::kMasks) {
        if (i < n) moveGroup(part, n - i, outs);
        return;
      }
    }
  } else if (apart<Src, Dst>(src, dst, n, bytes)) {
    if constexpr (byPlanes) i = moveByPlanes<W, Src, Dst, Taken>(src, dst, n, streaming);
    return moveApart<Src, Dst, Taken>(src, dst, i, n);
  }
  moveEach<Src, Dst, Taken>(src, dst, i, n);
}

// Moves n pixels between images of one layout: all that it processes, and nothing else.
template <class L, class W>
void copyPixels(const Element<W>* src, Element<W>* dst, Index n, bool streaming = false) {
  if constexpr (L::processed == L::channels)
    ownsCopy_8u(src, dst, n * L::channels * Index(sizeof(W)), sizeof(W), streaming);
  else
    moveRow<W, Interleaved<L::channels>, Interleaved<L::channels>, L::processed>(src, dst, n);
}

}  // namespace hux
