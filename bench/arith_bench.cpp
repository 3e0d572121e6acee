// Add, Sub, Mul, Div and their forms with a constant.
#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Numbers, bench::Pair, bench::Shape;

// Factors and denominators from 1 to 127: of these both sides round products and quotients alike.
template <class T, int C>
struct Factors : Pair<T, C> {
  Factors() = default;
  Factors(HuxiSize s, int margin = 0) : Pair<T, C>(s, margin) {
    const auto all = Pair<T, C>::bytes();
    for (std::size_t i = 0; i < all.size() / sizeof(T); ++i) {
      const T value = T(1 + all[i * sizeof(T)] % 127);
      std::memcpy(all.data() + i * sizeof(T), &value, sizeof value);
    }
  }
  std::span<std::uint8_t> bytes() const { return {}; }
};

template <class T>
constexpr T kPixel[] = {T(3), T(5), T(7), T(9)};

#ifdef HUX_BENCH_OPENCV
const cv::Scalar kScalar(3, 5, 7, 9);
// (second + sign * first) / 2, and the same with a constant.
template <class Operands>
void halfSum(const Operands& o, double sign) {
  cv::addWeighted(o.src.mat1, sign / 2, o.src.mat2, 0.5, 0, o.dst.mat);
}
template <class Operands>
void halfSumC(const Operands& o, double sign) {
  o.src.mat.convertTo(o.dst.mat, -1, 0.5, sign * kScalar[0] / 2);
}
#endif

#define PAIRS o.src.first, o.src.step, o.src.second, o.src.step
#define CASE(Source, name, t, c, hux, ...) \
  add<Source<Hux##t, c>, Numbers<Hux##t, c>>(name, Shape::Same, RUN(hux), __VA_ARGS__)
#define IMAGES(Source, op, t, scale, ...) \
  CASE(Source, #op "_" #t "_C1RSfs, scale " #scale, t, 1, huxi##op##_##t##_C1RSfs(PAIRS, DST, ROI, scale), __VA_ARGS__)
#define CONSTANT(op, t, scale, ...)                        \
  CASE(Numbers, #op "_" #t "_C1RSfs, scale " #scale, t, 1, \
       huxi##op##_##t##_C1RSfs(SRC, *kPixel<Hux##t>, DST, ROI, scale), __VA_ARGS__)
#define PIXEL(op, t, ...) \
  CASE(Numbers, #op "_" #t "_C3RSfs", t, 3, huxi##op##_##t##_C3RSfs(SRC, kPixel<Hux##t>, DST, ROI, 0), __VA_ARGS__)

#define MATS(first, second) o.src.first, o.src.second, o.dst.mat
#define WITH_SCALAR o.src.mat, kScalar, o.dst.mat
#define ONE_SCALAR o.src.mat, kScalar[0], o.dst.mat

#define INTEGERS(t)                                                                                        \
  void addArith_##t() {                                                                                    \
    IMAGES(Pair, Add, t, 0, PEER("add", cv::add(MATS(mat1, mat2))));                                       \
    IMAGES(Pair, Add, t, 1, PEER("addWeighted", halfSum(o, 1)));                                           \
    IMAGES(Pair, Sub, t, 0, PEER("subtract", cv::subtract(MATS(mat2, mat1))));                             \
    IMAGES(Pair, Sub, t, 1, PEER("addWeighted", halfSum(o, -1)));                                          \
    IMAGES(Factors, Mul, t, 0, PEER("multiply", cv::multiply(MATS(mat1, mat2))));                          \
    IMAGES(Factors, Mul, t, 4, PEER("multiply", cv::multiply(MATS(mat1, mat2), 1 / 16.0)));                \
    IMAGES(Factors, Div, t, 0, PEER("divide", cv::divide(MATS(mat2, mat1))));                              \
    IMAGES(Factors, Div, t, 1, PEER("divide", cv::divide(MATS(mat2, mat1), 0.5)));                         \
    IMAGES(Factors, Div, t, -2, PEER("divide", cv::divide(MATS(mat2, mat1), 4)));                          \
    CONSTANT(AddC, t, 0, PEER("add", cv::add(ONE_SCALAR)));                                                \
    CONSTANT(AddC, t, 1, PEER("convertTo", halfSumC(o, 1)));                                               \
    CONSTANT(SubC, t, 0, PEER("subtract", cv::subtract(ONE_SCALAR)));                                      \
    CONSTANT(SubC, t, 1, PEER("convertTo", halfSumC(o, -1)));                                              \
    CONSTANT(MulC, t, 0, PEER("multiply", cv::multiply(ONE_SCALAR)));                                      \
    CONSTANT(MulC, t, 1, PEER("multiply", cv::multiply(ONE_SCALAR, 0.5)));                                 \
    CONSTANT(DivC, t, 0, PEER("divide", cv::divide(ONE_SCALAR)));                                          \
    CONSTANT(DivC, t, -1, PEER("divide", cv::divide(ONE_SCALAR, 2)));                                      \
    PIXEL(AddC, t, PEER("add", cv::add(WITH_SCALAR)));                                                     \
    PIXEL(SubC, t, PEER("subtract", cv::subtract(WITH_SCALAR)));                                           \
    PIXEL(MulC, t, PEER("multiply", cv::multiply(WITH_SCALAR)));                                           \
    PIXEL(DivC, t, PEER("divide", cv::divide(WITH_SCALAR)));                                               \
    CASE(Pair, "Add_" #t "_AC4RSfs", t, 4, huxiAdd_##t##_AC4RSfs(PAIRS, DST, ROI, 0), bench::noPeer());    \
    CASE(Factors, "Div_" #t "_AC4RSfs", t, 4, huxiDiv_##t##_AC4RSfs(PAIRS, DST, ROI, 0), bench::noPeer()); \
  }
INTEGERS(8u)
INTEGERS(16s)
INTEGERS(16u)

#define FLOATS(op, peer, Source, first, second)                                       \
  CASE(Source, #op "_32f_C1R", 32f, 1, huxi##op##_32f_C1R(PAIRS, DST, ROI),           \
       PEER(#peer, cv::peer(MATS(first, second))));                                   \
  CASE(Numbers, #op "C_32f_C1R", 32f, 1, huxi##op##C_32f_C1R(SRC, 4, DST, ROI),       \
       PEER(#peer, cv::peer(o.src.mat, 4.0, o.dst.mat)));                             \
  CASE(Numbers, #op "C_32f_C3R", 32f, 3, huxi##op##C_32f_C3R(SRC, kPowers, DST, ROI), \
       PEER(#peer, cv::peer(o.src.mat, cv::Scalar(4, 2, 8), o.dst.mat)))
// By powers of two, where a product with the reciprocal is the quotient.
constexpr Hux32f kPowers[] = {4, 2, 8};

void addArith_32f() {
  FLOATS(Add, add, Pair, mat1, mat2);
  FLOATS(Sub, subtract, Pair, mat2, mat1);
  FLOATS(Mul, multiply, Pair, mat1, mat2);
  FLOATS(Div, divide, Factors, mat2, mat1);
}

}  // namespace

void addCases() { addArith_8u(), addArith_16s(), addArith_16u(), addArith_32f(); }
