// Sums of single-precision pixels in double precision, in the order of the pixels.
#pragma once

#include <array>
#include <bit>
#include <cmath>

#include "core/rows.h"
#include "lanes/lanes.h"
#include "lanes/lanes_math.h"
#include "lanes/unrolled.h"

namespace hux {

// What is added up of an element widened to double, or of the difference of two, on lanes and on single numbers.
struct ItsValue {
  static constexpr int power = 1;
  template <class V>
  static V of(V v) {
    return v;
  }
};
struct ItsMagnitude {
  static constexpr int power = 1;
  static Hux64f of(Hux64f v) { return std::fabs(v); }
  template <class V>
  static V of(V v) {
    return bitsAs<V>(bitsAs<Lanes<Hux64s, lanesIn<V>>>(v) & std::numeric_limits<Hux64s>::max());
  }
};
struct ItsSquare {
  static constexpr int power = 2;
  template <class V>
  static V of(V v) {
    return v * v;
  }
};
template <class What, class V>
V termOf(V v) {
  return What::of(v);
}
template <class What, class V>
V termOf(V a, V b) {
  return What::of(V(a - b));
}

// One running sum per channel, and in one channel two, of the even and of the odd columns of each row, all over the
// whole image; every addition rounds.
//
// Additions that follow one another wait for each other. But the order of additions that do not round is free: as long
// as the sum and all elements are multiples of a unit, and no sum of them can be above 2^53 units. Stretches of a row
// in which that is so are added up in many lanes at once, and lanes and running sums are kept apart until it is not.
template <class L, class What>
class OrderedSums {
 public:
  template <class... E>
  void row(Index n, const E*... operands) {
    const Index elements = n * L::channels - (L::channels - L::processed);
    for (Index i = 0; i < elements;) {
      const Index added = addExact(elements - i, operands + i...);
      if (added == 0) addInOrder(std::min(kStretch, elements - i), operands + i...);
      i += added > 0 ? added : kStretch;
    }
  }

  std::array<Hux64f, L::processed> totals() {
    settle();
    std::array<Hux64f, L::processed> totals;
    std::copy_n(sums_, L::processed, totals.begin());
    if (L::channels == 1) totals[0] = sums_[1] + sums_[0];
    return totals;
  }

 private:
  // Elements from one of a running sum to its next one.
  static constexpr int kPeriod = L::channels == 1 ? 2 : L::channels;
  static constexpr int kSums = L::channels == 1 ? 2 : L::processed;

  static constexpr int kLanes = laneCount<Hux32f>;
  using Floats = Lanes<Hux32f, kLanes>;
  using Half = Lanes<Hux32f, kLanes / 2>;
  using Bits = Lanes<Hux32u, kLanes>;
  using Doubles = Lanes<Hux64f, kLanes / 2>;
  // A pixel of three elements starts at lane 0 again after three vectors.
  static constexpr int kVectors = L::channels == 3 ? 3 : 4, kPhases = L::channels == 3 ? 3 : 1;
  static constexpr Index kGroup = kVectors * kLanes, kStretch = 512 / kGroup * kGroup;
  static constexpr Index kWorthwhile = 64, kRoom = 32;

  template <class... E>
  void addInOrder(Index elements, const E*... operands) {
    settle();
    Hux64f sums[kSums];
    std::copy_n(sums_, kSums, sums);
    Index i = 0;
    for (; i + kPeriod <= elements; i += kPeriod)
      for (int c = 0; c < kSums; ++c) sums[c] += termOf<What>(Hux64f(operands[i + c])...);
    for (int c = 0; c < kSums && i + c < elements; ++c) sums[c] += termOf<What>(Hux64f(operands[i + c])...);
    std::copy_n(sums, kSums, sums_);
  }

  // Adds as many stretches as can be added exactly and returns the number of their elements. Where that is 0, several
  // times in a row, it is not tried again for a while.
  template <class... E>
  Index addExact(Index elements, const E*... operands) {
    const Index next = std::min(kStretch, elements);
    if (left_ < next) {
      if (next < kWorthwhile) return 0;
      if (pause_ > 0) return --pause_, 0;
      if (pending_) settle(), plan(next * kRoom, int(sizeof...(E)), largest_);  // as before
    }
    Bits most[kPhases];
    const auto lanes = [&](bool byUnit) {
      if constexpr (What::power == 1)
        if (!byUnit) return addLanes<false>(elements, most, operands...);
      return addLanes<true>(std::min(elements, 16 * kStretch), most, operands...);
    };
    Index added = lanes(false);
    const auto replan = [&](Index stretches, bool byUnit) {
      if (added > 0) return;
      settle();
      if (plan(next * stretches, int(sizeof...(E)), most)) added = lanes(byUnit);
    };
    if (What::power == 1) replan(kRoom, false);
    replan(kRoom, true), replan(1, true);
    failures_ = added > 0 ? 0 : std::min(failures_ + 1, 6);
    pause_ = (1 << failures_) - 1;
    return added;
  }

