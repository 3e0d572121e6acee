// What the norms of images are made of: the largest magnitude, the sum of magnitudes or of squares of each channel, of
// one image or of the difference of two.
#pragma once

#include <algorithm>
#include <cmath>

#include "core/check.h"
#include "workers/ordered_sum.h"
#include "workers/reduce.h"

namespace hux {

// The metrics.
struct Inf {
  static Hux64f finished(Hux64f total) { return total; }
};
struct L1 {
  using Term = ItsMagnitude;
  static Hux64f finished(Hux64f total) { return total; }
};
struct L2 {
  using Term = ItsSquare;
  static Hux64f finished(Hux64f total) { return std::sqrt(total); }
};

// Magnitudes of integers, and of their differences, fit unsigned lanes of their own width.
template <class T, int Images>
struct Magnitudes {
  using Result = std::make_unsigned_t<T>;
  static constexpr int lanes = laneCount<T>;
  static constexpr std::int64_t most =
      std::is_signed_v<T> && Images == 1 ? Index(1) << (8 * sizeof(T) - 1) : Result(-1);
  template <class V>
  static auto of(V v) {
    if constexpr (std::is_signed_v<T>)
      return magnitude(v);
    else
      return v;
  }
  template <class V>
  static auto of(V a, V b) {
    return distance(a, b);
  }
};
// The patterns of magnitudes of floats, and of the differences of floats in double precision, are in the order of the
// magnitudes; those of NaN lie above the pattern of infinity.
template <int Images>
struct Magnitudes<Hux32f, Images> {
  using Result = std::conditional_t<Images == 1, Hux32u, std::int64_t>;
  using Value = std::conditional_t<Images == 1, Hux32f, Hux64f>;
  static constexpr int lanes = laneCount<Value>;
  static constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
  static constexpr Result infinity = std::bit_cast<Result>(std::numeric_limits<Value>::infinity());
  template <class V>
  static auto of(V v) {
    return bitsAs<Lanes<Hux32u, lanes>>(v) & 0x7fffffff;
  }
  template <class V>
  static auto of(V a, V b) {
    return bitsAs<Lanes<Result, lanes>>(ItsMagnitude::of(convert<Hux64f>(a) - convert<Hux64f>(b)));
  }
};

// The largest of what Term makes of the elements.
template <class Term>
struct LargestFold {
  using Total = typename Term::Result;
  static constexpr int lanes = Term::lanes, steps = std::numeric_limits<int>::max(), rest = 0;
  struct State {
    Lanes<Total, lanes> largest;
  };
  template <class... V>
  static void add(State& s, V... v) {
    s.largest = greater(s.largest, Term::of(v...));
  }
  static void settle(State&) {}
  static void join(State& s, const State& other) { s.largest = greater(s.largest, other.largest); }
  static Total merge(Total a, Total b) { return std::max(a, b); }
  template <class F>
  static void eachLane(const State& s, F f) {
    for (int j = 0; j < lanes; ++j) f(j, s.largest[j]);
  }
};

// Sums of squares of bytes, in 32 bits.
template <bool Apart>
struct ByteSquares {
  static constexpr int parts = 4, steps = std::numeric_limits<int>::max();
  static constexpr int lanes = laneCount<Hux8u>;
  Lanes<Hux32u, lanes / 4> part[parts];

  void add(Lanes<Hux8u, lanes> v) {
    using Pairs = Lanes<Hux16u, lanes / 2>;
    const Pairs pairs[] = {bitsAs<Pairs>(v) & 0xff, bitsAs<Pairs>(v) >> 8};
    for (int i = 0; i < 2; ++i) {
      LaneSums<Hux16u, true> sums = {{part[i], part[2 + i]}};
      sums.add(pairs[i] * pairs[i]);
      part[i] = sums.part[0], part[2 + i] = sums.part[1];
    }
  }
  void settle() {}
};
template <>
struct ByteSquares<false> {
  static constexpr int parts = 1, steps = std::numeric_limits<int>::max();
  static constexpr int lanes = laneCount<Hux8u>;
  using Sums = Lanes<Hux32u, lanes / 4>;
  Sums part[parts];

