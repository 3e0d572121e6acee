// Look-up tables, against the definition of one pixel.
#include "huxi_stats.h"
#include "stats/lists.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

enum class Curve { kStairs, kLines, kCubics };

// A member with its lists as for several channels. In place source and destination are one image.
template <class T>
struct Member {
  std::string name;
  Curve curve;
  Layout layout;
  bool inPlace;
  std::function<HuxStatus(const T*, int, T*, int, HuxiSize, NumberOf<T>* const*, NumberOf<T>* const*, const int*)> call;
};

#define LUT_FORMS(f, c, t, l, values, levels, n)                                              \
  Member<Hux##t>{#f "_" #t "_" #l, Curve::c, l, false,                                        \
                 [](auto src, int s, auto dst, int d, HuxiSize roi, auto v, auto k, auto m) { \
                   return huxi##f##_##t##_##l##R(src, s, dst, d, roi, values, levels, n);     \
                 }},                                                                          \
      Member<Hux##t>{#f "_" #t "_" #l "I", Curve::c, l, true,                                 \
                     [](auto, int, auto dst, int d, HuxiSize roi, auto v, auto k, auto m) {   \
                       return huxi##f##_##t##_##l##IR(dst, d, roi, values, levels, n);        \
                     }},
#define LUT_C1(f, c, t) LUT_FORMS(f, c, t, C1, *v, *k, *m)
#define LUT_CN(f, c, t, l) LUT_FORMS(f, c, t, l, v, k, m)
#define LUT_ALL(t, l) LUT_CN(LUT, kStairs, t, l) LUT_CN(LUT_Linear, kLines, t, l) LUT_CN(LUT_Cubic, kCubics, t, l)
template <class T>
std::vector<Member<T>> members();
#define MEMBERS(t)                                                                                             \
  template <>                                                                                                  \
  std::vector<Member<Hux##t>> members() {                                                                      \
    return {                                                                                                   \
      LUT_C1(LUT, kStairs, t)                                                                                  \
      LUT_C1(LUT_Linear, kLines, t) LUT_C1(LUT_Cubic, kCubics, t) HUX_STAMP_LAYOUTS(LUT_ALL, t, (C3, C4, AC4)) \
    };                                                                                                         \
  }
MEMBERS(8u)
MEMBERS(16s)
MEMBERS(16u)
MEMBERS(32f)

template <class N>
struct Curves {
  Curve curve;
  const std::vector<N>&levels, &values;
};

// The polynomial through four pairs around segment k, in Lagrange's form.
template <class N>
long double cubic(const Curves<N>& list, int k, long double p) {
  const int first = std::clamp(k - 1, 0, int(list.levels.size()) - 4);
  long double sum = 0;
  for (int i = first; i < first + 4; ++i) {
    long double term = list.values[std::size_t(i)];
    for (int j = first; j < first + 4; ++j)
      if (j != i)
        term *= (p - list.levels[std::size_t(j)]) /
                ((long double)(list.levels[std::size_t(i)]) - list.levels[std::size_t(j)]);
    sum += term;
  }
  return sum;
}

