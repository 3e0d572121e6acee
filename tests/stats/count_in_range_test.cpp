// CountInRange: against counting pixel by pixel.
#include <cmath>
#include <limits>

#include "core/stamp.h"
#include "huxi_stats.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {
namespace {

// Elements and bounds that often meet; floats with all that is special.
template <class T>
T anyElement(Rng& rng) {
  constexpr Hux32f some[] = {0, -0.0f, 1, 2, 3, 200, 255, -1, INFINITY, -INFINITY, NAN, 1e-40f};
  return T(some[rng() % (sizeof(T) == 1 ? 7 : 12)]);
}

struct Form {
  std::string name;
  int bytes, channels, colours;
  HuxStatus (*call)(const void*, int, HuxiSize, int*, const void* lower, const void* upper);
  void (*verify)(const Form&, Rng&, Image&, int step);
};

// An image and bounds of any elements, or bounds that hold every number.
template <class T>
void verify(const Form& f, Rng& rng, Image& image, int step) {
  image.fill<T>([&] { return anyElement<T>(rng); });
  const bool all = image.width() > 1000;
  T bounds[2][3];
  bool ordered = true;
  int expected[4] = {-1, -1, -1, -1}, counts[4] = {-1, -1, -1, -1};
  for (int c = 0; c < 3; ++c)
    for (int side = 0; side < 2; ++side)
      bounds[side][c] = all ? T(side ? 255 : std::numeric_limits<T>::lowest()) : anyElement<T>(rng);
  for (int c = 0; c < f.colours; ++c) ordered &= !(bounds[0][c] > bounds[1][c]);
  for (int c = 0; c < f.colours && ordered; ++c) {
    expected[c] = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) {
        T p;
        std::memcpy(&p, image.bytes(x, 0) + y * std::ptrdiff_t(step / f.bytes * f.bytes) + c * f.bytes, sizeof p);
        expected[c] += p >= bounds[0][c] && !(p > bounds[1][c]);
      }
  }
  const Image before = image;
  ASSERT_EQ(f.call(image.bytes(), step, image.size(), counts, bounds[0], bounds[1]),
            ordered ? huxStsOk : huxStsBadRange);
  for (int c = 0; c < 4; ++c)
    ASSERT_EQ(counts[c], expected[c]) << f.name << ", channel " << c << " of " << image.width() << " x "
                                      << image.height();
  ASSERT_TRUE(same(image, before));
}

#define FORM(t, l, c, p, ...)                                                                                  \
  Form {                                                                                                       \
#t "_" #l, sizeof(Hux##t), c, p,                                                                             \
        [](const void* src, int step, HuxiSize roi, int* counts, const void* low, const void* high) {            \
          const auto *lower = static_cast<const Hux##t*>(low), *upper = static_cast<const Hux##t*>(high);        \
          return huxiCountInRange_##t##_##l##R(static_cast<const Hux##t*>(src), step, roi, counts, __VA_ARGS__); \
        },                                                                                                       \
        verify<Hux##t> \
  }
#define FORMS(t) FORM(t, C1, 1, 1, *lower, *upper), FORM(t, C3, 3, 3, lower, upper), FORM(t, AC4, 4, 3, lower, upper)
const Form kForms[] = {FORMS(8u), FORMS(32f)};

TEST(CountInRange, EveryWidth) {
  Rng rng(1);
  for (const Form& f : kForms) {
    // A step below an element is one of 0, where steps count elements.
    const auto run = [&](int width, int height, Place place) {
      Image image(rng, width, height, f.bytes * f.channels, place);
      f.verify(f, rng, image, width % 7 == 0 ? 1 : image.step());
    };
    forShapes(rng, 300, run), forShapes(rng, 300, run);
    run(90000, 2, Place::kEnd);  // more than bytes can count
  }
}

TEST(CountInRange, ChecksInOrder) {
  Rng rng(2);
  const Image image(rng, 8, 4, 16);
  for (const Form& f : kForms) {
    SCOPED_TRACE(f.name);
    alignas(4) Hux8u bounds[2][12] = {};
    const void *src = image.bytes(), *lower = bounds[0], *upper = bounds[1];
    int* counts = reinterpret_cast<int*>(image.bytes(0, 1));
    int step = 16;
    HuxiSize roi = {1, 1};
    CheckOrder order([&] { return f.call(src, step, roi, counts, lower, upper); });
    order.breaks(huxStsNullPtr, src, nullptr).breaks(huxStsNullPtr, counts, nullptr);
    if (f.channels > 1) order.breaks(huxStsNullPtr, lower, nullptr).breaks(huxStsNullPtr, upper, nullptr);
    order.breaks(huxStsBadStep, step, 0).breaks(huxStsBadSize, roi.width, 0).breaks(huxStsBadSize, roi.height, -3);
    for (int c = 0; c < f.colours; ++c) order.breaks(huxStsBadRange, bounds[0][c * f.bytes], 1);
    order.run(image);
  }
}

}  // namespace
}  // namespace hux::test
