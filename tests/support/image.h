// Guarded images: memory in which every byte outside the region is known and compared after a call.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "huxdefs.h"

namespace hux::test {

using Rng = std::mt19937_64;

inline int between(Rng& rng, int low, int high) { return std::uniform_int_distribution<int>(low, high)(rng); }

// Where the region lies in its memory.
enum class Place {
  kInside,  // at any address, even or odd, with rows of border above and below
  kEnd,     // its last byte is the last before an unreadable page
  kStart,   // its first byte is the first behind one
};

// An image of `pixelBytes` per pixel, with random contents inside and outside the region and a step of any parity.
class Image {
 public:
  Image(Rng& rng, int width, int height, int pixelBytes, Place place = Place::kInside);
  Image(const Image& other);
  Image& operator=(const Image&) = delete;
  ~Image();

  int width() const { return width_; }
  int height() const { return height_; }
  int step() const { return step_; }
  int pixelBytes() const { return pixelBytes_; }
  HuxiSize size() const { return {width_, height_}; }

  std::byte* bytes(int x = 0, int y = 0) const {
    return region_ + std::ptrdiff_t(y) * step_ + std::ptrdiff_t(x) * pixelBytes_;
  }
  template <class T>
  T* data() const {
    return reinterpret_cast<T*>(region_);
  }
  template <class T>
  T get(int x, int y, int c = 0) const {
    T value;
    std::memcpy(&value, bytes(x, y) + c * int(sizeof(T)), sizeof value);
    return value;
  }
  template <class T>
  void set(int x, int y, int c, T value) const {
    std::memcpy(bytes(x, y) + c * int(sizeof(T)), &value, sizeof value);
  }
  // Elements in each row of the region, whatever its pixels are.
  template <class T>
  int elementsIn() const {
    return width_ * pixelBytes_ / int(sizeof(T));
  }
  // Sets every element of the region to make().
  template <class T, class Make>
  void fill(Make make) const {
    for (int y = 0; y < height_; ++y)
      for (int i = 0; i < elementsIn<T>(); ++i) set<T>(0, y, i, make());
  }

  // Success where both hold the same bytes, inside and outside the region.
  friend testing::AssertionResult same(const Image& actual, const Image& expected);

 private:
  void allocate();

  int width_, height_, pixelBytes_, step_ = 0;
  Place place_;
  std::size_t bytes_ = 0;   // bytes whose contents are compared
  std::size_t offset_ = 0;  // of the region in them
  std::size_t mapped_ = 0;
  std::byte* mapping_ = nullptr;
  std::byte* memory_ = nullptr;
  std::byte* region_ = nullptr;
};

testing::AssertionResult same(const Image& actual, const Image& expected);

template <class T>
T valueAt(const void* p) {
  T value;
  std::memcpy(&value, p, sizeof value);
  return value;
}

// Bits, but that one NaN is as good as another.
template <class T>
bool alike(T a, T b) {
  return std::memcmp(&a, &b, sizeof a) == 0 || (a != a && b != b);
}
// The same, but for elements of type T in the region for which equal(actual, expected) holds. Rows start at multiples
// of `unit` bytes from the first.
template <class T, class Equal = bool (*)(T, T)>
testing::AssertionResult sameBut(const Image& actual, Image expected, int unit = 1, Equal equal = alike<T>) {
  for (int y = 0; y < actual.height(); ++y)
    for (int i = 0; i < actual.elementsIn<T>(); ++i) {
      const std::ptrdiff_t at = std::ptrdiff_t(y) * (actual.step() / unit * unit) + i * int(sizeof(T));
      const T value = valueAt<T>(actual.bytes() + at);
      if (equal(value, valueAt<T>(expected.bytes() + at))) std::memcpy(expected.bytes() + at, &value, sizeof value);
    }
  return same(actual, expected);
}

// Calls body(x, y) for the pixels of a region, row by row, and body(x, y, c) for the first elements of each.
template <class Body>
void forPixels(HuxiSize size, Body body) {
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) body(x, y);
}
template <class Body>
void forElements(HuxiSize size, int elements, Body body) {
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x)
      for (int c = 0; c < elements; ++c) body(x, y, c);
}

// Runs body(width, height, place) over widths through every remainder of the vector lengths in use, over heights that
// exercise first, middle and last rows, and over the places of an image.
template <class Body>
void forShapes(Rng& rng, int maxWidth, Body body) {
  for (int width = 1; width <= maxWidth; width += width < 140 ? 1 : between(rng, 1, 40)) {
    const Place place = Place(between(rng, 0, 2));
    body(width, between(rng, 1, 4), place);
  }
}

}  // namespace hux::test
