// Reductions: an image, or a pair of images, folded into one value per channel.
//
// A fold is what happens to the elements. It works on vectors, lane by lane, and learns about channels only at the end:
//   lanes                   how many elements it takes at a time
//   rest                    an element that changes nothing; in each operand, it stands in for what is behind a row
//   addPart(state, count, rows...)  in place of rest, where there is no such element: takes the first `count` lanes
//   State                   what is known of one vector of a pixel group; value-initialised it is nothing
//   add(state, vectors...)  takes one vector of each operand
//   steps, settle(state)    at the latest after so many additions, moves what add has gathered to where there is room
//   join(state, other)      adds what another state of the same lanes knows
//   eachLane(state, f)      calls f(e, value) with the value of each lane, of element e of the vector or, where the
//                           lanes of a one-channel fold run together, of any
//   Total, merge(a, b)      the result of a channel, and of two parts of it
#pragma once

#include <array>

#include "core/rows.h"
#include "lanes/lanes.h"
#include "lanes/lanes_sum.h"
#include "lanes/unrolled.h"

namespace hux {

// The states of a fold over pixels of layout L. A group of vectors starts with a pixel and is also long enough for
// speed.
template <class L, class Fold>
class Reduction {
 public:
  using Totals = std::array<typename Fold::Total, L::processed>;

  Reduction() = default;
  // Where states hold constants of their channels: stateAt(e) is nothing yet known of a vector whose lane 0 is element
  // e of a pixel group.
  template <class StateAt>
  requires std::is_invocable_v<StateAt, int>
  explicit Reduction(StateAt stateAt) {
    for (int k = 0; k < kVectors; ++k) states_[k] = stateAt(k * Fold::lanes);
  }

  // The next n pixels, of one row. Alpha of the last one is not read.
  template <class... T>
  void row(Index n, const Element<T>*... operands) {
    const Index elements = n * L::channels - (L::channels - L::processed);
    State s[kVectors];
    for (int k = 0; k < kVectors; ++k) s[k] = states_[k];
    for (Index i = 0; i < elements;) {
      if (room_ == 0) {
        for (State& state : s) Fold::settle(state);
        room_ = Fold::steps;
      }
      const Index whole = std::min<Index>(room_, (elements - i) / kGroup);
      for (Index step = 0; step < whole; ++step, i += kGroup)
        unrolled<kVectors>(
            [&](auto k) { Fold::add(s[k], loadLanes<Lanes<T, Fold::lanes>>(operands + i + k * Fold::lanes)...); });
      room_ -= int(whole);
      if (room_ == 0 || i >= elements || elements - i >= kGroup) continue;
      unrolled<kVectors>([&](auto k) {
        const Index from = i + k * Fold::lanes, count = std::min<Index>(Fold::lanes, elements - from);
        if (count <= 0) return;
        if constexpr (requires { Fold::rest; })
          Fold::add(s[k], loadLanes<Lanes<T, Fold::lanes>>(operands + from, int(count), T(Fold::rest))...);
        else
          Fold::addPart(s[k], int(count), operands + from...);
      });
      --room_, i = elements;
    }
    for (int k = 0; k < kVectors; ++k) states_[k] = s[k];
  }

  Totals totals() const {
    Totals totals{};
    std::array<State, kVectors> s;
    for (int k = 0; k < kVectors; ++k) Fold::settle(s[k] = states_[k]);
    for (int k = 1; k < kVectors && kAlike; ++k) Fold::join(s[0], s[k]);
    for (int k = 0; k < (kAlike ? 1 : kVectors); ++k)
      Fold::eachLane(s[k], [&](int e, typename Fold::Total value) {
        const int c = (k * Fold::lanes + e) % L::channels;
        if (c < L::processed) totals[c] = Fold::merge(totals[c], value);
      });
    return totals;
  }

 private:
  using State = typename Fold::State;
  static constexpr bool kAlike = Fold::lanes % L::channels == 0;
  static constexpr int kVectors = L::channels == 3 ? 3 : 4, kGroup = kVectors * Fold::lanes;

