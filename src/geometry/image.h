// Images of any format, as the functions of this room pass them on, and the checks of their arguments.
#pragma once

#include <algorithm>
#include <array>
#include <type_traits>

#include "core/check.h"

namespace hux {

// Layouts with a plane for each channel, beside the interleaved ones.
template <int N>
struct PlanarLayout {
  static constexpr int planes = N;
};
using P3 = PlanarLayout<3>;
using P4 = PlanarLayout<4>;

// The image argument of a member: the first pixel, or an array of planes.
template <class L, class T>
struct ImageArgument {
  using Type = T*;
};
template <int N, class T>
struct ImageArgument<PlanarLayout<N>, T> {
  using Type = T* const*;
};
template <class L, class T>
using Pixels = typename ImageArgument<L, T>::Type;

// What a member's name tells of its images: an element's type and how elements lie. Interleaved images have one plane.
enum class ElementType { u8, u16, f32 };
struct Format {
  ElementType type;
  int planes, stride, touched;  // elements from one pixel of a plane to the next, and how many of each are written

  int elementBytes() const { return type == ElementType::u8 ? 1 : type == ElementType::u16 ? 2 : 4; }
  int pixelBytes() const { return stride * elementBytes(); }
};
template <class T>
inline constexpr ElementType elementType = sizeof(T) == 1   ? ElementType::u8
                                           : sizeof(T) == 2 ? ElementType::u16
                                                            : ElementType::f32;
template <class L, class T>
constexpr Format formatOf() {
  if constexpr (requires { L::planes; })
    return {elementType<T>, L::planes, 1, 1};
  else
    return {elementType<T>, 1, L::channels, L::processed};
}

// An image of any format. The caller's array of planes is copied, and only read where it is not null.
template <class Byte>
struct Image {
  const void* argument;  // as the caller gave it
  std::array<Byte*, 4> plane;
  Index step;
};
template <class L, class T>
auto image(T* p, int step) {
  using Byte = std::conditional_t<std::is_const_v<T>, const std::byte, std::byte>;
  return Image<Byte>{p, {reinterpret_cast<Byte*>(p)}, step};
}
template <class L, class T>
auto image(T* const* planes, int step) {
  using Byte = std::conditional_t<std::is_const_v<T>, const std::byte, std::byte>;
  Image<Byte> all{planes, {}, step};
  for (std::size_t c = 0; planes && c < L::planes; ++c) all.plane[c] = reinterpret_cast<Byte*>(planes[c]);
  return all;
}

// What every function of this room is given: the source image, the region of it that counts, and the destination.
struct Images {
  Format format;
  Image<const std::byte> src;
  HuxiSize srcSize;
  HuxiRect srcRoi;
  Image<std::byte> dst;
};
template <class L, class T>
Images images(Pixels<L, const T> pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi, Pixels<L, T> pDst, int dstStep) {
  return {formatOf<L, T>(), image<L>(pSrc, srcStep), srcSize, srcRoi, image<L>(pDst, dstStep)};
}

// The planes of planar images. An interleaved image is its only plane.
template <class... Byte>
constexpr HuxStatus planes(const Format& format, const Image<Byte>&... image) {
  for (int c = 0; c < format.planes; ++c)
    if (!((image.plane[std::size_t(c)] != nullptr) && ...)) return huxStsNullPtr;
  return huxStsOk;
}

// A rectangle of an image, by its first pixel and its size.
constexpr HuxStatus rectangle(HuxiRect r) {
  return failUnless(r.x >= 0 && r.y >= 0 && r.width >= 1 && r.height >= 1, huxStsBadSize);
}

// Whether the first pixel of the region is one of the image.
constexpr HuxStatus overlap(HuxiSize image, HuxiRect roi) {
  return failUnless(roi.x < image.width && roi.y < image.height, huxStsNoOverlapWarn);
}

// What the region and the image, which overlap, have in common.
inline HuxiRect commonPart(HuxiSize image, HuxiRect roi) {
  return {roi.x, roi.y, std::min(image.width - roi.x, roi.width), std::min(image.height - roi.y, roi.height)};
}

}  // namespace hux

// The parameters of a member that tell its images, and the call's images made of them.
#define HUX_SOURCE(t, l) hux::Pixels<hux::l, const Hux##t> pSrc, HuxiSize srcSize, int srcStep, HuxiRect srcRoi
#define HUX_DESTINATION(t, l) hux::Pixels<hux::l, Hux##t> pDst, int dstStep
#define HUX_IMAGES(t, l) hux::images<hux::l, Hux##t>(pSrc, srcSize, srcStep, srcRoi, pDst, dstStep)
