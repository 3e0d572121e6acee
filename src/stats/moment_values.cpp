// Moments: records, and what is derived from them.
#include <array>
#include <cmath>
#include <limits>
#include <optional>

#include "stats/moment_record.h"
#include "workers/portable.h"

namespace hux {
namespace {

template <class R>
HuxStatus init(R* pState, HuxAccuracyHint hint) {
  if (HuxStatus s = pointers(pState)) return s;
  *pState = R{};
  pState->tag = R::kTag;
  pState->hint = hint;
  pState->nChannels = -1;
  return huxStsOk;
}

template <class R>
HuxStatus initAlloc(R** ppState, HuxAccuracyHint hint) {
  if (HuxStatus s = pointers(ppState)) return s;
  return create(ppState, sizeof(R), [=](R* record) { return init(record, hint); });
}

template <class R>
HuxStatus freeRecord(R* pState) {
  if (HuxStatus s = check(pointers(pState), kind(pState))) return s;
  retire(pState, true);
  return huxStsOk;
}

// The moments of a channel as doubles.
struct Raw {
  Hux64f M00, M10, M20, M30, M01, M11, M21, M02, M12, M03;
};
template <class R>
Raw rawOf(const R* pState, int channel) {
  const auto M = [&](int m, int n) { return Hux64f(typename R::Value(pState->moments[channel].entries[m + 4 * n])); };
  return {M(0, 0), M(1, 0), M(2, 0), M(3, 0), M(0, 1), M(1, 1), M(2, 1), M(0, 2), M(1, 2), M(0, 3)};
}

// The expressions are evaluated as they stand, from left to right: their last bits show. Orders that no moment has give
// none.
using Derived = std::optional<Hux64f>;

Derived spatial(const Raw& raw, int m, int n, HuxiPoint offset) {
  const auto& [M00, M10, M20, M30, M01, M11, M21, M02, M12, M03] = raw;
  const Hux64f X = offset.x, Y = offset.y;
  const auto is = [=](int i, int j) { return m == i && n == j; };
  if (is(0, 0)) return M00;
  if (is(0, 1)) return M00 * Y + M01;
  if (is(0, 2)) return (Y + Y) * M01 + M02 + Y * Y * M00;
  if (is(0, 3)) return 3 * Y * M02 + M03 + 3 * Y * Y * M01 + Y * Y * Y * M00;
  if (is(1, 0)) return M00 * X + M10;
  if (is(1, 1)) return M01 * X + M11 + M10 * Y + X * Y * M00;
  if (is(1, 2)) return M02 * X + M12 + (Y + Y) * M11 + Y * Y * M10 + (X + X) * Y * M01 + Y * Y * X * M00;
  if (is(2, 0)) return (X + X) * M10 + M20 + X * X * M00;
  if (is(2, 1)) return M11 * (X + X) + M21 + X * X * M01 + M20 * Y + (X + X) * Y * M10 + X * X * Y * M00;
  if (is(3, 0)) return 3 * X * M20 + M30 + 3 * X * X * M10 + X * X * X * M00;
  return {};
}

Derived central(const Raw& raw, int m, int n) {
  const auto& [M00, M10, M20, M30, M01, M11, M21, M02, M12, M03] = raw;
  const Hux64f r = 1.0 / M00, xc = M10 * r, yc = r * M01;
  const auto is = [=](int i, int j) { return m == i && n == j; };
  if (is(0, 0)) return M00;
  if (is(0, 1) || is(1, 0)) return 0.0;
  if (is(0, 2)) return M02 - yc * M01;
  if (is(0, 3)) return M03 - 3 * yc * M02 + (yc + yc) * yc * M01;
  if (is(1, 1)) return M11 - xc * M01;
  if (is(1, 2)) return M12 - xc * M02 - (yc + yc) * M11 + (yc + yc) * yc * M10;
  if (is(2, 0)) return M20 - xc * M10;
  if (is(2, 1)) return M21 - (xc + xc) * M11 + (xc + xc) * xc * M01 - yc * M20;
  if (is(3, 0)) return M30 - 3 * xc * M20 + (xc + xc) * xc * M10;
  return {};
}

// r3 is M00^-2.5; the two families form it in ways of their own.
std::array<Hux64f, 7> huMoments(const Raw& raw, Hux64f r1, Hux64f r3) {
  const auto& [M00, M10, M20, M30, M01, M11, M21, M02, M12, M03] = raw;
  const Hux64f r2 = 1.0 / (M00 * M00), xc = M10 * r1, yc = r1 * M01;
  const Hux64f u20 = (M20 - M10 * xc) * r2, u11 = (M11 - M01 * xc) * r2, u02 = r2 * (M02 - M01 * yc);
  const Hux64f u30 = (M30 - 3 * xc * M20 + M10 * (xc + xc) * xc) * r3;
  const Hux64f u21 = (M21 - (xc + xc) * M11 + (xc + xc) * xc * M01 - M20 * yc) * r3;
  const Hux64f u12 = (M12 - xc * M02 - (yc + yc) * M11 + M10 * (yc + yc) * yc) * r3;
  const Hux64f u03 = r3 * (M03 - 3 * yc * M02 + (yc + yc) * yc * M01);
  const Hux64f d = u20 - u02, a = 3 * u21 - u03, b = u30 - 3 * u12, c = u30 + u12, e = u21 + u03;
  return {u20 + u02, u11 * (4 * u11) + d * d, b * b + a * a, c * c + e * e,
          // The square is of u12 + u03 where the textbooks have c; established results, so it stays.
          b * c * ((u12 + u03) * (u12 + u03) - 3 * e * e) + a * e * (3 * c * c - e * e),
          d * (c * c - e * e) + 4 * u11 * c * e, a * c * (c * c - 3 * e * e) - b * e * (3 * c * c - e * e)};
}

// 2^|scaleFactor| as a signed 32-bit shift gives it: the count modulo 32, and 2^31 as a negative number.
Hux64f scaleOf(int scaleFactor) {
  const unsigned count = scaleFactor < 0 ? 0u - unsigned(scaleFactor) : unsigned(scaleFactor);
  return Hux32s(1u << count % 32);
}

// Towards zero, limited to the range; the lowest number for a NaN.
Hux64s truncated(Hux64f v) {
  if (v >= 0x1p63) return std::numeric_limits<Hux64s>::max();
  return v > -0x1p63 ? Hux64s(v) : std::numeric_limits<Hux64s>::min();
}

// Results leave 64f records as they are, and where there is none nothing is written; 64s records scale them and write
// 0 where there is none.
void finish(Derived v, Hux64f* pValue, int) {
  if (v) *elements(pValue) = *v;
}
void finish(Derived v, Hux64s* pValue, int scaleFactor) {
  const Hux64f scale = scaleOf(scaleFactor), value = v.value_or(0.0);
  *elements(pValue) = truncated(scaleFactor > 0 ? value / scale : value * scale);
}

template <class R>
auto channelFilled(const R* pState, int channel) {
  return [=] { return failUnless(channel >= 0 && channel < pState->nChannels, huxStsBadMomentIndex); };
}
template <class R>
auto massSuffices(const R* pState, int channel) {
  return [=] { return failUnless(std::fabs(rawOf(pState, channel).M00) > R::kLeastMass, huxStsMomentTooSmall); };
}
template <class R, class V>
HuxStatus checkMoment(const R* pState, int m, int n, int channel, const V* pValue) {
  return check(pointers(pState, pValue), kind(pState), failUnless(std::int64_t(m) + n <= 3, huxStsBadSize),
               channelFilled(pState, channel));
}

// Multiplies a moment by the power of M00 that takes out the scale of the shape. In 64s the moment is one truncated.
template <class R, class V>
HuxStatus normalize(const R* pState, int m, int n, int channel, Derived moment, V* pValue, int scaleFactor) {
  if constexpr (std::is_same_v<V, Hux64f>)
    finish(moment, pValue, 0);
  else
    moment = Hux64f(truncated(moment.value_or(0.0)));
  if (HuxStatus s = massSuffices(pState, channel)()) return s;
  if (moment) *moment *= portable::rootOfInverse(rawOf(pState, channel).M00, m + n + 2);
  finish(moment, pValue, scaleFactor);
  return huxStsOk;
}

template <bool Normalized, class R, class V>
HuxStatus getSpatial(const R* pState, int m, int n, int channel, HuxiPoint offset, V* pValue, int scaleFactor = 0) {
  if (HuxStatus s = checkMoment(pState, m, n, channel, pValue)) return s;
  const Derived moment = spatial(rawOf(pState, channel), m, n, offset);
  if constexpr (Normalized) return normalize(pState, m, n, channel, moment, pValue, scaleFactor);
  finish(moment, pValue, scaleFactor);
  return huxStsOk;
}

template <bool Normalized, class R, class V>
HuxStatus getCentral(const R* pState, int m, int n, int channel, V* pValue, int scaleFactor = 0) {
  if (HuxStatus s = check(checkMoment(pState, m, n, channel, pValue), massSuffices(pState, channel))) return s;
  const Derived moment = central(rawOf(pState, channel), m, n);
  if constexpr (Normalized) return normalize(pState, m, n, channel, moment, pValue, scaleFactor);
  finish(moment, pValue, scaleFactor);
  return huxStsOk;
}

template <class R, class V>
HuxStatus getHu(const R* pState, int channel, V* pHu, int scaleFactor = 0) {
  if (HuxStatus s =
          check(pointers(pState, pHu), kind(pState), channelFilled(pState, channel), massSuffices(pState, channel)))
    return s;
  constexpr bool floats = std::is_same_v<V, Hux64f>;
  const Raw raw = rawOf(pState, channel);
  const Hux64f M00 = raw.M00, r1 = 1.0 / M00;
  const auto hu = huMoments(raw, r1, floats ? 1.0 / (std::sqrt(M00) * M00 * M00) : std::sqrt(r1) * r1 * r1);
  // A reciprocal here, where single moments are divided.
  const Hux64f scale = scaleFactor > 0 ? 1.0 / scaleOf(scaleFactor) : scaleOf(scaleFactor);
  for (int i = 0; i < 7; ++i) finish(floats ? hu[i] : hu[i] * scale, pHu + i, 0);
  return huxStsOk;
}

}  // namespace
}  // namespace hux

