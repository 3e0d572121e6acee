// Mirror about each axis, out of place and in place.
#include "huxi_pixel.h"

#include "support/forms.h"

namespace hux::test {
namespace {

using MirrorFn = HuxStatus (*)(const void*, int, void*, int, HuxiSize, HuxiAxis);
using InPlaceFn = HuxStatus (*)(void*, int, HuxiSize, HuxiAxis);

struct MirrorForm : Form {
  MirrorFn mirror;
  InPlaceFn inPlace;
};

#define FORM(t, l) MirrorForm{HUX_FORM(t, l), erased<huxiMirror_##t##_##l##R>, erased<huxiMirror_##t##_##l##IR>},

std::vector<MirrorForm> forms() {
  return { HUX_STAMP(FORM, (8u, 16u, 32s), (C1, C3, C4, AC4)) };
}

// In place, a pixel's partner is read before it is overwritten, and alpha does not move with its pixel.
TEST(Mirror, PixelsChangePlacesAboutTheAxis) {
  Rng rng(1);
  for (const MirrorForm& f : forms())
    for (HuxiAxis axis : {huxAxsHorizontal, huxAxsVertical, huxAxsBoth}) {
      SCOPED_TRACE(f.name + " axis " + std::to_string(axis));
      forShapes(rng, 300, [&](int width, int height, Place place) {
        const Image src(rng, width, height, f.pixelBytes(), place), dst(rng, width, height, f.pixelBytes(), place);
        const Walk srcWalk = anyWalk(rng, Walk::kStay), dstWalk = anyWalk(rng, Walk::kUp);
        const auto expect = [&](const Image& image, const View& from) {
          const View to(image, dstWalk);
          movePixels(
              f, src.size(), [&](int x, int y) { return to.at(x, y); },
              [&](int x, int y) {
                return from.at(axis == huxAxsHorizontal ? x : width - 1 - x,
                               axis == huxAxsVertical ? y : height - 1 - y);
              });
        };
        const Image expected = dst;
        const View from(src, srcWalk), to(dst, dstWalk);
        expect(expected, from);
        ASSERT_EQ(f.mirror(from.first, from.step, to.first, to.step, src.size(), axis), huxStsOk);
        ASSERT_TRUE(same(dst, expected));

        const Image image = src, exchanged = src;
        const View both(image, dstWalk);
        expect(exchanged, View(src, dstWalk));
        ASSERT_EQ(f.inPlace(both.first, both.step, src.size(), axis), huxStsOk);
        ASSERT_TRUE(same(image, exchanged)) << "in place";
      });
    }
}

TEST(Mirror, ChecksPointersSizeAxisAndNoSteps) {
  Rng rng(2);
  const Image image(rng, 4, 4, 16);
  for (const MirrorForm& f : forms()) {
    SCOPED_TRACE(f.name);
    const void* src = image.bytes();
    void* dst = image.bytes();
    HuxiSize roi = {1, 1};
    HuxiAxis axis = huxAxsBoth;
    CheckOrder([&] { return f.inPlace(dst, 0, roi, axis); })
        .breaks(huxStsNullPtr, dst, nullptr)
        .breaks(huxStsBadSize, roi.width, -1)
        .breaks(huxStsBadSize, roi.height, 0)
        .breaks(huxStsBadAxis, axis, 3)
        .breaks(huxStsBadAxis, axis, -1)
        .run(image);
    CheckOrder([&] { return f.mirror(src, 0, dst, -1, roi, axis); })
        .breaks(huxStsNullPtr, src, nullptr)
        .breaks(huxStsNullPtr, dst, nullptr)
        .breaks(huxStsBadSize, roi.width, 0)
        .breaks(huxStsBadSize, roi.height, -1)
        .breaks(huxStsBadAxis, axis, 3)
        .breaks(huxStsBadAxis, axis, -1)
        .run(image);
  }
}

}  // namespace
}  // namespace hux::test