  // Adds stretches to the lanes until a limit is in the way, and tells the largest magnitudes of the last one seen.
  // Whether all elements are multiples of the unit is seen from the smallest magnitude, where that is large enough, and
  // else, at more cost, ByUnit.
  template <bool ByUnit, class... E>
  Index addLanes(Index elements, Bits (&magnitudes)[kPhases], const E*... operands) {
    Doubles sums[kVectors][2];
    Bits inexact[kPhases], least[kPhases], most[kPhases], limits[kPhases];
    unrolled<kVectors>([&](auto k) HUX_INLINE { sums[k][0] = lanes_[k][0], sums[k][1] = lanes_[k][1]; });
    std::copy_n(multiples_, kPhases, limits);
    const auto take = [&](auto k, auto load) HUX_INLINE {
      constexpr int phase = k % kPhases;
      const auto inspect = [&](Floats v) HUX_INLINE {
        const Bits magnitude = bitsAs<Bits>(v) & 0x7fffffff;
        most[phase] = greaterBits(magnitude, most[phase]);
        if constexpr (ByUnit) {
          // Up to 2^23 units a number that is raised by as much has the unit for its last place; above it has it
          // anyway.
          const Bits low = lesserBits(magnitude, limits[phase]);
          const Floats limit = bitsAs<Floats>(limits[phase]);
          inexact[phase] |= bitsAs<Bits>(Floats(addOnMultiplier(bitsAs<Floats>(low), limit) - limit)) ^ low;
        } else {
          // That makes 0 the largest, or a NaN.
          least[phase] = lesserBits(kOrdersUnsigned ? magnitude - 1 : (magnitude - 1) & 0x7fffffff, least[phase]);
        }
      };
      const auto add = [&](int half, auto... v)
                           HUX_INLINE { sums[k][half] += termOf<What>(Doubles(convert<Hux64f>(v))...); };
      (inspect(load(Floats{}, operands, 0)), ...);
      add(0, load(Half{}, operands, 0)...);
      add(1, load(Half{}, operands, kLanes / 2)...);
    };
    for (Index from = 0; from < elements;) {
      const Index end = std::min(from + kStretch, elements);
      for (int p = 0; p < kPhases; ++p) inexact[p] = most[p] = Bits{}, least[p] = splat<Bits>(0x7f800000);
      Index i = from;
      for (; i + kGroup <= end; i += kGroup)
        unrolled<kVectors>([&](auto k) HUX_INLINE {
          take(k, [&](auto v, auto* p, int at) HUX_INLINE { return loadLanes<decltype(v)>(p + i + k * kLanes + at); });
        });
      if (i < end)
        unrolled<kVectors>([&](auto k) HUX_INLINE {
          const Index rest = i + k * kLanes, count = std::min<Index>(kLanes, end - rest);
          if (count > 0)
            take(k, [&](auto v, auto* p, int at) HUX_INLINE {
              return loadLanes<decltype(v)>(p + rest + at, std::clamp(int(count) - at, 0, lanesIn<decltype(v)>), 0.0f);
            });
        });
      bool exact = left_ >= end - from && (kOrdersUnsigned || areNumbers(sums));
      for (int p = 0; p < kPhases; ++p)
        exact &= !any(ByUnit ? inexact[p] != 0 : least[p] < limits[p] - Bits(Bits(limits[p] != 0) & 1)) &&
                 !any(most[p] > largest_[p]);
      if (!exact) {
        std::copy_n(most, kPhases, magnitudes);
        return from;
      }
      unrolled<kVectors>([&](auto k) HUX_INLINE { lanes_[k][0] = sums[k][0], lanes_[k][1] = sums[k][1]; });
      left_ -= end - from;
      pending_ = true;
      from = end;
    }
    return elements;
  }