  void add(Lanes<Hux8u, lanes> v) {
    using Pairs = Lanes<Hux16s, lanes / 2>;
    const Pairs even = bitsAs<Pairs>(v) & 0xff, odd = Pairs(bitsAs<Lanes<Hux16u, lanes / 2>>(v) >> 8);
    part[0] += Sums(pairProducts(even, even)) + Sums(pairProducts(odd, odd));
  }
  void settle() {}
};
template <class Term, bool Apart>
struct ByteSquareFold : PartsFold<ByteSquares<Apart>, Hux32u> {
  static constexpr int rest = 0;
  template <class... V>
  static void add(typename ByteSquareFold::State& s, V... v) {
    s.add(Term::of(v...));
  }
};

// Sums of squares of words, in 64 bits: the halves of the squares are added up in 32, which have room for those of
// `pixels` pixels.
template <class Term>
struct WordSquareFold {
  static constexpr int lanes = Term::lanes, steps = std::numeric_limits<int>::max(), rest = 0;
  static constexpr Index pixels = 65536;
  using Total = std::uint64_t;
  using Half = LaneSums<Hux16u, true>;
  using HalfFold = PartsFold<Half, Total>;
  struct State {
    Half low, high;
  };
  template <class... V>
  static void add(State& s, V... v) {
    const auto term = Term::of(v...);
    s.low.add(term * term);
    s.high.add(mulHigh(term, term));
  }
  static void settle(State&) {}
  static void join(State& s, const State& other) {
    HalfFold::join(s.low, other.low);
    HalfFold::join(s.high, other.high);
  }
  static Total merge(Total a, Total b) { return a + b; }
  template <class F>
  static void eachLane(const State& s, F f) {
    HalfFold::eachLane(s.low, f);
    HalfFold::eachLane(s.high, [&](int e, Total value) { f(e, value << 16); });
  }
};

// Sums of doubles from one channel where the order of the additions is not laid down: there are 32, whatever the
// machine's vectors. Each row starts with the first one; at the end they are added up in halves.
template <class What>
class StridedSums {
 public:
  template <class... E>
  void row(Index n, const E*... operands) {
    Doubles sums[kVectors];
    std::memcpy(sums, sums_, sizeof sums);
    Index i = 0;
    for (; i + kSums <= n; i += kSums)
      for (int k = 0; k < kVectors; ++k)
        sums[k] += termOf<What>(Doubles(convert<Hux64f>(loadLanes<Floats>(operands + i + k * kLanes)))...);
    for (int k = 0; k < kVectors; ++k, i += kLanes)
      if (const int count = int(std::min<Index>(kLanes, n - i)); count > 0)
        sums[k] += termOf<What>(Doubles(convert<Hux64f>(loadLanes<Floats>(operands + i, count, 0.0f)))...);
    std::memcpy(sums_, sums, sizeof sums);
  }
  Hux64f total() const {
    Hux64f all[kSums];
    std::memcpy(all, sums_, sizeof all);
    for (int half = kSums / 2; half > 0; half /= 2)
      for (int k = 0; k < half; ++k) all[k] += all[k + half];
    return all[0];
  }

