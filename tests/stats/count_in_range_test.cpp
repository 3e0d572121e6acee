// CountInRange: against counting pixel by pixel.
#include <cmath>
#include <limits>

#include "huxi_stats.h"
#include "support/forms.h"

namespace hux::test {
namespace {

// Elements and bounds that often meet; floats with all that is special.
template <class T>
T anyElement(Rng& rng) {
  constexpr Hux32f some[] = {0, -0.0f, 1, 2, 3, 200, 255, -1, INFINITY, -INFINITY, NAN, 1e-40f};
  return T(some[rng() % (sizeof(T) == 1 ? 7 : 12)]);
}

using CountFn = HuxStatus(const void*, int, HuxiSize, void* counts, const void* lower, const void* upper);
struct Member : Form {
  CountFn* call;
};
#define MEMBER(t, l) Member{HUX_FORM(t, l), as<CountFn, huxiCountInRange_##t##_##l##R>},
const Member kMembers[] = {HUX_STAMP(MEMBER, (8u, 32f), (C1, C3, AC4))};

// An image and bounds of any elements, or bounds that hold every number.
template <class T>
void verify(const Member& f, Rng& rng, Image& image, int step) {
  image.fill<T>([&] { return anyElement<T>(rng); });
  const bool all = image.width() > 1000;
  T bounds[2][3];
  bool ordered = true;
  int expected[4] = {-1, -1, -1, -1}, counts[4] = {-1, -1, -1, -1};
  for (int c = 0; c < 3; ++c)
    for (int side = 0; side < 2; ++side)
      bounds[side][c] = all ? T(side ? 255 : std::numeric_limits<T>::lowest()) : anyElement<T>(rng);
  for (int c = 0; c < f.layout.touched; ++c) ordered &= !(bounds[0][c] > bounds[1][c]);
  for (int c = 0; c < f.layout.touched && ordered; ++c) {
    expected[c] = 0;
    forPixels(image.size(), [&](int x, int y) {
      const T p = valueAt<T>(image.bytes(x, 0) + y * std::ptrdiff_t(step / f.elementBytes * f.elementBytes) +
                             c * f.elementBytes);
      expected[c] += p >= bounds[0][c] && !(p > bounds[1][c]);
    });
  }
  const Image before = image;
  ASSERT_EQ(f.call(image.bytes(), step, image.size(), counts, bounds[0], bounds[1]),
            ordered ? huxStsOk : huxStsBadRange);
  for (int c = 0; c < 4; ++c)
    ASSERT_EQ(counts[c], expected[c]) << f.name << ", channel " << c << " of " << image.width() << " x "
                                      << image.height();
  ASSERT_TRUE(same(image, before));
}

TEST(CountInRange, EveryWidth) {
  Rng rng(1);
  for (const Member& f : kMembers) {
    // A step below an element is one of 0, where steps count elements.
    const auto run = [&](int width, int height, Place place) {
      Image image(rng, width, height, f.pixelBytes(), place);
      (f.elementBytes == 1 ? verify<Hux8u> : verify<Hux32f>)(f, rng, image, width % 7 == 0 ? 1 : image.step());
    };
    forShapes(rng, 300, run), forShapes(rng, 300, run);
    run(90000, 2, Place::kEnd);  // more than bytes can count
  }
}

TEST(CountInRange, ChecksInOrder) {
  Rng rng(2);
  const Image image(rng, 8, 4, 16);
  for (const Member& f : kMembers) {
    SCOPED_TRACE(f.name);
    alignas(4) Hux8u bounds[2][12] = {};
    const void *lower = bounds[0], *upper = bounds[1];
    Arguments a(image);
    a.d = image.bytes(0, 1);
    CheckOrder order([&] { return f.call(a.a, a.aStep, a.roi, a.d, lower, upper); });
    order.in(a, "ad");
    if (f.layout.stride > 1) order.nulls(lower, upper);
    order.in(a, "Az");
    for (int c = 0; c < f.layout.touched; ++c) order.breaks(huxStsBadRange, bounds[0][c * f.elementBytes], 1);
    order.run(image);
  }
}

}  // namespace
}  // namespace hux::test
