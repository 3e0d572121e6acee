// Transpose, out of place and in place.
#include "huxi_pixel.h"

#include "support/forms.h"

namespace hux::test {
namespace {

using TransposeFn = HuxStatus (*)(const void*, int, void*, int, HuxiSize);
using InPlaceFn = HuxStatus (*)(void*, int, HuxiSize);

struct TransposeForm : Form {
  TransposeFn transpose;
  InPlaceFn inPlace;
};

#define FORM(t, l) \
  TransposeForm{HUX_FORM(t, l), erased<huxiTranspose_##t##_##l##R>, erased<huxiTranspose_##t##_##l##IR>},

std::vector<TransposeForm> forms() {
  return { HUX_STAMP(FORM, (8u, 16u, 32s), (C1, C3, C4)) };
}

void transposed(const Form& f, HuxiSize roi, const View& src, const View& dst) {
  movePixels(
      f, roi, [&](int x, int y) { return dst.at(y, x); }, [&](int x, int y) { return src.at(x, y); });
}

// Every length up to some more than two blocks stands in either direction, the other one is any; then a few of several
// blocks.
template <class Body>
void forSizes(Rng& rng, Body body) {
  for (int length = 1; length <= 140; ++length) {
    const int other = between(rng, 1, 140);
    length % 2 ? body(length, other) : body(other, length);
  }
  for (int k = 0; k < 5; ++k) body(between(rng, 1, 300), between(rng, 1, 300));
}

TEST(Transpose, ColumnsBecomeRows) {
  Rng rng(1);
  for (const TransposeForm& f : forms()) {
    SCOPED_TRACE(f.name);
    forSizes(rng, [&](int width, int height) {
      const Place place = Place(between(rng, 0, 2));
      const Image src(rng, width, height, f.pixelBytes(), place), dst(rng, height, width, f.pixelBytes(), place);
      const Image expected = dst;
      const Walk dstWalk = anyWalk(rng, Walk::kUp);
      const View from(src, anyWalk(rng, Walk::kStay)), to(dst, dstWalk);
      transposed(f, src.size(), from, View(expected, dstWalk));
      ASSERT_EQ(f.transpose(from.first, from.step, to.first, to.step, src.size()), huxStsOk);
      ASSERT_TRUE(same(dst, expected));
    });
  }
}

TEST(Transpose, InPlacePixelsChangePlacesAcrossTheDiagonal) {
  Rng rng(2);
  for (const TransposeForm& f : forms()) {
    SCOPED_TRACE(f.name);
    forSizes(rng, [&](int size, int) {
      const Image before(rng, size, size, f.pixelBytes(), Place(between(rng, 0, 2))), image = before, expected = before;
      const Walk walk = anyWalk(rng, Walk::kUp);
      const View view(image, walk);
      transposed(f, before.size(), View(before, walk), View(expected, walk));
      ASSERT_EQ(f.inPlace(view.first, view.step, before.size()), huxStsOk);
      ASSERT_TRUE(same(image, expected));
    });
  }
}

TEST(Transpose, ChecksPointersThenSizeAndNoSteps) {
  Rng rng(3);
  const Image image(rng, 4, 4, 16);
  for (const TransposeForm& f : forms()) {
    SCOPED_TRACE(f.name);
    const void* src = image.bytes();
    void* dst = image.bytes();
    HuxiSize roi = {1, 1};
    CheckOrder([&] { return f.inPlace(dst, 0, roi); })
        .breaks(huxStsNullPtr, dst, nullptr)
        .breaks(huxStsBadSize, roi, {0, 0})
        .breaks(huxStsBadSize, roi, {-3, -3})
        .breaks(huxStsBadSize, roi, {1, 2})
        .breaks(huxStsBadSize, roi, {2, 1})
        .run(image);
    CheckOrder([&] { return f.transpose(src, -1, dst, 0, roi); })
        .breaks(huxStsNullPtr, src, nullptr)
        .breaks(huxStsNullPtr, dst, nullptr)
        .breaks(huxStsBadSize, roi.width, 0)
        .breaks(huxStsBadSize, roi.height, -1)
        .run(image);
  }
}

}  // namespace
}  // namespace hux::test