  State states_[kVectors] = {};
  int room_ = Fold::steps;
};

// How a region is cut into batches, each of which gives totals of its own: at every so many pixels and, where rows are
// not joined, at the end of each row.
struct Batches {
  Index pixels;
  bool joinRows;
};

// Calls take(totals) with the channels' totals of one batch after the other, until it returns true.
template <class L, class Fold, class Take, class... T>
void reduce(HuxiSize roi, Batches batches, Take take, const Rows<const T>&... images) {
  Index width = roi.width, height = roi.height;
  if (batches.joinRows && (images.contiguous(width) && ...)) width *= height, height = 1;
  Index room = batches.pixels;
  Reduction<L, Fold> reduction;
  for (Index y = 0; y < height; ++y)
    for (Index x = 0, n; x < width; x += n) {
      n = std::min(room, width - x);
      reduction.row(n, images.row(y) + x * L::channels...);
      room -= n;
      if (room > 0 && (batches.joinRows ? y + 1 < height : x + n < width)) continue;
      if (take(reduction.totals())) return;
      reduction = {};
      room = batches.pixels;
    }
}

// The batches for sums that the contract forms in 32 bits, which wrap, over `block` pixels of a row at most, takes as
// signed numbers and adds up in double precision. No term is above `most` in magnitude. As long as nothing can wrap and
// every total is an integer that a double holds, rows may be joined and cut anywhere.
inline Batches batches(HuxiSize roi, Index block, Index most) {
  const Index fits = std::numeric_limits<Hux32s>::max() / most;
  const bool exact = Hux64f(roi.width) * roi.height * Hux64f(most) < 0x1p53;
  if (exact && std::min<Index>(roi.width, block) <= fits) return {fits, true};
  return {block, false};
}

// A total modulo 2^32 as the signed number that the contract takes it for.
inline Hux64f signedTotal(Hux32u total) { return Hux32s(total); }

// Sums of integer lanes, modulo 2^32: each in a lane of its own, or, for one channel, as the machine adds them fastest.
template <class T, bool Apart>
struct LaneSums {
  static constexpr int parts = 2, steps = std::numeric_limits<int>::max();
  static constexpr int lanes = laneCount<T>;
  using Sums = Lanes<Hux32u, lanes / 2>;
  Sums part[parts];

  void add(Lanes<T, lanes> v) {
    using Pair = Lanes<std::conditional_t<std::is_signed_v<T>, Hux32s, Hux32u>, lanes / 2>;
    const Sums pairs = bitsAs<Sums>(v);
    part[0] += Sums(Pair(pairs << 16) >> 16);
    part[1] += Sums(Pair(pairs) >> 16);
  }
  void settle() {}
};
// Bytes gather in 16 bits, which have room for 257 of them, and move on to 32.
template <>
struct LaneSums<Hux8u, true> {
  static constexpr int parts = 4, steps = 257;
  static constexpr int lanes = laneCount<Hux8u>;
  using Pairs = Lanes<Hux16u, lanes / 2>;
  Pairs gathered[2];
  Lanes<Hux32u, lanes / 4> part[parts];

  void add(Lanes<Hux8u, lanes> v) {
    gathered[0] += bitsAs<Pairs>(v) & 0xff;
    gathered[1] += bitsAs<Pairs>(v) >> 8;
  }
  void settle() {
    for (int i = 0; i < 2; ++i) {
      LaneSums<Hux16u, true> sums = {{part[i], part[2 + i]}};
      sums.add(gathered[i]);
      part[i] = sums.part[0], part[2 + i] = sums.part[1];
      gathered[i] = Pairs{};
    }
  }
};
template <>
struct LaneSums<Hux8u, false> {
  static constexpr int parts = 1, steps = std::numeric_limits<int>::max();
  static constexpr int lanes = laneCount<Hux8u>;
  Lanes<std::uint64_t, lanes / 8> part[parts];

  void add(Lanes<Hux8u, lanes> v) { part[0] += sumsOfEight(v); }
  void settle() {}
};

// A fold by parts: lane j of part p of the state stands for element j * parts + p of a vector.
template <class Parts, class Result>
struct PartsFold {
  using State = Parts;
  using Total = Result;
  static constexpr int lanes = Parts::lanes, steps = Parts::steps;

  static void settle(State& s) { s.settle(); }
  static void join(State& s, const State& other) {
    for (int p = 0; p < Parts::parts; ++p) s.part[p] += other.part[p];
  }
  static Total merge(Total a, Total b) { return a + b; }
  template <class F>
  static void eachLane(const State& s, F f) {
    for (int p = 0; p < Parts::parts; ++p)
      for (int j = 0; j < lanesIn<decltype(+s.part[p])>; ++j) f(j * Parts::parts + p, Total(s.part[p][j]));
  }
};

// The sums of what Term makes of the elements.
template <class Term, bool Apart>
struct SumFold : PartsFold<LaneSums<typename Term::Result, Apart>, Hux32u> {
  static constexpr int rest = 0;
  template <class... V>
  static void add(typename SumFold::State& s, V... v) {
    s.add(Term::of(v...));
  }
};

}  // namespace hux
