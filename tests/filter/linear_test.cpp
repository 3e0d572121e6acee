// Filter, FilterRow, FilterColumn and their 32f forms against the sum written down tap by tap.
#include <algorithm>
#include <cmath>
#include <limits>

#include "filter/taps.h"
#include "filter/windows.h"
#include "huxcore.h"
#include "huxi_filter.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

enum class Shape { kImage, kRow, kColumn };

// Kernels of one dimension take their side of the size and of the anchor.
using ImageFn = HuxStatus(const void*, int, void*, int, HuxiSize, const void*, HuxiSize, HuxiPoint, Hux32s divisor);
using LineFn = HuxStatus(const void*, int, void*, int, HuxiSize, const void*, int, int, Hux32s divisor);
struct Member : Form {
  bool integerTaps;
  Shape shape;
  ImageFn* image = nullptr;
  LineFn* line = nullptr;

  HuxStatus call(const void* src, int srcStep, void* dst, int dstStep, HuxiSize roi, const void* kernel, HuxiSize size,
                 HuxiPoint anchor, Hux32s divisor) const {
    if (image) return image(src, srcStep, dst, dstStep, roi, kernel, size, anchor, divisor);
    const bool row = shape == Shape::kRow;
    return line(src, srcStep, dst, dstStep, roi, kernel, row ? size.width : size.height, row ? anchor.x : anchor.y,
                divisor);
  }
  bool delegates() const { return integerTaps && type == Number::k16s; }
  bool widthFirst() const { return shape == Shape::kColumn && layout.stride > 1 && layout.stride == layout.touched; }
};

