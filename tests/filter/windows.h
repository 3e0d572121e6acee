// Source images of windows: what the windows of a region may read and nothing more, and their elements as numbers.
#pragma once

#include <limits>

#include "support/forms.h"

namespace hux::test {

enum class Contents { kAny, kFewValues, kWithNaN };
inline Contents anyContents(Rng& rng) { return Contents(between(rng, 0, 2)); }

// An image of a form, whose rows end with the last element touched but lie apart by those of all pixels or more.
inline Image formImage(Rng& rng, const Form& f, int width, int height, Place place) {
  for (;;) {
    const Image image = touchedImage(rng, width, height, f.layout, f.elementBytes, place);
    if (image.step() >= width * f.pixelBytes()) return image;
  }
}

// What the windows of mask.width by mask.height of a region read.
class WindowImage {
 public:
  WindowImage(Rng& rng, const Form& f, HuxiSize roi, HuxiSize mask, Place place, Contents contents)
      : form_(f),
        mask_(mask),
        image_(formImage(rng, f, roi.width + mask.width - 1, roi.height + mask.height - 1, place)) {
    withElement(f, [&](auto zero) {
      using T = decltype(zero);
      for (int y = 0; y < image_.height(); ++y)
        for (int at = 0; at < image_.width(); at += f.elementBytes) {
          const T value = element<T>(rng, contents);
          std::memcpy(image_.bytes(at, y), &value, sizeof value);
        }
    });
  }

  const Image& image() const { return image_; }
  int step() const { return image_.step(); }
  // The pixel under the first of the region, for an anchor.
  std::byte* at(HuxiPoint anchor) const { return image_.bytes(anchor.x * form_.pixelBytes(), anchor.y); }
  // Cell (i, j) of the window of output (x, y).
  template <class T>
  T cell(int x, int y, int i, int j, int c) const {
    T value;
    std::memcpy(&value, image_.bytes((x + i) * form_.pixelBytes() + c * form_.elementBytes, y + j), sizeof value);
    return value;
  }
  HuxiSize mask() const { return mask_; }

 private:
  template <class T>
  static T element(Rng& rng, Contents contents) {
    if constexpr (std::is_integral_v<T>) {
      return contents == Contents::kFewValues ? T(between(rng, -1, 2)) : T(rng());
    } else {
      constexpr T infinity = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
      constexpr T rare[] = {infinity, -infinity, std::numeric_limits<T>::max(), std::numeric_limits<T>::lowest(), nan};
      constexpr T few[] = {0, -T(0), 1, -1};
      if (contents != Contents::kAny && between(rng, 0, 15) == 0)
        return rare[between(rng, 0, contents == Contents::kWithNaN ? 4 : 3)];
      return contents == Contents::kAny ? T(between(rng, -1000, 1000)) : few[between(rng, 0, 3)];
    }
  }

  Form form_;
  HuxiSize mask_;
  Image image_;
};

// Sets element c of the output pixel (x, y) of an image of such a form to value(x, y, c), for all elements touched.
template <class Value>
void expectPixels(const Form& f, const Image& expected, HuxiSize roi, Value value) {
  forElements(roi, f.layout.touched, [&](int x, int y, int c) {
    const auto v = value(x, y, c);
    std::memcpy(expected.bytes(x * f.pixelBytes() + c * f.elementBytes, y), &v, sizeof v);
  });
}

inline HuxiPoint anyAnchor(Rng& rng, HuxiSize mask) {
  return {between(rng, 0, mask.width - 1), between(rng, 0, mask.height - 1)};
}
constexpr HuxiSize sizeOf(HuxiMaskSize mask) { return {mask / 10, mask % 10}; }

}  // namespace hux::test
