// The members of a family as rows of a table, and the images that suit them.
#pragma once

#include "core/stamp.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {

// erased<huxiCopy_8u_C1R> is that function with every pointer to elements taken as a pointer to void, so that the
// members of all types fit one table. erasedValue<huxiSet_8u_C1R> also takes the leading constant, passed by value,
// through a pointer.
namespace detail {

template <class A>
struct Erase {
  using Type = A;
};
template <class T>
struct Erase<T*> {
  using Type = std::conditional_t<std::is_const_v<T>, const void*, void*>;
};
template <class A>
using Erased = typename Erase<A>::Type;

template <auto Fn>
struct Call;
template <class... A, HuxStatus (*Fn)(A...)>
struct Call<Fn> {
  static HuxStatus erased(Erased<A>... a) { return Fn(static_cast<A>(a)...); }
};

template <auto Fn>
struct ValueCall;
template <class T, class... A, HuxStatus (*Fn)(T, A...)>
struct ValueCall<Fn> {
  static HuxStatus erased(const void* value, Erased<A>... a) {
    T constant;
    std::memcpy(&constant, value, sizeof constant);
    return Fn(constant, static_cast<A>(a)...);
  }
};

}  // namespace detail

template <auto Fn>
inline constexpr auto erased = &detail::Call<Fn>::erased;
template <auto Fn>
inline constexpr auto erasedValue = &detail::ValueCall<Fn>::erased;

// Elements from one pixel to the next, and how many of each pixel a form touches.
struct Layout {
  int stride, touched;
};
inline constexpr Layout C1{1, 1}, C3{3, 3}, C4{4, 4}, AC4{4, 3}, C3C{3, 1}, C4C{4, 1};

struct Form {
  std::string name;
  int elementBytes;
  Layout layout;

  int pixelBytes() const { return layout.stride * elementBytes; }
  std::size_t touchedBytes() const { return std::size_t(layout.touched * elementBytes); }
};
#define HUX_FORM(t, l) \
  Form { #t "_" #l, int(sizeof(Hux##t)), l }

// An image, seen as bytes, whose rows end with the last element that a form touches, so that going on to the rest of
// the last pixel is caught at a page's end.
inline Image touchedImage(Rng& rng, int width, int height, Layout layout, int elementBytes, Place place) {
  return Image(rng, ((width - 1) * layout.stride + layout.touched) * elementBytes, height, 1, place);
}

// A mask with none, all, few or many of its bytes set, to any value.
inline Image randomMask(Rng& rng, int width, int height, Place place) {
  Image mask(rng, width, height, 1, place);
  const int kind = between(rng, 0, 3);
  mask.fill<Hux8u>([&] {
    const int roll = between(rng, 0, 255);
    return Hux8u(kind == 0 ? 0 : kind == 1 ? roll | 1 : kind == 2 ? (roll < 16 ? roll : 0) : roll & 3);
  });
  return mask;
}

// A region as it is passed to a function that takes any step.
enum class Walk {
  kDown,  // from the first row of the image
  kUp,    // from its last row, with a negative step
  kStay,  // the first row again and again, with a step of 0
};
inline Walk anyWalk(Rng& rng, Walk last) { return Walk(between(rng, 0, int(last))); }

struct View {
  std::byte* first;
  int step, pixelBytes;

  View(const Image& image, Walk walk)
      : first(image.bytes(0, walk == Walk::kUp ? image.height() - 1 : 0)),
        step(walk == Walk::kStay ? 0
             : walk == Walk::kUp ? -image.step()
                                 : image.step()),
        pixelBytes(image.pixelBytes()) {}

  std::byte* at(int x, int y) const { return first + std::ptrdiff_t(y) * step + std::ptrdiff_t(x) * pixelBytes; }
};

// The definition of all families that move whole pixels: what a form touches of the pixel at to(x, y) comes from the
// pixel at from(x, y), for all pixels of a region.
template <class To, class From>
void movePixels(const Form& f, HuxiSize roi, To to, From from) {
  for (int y = 0; y < roi.height; ++y)
    for (int x = 0; x < roi.width; ++x) std::memcpy(to(x, y), from(x, y), f.touchedBytes());
}

}  // namespace hux::test
