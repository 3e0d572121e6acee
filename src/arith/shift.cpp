// LShiftC, RShiftC: shift by one count for all elements, or by a count per channel. Left shifts and right shifts of
// unsigned elements are logical, right shifts of signed ones arithmetic.
#include "core/check.h"
#include "core/stamp.h"
#include "huxi_arith.h"
#include "lanes/elementwise.h"
#include "workers/delegate.h"

namespace hux {
namespace {

// To the left, bits of negative lanes move as any others.
struct Left {
  static constexpr bool keepsSign = false;
  template <class V, class Count>
  static V shift(V v, Count count) {
    return v << count;
  }
};
struct Right {
  static constexpr bool keepsSign = true;
  template <class V, class Count>
  static V shift(V v, Count count) {
    return v >> count;
  }
};
template <class Op, class T>
inline constexpr bool kSignFills = Op::keepsSign&& std::is_signed_v<T>;

template <class T>
inline constexpr Hux32u kBits = 8 * sizeof(T);

// Lanes of 16 bits and above by a count below their width: one for all, or one for each. Machines that know only the
// first go through the counts bit by bit.
template <class Op, class V, class Count>
V shiftLanes(V v, Count count) {
  using T = LaneType<V>;
  if constexpr (std::is_arithmetic_v<Count> || kLaneBytes >= (sizeof(T) == 2 ? 64 : 32)) {
    return Op::shift(v, count);
  } else {
    for (T bit = T(kBits<T> / 2); bit; bit = T(bit / 2)) v = (count & bit) != 0 ? Op::shift(v, bit) : v;
    return v;
  }
}

// Bytes are shifted in the upper half of a 16-bit lane, where a count of 8 is in range and what leaves the byte can be
// cut off.
template <class T>
using PairOf = std::conditional_t<std::is_signed_v<T>, Hux16s, Hux16u>;

template <class Op, class V, class Count>
V shiftBytes(V v, Count even, Count odd) {
  using P = Lanes<PairOf<LaneType<V>>, lanesIn<V> / 2>;
  using U = Lanes<Hux16u, lanesIn<V> / 2>;
  const U pairs = bitsAs<U>(v);
  const U low = U(shiftLanes<Op>(P(pairs << Hux16u(8)), even)) >> Hux16u(8);
  const U high = U(shiftLanes<Op>(P(pairs & Hux16u(0xff00)), odd)) & Hux16u(0xff00);
  return bitsAs<V>(low | high);
}

// One count for all, below the width.
template <class Op, class T>
struct ShiftAll {
  static constexpr int lanes = laneCount<T>;
  using V = Lanes<T, lanes>;
  std::conditional_t<sizeof(T) == 1, PairOf<T>, T> count;
  V operator()(V v) const {
    if constexpr (sizeof(T) == 1)
      return shiftBytes<Op>(v, count, count);
    else
      return shiftLanes<Op>(v, count);
  }
};

// A count for each element, up to the width.
template <class Op, class T>
struct ShiftEach {
  static constexpr int lanes = laneCount<T>;
  using V = Lanes<T, lanes>;
  V operator()(V counts, V v) const {
    if constexpr (sizeof(T) == 1) {
      using P = Lanes<PairOf<T>, lanes / 2>;
      const P pairs = bitsAs<P>(counts);
      return shiftBytes<Op>(v, pairs & PairOf<T>(0xff), pairs >> PairOf<T>(8));
    } else if constexpr (kSignFills<Op, T>) {
      return shiftLanes<Op>(v, lesser(counts, splat<V>(T(kBits<T> - 1))));
    } else {
      return counts < T(kBits<T>) ? shiftLanes<Op>(v, counts & T(kBits<T> - 1)) : V{};
    }
  }
};

// pPixel addresses one count per processed channel.
template <class L, class Op, class T>
HuxStatus shift(const T* pSrc, int srcStep, const Hux32u* pPixel, T* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s = check(pointers(pSrc, pPixel, pDst), steps(srcStep, dstStep), size(roi))) return s;
  const auto* pixel = elements(pPixel);
  T counts[4] = {};
  bool equal = true;
  for (int c = 0; c < L::processed; ++c) {
    counts[c] = T(std::min<Hux32u>(pixel[c], kBits<T>));
    equal = equal && counts[c] == counts[0];
  }
  if (!equal) {
    using Rule = ShiftEach<Op, T>;
    const Repeat<L, T, Rule::lanes> each(elements(counts));
    forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep),
               [&](auto* s, auto* d, Index n) { applyRule<L>(d, n, Rule{}, each, FromRow<T, Rule::lanes>{s}); });
    return huxStsOk;
  }
  if (counts[0] == 0) return copyAll<L>(pSrc, srcStep, pDst, dstStep, roi);
  T count = counts[0];
  if (count == T(kBits<T>)) {
    if (!kSignFills<Op, T>) return setAll<L>(T(0), pDst, dstStep, roi);
    --count;
  }
  forEachRow(roi, rows<L>(pSrc, srcStep), rows<L>(pDst, dstStep),
             [&](auto* s, auto* d, Index n) { mapRow<L>(s, d, n, ShiftAll<Op, T>{count}); });
  return huxStsOk;
}

}  // namespace
}  // namespace hux

#define EXPORT_SHIFT(name, Op, t, l)                                                                               \
  HuxStatus huxi##name##_##t##_##l##R(const Hux##t* pSrc, int srcStep, hux::Constant<hux::l, Hux32u> count,        \
                                      Hux##t* pDst, int dstStep, HuxiSize roiSize) {                               \
    return hux::shift<hux::l, Op>(pSrc, srcStep, hux::pixelOf(count), pDst, dstStep, roiSize);                     \
  }                                                                                                                \
  HuxStatus huxi##name##_##t##_##l##IR(hux::Constant<hux::l, Hux32u> count, Hux##t* pSrcDst, int srcDstStep,       \
                                       HuxiSize roiSize) {                                                         \
    return hux::shift<hux::l, Op, Hux##t>(pSrcDst, srcDstStep, hux::pixelOf(count), pSrcDst, srcDstStep, roiSize); \
  }
#define EXPORT(t, l) EXPORT_SHIFT(LShiftC, hux::Left, t, l)
HUX_STAMP(EXPORT, (8u, 16u, 32s), (C1, C3, C4, AC4))
#undef EXPORT

#define EXPORT(t, l) EXPORT_SHIFT(RShiftC, hux::Right, t, l)
HUX_STAMP(EXPORT, (8u, 8s, 16u, 16s, 32s), (C1, C3, C4, AC4))
