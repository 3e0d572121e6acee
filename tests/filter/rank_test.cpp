// FilterMedian and its kin, FilterMin and FilterMax.
#include <algorithm>
#include <cmath>
#include <span>

#include "filter/windows.h"
#include "huxi_filter.h"
#include "support/failing_malloc.h"

namespace hux::test {
namespace {

using MaskFn = HuxStatus (*)(const void*, int, void*, int, HuxiSize, HuxiMaskSize);
using SizeFn = HuxStatus (*)(const void*, int, void*, int, HuxiSize, HuxiSize, HuxiPoint);
enum class Rule { kMedian, kColour, kMin, kMax };

// Forms of an enumerated mask, or of any mask size.
struct RankForm : Form {
  Rule rule;
  std::vector<HuxiMaskSize> masks;
  MaskFn masked = nullptr;
  SizeFn sized = nullptr;
  bool cross = false;

  HuxStatus operator()(const void* src, int srcStep, void* dst, int dstStep, HuxiSize roi, HuxiSize mask,
                       HuxiPoint anchor) const {
    if (sized) return sized(src, srcStep, dst, dstStep, roi, mask, anchor);
    return masked(src, srcStep, dst, dstStep, roi, mask.width * 10 + mask.height);
  }
};

#define SIZED(name, t, l) RankForm{HUX_FORM(t, l), Rule::k##name, {}, nullptr, erased<huxiFilter##name##_##t##_##l##R>},
#define ENUMERATED(name, rule, cross, t, l, ...) \
  RankForm{HUX_FORM(t, l), Rule::rule, {__VA_ARGS__}, erased<huxiFilterMedian##name##_##t##_##l##R>, nullptr, cross},
#define MEDIAN(t, l)                                                    \
  SIZED(Median, t, l)                                                   \
  ENUMERATED(Horiz, kMedian, false, t, l, huxMskSize3x1, huxMskSize5x1) \
  ENUMERATED(Vert, kMedian, false, t, l, huxMskSize1x3, huxMskSize1x5)
#define CROSS(t, l) ENUMERATED(Cross, kMedian, true, t, l, huxMskSize3x3, huxMskSize5x5)
#define COLOUR(t, l) ENUMERATED(Color, kColour, false, t, l, huxMskSize3x3, huxMskSize5x5)
#define EXTREMES(t, l) SIZED(Min, t, l) SIZED(Max, t, l)

std::vector<RankForm> forms() {
  return {
    HUX_STAMP(MEDIAN, (8u, 16s), (C1, C3, C4, AC4))
    HUX_STAMP(CROSS, (8u, 16s), (C1, C3, AC4))
    HUX_STAMP(COLOUR, (8u, 16s, 32f), (C3, AC4))
    HUX_STAMP(EXTREMES, (8u, 16s, 32f), (C1, C3, C4, AC4))
  };
}

std::string name(const RankForm& f) { return f.name + ", rule " + std::to_string(int(f.rule)); }

// The colour of the pixel with the least sum of distances to all, itself among them. Floats are such that the order of
// their sums does not matter.
template <class T>
std::array<T, 3> reference(const WindowImage& src, int x, int y) {
  using Sum = std::conditional_t<std::is_floating_point_v<T>, T, double>;
  const HuxiSize mask = src.mask();
  std::array<T, 3> best{};
  Sum least = 0;
  for (int i = 0; i < mask.width * mask.height; ++i) {
    const auto value = [&](int k, int c) { return src.cell<T>(x, y, k % mask.width, k / mask.width, c); };
    Sum sum = 0;
    for (int k = 0; k < mask.width * mask.height; ++k)
      for (int c = 0; c < 3; ++c) sum += std::abs(Sum(value(i, c)) - Sum(value(k, c)));
    if (i == 0 || least > sum) least = sum, best = {value(i, 0), value(i, 1), value(i, 2)};
  }
  return best;
}

template <class T>
T reference(const RankForm& f, const WindowImage& src, int x, int y, int c) {
  const HuxiSize mask = src.mask();
  if (f.rule == Rule::kColour) return reference<T>(src, x, y)[std::size_t(c)];
  const auto pick = [&](T a, T b) { return f.rule == Rule::kMin ? (a < b ? a : b) : (a > b ? a : b); };
  std::vector<T> cells;
  T best{};
  for (int j = 0; j < mask.height; ++j) {
    T along{};
    for (int i = 0; i < mask.width; ++i) {
      const T value = src.cell<T>(x, y, i, j, c);
      along = i == 0 ? value : pick(along, value);
      if (!f.cross || i == mask.width / 2 || j == mask.height / 2) cells.push_back(value);
    }
    best = j == 0 ? along : pick(best, along);
  }
  if (f.rule != Rule::kMedian) return best;
  std::nth_element(cells.begin(), cells.begin() + std::ptrdiff_t(cells.size() / 2), cells.end());
  return cells[cells.size() / 2];
}

void expectFilter(Rng& rng, const RankForm& f, HuxiSize roi, HuxiSize mask, Place place) {
  const Contents contents = anyContents(rng);
  const WindowImage src(rng, f, roi, mask, place, contents);
  const Image dst = formImage(rng, f, roi.width, roi.height, place), expected = dst;
  const HuxiPoint anchor = f.sized ? anyAnchor(rng, mask) : HuxiPoint{mask.width / 2, mask.height / 2};
  withElement(f, [&](auto zero) {
    using T = decltype(zero);
    if constexpr (std::is_floating_point_v<T>)
      if (f.rule == Rule::kMedian) return;
    expectPixels(f, expected, roi, [&](int x, int y, int c) { return reference<T>(f, src, x, y, c); });
  });
  ASSERT_EQ(f(src.at(anchor), src.step(), dst.bytes(), dst.step(), roi, mask, anchor), huxStsOk);
  ASSERT_TRUE(same(dst, expected)) << roi.width << " x " << roi.height << ", mask " << mask.width << " x "
                                   << mask.height << ", contents " << int(contents);
}

TEST(Rank, FiltersOrderTheirWindows) {
  Rng rng(1);
  constexpr HuxiSize medians[] = {{3, 3}, {5, 5}, {3, 1}, {5, 1}, {1, 3}, {1, 5},
                                  {1, 1}, {3, 5}, {7, 7}, {9, 1}, {1, 7}};
  for (const RankForm& f : forms()) {
    SCOPED_TRACE(name(f));
    int turn = 0;
    forShapes(rng, 100, [&](int width, int height, Place place) {
      if (testing::Test::HasFatalFailure()) return;
      ++turn;
      HuxiSize mask = {between(rng, 1, 12), between(rng, 1, 9)};
      if (turn % 3 == 0) mask = {3, 3};
      if (f.rule == Rule::kMedian) mask = medians[turn % int(std::size(medians))];
      if (!f.masks.empty()) mask = sizeOf(f.masks[std::size_t(turn) % f.masks.size()]);
      expectFilter(rng, f, {width, height + (turn % 16 == 0 ? 20 : 0)}, mask, place);
    });
  }
}

// Masks and regions on both sides of every change of method, and of the widths of strips.
TEST(Rank, LargeMasksAndStrips) {
  Rng rng(2);
  constexpr HuxiSize medians[] = {{15, 15}, {97, 3}, {99, 3}, {3, 255}, {3, 257}, {181, 181}, {183, 183}};
  constexpr HuxiSize extremes[] = {{1, 40}, {70, 1}, {31, 31}, {100, 17}};
  for (const RankForm& f : forms()) {
    SCOPED_TRACE(name(f));
    const bool bytes = f.elementBytes == 1, median = f.rule == Rule::kMedian;
    if (f.masks.empty())
      for (HuxiSize mask : median ? std::span<const HuxiSize>(medians) : std::span<const HuxiSize>(extremes)) {
        const bool huge = mask.width * mask.height > 10000;
        if (huge && (!bytes || f.layout.stride > 1)) continue;
        const HuxiSize roi = huge ? HuxiSize{3, 2} : HuxiSize{between(rng, 1, 30), between(rng, 1, 4)};
        ASSERT_NO_FATAL_FAILURE(expectFilter(rng, f, roi, mask, Place::kEnd));
      }
    const HuxiSize some = f.masks.empty() ? HuxiSize{7, 3} : sizeOf(f.masks.back());
    ASSERT_NO_FATAL_FAILURE(expectFilter(rng, f, {between(rng, 1000, 2500), 3}, some, Place::kStart));
    if (f.masks.empty()) {
      ASSERT_NO_FATAL_FAILURE(expectFilter(rng, f, {1100, 2}, {5, 5}, Place::kStart));
    }
  }
}

TEST(Rank, ChecksInOrderAndMemory) {
  Rng rng(3);
  for (const RankForm& f : forms()) {
    SCOPED_TRACE(name(f));
    const HuxiSize roi = {6, 3};
    HuxiSize mask = f.masks.empty() ? HuxiSize{7, 5} : sizeOf(f.masks[0]);
    HuxiPoint anchor = {mask.width / 2, mask.height / 2};
    const WindowImage source(rng, f, roi, mask, Place::kInside, Contents::kAny);
    const Image image(rng, roi.width, roi.height, f.pixelBytes());
    Arguments a(image, roi);
    a.a = source.at(anchor), a.aStep = source.step();
    const auto call = [&] { return f(a.a, a.aStep, a.d, a.dStep, a.roi, mask, anchor); };
    CheckOrder order(call);
    order.in(a, "adzAD");
    if (f.masks.empty()) {
      order.breaks(huxStsBadMaskSize, mask, {0, 5}).breaks(huxStsBadMaskSize, mask, {7, 0});
      order.breaks(huxStsBadMaskSize, mask, {-3, -3});
      if (f.rule == Rule::kMedian)
        order.breaks(huxStsBadMaskSize, mask, {4, 3}).breaks(huxStsBadMaskSize, mask, {3, 4});
      order.anchors(anchor, mask);
    } else {
      for (HuxiMaskSize bad :
           {huxMskSize1x3, huxMskSize1x5, huxMskSize3x1, huxMskSize5x1, huxMskSize3x3, huxMskSize5x5})
        if (std::find(f.masks.begin(), f.masks.end(), bad) == f.masks.end())
          order.breaks(huxStsBadMaskSize, mask, sizeOf(bad));
      order.breaks(huxStsBadMaskSize, mask, {0, 0});
    }
    order.run(image);
    // The general median of 16s, FilterMin and FilterMax report that memory is missing; the others need none.
    EXPECT_EQ(failuresOf(call, image) > 0, f.masks.empty() && !(f.rule == Rule::kMedian && f.elementBytes == 1));
  }
}

}  // namespace
}  // namespace hux::test