#define MEMBER(name, kind, t, taps, l, dims, ...) \
  Member{HUX_NAMED(name##kind, t, l), std::is_integral_v<Hux##taps>, Shape::k##dims, __VA_ARGS__},
#define SHAPES(kind, t, taps, l)                                                                    \
  MEMBER(Filter, kind, t, taps, l, Image, as<ImageFn, huxiFilter##kind##_##t##_##l##R>)             \
  MEMBER(FilterRow, kind, t, taps, l, Row, nullptr, as<LineFn, huxiFilterRow##kind##_##t##_##l##R>) \
  MEMBER(FilterColumn, kind, t, taps, l, Column, nullptr, as<LineFn, huxiFilterColumn##kind##_##t##_##l##R>)
#define MEMBERS(_, l) \
  SHAPES(, 8u, 32s, l) SHAPES(, 16s, 32s, l) SHAPES(, 32f, 32f, l) SHAPES(32f, 8u, 32f, l) SHAPES(32f, 16s, 32f, l)

std::vector<Member> members() {
  return { HUX_STAMP(MEMBERS, (_), (C1, C3, C4, AC4)) };
}

struct Kernel {
  HuxiSize size;
  HuxiPoint anchor;
  Hux32s divisor;
  std::vector<Hux32s> ints;
  std::vector<Hux32f> floats;

  const void* taps(const Member& m) const {
    return m.integerTaps ? static_cast<const void*>(ints.data()) : floats.data();
  }
};

// sum += pixel * tap over the window from its top left on, the taps from the last one back.
template <class S, class Tap>
S sumOf(const Member& m, const Kernel& k, const std::byte* centre, int step, Tap tap) {
  S sum = 0;
  for (int j = k.size.height - 1; j >= 0; --j)
    for (int i = k.size.width - 1; i >= 0; --i) {
      const std::byte* at =
          centre + std::ptrdiff_t(k.anchor.y - j) * step + std::ptrdiff_t(k.anchor.x - i) * m.pixelBytes();
      const S product = S(numberAt(m.type, at)) * tap(std::size_t(j) * std::size_t(k.size.width) + std::size_t(i));
      sum = sum + product;
    }
  return sum;
}

Hux8u divided(Hux32s s, Hux32s divisor) {
  const bool power = divisor > 1 && (divisor & (divisor - 1)) == 0;
  Hux64s result = s;
  if (power) result = s < 1 ? 0 : (Hux64s(s) + divisor / 2) / divisor;
  if (!power && divisor != 1) {
    const Hux32f f = Hux32f(s) * (1.0f / Hux32f(divisor));
    result = f > 0 ? Hux64s(Hux64f(f) + 0.5) : 0;
  }
  return Hux8u(std::clamp<Hux64s>(result, 0, 255));
}

Hux8u toByte(Hux32f a) {
  if (a > 0) a += 0.5f;
  return a > 255.0f ? 255 : a >= 0 ? Hux8u(a) : 0;
}
Hux16s toShort(Hux32f a) {
  if (a > 0) a += 0.5f;
  if (!(a >= 0)) a -= 0.5f;
  return a > 32767.0f ? 32767 : a >= -32768.0f ? Hux16s(a) : -32768;
}

void expectElement(const Member& m, const Kernel& k, const std::byte* src, int srcStep, std::byte* to) {
  const auto store = [&](auto value) { std::memcpy(to, &value, sizeof value); };
  if (m.integerTaps && m.type == Number::k8u) {
    const Hux32u sum = sumOf<Hux32u>(m, k, src, srcStep, [&](std::size_t i) { return Hux32u(k.ints[i]); });
    return store(divided(Hux32s(sum), k.divisor));
  }
  const Hux32f sum = sumOf<Hux32f>(m, k, src, srcStep, [&](std::size_t i) {
    return m.integerTaps ? Hux32f(k.ints[i]) * (1.0f / Hux32f(k.divisor)) : k.floats[i];
  });
  m.type == Number::k8u ? store(toByte(sum)) : m.type == Number::k16s ? store(toShort(sum)) : store(sum);
}

// 16- and 32-bit elements are met in whole steps of them.
int wholeStep(const Member& m, int step) { return step / m.elementBytes * m.elementBytes; }

Kernel anyKernel(Rng& rng, const Member& m, HuxiSize size) {
  if (m.shape == Shape::kRow) size.height = 1;
  if (m.shape == Shape::kColumn) size.width = 1;
  constexpr Hux32s lowest = std::numeric_limits<Hux32s>::min();
  const Hux32s divisors[] = {1, 2, 16, 1 << 30, 3, 9, 1000, -1, -2, -3, lowest, 1 - (lowest + 2), between(rng, 1, 500)};
  Kernel k{size, {}, divisors[between(rng, 0, int(std::size(divisors)) - 1)], {}, {}};
  k.anchor = {between(rng, -2, size.width + 1), between(rng, -2, size.height + 1)};
  if (m.shape == Shape::kRow) k.anchor.y = 0;
  if (m.shape == Shape::kColumn) k.anchor.x = 0;
  const int kind = between(rng, 0, 4);
  for (int n = size.width * size.height; n > 0; --n) {
    k.ints.push_back(kind == 0   ? Hux32s(rng())
                     : kind == 1 ? between(rng, -32768, 32767)
                     : kind == 2 ? 32768 - 65536 * between(rng, 0, 1)
                                 : between(rng, -1, 2 + std::abs(k.divisor % 4096)));
    k.floats.push_back(kind == 0 ? std::ldexp(1.0f, between(rng, -30, 30)) : Hux32f(between(rng, -300, 700)) / 512);
  }
  return k;
}

// The pixels that the windows of a region cover, and none behind or before them, with rows that fit their step.
Image windowImage(Rng& rng, const Member& m, HuxiSize roi, HuxiSize kernel) {
  const Image image =
      formImage(rng, m, roi.width + kernel.width - 1, roi.height + kernel.height - 1, Place(between(rng, 0, 2)));
  const bool special = between(rng, 0, 3) == 0;
  if (m.type == Number::k32f)
    image.fill<Hux32f>([&] {
      if (special && between(rng, 0, 10) == 0) return between(rng, 0, 1) ? INFINITY : NAN;
      return Hux32f(between(rng, -40000, 90000)) / 37;
    });
  return image;
}

void expectFiltered(Rng& rng, const Member& m, HuxiSize roi, HuxiSize kernelSize) {
  const Kernel k = anyKernel(rng, m, kernelSize);
  SCOPED_TRACE(m.name + " " + std::to_string(roi.width) + "x" + std::to_string(roi.height) + ", kernel " +
               std::to_string(k.size.width) + "x" + std::to_string(k.size.height));
  const Image src = windowImage(rng, m, roi, k.size), before = src;
  Image dst(rng, roi.width, roi.height, m.pixelBytes(), Place(between(rng, 0, 2)));
  Image expected = dst;
  const int srcStep = wholeStep(m, src.step()), dstStep = wholeStep(m, dst.step());
  // The rows may start a little behind the image's own: whole steps are shorter.
  const std::byte* pSrc = src.bytes() + std::ptrdiff_t(k.size.height - 1 - k.anchor.y) * srcStep +
                          std::ptrdiff_t(k.size.width - 1 - k.anchor.x) * m.pixelBytes();
  huxSetThreadCount(Hux32u(between(rng, 1, 4)));
  ASSERT_EQ(m.call(pSrc, src.step(), dst.bytes(), dst.step(), roi, k.taps(m), k.size, k.anchor, k.divisor), huxStsOk);
  forElements(roi, m.layout.touched, [&](int x, int y, int c) {
    const std::ptrdiff_t inRow = std::ptrdiff_t(x) * m.pixelBytes() + c * m.elementBytes;
    expectElement(m, k, pSrc + std::ptrdiff_t(y) * srcStep + inRow, srcStep,
                  expected.bytes() + std::ptrdiff_t(y) * dstStep + inRow);
  });
  ASSERT_TRUE(m.type == Number::k32f ? sameBut<Hux32f>(dst, expected, 4) : same(dst, expected));
  ASSERT_TRUE(same(src, before));
}

TEST(Linear, EveryShape) {
  Rng rng(1);
  for (const Member& m : members()) {
    for (int width = 1; width < 150; width += width < 70 ? 1 : 7) {
      const int longest = between(rng, 0, 9) == 0 ? 40 : 6;
      expectFiltered(rng, m, {width, between(rng, 1, 6)}, {between(rng, 1, longest), between(rng, 1, 7)});
      if (testing::Test::HasFatalFailure()) return;
    }
    expectFiltered(rng, m, {5, 3}, {between(rng, 90, 130), between(rng, 90, 130)});
  }
}

// One pixel and one tap where a product or a rounding in another precision would show.
TEST(Linear, RoundingOfSums) {
  constexpr Hux32s lowest = std::numeric_limits<Hux32s>::min();
  const struct {
    Hux8u pixel;
    Hux32f tap;
    int expected;
  } floats[] = {{1, 0.49999997f, 1}, {1, NAN, 0}, {0, INFINITY, 0}, {1, 255.5f, 255}};
  for (const auto& [pixel, tap, expected] : floats) {
    Hux8u result = 77;
    EXPECT_EQ(huxiFilterRow32f_8u_C1R(&pixel, 1, &result, 1, {1, 1}, &tap, 1, 0), huxStsOk);
    EXPECT_EQ(result, expected) << tap;
  }
  const struct {
    Hux32s tap, divisor, byte;
    Hux16s word;
  } integers[] = {{3, 2, 2, 2},
                  {-3, 2, 0, -2},
                  {-1, 3, 0, 0},
                  {-3, -3, 1, 1},
                  {0x7fffffff, 1 << 30, 2, 2},
                  {0x7fffffff, 3, 255, 32767},
                  {7, 14, 1, 1},
                  {lowest, lowest, 1, 1}};
  for (const auto& [tap, divisor, byte, word] : integers) {
    const Hux8u pixel = 1;
    const Hux16s wide = 1;
    Hux8u result = 77;
    Hux16s wideResult = 77;
    EXPECT_EQ(huxiFilterColumn_8u_C1R(&pixel, 1, &result, 1, {1, 1}, &tap, 1, 0, divisor), huxStsOk);
    EXPECT_EQ(result, byte) << tap << " / " << divisor;
    EXPECT_EQ(huxiFilter_16s_C1R(&wide, 2, &wideResult, 2, {1, 1}, &tap, {1, 1}, {0, 0}, divisor), huxStsOk);
    EXPECT_EQ(wideResult, word) << tap << " / " << divisor;
  }
}

TEST(Linear, ChecksInOrderAndMemory) {
  Rng rng(2);
  const Image image(rng, 64, 40, 16);
  const Hux32s taps[15] = {1, 0, 0, 0, 1};
  for (const Member& m : members()) {
    SCOPED_TRACE(m.name);
    const HuxiSize size = {m.shape == Shape::kColumn ? 1 : 3, m.shape == Shape::kRow ? 1 : 5};
    const void *src = image.bytes(8, 8), *kernel = taps;
    void* dst = image.bytes(8, 20);
    HuxiSize roi = {6, 3}, kernelSize = size;
    Hux32s divisor = 1;
    const int wide = (roi.width + size.width - 1) * m.pixelBytes(), narrow = roi.width * m.pixelBytes();
    int srcStep = wide, dstStep = narrow;
    const auto run = [&] {
      return m.call(src, srcStep, dst, dstStep, roi, kernel, kernelSize, HuxiPoint{1, 1}, divisor);
    };
    CheckOrder order(run);
    const auto breakKernel = [&] {
      if (m.shape != Shape::kColumn) order.breaks(huxStsBadSize, kernelSize.width, 0);
      if (m.shape != Shape::kRow) order.breaks(huxStsBadSize, kernelSize.height, -1);
      if (m.integerTaps) order.breaks(huxStsBadDivisor, divisor, 0);
    };
    if (m.widthFirst()) order.breaks(huxStsBadSize, roi.width, 0);
    order.nulls(kernel);
    if (m.delegates()) breakKernel();
    order.nulls(src, dst).breaks(huxStsBadSize, roi.height, 0);
    if (!m.widthFirst()) order.breaks(huxStsBadSize, roi.width, -1);
    if (!m.delegates()) breakKernel();
    order.breaks(huxStsBadStep, srcStep, wide - 1).breaks(huxStsBadStep, dstStep, narrow - 1).steps(srcStep, dstStep);
    order.run(image);

    // The memory of a delegate is asked for ahead of the other checks.
    if (!m.delegates()) continue;
    src = nullptr, roi.height = 0;
    failAllocation(0);
    EXPECT_EQ(run(), huxStsNoMem);
    stopFailing();
  }
}

TEST(Linear, TestTapsFor16s) {
  const Hux32f taps[] = {-32766.0f, 0.5f, -0.5f, 0.002f};
  EXPECT_EQ(ownTestTapsFor16s(taps, 0), 1);
  EXPECT_EQ(ownTestTapsFor16s(taps, 3), 1);
  EXPECT_EQ(ownTestTapsFor16s(taps, 4), 0);
}

}  // namespace
}  // namespace hux::test
