// Histograms, against the count of each interval.
#include "huxi_stats.h"
#include "stats/lists.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

constexpr int kMaxBins = 600;

// A member with every argument as for several channels.
template <class T>
struct Member {
  std::string name;
  Layout layout;
  std::function<HuxStatus(const T*, int, HuxiSize, Hux32s* const*, NumberOf<T>* const*, const int*, const Hux32s*,
                          const Hux32s*)>
      call;
};

#define RANGE(t, l)                                                                                            \
  Member<Hux##t>{#t "_" #l, l, [](auto src, int step, HuxiSize roi, auto hist, auto levels, auto n, auto...) { \
                   return huxiHistogramRange_##t##_##l##R(src, step, roi, hist, levels, n);                    \
                 }},
#define RANGE_C1(t, _)                                                                                         \
  Member<Hux##t>{#t "_C1", C1, [](auto src, int step, HuxiSize roi, auto hist, auto levels, auto n, auto...) { \
                   return huxiHistogramRange_##t##_C1R(src, step, roi, *hist, *levels, *n);                    \
                 }},
#define EVEN(t, l)                                                                                              \
  Member<Hux##t>{#t "_" #l, l,                                                                                  \
                 [](auto src, int step, HuxiSize roi, auto hist, auto levels, auto n, auto lower, auto upper) { \
                   return huxiHistogramEven_##t##_##l##R(src, step, roi, hist, levels, n, lower, upper);        \
                 }},
#define EVEN_C1(t, _)                                                                                           \
  Member<Hux##t>{#t "_C1", C1,                                                                                  \
                 [](auto src, int step, HuxiSize roi, auto hist, auto levels, auto n, auto lower, auto upper) { \
                   return huxiHistogramEven_##t##_C1R(src, step, roi, *hist, *levels, *n, *lower, *upper);      \
                 }},
template <class T>
std::vector<Member<T>> rangeMembers();
template <class T>
std::vector<Member<T>> evenMembers();
#define MEMBERS(t)                                                         \
  template <>                                                              \
  std::vector<Member<Hux##t>> rangeMembers() {                             \
    return { RANGE_C1(t, C1) HUX_STAMP_LAYOUTS(RANGE, t, (C3, AC4, C4)) }; \
  }
MEMBERS(8u)
MEMBERS(16s)
MEMBERS(16u)
MEMBERS(32f)
#undef MEMBERS
#define MEMBERS(t)                                                       \
  template <>                                                            \
  std::vector<Member<Hux##t>> evenMembers() {                            \
    return { EVEN_C1(t, C1) HUX_STAMP_LAYOUTS(EVEN, t, (C3, AC4, C4)) }; \
  }
MEMBERS(8u)
MEMBERS(16s)
MEMBERS(16u)

// The counts of one channel. Levels of floats are strict, or not (`other`); a NaN among them is a case of its own.
template <class T>
std::vector<Hux32s> counted(const Image& image, HuxiSize roi, Layout layout, int c,
                            const std::vector<NumberOf<T>>& levels, bool other) {
  std::vector<Hux32s> counts(levels.size() - 1);
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) {
      T p;
      std::memcpy(&p, image.bytes((x * layout.stride + c) * int(sizeof(T)), y), sizeof p);
      for (std::size_t k = 0; k + 1 < levels.size(); ++k)
        counts[k] += other ? !(levels[k] > p) && !(p >= levels[k + 1]) : levels[k] <= p && p < levels[k + 1];
    }
  return counts;
}

