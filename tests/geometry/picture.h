// Images of every format of the geometry.
#pragma once

#include <algorithm>
#include <cmath>

#include "support/forms.h"

namespace hux::test {

// A member of a family: interleaved, or with a plane for each channel.
struct Format : Form {
  int planes;

  int channels() const { return planes > 1 ? planes : layout.touched; }
};
inline constexpr Layout P3{1, 1}, P4{1, 1};
#define HUX_FORMAT(t, l) \
  Format { HUX_FORM(t, l), #l[0] == 'P' ? #l[1] - '0' : 1 }

// An image of a format. Planes lie one below the other in one piece of memory, since they share a step. Where it ends
// at a page the last pixel is whole, or it ends with its last channel.
enum class LastPixel { kWhole, kTouched };
class Picture {
 public:
  Picture(Rng& rng, const Format& f, HuxiSize size, Place place = Place::kInside, LastPixel last = LastPixel::kWhole)
      : memory(rng,
               (size.width - 1) * f.pixelBytes() + (last == LastPixel::kWhole ? f.pixelBytes() : int(f.touchedBytes())),
               size.height * f.planes, 1, place),
        format_(f),
        size_(size) {
    setPlanes();
    if (f.type == Number::k32f) memory.fill<Hux32f>([&] { return Hux32f(between(rng, -40000, 40000)) / 64; });
  }
  Picture(const Picture& other) : memory(other.memory), format_(other.format_), size_(other.size_) { setPlanes(); }
  // Takes the pixels of a picture of the same make.
  Picture& operator=(const Picture& other) {
    for (int y = 0; y < memory.height(); ++y)
      std::memcpy(memory.bytes(0, y), other.memory.bytes(0, y), std::size_t(memory.width()));
    return *this;
  }

  Image memory;

  HuxiSize size() const { return size_; }
  int step() const { return memory.step(); }
  // As it is passed to a function; that reads its pointers to planes from here.
  void* argument() const { return format_.planes > 1 ? const_cast<void**>(planes_) : planes_[0]; }
  void*& plane(int p) { return planes_[p]; }

  std::byte* at(long x, long y, int c) const {
    return memory.bytes() + (format_.planes > 1 ? y + c * size_.height : y) * memory.step() + x * format_.pixelBytes() +
           (format_.planes > 1 ? 0 : c * format_.elementBytes);
  }
  Hux64f get(long x, long y, int c) const { return numberAt(format_.type, at(x, y, c)); }
  // Integers are truncated, whatever does not fit wraps.
  void set(long x, long y, int c, Hux64f value) const {
    withType(format_.type, [&]<class T>(T) {
      const T element = std::is_integral_v<T> ? T(Hux64s(value)) : T(value);
      std::memcpy(at(x, y, c), &element, sizeof element);
    });
  }

 private:
  void setPlanes() {
    for (int p = 0; p < format_.planes; ++p) planes_[p] = memory.bytes(0, p * size_.height);
  }

  Format format_;
  HuxiSize size_;
  void* planes_[4] = {};
};
inline testing::AssertionResult same(const Picture& actual, const Picture& expected) {
  return same(actual.memory, expected.memory);
}

}  // namespace hux::test
