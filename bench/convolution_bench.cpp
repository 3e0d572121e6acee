// Convolution beside filter2D of an image with zeros around, and matchTemplate by the turned kernel: the same sums,
// which these take by transforms as well. Results are not compared: they differ in their last bits.
#include "huxcore.h"
#include "support.h"

namespace {

using bench::Case, bench::Job, bench::Shape;

// An image, a kernel, both results, and what the peer is given.
template <class T, int C>
struct Data {
  bench::Image<T, C> src, kernel, dst;
#ifdef HUX_BENCH_OPENCV
  cv::Mat turned, framed, out;
#endif

  Data(HuxiSize size, HuxiSize k, HuxiSize result) : src(size), kernel(k), dst(result) {
    const auto fill = [](const auto& image, unsigned seed) {
      for (int y = 0; y < image.size.height; ++y)
        for (int x = 0; x < image.size.width * C; ++x)
          reinterpret_cast<T*>(image.bytes().data() + std::ptrdiff_t(y) * image.step)[x] =
              T((seed = seed * 1664525 + 1013904223) >> 24);
    };
    fill(src, 1), fill(kernel, 2);
#ifdef HUX_BENCH_OPENCV
    cv::flip(kernel.mat, turned, -1);
    const int right = k.width / 2, left = k.width - 1 - right, below = k.height / 2, above = k.height - 1 - below;
    cv::copyMakeBorder(src.mat, framed, above, below, left, right, cv::BORDER_CONSTANT, cv::Scalar());
    if (C == 1 && result.width > size.width) {
      kernel.mat.convertTo(turned, CV_32F, sizeof(T) == 4 ? 1 : 1.0 / (100.0 * k.width * k.height));
      cv::flip(turned, turned, -1);
    }
#endif
  }
};

template <class T, int C, class Hux, class Peer>
void add(std::string name, bool full, int side, int k, bench::Side<Hux> hux, bench::Side<Peer> peer) {
  const HuxiSize size{side, side}, kernel{k, k};
  const int n = full ? side + k - 1 : side - k + 1;
  bench::add(
      Case{name + " " + std::to_string(k) + "x" + std::to_string(k), peer.name, Shape::Same, int(sizeof(T)) * C * 2,
           [=](HuxiSize) {
             const auto o = std::make_shared<Data<T, C>>(size, kernel, HuxiSize{n, n});
             return Job{[=] { hux.work(*o); }, [=] { peer.work(*o); }, [] {}, {}, o->src.traffic() + o->dst.traffic()};
           },
           size});
}

#define DIVISOR 100 * o.kernel.size.width* o.kernel.size.height
#define OPERANDS SRC, o.src.size, o.kernel.data, o.kernel.step, o.kernel.size, DST
#define FULL(t, c, l, side, k, ...)                                                   \
  add<Hux##t, c>("ConvFull_" #t "_" #l, true, side, k,                                \
                 RUN(huxiConvFull_##t##_##l##R(OPERANDS __VA_OPT__(, ) __VA_ARGS__)), \
                 PEER("filter2D", cv::filter2D(o.framed, o.out, -1, o.turned, {-1, -1}, 0, cv::BORDER_CONSTANT)));
#define VALID(t, c, l, side, k, ...)                                                   \
  add<Hux##t, c>("ConvValid_" #t "_" #l, false, side, k,                               \
                 RUN(huxiConvValid_##t##_##l##R(OPERANDS __VA_OPT__(, ) __VA_ARGS__)), \
                 PEER("matchTemplate", cv::matchTemplate(o.src.mat, o.turned, o.out, cv::TM_CCORR)));
#define ALONE(name, t, c, l, side, k, ...)                                                                          \
  add<Hux##t, c>(#name "_" #t "_" #l, name##IsFull, side, k, RUN(huxi##name##_##t##_##l##R(OPERANDS, __VA_ARGS__)), \
                 bench::noPeer());
#define TEAM(name, t, side, k, ...)                                                                                 \
  add<Hux##t, 1>(                                                                                                   \
      #name "_" #t "_C1 on two threads", name##IsFull, side, k,                                                     \
      RUN(huxSetThreadCount(2); huxi##name##_##t##_C1R(OPERANDS __VA_OPT__(, ) __VA_ARGS__); huxSetThreadCount(1)), \
      bench::Side("one thread", [](auto& o) { huxi##name##_##t##_C1R(OPERANDS __VA_OPT__(, ) __VA_ARGS__); }));
constexpr bool ConvFullIsFull = true, ConvValidIsFull = false;

}  // namespace

void addCases() {
  for (const int k : {16, 40, 64, 128})
    for (const int side : {512, 1024, 2048}) {
      VALID(32f, 1, C1, side, k)
      VALID(8u, 1, C1, side, k, DIVISOR)
      TEAM(ConvValid, 32f, side, k)
      TEAM(ConvFull, 8u, side, k, DIVISOR)
    }
  for (const int k : {7, 9, 16, 40, 64, 128})
    for (const int side : {512, 1024, 2048}) {
      FULL(32f, 1, C1, side, k)
      FULL(8u, 1, C1, side, k, DIVISOR)
    }
  FULL(32f, 1, C1, 512, 400)
  FULL(32f, 1, C1, 512, 200)
  ALONE(ConvFull, 16s, 1, C1, 512, 9, DIVISOR)
  ALONE(ConvFull, 16s, 3, C3, 512, 40, DIVISOR)
  ALONE(ConvValid, 8u, 3, C3, 512, 40, DIVISOR)
  ALONE(ConvValid, 8u, 3, C3, 512, 9, DIVISOR)
}
