// Set in all its forms: the bits of the constant in the elements that the form touches, and no other byte.
#include "huxi_pixel.h"

#include <array>

#include "support/forms.h"

namespace hux::test {
namespace {

using SetFn = HuxStatus(const void* value, void*, int, HuxiSize, const void* mask, int maskStep);
struct SetForm : Form {
  bool byValue, masked;
  SetFn* set;
};
#define PLAIN(t, l) SetForm{HUX_FORM(t, l), l.touched == 1, false, as<SetFn, huxiSet_##t##_##l##R>},
#define MASKED(t, l) SetForm{HUX_FORM(t, l), l.touched == 1, true, as<SetFn, huxiSet_##t##_##l##MR>},
std::vector<SetForm> forms() {
  return {
    HUX_STAMP(PLAIN, (8u, 16s, 32s, 32f), (C1, C3C, C4C, C3, C4, AC4))
    HUX_STAMP(MASKED, (8u, 16s, 32s, 32f), (C1, C3, C4, AC4))
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
      forPixels({width, height}, [&](int x, int y) {
        if (!f.masked || mask.get<Hux8u>(x, y) != 0)
          std::memcpy(expected.bytes(x * f.pixelBytes(), y), value.bytes(), f.touchedBytes());
      });
      const HuxiSize roi = {width, height};
      ASSERT_EQ(f.set(value.bytes(), dst.bytes(), dst.step(), roi, mask.bytes(), mask.step()), huxStsOk);
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
    CheckOrder order([&] { return f.set(value, dst, dstStep, roi, mask, maskStep); });
    if (!f.byValue) order.nulls(value);
    order.nulls(dst);
    if (f.masked) order.nulls(mask);
    order.sizes(roi).steps(dstStep);
    if (f.masked) order.steps(maskStep);
    order.run(image);
  }
}

}  // namespace
}  // namespace hux::test
