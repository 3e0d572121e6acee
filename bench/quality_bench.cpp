// QualityIndex, on one thread. Nobody else has it, so that the peer is the definition as one would write it down.
#include "measures.h"

namespace {

using bench::add, bench::Measures, bench::Pair, bench::Shape;

template <class T>
double defined(const T* p, const T* q, int step, HuxiSize size) {
  const int pitch = step / int(sizeof(T));
  double sumP = 0, sumQ = 0, squaresP = 0, squaresQ = 0, products = 0;
  for (int y = 0; y < size.height; ++y)
    for (int x = 0; x < size.width; ++x) {
      const double a = p[std::int64_t(y) * pitch + x], b = q[std::int64_t(y) * pitch + x];
      sumP += a, sumQ += b, squaresP += a * a, squaresQ += b * b, products += a * b;
    }
  const double n = double(size.width) * size.height, mp = sumP / n, mq = sumQ / n;
  return 4 * (products - n * mp * mq) * mp * mq /
         ((squaresP - n * mp * mp + squaresQ - n * mq * mq) * (mp * mp + mq * mq));
}

// The sums of the two are of different precision, so that few digits are compared.
void give(double index, const Measures<1>& to) { to.set(std::int64_t(index * 100 + 1000.5)); }

#define OPERANDS o.src.first, o.src.step, o.src.second, o.src.step
#define CASE(types, t, l, c, ...)                 \
  add<Pair<Hux##t, c>, Measures<1>>(              \
      "QualityIndex_" #types "_" #l, Shape::Same, \
      RUN(Hux32f q[3]; huxiQualityIndex_##types##_##l(OPERANDS, ROI, q); give(*q, o.dst)), __VA_ARGS__)
#define LOOP \
  bench::Side("plain loop", [](auto& o) { give(defined(o.src.first, o.src.second, o.src.step, o.size), o.dst); })

}  // namespace

void addCases() {
  CASE(8u32f, 8u, C1R, 1, LOOP);
  CASE(32f, 32f, C1R, 1, LOOP);
  CASE(8u32f, 8u, C3R, 3, bench::noPeer());
  CASE(32f, 32f, C3R, 3, bench::noPeer());
  CASE(8u32f, 8u, AC4R, 4, bench::noPeer());
}
