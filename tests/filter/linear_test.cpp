// Filter, FilterRow, FilterColumn and their 32f forms against the sum written down tap by tap.
#include <algorithm>
#include <cmath>
#include <limits>

#include "filter/taps.h"
#include "huxcore.h"
#include "huxi_filter.h"
#include "support/failing_malloc.h"
#include "support/forms.h"

namespace hux::test {
namespace {

enum class Shape { kImage, kRow, kColumn };

// All members through one pointer: kernels of one dimension take their side of the size and of the anchor.
using Call = HuxStatus (*)(const void*, int, void*, int, HuxiSize, const void*, HuxiSize, HuxiPoint, Hux32s divisor);

template <class T, class K, Shape shape, auto Fn>
HuxStatus call(const void* src, int srcStep, void* dst, int dstStep, HuxiSize roi, const void* kernel, HuxiSize size,
               HuxiPoint anchor, Hux32s divisor) {
  const auto run = [&](auto size, auto anchor) {
    const auto with = [&](auto... more) {
      return Fn(static_cast<const T*>(src), srcStep, static_cast<T*>(dst), dstStep, roi, static_cast<const K*>(kernel),
                size, anchor, more...);
    };
    if constexpr (std::is_integral_v<K>)
      return with(divisor);
    else
      return with();
  };
  if constexpr (shape == Shape::kImage)
    return run(size, anchor);
  else
    return shape == Shape::kRow ? run(size.width, anchor.x) : run(size.height, anchor.y);
}

enum class Type { k8u, k16s, k32f };
struct Member : Form {
  Type type;
  bool integerTaps;
  Shape shape;
  Call call;

