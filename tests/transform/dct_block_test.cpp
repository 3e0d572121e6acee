// Blocks of 8 by 8: the fixed-point transforms to the bit beside their definition, floats beside double precision.
#include <array>
#include <cmath>
#include <numbers>

#include "huxi_transform.h"
#include "support/forms.h"

namespace hux::test {
namespace {

using Line = std::array<Hux32s, 8>;

Hux32s wrapped(std::int64_t v) { return Hux32s(Hux32u(v)); }
Hux16s short16(Hux32s v) { return Hux16s(Hux16u(v)); }
// v plus half a unit of 2^n, in units of 2^n.
Hux32s scaledDown(std::int64_t v, int n) { return wrapped(v + (std::int64_t(1) << (n - 1))) >> n; }

Line forwardLine(const Line& x, bool second) {
  const auto out = [&](std::int64_t v) { return scaledDown(v, second ? 21 : 12); };
  const std::int64_t s0 = x[0] + x[7] + (x[3] + x[4]), s1 = x[0] + x[7] - (x[3] + x[4]);
  const std::int64_t s2 = x[1] + x[6] + (x[2] + x[5]), s3 = x[1] + x[6] - (x[2] + x[5]);
  Line y;
  y[0] = second ? scaledDown(s0 + s2, 6) : wrapped(8 * (s0 + s2));
  y[4] = second ? scaledDown(s0 - s2, 6) : wrapped(8 * (s0 - s2));
  std::int64_t t = (s1 + s3) * 17734;
  y[2] = out(s1 * 25080 + t), y[6] = out(t - s3 * 60547);
  const std::int64_t a = 8 * ((x[2] - x[5]) + (x[1] - x[6])), b = 8 * ((x[1] - x[6]) - (x[2] - x[5]));
  const std::int64_t c = scaledDown((x[3] - x[4]) * std::int64_t(46341), 12);
  const std::int64_t d = scaledDown((x[0] - x[7]) * std::int64_t(46341), 12);
  const std::int64_t e = d + a, f = c + b, g = c - b, h = d - a;
  t = (e + f) * 799;
  y[1] = out(t + e * 3218), y[7] = out(t - f * 4816);
  t = (h + g) * 3406;
  y[3] = out(t - g * 5681), y[5] = out(t - h * 1130);
  return y;
}

// corner: how many of the inputs count.
Line inverseLine(const Line& a, bool second, int corner) {
  const auto out = [&](std::int64_t v) { return scaledDown(v, second ? 21 : 12); };
  const std::int64_t a0 = a[0], a1 = a[1], a2 = a[2], a3 = a[3], a4 = a[4], a5 = a[5], a6 = a[6], a7 = a[7];
  if (corner == 2) {
    const std::int64_t t1 = scaledDown(a1 * 32138, 12) * std::int64_t(5793), e = a0 * 32768;
    const std::int64_t t2 = scaledDown(a1 * 6393, 12) * std::int64_t(5793), u = a1 * 38531, w = a1 * 25745;
    return {out(e + t1), out(e + u), out(e + w), out(e + t2), out(e - t2), out(e - w), out(e - u), out(e - t1)};
  }
  std::int64_t p = a5 * -9041 + (a5 + a3) * 27246, q = (a5 + a3) * 27246 - a3 * 45451;
  std::int64_t r = a1 * 25746 + (a1 + a7) * 6393, s = (a1 + a7) * 6393 - a7 * 38531;
  std::int64_t o = a2 * 25080 + (a2 + a6) * 17734, e1 = (a2 + a6) * 17734 - a6 * 60547;
  std::int64_t e0 = (a0 + a4) * 32768, d0 = (a0 - a4) * 32768;
  if (corner == 4)
    p = a3 * 27246, q = a3 * -18205, r = a1 * 32138, s = a1 * 6393, o = a2 * 42813, e1 = a2 * 17734,
    e0 = d0 = a0 * 32768;
  const std::int64_t m = r - p, n = s - q, t1 = scaledDown(p + r, 12) * std::int64_t(5793);
  const std::int64_t t2 = scaledDown(q + s, 12) * std::int64_t(5793), u = m + n, w = m - n;
  const std::int64_t g0 = e0 + o, g3 = e0 - o, g1 = e1 + d0, g2 = d0 - e1;
  return {out(g0 + t1), out(g1 + u), out(g2 + w), out(g3 + t2), out(g3 - t2), out(g2 - w), out(g1 - u), out(g0 - t1)};
}

using Block = std::array<Hux16s, 64>;

// The first lines of a block, rows or columns, transformed from their first samples.
template <class Transform>
Block lines(const Block& x, bool down, int count, int from, Transform transform) {
  Block y{};
  const auto at = [&](int l, int i) { return std::size_t(down ? 8 * i + l : 8 * l + i); };
  for (int l = 0; l < count; ++l) {
    Line line{};
    for (int i = 0; i < from; ++i) line[std::size_t(i)] = x[at(l, i)];
    line = transform(line);
    for (int i = 0; i < 8; ++i) y[at(l, i)] = short16(line[std::size_t(i)]);
  }
  return y;
}
Block forwardOf(const Block& x) {
  const Block rows = lines(x, false, 8, 8, [](const Line& l) { return forwardLine(l, false); });
  return lines(rows, true, 8, 8, [](const Line& l) { return forwardLine(l, true); });
}
Block inverseOf(const Block& x, int corner = 8) {
  const Block columns = lines(x, true, corner, corner, [&](const Line& l) { return inverseLine(l, false, corner); });
  return lines(columns, false, 8, corner, [&](const Line& l) { return inverseLine(l, true, corner); });
}

// Blocks of usual sizes, and of any.
Block anyBlock(Rng& rng, int turn) {
  const int reach = turn % 4 == 0 ? 32768 : turn % 4 == 1 ? 255 : turn % 4 == 2 ? 2048 : 8192;
  Block b;
  for (Hux16s& v : b) v = Hux16s(between(rng, -reach, reach - 1));
  return b;
}

// A block in guarded memory, at any address.
Image placed(Rng& rng, const Block& b, Place place = Place::kEnd) {
  Image image(rng, 128, 1, 1, place);
  std::memcpy(image.bytes(), b.data(), 128);
  return image;
}

TEST(DctBlock, FixedPointIsExact) {
  Rng rng(1);
  const struct {
    HuxStatus (*call)(const Hux16s*, Hux16s*);
    HuxStatus (*inPlace)(Hux16s*);
    int corner;  // 0: forward
  } members[] = {{huxiDCT8x8Fwd_16s_C1, huxiDCT8x8Fwd_16s_C1I, 0},
                 {huxiDCT8x8Inv_16s_C1, huxiDCT8x8Inv_16s_C1I, 8},
                 {huxiDCT8x8Inv_2x2_16s_C1, huxiDCT8x8Inv_2x2_16s_C1I, 2},
                 {huxiDCT8x8Inv_4x4_16s_C1, huxiDCT8x8Inv_4x4_16s_C1I, 4}};
  for (const auto& m : members)
    for (int turn = 0; turn < 400; ++turn) {
      const Block block = anyBlock(rng, turn);
      const Image src = placed(rng, block, Place(turn % 3)), dst = placed(rng, block), both = placed(rng, block);
      Image expected = dst, expectedBoth = both;
      const Block truth = m.corner ? inverseOf(block, m.corner) : forwardOf(block);
      std::memcpy(expected.bytes(), truth.data(), 128), std::memcpy(expectedBoth.bytes(), truth.data(), 128);
      ASSERT_EQ(m.call(src.data<Hux16s>(), dst.data<Hux16s>()), huxStsOk);
      ASSERT_TRUE(same(dst, expected)) << m.corner;
      ASSERT_EQ(m.inPlace(both.data<Hux16s>()), huxStsOk);
      ASSERT_TRUE(same(both, expectedBoth)) << m.corner;
    }
}

TEST(DctBlock, ReadsAndWritesRowsOfImages) {
  Rng rng(2);
  for (int turn = 0; turn < 200; ++turn) {
    const Place place = Place(turn % 3);
    const Image words(rng, 8, 8, 2, place), pixels(rng, 8, 8, 1, place);
    const auto level = Hux16s(turn % 2 ? between(rng, -300, 300) : between(rng, -32768, 32767));
    const auto low = Hux8u(between(rng, 0, 255)), high = Hux8u(between(rng, 0, 255));
    Block fromWords, fromPixels, fromLevels;
    for (std::size_t k = 0; k < 64; ++k) {
      const int x = int(k % 8), y = int(k / 8);
      fromWords[k] = words.get<Hux16s>(x, y), fromPixels[k] = pixels.get<Hux8u>(x, y);
      fromLevels[k] = short16(fromPixels[k] + level);
    }
    Block dst;
    ASSERT_EQ(huxiDCT8x8Fwd_16s_C1R(words.data<Hux16s>(), words.step(), dst.data()), huxStsOk);
    ASSERT_EQ(dst, forwardOf(fromWords));
    ASSERT_EQ(huxiDCT8x8Fwd_8u16s_C1R(pixels.data<Hux8u>(), pixels.step(), dst.data()), huxStsOk);
    ASSERT_EQ(dst, forwardOf(fromPixels));
    ASSERT_EQ(huxiDCT8x8FwdLS_8u16s_C1R(pixels.data<Hux8u>(), pixels.step(), dst.data(), level), huxStsOk);
    ASSERT_EQ(dst, forwardOf(fromLevels));

    const Block block = anyBlock(rng, turn), truth = inverseOf(block);
    Image wordDst = words, byteDst = pixels, clipDst = pixels;
    Image wordTruth = words, byteTruth = pixels, clipTruth = pixels;
    for (std::size_t k = 0; k < 64; ++k) {
      const int x = int(k % 8), y = int(k / 8), v = truth[k] + level;
      wordTruth.set<Hux16s>(x, y, 0, truth[k]);
      byteTruth.set<Hux8u>(x, y, 0, Hux8u(truth[k] >= 255 ? 255 : truth[k] < 1 ? 0 : truth[k]));
      clipTruth.set<Hux8u>(x, y, 0, Hux8u(v < low ? low : v >= high ? high : v));
    }
    ASSERT_EQ(huxiDCT8x8Inv_16s_C1R(block.data(), wordDst.data<Hux16s>(), wordDst.step()), huxStsOk);
    ASSERT_TRUE(same(wordDst, wordTruth));
    ASSERT_EQ(huxiDCT8x8Inv_16s8u_C1R(block.data(), byteDst.data<Hux8u>(), byteDst.step()), huxStsOk);
    ASSERT_TRUE(same(byteDst, byteTruth));
    ASSERT_EQ(huxiDCT8x8InvLSClip_16s8u_C1R(block.data(), clipDst.data<Hux8u>(), clipDst.step(), level, low, high),
              huxStsOk);
    ASSERT_TRUE(same(clipDst, clipTruth));
  }
}

TEST(DctBlock, FloatsAgreeWithDoublePrecision) {
  Rng rng(3);
  double basis[8][8];
  for (int k = 0; k < 8; ++k)
    for (int n = 0; n < 8; ++n)
      basis[k][n] = (k ? 0.5 : std::sqrt(0.125)) * std::cos((2 * n + 1) * k * std::numbers::pi / 16);
  for (int turn = 0; turn < 200; ++turn) {
    const Image src(rng, 256, 1, 1, Place(turn % 3)), dst(rng, 256, 1, 1, Place::kEnd);
    src.fill<Hux32f>([&] { return Hux32f(between(rng, -25500, 25500)) / 100; });
    for (const bool forward : {true, false}) {
      Image both = src;
      ASSERT_EQ((forward ? huxiDCT8x8Fwd_32f_C1 : huxiDCT8x8Inv_32f_C1)(src.data<Hux32f>(), dst.data<Hux32f>()),
                huxStsOk);
      ASSERT_EQ((forward ? huxiDCT8x8Fwd_32f_C1I : huxiDCT8x8Inv_32f_C1I)(both.data<Hux32f>()), huxStsOk);
      EXPECT_EQ(std::memcmp(both.bytes(), dst.bytes(), 256), 0);
      double error = 0, size = 0;
      for (int u = 0; u < 8; ++u)
        for (int v = 0; v < 8; ++v) {
          double sum = 0;
          forPixels({8, 8}, [&](int x, int y) {
            sum += double(src.get<Hux32f>(0, 0, 8 * y + x)) *
                   (forward ? basis[u][y] * basis[v][x] : basis[y][u] * basis[x][v]);
          });
          error += std::pow(sum - double(dst.get<Hux32f>(0, 0, 8 * u + v)), 2), size += sum * sum;
        }
      EXPECT_LT(std::sqrt(error / size), 2e-7);
    }
  }
}

TEST(Zigzag, RunsAlongTheAntidiagonals) {
  Block block, scan, back;
  for (std::size_t k = 0; k < 64; ++k) block[k] = Hux16s(k);
  ASSERT_EQ(huxiZigzagFwd8x8_16s_C1(block.data(), scan.data()), huxStsOk);
  int u = 0, v = 0;
  for (std::size_t k = 0; k < 64; ++k) {
    EXPECT_EQ(scan[k], 8 * u + v);
    const bool up = (u + v) % 2 == 0;
    int &along = up ? v : u, &against = up ? u : v;
    if (along == 7)
      ++against;
    else if (against == 0)
      ++along;
    else
      ++along, --against;
  }
  ASSERT_EQ(huxiZigzagInv8x8_16s_C1(scan.data(), back.data()), huxStsOk);
  EXPECT_EQ(back, block);
}

TEST(DctBlock, ChecksItsArguments) {
  Rng rng(4);
  const Image src(rng, 16, 16, 2), dst(rng, 16, 16, 2);
  using CheckFn = HuxStatus(const void*, int step, void*, int, int, int);
  const auto checks = [&](CheckFn* call, bool step, bool twoImages = true) {
    const void* s = src.bytes();
    void* d = dst.bytes();
    int bytes = 16;
    CheckOrder order([&] { return call(s, bytes, d, 1, 0, 9); });
    if (twoImages) order.nulls(s);
    order.nulls(d);
    if (step) order.steps(bytes);
    order.run(dst);
  };
#define WHOLE(f) checks(as<CheckFn, f, 0, 2>, false);
#define IN_PLACE(f, _) WHOLE(f) checks(as<CheckFn, f##I, 2>, false, false);
  HUX_STAMP(IN_PLACE, (huxiDCT8x8Fwd_16s_C1, huxiDCT8x8Inv_16s_C1, huxiDCT8x8Inv_2x2_16s_C1, huxiDCT8x8Inv_4x4_16s_C1),
            (_))
  HUX_STAMP(IN_PLACE, (huxiDCT8x8Fwd_32f_C1, huxiDCT8x8Inv_32f_C1), (_))
  WHOLE(huxiZigzagFwd8x8_16s_C1)
  WHOLE(huxiZigzagInv8x8_16s_C1) checks(as<CheckFn, huxiDCT8x8Fwd_16s_C1R, 0, 1, 2>, true);
  checks(as<CheckFn, huxiDCT8x8Fwd_8u16s_C1R, 0, 1, 2>, true);
  checks(as<CheckFn, huxiDCT8x8FwdLS_8u16s_C1R, 0, 1, 2, 3>, true);
  checks(as<CheckFn, huxiDCT8x8Inv_16s_C1R, 0, 2, 1>, true);
  checks(as<CheckFn, huxiDCT8x8Inv_16s8u_C1R, 0, 2, 1>, true);
  checks(as<CheckFn, huxiDCT8x8InvLSClip_16s8u_C1R, 0, 2, 1, 3, 4, 5>, true);
}

}  // namespace
}  // namespace hux::test
