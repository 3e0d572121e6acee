// The members of a family as rows of a table, and the images that suit them.
#pragma once

#include <tuple>

#include "core/stamp.h"
#include "support/image.h"
#include "support/order.h"

namespace hux::test {

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

template <class To, class From>
To passed(From from) {
  if constexpr (std::is_pointer_v<From> && !std::is_pointer_v<To>) {
    return valueAt<To>(from);
  } else {
    return (To)(from);
  }
}
template <class Signature, auto Fn, std::size_t... order>
struct As;
template <class... P, auto Fn, std::size_t... order>
struct As<HuxStatus(P...), Fn, order...> {
  static constexpr std::size_t argument(std::size_t i) {
    const std::size_t list[] = {order..., 0};
    return sizeof...(order) ? list[i] : i;
  }
  template <class... A, std::size_t... i>
  static HuxStatus pass(HuxStatus (*)(A...), std::index_sequence<i...>, const std::tuple<P...>& p) {
    return Fn(passed<A>(std::get<argument(i)>(p))...);
  }
  template <class... A>
  static HuxStatus call(HuxStatus (*fn)(A...), const std::tuple<P...>& p) {
    return pass(fn, std::index_sequence_for<A...>(), p);
  }
  static HuxStatus function(P... p) { return call(Fn, {p...}); }
};

}  // namespace detail

// as<HuxStatus(const void*, int, ...), huxiAddC_8u_C1RSfs> is that function with a signature that members of all types
// and layouts share: pointers to elements and planes come as pointers to void, and so does what a member takes by value
// of its own type; of the last arguments a member takes those that it has. as<Signature, Fn, 2, 3, 0> takes the third,
// fourth and first argument of the signature.
template <class Signature, auto Fn, std::size_t... order>
inline constexpr Signature* as = &detail::As<Signature, Fn, order...>::function;

// erased<huxiCopy_8u_C1R> is that function with every pointer to elements taken as a pointer to void and all else as it
// is.
template <auto Fn>
inline constexpr auto erased = &detail::Call<Fn>::erased;

// Elements from one pixel to the next, and how many of each pixel a form touches.
struct Layout {
  int stride, touched;
};
inline constexpr Layout C1{1, 1}, C3{3, 3}, C4{4, 4}, AC4{4, 3}, C3C{3, 1}, C4C{4, 1};

// What an element is. Those of complex numbers are names alone.
enum class Number { k8u, k8s, k16u, k16s, k32s, k32f, k16sc, k32sc, k32fc };
// Calls body(T()) with the type of elements.
template <class Body>
auto withType(Number type, Body body) {
  switch (type) {
    case Number::k8u:
      return body(Hux8u());
    case Number::k8s:
      return body(Hux8s());
    case Number::k16u:
      return body(Hux16u());
    case Number::k16s:
      return body(Hux16s());
    case Number::k32s:
      return body(Hux32s());
    default:
      return body(Hux32f());
  }
}
inline int bytesOf(Number type) {
  return withType(type, [](auto zero) { return int(sizeof zero); });
}
// Calls body(T()) with an element type of a form's width: forms that are told apart by it alone.
template <class F, class Body>
auto withElement(const F& f, Body body) {
  if (f.elementBytes == 1) return body(Hux8u());
  if (f.elementBytes == 2) return body(Hux16s());
  return body(Hux32f());
}
// An element as a number, which a double holds whatever its type.
inline double numberAt(Number type, const void* p) {
  return withType(type, [&]<class T>(T) { return double(valueAt<T>(p)); });
}

struct Form {
  std::string name;
  int elementBytes;
  Layout layout;
  Number type = Number::k8u;

  int pixelBytes() const { return layout.stride * elementBytes; }
  std::size_t touchedBytes() const { return std::size_t(layout.touched * elementBytes); }
};
#define HUX_FORM(t, l) \
  Form { #t "_" #l, int(sizeof(Hux##t)), l, Number::k##t }
#define HUX_NAMED(f, t, l) \
  Form { #f "_" #t "_" #l, int(sizeof(Hux##t)), l, Number::k##t }

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
  forPixels(roi, [&](int x, int y) { std::memcpy(to(x, y), from(x, y), f.touchedBytes()); });
}

}  // namespace hux::test
