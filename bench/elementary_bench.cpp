// Abs, Sqr, Sqrt, Exp and Ln.
#include "support.h"

namespace {

using bench::add, bench::Image, bench::Shape;

// Numbers whose roots and logarithms exist: to 80 as floats.
template <class T, int C>
struct Positive : Image<T, C> {
  Positive() = default;
  Positive(HuxiSize s, int margin = 0) : Image<T, C>(s, margin) {
    bench::fillRandom(Image<T, C>::bytes(), 3);
    for (std::size_t i = 0; i < Image<T, C>::bytes().size() / sizeof(T); ++i) {
      std::uint16_t number;
      std::memcpy(&number, this->data + i, sizeof number);
      this->data[i] = std::is_floating_point_v<T> ? T((number + 1) * (80 / 65536.0)) : T(number / 2 | 1);
    }
  }
  std::span<std::uint8_t> bytes() const { return {}; }  // what may be refilled
};

// A destination for peers that are not exact: their results are not compared.
template <class T, int C>
struct Inexact : Image<T, C> {
  using Image<T, C>::Image;
  std::span<std::uint8_t> bytes() const { return {}; }
};

#define CASE(name, Src, Dst, t, c, hux, ...) \
  add<Src<Hux##t, c>, Dst<Hux##t, c>>(name, Shape::Same, RUN(hux), __VA_ARGS__)
#define ONE(name, Src, Dst, t, ...) \
  CASE(#name "_" #t "_C1R", Src, Dst, t, 1, huxi##name##_##t##_C1R(SRC, DST, ROI), __VA_ARGS__)
#define ONE_SFS(name, Src, Dst, t, scale, ...) \
  CASE(#name "_" #t "_C1RSfs, " #scale, Src, Dst, t, 1, huxi##name##_##t##_C1RSfs(SRC, DST, ROI, scale), __VA_ARGS__)

#ifdef HUX_BENCH_OPENCV
// The function as a table of bytes, made by ourselves.
template <class Function>
cv::Mat tableOf(Function function) {
  cv::Mat bytes(1, 256, CV_8U), table(1, 256, CV_8U);
  for (int i = 0; i < 256; ++i) bytes.data[i] = Hux8u(i);
  function(bytes.data, 256, table.data, 256, HuxiSize{256, 1});
  return table;
}
// A function that exists on floats alone, between two conversions.
template <class Function>
void throughFloats(const cv::Mat& src, cv::Mat& dst, Function function, double scale) {
  static cv::Mat floats;
  src.convertTo(floats, CV_32F);
  function(floats, floats);
  floats.convertTo(dst, dst.type(), scale);
}
#endif
#define LUT(name, scale)                                                                                           \
  PEER("LUT", static const cv::Mat table = tableOf([](auto... a) { return huxi##name##_8u_C1RSfs(a..., scale); }); \
       cv::LUT(o.src.mat, table, o.dst.mat))
#define THROUGH_FLOATS(function, scale)       \
  PEER("convertTo, " #function ", convertTo", \
       throughFloats(                         \
           o.src.mat, o.dst.mat, [](auto&&... a) { cv::function(a...); }, scale))

void addAbs() {
  ONE(Abs, Image, Image, 16s, PEER("absdiff", cv::absdiff(o.src.mat, cv::Scalar::all(0), o.dst.mat)));
  ONE(Abs, Positive, Image, 32f, PEER("absdiff", cv::absdiff(o.src.mat, cv::Scalar::all(0), o.dst.mat)));
}

#define SQUARE(...) PEER("multiply", cv::multiply(o.src.mat, o.src.mat, o.dst.mat __VA_OPT__(, ) __VA_ARGS__))
void addSqr() {
  ONE_SFS(Sqr, Image, Image, 8u, 0, SQUARE()), ONE_SFS(Sqr, Image, Image, 8u, 8, SQUARE(1 / 256.0));
  ONE_SFS(Sqr, Image, Image, 16u, 0, SQUARE()), ONE_SFS(Sqr, Image, Inexact, 16u, 16, SQUARE(1 / 65536.0));
  ONE_SFS(Sqr, Image, Image, 16s, 0, SQUARE()), ONE_SFS(Sqr, Image, Inexact, 16s, 15, SQUARE(1 / 32768.0));
  ONE(Sqr, Positive, Image, 32f, SQUARE());
  CASE("Sqr_8u_AC4RSfs, 8", Image, Image, 8u, 4, huxiSqr_8u_AC4RSfs(SRC, DST, ROI, 8), bench::noPeer());
  CASE("Sqr_32f_AC4R", Positive, Image, 32f, 4, huxiSqr_32f_AC4R(SRC, DST, ROI), bench::noPeer());
}

void addSqrt() {
  ONE_SFS(Sqrt, Image, Image, 8u, -4, LUT(Sqrt, -4));
  ONE_SFS(Sqrt, Image, Image, 16u, 0, THROUGH_FLOATS(sqrt, 1));
  ONE_SFS(Sqrt, Image, Inexact, 16u, -8, THROUGH_FLOATS(sqrt, 256));
  ONE_SFS(Sqrt, Positive, Inexact, 16s, -7, THROUGH_FLOATS(sqrt, 128));
  ONE(Sqrt, Positive, Image, 32f, PEER("sqrt", cv::sqrt(o.src.mat, o.dst.mat)));
  CASE("Sqrt_32f_AC4R", Positive, Image, 32f, 4, huxiSqrt_32f_AC4R(SRC, DST, ROI), bench::noPeer());
}

void addExpLn() {
  ONE_SFS(Exp, Image, Image, 8u, 0, LUT(Exp, 0));
  ONE_SFS(Exp, Image, Inexact, 16s, 0, THROUGH_FLOATS(exp, 1));
  ONE(Exp, Positive, Inexact, 32f, PEER("exp", cv::exp(o.src.mat, o.dst.mat)));
  ONE_SFS(Ln, Image, Image, 8u, -5, LUT(Ln, -5));
  ONE_SFS(Ln, Positive, Inexact, 16s, -10, THROUGH_FLOATS(log, 1024));
  ONE(Ln, Positive, Inexact, 32f, PEER("log", cv::log(o.src.mat, o.dst.mat)));
}

}  // namespace

void addCases() { addAbs(), addSqr(), addSqrt(), addExpLn(); }
