// ImageRamp and ImageJaehne against their definitions, pixel by pixel.
#include "huxi_pixel.h"

#include <cmath>
#include <functional>
#include <limits>

#include "support/forms.h"

namespace hux::test {
namespace {

template <class T>
T rampElement(Hux32f v) {
  using Limits = std::numeric_limits<T>;
  if constexpr (!Limits::is_integer) return v;
  if (v >= Hux32f(Limits::max() - 0.5)) return Limits::max();
  if (!(v >= Hux32f(Limits::min()))) return Limits::min();
  return T(Limits::is_signed && !(v > 0) ? v - 0.5f : v + 0.5f);
}
template <class T>
T chirpElement(Hux64f s) {
  if (!std::numeric_limits<T>::is_integer) return T((s + 1.0) * 0.49999);
  const Hux64f scale = sizeof(T) == 1 ? 127.99999 : sizeof(T) == 2 ? 32767.99999 : 2147483647.99999;
  return T(std::numeric_limits<T>::is_signed ? s * scale : (s + 1.0) * scale);
}
template <class T>
void store(std::byte* to, T element) {
  std::memcpy(to, &element, sizeof element);
}

struct DrawForm : Form {
  HuxStatus (*ramp)(void*, int, HuxiSize, Hux32f, Hux32f, HuxiAxis);
  HuxStatus (*jaehne)(void*, int, HuxiSize);
  bool integer() const { return type != Number::k32f; }
  Hux32f range() const {
    return withType(type, []<class T>(T) {
      return Hux32f(std::numeric_limits<T>::is_integer ? std::numeric_limits<T>::max() : T(1e6));
    });
  }
  void storeRamp(std::byte* to, Hux32f v) const {
    withType(type, [&]<class T>(T) { store(to, rampElement<T>(v)); });
  }
  void storeChirp(std::byte* to, Hux64f s) const {
    withType(type, [&]<class T>(T) { store(to, chirpElement<T>(s)); });
  }
  // What the definition leaves in memory, row after row.
  void draw(const Image& image, HuxiSize roi, int step,
            std::function<void(std::byte*, int x, int y)> storePixel) const {
    forElements(roi, layout.touched, [&](int x, int y, int c) {
      storePixel(image.bytes() + std::ptrdiff_t(y) * step + (std::ptrdiff_t(x) * layout.stride + c) * elementBytes, x,
                 y);
    });
  }
};
#define FORM(t, l) DrawForm{HUX_FORM(t, l), erased<huxiImageRamp_##t##_##l##R>, erased<huxiImageJaehne_##t##_##l##R>},
std::vector<DrawForm> forms() {
  return { HUX_STAMP(FORM, (8u, 8s, 16u, 16s, 32s, 32f), (C1, C3, C4, AC4)) };
}

Hux32f rampValue(HuxiAxis axis, int x, int y, Hux32f offset, Hux32f slope) {
  const std::int64_t c = axis == huxAxsHorizontal ? x : axis == huxAxsVertical ? y : std::int64_t(x) * y;
  return Hux32f(c) * slope + offset;
}

// Shapes of all widths, and now and then with rows that overlap.
template <class Body>
void forDrawings(Rng& rng, const DrawForm& f, Body body) {
  SCOPED_TRACE(f.name);
  forShapes(rng, 300, [&](int width, int height, Place place) {
    const Image dst = touchedImage(rng, width, height, f.layout, f.elementBytes, place), expected = dst;
    body(dst, expected, width % 5 == 0 ? between(rng, 1, dst.step()) : dst.step(), HuxiSize{width, height});
    ASSERT_TRUE(same(dst, expected)) << width << " x " << height;
  });
}

TEST(ImageRamp, FollowsTheDefinition) {
  Rng rng(1);
  constexpr Hux32f inf = std::numeric_limits<Hux32f>::infinity(), nan = std::numeric_limits<Hux32f>::quiet_NaN();
  constexpr Hux32f special[] = {0, -0.0f, 0.49999997f, -0.49999997f, -1.5f, inf, -inf, nan};
  for (const DrawForm& f : forms())
    forDrawings(rng, f, [&](const Image& dst, const Image& expected, int step, HuxiSize roi) {
      // Through the range and out of it; in halves about its ends; and, on integers, what is no number. (Of two NaN
      // that are added, a float may get either.)
      const int kind = between(rng, 0, f.integer() ? 2 : 1);
      const HuxiAxis axis = between(rng, -1, 3);
      const Hux32f end = Hux32f(between(rng, -1, 1)) * f.range();
      const Hux32f slope = kind == 2   ? special[rng() % 8]
                           : kind == 1 ? 0.5f
                                       : std::ldexp(f.range(), between(rng, -9, 0)) / 3;
      const Hux32f offset = kind == 2 ? special[rng() % 8] : end - slope * Hux32f(between(rng, 0, roi.width));
      if (axis >= 0 && axis <= 2)
        f.draw(expected, roi, step - step % f.elementBytes,
               [&](std::byte* to, int x, int y) { f.storeRamp(to, rampValue(axis, x, y, offset, slope)); });
      ASSERT_EQ(f.ramp(dst.bytes(), step, roi, offset, slope, axis), huxStsOk);
    });
}

// Beyond 2^24 floats do not hold all columns. The rows overlap, so that the image is small.
TEST(ImageRamp, WideProducts) {
  const HuxiSize roi = {(1 << 24) + 41, 4};
  std::vector<Hux32f> row(std::size_t(roi.width + 3));
  ASSERT_EQ(huxiImageRamp_32f_C1R(row.data(), 4, roi, 0, 1, huxAxsBoth), huxStsOk);
  for (int x = roi.width - 80; x < roi.width; ++x)
    ASSERT_EQ(row[std::size_t(x + 3)], rampValue(huxAxsBoth, x, 3, 0, 1)) << x;
}

void expectChirp(const DrawForm& f, const Image& dst, const Image& expected, int step, HuxiSize roi) {
  f.draw(expected, roi, step, [&](std::byte* to, int x, int y) {
    const Hux64f a = x - (roi.width - 1) * 0.5, b = y - (roi.height - 1) * 0.5;
    f.storeChirp(to, std::sin((a * a + b * b) * 6.283185307179586 / (roi.height * 4.0)));
  });
  ASSERT_EQ(f.jaehne(dst.bytes(), step, roi), huxStsOk);
}

TEST(ImageJaehne, FollowsTheDefinition) {
  Rng rng(2);
  for (const DrawForm& f : forms()) {
    forDrawings(rng, f, [&](auto&&... drawing) { expectChirp(f, drawing...); });
    // Tall and square images, and angles of millions.
    for (const HuxiSize roi : {HuxiSize{7, 320}, HuxiSize{131, 130}, HuxiSize{8000, 1}}) {
      const Image dst(rng, roi.width, roi.height, f.pixelBytes()), expected = dst;
      expectChirp(f, dst, expected, dst.step(), roi);
      ASSERT_TRUE(same(dst, expected)) << f.name << ' ' << roi.height;
    }
  }
}

TEST(Synthesis, ChecksPointerStepSize) {
  Rng rng(3);
  const Image image(rng, 4, 4, 16);
  for (const DrawForm& f : forms())
    for (bool ramp : {false, true}) {
      SCOPED_TRACE(f.name);
      void* dst = image.bytes();
      int step = image.step();
      HuxiSize roi = {1, 2};
      CheckOrder([&] { return ramp ? f.ramp(dst, step, roi, 1, 1, huxAxsBoth) : f.jaehne(dst, step, roi); })
          .nulls(dst)
          .steps(step)
          .sizes(roi)
          .run(image);
    }
}

}  // namespace
}  // namespace hux::test
