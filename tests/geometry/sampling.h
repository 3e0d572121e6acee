// What the tests of remap and of the warps share: images of every format, and the pixel at a position by definition.
#pragma once

#include <algorithm>
#include <cmath>

#include "support/forms.h"

namespace hux::test {

inline constexpr HuxiInterpolation kModes[] = {huxiInterNearest, huxiInterLinear, huxiInterCubic};

// A member of a family: interleaved, or with a plane for each channel.
struct Format : Form {
  int planes;

  int channels() const { return planes > 1 ? planes : layout.touched; }
};
namespace formats {
inline constexpr Layout P3{1, 1}, P4{1, 1}, C1 = test::C1, C3 = test::C3, C4 = test::C4, AC4 = test::AC4;
inline constexpr int planesOfC1 = 1, planesOfC3 = 1, planesOfC4 = 1, planesOfAC4 = 1, planesOfP3 = 3, planesOfP4 = 4;
}  // namespace formats
#define HUX_FORMAT(t, l) \
  Format { {#t "_" #l, int(sizeof(Hux##t)), formats::l}, formats::planesOf##l }

// A function with every pointer taken as one to const void, so that the members of all formats fit one table.
namespace detail {
template <auto Fn>
struct Untyped;
template <class... A, HuxStatus (*Fn)(A...)>
struct Untyped<Fn> {
  static HuxStatus call(std::conditional_t<std::is_pointer_v<A>, const void*, A>... a) { return Fn((A)(a)...); }
};
}  // namespace detail
template <auto Fn>
inline constexpr auto untyped = &detail::Untyped<Fn>::call;

// An image of a format. Planes lie one below the other in one piece of memory, since they share a step.
class Picture {
 public:
  Picture(Rng& rng, const Format& f, int width, int height, Place place = Place::kInside)
      : memory(rng, width, height * f.planes, f.pixelBytes(), place), format_(f), height_(height) {
    setPlanes();
    if (f.elementBytes == 4) memory.fill<Hux32f>([&] { return Hux32f(between(rng, -40000, 40000)) / 64; });
  }
  Picture(const Picture& other) : memory(other.memory), format_(other.format_), height_(other.height_) { setPlanes(); }
  // Takes the pixels of a picture of the same make.
  Picture& operator=(const Picture& other) {
    for (int y = 0; y < memory.height(); ++y)
      std::memcpy(memory.bytes(0, y), other.memory.bytes(0, y), std::size_t(memory.width() * memory.pixelBytes()));
    return *this;
  }

  Image memory;

  HuxiSize size() const { return {memory.width(), height_}; }
  int step() const { return memory.step(); }
  // As it is passed to a function.
  void* argument() const { return format_.planes > 1 ? const_cast<void**>(planes_) : planes_[0]; }

  Hux64f get(int x, int y, int c) const {
    switch (format_.elementBytes) {
      case 1:
        return read<Hux8u>(x, y, c);
      case 2:
        return read<Hux16u>(x, y, c);
      default:
        return read<Hux32f>(x, y, c);
    }
  }
  // Integers are truncated, whatever does not fit wraps.
  void set(int x, int y, int c, Hux64f value) {
    switch (format_.elementBytes) {
      case 1:
        return write(x, y, c, Hux8u(Hux64s(value)));
      case 2:
        return write(x, y, c, Hux16u(Hux64s(value)));
      default:
        return write(x, y, c, Hux32f(value));
    }
  }

 private:
  void setPlanes() {
    for (int p = 0; p < format_.planes; ++p) planes_[p] = memory.bytes(0, p * height_);
  }
  std::byte* at(int x, int y, int c) const {
    return format_.planes > 1 ? memory.bytes(x, y + c * height_) : memory.bytes(x, y) + c * format_.elementBytes;
  }
  template <class T>
  T read(int x, int y, int c) const {
    T value;
    std::memcpy(&value, at(x, y, c), sizeof value);
    return value;
  }
  template <class T>
  void write(int x, int y, int c, T value) {
    std::memcpy(at(x, y, c), &value, sizeof value);
  }

  Format format_;
  int height_;
  void* planes_[4] = {};
};

// The element at a position, which lies inside the image or less than a pixel off.
inline Hux64f sampled(const Picture& src, const Format& f, HuxiInterpolation mode, Hux64f x, Hux64f y, int c) {
  const int xMax = src.size().width - 1, yMax = src.size().height - 1, least = std::min(xMax, yMax) + 1;
  if (least == 1 || mode == huxiInterNearest) return src.get(int(0.5 + x), int(0.5 + y), c);
  int u = int(1e-7 + x), v = int(1e-7 + y);
  if (least < 4 || mode == huxiInterLinear) {
    Hux64f fx = x - u, fy = y - v;
    if (u >= xMax) u = xMax - 1, fx = 1;
    if (v >= yMax) v = yMax - 1, fy = 1;
    const auto row = [&](int v) { return src.get(u, v, c) + (src.get(u + 1, v, c) - src.get(u, v, c)) * fx; };
    const Hux64f top = row(v), bottom = row(v + 1);
    return f.elementBytes == 1 ? fy * (bottom - top) + 0.5 + top : fy * (bottom - top) + top;
  }
  const auto corner = [](int u, int last) { return u >= last - 1 ? last - 3 : u < 1 ? 0 : u - 1; };
  const int xs = corner(u, xMax), ys = corner(v, yMax);
  const auto weights = [](Hux32f offset) {
    const Hux64f t = offset, q = offset * offset, s = t * t / 2;
    const Hux64f third = 1.0 / 3, sixth = 1.0 / 6;
    return std::array<Hux64f, 4>{-t * t * t * sixth + s - t * third, t * s + 1 - q - t / 2, -t * t * t / 2 + s + t,
                                 t * t * t * sixth - t * sixth};
  };
  const auto wx = weights(Hux32f(x - 1 - xs)), wy = weights(Hux32f(y - 1 - ys));
  Hux64f rows[4];
  for (int r = 0; r < 4; ++r)
    rows[r] = src.get(xs, ys + r, c) * wx[0] + src.get(xs + 1, ys + r, c) * wx[1] + src.get(xs + 2, ys + r, c) * wx[2] +
              src.get(xs + 3, ys + r, c) * wx[3];
  const Hux64f sum = rows[0] * wy[0] + rows[1] * wy[1] + rows[2] * wy[2] + rows[3] * wy[3];
  if (f.elementBytes == 4) return sum;
  const Hux64f most = f.elementBytes == 1 ? 255 : 65535;
  return sum > most ? most : sum >= 0 ? sum + 0.5 : 0;
}

// Sets the pixel (i, j) of dst to the source at a position.
inline void setSampled(Picture& dst, int i, int j, const Picture& src, const Format& f, HuxiInterpolation mode,
                       Hux64f x, Hux64f y) {
  for (int c = 0; c < f.channels(); ++c) dst.set(i, j, c, sampled(src, f, mode, x, y, c));
}

}  // namespace hux::test
