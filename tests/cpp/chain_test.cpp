// Chains: the bits of the calls one by one, whatever the band and the team; statuses first.
#include "hux/chain.hpp"

#include <gtest/gtest.h>

#include <atomic>
#include <new>
#include <random>

#include "hux/hux.hpp"
#include "noise.h"

namespace {

// Allocations of the tests' own, counted in bytes, of which one can be told to fail. They go past the count of the
// library's, and are not inlined, where a compiler would see memory of operator new go to free. The thread sanitizer,
// which brings operators of its own and cannot do without, has none of this: there no number grows and none fails.
std::atomic<std::int64_t> taken = 0, until_failure = -1;

}  // namespace

#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define HUX_THREAD_SANITIZER
#endif
#endif

#ifndef HUX_THREAD_SANITIZER
extern "C" {
void* __real_malloc(std::size_t bytes);
void __real_free(void* block);
}
[[gnu::noinline]] void* operator new(std::size_t bytes) {
  taken += std::int64_t(bytes);
  if (until_failure >= 0 && until_failure-- == 0) throw std::bad_alloc();
  if (void* made = __real_malloc(bytes ? bytes : 1)) return made;
  throw std::bad_alloc();
}
[[gnu::noinline]] void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept try {
  return operator new(bytes);
} catch (const std::bad_alloc&) {
  return nullptr;
}
[[gnu::noinline]] void* operator new[](std::size_t bytes) { return operator new(bytes); }
[[gnu::noinline]] void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
  return operator new(bytes, std::nothrow);
}
[[gnu::noinline]] void operator delete[](void* at) noexcept { __real_free(at); }
[[gnu::noinline]] void operator delete[](void* at, std::size_t) noexcept { __real_free(at); }
[[gnu::noinline]] void operator delete(void* at) noexcept { __real_free(at); }
[[gnu::noinline]] void operator delete(void* at, std::size_t) noexcept { __real_free(at); }
#endif

