// Chains: the bits of the calls one by one, whatever the band and the team; statuses first.
#include "hux/chain.hpp"

#include <gtest/gtest.h>

#include "hux/hux.hpp"
#include "noise.h"

namespace {

using hux::border;
using hux::equal;
using hux::image;
using hux::noise;
using hux::status;
using u8 = std::uint8_t;
using s16 = std::int16_t;

const hux::extent kSizes[] = {{1, 1}, {5, 2}, {33, 7}, {17, 64}, {70, 45}, {3, 120}};
const hux::running kRuns[] = {{}, {.rows = 1}, {.threads = 2, .rows = 5}, {.threads = 3, .rows = 16}, {.threads = 2}};

TEST(Chain, PointwiseCallsBranchesAndTypes) {
  for (hux::extent size : kSizes)
    for (const hux::running& run : kRuns) {
      const auto a = noise<u8, 3>(size, 1), b = noise<u8, 3>(size, 2);
      image<u8, 3> sum(size), out(size), expected_sum(size), expected(size);
      image<float, 3> real(size), expected_real(size);
      image<u8, 1> mask(size), expected_mask(size);
      hux::chain c;
      auto x = c.input(a), y = c.input(b);
      auto t = c.add(x, y, {.shift = 1});
      auto u = c.sub(c.mul(t, {3, 2, 1}, {.shift = 1}), y);
      c.output(t, sum);
      c.output(c.xor_(u, t), out);
      c.output(c.convert<float>(u), real);
      c.output(c.compare(u, t, hux::cmp_op::greater), mask);
      EXPECT_EQ(c.run(run), status::ok);

      hux::add(a, b, expected_sum, {.shift = 1});
      hux::mul(expected_sum, {3, 2, 1}, expected, {.shift = 1});
      hux::sub(expected, b, expected);
      hux::convert(expected, expected_real);
      hux::compare(expected, expected_sum, expected_mask, hux::cmp_op::greater);
      hux::xor_(expected, expected_sum, expected);
      EXPECT_TRUE(equal(sum, expected_sum) && equal(out, expected) && equal(real, expected_real) &&
                  equal(mask, expected_mask))
          << size.width << " by " << size.height << ", threads " << run.threads << ", rows " << run.rows;
    }
}

TEST(Chain, WindowsReachAcrossBandsAndShares) {
  const std::array<float, 15> taps = {1, -2, 3, 0.5f, 5, 6, -7, 8, 9, 1, 2, 3, 4, -5, 6};
  const std::array<u8, 6> cells = {1, 0, 1, 1, 1, 0};
  for (hux::extent size : kSizes)
    for (border rule : {border::replicate, border::constant, border::symmetric, border::reflect101, border::wrap})
      for (const hux::running& run : kRuns) {
        const auto a = noise<u8, 3>(size, 3);
        const auto f = noise<float, 1>(size, 4);
        image<u8, 3> boxed(size), out(size), expected_boxed(size), expected(size), least(size);
        image<float, 1> real(size), expected_real(size), low(size);
        hux::chain c;
        auto x = c.input(a);
        auto box = c.filter_box(x, {5, 4}, {.anchor = {4, 0}, .border = rule, .border_value = {1, 2, 3}});
        auto eroded = c.erode(box, {cells, {2, 3}}, {.anchor = {0, 2}, .border = rule});
        // A branch that looks far, and one that does not look around at all, meet.
        auto median = c.filter_median(c.sub(eroded, x), {3, 9}, {.border = rule});
        c.output(box, boxed);
        c.output(c.add(median, box), out);
        c.output(c.filter_max(box, {1, 7}, {.anchor = {0, 6}}), least);
        auto g = c.filter(c.input(f), {taps, {3, 5}}, {.anchor = {2, 1}, .border = rule});
        auto smooth = c.filter_gauss(c.filter_sobel_vert(g, {.border = rule}), hux::mask_size::m5x5, {.border = rule});
        c.output(c.sub(smooth, g), real);
        EXPECT_EQ(c.run(run), status::ok);

        image<u8, 3> t(size), median_of(size), greatest(size);
        hux::filter_box(a, expected_boxed, {5, 4}, {.anchor = {4, 0}, .border = rule, .border_value = {1, 2, 3}});
        hux::erode(expected_boxed, t, {cells, {2, 3}}, {.anchor = {0, 2}, .border = rule});
        hux::sub(t, a, t);
        hux::filter_median(t, median_of, {3, 9}, {.border = rule});
        hux::add(median_of, expected_boxed, expected);
        hux::filter_max(expected_boxed, greatest, {1, 7}, {.anchor = {0, 6}});
        hux::filter(f, expected_real, {taps, {3, 5}}, {.anchor = {2, 1}, .border = rule});
        image<float, 1> h(size);
        hux::filter_sobel_vert(expected_real, h, {.border = rule});
        hux::filter_gauss(h, low, hux::mask_size::m5x5, {.border = rule});
        hux::sub(low, expected_real, expected_real);
        SCOPED_TRACE(testing::Message() << size.width << " by " << size.height << ", border " << int(rule)
                                        << ", threads " << run.threads << ", rows " << run.rows);
        EXPECT_TRUE(equal(boxed, expected_boxed));
        EXPECT_TRUE(equal(out, expected));
        EXPECT_TRUE(equal(least, greatest));
        EXPECT_TRUE(equal(real, expected_real));
      }
}

constexpr auto kFive = hux::mask_size::m5x5;
constexpr std::array<float, 5> kTaps = {1, -0.3f, 7, 0.1f, 5};

// One window of floats in a chain and by itself.
template <class InChain, class Alone>
void expectSteady(const char* name, InChain inChain, Alone alone) {
  const hux::extent size = {37, 50};
  const auto f = noise<float, 1>(size, 6);
  image<float, 1> own(size), expected(size);
  hux::chain c;
  c.output(inChain(c, c.input(f)), own);
  EXPECT_EQ(c.run({.threads = 2, .rows = 7}), status::ok) << name;
  alone(f, expected);
  EXPECT_TRUE(equal(own, expected)) << name;
}

TEST(Chain, WindowsOfFloatsDoNotDependOnTheirRows) {
#define EXPECT_STEADY(recorded, name, ...)                                                     \
  expectSteady(                                                                                \
      #name, [](hux::chain& c, auto in) { return c.recorded(in __VA_OPT__(, ) __VA_ARGS__); }, \
      [](const auto& in, auto& out) { hux::name(in, out __VA_OPT__(, ) __VA_ARGS__); })
  EXPECT_STEADY(filter_gauss, filter_gauss, kFive);
  EXPECT_STEADY(filter_laplace<float>, filter_laplace, kFive);
  EXPECT_STEADY(filter_sharpen, filter_sharpen);
  EXPECT_STEADY(filter_prewitt_horiz, filter_prewitt_horiz);
  EXPECT_STEADY(filter_scharr_vert<float>, filter_scharr_vert);
  EXPECT_STEADY(filter_sobel_horiz_mask, filter_sobel_horiz_mask, kFive);
  EXPECT_STEADY(filter_sobel_cross<float>, filter_sobel_cross, kFive);
  EXPECT_STEADY(filter_sobel_vert_second<float>, filter_sobel_vert_second, kFive);
  EXPECT_STEADY(filter_row, filter_row, std::span<const float>(kTaps));
  EXPECT_STEADY(filter_column, filter_column, std::span<const float>(kTaps));
  EXPECT_STEADY(filter_min, filter_min, hux::extent{3, 4});
  EXPECT_STEADY(dilate3x3, dilate3x3);
#undef EXPECT_STEADY
}

TEST(Chain, FailuresComeBeforeOutputs) {
  const auto a = noise<u8, 1>({40, 30}, 5);
  image<u8, 1> first(40, 30), second(40, 30), none(40, 30), small(39, 30);
  auto recorded = [&](hux::chain& c) { return c.add(c.input(a), 3); };
  hux::chain c;
  auto t = recorded(c);
  c.output(t, first);
  c.output(c.div(c.filter_box(t, {0, 3}), 0), second);
  EXPECT_EQ(c.try_run({.threads = 2}), status::bad_mask_size);
  EXPECT_TRUE(equal(first, none) && equal(second, none));
  try {
    c.run();
    FAIL();
  } catch (const hux::error& failed) {
    EXPECT_NE(std::string(failed.what()).find("filter_box"), std::string::npos);
  }

  hux::chain sizes;
  sizes.output(recorded(sizes), small);
  EXPECT_EQ(sizes.try_run(), status::bad_size);
  hux::chain overlapping;
  image<u8, 1> same = a;
  auto x = overlapping.input(same);
  overlapping.output(overlapping.add(x, 1), same);
  EXPECT_EQ(overlapping.try_run(), status::bad_arg);
  EXPECT_TRUE(equal(same, a));

  // A warning of a late band, and of the first call that has one.
  image<s16, 1> numbers(40, 30), roots(40, 30);
  *numbers.at(3, 29) = -1;
  hux::chain warned;
  auto root = warned.sqrt(warned.input(numbers));
  warned.output(warned.div(numbers.data() ? root : root, root), roots);
  EXPECT_EQ(warned.run({.threads = 2, .rows = 4}), status::sqrt_neg_warn);
  // An input, and an image that is wanted twice.
  hux::chain copies;
  auto in = copies.input(a);
  auto plus = copies.add(in, 1);
  copies.output(in, first);
  copies.output(plus, second);
  copies.output(plus, none);
  EXPECT_EQ(copies.run(), status::ok);
  EXPECT_TRUE(equal(first, a) && equal(second, none));
}

}  // namespace
