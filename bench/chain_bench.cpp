// Chains beside the calls one by one and beside OpenCV's sequence, on one thread and on two, by size of the image.
//
//   chain_bench --benchmark_filter=points5-8u --benchmark_min_time=0.05 --benchmark_format=json
//
// Names are what is done, the side of the image, who does it, and threads: points5-8u/6000/chain/2. Points are 1, 3, 5
// or 8 calls on pixels, windows a box or Gauss, Sobel, a threshold, an erosion and a dilation. Times are of the clock.
#include <benchmark/benchmark.h>

#include <cstring>

#include "hux/chain.hpp"
#include "hux/image.hpp"
#include "support.h"

namespace {

using u8 = std::uint8_t;

// The images of a case: the last ones used are kept, as all who work on them do so in turn.
template <class T>
struct Images {
  explicit Images(int side) : a(side, side), b(side, side), out(side, side), x(side, side), y(side, side) {
    bench::fillRandom({reinterpret_cast<u8*>(a.data()), bytes()}, 1);
    bench::fillRandom({reinterpret_cast<u8*>(b.data()), bytes()}, 2);
    if constexpr (std::is_same_v<T, float>)
      for (auto* image : {&a, &b})
        for (int row = 0; row < side; ++row)
          for (int i = 0; i < side; ++i) *image->at(i, row) = float((i * 7 + row * 13) % 1009) / 512;
  }
  std::size_t bytes() const { return std::size_t(a.step()) * std::size_t(a.height()); }