 private:
  static constexpr int kSums = 32, kLanes = laneCount<Hux64f>, kVectors = kSums / kLanes;
  using Doubles = Lanes<Hux64f, kLanes>;
  using Floats = Lanes<Hux32f, kLanes>;
  Doubles sums_[kVectors] = {};
};

// The largest magnitudes of floats, by the rule that decides where there is a NaN: a running value is replaced unless
// it is above the next one, so that a NaN replaces it and is replaced by what follows. One channel has two running
// values, of the even and of the odd columns.
template <class L, class... T>
std::array<Hux64f, L::processed> largestInOrder(HuxiSize roi, const Rows<const T>&... images) {
  constexpr int stride = L::channels == 1 ? 2 : L::channels;
  const auto larger = [](Hux64f running, Hux64f next) { return running > next ? running : next; };
  Hux64f running[stride] = {};
  for (Index y = 0; y < roi.height; ++y)
    for (Index x = 0; x < roi.width; ++x)
      for (int c = 0; c < L::processed; ++c) {
        Hux64f& value = running[L::channels == 1 ? x % 2 : c];
        value = larger(value, termOf<ItsMagnitude>(Hux64f(images.row(y)[x * L::channels + c])...));
      }
  std::array<Hux64f, L::processed> result;
  std::copy_n(running, L::processed, result.begin());
  if (L::channels == 1) result[0] = larger(running[0], running[1]);
  return result;
}

template <class L, class... T>
std::array<Hux64f, L::processed> largest(HuxiSize roi, const Rows<const T>&... images) {
  using Pixel = std::common_type_t<T...>;
  using Term = Magnitudes<Pixel, sizeof...(T)>;
  using Fold = LargestFold<Term>;
  typename Reduction<L, Fold>::Totals largest{};
  // Once no magnitude can be larger in any channel, the rest need not be seen.
  reduce<L, Fold>(
      roi, Batches{65536, true},
      [&](const auto& totals) {
        for (int c = 0; c < L::processed; ++c) largest[c] = std::max(largest[c], totals[c]);
        return std::ranges::all_of(largest, [](auto value) { return std::int64_t(value) >= Term::most; });
      },
      images...);
  std::array<Hux64f, L::processed> result;
  if constexpr (std::is_floating_point_v<Pixel>) {
    using Value = typename Term::Value;
    if (std::ranges::any_of(largest, [](auto bits) { return bits > Term::infinity; }))
      return largestInOrder<L>(roi, images...);
    std::ranges::transform(largest, result.begin(), [](auto bits) { return std::bit_cast<Value>(bits); });
  } else {
    std::ranges::copy(largest, result.begin());
  }
  return result;
}

// Integer sums: of magnitudes, and of squares of bytes, in 32 bits, over whole rows and over kWidest pixels of a row at
// most; of squares of words in 64 bits over the whole image. Each is taken as a signed number and added up in double
// precision.
inline constexpr int kWidest = 32768;
template <class L, class M, class... T>
std::array<Hux64f, L::processed> integerTotals(HuxiSize roi, const Rows<const T>&... images) {
  using Pixel = std::common_type_t<T...>;
  using Term = Magnitudes<Pixel, sizeof...(T)>;
  constexpr bool apart = L::channels != 1;
  std::array<Hux64f, L::processed> result{};
  const auto add = [&](const auto& totals) {
    for (int c = 0; c < L::processed; ++c) result[c] += signedTotal(totals[c]);
    return false;
  };
  if constexpr (std::is_same_v<M, L1>) {
    reduce<L, SumFold<Term, apart>>(roi, batches(roi, roi.width, Term::most), add, images...);
  } else if constexpr (sizeof(Pixel) == 1) {
    reduce<L, ByteSquareFold<Term, apart>>(roi, batches(roi, kWidest, Term::most * Term::most), add, images...);
  } else {
    std::array<std::uint64_t, L::processed> sums{};
    const auto addWide = [&](const auto& totals) {
      for (int c = 0; c < L::processed; ++c) sums[c] += totals[c];
      return false;
    };
    using Fold = WordSquareFold<Term>;
    reduce<L, Fold>(roi, Batches{Fold::pixels, true}, addWide, images...);
    std::ranges::transform(sums, result.begin(), [](std::uint64_t sum) { return Hux64f(Hux64s(sum)); });
  }
  return result;
}

// What a metric has of each channel of an image, or of a difference, before the root. Where AnyOrder is true, sums of
// floats of one channel need not be formed in the order of the pixels in rows of kAnyOrder pixels and more.
inline constexpr int kAnyOrder = 9;
template <class L, class M, bool AnyOrder, class... T>
std::array<Hux64f, L::processed> totals(HuxiSize roi, const Rows<const T>&... images) {
  if constexpr (std::is_same_v<M, Inf>) {
    return largest<L>(roi, images...);
  } else if constexpr (!(std::is_floating_point_v<T> && ...)) {
    return integerTotals<L, M>(roi, images...);
  } else if constexpr (AnyOrder && L::channels == 1) {
    if (roi.width < kAnyOrder) return orderedTotals<L, typename M::Term>(roi, images...);
    StridedSums<typename M::Term> sums;
    for (Index y = 0; y < roi.height; ++y) sums.row(roi.width, images.row(y)...);
    return {sums.total()};
  } else {
    return orderedTotals<L, typename M::Term>(roi, images...);
  }
}

}  // namespace hux
