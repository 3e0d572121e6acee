// One channel of an image with zeros around it, and the products of such by the transforms of blocks.
#pragma once

#include <vector>

#include "huxi_transform.h"
#include "support/image.h"

namespace hux::test {

template <class T>
struct Plane {
  int w, h;
  std::vector<T> pixels;

  Plane(int width, int height) : w(width), h(height), pixels(std::size_t(width) * std::size_t(height)) {}
  Plane(HuxiSize s) : Plane(s.width, s.height) {}
  HuxiSize size() const { return {w, h}; }
  int area() const { return w * h; }
  int step() const { return w * int(sizeof(T)); }
  T& at(int x, int y) { return pixels[std::size_t(y) * std::size_t(w) + std::size_t(x)]; }
  T at(int x, int y) const { return x < 0 || y < 0 || x >= w || y >= h ? 0 : const_cast<Plane*>(this)->at(x, y); }
};
using Floats = Plane<Hux32f>;

// The least order, from 1 on, of so many numbers, and that of a block.
inline int orderOf(int length) {
  int n = 1;
  while (1 << n < length) ++n;
  return n;
}
inline int blockOrder(int kernel, int result, int doubleBelow) {
  const int n = orderOf(2 * kernel);
  return n < doubleBelow && 1 << n < result ? n + 1 : n;
}

// A kernel by whose spectrum, conjugated or not, those of blocks are multiplied.
template <class T>
class Spectrum {
 public:
  Spectrum(int orderX, int orderY, const Plane<T>& kernel, bool conjugated)
      : size_{1 << orderX, 1 << orderY}, conjugated_(conjugated), kernel_(size_) {
    EXPECT_EQ(huxiFFTInitAlloc_R_32f(&context_, orderX, orderY, huxFftScaleInv, huxHintNone), huxStsOk);
    kernel_ = transformed(kernel, {0, 0, kernel.w, kernel.h});
  }
  ~Spectrum() { huxiFFTFree_R_32f(context_); }
  Spectrum(const Spectrum&) = delete;

  // Part of an image, extended by zeros.
  Floats through(const Plane<T>& image, HuxiRect part) const {
    Floats p = transformed(image, part);
    const auto multiply = conjugated_ ? huxiMulPackConj_32f_C1R : huxiMulPack_32f_C1R;
    multiply(p.pixels.data(), p.step(), kernel_.pixels.data(), p.step(), p.pixels.data(), p.step(), size_);
    huxiFFTInv_PackToR_32f_C1IR(p.pixels.data(), p.step(), context_, nullptr);
    return p;
  }

 private:
  Floats transformed(const Plane<T>& from, HuxiRect part) const {
    Floats p(size_);
    forPixels({part.width, part.height}, [&](int x, int y) { p.at(x, y) = Hux32f(from.at(part.x + x, part.y + y)); });
    huxiFFTFwd_RToPack_32f_C1IR(p.pixels.data(), p.step(), context_, nullptr);
    return p;
  }

  HuxiSize size_;
  bool conjugated_;
  HuxiFFTRecord* context_ = nullptr;
  Floats kernel_;
};

}  // namespace hux::test
