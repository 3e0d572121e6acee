// The cosine transform of blocks of 8 by 8, in floats and in fixed point, and the scan of a block in zigzag.
//
// A block is eight vectors: a lane is a column, or after a transposition a row.
#include "core/rows.h"
#include "core/stamp.h"
#include "huxi_transform.h"
#include "lanes/split.h"
#include "transform/eight.h"

namespace hux {
namespace {

using Words = Lanes<Hux16s, 8>;
using Floats = Lanes<Hux32f, 8>;
using Signed = Lanes<Hux32s, 8>;
using Ints = Lanes<Hux32u, 8>;  // signed numbers whose arithmetic wraps

Ints shifted(Ints v, int n) { return Ints(Signed(v) >> n); }
Ints narrowed(Ints v) { return shifted(v << 16U, 16); }  // what remains of it in 16 bits

// --- Fixed point. The first pass leaves numbers of 16 bits with a gain of 8, the second takes them back to 1.

template <bool Second>
Ints descaled(Ints v) {
  return Second ? shifted(v + 0x100000U, 21) : narrowed(shifted(v + 2048U, 12));
}

template <bool Second>
void forwardPass(Ints (&x)[8]) {
  const auto twelve = [](Ints v) { return shifted(v + 2048U, 12); };
  const auto straight = [](Ints v) { return Second ? shifted(v + 32U, 6) : narrowed(v * 8U); };
  const Ints x07 = x[0] + x[7], x34 = x[3] + x[4], x16 = x[1] + x[6], x25 = x[2] + x[5];
  const Ints s0 = x07 + x34, s1 = x07 - x34, s2 = x16 + x25, s3 = x16 - x25;
  const Ints d07 = x[0] - x[7], d16 = x[1] - x[6], d25 = x[2] - x[5], d34 = x[3] - x[4];
  x[0] = straight(s0 + s2), x[4] = straight(s0 - s2);
  Ints t = (s1 + s3) * 17734U;
  x[2] = descaled<Second>(s1 * 25080U + t), x[6] = descaled<Second>(t - s3 * 60547U);
  const Ints a = (d25 + d16) * 8U, b = (d16 - d25) * 8U, c = twelve(d34 * 46341U), d = twelve(d07 * 46341U);
  const Ints e = d + a, f = c + b, g = c - b, h = d - a;
  t = (e + f) * 799U;
  x[1] = descaled<Second>(t + e * 3218U), x[7] = descaled<Second>(t - f * 4816U);
  t = (h + g) * 3406U;
  x[3] = descaled<Second>(t - g * 5681U), x[5] = descaled<Second>(t - h * 1130U);
}

// The inverse of a block that is filled up to its first Corner rows and columns. Three constants of the smaller ones
// are one less than the products in the whole; their results may differ by a rounding, which is meant to be.
template <int Corner, bool Second>
void inversePass(Ints (&x)[8]) {
  const auto middle = [](Ints v) { return shifted(v + 2048U, 12) * 5793U; };
  Ints t1, t2, u, w, g0, g1, g2, g3;
  if constexpr (Corner == 2) {
    t1 = middle(x[1] * 32138U), t2 = middle(x[1] * 6393U);
    u = x[1] * 38531U, w = x[1] * 25745U;
    g0 = g1 = g2 = g3 = x[0] * 32768U;
  } else {
    Ints p, q, r, s, sum, difference, o, e1;
    if constexpr (Corner == 4) {
      p = x[3] * 27246U, q = x[3] * Hux32u(-18205);
      r = x[1] * 32138U, s = x[1] * 6393U;
      sum = difference = x[0] * 32768U;
      o = x[2] * 42813U, e1 = x[2] * 17734U;
    } else {
      const Ints f = (x[5] + x[3]) * 27246U, g = (x[1] + x[7]) * 6393U, h = (x[2] + x[6]) * 17734U;
      p = f - x[5] * 9041U, q = f - x[3] * 45451U;
      r = x[1] * 25746U + g, s = g - x[7] * 38531U;
      sum = (x[0] + x[4]) * 32768U, difference = (x[0] - x[4]) * 32768U;
      o = x[2] * 25080U + h, e1 = h - x[6] * 60547U;
    }
    const Ints m = r - p, n = s - q;
    t1 = middle(p + r), t2 = middle(q + s), u = m + n, w = m - n;
    g0 = sum + o, g3 = sum - o, g1 = e1 + difference, g2 = difference - e1;
  }
  x[0] = descaled<Second>(g0 + t1), x[7] = descaled<Second>(g0 - t1);
  x[1] = descaled<Second>(g1 + u), x[6] = descaled<Second>(g1 - u);
  x[2] = descaled<Second>(g2 + w), x[5] = descaled<Second>(g2 - w);
  x[3] = descaled<Second>(g3 + t2), x[4] = descaled<Second>(g3 - t2);
}

// `level` is added to the samples in 16 bits.
template <class T>
void forwardBlock(const T* pSrc, Index step, Hux16s* pDst, int level = 0) {
  Ints x[8];
  const auto* row = elements(pSrc);
  for (int y = 0; y < 8; ++y, row = advance(row, step))
    x[y] = narrowed(Ints(convert<Hux32s>(loadLanes<Lanes<T, 8>>(row))) + Hux32u(level));
  transposeSquare(x);
  forwardPass<false>(x);
  transposeSquare(x);
  forwardPass<true>(x);
  for (int y = 0; y < 8; ++y) storeLanes(elements(pDst) + 8 * y, convert<Hux16s>(Signed(x[y])));
}

// put(row, samples) takes the rows of the result.
template <int Corner, class Put>
void inverseBlock(const Hux16s* pSrc, Put put) {
  Ints x[8] = {};
  for (int y = 0; y < Corner; ++y) {
    const auto* row = elements(pSrc) + 8 * y;
    x[y] = Ints(convert<Hux32s>(Corner == 8 ? loadLanes<Words>(row) : loadLanes<Words>(row, Corner, 0)));
  }
  inversePass<Corner, false>(x);
  transposeSquare(x);
  inversePass<Corner, true>(x);
  transposeSquare(x);
  for (int y = 0; y < 8; ++y) put(y, Signed(x[y]));
}

template <class T>
HuxStatus forward(const T* pSrc, int srcStep, Hux16s* pDst, int level = 0) {
  if (HuxStatus s = check(pointers(pSrc, pDst), steps(srcStep))) return s;
  forwardBlock(pSrc, srcStep, pDst, level);
  return huxStsOk;
}

template <int Corner>
HuxStatus inverse(const Hux16s* pSrc, Hux16s* pDst, int dstStep) {
  if (HuxStatus s = check(pointers(pSrc, pDst), steps(dstStep))) return s;
  inverseBlock<Corner>(
      pSrc, [&](Index y, Signed v) { storeLanes(advance(elements(pDst), y * dstStep), convert<Hux16s>(v)); });
  return huxStsOk;
}

// Results plus `level` as bytes: clipMin below clipMin, and clipMax where they are not below that.
HuxStatus inverseClipped(const Hux16s* pSrc, Hux8u* pDst, int dstStep, int level, Hux8u clipMin, Hux8u clipMax) {
  if (HuxStatus s = check(pointers(pSrc, pDst), steps(dstStep))) return s;
  const Signed low = splat<Signed>(clipMin), high = splat<Signed>(clipMax);
  inverseBlock<8>(pSrc, [&](Index y, Signed v) {
    v += level;
    storeLanes(pDst + y * dstStep, convert<Hux8u>(v < low ? low : v < high ? v : high));
  });
  return huxStsOk;
}

// --- Floats.

template <bool Forward>
HuxStatus floatBlock(const Hux32f* pSrc, Hux32f* pDst) {
  if (HuxStatus s = check(pointers(pSrc, pDst))) return s;
  Floats x[8];
  for (int y = 0; y < 8; ++y) x[y] = loadLanes<Floats>(elements(pSrc) + 8 * y);
  for (int pass = 0; pass < 2; ++pass) {
    if constexpr (Forward)
      eightForward<true>(x);
    else
      eightInverse<true>(x);
    transposeSquare(x);
  }
  for (int y = 0; y < 8; ++y) storeLanes(elements(pDst) + 8 * y, x[y]);
  return huxStsOk;
}

// --- The zigzag: where the k-th of the scan stands in the block, and the number in the scan of the k-th in the block.

constexpr Hux32s _zigzag_index_Inv[64] = {0,  1,  8,  16, 9,  2,  3,  10, 17, 24, 32, 25, 18, 11, 4,  5,
                                          12, 19, 26, 33, 40, 48, 41, 34, 27, 20, 13, 6,  7,  14, 21, 28,
                                          35, 42, 49, 56, 57, 50, 43, 36, 29, 22, 15, 23, 30, 37, 44, 51,
                                          58, 59, 52, 45, 38, 31, 39, 46, 53, 60, 61, 54, 47, 55, 62, 63};
constexpr Hux32s _zigzag_index_Fwd[64] = {0,  1,  5,  6,  14, 15, 27, 28, 2,  4,  7,  13, 16, 26, 29, 42,
                                          3,  8,  12, 17, 25, 30, 41, 43, 9,  11, 18, 24, 31, 40, 44, 53,
                                          10, 19, 23, 32, 39, 45, 52, 54, 20, 22, 33, 38, 46, 51, 55, 60,
                                          21, 34, 37, 47, 50, 56, 59, 61, 35, 36, 48, 49, 57, 58, 62, 63};

HuxStatus reordered(const Hux16s* pSrc, Hux16s* pDst, const Hux32s (&index)[64]) {
  if (HuxStatus s = check(pointers(pSrc, pDst))) return s;
  Hux16s block[64];
  for (int k = 0; k < 64; ++k) block[k] = elements(pSrc)[index[k]];
  std::memcpy(pDst, block, sizeof block);
  return huxStsOk;
}

constexpr int kWordStep = 8 * int(sizeof(Hux16s));

}  // namespace
}  // namespace hux

