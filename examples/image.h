// Images for the examples: memory from huxiMalloc_*, freed with the object.
#pragma once

#include <cstddef>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>

#include "huxi.h"

namespace tour {

// HUX_DO(call): a status other than success ends the program with a message that shows the call.
#define HUX_DO(call) ::tour::require(call, #call)
inline void require(HuxStatus status, const char* call) {
  if (status != huxStsOk) throw std::runtime_error("status " + std::to_string(status) + " from " + call);
}

template <class T, int Channels>
T* allocate(int width, int height, int* step);
#define TOUR_ALLOCATE(t, n)                                              \
  template <>                                                            \
  inline Hux##t* allocate<Hux##t, n>(int width, int height, int* step) { \
    return huxiMalloc_##t##_C##n(width, height, step);                   \
  }
TOUR_ALLOCATE(8u, 1)
TOUR_ALLOCATE(8u, 3)
TOUR_ALLOCATE(8u, 4)
TOUR_ALLOCATE(16s, 1)
TOUR_ALLOCATE(32s, 1)
TOUR_ALLOCATE(32f, 1)
TOUR_ALLOCATE(32f, 3)
TOUR_ALLOCATE(32fc, 1)
#undef TOUR_ALLOCATE

template <class T, int Channels>
class Image {
 public:
  explicit Image(HuxiSize size) : size_(size), data_(allocate<T, Channels>(size.width, size.height, &step_)) {
    if (!data_) throw std::bad_alloc();
  }

  HuxiSize size() const { return size_; }
  int step() const { return step_; }

  // The first element of a pixel: where a region starts.
  T* at(int x, int y) { return pixel(x, y); }
  const T* at(int x, int y) const { return pixel(x, y); }

 private:
  struct Free {
    void operator()(T* data) const { huxiFree(data); }
  };
  T* pixel(int x, int y) const {
    return reinterpret_cast<T*>(reinterpret_cast<std::byte*>(data_.get()) + std::ptrdiff_t(y) * step_) + x * Channels;
  }

  HuxiSize size_;
  int step_ = 0;
  std::unique_ptr<T, Free> data_;
};

using Gray = Image<Hux8u, 1>;
using Colour = Image<Hux8u, 3>;

}  // namespace tour