HuxStatus huxiMomentGetStateSize_64s(HuxAccuracyHint, int* pSize) {
  if (HuxStatus s = hux::pointers(pSize)) return s;
  *hux::elements(pSize) = sizeof(HuxiMomentRecord_64s);
  return huxStsOk;
}
HuxStatus huxiMomentInit_64s(HuxiMomentRecord_64s* pState, HuxAccuracyHint hint) { return hux::init(pState, hint); }

// What follows the type are the further parameters of the functions that scale, and their arguments.
#define HUX_NONE
#define HUX_SCALE , int scaleFactor
#define HUX_SCALE_ARGUMENT , scaleFactor
#define EXPORT(t, parameter, argument)                                                                        \
  HuxStatus huxiMomentInitAlloc_##t(HuxiMomentRecord_##t** ppState, HuxAccuracyHint hint) {                   \
    return hux::initAlloc(ppState, hint);                                                                     \
  }                                                                                                           \
  HuxStatus huxiMomentFree_##t(HuxiMomentRecord_##t* pState) { return hux::freeRecord(pState); }              \
  HuxStatus huxiGetSpatialMoment_##t(const HuxiMomentRecord_##t* pState, int xOrder, int yOrder, int channel, \
                                     HuxiPoint offset, Hux##t* pValue parameter) {                            \
    return hux::getSpatial<false>(pState, xOrder, yOrder, channel, offset, pValue argument);                  \
  }                                                                                                           \
  HuxStatus huxiGetNormalizedSpatialMoment_##t(const HuxiMomentRecord_##t* pState, int xOrder, int yOrder,    \
                                               int channel, HuxiPoint offset, Hux##t* pValue parameter) {     \
    return hux::getSpatial<true>(pState, xOrder, yOrder, channel, offset, pValue argument);                   \
  }                                                                                                           \
  HuxStatus huxiGetCentralMoment_##t(const HuxiMomentRecord_##t* pState, int xOrder, int yOrder, int channel, \
                                     Hux##t* pValue parameter) {                                              \
    return hux::getCentral<false>(pState, xOrder, yOrder, channel, pValue argument);                          \
  }                                                                                                           \
  HuxStatus huxiGetNormalizedCentralMoment_##t(const HuxiMomentRecord_##t* pState, int xOrder, int yOrder,    \
                                               int channel, Hux##t* pValue parameter) {                       \
    return hux::getCentral<true>(pState, xOrder, yOrder, channel, pValue argument);                           \
  }                                                                                                           \
  HuxStatus huxiGetHuMoments_##t(const HuxiMomentRecord_##t* pState, int channel, Hux##t* pHu parameter) {    \
    return hux::getHu(pState, channel, pHu argument);                                                         \
  }
EXPORT(64f, HUX_NONE, HUX_NONE)
EXPORT(64s, HUX_SCALE, HUX_SCALE_ARGUMENT)
#undef EXPORT