template <class T>
void expectCounts(const Member<T>& member, Rng& rng, int width, int height, int least, int most, Manner manner) {
  const Layout layout = member.layout;
  Image image = touchedImage(rng, width, height, layout, sizeof(T), Place(between(rng, 0, 2)));
  fillPixels<T>(rng, image);
  const HuxiSize roi = {width, height};
  const auto levels = anyLists<T>(rng, layout, least, most, manner);
  Lists<Hux32s> counts(layout.touched, most);
  ASSERT_EQ(member.call(image.data<T>(), image.step(), roi, counts.data.data(), levels.data.data(),
                        levels.lengths().data(), nullptr, nullptr),
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

template <class T>
void expectAllCounts() {
  Rng rng(1);
  for (const auto& member : rangeMembers<T>()) {
    SCOPED_TRACE(member.name);
    for (Manner manner : {Manner::kStrict, Manner::kEqual, Manner::kFalling, Manner::kAny}) {
      for (int width = 1; width < 140; ++width)
        expectCounts(member, rng, width, between(rng, 1, 3), 2, between(rng, 0, 3) ? 9 : 60, manner);
      // Blocks, searches, and on 16 bits the table of all values.
      for (int width : {1023, 1025, 2100}) expectCounts(member, rng, width, 2, 2, 40, manner);
      if (sizeof(T) > 1) expectCounts(member, rng, 300, 2, 201, 300, manner);
      expectCounts(member, rng, 150, 100, 50, 250, manner);
    }
  }
}
TEST(HistogramRange, CountsBytes) { expectAllCounts<Hux8u>(); }
TEST(HistogramRange, CountsWords) { expectAllCounts<Hux16s>(), expectAllCounts<Hux16u>(); }
TEST(HistogramRange, CountsFloats) { expectAllCounts<Hux32f>(); }

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

// On 16 bits the table of all values takes memory; it is made where there are more levels than the bound for so many
// pixels.
struct Steps {
  std::vector<int> pixels, levels;
};
template <class T>
void expectTables(const Member<T>& member, const Steps& ascending, const Steps& other) {
  SCOPED_TRACE(member.name);
  const int channels = member.layout.touched;
  for (const Steps* steps : {&ascending, &other})
    for (std::size_t i = 0; i < steps->pixels.size(); ++i)
      for (int step = -1; step <= 0; ++step)
        for (int more = 0; more <= 1; ++more) {
          const int width = steps->pixels[i] + step, mean = steps->levels[i] + more;
          const int n = channels == 3 ? mean + 1 : mean;  // a mean of three, formed by a product, falls short
          // Ahead of the first number of pixels nothing takes memory; ahead of the others the bound is the one before.
          const bool expected = step == 0 ? more == 1 : i > 0 && mean > steps->levels[i - 1];
          const std::vector<T> image(std::size_t(width * member.layout.stride));
          std::vector<Hux32s> list;
          for (int k = 0; k < n; ++k) list.push_back(steps == &ascending ? k : k % 2);
          Lists<Hux32s> levels(std::vector(std::size_t(channels), list)), counts(channels, n);
          counts.of[0][0] = 99;
          const int before = liveBlocks();
          failAllocation(0);
          const HuxStatus status = member.call(image.data(), width * member.layout.stride * 2, {width, 1},
                                               counts.data.data(), levels.data.data(), levels.lengths().data(), 0, 0);
          stopFailing();
          EXPECT_EQ(status, expected ? huxStsNoMem : huxStsOk) << width << " pixels, " << n << " levels";
          EXPECT_EQ(counts.of[0][0], expected ? 0 : width);
          EXPECT_EQ(liveBlocks(), before);
        }
}
TEST(HistogramRange, TakesMemoryForTables) {
  const Steps c1 = {{12544, 16384, 20736, 25600, 30976, 43264, 50176, 65536, 123904},
                    {214, 74, 38, 34, 22, 18, 14, 3, 2}},
              c3 = {{12544, 16384, 20736, 25600, 30976, 36864, 43264, 50176, 73984, 135424},
                    {262, 126, 62, 46, 34, 30, 22, 18, 14, 10}},
              c4 = {{12544, 16384, 20736, 25600, 30976, 36864, 43264, 50176, 173056},
                    {190, 102, 62, 46, 38, 34, 22, 18, 14}};
  const Steps c1Other = {{1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736, 30976, 36864, 50176, 82944},
                         {442, 202, 114, 74, 54, 42, 30, 22, 18, 14, 10, 6}},
              c3Other = {{1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736, 25600, 36864, 57600, 92416},
                         {406, 194, 110, 74, 54, 42, 34, 26, 22, 18, 14, 10}},
              c4Other = {{1024, 2304, 4096, 6400, 9216, 12544, 16384, 20736, 25600, 36864, 57600, 160000},
                         {358, 162, 98, 66, 50, 38, 30, 26, 22, 18, 14, 10}};
  const auto all = [&](const auto& members) {
    for (const auto& member : members)
      expectTables(member,
                   member.layout.stride == 1    ? c1
                   : member.layout.touched == 3 ? c3
                                                : c4,
                   member.layout.stride == 1    ? c1Other
                   : member.layout.touched == 3 ? c3Other
                                                : c4Other);
  };
  all(rangeMembers<Hux16s>());
  all(rangeMembers<Hux16u>());
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
template <class T>
void expectEven() {
  Rng rng(3);
  const auto ranges = rangeMembers<T>();
  const auto evens = evenMembers<T>();
  for (std::size_t m = 0; m < evens.size(); ++m) {
    SCOPED_TRACE(evens[m].name);
    const Layout layout = evens[m].layout;
    for (int round = 0; round < 400; ++round) {
      const HuxiSize roi = {between(rng, 1, round % 20 ? 60 : 2100), between(rng, 1, 4)};
      const Image image = touchedImage(rng, roi.width, roi.height, layout, sizeof(T), Place::kInside);
      const bool divides = between(rng, 0, 1);
      Lists<Hux32s> levels(layout.touched, kMaxBins), counts(layout.touched, kMaxBins);
      Lists<Hux32s> expected(layout.touched, kMaxBins);
      Hux32s lower[4], upper[4];
      std::array<int, 4> n{};
      bool remainder = false;
      for (int c = 0; c < layout.touched; ++c) {
        n[std::size_t(c)] = between(rng, 2, 40);
        lower[c] = anyNumber<T>(rng), upper[c] = anyNumber<T>(rng);
        const int bins = n[std::size_t(c)] - 1;
        if (divides) upper[c] = Hux32s(Hux32u(lower[c]) + Hux32u(bins * between(rng, -3, 3000)));
        remainder |= Hux32s(Hux32u(upper[c]) - Hux32u(lower[c])) % bins != 0;
      }
      const auto call = [&] {
        return evens[m].call(image.data<T>(), image.step(), roi, counts.data.data(), levels.data.data(), n.data(),
                             lower, upper);
      };
      failAllocation(0);
      const HuxStatus status = call();
      stopFailing();
      if (sizeof(T) == 1 || !remainder) {
        ASSERT_EQ(status, huxStsOk) << "memory is not needed";
      }
      for (int c = 0; c < layout.touched; ++c)  // also where it failed
        ASSERT_TRUE(std::ranges::equal(evenLevels(n[std::size_t(c)], lower[c], upper[c]),
                                       std::vector(levels.data[c], levels.data[c] + n[std::size_t(c)])));
      ASSERT_EQ(call(), huxStsOk);
      ASSERT_EQ(ranges[m].call(image.data<T>(), image.step(), roi, expected.data.data(), levels.data.data(), n.data(),
                               nullptr, nullptr),
                huxStsOk);
      for (int c = 0; c < layout.touched; ++c)
        ASSERT_TRUE(std::equal(counts.data[c], counts.data[c] + n[std::size_t(c)] - 1, expected.data[c]))
            << n[std::size_t(c)] << " levels from " << lower[c] << " to " << upper[c];
    }
  }
}
TEST(HistogramEven, LevelsAndCounts) { expectEven<Hux8u>(), expectEven<Hux16s>(), expectEven<Hux16u>(); }

template <class T>
void expectOrders(const std::vector<Member<T>>& members, bool even) {
  Rng rng(4);
  for (const auto& member : members) {
    SCOPED_TRACE(member.name);
    const Image image(rng, 64, 8, 4);
    const T* src = image.data<T>();
    int step = 64;
    HuxiSize roi = {3, 2};
    Lists<NumberOf<T>> levels(4, 3);
    Lists<Hux32s> counts(4, 3);
    Hux32s* const* hist = counts.data.data();
    NumberOf<T>* const* list = levels.data.data();
    std::array<int, 4> n = {3, 3, 3, 3};
    const int* lengths = n.data();
    const Hux32s bounds[4] = {0, 0, 0, 0};
    const Hux32s *lower = bounds, *upper = bounds;
    CheckOrder order([&] { return member.call(src, step, roi, hist, list, lengths, lower, upper); });
    order.breaks(huxStsNullPtr, src, nullptr);
    if (member.layout.stride == 1) {
      order.breaks(huxStsNullPtr, counts.data[0], nullptr).breaks(huxStsNullPtr, levels.data[0], nullptr);
      order.breaks(huxStsBadSize, roi.width, 0).breaks(huxStsBadSize, roi.height, -1).breaks(huxStsBadStep, step, 0);
      order.breaks(huxStsBadHistLevels, n[0], 1);
    } else {
      order.breaks(huxStsNullPtr, hist, nullptr).breaks(huxStsNullPtr, list, nullptr);
      order.breaks(huxStsNullPtr, lengths, nullptr);
      if (even) order.breaks(huxStsNullPtr, lower, nullptr).breaks(huxStsNullPtr, upper, nullptr);
      for (std::size_t c = 0; c < std::size_t(member.layout.touched); ++c)
        order.breaks(huxStsNullPtr, counts.data[c], nullptr)
            .breaks(huxStsNullPtr, levels.data[c], nullptr)
            .breaks(huxStsBadHistLevels, n[c], 1);
      order.breaks(huxStsBadSize, roi.width, 0).breaks(huxStsBadSize, roi.height, -1).breaks(huxStsBadStep, step, 0);
    }
    order.run(image);
  }
}
TEST(Histogram, OrderOfChecks) {
  expectOrders(rangeMembers<Hux8u>(), false), expectOrders(rangeMembers<Hux16s>(), false);
  expectOrders(rangeMembers<Hux16u>(), false), expectOrders(rangeMembers<Hux32f>(), false);
  expectOrders(evenMembers<Hux8u>(), true), expectOrders(evenMembers<Hux16s>(), true);
  expectOrders(evenMembers<Hux16u>(), true);
}

}  // namespace
}  // namespace hux::test