  bool delegates() const { return integerTaps && type == Type::k16s; }
  bool widthFirst() const { return shape == Shape::kColumn && layout.stride > 1 && layout.stride == layout.touched; }
};

#define MEMBER(name, kind, t, taps, l, dims)                  \
  Member{{#name #kind "_" #t "_" #l, int(sizeof(Hux##t)), l}, \
         Type::k##t,                                          \
         std::is_integral_v<Hux##taps>,                       \
         Shape::k##dims,                                      \
         call<Hux##t, Hux##taps, Shape::k##dims, huxi##name##kind##_##t##_##l##R>},
#define SHAPES(kind, t, taps, l)           \
  MEMBER(Filter, kind, t, taps, l, Image)  \
  MEMBER(FilterRow, kind, t, taps, l, Row) \
  MEMBER(FilterColumn, kind, t, taps, l, Column)
#define MEMBERS(_, l) \
  SHAPES(, 8u, 32s, l) SHAPES(, 16s, 32s, l) SHAPES(, 32f, 32f, l) SHAPES(32f, 8u, 32f, l) SHAPES(32f, 16s, 32f, l)

std::vector<Member> members() {
  return { HUX_STAMP(MEMBERS, (_), (C1, C3, C4, AC4)) };
}

template <class T>
T read(const std::byte* at) {
  T value;
  std::memcpy(&value, at, sizeof value);
  return value;
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

// A pixel of the window, as a number; the type's values are exact in double.
double pixelAt(const Member& m, const std::byte* at) {
  return m.type == Type::k8u ? read<Hux8u>(at) : m.type == Type::k16s ? read<Hux16s>(at) : read<Hux32f>(at);
}

// sum += pixel * tap over the window from its top left on, the taps from the last one back.
template <class S, class Tap>
S sumOf(const Member& m, const Kernel& k, const std::byte* centre, int step, Tap tap) {
  S sum = 0;
  for (int j = k.size.height - 1; j >= 0; --j)
    for (int i = k.size.width - 1; i >= 0; --i) {
      const std::byte* at =
          centre + std::ptrdiff_t(k.anchor.y - j) * step + std::ptrdiff_t(k.anchor.x - i) * m.pixelBytes();
      const S product = S(pixelAt(m, at)) * tap(std::size_t(j) * std::size_t(k.size.width) + std::size_t(i));
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
  if (m.integerTaps && m.type == Type::k8u) {
    const Hux32u sum = sumOf<Hux32u>(m, k, src, srcStep, [&](std::size_t i) { return Hux32u(k.ints[i]); });
    return store(divided(Hux32s(sum), k.divisor));
  }
  const Hux32f sum = sumOf<Hux32f>(m, k, src, srcStep, [&](std::size_t i) {
    return m.integerTaps ? Hux32f(k.ints[i]) * (1.0f / Hux32f(k.divisor)) : k.floats[i];
  });
  m.type == Type::k8u ? store(toByte(sum)) : m.type == Type::k16s ? store(toShort(sum)) : store(sum);
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
  const int width = roi.width + kernel.width - 1, height = roi.height + kernel.height - 1;
  for (;;) {
    Image image = touchedImage(rng, width, height, m.layout, m.elementBytes, Place(between(rng, 0, 2)));
    if (image.step() < width * m.pixelBytes()) continue;
    const int special = between(rng, 0, 3);
    for (int y = 0; m.type == Type::k32f && y < height; ++y)
      for (int x = 0; x + 4 <= image.width(); x += 4) {
        Hux32f value = Hux32f(between(rng, -40000, 90000)) / 37;
        if (special == 0 && between(rng, 0, 20) == 0) value = std::numeric_limits<Hux32f>::infinity();
        if (special == 0 && between(rng, 0, 20) == 0) value = std::numeric_limits<Hux32f>::quiet_NaN();
        std::memcpy(image.bytes(x, y), &value, sizeof value);
      }
    return image;
  }
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
  const auto eachElement = [&](auto body) {
    for (int y = 0; y < roi.height; ++y)
      for (int x = 0; x < roi.width; ++x)
        for (int c = 0; c < m.layout.touched; ++c) {
          const std::ptrdiff_t inRow = std::ptrdiff_t(x) * m.pixelBytes() + c * m.elementBytes;
          body(pSrc + std::ptrdiff_t(y) * srcStep + inRow, std::ptrdiff_t(y) * dstStep + inRow);
        }
  };
  eachElement(
      [&](const std::byte* from, std::ptrdiff_t to) { expectElement(m, k, from, srcStep, expected.bytes() + to); });
  if (m.type == Type::k32f)  // any NaN will do
    eachElement([&](const std::byte*, std::ptrdiff_t to) {
      for (const Image* image : {&dst, &expected})
        if (std::isnan(read<Hux32f>(image->bytes() + to))) std::memset(image->bytes() + to, -1, 4);
    });
  ASSERT_TRUE(same(dst, expected));
  ASSERT_TRUE(same(src, before));
}

TEST(Linear, EveryShape) {
  Rng rng(1);
  const Hux32u threads = huxGetThreadCount();
  for (const Member& m : members()) {
    for (int width = 1; width < 150; width += width < 70 ? 1 : 7) {
      const int longest = between(rng, 0, 9) == 0 ? 40 : 6;
      expectFiltered(rng, m, {width, between(rng, 1, 6)}, {between(rng, 1, longest), between(rng, 1, 7)});
      if (testing::Test::HasFatalFailure()) return;
    }
    expectFiltered(rng, m, {5, 3}, {between(rng, 90, 130), between(rng, 90, 130)});
  }
  huxSetThreadCount(threads);
}

// Sums where a product, an addition or a rounding in another precision or order would show.
TEST(Linear, RoundingOfSums) {
  const auto bytes = [](Hux8u pixel, Hux32f tap) {
    Hux8u result = 77;
    EXPECT_EQ(huxiFilterRow32f_8u_C1R(&pixel, 1, &result, 1, {1, 1}, &tap, 1, 0), huxStsOk);
    return int(result);
  };
  EXPECT_EQ(bytes(1, 0.49999997f), 1);  // a half is added in single precision
  EXPECT_EQ(bytes(1, std::numeric_limits<Hux32f>::quiet_NaN()), 0);
  EXPECT_EQ(bytes(0, std::numeric_limits<Hux32f>::infinity()), 0);
  EXPECT_EQ(bytes(1, 255.5f), 255);
  const auto divide = [](Hux32s sum, Hux32s divisor) {
    const Hux8u pixel = 1;
    Hux8u result = 77;
    EXPECT_EQ(huxiFilterColumn_8u_C1R(&pixel, 1, &result, 1, {1, 1}, &sum, 1, 0, divisor), huxStsOk);
    return int(result);
  };
  EXPECT_EQ(divide(3, 2), 2);
  EXPECT_EQ(divide(-3, 2), 0);
  EXPECT_EQ(divide(-1, 3), 0);
  EXPECT_EQ(divide(-3, -3), 1);
  EXPECT_EQ(divide(0x7fffffff, 1 << 30), 2);
  EXPECT_EQ(divide(0x7fffffff, 3), 255);
  EXPECT_EQ(divide(7, 14), 1);  // 7 * (1 / 14) is a half
  EXPECT_EQ(divide(std::numeric_limits<Hux32s>::min(), std::numeric_limits<Hux32s>::min()), 1);
  const Hux16s three = 3, minusThree = -3;
  const Hux32s one = 1;
  Hux16s result = 0;
  EXPECT_EQ(huxiFilter_16s_C1R(&three, 2, &result, 2, {1, 1}, &one, {1, 1}, {0, 0}, 2), huxStsOk);
  EXPECT_EQ(result, 2);
  EXPECT_EQ(huxiFilter_16s_C1R(&minusThree, 2, &result, 2, {1, 1}, &one, {1, 1}, {0, 0}, 2), huxStsOk);
  EXPECT_EQ(result, -2);
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
    order.breaks(huxStsNullPtr, kernel, nullptr);
    if (m.delegates()) breakKernel();
    order.breaks(huxStsNullPtr, src, nullptr).breaks(huxStsNullPtr, dst, nullptr);
    order.breaks(huxStsBadSize, roi.height, 0);
    if (!m.widthFirst()) order.breaks(huxStsBadSize, roi.width, -1);
    if (!m.delegates()) breakKernel();
    order.breaks(huxStsBadStep, srcStep, wide - 1).breaks(huxStsBadStep, dstStep, narrow - 1);
    order.breaks(huxStsBadStep, srcStep, -wide).breaks(huxStsBadStep, dstStep, 0);
    order.run(image);

    const int blocks = liveBlocks();
    int failures = 0;
    if (m.delegates()) src = nullptr, roi.height = 0;
    walkAllocationFailures(run, [&](HuxStatus s) {
      ++failures;
      EXPECT_EQ(s, huxStsNoMem);
    });
    EXPECT_EQ(failures, m.delegates() ? 1 : 0);
    EXPECT_EQ(liveBlocks(), blocks);
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
