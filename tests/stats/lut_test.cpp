// Look-up tables, against the definition of one pixel.
#include "huxi_stats.h"
#include "stats/lists.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

enum class Curve { kStairs, kLines, kCubics };

// A member for one channel takes what it has of each list, the others the lists; in place there is one image.
using One = HuxStatus(const void*, int, void*, int, HuxiSize, const void* values, const void* levels, int n);
using Many = HuxStatus(const void*, int, void*, int, HuxiSize, const void*, const void*, const void*);
using OneInPlace = HuxStatus(void*, int, HuxiSize, const void*, const void*, int);
using ManyInPlace = HuxStatus(void*, int, HuxiSize, const void*, const void*, const void*);
struct Member : Form {
  Curve curve;
  One* one = nullptr;
  OneInPlace* oneInPlace = nullptr;
  Many* many = nullptr;
  ManyInPlace* manyInPlace = nullptr;

  bool inPlace() const { return oneInPlace || manyInPlace; }
  template <class N>
  HuxStatus call(const void* src, int srcStep, void* dst, int dstStep, HuxiSize roi, N* const* values, N* const* levels,
                 const int* n) const {
    if (one) return one(src, srcStep, dst, dstStep, roi, *values, *levels, *n);
    if (oneInPlace) return oneInPlace(dst, dstStep, roi, *values, *levels, *n);
    if (many) return many(src, srcStep, dst, dstStep, roi, values, levels, n);
    return manyInPlace(dst, dstStep, roi, values, levels, n);
  }
};
#define MEMBERS(f, c, t)                                                                \
  Member{HUX_FORM(t, C1), Curve::c, as<One, huxi##f##_##t##_C1R>},                      \
      Member{HUX_FORM(t, C1), Curve::c, nullptr, as<OneInPlace, huxi##f##_##t##_C1IR>}, \
      MANY(f, c, t, C3) MANY(f, c, t, C4) MANY(f, c, t, AC4)
#define MANY(f, c, t, l)                                                                \
  Member{HUX_FORM(t, l), Curve::c, nullptr, nullptr, as<Many, huxi##f##_##t##_##l##R>}, \
      Member{HUX_FORM(t, l), Curve::c, nullptr, nullptr, nullptr, as<ManyInPlace, huxi##f##_##t##_##l##IR>},
#define ALL(t, _) MEMBERS(LUT, kStairs, t) MEMBERS(LUT_Linear, kLines, t) MEMBERS(LUT_Cubic, kCubics, t)
const Member kMembers[] = {HUX_STAMP(ALL, (8u, 16s, 16u, 32f), (_))};

std::string name(const Member& m) {
  return m.name + ", curve " + std::to_string(int(m.curve)) + (m.inPlace() ? " in place" : "");
}

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
void expectMapped(const Member& member, Rng& rng, int width, int height, const Lists<NumberOf<T>>& levels,
                  const Lists<NumberOf<T>>& values) {
  const Layout layout = member.layout;
  const HuxiSize roi = {width, height};
  Image src = wholeImage<T>(rng, width, height, layout, Place(between(rng, 0, 2)));
  fillPixels<T>(rng, src);
  const Image before = src, dst = member.inPlace() ? src : wholeImage<T>(rng, width, height, layout, Place::kEnd);
  Image result = dst;
  ASSERT_EQ(member.call(src.bytes(), src.step(), result.bytes(), result.step(), roi, values.data.data(),
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
        const int i = x * layout.stride + c;
        const T p = before.get<T>(0, y, i), actual = result.get<T>(0, y, i);
        const auto expected = defined(Curves<NumberOf<T>>{curve, levels.of[at], values.of[at]}, p);
        ASSERT_TRUE(agrees<T>(actual, expected)) << +p << " gives " << +actual << " and not " << +expected.first;
        kept.set<T>(0, y, i, actual);
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
void expectShapes(Rng& rng, const Member& m) {
  const auto run = [&](int width, int height, int least, int most, Manner manner) {
    const bool cubics = m.curve == Curve::kCubics;
    const auto levels = cubics ? spreadLevels<T>(rng, m.layout) : anyLists<T>(rng, m.layout, least, most, manner);
    auto values = valuesFor<T>(rng, levels);
    if (cubics)  // whose differences are formed in 32 bits
      for (auto& list : values.of)
        for (auto& value : list) value = std::clamp<NumberOf<T>>(value, -100000, 100000);
    expectMapped<T>(m, rng, width, height, levels, values);
  };
  const bool tables = sizeof(T) == 2;
  for (int width = 1; width < 140; width += tables ? 9 : 1) {
    run(width, between(rng, 1, 3), 2, 9, Manner::kStrict);
    // Small images of 16 bits search, and mean something else by levels that do not ascend.
    if (!tables || m.curve != Curve::kStairs) run(width, 2, 2, 9, Manner(between(rng, 0, 3)));
  }
  for (int width : {1023, 1025, 2100}) run(width, 2, 2, 60, Manner::kStrict);
  for (int width : {4096, 4097, 6400, 6401}) run(width, 1, 3, 40, Manner::kStrict);
  run(200, 40, 3, 12, Manner::kAny);
}
TEST(Lut, ElementsFollowTheCurve) {
  Rng rng(1);
  for (const Member& m : kMembers) {
    SCOPED_TRACE(name(m));
    withPixels(m.type, [&]<class T>(T) { expectShapes<T>(rng, m); });
  }
}

// Levels that do not ascend, in a small image and in a large one.
TEST(Lut, SearchAndTableOfFallingLevels) {
  const Hux32s levels[] = {10, 40, 20, 30, 50}, values[] = {1, 2, 3, 4, 0};
  const struct {
    Hux16u pixel, expected;
    int width;
  } cases[] = {{25, 3, 6400}, {35, 4, 6400}, {15, 1, 6400}, {45, 4, 6401}};  // 25: half way not below 20; then below 30
  for (const auto& [pixel, expected, width] : cases) {
    std::vector<Hux16u> image(6401, pixel);
    ASSERT_EQ(huxiLUT_16u_C1IR(image.data(), 2 * width, {width, 1}, values, levels, 5), huxStsOk);
    EXPECT_EQ(image[0], expected);
  }
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

TEST(Lut, Memory) {
  Rng rng(2);
  for (const Member& m : kMembers) {
    SCOPED_TRACE(name(m));
    for (const HuxiSize roi : {HuxiSize{64, 64}, {4097, 1}, {80, 80}, {6401, 1}})
      withPixels(m.type, [&]<class T>(T) {
        const int pixels = roi.width * roi.height;
        const bool search = m.layout.stride == 1 ? pixels <= 6400 : m.layout.stride == 3 && pixels < 4097;
        const bool needs = m.curve != Curve::kStairs ? sizeof(T) > 1 : sizeof(T) == 2 && !search;
        const Image image = wholeImage<T>(rng, roi.width, roi.height, m.layout, Place::kInside);
        const auto levels = anyLists<T>(rng, m.layout, 4, 4, Manner::kStrict);
        const auto values = valuesFor<T>(rng, levels);
        const auto call = [&] {
          return m.call(image.bytes(), image.step(), image.bytes(), image.step(), roi, values.data.data(),
                        levels.data.data(), levels.lengths().data());
        };
        EXPECT_EQ(failuresOf(call, image) > 0, needs) << pixels;
      });
  }
}

TEST(Lut, OrderOfChecks) {
  Rng rng(3);
  const Image image(rng, 64, 8, 4);
  for (const Member& m : kMembers) {
    SCOPED_TRACE(name(m));
    Arguments a(image, {3, 2});
    Lists<Hux32s> levels(4, 4), values(4, 4);
    Hux32s *const *v = values.data.data(), *const *k = levels.data.data();
    std::array<int, 4> n = {4, 4, 4, 4};
    const int* lengths = n.data();
    CheckOrder order([&] { return m.call(a.a, a.aStep, a.d, a.dStep, a.roi, v, k, lengths); });
    const std::string without = m.inPlace() ? "aA" : "";
    order.in(a, "ad", without);
    if (m.layout.stride == 1) {
      order.nulls(values.data[0], levels.data[0]).in(a, "zAD", without).breaks(huxStsBadLutLevels, n[0], 1);
    } else {
      order.nulls(v, k, lengths);
      for (std::size_t c = 0; c < std::size_t(m.layout.touched); ++c)
        order.nulls(values.data[c], levels.data[c]).breaks(huxStsBadLutLevels, n[c], 1);
      order.in(a, "zAD", without);
    }
    order.run(image);
  }
}

TEST(LutPalette, EntriesAndOrderOfChecks) {
  using PaletteFn = HuxStatus(const void*, int, void*, int, HuxiSize, const void* table, int bits);
  const struct {
    int bytes, entry;
    PaletteFn* map;
  } members[] = {{1, 3, as<PaletteFn, huxiLUTPalette_8u24u_C1R>},
                 {1, 4, as<PaletteFn, huxiLUTPalette_8u32u_C1R>},
                 {2, 1, as<PaletteFn, huxiLUTPalette_16u8u_C1R>},
                 {2, 3, as<PaletteFn, huxiLUTPalette_16u24u_C1R>},
                 {2, 4, as<PaletteFn, huxiLUTPalette_16u32u_C1R>}};
  Rng rng(4);
  const Image image(rng, 64, 8, 4);
  for (const auto& m : members) {
    SCOPED_TRACE(testing::Message() << m.bytes << " to " << m.entry << " bytes");
    const int most = 8 * m.bytes;
    std::vector<Hux32u> table(std::size_t(m.entry) << most >> 2);
    for (Hux32u& word : table) word = Hux32u(rng());
    const auto* entryBytes = reinterpret_cast<const std::byte*>(table.data());
    for (int width = 1; width < 140; ++width) {
      int bits = between(rng, 1, most);
      const Image src(rng, width, 2, m.bytes, Place::kEnd), dst(rng, width, 2, m.entry, Place::kEnd), expected = dst;
      forPixels({width, 2}, [&](int x, int y) {
        const int p = m.bytes == 1 ? src.get<Hux8u>(x, y) : src.get<Hux16u>(x, y);
        std::memcpy(expected.bytes(x, y), entryBytes + p % (1 << bits) * m.entry, std::size_t(m.entry));
      });
      ASSERT_EQ(m.map(src.bytes(), src.step(), dst.bytes(), dst.step(), {width, 2}, table.data(), bits), huxStsOk);
      ASSERT_TRUE(same(dst, expected)) << bits << " bits";
    }
    const void* entries = table.data();
    int bits = most;
    Arguments a(image, {3, 2});
    CheckOrder order([&] { return m.map(a.a, a.aStep, a.d, a.dStep, a.roi, entries, bits); });
    order.in(a, "ad").nulls(entries).in(a, "ADz");
    order.breaks(huxStsBadBitSize, bits, 0).breaks(huxStsBadBitSize, bits, most + 1).run(image);
  }
}

}  // namespace
}  // namespace hux::test
