// Scaled integer arithmetic: the exact result times 2^-scaleFactor, ties to even, saturated.
//
// An operation computes exactly on lanes of a type W that holds all its results. Which of the three rules below applies
// is decided by the sign of the scale factor, once a call.
#pragma once

#include "lanes/elementwise.h"
#include "lanes/round.h"

namespace hux {

// The narrowest type in which sums, differences and products are exact.
template <class T>
struct WideOf;
template <>
struct WideOf<Hux8u> {
  using Type = Hux16u;
};
template <>
struct WideOf<Hux16u> {
  using Type = Hux32u;
};
template <>
struct WideOf<Hux16s> {
  using Type = Hux32s;
};
template <>
struct WideOf<Hux32s> {
  using Type = Hux64s;
};
template <class T>
using Wide = typename WideOf<T>::Type;

// The operations, on wide lanes and on lanes of the element type with saturation, or in wide lanes before it.
// `allZeroAbove` is the largest scale factor at which some result is not 0; `roomTo` is the largest at which W also
// holds the sums of the rounding. Sums and differences are one bit longer than their elements: `halved` has all but
// their lowest bit, `lowBits` all but the highest. Operands come in the order of the argument lists: (pSrc1, pSrc2),
// (value, pSrc).
struct AddOp {
  template <class T>
  static constexpr int allZeroAbove = int(sizeof(T)) * 8 + (std::is_unsigned_v<T> ? 1 : 0);
  template <class T>
  static constexpr int roomTo = allZeroAbove<T>;
  template <class V>
  static V exact(V a, V b) {
    return a + b;
  }
  template <class T, class V>
  static V saturated(V a, V b) {
    return addSaturated(a, b);
  }
  template <class V>
  static V halved(V a, V b) {
    return (a & b) + ((a ^ b) >> 1);
  }
  template <class U>
  static U lowBits(U a, U b) {
    return a + b;
  }
};

// The second operand less the first; a negative difference of unsigned elements is 0 before anything else happens.
struct SubOp {
  template <class T>
  static constexpr int allZeroAbove = int(sizeof(T)) * 8;
  template <class T>
  static constexpr int roomTo = allZeroAbove<T>;
  template <class V>
  static V exact(V a, V b) {
    if constexpr (std::is_unsigned_v<LaneType<V>>)
      return subSaturated(b, a);
    else
      return b - a;
  }
  template <class T, class V>
  static V saturated(V a, V b) {
    return subSaturated(b, a);
  }
  template <class V>
  static V halved(V a, V b) {
    return (b | ~a) - ((b ^ ~a) >> 1);
  }
  template <class U>
  static U lowBits(U a, U b) {
    return b - a;
  }
};

struct MulOp {
  template <class T>
  static constexpr int allZeroAbove = int(sizeof(T)) * 16 - (std::is_unsigned_v<T> ? 0 : 2);
  template <class T>
  static constexpr int roomTo = std::is_signed_v<T> ? allZeroAbove<T> : int(sizeof(T)) * 8 + 1;
  template <class V>
  static V exact(V a, V b) {
    return a * b;
  }
  template <class T, class V>
  static auto saturated(V a, V b) {
    if constexpr (sizeof(T) != 2) {
      return exact(convert<Wide<T>>(a), convert<Wide<T>>(b));
    } else {
      using U = Lanes<Hux16u, lanesIn<V>>;
      const V high = mulHigh(a, b), low = V(U(a) * U(b));
      if constexpr (std::is_signed_v<T>)
        return high == (low >> T(15)) ? low : (high >> T(15)) ^ T(0x7fff);
      else
        return high != 0 ? ~V{} : low;
    }
  }
};

// The exact result in lanes of twice the width.
template <class Op, class T, class V>
auto wideExact(V a, V b) {
  if constexpr (std::is_same_v<Op, MulOp> && sizeof(T) == 2)
    return wideProducts(a, b);
  else
    return Op::exact(convert<Wide<T>>(a), convert<Wide<T>>(b));
}

// scaleFactor 0.
template <class Op, class T>
struct Plain {
  static constexpr int lanes = std::is_same_v<Op, MulOp> && sizeof(T) != 2 ? laneCount<Wide<T>> : memoryLanes<T>;
  using V = Lanes<T, lanes>;
  auto operator()(V a, V b) const { return Op::template saturated<T>(a, b); }
};

// scaleFactor below 0. An exact result that is out of range stays so, so it is limited before it is shifted, and by at
// most the width of the type, which sends everything but 0 to the end of the range.
template <class Op, class T>
struct Raised {
  static constexpr int lanes = laneCount<Wide<T>>;
  using V = Lanes<T, lanes>;
  int shift;
  explicit Raised(int scaleFactor) : shift(scaleFactor < -int(sizeof(T)) * 8 ? int(sizeof(T)) * 8 : -scaleFactor) {}
  auto operator()(V a, V b) const {
    using W = Lanes<Wide<T>, lanes>;
    using U = Lanes<std::make_unsigned_t<Wide<T>>, lanes>;
    const W v = limited<T>(W(wideExact<Op, T>(a, b)));
    return W(U(v) << std::make_unsigned_t<Wide<T>>(shift));
  }
};

// scaleFactor from 1 to Op::allZeroAbove.
template <class Op, class T, bool HasRoom>
struct Rounded {
  static constexpr int lanes = laneCount<Wide<T>>;
  using V = Lanes<T, lanes>;
  int scaleFactor;
  auto operator()(V a, V b) const {
    const auto v = wideExact<Op, T>(a, b);
    // Shifted by one bit at least, the result is below half of the range of unsigned lanes.
    if constexpr (HasRoom)
      return lowerHalf(roundShift(v, scaleFactor));
    else
      return lowerHalf(roundShiftFull(v, scaleFactor));
  }
};

// The same for sums and differences with scaleFactor up to the width of T, in lanes of T: the quotient comes from the
// halved value, what it leaves from the low bits. (At 1 a difference of signed elements may still leave the range.)
template <class Op, class T>
struct RoundedNarrow {
  static constexpr int lanes = laneCount<T>;
  using V = Lanes<T, lanes>;
  using U = Lanes<std::make_unsigned_t<T>, lanes>;
  int scaleFactor;
  V operator()(V a, V b) const {
    if constexpr (std::is_same_v<Op, SubOp> && std::is_unsigned_v<T>) {
      return roundShiftFull(subSaturated(b, a), scaleFactor);
    } else {
      using N = LaneType<U>;
      const N half = N(N(1) << (scaleFactor - 1));
      const V quotient = Op::halved(a, b) >> T(scaleFactor - 1);
      const U rest = Op::lowBits(U(a), U(b)) & splat<U>(N(N(half - 1) | half));
      const V up = V(rest > splat<U>(half) - (U(quotient) & 1));  // -1 where one is added
      if constexpr (std::is_signed_v<T>)
        return subSaturated(quotient, up);
      else
        return quotient - up;
    }
  }
};

// The same for products of 16 bits with scaleFactor below 16, from their high and low halves.
template <class T>
struct RoundedProduct {
  static constexpr int lanes = laneCount<T>;
  using V = Lanes<T, lanes>;
  using U = Lanes<Hux16u, lanes>;
  int scaleFactor;
  V operator()(V a, V b) const {
    const Hux16u half = Hux16u(1 << (scaleFactor - 1)), mask = Hux16u(2 * half - 1);
    const V high = mulHigh(a, b);
    const U low = U(a) * U(b);
    const V quotient = V((U(high) << Hux16u(16 - scaleFactor)) | (low >> Hux16u(scaleFactor)));
    // -1 where one is added; both sides are below 2^15, and so compared as signed numbers, as machines do.
    using S = Lanes<Hux16s, lanes>;
    const V up = V(S(low & mask) > S(splat<U>(half) - (U(quotient) & 1)));
    if constexpr (std::is_signed_v<T>)
      return (high >> T(scaleFactor)) == (quotient >> T(15)) ? subSaturated(quotient, up) : (high >> T(15)) ^ T(0x7fff);
    else
      return high > mask ? ~V{} : addSaturated(quotient, up & 1);
  }
};

// Calls run(rule) with the rule for a scale factor that is not above Op::allZeroAbove.
template <class Op, class T, class Run>
void withRule(int scaleFactor, Run&& run) {
  if (scaleFactor == 0) return run(Plain<Op, T>{});
  if (scaleFactor < 0) return run(Raised<Op, T>(scaleFactor));
  // Bytes have no shifts of their own.
  if constexpr (sizeof(T) == 2 && !std::is_same_v<Op, MulOp>)
    if (scaleFactor <= 16) return run(RoundedNarrow<Op, T>{scaleFactor});
  if constexpr (sizeof(T) == 2 && std::is_same_v<Op, MulOp>)
    if (scaleFactor < 16) return run(RoundedProduct<T>{scaleFactor});
  if (scaleFactor <= Op::template roomTo<T>) return run(Rounded<Op, T, true>{scaleFactor});
  if constexpr (Op::template roomTo<T> < Op::template allZeroAbove<T>) run(Rounded<Op, T, false>{scaleFactor});
}

// The same operations on floats: one operation in the precision of the element.
template <class Op, class T>
struct Float {
  static constexpr int lanes = memoryLanes<T>;
  using V = Lanes<T, lanes>;
  V operator()(V a, V b) const { return Op::exact(a, b); }
};

}  // namespace hux
