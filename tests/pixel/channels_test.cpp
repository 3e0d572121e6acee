// Dup and SwapChannels: which source channel each destination channel takes.
#include "huxi_pixel.h"

#include <array>

#include "support/forms.h"

namespace hux::test {
namespace {

constexpr auto dup = erased<huxiDup_8u_C1C3R>;

TEST(Dup, RepeatsEachElement) {
  Rng rng(1);
  forShapes(rng, 400, [&](int width, int height, Place place) {
    for (Walk srcWalk : {Walk::kDown, Walk::kUp, Walk::kStay})
      for (Walk dstWalk : {Walk::kDown, Walk::kUp}) {
        const Image src(rng, width, height, 1, place), dst(rng, width, height, 3, place), expected = dst;
        const View from(src, srcWalk), to(dst, dstWalk), wanted(expected, dstWalk);
        for (int y = 0; y < height; ++y)
          for (int x = 0; x < width; ++x) std::fill_n(wanted.at(x, y), 3, *from.at(x, y));
        ASSERT_EQ(dup(from.first, from.step, to.first, to.step, src.size()), huxStsOk);
        ASSERT_TRUE(same(dst, expected));
      }
  });
}

TEST(Dup, ChecksPointersThenSizeAndNoSteps) {
  Rng rng(2);
  const Image image(rng, 4, 4, 3);
  const void* src = image.bytes();
  void* dst = image.bytes();
  HuxiSize roi = {1, 1};
  CheckOrder([&] { return dup(src, -1, dst, 0, roi); })
      .breaks(huxStsNullPtr, src, nullptr)
      .breaks(huxStsNullPtr, dst, nullptr)
      .breaks(huxStsBadSize, roi.width, -1)
      .breaks(huxStsBadSize, roi.height, 0)
      .run(image);
}

// Members take the order as any three channel numbers; the in-place one reads a pixel as a whole before it writes.
using SwapFn = HuxStatus (*)(const void*, int, void*, int, HuxiSize, const void*);
struct SwapForm : Form {
  SwapFn swap;
  bool inPlace = false;
};

#define FORM(t, l) SwapForm{HUX_FORM(t, l), erased<huxiSwapChannels_##t##_##l##R>},

std::vector<SwapForm> forms() {
  const SwapFn inPlace = [](const void*, int, void* dst, int dstStep, HuxiSize roi, const void* order) {
    return huxiSwapChannels_8u_C3IR(static_cast<Hux8u*>(dst), dstStep, roi, static_cast<const int*>(order));
  };
  return {
    HUX_STAMP(FORM, (8u, 16u, 32s, 32f), (C3, AC4))
    SwapForm { {"8u_C3 in place", 1, C3}, inPlace, true }
  };
}

TEST(SwapChannels, EachChannelTakesTheOneNamed) {
  Rng rng(3);
  int order = 0;
  for (const SwapForm& f : forms()) {
    SCOPED_TRACE(f.name);
    for (int round = 0; round < 3; ++round)
      forShapes(rng, 300, [&](int width, int height, Place place) {
        order = (order + 1) % 27;
        const int channels[3] = {order / 9, order / 3 % 3, order % 3};
        const Image src(rng, width, height, f.pixelBytes(), place);
        const Image dst = f.inPlace ? src : Image(rng, width, height, f.pixelBytes(), place), expected = dst;
        for (int y = 0; y < height; ++y)
          for (int x = 0; x < width; ++x)
            for (int c = 0; c < 3; ++c)
              std::memcpy(expected.bytes(x, y) + c * f.elementBytes, src.bytes(x, y) + channels[c] * f.elementBytes,
                          std::size_t(f.elementBytes));
        ASSERT_EQ(f.swap(src.bytes(), src.step(), dst.bytes(), dst.step(), src.size(), channels), huxStsOk);
        ASSERT_TRUE(same(dst, expected)) << "order " << channels[0] << channels[1] << channels[2];
      });
  }
}

TEST(SwapChannels, ChecksPointersSizeStepsChannels) {
  Rng rng(4);
  const Image image(rng, 4, 4, 16);
  for (const SwapForm& f : forms()) {
    SCOPED_TRACE(f.name);
    int channels[3] = {2, 0, 1};
    const void *src = image.bytes(), *order = channels;
    void* dst = image.bytes();
    int srcStep = image.step(), dstStep = image.step();
    HuxiSize roi = {1, 2};
    CheckOrder check([&] { return f.swap(src, srcStep, dst, dstStep, roi, order); });
    if (!f.inPlace) check.breaks(huxStsNullPtr, src, nullptr);
    check.breaks(huxStsNullPtr, dst, nullptr).breaks(huxStsNullPtr, order, nullptr);
    check.breaks(huxStsBadSize, roi.width, 0).breaks(huxStsBadSize, roi.height, 0);
    if (!f.inPlace) check.breaks(huxStsBadStep, srcStep, 0);
    check.breaks(huxStsBadStep, dstStep, 0);
    for (int& channel : channels)
      check.breaks(huxStsBadChannelOrder, channel, 3).breaks(huxStsBadChannelOrder, channel, -1);
    check.run(image);
  }
}

}  // namespace
}  // namespace hux::test
