// The C++ front: the same bits as calls of C, sizes that are compared, exceptions and statuses.
#include <gtest/gtest.h>

#include <numeric>

#include "hux/hux.hpp"
#include "noise.h"

namespace {

using hux::equal;
using hux::image;
using hux::noise;
using hux::status;
using hux::view;
using u8 = std::uint8_t;
using s16 = std::int16_t;

TEST(Front, OperandsAreInTheUsualOrder) {
  const auto a = noise<u8, 3>(37, 5, 1), b = noise<u8, 3>(37, 5, 2);
  image<u8, 3> own(a.size()), c(a.size());
  hux::sub(a, b, own, {.shift = -1});
  huxiSub_8u_C3RSfs(b.data(), b.step(), a.data(), a.step(), c.data(), c.step(), c.size(), -1);
  EXPECT_TRUE(equal(own, c));

  const auto f = noise<float, 1>(9, 4, 3), g = noise<float, 1>(9, 4, 4);
  image<float, 1> quotient(9, 4);
  hux::div(f, g, quotient);
  EXPECT_EQ(quotient.at(3, 2)[0], f.at(3, 2)[0] / g.at(3, 2)[0]);
}

TEST(Front, TheDestinationAsASourceIsTheFormInPlace) {
  const auto a = noise<u8, 1>(40, 6, 5), b = noise<u8, 1>(40, 6, 6);
  image<u8, 1> plain(a.size());
  hux::sub(a, b, plain);
  image<u8, 1> first = a, second = b;
  hux::sub(first, b, first);  // huxiSub_8u_C1IRSfs
  EXPECT_TRUE(equal(first, plain));
  hux::add(a, second, second);
  hux::add(a, b, plain);
  EXPECT_TRUE(equal(second, plain));
  // A square root of four channels is there in place only.
  const auto f = noise<float, 4>(7, 3, 7);
  image<float, 4> root(7, 3), c = f;
  hux::sqrt(f, root);
  huxiSqrt_32f_C4IR(c.data(), c.step(), c.size());
  EXPECT_TRUE(equal(root, c));
}

TEST(Front, ConstantsAreOnePerProcessedChannel) {
  const auto a = noise<u8, 4>(21, 3, 8);
  image<u8, 4> own = a, c = a;
  const u8 values[3] = {10, 20, 30};
  hux::add(a, {10, 20, 30}, own.colors(), {.shift = 1});
  huxiAddC_8u_AC4RSfs(a.data(), a.step(), values, c.data(), c.step(), c.size(), 1);
  EXPECT_TRUE(equal(own, c));
  image<u8, 1> plane(5, 5);
  hux::set(7, plane);
  hux::mul(plane, 3, plane);
  EXPECT_EQ(*plane.at(4, 4), 21);
  // Complex values travel by value and by pointer.
  const auto z = noise<std::complex<float>, 1>(6, 2, 9);
  image<std::complex<float>, 1> product(6, 2);
  hux::mul(z, std::complex<float>(2, -1), product);
  EXPECT_EQ(*product.at(5, 1), *z.at(5, 1) * std::complex<float>(2, -1));
}

TEST(Front, LayoutsChangeAndMasksSelect) {
  const auto a = noise<s16, 3>(19, 4, 10);
  image<s16, 1> plane(a.size());
  image<s16, 3> back(a.size()), reversed(a.size());
  for (int c = 0; c < 3; ++c) {
    hux::copy(a.channel(c), plane);
    hux::copy(plane, back.channel(c));
    hux::copy(a.channel(c), reversed.channel(2 - c));
  }
  EXPECT_TRUE(equal(a, back));
  EXPECT_EQ(reversed.at(3, 1)[0], a.at(3, 1)[2]);

  image<s16, 1> planes[3] = {image<s16, 1>(19, 4), image<s16, 1>(19, 4), image<s16, 1>(19, 4)};
  const hux::planes<s16, 3> split({planes[0], planes[1], planes[2]});
  hux::copy(a, split);
  image<s16, 3> joined(a.size());
  hux::copy(split, joined);
  EXPECT_TRUE(equal(a, joined));

  image<u8, 1> mask(19, 4);
  *mask.at(7, 2) = 9;
  image<s16, 3> masked(a.size());
  hux::copy(a, masked, {.mask = mask});
  EXPECT_EQ(masked.at(7, 2)[1], a.at(7, 2)[1]);
  EXPECT_EQ(masked.at(8, 2)[1], 0);
  EXPECT_EQ(hux::nothrow::copy(a, masked, {.mask = mask.roi(0, 0, 5, 4)}), status::bad_size);
}

TEST(Front, TypesOfBothSidesChooseTheMember) {
  const auto f = noise<float, 1>(11, 3, 11);
  image<u8, 1> own(f.size()), c(f.size());
  image<float, 1> third(f.size());
  hux::div(f, 3.f, third);
  hux::convert(third, own, {.round = hux::round_mode::zero});
  huxiConvert_32f8u_C1R(third.data(), third.step(), c.data(), c.step(), c.size(), huxRndZero);
  EXPECT_TRUE(equal(own, c));
  hux::scale(f, own, 0, 250);
  huxiScale_32f8u_C1R(f.data(), f.step(), c.data(), c.step(), c.size(), 0, 250);
  EXPECT_TRUE(equal(own, c));
  hux::compare(f, 100.f, own, hux::cmp_op::greater);
  huxiCompareC_32f_C1R(f.data(), f.step(), 100, c.data(), c.step(), c.size(), huxCmpGreater);
  EXPECT_TRUE(equal(own, c));
}

// The pixel that a border rule takes, told by its picture.
int taken(int at, int n, hux::border rule) {
  switch (rule) {
    case hux::border::replicate:
      return std::clamp(at, 0, n - 1);
    case hux::border::constant:
      return at < 0 || at >= n ? -1 : at;
    case hux::border::wrap:
      while (at < 0) at += n;
      return at % n;
    default:
      break;
  }
  const int twice = rule == hux::border::reflect101;
  while (n > 1 && (at < 0 || at >= n)) at = at < 0 ? -at - 1 + twice : 2 * n - 1 - at - twice;
  return n == 1 ? 0 : at;
}

template <class T, int C, class Call>
void expectFramed(const image<T, C>& a, hux::border rule, hux::values<T, C> value, const image<T, C>& own,
                  Call&& call) {
  constexpr int kMargin = 9;
  image<T, C> framed(a.width() + 2 * kMargin, a.height() + 2 * kMargin);
  for (int y = 0; y < framed.height(); ++y)
    for (int x = 0; x < framed.width(); ++x) {
      const int fromX = taken(x - kMargin, a.width(), rule), fromY = taken(y - kMargin, a.height(), rule);
      for (int c = 0; c < C; ++c) framed.at(x, y)[c] = fromX < 0 || fromY < 0 ? value.data()[c] : a.at(fromX, fromY)[c];
    }
  image<T, C> expected(a.size());
  const auto middle = framed.roi(kMargin, kMargin, a.width(), a.height());
  EXPECT_EQ(call(middle.data(), middle.step(), expected.data(), expected.step(), expected.size()), huxStsOk);
  EXPECT_TRUE(equal(own, expected)) << "border " << int(rule) << ", " << a.width() << " by " << a.height();
}

TEST(Front, WindowsFrameTheirSource) {
  for (hux::border rule : {hux::border::replicate, hux::border::constant, hux::border::symmetric,
                           hux::border::reflect101, hux::border::wrap})
    for (hux::extent size : {hux::extent{17, 6}, hux::extent{1, 5}, hux::extent{3, 1}, hux::extent{1200, 1200}}) {
      const auto a = noise<u8, 3>(size.width, size.height, 12);
      image<u8, 3> own(size);
      hux::filter_box(a, own, {5, 4}, {.anchor = {0, 3}, .border = rule, .border_value = {1, 2, 200}});
      expectFramed(a, rule, {1, 2, 200}, own, [](auto... args) {
        return huxiFilterBox_8u_C3R(args..., {5, 4}, {0, 3});
      });
      // The source may be the destination: the frame is a copy.
      image<u8, 3> same = a;
      hux::filter_box(same, same, {5, 4}, {.anchor = {0, 3}, .border = rule, .border_value = {1, 2, 200}});
      EXPECT_TRUE(equal(own, same));

      // A kernel is turned around its anchor, and its middle is the anchor that is left out.
      std::array<std::int32_t, 8> taps;
      std::iota(taps.begin(), taps.end(), -2);
      const auto g = noise<u8, 1>(size.width, size.height, 13);
      image<u8, 1> filtered(size);
      hux::filter(g, filtered, {taps, {4, 2}}, {.divisor = 7, .border = rule});
      expectFramed(g, rule, 0, filtered, [&](auto... args) {
        return huxiFilter_8u_C1R(args..., taps.data(), {4, 2}, {2, 1}, 7);
      });

      const auto f = noise<float, 1>(size.width, size.height, 14);
      image<float, 1> sobel(size);
      hux::filter_sobel_vert(f, sobel, {.border = rule, .border_value = 3});
      expectFramed(f, rule, 3.f, sobel, [](auto... args) { return huxiFilterSobelVert_32f_C1R(args...); });
      image<float, 1> eroded(size);
      const std::array<u8, 6> cells = {1, 0, 1, 0, 1, 1};
      hux::erode(f, eroded, {cells, {3, 2}}, {.anchor = {2, 0}, .border = rule});
      expectFramed(f, rule, 0.f, eroded, [&](auto... args) {
        return huxiErode_32f_C1R(args..., cells.data(), {3, 2}, {2, 0});
      });
    }
}

TEST(Front, SurroundingsAreReadWhereTheCallerSaysSo) {
  const auto a = noise<u8, 1>(30, 20, 15);
  image<u8, 1> valid(26, 18), c(26, 18), whole = a, same = a;
  const auto middle = a.roi(2, 1, 26, 18);
  hux::filter_box(middle, valid, {5, 3}, {.border = hux::border::surroundings});
  huxiFilterBox_8u_C1R(middle.data(), middle.step(), c.data(), c.step(), c.size(), {5, 3}, {2, 1});
  EXPECT_TRUE(equal(valid, c));
  hux::filter_box(same.roi(2, 4, 20, 10), same.roi(2, 4, 20, 10), {5, 3}, {.border = hux::border::surroundings});
  huxiFilterBox_8u_C1IR(whole.at(2, 4), whole.step(), {20, 10}, {5, 3}, {2, 1});
  EXPECT_TRUE(equal(same, whole));
  // Bad windows are the callee's to judge.
  EXPECT_EQ(hux::nothrow::filter_box(a, whole, {0, 3}), status::bad_mask_size);
  EXPECT_EQ(hux::nothrow::filter_box(a, whole, {3, 3}, {.anchor = {3, 0}}), status::bad_anchor);
}

TEST(Front, MeasuresReturnNumbers) {
  const auto a = noise<u8, 4>(23, 7, 16);
  const auto [least, greatest] = hux::min_max(a);
  u8 lows[4], highs[4];
  huxiMinMax_8u_C4R(a.data(), a.step(), a.size(), lows, highs);
  EXPECT_TRUE(std::equal(least.begin(), least.end(), lows) && std::equal(greatest.begin(), greatest.end(), highs));
  const std::array<double, 3> sums = hux::sum(a.colors());
  double expected[3];
  huxiSum_8u_AC4R(a.data(), a.step(), a.size(), expected);
  EXPECT_TRUE(std::equal(sums.begin(), sums.end(), expected));

  const auto f = noise<float, 1>(23, 7, 17), g = noise<float, 1>(23, 7, 18);
  double relative;
  huxiNormRel_L2_32f_C1R(f.data(), f.step(), g.data(), g.step(), f.size(), &relative, huxHintAccurate);
  EXPECT_EQ(hux::norm_rel_l2(f, g, {.hint = huxHintAccurate}), relative);
  const hux::result<double> refused = hux::nothrow::norm_rel_l2(f, g.roi(0, 0, 5, 7));
  EXPECT_EQ(refused.status, status::bad_size);

  const std::array<std::int32_t, 4> levels = {0, 50, 60, 256};
  const auto counted = hux::histogram(a.channel(2).data() ? noise<u8, 1>(9, 9, 19) : image<u8, 1>(), levels);
  EXPECT_EQ(counted.size(), 3u);
  EXPECT_EQ(std::accumulate(counted.begin(), counted.end(), 0), 81);
  const auto even = hux::histogram_even(a.colors(), {4, 2, 1}, {0, 0, 0}, {256, 256, 256});
  EXPECT_EQ(even.counts[0].size(), 4u);
  EXPECT_EQ(even.levels[1], (std::vector<std::int32_t>{0, 128, 256}));
  EXPECT_EQ(even.counts[2][0], 23 * 7);

  image<u8, 3> mapped(4, 4);
  const std::array<std::int32_t, 2> from = {0, 256}, to = {7, 9};
  hux::lut(image<u8, 3>(4, 4), mapped, {to, to, to}, {from, from, from});
  EXPECT_EQ(mapped.at(3, 3)[2], 7);

  hux::moments own(f);
  HuxiMomentRecord_64f* record;
  huxiMomentInitAlloc_64f(&record, huxHintNone);
  huxiMoments64f_32f_C1R(f.data(), f.step(), f.size(), record);
  double value;
  huxiGetCentralMoment_64f(record, 2, 1, 0, &value);
  EXPECT_EQ(own.central(2, 1), value);
  huxiMomentFree_64f(record);
  EXPECT_THROW((void)own.spatial(2, 2), hux::error);
}

TEST(Front, GeometryTakesWholeImagesUnlessToldOtherwise) {
  const auto a = noise<u8, 3>(24, 16, 20);
  image<u8, 3> own(36, 40), c(36, 40);
  hux::resize(a, own, {.inter = hux::interpolation::cubic});
  huxiResize_8u_C3R(a.data(), a.size(), a.step(), {0, 0, 24, 16}, c.data(), c.step(), c.size(), 1.5, 2.5,
                    huxiInterCubic);
  EXPECT_TRUE(equal(own, c));
  hux::resize_sqr_pixel(a, own, 0.25, 0);
  int bytes;
  huxiResizeSqrPixelGetBufSize(c.size(), 3, huxiInterLinear, &bytes);
  std::vector<u8> buffer(static_cast<std::size_t>(bytes));
  huxiResizeSqrPixel_8u_C3R(a.data(), a.size(), a.step(), {0, 0, 24, 16}, c.data(), c.step(), {0, 0, 36, 40}, 1.5, 2.5,
                            0.25, 0, huxiInterLinear, buffer.data());
  EXPECT_TRUE(equal(own, c));
  const hux::matrix<2, 3> turned = {{{0.8, -0.4, 9}, {0.3, 0.9, 1}}};
  const double coeffs[2][3] = {{0.8, -0.4, 9}, {0.3, 0.9, 1}};
  hux::warp_affine(a, own, turned,
                   {.roi = {2, 3, 20, 12}, .dst_roi = {1, 1, 30, 30}, .inter = hux::interpolation::nearest});
  huxiWarpAffine_8u_C3R(a.data(), a.size(), a.step(), {2, 3, 20, 12}, c.data(), c.step(), {1, 1, 30, 30}, coeffs,
                        huxiInterNearest);
  EXPECT_TRUE(equal(own, c));
  const hux::quad corners = hux::get_affine_quad({0, 0, 24, 16}, turned);
  EXPECT_DOUBLE_EQ(corners[1][0], 0.8 * 23 + 9);
  image<u8, 3> across(16, 24);
  hux::transpose(a, across);
  EXPECT_EQ(across.at(5, 7)[1], a.at(7, 5)[1]);
  EXPECT_EQ(hux::nothrow::transpose(a, own), status::bad_size);
  EXPECT_EQ(hux::nothrow::cross_corr_valid_norm(noise<float, 1>(9, 9, 1), noise<float, 1>(3, 4, 1),
                                                image<float, 1>(6, 6).roi(0, 0, 6, 6)),
            status::bad_size);
}

TEST(Front, PlansTransformThereAndBack) {
  const auto a = noise<float, 3>(16, 8, 21);
  image<float, 3> spectrum(16, 8), c(16, 8), back(16, 8);
  hux::fft<float> plan({16, 8});
  plan.forward(a, spectrum);
  HuxiFFTRecord* record;
  huxiFFTInitAlloc_R_32f(&record, 4, 3, huxFftScaleInv, huxHintNone);
  huxiFFTFwd_RToPack_32f_C3R(a.data(), a.step(), c.data(), c.step(), record, nullptr);
  huxiFFTFree_R_32f(record);
  EXPECT_TRUE(equal(spectrum, c));
  std::vector<std::byte> buffer(static_cast<std::size_t>(plan.buffer_size()));
  plan.inverse(spectrum, back, {.buffer = buffer});
  plan.inverse(spectrum, spectrum);
  EXPECT_TRUE(equal(back, spectrum));
  EXPECT_NEAR(back.at(5, 5)[2], a.at(5, 5)[2], 1e-3);
  EXPECT_EQ(plan.try_forward(a, c.roi(0, 0, 8, 8)), status::bad_size);
  EXPECT_THROW(hux::fft<float>({15, 8}), hux::error);
  EXPECT_EQ(hux::nothrow::make<hux::fft<float>>(hux::extent{15, 8}).status, status::bad_order);
  static_assert(!std::is_copy_constructible_v<hux::fft<float>> &&
                std::is_nothrow_move_constructible_v<hux::fft<float>>);
  static_assert(!std::is_copy_constructible_v<hux::deconv_lr<1>> &&
                !std::is_copy_constructible_v<hux::moments<double>>);

  const auto bytes = noise<u8, 1>(15, 6, 22);
  image<std::int32_t, 1> packed(15, 6);
  image<u8, 1> again(15, 6);
  hux::dft<std::int32_t> exact({15, 6});
  exact.forward(bytes, packed, {.shift = -6});
  exact.inverse(packed, again, {.shift = 6});
  EXPECT_TRUE(equal(bytes, again));
  hux::dct cosine({16, 8});
  cosine.forward(a, c);
  cosine.inverse(c, c);
  EXPECT_NEAR(c.at(9, 1)[0], a.at(9, 1)[0], 1e-3);

  // With a wrapped border the bands of a wavelet are those of its source in a field of copies.
  const std::array<float, 4> low = {0.5f, 0.25f, -1, 2}, high = {-0.5f, 0.75f, 3, 1};
  const auto f = noise<float, 1>(12, 6, 23);
  image<float, 1> field(36, 18), bands[4], expected_bands[4], restored(12, 6), expected(12, 6);
  for (int y = 0; y < 18; y += 6)
    for (int x = 0; x < 36; x += 12) hux::copy(f, field.roi(x, y, 12, 6));
  for (auto* set : {bands, expected_bands})
    for (int i = 0; i < 4; ++i) set[i] = image<float, 1>(6, 3);
  hux::wavelet_forward<1> there({low, 1}, {high, 2});
  there.forward(f, {bands[0], bands[1], bands[2], bands[3]});
  there.forward(field.roi(12, 6, 12, 6), {expected_bands[0], expected_bands[1], expected_bands[2], expected_bands[3]},
                {.border = hux::border::surroundings});
  for (int i = 0; i < 4; ++i) EXPECT_TRUE(equal(bands[i], expected_bands[i])) << i;
  image<float, 1> fields[4];
  for (int i = 0; i < 4; ++i) {
    fields[i] = image<float, 1>(18, 9);
    for (int y = 0; y < 9; y += 3)
      for (int x = 0; x < 18; x += 6) hux::copy(bands[i], fields[i].roi(x, y, 6, 3));
  }
  hux::wavelet_inverse<1> home({low, 1}, {high, 2});
  home.inverse({bands[0], bands[1], bands[2], bands[3]}, restored);
  auto middle = [&](int i) { return fields[i].roi(6, 3, 6, 3); };
  home.inverse({middle(0), middle(1), middle(2), middle(3)}, expected, {.border = hux::border::surroundings});
  EXPECT_TRUE(equal(restored, expected));

  const std::array<float, 9> box = {1 / 9.f, 1 / 9.f, 1 / 9.f, 1 / 9.f, 1 / 9.f, 1 / 9.f, 1 / 9.f, 1 / 9.f, 1 / 9.f};
  hux::deconv_lr<1> sharper(box, 3, {14, 8}, 1e-4f);
  image<float, 1> own(12, 6);
  sharper.restore(f, own, 3);
  HuxiDeconvLRState* state;
  huxiDeconvLRInitAlloc_32f_C1R(&state, box.data(), 3, {14, 8}, 1e-4f);
  huxiDeconvLR_32f_C1R(f.data(), f.step(), expected.data(), expected.step(), f.size(), 3, state);
  huxiDeconvLRFree_32f_C1R(state);
  EXPECT_TRUE(equal(own, expected));
}

TEST(Front, LinesAndBlocksAndBits) {
  std::vector<s16> a = {1, 2, 30000}, b = {5, 6, 30000}, sum(3);
  hux::add(hux::line(a), hux::line(b), hux::line(sum), {.shift = 1});
  EXPECT_EQ(sum, (std::vector<s16>{3, 4, 30000}));
  EXPECT_EQ(hux::nothrow::add(hux::line(a), hux::line(b), hux::line(sum.data(), 2)), status::bad_size);
  std::vector<float> f = {3, 4};
  EXPECT_EQ(hux::norm_l2(hux::line(f)), 5);

  std::array<s16, 64> block = {}, zigzag = {};
  std::iota(block.begin(), block.end(), s16{0});
  hux::zigzag_fwd8x8(block, std::span(zigzag));
  EXPECT_EQ(zigzag[2], 8);

  const auto mask = noise<u8, 1>(13, 3, 24);
  image<u8, 1> packed(2, 3), own(13, 3);
  hux::pack_bits(mask, packed, 128);
  hux::unpack_bits(packed, own);
  EXPECT_EQ(*own.at(0, 0), *packed.at(0, 0) & 0x80 ? 255 : 0);
  EXPECT_EQ(hux::nothrow::unpack_bits(packed, own, {.offset = 4}), status::bad_size);
}

TEST(Front, ErrorsAreThrownAndWarningsReturned) {
  image<u8, 1> a(8, 8), b(7, 8);
  try {
    hux::add(a, b, a);
    FAIL() << "sizes differ";
  } catch (const hux::error& refused) {
    EXPECT_EQ(refused.code(), status::bad_size);
    EXPECT_NE(std::string(refused.what()).find("hux::add: bad_size"), std::string::npos);
  }
  image<s16, 1> c(8, 8);
  hux::set(-1, c);
  EXPECT_EQ(hux::sqrt(c, c), status::sqrt_neg_warn);
  EXPECT_EQ(hux::nothrow::add(view<const u8, 1>(), view<const u8, 1>(), view<u8, 1>()), status::null_ptr);
  EXPECT_THROW((void)a.roi(1, 0, 8, 8), std::out_of_range);
}

TEST(Front, ImagesOwnTheirPixels) {
  image<u8, 3> a = noise<u8, 3>(9, 4, 25), copy = a;
  copy.at(2, 2)[1] ^= 1;
  EXPECT_FALSE(equal(a, copy));
  const u8* pixels = a.data();
  image<u8, 3> moved = std::move(a);
  EXPECT_EQ(moved.data(), pixels);
  EXPECT_TRUE(a.empty());
  a = copy;
  EXPECT_TRUE(equal(a, copy));
  EXPECT_EQ((image<double, 3>(5, 2).at(4, 1)[2]), 0);
  EXPECT_THROW((image<u8, 1>(-1, 2)), std::length_error);
  static_assert(std::is_convertible_v<const image<u8, 3>&, view<const u8, 3>>);
  static_assert(!std::is_convertible_v<const image<u8, 3>&, view<u8, 3>>);
}

}  // namespace
