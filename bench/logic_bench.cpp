// Bit operations, shifts and products of fractions.
#include "numbers.h"

namespace {

using bench::add, bench::Image, bench::Pair, bench::Shape;

template <class T>
constexpr T kPixel[] = {T(200), T(100), T(50), T(25)};
constexpr Hux32u kCounts[] = {1, 2, 3, 4};

#define PAIRS o.src.first, o.src.step, o.src.second, o.src.step
#define MATS o.src.mat1, o.src.mat2, o.dst.mat
#define CASE(operands, name, t, l, c, hux, ...) \
  add<operands<Hux##t, c>, Image<Hux##t, c>>(#name "_" #t "_" #l "R", Shape::Same, RUN(hux), __VA_ARGS__)
#define IMAGES(name, t, l, c, ...) CASE(Pair, name, t, l, c, huxi##name##_##t##_##l##R(PAIRS, DST, ROI), __VA_ARGS__)
#define CONSTANT(name, t, l, c, value, ...) \
  CASE(Image, name, t, l, c, huxi##name##_##t##_##l##R(SRC, value, DST, ROI), __VA_ARGS__)

#ifdef HUX_BENCH_OPENCV
template <class T>
const cv::Scalar kScalar(kPixel<T>[0], kPixel<T>[1], kPixel<T>[2], kPixel<T>[3]);
#endif

#define BITS(name, peer, t)                                                                                       \
  IMAGES(name, t, C1, 1, PEER(#peer, cv::peer(MATS))), IMAGES(name, t, C3, 3, PEER(#peer, cv::peer(MATS))),       \
      IMAGES(name, t, AC4, 4, bench::noPeer()),                                                                   \
      CONSTANT(name##C, t, C1, 1, *kPixel<Hux##t>, PEER(#peer, cv::peer(o.src.mat, kScalar<Hux##t>, o.dst.mat))), \
      CONSTANT(name##C, t, C3, 3, kPixel<Hux##t>, PEER(#peer, cv::peer(o.src.mat, kScalar<Hux##t>, o.dst.mat))),  \
      CONSTANT(name##C, t, C4, 4, kPixel<Hux##t>, PEER(#peer, cv::peer(o.src.mat, kScalar<Hux##t>, o.dst.mat)))

void addBits() {
  BITS(And, bitwise_and, 8u), BITS(Or, bitwise_or, 8u), BITS(Xor, bitwise_xor, 8u);
  BITS(And, bitwise_and, 16u), BITS(And, bitwise_and, 32s);
  CASE(Image, Not, 8u, C1, 1, huxiNot_8u_C1R(SRC, DST, ROI),
       PEER("bitwise_not", cv::bitwise_not(o.src.mat, o.dst.mat)));
  CASE(Image, Not, 8u, C3, 3, huxiNot_8u_C3R(SRC, DST, ROI),
       PEER("bitwise_not", cv::bitwise_not(o.src.mat, o.dst.mat)));
}

void addShifts() {
  CONSTANT(LShiftC, 8u, C1, 1, 3, bench::noPeer()), CONSTANT(LShiftC, 8u, C3, 3, kCounts, bench::noPeer());
  CONSTANT(LShiftC, 16u, C1, 1, 3, bench::noPeer()), CONSTANT(LShiftC, 32s, C1, 1, 3, bench::noPeer());
  CONSTANT(RShiftC, 8u, C1, 1, 3, bench::noPeer()), CONSTANT(RShiftC, 8s, C3, 3, kCounts, bench::noPeer());
  CONSTANT(RShiftC, 16s, C1, 1, 3, bench::noPeer()), CONSTANT(RShiftC, 16u, C3, 3, kCounts, bench::noPeer());
  CONSTANT(RShiftC, 32s, C1, 1, 3, bench::noPeer()), CONSTANT(RShiftC, 32s, AC4, 4, kCounts, bench::noPeer());
}

// A multiplication by a scale rounds to nearest; what rounds down as we do is a plain loop.
template <class Operands>
void divideProducts(const Operands& o, unsigned maximum) {
  const std::int64_t n = o.dst.traffic() / int(sizeof *o.dst.data);
  for (std::int64_t i = 0; i < n; ++i) o.dst.data[i] = o.src.first[i] * unsigned(o.src.second[i]) / maximum;
}

void addMulScale() {
  IMAGES(MulScale, 8u, C1, 1, bench::Side("plain loop", [](auto& o) { divideProducts(o, 255); }));
  IMAGES(MulScale, 16u, C1, 1, bench::Side("plain loop", [](auto& o) { divideProducts(o, 65535); }));
  IMAGES(MulScale, 8u, AC4, 4, bench::noPeer());
  CONSTANT(MulCScale, 8u, C1, 1, 200, bench::noPeer()), CONSTANT(MulCScale, 8u, C3, 3, kPixel<Hux8u>, bench::noPeer());
  CONSTANT(MulCScale, 16u, C1, 1, 200, bench::noPeer());
}

}  // namespace

void addCases() { addBits(), addShifts(), addMulScale(); }
