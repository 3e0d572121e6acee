// Element and layout vocabulary: what a pixel is made of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "huxdefs.h"

namespace hux {

// Counts and byte distances are formed in 64 bits; the public 32-bit sizes are widened at the door.
using Index = std::ptrdiff_t;

constexpr Index area(HuxiSize size) { return Index(size.width) * size.height; }

// The step of a family that moves its row pointers in whole elements: what is left over is dropped.
template <class T>
constexpr int wholeElements(int step) {
  return step - step % int(sizeof(T));
}

// Elements per pixel, and how many of them an operation touches.
template <int Channels, int Processed>
struct Layout {
  static constexpr int channels = Channels;
  static constexpr int processed = Processed;
};
using C1 = Layout<1, 1>;
using C3 = Layout<3, 3>;
using C4 = Layout<4, 4>;
using AC4 = Layout<4, 3>;

// An element in an image row. Rows may start at any address, so elements promise no alignment, and an image's memory
// may be seen as another type by the caller (an unsigned image through a signed member), so they alias like bytes.
template <class T>
struct __attribute__((packed, may_alias)) Element {
  T bits;
  operator T() const { return bits; }
  Element& operator=(T value) {
    bits = value;
    return *this;
  }
};

template <class T>
using ElementOf = std::conditional_t<std::is_const_v<T>, const Element<std::remove_const_t<T>>, Element<T>>;

// The elements at a caller's pointer, which may be any address; `elementsAs` sees them as those of another type.
template <class T>
ElementOf<T>* elements(T* p) {
  return reinterpret_cast<ElementOf<T>*>(p);
}
template <class E, class T>
auto elementsAs(T* p) {
  return reinterpret_cast<ElementOf<std::conditional_t<std::is_const_v<T>, const E, E>>*>(p);
}
// The way back: elements as a public function takes them.
template <class T>
auto untyped(T* p) {
  return static_cast<std::conditional_t<std::is_const_v<T>, const void, void>*>(p);
}
template <class W, class T>
auto argument(T* p) {
  return static_cast<std::conditional_t<std::is_const_v<T>, const W, W>*>(untyped(p));
}

// The element type of one width whose members only move bits: 32f and 32s share one body, 16u and 16s another.
template <int Bytes>
struct WordOf;
template <>
struct WordOf<1> {
  using Type = Hux8u;
};
template <>
struct WordOf<2> {
  using Type = Hux16u;
};
template <>
struct WordOf<4> {
  using Type = Hux32u;
};
template <class T>
using Word = typename WordOf<sizeof(T)>::Type;

// A constant argument as the public functions take it: by value in one-channel forms, else a pointer to one per
// channel.
template <class L, class T>
struct ConstantOf {
  using Type = const T*;
};
template <class T>
struct ConstantOf<C1, T> {
  using Type = T;
};
template <class L, class T>
using Constant = typename ConstantOf<L, T>::Type;

// The constant argument as an array, whichever way it came.
template <class T>
const T* pixelOf(const T* pValue) {
  return pValue;
}
template <class T>
const T* pixelOf(const T& value) {
  return &value;
}

}  // namespace hux
