// Complex arithmetic on images, and magnitude, phase and polar coordinates on vectors.
#include "huxs.h"
#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Numbers, bench::Pair, bench::Shape;

// A complex image is one of two channels, real parts first.
template <class C>
using PartOf = decltype(C::re);
template <class C, class T>
C* complex(T* p) {
  return reinterpret_cast<C*>(p);
}
// Two images of integers whose sums fit: where they do not, the peer wraps those of 32 bits.
template <class T, int C>
struct Operands : Pair<T, C> {
  Operands() = default;
  explicit Operands(HuxiSize s, int margin = 0) : Pair<T, C>(s, margin) {
    if constexpr (std::is_integral_v<T>)
      for (T& part : std::span(this->first, Pair<T, C>::bytes().size() / sizeof(T))) part /= 2;
  }
  std::span<std::uint8_t> bytes() const { return {}; }  // not to be refilled
};

#define PAIRS(t) complex<Hux##t>(o.src.first), o.src.step, complex<Hux##t>(o.src.second), o.src.step
#define FIRST(t) complex<Hux##t>(o.src.first), o.src.step
#define TO(t) complex<Hux##t>(o.dst.data), o.dst.step, o.size
#define CASE(name, t, hux, ...) \
  add<Operands<PartOf<Hux##t>, 2>, Image<PartOf<Hux##t>, 2>>(name, Shape::Same, RUN(hux), __VA_ARGS__)

#define SUMS(t, sfs, ...)                                                                                \
  CASE("Add_" #t "_C1R" #sfs, t, huxiAdd_##t##_C1R##sfs(PAIRS(t), TO(t) __VA_OPT__(, ) __VA_ARGS__),     \
       PEER("add", cv::add(o.src.mat1, o.src.mat2, o.dst.mat))),                                         \
      CASE("Sub_" #t "_C1R" #sfs, t, huxiSub_##t##_C1R##sfs(PAIRS(t), TO(t) __VA_OPT__(, ) __VA_ARGS__), \
           PEER("subtract", cv::subtract(o.src.mat2, o.src.mat1, o.dst.mat))),                           \
      CASE("AddC_" #t "_C1R" #sfs, t,                                                                    \
           huxiAddC_##t##_C1R##sfs(FIRST(t), Hux##t{100, 200}, TO(t) __VA_OPT__(, ) __VA_ARGS__),        \
           PEER("add", cv::add(o.src.mat1, cv::Scalar(100, 200), o.dst.mat)))

