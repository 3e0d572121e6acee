// Set in all its forms: the bits of the constant in the elements that the form touches, and no other byte.
#include "huxi_pixel.h"

#include <array>

#include "support/forms.h"

namespace hux::test {
namespace {

using SetFn = HuxStatus (*)(const void*, void*, int, HuxiSize);
using MaskedFn = HuxStatus (*)(const void*, void*, int, HuxiSize, const void*, int);

struct SetForm : Form {
  bool byValue;
  SetFn set = nullptr;
  MaskedFn masked = nullptr;
};

#define VALUE(t, l) SetForm{HUX_FORM(t, l), true, erasedValue<huxiSet_##t##_##l##R>},
#define ARRAY(t, l) SetForm{HUX_FORM(t, l), false, erased<huxiSet_##t##_##l##R>},
#define MASKED_VALUE(t, l) SetForm{HUX_FORM(t, l), true, nullptr, erasedValue<huxiSet_##t##_##l##MR>},
#define MASKED_ARRAY(t, l) SetForm{HUX_FORM(t, l), false, nullptr, erased<huxiSet_##t##_##l##MR>},

std::vector<SetForm> forms() {
  return {
    HUX_STAMP(VALUE, (8u, 16s, 32s, 32f), (C1, C3C, C4C))
    HUX_STAMP(ARRAY, (8u, 16s, 32s, 32f), (C3, C4, AC4))
    HUX_STAMP(MASKED_VALUE, (8u, 16s, 32s, 32f), (C1))
    HUX_STAMP(MASKED_ARRAY, (8u, 16s, 32s, 32f), (C3, C4, AC4))
  };
}

TEST(Set, WritesTheBitsOfTheConstant) {
  Rng rng(1);
  // What a conversion or a comparison of floats would change: NaNs with a payload, signalling ones, the negative zero.
  constexpr std::array<Hux32u, 4> fragile = {0x7f800001, 0xffc12345, 0x80000000, 0x00000001};
  for (const SetForm& f : forms()) {
    SCOPED_TRACE(f.name + (f.masked ? " masked" : ""));
    forShapes(rng, 300, [&](int width, int height, Place place) {
      Image value(rng, f.layout.touched, 1, f.elementBytes, place);
      if (f.elementBytes == 4 && between(rng, 0, 1))
        value.fill<Hux32u>([&] { return fragile[std::size_t(between(rng, 0, 3))]; });
      const Image dst = touchedImage(rng, width, height, f.layout, f.elementBytes, place), expected = dst;
      const Image mask = randomMask(rng, width, height, place);
      for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
          if (f.set || mask.get<Hux8u>(x, y) != 0)
            std::memcpy(expected.bytes(x * f.pixelBytes(), y), value.bytes(), f.touchedBytes());
      const HuxiSize roi = {width, height};
      ASSERT_EQ(f.set ? f.set(value.bytes(), dst.bytes(), dst.step(), roi)
                      : f.masked(value.bytes(), dst.bytes(), dst.step(), roi, mask.bytes(), mask.step()),
                huxStsOk);
      ASSERT_TRUE(same(dst, expected));
    });
  }
}

TEST(Set, ChecksPointersSizeSteps) {
  Rng rng(2);
  const Image image(rng, 4, 4, 16);
  for (const SetForm& f : forms()) {
    SCOPED_TRACE(f.name + (f.masked ? " masked" : ""));
    const void *value = image.bytes(), *mask = image.bytes();
    void* dst = image.bytes();
    int dstStep = image.step(), maskStep = 1;
    HuxiSize roi = {1, 2};
    CheckOrder order(
        [&] { return f.set ? f.set(value, dst, dstStep, roi) : f.masked(value, dst, dstStep, roi, mask, maskStep); });
    if (!f.byValue) order.breaks(huxStsNullPtr, value, nullptr);
    order.breaks(huxStsNullPtr, dst, nullptr);
    if (f.masked) order.breaks(huxStsNullPtr, mask, nullptr);
    order.breaks(huxStsBadSize, roi.width, 0).breaks(huxStsBadSize, roi.height, -1);
    order.breaks(huxStsBadStep, dstStep, 0).breaks(huxStsBadStep, dstStep, -image.step());
    if (f.masked) order.breaks(huxStsBadStep, maskStep, 0).breaks(huxStsBadStep, maskStep, -1);
    order.run(image);
  }
}

}  // namespace
}  // namespace hux::test
