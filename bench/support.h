// What all benchmarks share: images, the table of cases, and the peer that does the same work beside us.
//
// A case is one line,
//
//   add<Image<Hux8u, 1>, Image<Hux8u, 3>>("Dup_8u_C1C3R", Shape::Same, RUN(huxiDup_8u_C1C3R(SRC, DST, ROI)),
//                                         PEER("cvtColor", cv::cvtColor(o.src.mat, o.dst.mat, cv::COLOR_GRAY2BGR)));
//
// and is timed at two sizes, one that stays in the cache and one that does not. `o` are the operands: o.src, o.dst,
// o.mask, o.size. Before the timing, both sides run once on the same data and must have written the same bytes.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "huxi.h"

#ifdef HUX_BENCH_OPENCV
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#define PEER(name, ...) bench::Side(name, [](auto& o) { __VA_ARGS__; })
#else
#define PEER(...) bench::noPeer()
#endif
#define RUN(...) bench::Side("hux", [](auto& o) { __VA_ARGS__; })

#define SRC o.src.data, o.src.step
#define DST o.dst.data, o.dst.step
#define MASK o.mask.data, o.mask.step
#define ROI o.size

namespace bench {

template <class Work>
struct Side {
  const char* name;
  Work work;
  Side(const char* name, Work work) : name(name), work(work) {}
};
inline auto noPeer() {
  return Side("", [](auto&) {});
}

// Interleaved pixels. The allocator gives steps that are multiples of 32 whatever the pixel, so the byte member serves
// all. With `margin` the image is a region of one that is wider by that many pixels.
template <class T, int C>
struct Image {
  static constexpr int pixelBytes = C * int(sizeof(T));
  std::shared_ptr<T> memory;
  T* data = nullptr;
  int step = 0;
  HuxiSize size = {0, 0};
#ifdef HUX_BENCH_OPENCV
  cv::Mat mat;
#endif

  Image() = default;
  Image(HuxiSize s, int margin = 0) : size(s) {
    data = reinterpret_cast<T*>(huxiMalloc_8u_C1((s.width + margin) * pixelBytes, s.height, &step));
    memory.reset(data, huxiFree);
#ifdef HUX_BENCH_OPENCV
    mat = cv::Mat(s.height, s.width, CV_MAKETYPE(cv::traits::Depth<T>::value, C), data, std::size_t(step));
#endif
  }
  std::span<std::uint8_t> bytes() const {
    return {reinterpret_cast<std::uint8_t*>(data), std::size_t(step) * std::size_t(size.height)};
  }
  std::int64_t pixels() const { return std::int64_t(size.width) * size.height; }
  std::int64_t traffic() const { return pixels() * pixelBytes; }
};

// N planes that share a step, in one piece of memory.
template <class T, int N>
struct Planes {
  static constexpr int pixelBytes = N * int(sizeof(T));
  Image<T, 1> all;
  T* data[N];
  int step = 0;
#ifdef HUX_BENCH_OPENCV
  std::array<cv::Mat, N> mat;
#endif

  Planes() = default;
  Planes(HuxiSize s, int margin = 0) : all({s.width, s.height * N}, margin), step(all.step) {
    for (int c = 0; c < N; ++c) {
      data[c] = reinterpret_cast<T*>(all.bytes().data() + std::size_t(step) * std::size_t(s.height * c));
#ifdef HUX_BENCH_OPENCV
      mat[std::size_t(c)] = all.mat.rowRange(s.height * c, s.height * (c + 1));
#endif
    }
  }
  std::span<std::uint8_t> bytes() const { return all.bytes(); }
  std::int64_t traffic() const { return all.traffic(); }
};

// How the operands of a case relate.
enum class Shape {
  Same,           // source and destination of one size
  Region,         // the same as part of wider images: rows do not follow each other
  Masked,         // with a mask, about half of it set, in patches
  MaskedRandom,   // the same, pixel by pixel
  Fill,           // no source
  FillRegion,     // no source, part of a wider image
  FillMasked,     // no source, a mask
  InPlace,        // no source: the destination is both
  InPlaceSquare,  // the same, as high as wide
  Transposed,     // the destination has as many columns as the source has rows
  Bordered,       // the destination is kBorder wider on each side
};
inline constexpr int kBorder = 8;

constexpr bool isInPlace(Shape s) { return s == Shape::InPlace || s == Shape::InPlaceSquare; }
constexpr bool hasSource(Shape s) {
  return s != Shape::Fill && s != Shape::FillRegion && s != Shape::FillMasked && !isInPlace(s);
}
constexpr bool hasMask(Shape s) { return s == Shape::Masked || s == Shape::MaskedRandom || s == Shape::FillMasked; }

constexpr HuxiSize destinationSize(Shape s, HuxiSize size) {
  if (s == Shape::Transposed) return {size.height, size.width};
  if (s == Shape::Bordered) return {size.width + 2 * kBorder, size.height + 2 * kBorder};
  return size;
}

void fillRandom(std::span<std::uint8_t> bytes, unsigned seed);
void fillMask(const Image<Hux8u, 1>& mask, HuxiSize patch);

// The operands of one case at one size.
template <class Src, class Dst>
struct Operands {
  HuxiSize size;
  Src src;
  Dst dst;
  Image<Hux8u, 1> mask;

  Operands(Shape shape, HuxiSize s) : size(s) {
    const int margin = shape == Shape::Region || shape == Shape::FillRegion ? 64 : 0;
    if (hasSource(shape)) src = Src(s, margin);
    dst = Dst(destinationSize(shape, s), margin);
    if (hasMask(shape)) mask = Image<Hux8u, 1>(s);
    refill();
    if (hasMask(shape)) fillMask(mask, shape == Shape::MaskedRandom ? HuxiSize{1, 1} : HuxiSize{37, 23});
  }
  void refill() {
    if (src.step) fillRandom(src.bytes(), 1);
    fillRandom(dst.bytes(), 2);
  }
};

// A case without its types. `bytes` counts what is read and what is written; a destination that is also the source
// counts twice.
struct Job {
  std::function<void()> hux, peer, refill;
  std::span<std::uint8_t> result;
  std::int64_t bytes;
};
struct Case {
  std::string name, peerName;
  Shape shape;
  int pixelBytes;  // of all operands together
  std::function<Job(HuxiSize)> make;
  HuxiSize only = {0, 0};  // where set: timed at this size alone
};
void add(Case);

template <class Src, class Dst, class Hux, class Peer>
void add(std::string name, Shape shape, Side<Hux> hux, Side<Peer> peer) {
  const int pixelBytes = Dst::pixelBytes + (hasSource(shape) ? Src::pixelBytes : 0) + hasMask(shape);
  add({std::move(name), peer.name, shape, pixelBytes, [=](HuxiSize size) {
         auto o = std::make_shared<Operands<Src, Dst>>(shape, size);
         const std::int64_t bytes =
             o->dst.traffic() * (isInPlace(shape) ? 2 : 1) + o->src.traffic() + o->mask.traffic();
         return Job{[=] { hux.work(*o); }, [=] { peer.work(*o); }, [=] { o->refill(); }, o->dst.bytes(), bytes};
       }});
}

}  // namespace bench
