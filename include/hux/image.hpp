// An image that owns its pixels.
#ifndef HUX_IMAGE_HPP
#define HUX_IMAGE_HPP

#include <cstring>
#include <new>

#include "members.hpp"
#include "view.hpp"

namespace hux {

// Rows are aligned as the C library does it. Pixels start as 0. Copies are deep; a moved-from image is empty. An image
// is a view where one is asked for, as a destination too.
template <element T, int C>
class image : public view<T, C> {
 public:
  image() = default;
  image(int width, int height) : image(extent{width, height}) {}
  // Throws std::bad_alloc, and std::length_error where a side is below 0.
  explicit image(extent size) : view<T, C>(allocate(size)) {
    for (int y = 0; y < this->height(); ++y) std::memset(static_cast<void*>(this->row(y)), 0, row_bytes(this->width()));
  }
  explicit image(view<const T, C> other) : view<T, C>(allocate(other.size())) { take(other); }
  image(const image& other) : image(view<const T, C>(other)) {}
  image(image&& other) noexcept : view<T, C>(std::exchange(other.base(), {})) {}
  image& operator=(image other) noexcept {
    std::swap(base(), other.base());
    return *this;
  }
  ~image() {
    if (this->data()) huxiFree(this->data());
  }

  // For reading, where the image is const.
  view<const T, C> read() const { return *this; }

 private:
  view<T, C>& base() { return *this; }

  static std::size_t row_bytes(int width) {
    return sizeof(T) * static_cast<std::size_t>(detail::elements_of(C)) * static_cast<std::size_t>(width);
  }

  static view<T, C> allocate(extent size) {
    static_assert(!std::is_const_v<T> && C <= 4, "an image owns all of its elements, and may be written");
    if (size.width < 0 || size.height < 0) throw std::length_error("hux::image: a side below 0");
    if (size.width == 0 || size.height == 0) return view<T, C>(nullptr, 0, size);
    int step = 0;
    void* data = nullptr;
    if constexpr (!std::is_null_pointer_v<std::remove_const_t<decltype(members::malloc<T, C>)>>)
      data = members::malloc<T, C>(size.width, size.height, &step);
    else if (row_bytes(size.width) <= INT_MAX)
      data = huxiMalloc_8u_C1(static_cast<int>(row_bytes(size.width)), size.height, &step);
    if (!data) throw std::bad_alloc();
    return view<T, C>(static_cast<T*>(data), step, size);
  }

  void take(view<const T, C> other) {
    for (int y = 0; y < this->height(); ++y)
      std::memcpy(static_cast<void*>(this->row(y)), other.row(y), row_bytes(this->width()));
  }
};

template <class T, int C>
image(view<T, C>) -> image<std::remove_const_t<T>, C>;

}  // namespace hux

#endif