#define EXPORT(name, t, call, ...)                                                                           \
  HuxStatus huxi##name##_##t##_C1(const Hux##t* pSrc, Hux##t* pDst) { return hux::call(pSrc, __VA_ARGS__); } \
  HuxStatus huxi##name##_##t##_C1I(Hux##t* pSrcDst) { return huxi##name##_##t##_C1(pSrcDst, pSrcDst); }
EXPORT(DCT8x8Fwd, 32f, floatBlock<true>, pDst)
EXPORT(DCT8x8Inv, 32f, floatBlock<false>, pDst)
EXPORT(DCT8x8Fwd, 16s, forward, hux::kWordStep, pDst)
EXPORT(DCT8x8Inv, 16s, inverse<8>, pDst, hux::kWordStep)
EXPORT(DCT8x8Inv_2x2, 16s, inverse<2>, pDst, hux::kWordStep)
EXPORT(DCT8x8Inv_4x4, 16s, inverse<4>, pDst, hux::kWordStep)

HuxStatus huxiDCT8x8Fwd_16s_C1R(const Hux16s* pSrc, int srcStep, Hux16s* pDst) {
  return hux::forward(pSrc, srcStep, pDst);
}
HuxStatus huxiDCT8x8Fwd_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst) {
  return hux::forward(pSrc, srcStep, pDst);
}
HuxStatus huxiDCT8x8FwdLS_8u16s_C1R(const Hux8u* pSrc, int srcStep, Hux16s* pDst, Hux16s addVal) {
  return hux::forward(pSrc, srcStep, pDst, addVal);
}
HuxStatus huxiDCT8x8Inv_16s_C1R(const Hux16s* pSrc, Hux16s* pDst, int dstStep) {
  return hux::inverse<8>(pSrc, pDst, dstStep);
}
HuxStatus huxiDCT8x8Inv_16s8u_C1R(const Hux16s* pSrc, Hux8u* pDst, int dstStep) {
  return hux::inverseClipped(pSrc, pDst, dstStep, 0, 0, 255);
}
HuxStatus huxiDCT8x8InvLSClip_16s8u_C1R(const Hux16s* pSrc, Hux8u* pDst, int dstStep, Hux16s addVal, Hux8u clipMin,
                                        Hux8u clipMax) {
  return hux::inverseClipped(pSrc, pDst, dstStep, addVal, clipMin, clipMax);
}
HuxStatus huxiZigzagFwd8x8_16s_C1(const Hux16s* pSrc, Hux16s* pDst) {
  return hux::reordered(pSrc, pDst, hux::_zigzag_index_Inv);
}
HuxStatus huxiZigzagInv8x8_16s_C1(const Hux16s* pSrc, Hux16s* pDst) {
  return hux::reordered(pSrc, pDst, hux::_zigzag_index_Fwd);
}