  // The lesser and the greater of magnitudes, as bits or as the floats that these are: then the first is passed over
  // where it is a NaN, which shows in the sums.
  static Bits lesserBits(Bits a, Bits b) {
    if constexpr (kOrdersUnsigned)
      return lesser(a, b);
    else
      return bitsAs<Bits>(lesser(bitsAs<Floats>(a), bitsAs<Floats>(b)));
  }
  static Bits greaterBits(Bits a, Bits b) {
    if constexpr (kOrdersUnsigned)
      return greater(a, b);
    else
      return bitsAs<Bits>(greater(bitsAs<Floats>(a), bitsAs<Floats>(b)));
  }
  // False where a sum that counts is a NaN, and nowhere else as long as all are finite.
  HUX_INLINE static bool areNumbers(const Doubles (&sums)[kVectors][2]) {
    Doubles all[2] = {};
    unrolled<kVectors>([&](auto k) HUX_INLINE { all[0] += sums[k][0], all[1] += sums[k][1]; });
    if constexpr (L::channels != L::processed) all[1][lanesIn<Doubles> - 1] = 0;
    return !any((all[0] != all[0]) | (all[1] != all[1]));
  }

  // Moves the lanes to the running sums, which is exact.
  void settle() {
    left_ = 0;
    if (!pending_) return;
    for (int k = 1; k < kVectors && kPhases == 1; ++k)
      for (int half = 0; half < 2; ++half) lanes_[0][half] += lanes_[k][half];
    for (int e = 0; e < kPhases * kLanes; ++e)
      if (e % kPeriod < kSums) sums_[e % kPeriod] += lanes_[e / kLanes][e % kLanes / (kLanes / 2)][e % (kLanes / 2)];
    std::memset(lanes_, 0, sizeof lanes_);
    pending_ = false;
  }

  // Sets limits under which so many elements of magnitudes up to `most` may be added to the lanes, each from one or two
  // operands: those whose sums stay below the next power of two. False if there are none.
  bool plan(Index elements, int operands, const Bits (&most)[kPhases]) {
    Hux32u largest[kPeriod] = {}, multiple[kPeriod] = {};
    for (int e = 0; e < kPhases * kLanes; ++e)
      largest[e % kPeriod] = std::max(largest[e % kPeriod], most[e / kLanes][e % kLanes]);
    for (int c = kSums; c < kPeriod; ++c) largest[c] = ~Hux32u(0);  // what is not added may be anything
    Hux64f left = std::numeric_limits<Hux32s>::max();
    for (int c = 0; c < kSums; ++c) {
      if (largest[c] >= 0x7f800000) return false;
      const int exponent = int(largest[c] >> 23) + 1;
      const Hux64f sum = std::fabs(sums_[c]), root = operands * powerOf2(exponent - 127);
      const Hux64f term = What::power == 2 ? root * root : root;
      const int bound = int(std::bit_cast<Hux64s>(sum + Hux64f(elements) * term) >> 52) - 1022;
      // The unit of elements is a root of that of the sum, rounded up. The smallest number of single precision divides
      // all elements.
      const int unit = std::max(What::power == 2 ? (bound - 53 + 1) >> 1 : bound - 53, -149);
      const Hux64f units = sum * powerOf2(-unit * What::power);
      if (unit + 23 > 127 || units != Hux64f(Hux64s(units))) return false;
      multiple[c] = Hux32u(unit + 23 + 127) << 23;
      largest[c] = (Hux32u(exponent) << 23) - 1;
      left = std::min(left, (powerOf2(bound) - sum) / term);
    }
    for (int e = 0; e < kPhases * kLanes; ++e) {
      multiples_[e / kLanes][e % kLanes] = multiple[e % kPeriod];
      largest_[e / kLanes][e % kLanes] = largest[e % kPeriod];
    }
    left_ = Index(left);
    return true;
  }
  static Hux64f powerOf2(int exponent) { return std::bit_cast<Hux64f>(Hux64s(exponent + 1023) << 52); }

  Hux64f sums_[kSums] = {};
  Doubles lanes_[kVectors][2] = {};
  bool pending_ = false;
  Index left_ = 0;                // elements that may be added to the lanes under the limits
  int failures_ = 0, pause_ = 0;  // of the last attempts, and stretches until the next one
  Bits multiples_[kPhases] = {};  // in each lane 2^23 units, as a float
  Bits largest_[kPhases] = {};    // in each lane the largest magnitude that is allowed
};

// The totals of an image or two, by such sums.
template <class L, class What, class... T>
std::array<Hux64f, L::processed> orderedTotals(HuxiSize roi, const Rows<const T>&... images) {
  Index width = roi.width, height = roi.height;
  // In one channel each row starts at an even column.
  if ((L::channels > 1 || width % 2 == 0) && (images.contiguous(width) && ...)) width *= height, height = 1;
  OrderedSums<L, What> sums;
  for (Index y = 0; y < height; ++y) sums.row(width, images.row(y)...);
  return sums.totals();
}

}  // namespace hux