namespace {

using hux::border;
using hux::equal;
using hux::image;
using hux::noise;
using hux::status;
using u8 = std::uint8_t;
using s16 = std::int16_t;

const hux::extent kSizes[] = {{1, 1}, {5, 2}, {33, 7}, {17, 64}, {70, 45}, {3, 120}, {600, 20}};
const hux::running kRuns[] = {{}, {.rows = 1}, {.threads = 2, .rows = 5}, {.threads = 3, .rows = 16}, {.threads = 2}};

TEST(Chain, PointwiseCallsBranchesAndTypes) {
  for (hux::extent size : kSizes)
    for (const hux::running& run : kRuns) {
      const auto a = noise<u8, 3>(size, 1), b = noise<u8, 3>(size, 2);
      image<u8, 3> sum(size), out(size), expected_sum(size), expected(size);
      image<float, 3> real(size), expected_real(size);
      image<u8, 1> mask(size), expected_mask(size);
      auto words = noise<std::int32_t, 1>(size, 3), magnitudes = words;
      hux::chain c;
      auto x = c.input(a), y = c.input(b);
      auto t = c.add(x, y, {.shift = 1});
      auto u = c.sub(c.mul(t, {3, 2, 1}, {.shift = 1}), y);
      c.output(t, sum);
      c.output(c.xor_(u, t), out);
      c.output(c.convert<float>(u), real);
      c.output(c.compare(u, t, hux::cmp_op::greater), mask);
      c.output(c.complement(c.input(words)), words);
      EXPECT_EQ(c.run(run), status::ok);

      hux::add(a, b, expected_sum, {.shift = 1});
      hux::mul(expected_sum, {3, 2, 1}, expected, {.shift = 1});
      hux::sub(expected, b, expected);
      hux::convert(expected, expected_real);
      hux::compare(expected, expected_sum, expected_mask, hux::cmp_op::greater);
      hux::xor_(expected, expected_sum, expected);
      hux::complement(magnitudes);
      EXPECT_TRUE(equal(words, magnitudes));
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
  int count = -1;
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

  // A window of bytes whose sums are rounded.
  hux::chain wide;
  wide.output(wide.filter_box(recorded(wide), {300, 300}), first);
  EXPECT_EQ(wide.try_run(), status::bad_mask_size);

  hux::chain sizes;
  sizes.output(recorded(sizes), small);
  EXPECT_EQ(sizes.try_run(), status::bad_size);
  // A call behind an output fails ahead of it, but not ahead of one that comes first.
  hux::chain late;
  auto sum = recorded(late);
  late.output(sum, first);
  late.output(late.count_in_range(sum, 9, 8), count);
  EXPECT_EQ(late.try_run({.rows = 3}), status::bad_range);
  late.output(late.filter_box(sum, {3, 0}), second);
  EXPECT_EQ(late.try_run(), status::bad_range);
  EXPECT_TRUE(equal(first, none) && equal(second, none) && count == -1);

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

// Calls drawn at random, in a chain and one by one.
TEST(Chain, ChainsOfAnyCallsGiveTheBitsOfTheCalls) {
  std::mt19937 random(11);
  const auto one_of = [&](auto... choices) {
    const std::array all = {choices...};
    return all[random() % all.size()];
  };
  for (int round = 0; round < 300; ++round) {
    const hux::extent size = {int(random() % 40) + 1, int(random() % 60) + 1};
    const std::array inputs = {noise<u8, 1>(size, random()), noise<u8, 1>(size, random())};
    std::vector<image<u8, 1>> images(inputs.begin(), inputs.end());
    hux::chain c;
    std::vector<hux::node<u8, 1>> nodes = {c.input(inputs[0]), c.input(inputs[1])};
    const int calls = int(random() % 9) + 1;
    for (int i = 0; i < calls; ++i) {
      const std::size_t a = random() % nodes.size(), b = random() % nodes.size();
      const border rule =
          one_of(border::replicate, border::constant, border::symmetric, border::reflect101, border::wrap);
      const auto value = u8(random() % 2 * 77);
      const hux::extent window = {int(random() % 6) + 1, int(random() % 8) + 1};
      const hux::point anchor = {int(random() % unsigned(window.width)), int(random() % unsigned(window.height))};
      image<u8, 1> out(size);
      image<s16, 1> wide(size);
      const image<u8, 1>&x = images[a], &y = images[b];
      auto add = [&](hux::node<u8, 1> made) { nodes.push_back(made); };
      switch (random() % 10) {
        case 0:
          add(c.add(nodes[a], nodes[b], {.shift = 1})), hux::add(x, y, out, {.shift = 1});
          break;
        case 1:
          add(c.sub(nodes[a], nodes[b])), hux::sub(x, y, out);
          break;
        case 2:
          add(c.xor_(nodes[a], u8(0x5a))), hux::xor_(x, u8(0x5a), out);
          break;
        case 3:
          add(c.convert<u8>(c.mul(c.convert<s16>(nodes[a]), s16(3))));
          hux::convert(x, wide), hux::mul(wide, s16(3), wide), hux::convert(wide, out);
          break;
        case 4:
          add(c.copy(nodes[a], nodes[b], nodes[0])), hux::copy(y, out), hux::copy(x, out, {images[0]});
          break;
        case 5:
          add(c.filter_box(nodes[a], window, {anchor, rule, value}));
          hux::filter_box(x, out, window, {anchor, rule, value});
          break;
        case 6:
          add(c.filter_min(nodes[a], window, {anchor, rule, value}));
          hux::filter_min(x, out, window, {anchor, rule, value});
          break;
        case 7:
          add(c.dilate3x3(nodes[a], {rule, value})), hux::dilate3x3(x, out, {rule, value});
          break;
        case 8:
          add(c.filter_median(nodes[a], {3, 5}, {.border = rule, .border_value = value}));
          hux::filter_median(x, out, {3, 5}, {.border = rule, .border_value = value});
          break;
        default:
          add(c.threshold_gt(nodes[a], u8(99))), hux::threshold_gt(x, u8(99), out);
      }
      images.push_back(out);
    }
    std::vector<image<u8, 1>> outputs;
    outputs.reserve(images.size());
    std::vector<std::size_t> wanted;
    for (std::size_t i = 0; i < nodes.size(); ++i)
      if (i + 1 == nodes.size() || random() % 3 == 0) {
        wanted.push_back(i);
        c.output(nodes[i], outputs.emplace_back(size));
      }
    for (int again = 0; again < 2; ++again) {
      const hux::running run = {int(random() % 4) + 1, int(random() % 9)};
      for (auto& out : outputs) hux::set(0, out);
      ASSERT_EQ(c.run(run), status::ok);
      for (std::size_t i = 0; i < wanted.size(); ++i)
        ASSERT_TRUE(equal(outputs[i], images[wanted[i]]))
            << "round " << round << ", node " << wanted[i] << ", " << size.width << " by " << size.height
            << ", threads " << run.threads << ", rows " << run.rows;
    }
  }
}

TEST(Chain, LayoutsOfAllKinds) {
  const hux::extent size = {29, 23};
  for (const hux::running& run : kRuns) {
    const auto a = noise<u8, 3>(size, 21);
    const auto b = noise<u8, 4>(size, 22), d = noise<u8, 4>(size, 23);
    const auto m = noise<u8, 1>(size, 24);
    image<u8, 3> merged(size), expected(size);
    image<u8, 4> mixed = b, expected_mixed = b, blended(size), expected_blended(size);
    std::array<image<u8, 1>, 3> plane = {image<u8, 1>(size), image<u8, 1>(size), image<u8, 1>(size)}, own = plane;
    const auto planes_of = [](std::array<image<u8, 1>, 3>& of) {
      return hux::planes<u8, 3>(std::array<hux::view<u8, 1>, 3>{of[0], of[1], of[2]});
    };
    hux::chain c;
    auto x = c.input(a);
    auto p = c.copy<hux::planar<3>>(x);
    c.output(p, planes_of(plane));
    // Planes are worked on one by one, with a window too, and put together in another order.
    auto red = c.filter_max(p.plane(0), {3, 3});
    auto three = c.planes(std::array{p.plane(2), red, c.copy<1>(x.channel(1))});
    c.output(c.copy<3>(three), merged);
    // Alpha stays as it is in an image of the caller's, also when a window reads what is written.
    auto y = c.input(b), z = c.input(d);
    auto t = c.add(y.colors(), z);
    c.output(t, mixed.colors());
    auto boxed = c.filter_box(t, {3, 3});
    c.output(c.alpha_comp(y.colors(), z, hux::alpha_type::over), blended.colors());
    image<u8, 3> gray(size), expected_gray(size);
    c.output(c.dup<3>(c.copy<1>(p.plane(1))), gray);
    image<u8, 1> kept = m, expected_kept = m;
    c.output(c.add(red, 1), kept, c.compare(c.input(m), u8(100), hux::cmp_op::greater));
    image<u8, 4> boxes = d, expected_boxes = d;
    c.output(boxed, boxes.colors());
    ASSERT_EQ(c.run(run), status::ok);

    hux::copy(a, planes_of(own));
    image<u8, 1> reds(size), mask(size);
    hux::filter_max(own[0], reds, {3, 3});
    std::array<image<u8, 1>, 3> order = {own[2], reds, own[1]};
    hux::copy(planes_of(order), expected);
    hux::add(b, d, expected_mixed.colors());
    hux::filter_box(expected_mixed, expected_boxes.colors(), {3, 3});
    hux::alpha_comp(b, d, expected_blended.colors(), hux::alpha_type::over);
    hux::dup(own[1], expected_gray);
    hux::compare(m, u8(100), mask, hux::cmp_op::greater);
    hux::add(reds, 1, reds);
    hux::copy(reds, expected_kept, {mask});
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(equal(plane[std::size_t(i)], own[std::size_t(i)]));
    EXPECT_TRUE(equal(merged, expected) && equal(mixed, expected_mixed) && equal(blended, expected_blended));
    EXPECT_TRUE(equal(gray, expected_gray) && equal(kept, expected_kept) && equal(boxes, expected_boxes));
  }
}

TEST(Chain, MeasuresAreThoseOfTheWholeImage) {
  const hux::extent size = {61, 47};
  for (const hux::running& run : kRuns) {
    const auto a = noise<s16, 3>(size, 31), b = noise<s16, 3>(size, 32);
    const auto f = noise<float, 1>(size, 33);
    const auto colours = noise<u8, 3>(size, 34);
    const std::array<std::int32_t, 5> levels = {-20000, -100, 0, 17, 30000};
    const std::array<float, 4> bounds = {-1000, -3, 5.5f, 900};
    std::array<double, 3> sum, mean, l1, inf, apart, farthest;
    std::array<int, 3> count;
    std::array<s16, 3> low, high;
    hux::min_max_result<s16, 3> both;
    hux::min_indx_result<u8, 1> first;
    hux::max_indx_result<s16, 3> last;
    hux::counts<3> bins;
    hux::counts<1> real;
    hux::even_histogram<3> even;
    // Few values, so that the least stands in many places.
    image<u8, 1> flat(size);
    for (int y = 0; y < size.height; ++y)
      for (int x = 0; x < size.width; ++x) *flat.at(x, y) = u8(3 + (x * 7 + y * 5) % 4);
    hux::chain c;
    auto x = c.filter_median(c.input(a), {3, 3});
    c.output(c.sum(x), sum);
    c.output(c.mean(x), mean);
    c.output(c.norm_l1(x), l1);
    c.output(c.norm_inf(x), inf);
    c.output(c.norm_diff_l1(x, c.input(b)), apart);
    c.output(c.norm_diff_inf(x, c.input(b)), farthest);
    c.output(c.count_in_range(c.input(colours), {50, 0, 3}, {90, 100, 4}), count);
    c.output(c.min(x), low);
    c.output(c.max(x), high);
    c.output(c.min_max(x), both);
    c.output(c.min_indx(c.input(flat)), first);
    c.output(c.max_indx(x), last);
    c.output(c.histogram(x, {levels, levels, levels}), bins);
    c.output(c.histogram(c.input(f), bounds), real);
    c.output(c.histogram_even(x, {7, 9, 3}, {-30000, 0, 5}, {30000, 1000, 9}), even);
    for (int again = 0; again < 2; ++again) {
      ASSERT_EQ(c.run(run), status::ok);
      image<s16, 3> median(size);
      hux::filter_median(a, median, {3, 3});
      EXPECT_EQ(sum, hux::sum(median));
      EXPECT_EQ(mean, hux::mean(median));
      EXPECT_EQ(l1, hux::norm_l1(median));
      EXPECT_EQ(inf, hux::norm_inf(median));
      EXPECT_EQ(apart, hux::norm_diff_l1(median, b));
      EXPECT_EQ(farthest, hux::norm_diff_inf(median, b));
      EXPECT_EQ(count, hux::count_in_range(colours, {50, 0, 3}, {90, 100, 4}));
      EXPECT_EQ(low, hux::min(median));
      EXPECT_EQ(high, hux::max(median));
      EXPECT_TRUE(both.min == low && both.max == high);
      const auto whole = hux::min_indx(flat);
      EXPECT_TRUE(first.min == whole.min && first.index_x == whole.index_x && first.index_y == whole.index_y);
      const auto greatest = hux::max_indx(median);
      EXPECT_TRUE(last.max == greatest.max && last.index_x == greatest.index_x && last.index_y == greatest.index_y);
      EXPECT_EQ(bins, hux::histogram(median, {levels, levels, levels}));
      EXPECT_EQ(real, hux::histogram(f, bounds));
      const auto evenly = hux::histogram_even(median, {7, 9, 3}, {-30000, 0, 5}, {30000, 1000, 9});
      EXPECT_TRUE(even.counts == evenly.counts && even.levels == evenly.levels);
    }
  }
  // Rows of words whose sums wrap; and one channel's mean.
  image<std::uint16_t, 1> bright(70000, 5);
  for (int y = 0; y < 5; ++y) std::fill_n(bright.row(y), 70000, std::uint16_t(65535));
  double sum = 0, mean = 0;
  hux::chain c;
  c.output(c.sum(c.input(bright)), sum);
  c.output(c.mean(c.input(bright)), mean);
  c.run({.rows = 2});
  EXPECT_EQ(sum, hux::sum(bright));
  EXPECT_EQ(mean, hux::mean(bright));
  EXPECT_NE(sum, 5.0 * 70000 * 65535);
}

TEST(Chain, OutputsOverInputs) {
  const hux::extent size = {33, 64};
  for (border rule : {border::replicate, border::reflect101, border::wrap})
    for (const hux::running& run : kRuns) {
      const auto a = noise<u8, 1>(size, 41);
      image<u8, 1> same = a, expected(size), other(size), t(size);
      hux::chain c;
      auto x = c.input(same);
      auto box = c.filter_box(x, {3, 9}, {.border = rule});
      c.output(c.add(c.erode3x3(box, {.border = rule}), x), same);
      c.output(c.sub(x, box), other);
      ASSERT_EQ(c.run(run), status::ok);
      hux::filter_box(a, t, {3, 9}, {.border = rule});
      hux::erode3x3(t, expected, {.border = rule});
      hux::add(expected, a, expected);
      hux::sub(a, t, t);
      EXPECT_TRUE(equal(same, expected) && equal(other, t)) << int(rule) << ", " << run.threads << ", " << run.rows;
    }
  // Neighbours in one image share nothing; rows that are shifted do.
  image<u8, 3> both(size);
  const auto left = both.roi(0, 0, 10, 64), right = both.roi(10, 0, 10, 64);
  auto outcome = [&](auto from, auto to) {
    hux::chain c;
    auto x = c.input(from);
    c.output(c.add(x, x), to);
    return c.try_run();
  };
  EXPECT_EQ(outcome(left, right), status::ok);
  EXPECT_EQ(outcome(right, left), status::ok);
  EXPECT_EQ(outcome(both.roi(0, 0, 10, 63), both.roi(0, 1, 10, 63)), status::bad_arg);
  EXPECT_EQ(outcome(both.roi(0, 1, 10, 63), both.roi(10, 0, 10, 63)), status::ok);
  EXPECT_EQ(outcome(both.roi(0, 0, 10, 64), both.roi(3, 0, 10, 64)), status::ok);  // the same rows
  hux::chain twice;
  auto x = twice.input(left);
  twice.output(twice.add(x, x), right);
  twice.output(twice.sub(x, x), both.roi(12, 0, 10, 64));
  EXPECT_EQ(twice.try_run(), status::bad_arg);
}

TEST(Chain, MemoryIsThatOfBandsAndMayRunOut) {
  const hux::extent size = {64, 6000};
  const auto a = noise<u8, 1>(size, 51);
  image<u8, 1> out(size), none(size), expected(size);
  int dark = -1;
  auto recorded = [&](hux::chain& c) {
    auto t = c.filter_box(c.add(c.input(a), 3), {5, 5});
    c.output(c.dilate3x3(c.sub(t, 9)), out);
    c.output(c.count_in_range(t, 0, 99), dark);
  };
  hux::chain c;
  recorded(c);
  const std::int64_t before = taken;
  EXPECT_EQ(c.run({.threads = 2, .rows = 16}), status::ok);
  EXPECT_LT(taken - before, 64 * 6000 / 10);
  expected = out;
  const std::int64_t again = taken;
  EXPECT_EQ(c.run({.rows = 16}), status::ok);
  EXPECT_EQ(c.run({.rows = 16}), status::ok);
  EXPECT_LT(taken - again, 64 * 6000 / 20);
  bool failed = true;
  for (int n = 0; failed; ++n) {
    hux::chain fresh;
    recorded(fresh);
    hux::copy(none, out);
    dark = -1;
    until_failure = n;
    const status outcome = fresh.try_run({.rows = 16});
    failed = until_failure < 0;
    until_failure = -1;
    EXPECT_EQ(outcome, failed ? status::no_mem : status::ok);
    EXPECT_TRUE(equal(out, failed ? none : expected));
    EXPECT_EQ(dark == -1, failed);
  }
}

}  // namespace