  hux::image<T, 1> a, b, out, x, y;
};
template <class T>
Images<T>& images(int side) {
  static std::unique_ptr<Images<T>> kept;
  if (!kept || kept->a.width() != side) kept.reset(), kept = std::make_unique<Images<T>>(side);
  return *kept;
}

// Calls on pixels, as many as are asked for. Who has add, mul and the others takes them from the one before.
template <class T, class Calls>
auto points(const Calls& c, int count, auto a, auto b) {
  constexpr bool kBytes = std::is_same_v<T, u8>;
  auto t = c.add(a, b);
  if (count == 1) return t;
  t = c.sub(c.mul(t), b);
  if (count == 3) return t;
  t = c.threshold(t);
  if constexpr (kBytes)
    t = c.xor_(t, b);
  else
    t = c.mul(t, b);
  if (count == 5) return t;
  t = c.sub(c.add(t), a);
  if constexpr (kBytes)
    return c.xor_(t, a);
  else
    return c.mul(t, a);
}

template <class T>
struct InChain {
  using Node = hux::node<T, 1>;
  hux::chain& c;
  Node add(Node a, Node b) const {
    if constexpr (std::is_same_v<T, u8>)
      return c.add(a, b, {.shift = 1});
    else
      return c.add(a, b);
  }
  Node add(Node a) const { return c.add(a, T(9)); }
  Node mul(Node a) const {
    if constexpr (std::is_same_v<T, u8>)
      return c.mul(a, T(3), {.shift = 1});
    else
      return c.mul(a, 1.5f);
  }
  Node mul(Node a, Node b) const { return c.mul(a, b); }
  Node sub(Node a, Node b) const { return c.sub(a, b); }
  Node threshold(Node a) const { return c.threshold_gt(a, T(std::is_same_v<T, u8> ? 100 : 1)); }
  Node xor_(Node a, Node b) const requires std::is_same_v<T, u8> { return c.xor_(a, b); }
};

// One by one: results go to two images in turn, and the last one where it is wanted.
template <class T>
struct OneByOne {
  using View = hux::view<T, 1>;
  Images<T>& own;
  int last;
  mutable int made = 0;
  View next() const { return ++made == last ? View(own.out) : made % 2 ? View(own.x) : View(own.y); }
  View add(View a, View b) const {
    const View to = next();
    if constexpr (std::is_same_v<T, u8>)
      hux::add(a, b, to, {.shift = 1});
    else
      hux::add(a, b, to);
    return to;
  }
  View add(View a) const {
    return with([&](View to) { hux::add(a, T(9), to); });
  }
  View mul(View a) const {
    if constexpr (std::is_same_v<T, u8>)
      return with([&](View to) { hux::mul(a, T(3), to, {.shift = 1}); });
    else
      return with([&](View to) { hux::mul(a, 1.5f, to); });
  }
  View mul(View a, View b) const {
    return with([&](View to) { hux::mul(a, b, to); });
  }
  View sub(View a, View b) const {
    return with([&](View to) { hux::sub(a, b, to); });
  }
  View threshold(View a) const {
    return with([&](View to) { hux::threshold_gt(a, T(std::is_same_v<T, u8> ? 100 : 1), to); });
  }
  View xor_(View a, View b) const requires std::is_same_v<T, u8> {
    return with([&](View to) { hux::xor_(a, b, to); });
  }
  View with(auto call) const {
    const View to = next();
    call(to);
    return to;
  }
};

// Box (of floats: Gauss), Sobel, threshold, erosion, dilation.
template <class T>
void windows(hux::chain& c, Images<T>& own) {
  auto x = c.input(own.a);
  if constexpr (std::is_same_v<T, u8>) {
    auto edges = c.filter_sobel_horiz(c.filter_box(x, {5, 5}));
    c.output(c.dilate3x3(c.erode3x3(c.threshold_lt_val(edges, T(40), T(0)))), own.out);
  } else {
    auto edges = c.filter_sobel_horiz(c.filter_gauss(x, hux::mask_size::m3x3));
    c.output(c.dilate3x3(c.erode3x3(c.threshold_gt(edges, T(1)))), own.out);
  }
}
template <class T>
void windows(Images<T>& own) {
  if constexpr (std::is_same_v<T, u8>) {
    hux::filter_box(own.a, own.x, {5, 5});
    hux::filter_sobel_horiz(own.x, own.y);
    hux::threshold_lt_val(own.y, T(40), T(0), own.x);
  } else {
    hux::filter_gauss(own.a, own.x, hux::mask_size::m3x3);
    hux::filter_sobel_horiz(own.x, own.y);
    hux::threshold_gt(own.y, T(1), own.x);
  }
  hux::erode3x3(own.x, own.y);
  hux::dilate3x3(own.y, own.out);
}

#ifdef HUX_BENCH_OPENCV
template <class T>
cv::Mat mat(hux::image<T, 1>& image) {
  return cv::Mat(image.height(), image.width(), CV_MAKETYPE(cv::traits::Depth<T>::value, 1), image.data(),
                 std::size_t(image.step()));
}
template <class T>
struct InOpenCV {
  Images<T>& own;
  int last;
  mutable int made = 0;
  cv::Mat with(auto call) const {
    cv::Mat to = ++made == last ? mat(own.out) : made % 2 ? mat(own.x) : mat(own.y);
    call(to);
    return to;
  }
  cv::Mat add(const cv::Mat& a, const cv::Mat& b) const {
    return with([&](cv::Mat& to) {
      if constexpr (std::is_same_v<T, u8>)
        cv::addWeighted(a, 0.5, b, 0.5, 0, to);
      else
        cv::add(a, b, to);
    });
  }
  cv::Mat add(const cv::Mat& a) const {
    return with([&](cv::Mat& to) { cv::add(a, cv::Scalar(9), to); });
  }
  cv::Mat mul(const cv::Mat& a) const {
    return with([&](cv::Mat& to) { a.convertTo(to, -1, 1.5); });
  }
  cv::Mat mul(const cv::Mat& a, const cv::Mat& b) const {
    return with([&](cv::Mat& to) { cv::multiply(a, b, to); });
  }
  cv::Mat sub(const cv::Mat& a, const cv::Mat& b) const {
    return with([&](cv::Mat& to) { cv::subtract(a, b, to); });
  }
  cv::Mat threshold(const cv::Mat& a) const {
    return with([&](cv::Mat& to) { cv::threshold(a, to, std::is_same_v<T, u8> ? 100 : 1, 0, cv::THRESH_TRUNC); });
  }
  cv::Mat xor_(const cv::Mat& a, const cv::Mat& b) const {
    return with([&](cv::Mat& to) { cv::bitwise_xor(a, b, to); });
  }
};
// Its means of bytes are rounded, ours are not: where results are compared, the first window is ours.
template <class T>
void windowsInOpenCV(Images<T>& own, bool compared) {
  cv::Mat a = mat(own.a), x = mat(own.x), y = mat(own.y), out = mat(own.out);
  if constexpr (!std::is_same_v<T, u8>)
    cv::GaussianBlur(a, x, {3, 3}, 0, 0, cv::BORDER_REPLICATE);
  else if (compared)
    hux::filter_box(own.a, own.x, {5, 5});
  else
    cv::boxFilter(a, x, -1, {5, 5}, {-1, -1}, true, cv::BORDER_REPLICATE);
  cv::Sobel(x, y, -1, 0, 1, 3, 1, 0, cv::BORDER_REPLICATE);
  cv::threshold(y, x, std::is_same_v<T, u8> ? 39 : 1, 0, std::is_same_v<T, u8> ? cv::THRESH_TOZERO : cv::THRESH_TRUNC);
  cv::erode(x, y, {}, {-1, -1}, 1, cv::BORDER_REPLICATE);
  cv::dilate(y, out, {}, {-1, -1}, 1, cv::BORDER_REPLICATE);
}
#endif

template <class T>
void add(const std::string& work, int count, std::initializer_list<int> sides) {
  const std::string name = work + (count ? std::to_string(count) : "") + (std::is_same_v<T, u8> ? "-8u/" : "-32f/");
  const auto timed = [](benchmark::State& state, int side, const auto& run) {
    run();
    for (auto _ : state) {
      run();
      benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(std::int64_t(state.iterations()) * side * side);
  };
  const auto record = [count](hux::chain& c, Images<T>& own) {
    if (count)
      c.output(points<T>(InChain<T>{c}, count, c.input(own.a), c.input(own.b)), own.out);
    else
      windows(c, own);
  };
  for (const int side : sides)
    for (const int threads : {1, 2}) {
      const auto who = [&](const char* by, auto run) {
        const std::string full = name + std::to_string(side) + "/" + by + "/" + std::to_string(threads);
        benchmark::RegisterBenchmark(full.c_str(), run)->UseRealTime();
      };
      if (threads == 1)
        who("calls", [=](benchmark::State& state) {
          Images<T>& own = images<T>(side);
          timed(state, side, [&] {
            if (count)
              points<T>(OneByOne<T>{own, count}, count, hux::view<T, 1>(own.a), hux::view<T, 1>(own.b));
            else
              windows(own);
          });
        });
      who("chain", [=](benchmark::State& state) {
        hux::chain c;
        record(c, images<T>(side));
        timed(state, side, [&] { c.run({.threads = threads}); });
      });
      if (threads == 1 && side <= 64)
        who("chain-and-recording", [=](benchmark::State& state) {
          Images<T>& own = images<T>(side);
          timed(state, side, [&] {
            hux::chain c;
            record(c, own);
            c.run();
          });
        });
#ifdef HUX_BENCH_OPENCV
      who("opencv", [=](benchmark::State& state) {
        Images<T>& own = images<T>(side);
        cv::setNumThreads(threads);
        const auto run = [&](bool compared) {
          if (count)
            points<T>(InOpenCV<T>{own, count}, count, mat(own.a), mat(own.b));
          else
            windowsInOpenCV(own, compared);
        };
        timed(state, side, [&] { run(false); });
        cv::setNumThreads(1);
        // The same work: the same bytes.
        run(true);
        hux::image<T, 1> theirs = own.out;
        hux::chain c;
        record(c, own);
        c.run();
        for (int y = 0; y < side; ++y)
          if (std::memcmp(theirs.row(y), own.out.row(y), sizeof(T) * std::size_t(side)) != 0)
            return state.SkipWithError("the peer's result differs");
      });
#endif
    }
}

}  // namespace

void addCases() {
  for (const int count : {1, 3, 5, 8}) {
    add<u8>("points", count, {16, 64, 512, 1024, 2048, 4096, 6000, 12000});
    add<float>("points", count, {16, 64, 512, 1024, 2048, 4096, 6000});
  }
  add<u8>("windows", 0, {16, 64, 512, 1024, 2048, 4096, 6000, 12000});
  add<float>("windows", 0, {16, 64, 512, 1024, 2048, 4096, 6000});
}