// What an element becomes, as bounds, which part where a polynomial's last digits are open.
template <class T>
using Bounds = std::pair<T, T>;
template <class T>
T limited(double v) {
  return T(std::clamp<double>(std::trunc(v), std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

// Integers: every segment in order writes its values into a table, and a later one over an earlier.
template <class T>
Bounds<T> defined(const Curves<Hux32s>& list, T p) {
  constexpr Hux32s low = std::numeric_limits<T>::min(), top = std::numeric_limits<T>::max();
  const auto& [curve, levels, values] = list;
  Bounds<T> result = {p, p};
  if (p >= levels.back()) return result;
  for (std::size_t k = 0; k + 1 < levels.size(); ++k) {
    const std::int64_t a = levels[k], b = levels[k + 1];
    if (b <= a) continue;
    const Hux32s from = Hux32s(std::clamp<std::int64_t>(a, low, top)),
                 to = Hux32s(std::clamp<std::int64_t>(b, low, top + 1));
    if (p < std::clamp<std::int64_t>(a, low, curve == Curve::kStairs ? top + 1 : top) || p >= to) continue;
    if (curve == Curve::kStairs || to - from == 1) {
      result.first = result.second = limited<T>(values[k]);
    } else if (curve == Curve::kLines) {
      const double slope = Hux32s(Hux32u(values[k + 1]) - Hux32u(values[k])) / double(Hux32s(Hux32u(b) - Hux32u(a)));
      result.first = result.second = limited<T>(p * slope + (values[k] + 0.5 - double(a) * slope));
    } else {
      const double y = double(cubic(list, int(k), p) + 0.5);
      result = {limited<T>(y - 1e-6), limited<T>(y + 1e-6)};
    }
  }
  return result;
}

Bounds<Hux32f> defined(const Curves<Hux32f>& list, Hux32f p) {
  const auto& [curve, levels, values] = list;
  for (std::size_t k = 0; k + 1 < levels.size(); ++k) {
    if (levels[k] > p || p >= levels[k + 1]) continue;
    if (curve == Curve::kStairs) return {values[k], values[k]};
    if (p != p) return {p, p};
    if (curve == Curve::kCubics) {
      const Hux32f y = Hux32f(cubic(list, int(k), p)), error = std::fabs(y) * 1e-6f + 1e-3f;
      return {y - error, y + error};
    }
    const Hux32f run = levels[k + 1] - levels[k];
    const double slope = run != 0 ? (values[k + 1] - values[k]) / run : 0;
    const Hux32f y = Hux32f((p - levels[k]) * slope + values[k]);
    return {y, y};
  }
  return {p, p};
}

template <class T>
bool agrees(T actual, Bounds<T> expected) {
  return (actual >= expected.first && actual <= expected.second) ||
         (actual != actual && expected.first != expected.first);
}

// An image seen as bytes.
template <class T>
Image wholeImage(Rng& rng, int width, int height, Layout layout, Place place) {
  return Image(rng, width * layout.stride * int(sizeof(T)), height, 1, place);
}

template <class T>
void expectMapped(const Member<T>& member, Rng& rng, int width, int height, const Lists<NumberOf<T>>& levels,
                  const Lists<NumberOf<T>>& values) {
  const Layout layout = member.layout;
  const HuxiSize roi = {width, height};
  Image src = wholeImage<T>(rng, width, height, layout, Place(between(rng, 0, 2)));
  fillPixels<T>(rng, src);
  const Image before = src, dst = member.inPlace ? src : wholeImage<T>(rng, width, height, layout, Place::kEnd);
  Image result = dst;
  ASSERT_EQ(member.call(src.data<T>(), src.step(), result.data<T>(), result.step(), roi, values.data.data(),
                        levels.data.data(), levels.lengths().data()),
            huxStsOk);
  bool few = false;
  for (const auto& list : levels.of) few |= list.size() < 4;
  const auto curve = member.curve == Curve::kCubics && few ? Curve::kLines : member.curve;
  // All bytes but those of the colours are as they were.
  Image kept = dst;
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      for (int c = 0; c < layout.touched; ++c) {
        const std::size_t at = std::size_t(c);
        const auto offset = (x * layout.stride + c) * int(sizeof(T));
        T p, actual;
        std::memcpy(&p, before.bytes(offset, y), sizeof p);
        std::memcpy(&actual, result.bytes(offset, y), sizeof p);
        const auto expected = defined(Curves<NumberOf<T>>{curve, levels.of[at], values.of[at]}, p);
        ASSERT_TRUE(agrees<T>(actual, expected)) << +p << " gives " << +actual << " and not " << +expected.first;
        std::memcpy(kept.bytes(offset, y), &actual, sizeof p);
      }
  ASSERT_TRUE(same(result, kept));
}

// Levels of polynomials stand well apart.
template <class T>
Lists<NumberOf<T>> spreadLevels(Rng& rng, Layout layout) {
  std::vector<std::vector<NumberOf<T>>> lists;
  for (int c = 0; c < layout.touched; ++c) {
    const int count = between(rng, 3, 9), width = sizeof(T) == 1 ? 24 : sizeof(T) == 2 ? 6000 : 20;
    std::vector<NumberOf<T>> list = {NumberOf<T>(std::is_unsigned_v<T> ? between(rng, -5, 30) : -width * 4)};
    while (int(list.size()) < count) list.push_back(list.back() + NumberOf<T>(between(rng, width, 2 * width)));
    lists.push_back(std::move(list));
  }
  return Lists<NumberOf<T>>(std::move(lists));
}

template <class T>
Lists<NumberOf<T>> valuesFor(Rng& rng, const Lists<NumberOf<T>>& levels) {
  auto values = levels.of;
  for (auto& list : values)
    for (auto& value : list) value = anyNumber<T>(rng) / (between(rng, 0, 1) ? 1 : 2);
  return Lists<NumberOf<T>>(std::move(values));
}

template <class T>
void expectAll() {
  Rng rng(1);
  for (const auto& member : members<T>()) {
    SCOPED_TRACE(member.name);
    const auto run = [&](int width, int height, int least, int most, Manner manner) {
      const auto levels = member.curve == Curve::kCubics ? spreadLevels<T>(rng, member.layout)
                                                         : anyLists<T>(rng, member.layout, least, most, manner);
      auto values = valuesFor<T>(rng, levels);
      if (member.curve == Curve::kCubics)  // whose differences are formed in 32 bits
        for (auto& list : values.of)
          for (auto& value : list) value = std::clamp<NumberOf<T>>(value, -100000, 100000);
      expectMapped(member, rng, width, height, levels, values);
    };
    const bool tables = sizeof(T) == 2;
    for (int width = 1; width < 140; width += tables ? 9 : 1) {
      run(width, between(rng, 1, 3), 2, 9, Manner::kStrict);
      // Small images of 16 bits search, and mean something else by levels that do not ascend.
      if (!tables || member.curve != Curve::kStairs) run(width, 2, 2, 9, Manner(between(rng, 0, 3)));
    }
    for (int width : {1023, 1025, 2100}) run(width, 2, 2, 60, Manner::kStrict);
    for (int width : {4096, 4097, 6400, 6401}) run(width, 1, 3, 40, Manner::kStrict);
    run(200, 40, 3, 12, Manner::kAny);
  }
}
TEST(Lut, Bytes) { expectAll<Hux8u>(); }
TEST(Lut, SignedWords) { expectAll<Hux16s>(); }
TEST(Lut, UnsignedWords) { expectAll<Hux16u>(); }
TEST(Lut, Floats) { expectAll<Hux32f>(); }

// Levels that do not ascend, in a small image and in a large one.
TEST(Lut, SearchAndTableOfFallingLevels) {
  const Hux32s levels[] = {10, 40, 20, 30, 50}, values[] = {1, 2, 3, 4, 0};
  std::vector<Hux16u> image(6401, 25);
  ASSERT_EQ(huxiLUT_16u_C1IR(image.data(), 12800, {6400, 1}, values, levels, 5), huxStsOk);
  EXPECT_EQ(image[0], 3);  // half way: not below 20; then below 30
  image.assign(6401, 35);
  ASSERT_EQ(huxiLUT_16u_C1IR(image.data(), 12800, {6400, 1}, values, levels, 5), huxStsOk);
  EXPECT_EQ(image[0], 4);
  image.assign(6401, 15);
  ASSERT_EQ(huxiLUT_16u_C1IR(image.data(), 12800, {6400, 1}, values, levels, 5), huxStsOk);
  EXPECT_EQ(image[0], 1);
  image.assign(6401, 45);
  ASSERT_EQ(huxiLUT_16u_C1IR(image.data(), 12802, {6401, 1}, values, levels, 5), huxStsOk);
  EXPECT_EQ(image[0], 4);
}

// A window of a polynomial with equal levels: its segments that have an extent become the lowest value, or what an
// infinity is limited to, but nothing undefined; the others are left out.
TEST(Lut, CubicsOfEqualLevels) {
  const Hux32s levels[] = {0, 100, 100, 200, 256}, values[] = {50, 60, 70, 80, 90};
  Hux8u image[256];
  for (int i = 0; i < 256; ++i) image[i] = Hux8u(i);
  ASSERT_EQ(huxiLUT_Cubic_8u_C1IR(image, 256, {256, 1}, values, levels, 5), huxStsOk);
  for (int i = 0; i < 256; ++i) EXPECT_TRUE(image[i] == 0 || image[i] == 255) << i;
}

template <class T>
void expectNoMemory() {
  Rng rng(2);
  for (const auto& member : members<T>()) {
    SCOPED_TRACE(member.name);
    for (const HuxiSize roi : {HuxiSize{64, 64}, {4097, 1}, {80, 80}, {6401, 1}}) {
      const int pixels = roi.width * roi.height;
      const bool search = member.layout.stride == 1 ? pixels <= 6400 : member.layout.stride == 3 && pixels < 4097;
      const bool needs = member.curve != Curve::kStairs ? sizeof(T) > 1 : sizeof(T) == 2 && !search;
      const Image image = wholeImage<T>(rng, roi.width, roi.height, member.layout, Place::kInside);
      const Image before = image;
      const auto levels = anyLists<T>(rng, member.layout, 4, 4, Manner::kStrict);
      const auto values = valuesFor<T>(rng, levels);
      int failures = 0;
      const int live = liveBlocks();
      const HuxStatus status = walkAllocationFailures(
          [&] {
            return member.call(image.data<T>(), image.step(), image.data<T>(), image.step(), roi, values.data.data(),
                               levels.data.data(), levels.lengths().data());
          },
          [&](HuxStatus failed) {
            ++failures;
            EXPECT_EQ(failed, huxStsNoMem);
            EXPECT_TRUE(same(image, before));
          });
      EXPECT_EQ(status, huxStsOk);
      EXPECT_EQ(failures > 0, needs) << pixels;
      EXPECT_EQ(liveBlocks(), live);
    }
  }
}
TEST(Lut, Memory) {
  expectNoMemory<Hux8u>(), expectNoMemory<Hux16s>(), expectNoMemory<Hux16u>(), expectNoMemory<Hux32f>();
}

template <class T>
void expectOrders() {
  Rng rng(3);
  for (const auto& member : members<T>()) {
    SCOPED_TRACE(member.name);
    const Image image(rng, 64, 8, 4);
    const T* src = image.data<T>();
    T* dst = image.data<T>() + 256 / sizeof(T);
    int srcStep = 64, dstStep = 64;
    HuxiSize roi = {3, 2};
    Lists<NumberOf<T>> levels(4, 4), values(4, 4);
    NumberOf<T>*const *v = values.data.data(), *const *k = levels.data.data();
    std::array<int, 4> n = {4, 4, 4, 4};
    const int* lengths = n.data();
    CheckOrder order([&] { return member.call(src, srcStep, dst, dstStep, roi, v, k, lengths); });
    const auto sizeAndSteps = [&] {
      order.breaks(huxStsBadSize, roi.width, 0).breaks(huxStsBadSize, roi.height, -1);
      if (!member.inPlace) order.breaks(huxStsBadStep, srcStep, 0);
      order.breaks(huxStsBadStep, dstStep, -1);
    };
    if (!member.inPlace) order.breaks(huxStsNullPtr, src, nullptr);
    order.breaks(huxStsNullPtr, dst, nullptr);
    if (member.layout.stride == 1) {
      order.breaks(huxStsNullPtr, values.data[0], nullptr).breaks(huxStsNullPtr, levels.data[0], nullptr);
      sizeAndSteps();
      order.breaks(huxStsBadLutLevels, n[0], 1);
    } else {
      order.breaks(huxStsNullPtr, v, nullptr).breaks(huxStsNullPtr, k, nullptr).breaks(huxStsNullPtr, lengths, nullptr);
      for (std::size_t c = 0; c < std::size_t(member.layout.touched); ++c)
        order.breaks(huxStsNullPtr, values.data[c], nullptr)
            .breaks(huxStsNullPtr, levels.data[c], nullptr)
            .breaks(huxStsBadLutLevels, n[c], 1);
      sizeAndSteps();
    }
    order.run(image);
  }
}
TEST(Lut, OrderOfChecks) {
  expectOrders<Hux8u>(), expectOrders<Hux16s>(), expectOrders<Hux16u>(), expectOrders<Hux32f>();
}

template <class S, class D>
void expectPalette(const char* name, HuxStatus (*fn)(const S*, int, D*, int, HuxiSize, const D*, int), int entry) {
  SCOPED_TRACE(name);
  Rng rng(4);
  std::vector<D> table(std::size_t(entry) << 8 * sizeof(S));
  for (D& value : table) value = D(rng());
  const int pixelBytes = entry * int(sizeof(D)), most = int(sizeof(S)) * 8;
  for (int width = 1; width < 140; ++width) {
    const int bits = between(rng, 1, most);
    const Image src(rng, width, 2, sizeof(S), Place::kEnd);
    Image dst(rng, width, 2, pixelBytes, Place::kEnd), expected = dst;
    for (int y = 0; y < 2; ++y)
      for (int x = 0; x < width; ++x)
        std::memcpy(expected.bytes(x, y), &table[std::size_t(src.get<S>(x, y) % (1 << bits) * entry)],
                    std::size_t(pixelBytes));
    ASSERT_EQ(fn(src.data<S>(), src.step(), dst.data<D>(), dst.step(), {width, 2}, table.data(), bits), huxStsOk);
    ASSERT_TRUE(same(dst, expected)) << bits << " bits";
  }
  const Image image(rng, 64, 8, 4);
  const S* src = image.data<S>();
  D* dst = image.data<D>() + 256 / sizeof(D);
  const D* entries = table.data();
  int srcStep = 64, dstStep = 64, bits = most;
  HuxiSize roi = {3, 2};
  CheckOrder([&] { return fn(src, srcStep, dst, dstStep, roi, entries, bits); })
      .breaks(huxStsNullPtr, src, nullptr)
      .breaks(huxStsNullPtr, dst, nullptr)
      .breaks(huxStsNullPtr, entries, nullptr)
      .breaks(huxStsBadStep, srcStep, 0)
      .breaks(huxStsBadStep, dstStep, 0)
      .breaks(huxStsBadSize, roi.width, 0)
      .breaks(huxStsBadSize, roi.height, 0)
      .breaks(huxStsBadBitSize, bits, 0)
      .breaks(huxStsBadBitSize, bits, most + 1)
      .run(image);
}
TEST(LutPalette, EntriesAndOrderOfChecks) {
  expectPalette("8u24u", huxiLUTPalette_8u24u_C1R, 3);
  expectPalette("8u32u", huxiLUTPalette_8u32u_C1R, 1);
  expectPalette("16u8u", huxiLUTPalette_16u8u_C1R, 1);
  expectPalette("16u24u", huxiLUTPalette_16u24u_C1R, 3);
  expectPalette("16u32u", huxiLUTPalette_16u32u_C1R, 1);
}

}  // namespace
}  // namespace hux::test
