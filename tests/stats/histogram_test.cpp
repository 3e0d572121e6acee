// Histograms, against the count of each interval.
#include "huxi_stats.h"
#include "stats/lists.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

constexpr int kMaxBins = 600;

// A member for one channel takes what it has of each list, the others the lists.
using OneRange = HuxStatus(const void*, int, HuxiSize, void* hist, const void* levels, int n);
using Range = HuxStatus(const void*, int, HuxiSize, const void* hist, const void* levels, const void* n);
using OneEven = HuxStatus(const void*, int, HuxiSize, void* hist, void* levels, int n, Hux32s lower, Hux32s upper);
using Even = HuxStatus(const void*, int, HuxiSize, const void* hist, const void* levels, const void* n, const void*,
                       const void*);
struct Member : Form {
  OneRange* oneRange;
  Range* range;
  OneEven* oneEven = nullptr;
  Even* even = nullptr;

  // The counts between levels that are given, or that the function is to make.
  template <class N>
  HuxStatus call(const void* src, int step, HuxiSize roi, Hux32s* const* hist, N* const* levels, const int* n) const {
    return oneRange ? oneRange(src, step, roi, *hist, *levels, *n) : range(src, step, roi, hist, levels, n);
  }
  HuxStatus call(const void* src, int step, HuxiSize roi, Hux32s* const* hist, Hux32s* const* levels, const int* n,
                 const Hux32s* lower, const Hux32s* upper) const {
    return oneEven ? oneEven(src, step, roi, *hist, *levels, *n, *lower, *upper)
                   : even(src, step, roi, hist, levels, n, lower, upper);
  }
};
#define RANGE(t, l) Member{HUX_FORM(t, l), nullptr, as<Range, huxiHistogramRange_##t##_##l##R>},
#define ONE_RANGE(t, _) Member{HUX_FORM(t, C1), as<OneRange, huxiHistogramRange_##t##_C1R>, nullptr},
#define EVEN(t, l)                                                                     \
  Member{HUX_FORM(t, l), nullptr, as<Range, huxiHistogramRange_##t##_##l##R>, nullptr, \
         as<Even, huxiHistogramEven_##t##_##l##R>},
#define ONE_EVEN(t, _)                                                         \
  Member{HUX_FORM(t, C1), as<OneRange, huxiHistogramRange_##t##_C1R>, nullptr, \
         as<OneEven, huxiHistogramEven_##t##_C1R>, nullptr},
const Member kMembers[] = {HUX_STAMP(ONE_EVEN, (8u, 16s, 16u), (_)) HUX_STAMP(EVEN, (8u, 16s, 16u), (C3, AC4, C4))
                               HUX_STAMP(ONE_RANGE, (32f), (_)) HUX_STAMP(RANGE, (32f), (C3, AC4, C4))};

// The counts of one channel. Levels of floats are strict, or not (`other`); a NaN among them is a case of its own.
template <class T>
std::vector<Hux32s> counted(const Image& image, HuxiSize roi, Layout layout, int c,
                            const std::vector<NumberOf<T>>& levels, bool other) {
  std::vector<Hux32s> counts(levels.size() - 1);
  forPixels(roi, [&](int x, int y) {
    const T p = image.get<T>(0, y, x * layout.stride + c);
    for (std::size_t k = 0; k + 1 < levels.size(); ++k)
      counts[k] += other ? !(levels[k] > p) && !(p >= levels[k + 1]) : levels[k] <= p && p < levels[k + 1];
  });
  return counts;
}

template <class T>
void expectCounts(const Member& member, Rng& rng, int width, int height, int least, int most, Manner manner) {
  const Layout layout = member.layout;
  Image image = touchedImage(rng, width, height, layout, sizeof(T), Place(between(rng, 0, 2)));
  fillPixels<T>(rng, image);
  const HuxiSize roi = {width, height};
  const auto levels = anyLists<T>(rng, layout, least, most, manner);
  Lists<Hux32s> counts(layout.touched, most);
  ASSERT_EQ(
      member.call(image.bytes(), image.step(), roi, counts.data.data(), levels.data.data(), levels.lengths().data()),
      huxStsOk);
  bool other = false;
  for (const auto& list : levels.of)
    for (std::size_t k = 0; k + 1 < list.size(); ++k) other |= list[k] >= list[k + 1];
  for (int c = 0; c < layout.touched; ++c) {
    auto& actual = counts.of[std::size_t(c)];
    const auto& list = levels.of[std::size_t(c)];
    actual.resize(list.size() - 1);
    ASSERT_EQ(actual, counted<T>(image, roi, layout, c, list, other)) << "channel " << c;
  }
}

TEST(HistogramRange, Counts) {
  Rng rng(1);
  for (const Member& m : kMembers) {
    SCOPED_TRACE(m.name);
    withPixels(m.type, [&]<class T>(T) {
      for (Manner manner : {Manner::kStrict, Manner::kEqual, Manner::kFalling, Manner::kAny}) {
        for (int width = 1; width < 140; ++width)
          expectCounts<T>(m, rng, width, between(rng, 1, 3), 2, between(rng, 0, 3) ? 9 : 60, manner);
        // Blocks, searches, and on 16 bits the table of all values.
        for (int width : {1023, 1025, 2100}) expectCounts<T>(m, rng, width, 2, 2, 40, manner);
        if (sizeof(T) > 1) expectCounts<T>(m, rng, 300, 2, 201, 300, manner);
        expectCounts<T>(m, rng, 150, 100, 50, 250, manner);
      }
    });
  }
}

// NaN levels are no fault: up to 30 levels are scanned from the first on, more are searched by halves.
TEST(HistogramRange, NaNLevels) {
  const Hux32f nan = std::numeric_limits<Hux32f>::quiet_NaN();
  const Hux32f image[] = {-1, 0, 0.5f, 1, 2.5f, 3, 7, nan};
  const Hux32f atEnd[] = {0, 1, nan}, within[] = {0, nan, 2, 3};
  Hux32s counts[40];
  ASSERT_EQ(huxiHistogramRange_32f_C1R(image, 32, {8, 1}, counts, atEnd, 3), huxStsOk);
  EXPECT_EQ(std::vector(counts, counts + 2), (std::vector<Hux32s>{2, 4}));
  ASSERT_EQ(huxiHistogramRange_32f_C1R(image, 32, {8, 1}, counts, within, 4), huxStsOk);
  EXPECT_EQ(std::vector(counts, counts + 3), (std::vector<Hux32s>{0, 3, 1}));
  std::vector<Hux32f> many(40, nan);
  many[0] = 0, many[20] = 2.5f, many[39] = 8;
  ASSERT_EQ(huxiHistogramRange_32f_C1R(image, 32, {8, 1}, counts, many.data(), 40), huxStsOk);
  EXPECT_EQ(counts[0], 6);
}

// On 16 bits many levels make a table of all values, which takes memory.
TEST(HistogramRange, WithoutMemoryForATableNothingIsCounted) {
  for (const Member& m : kMembers) {
    SCOPED_TRACE(m.name);
    const std::vector<Hux32s> image(std::size_t(20000 * m.layout.stride));
    Lists<Hux32s> levels(m.layout.touched, 300), counts(m.layout.touched, 300);
    const auto call = [&] {
      counts.of[0][0] = 99;
      const HuxStatus status = m.call(image.data(), 4 * int(image.size()), {20000, 1}, counts.data.data(),
                                      levels.data.data(), levels.lengths().data());
      EXPECT_EQ(counts.of[0][0], 0);
      return status;
    };
    EXPECT_EQ(failuresOf(call), m.elementBytes == 2 ? 1 : 0);
  }
}

// Levels by the definition, and the counts of HistogramRange with those.
std::vector<Hux32s> evenLevels(int n, Hux32s lower, Hux32s upper) {
  const Hux32s range = Hux32s(Hux32u(upper) - Hux32u(lower)), d = range / (n - 1);
  Hux32s r = range % (n - 1);
  std::vector<Hux32s> levels = {lower};
  for (int i = 0; i + 1 < n; ++i) {
    Hux32u next = Hux32u(levels.back()) + Hux32u(d);
    if (d >= 0 ? r > 0 : r < 0) next += d >= 0 ? 1 : -1, r -= d >= 0 ? 1 : -1;
    levels.push_back(Hux32s(next));
  }
  return levels;
}
TEST(HistogramEven, LevelsAndCounts) {
  Rng rng(3);
  for (const Member& m : kMembers) {
    if (m.type == Number::k32f) continue;
    SCOPED_TRACE(m.name);
    for (int round = 0; round < 400; ++round) {
      const HuxiSize roi = {between(rng, 1, round % 20 ? 60 : 2100), between(rng, 1, 4)};
      const Image image = touchedImage(rng, roi.width, roi.height, m.layout, m.elementBytes, Place::kInside);
      const bool divides = between(rng, 0, 1);
      Lists<Hux32s> levels(m.layout.touched, kMaxBins), counts(m.layout.touched, kMaxBins);
      Lists<Hux32s> expected(m.layout.touched, kMaxBins);
      Hux32s lower[4], upper[4];
      std::array<int, 4> n{};
      bool remainder = false;
      for (int c = 0; c < m.layout.touched; ++c) {
        const int bins = between(rng, 1, 39);
        n[std::size_t(c)] = bins + 1;
        withPixels(m.type, [&]<class T>(T) { lower[c] = int(anyNumber<T>(rng)), upper[c] = int(anyNumber<T>(rng)); });
        if (divides) upper[c] = Hux32s(Hux32u(lower[c]) + Hux32u(bins * between(rng, -3, 3000)));
        remainder |= Hux32s(Hux32u(upper[c]) - Hux32u(lower[c])) % bins != 0;
      }
      const auto call = [&] {
        const HuxStatus status =
            m.call(image.bytes(), image.step(), roi, counts.data.data(), levels.data.data(), n.data(), lower, upper);
        for (int c = 0; c < m.layout.touched; ++c)  // also where it failed
          EXPECT_TRUE(std::ranges::equal(evenLevels(n[std::size_t(c)], lower[c], upper[c]),
                                         std::vector(levels.data[c], levels.data[c] + n[std::size_t(c)])));
        return status;
      };
      const int failures = failuresOf(call);
      ASSERT_TRUE(failures == 0 || (m.elementBytes > 1 && remainder)) << "memory is not needed";
      ASSERT_EQ(m.call(image.bytes(), image.step(), roi, expected.data.data(), levels.data.data(), n.data()), huxStsOk);
      for (int c = 0; c < m.layout.touched; ++c)
        ASSERT_TRUE(std::equal(counts.data[c], counts.data[c] + n[std::size_t(c)] - 1, expected.data[c]))
            << n[std::size_t(c)] << " levels from " << lower[c] << " to " << upper[c];
    }
  }
}

TEST(Histogram, OrderOfChecks) {
  Rng rng(4);
  const Image image(rng, 64, 8, 4);
  for (const Member& m : kMembers)
    for (const bool even : {false, true}) {
      if (even && m.type == Number::k32f) continue;
      SCOPED_TRACE(m.name);
      Arguments a(image, {3, 2});
      Lists<Hux32s> levels(4, 3), counts(4, 3);
      Hux32s *const *hist = counts.data.data(), *const *list = levels.data.data();
      std::array<int, 4> n = {3, 3, 3, 3};
      const int* lengths = n.data();
      const Hux32s bounds[4] = {0, 0, 0, 0}, *lower = bounds, *upper = bounds;
      CheckOrder order([&] {
        return even ? m.call(a.a, a.aStep, a.roi, hist, list, lengths, lower, upper)
                    : m.call(a.a, a.aStep, a.roi, hist, list, lengths);
      });
      order.in(a, "a");
      if (m.layout.stride == 1) {
        order.nulls(counts.data[0], levels.data[0]).in(a, "zA").breaks(huxStsBadHistLevels, n[0], 1);
      } else {
        order.nulls(hist, list, lengths);
        if (even) order.nulls(lower, upper);
        for (std::size_t c = 0; c < std::size_t(m.layout.touched); ++c)
          order.nulls(counts.data[c], levels.data[c]).breaks(huxStsBadHistLevels, n[c], 1);
        order.in(a, "zA");
      }
      order.run(image);
    }
}

}  // namespace
}  // namespace hux::test