#define SCALED(t, factor)                                                                                     \
  CASE("Add_" #t "_C1RSfs, scaled", t, huxiAdd_##t##_C1RSfs(PAIRS(t), TO(t), 1), bench::noPeer()),            \
      CASE("Mul_" #t "_C1RSfs", t, huxiMul_##t##_C1RSfs(PAIRS(t), TO(t), 0), bench::noPeer()),                \
      CASE("Mul_" #t "_C1RSfs, scaled", t, huxiMul_##t##_C1RSfs(PAIRS(t), TO(t), factor), bench::noPeer()),   \
      CASE("MulC_" #t "_C1RSfs, scaled", t, huxiMulC_##t##_C1RSfs(FIRST(t), Hux##t{100, 200}, TO(t), factor), \
           bench::noPeer()),                                                                                  \
      CASE("Div_" #t "_C1RSfs", t, huxiDiv_##t##_C1RSfs(PAIRS(t), TO(t), -8), bench::noPeer()),               \
      CASE("DivC_" #t "_C1RSfs", t, huxiDivC_##t##_C1RSfs(FIRST(t), Hux##t{10, 20}, TO(t), 0), bench::noPeer())

void addArithmetic() {
  SUMS(16sc, Sfs, 0), SUMS(32sc, Sfs, 0), SUMS(32fc, );
  SCALED(16sc, 10), SCALED(32sc, 20);
  // The peer multiplies in double precision, so that last places differ and results are not compared.
  add<Pair<Hux32f, 2>, Numbers<Hux32f, 2>>(
      "Mul_32fc_C1R", Shape::Same, RUN(huxiMul_32fc_C1R(PAIRS(32fc), TO(32fc))),
      PEER("mulSpectrums", cv::mulSpectrums(o.src.mat1, o.src.mat2, o.dst.mat, 0)));
  CASE("MulC_32fc_C1R", 32fc, huxiMulC_32fc_C1R(FIRST(32fc), Hux32fc{0.5f, 2}, TO(32fc)), bench::noPeer());
  CASE("Div_32fc_C1R", 32fc, huxiDiv_32fc_C1R(PAIRS(32fc), TO(32fc)), bench::noPeer());
}

// The peer keeps the parts in planes of their own. Its results are near ours, not the same, so none are compared.
struct Cartesian : Numbers<Hux32f, 2> {
#ifdef HUX_BENCH_OPENCV
  cv::Mat parts[2];
#endif
  Cartesian() = default;
  explicit Cartesian(HuxiSize s, int margin = 0) : Numbers<Hux32f, 2>(s, margin) {
#ifdef HUX_BENCH_OPENCV
    cv::split(mat, parts);
#endif
  }
  Hux32fc* elements() const { return complex<Hux32fc>(data); }
};

// Images of both sizes have no gaps between their rows.
#define LEN o.size.width* o.size.height

void addPolar() {
  add<Cartesian, Numbers<Hux32f, 1>>("huxsMagnitude_32fc", Shape::Same,
                                     RUN(huxsMagnitude_32fc(o.src.elements(), o.dst.data, LEN)),
                                     PEER("magnitude", cv::magnitude(o.src.parts[0], o.src.parts[1], o.dst.mat)));
  add<Cartesian, Numbers<Hux32f, 1>>("huxsPhase_32fc", Shape::Same,
                                     RUN(huxsPhase_32fc(o.src.elements(), o.dst.data, LEN)),
                                     PEER("phase", cv::phase(o.src.parts[0], o.src.parts[1], o.dst.mat)));
  add<Pair<Hux32f, 1>, Cartesian>(
      "huxsPolarToCart_32fc", Shape::Same, RUN(huxsPolarToCart_32fc(o.src.first, o.src.second, o.dst.elements(), LEN)),
      PEER("polarToCart", cv::polarToCart(o.src.mat1, o.src.mat2, o.dst.parts[0], o.dst.parts[1])));
#define VECTOR(t, r)                                                                                                   \
  add<Image<Hux##r, 2>, Image<Hux##r, 1>>(                                                                             \
      "huxsMagnitude_" #t "_Sfs", Shape::Same,                                                                         \
      RUN(huxsMagnitude_##t##_Sfs(complex<Hux##t>(o.src.data), o.dst.data, LEN, 1)), bench::noPeer());                 \
  add<Image<Hux##r, 2>, Image<Hux##r, 1>>("huxsPhase_" #t "_Sfs", Shape::Same,                                         \
                                          RUN(huxsPhase_##t##_Sfs(complex<Hux##t>(o.src.data), o.dst.data, LEN, -12)), \
                                          bench::noPeer());                                                            \
  add<Image<Hux##r, 2>, Image<Hux##r, 1>>("huxsPhase_" #t "_Sfs, fast", Shape::Same,                                   \
                                          RUN(huxsPhase_##t##_Sfs(complex<Hux##t>(o.src.data), o.dst.data, LEN, 0)),   \
                                          bench::noPeer());                                                            \
  add<Pair<Hux##r, 1>, Image<Hux##r, 2>>(                                                                              \
      "huxsPolarToCart_" #t, Shape::Same,                                                                              \
      RUN(huxsPolarToCart_##t(o.src.first, o.src.second, 12, complex<Hux##t>(o.dst.data), LEN)), bench::noPeer())
  VECTOR(16sc, 16s);
  VECTOR(32sc, 32s);
}

}  // namespace

void addCases() { addArithmetic(), addPolar(); }
