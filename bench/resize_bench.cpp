// Resizes by every interpolation, down and up. Results of the two sides differ: the peer rounds positions or weights,
// its Lanczos takes eight pixels, and its linear mode halves by means. They are timed, not compared.
#include "numbers.h"

namespace {

// Images that hold numbers and whose results are not compared.
template <class T, int C>
struct Picture : bench::Numbers<T, C> {
  using bench::Numbers<T, C>::Numbers;
  std::span<std::uint8_t> bytes() const { return {}; }
};

template <class T, int C>
struct Scaled {
  HuxiSize size;
  Picture<T, C> src, dst;

  static HuxiSize times(HuxiSize s, double factor) {
    return {int(s.width * factor + 1e-7), int(s.height * factor + 1e-7)};
  }
  // The larger of the two sides has the size of the case.
  Scaled(HuxiSize s, double factor)
      : size(s),
        src(factor > 1 ? times(s, 1 / factor) : s),
        dst(factor > 1 ? times(src.size, factor) : times(s, factor)) {}
};

template <class T>
using Resize = HuxStatus (*)(const T*, HuxiSize, int, HuxiRect, T*, int, HuxiSize, double, double, HuxiInterpolation);

struct Mode {
  const char* name;
  HuxiInterpolation hux;
  int peer;
};
#ifdef HUX_BENCH_OPENCV
constexpr Mode kModes[] = {{"nearest", huxiInterNearest, cv::INTER_NEAREST},
                           {"linear", huxiInterLinear, cv::INTER_LINEAR},
                           {"cubic", huxiInterCubic, cv::INTER_CUBIC},
                           {"Lanczos", huxiInterLanczos, cv::INTER_LANCZOS4}};
constexpr Mode kMean = {"mean", huxiInterSuper, cv::INTER_AREA};
#else
constexpr Mode kModes[] = {{"nearest", huxiInterNearest, 0},
                           {"linear", huxiInterLinear, 0},
                           {"cubic", huxiInterCubic, 0},
                           {"Lanczos", huxiInterLanczos, 0}};
constexpr Mode kMean = {"mean", huxiInterSuper, 0};
#endif

template <class T, int C>
void addCase(const std::string& name, Resize<T> resize, Mode mode, double factor) {
  char title[80];
  std::snprintf(title, sizeof title, "%s, %s, by %.1f", name.c_str(), mode.name, factor);
  const auto peer = PEER("resize", cv::resize(o.src.mat, o.dst.mat, o.dst.mat.size(), 0, 0, 0));
  bench::add({title, peer.name, bench::Shape::Same, 2 * C * int(sizeof(T)), [=](HuxiSize size) {
                auto o = std::make_shared<Scaled<T, C>>(size, factor);
                return bench::Job{[=] {
                                    resize(o->src.data, o->src.size, o->src.step,
                                           {0, 0, o->src.size.width, o->src.size.height}, o->dst.data, o->dst.step,
                                           o->dst.size, factor, factor, mode.hux);
                                  },
                                  [=] {
#ifdef HUX_BENCH_OPENCV
                                    cv::resize(o->src.mat, o->dst.mat, o->dst.mat.size(), 0, 0, mode.peer);
#endif
                                  },
                                  [] {},
                                  {},
                                  o->src.traffic() + o->dst.traffic()};
              }});
}

template <class T, int C>
void addResize(const std::string& name, Resize<T> resize) {
  for (const Mode& mode : kModes)
    for (double factor : {0.6, 1.7}) addCase<T, C>(name, resize, mode, factor);
  addCase<T, C>(name, resize, kModes[1], 0.5);
  for (double factor : {0.5, 0.6}) addCase<T, C>(name, resize, kMean, factor);
}

}  // namespace

void addCases() {
  addResize<Hux8u, 1>("Resize_8u_C1R", huxiResize_8u_C1R);
  addResize<Hux8u, 3>("Resize_8u_C3R", huxiResize_8u_C3R);
  addResize<Hux16u, 1>("Resize_16u_C1R", huxiResize_16u_C1R);
  addResize<Hux32f, 1>("Resize_32f_C1R", huxiResize_32f_C1R);
  addResize<Hux32f, 3>("Resize_32f_C3R", huxiResize_32f_C3R);
  // The peer writes alpha as well.
  addResize<Hux8u, 4>("Resize_8u_AC4R", huxiResize_8u_AC4R);
}
