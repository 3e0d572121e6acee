// Sum and Mean.
#include "measures.h"

namespace {

using bench::add, bench::Measures, bench::Numbers, bench::Shape;

#define SUM(t, l, c, ...)                                                   \
  add<Numbers<Hux##t, c>, Measures<4>>(                                     \
      "Sum_" #t "_" #l, Shape::Same,                                        \
      RUN(Hux64f sum[4] = {}; huxiSum_##t##_##l(SRC, ROI, sum __VA_ARGS__); \
          o.dst.set(sum[0], sum[1], sum[2], sum[3])),                       \
      PEER("sum", const auto sum = cv::sum(o.src.mat); o.dst.set(sum[0], sum[1], sum[2], sum[3])))
#define SUMS(t, ...)                                                                      \
  SUM(t, C1R, 1, __VA_ARGS__);                                                            \
  SUM(t, C3R, 3, __VA_ARGS__);                                                            \
  SUM(t, C4R, 4, __VA_ARGS__);                                                            \
  add<Numbers<Hux##t, 1>, Measures<1>>(                                                   \
      "Mean_" #t "_C1R", Shape::Region,                                                   \
      RUN(Hux64f mean; huxiMean_##t##_C1R(SRC, ROI, &mean __VA_ARGS__); o.dst.set(mean)), \
      PEER("mean", o.dst.set(cv::mean(o.src.mat)[0])))

}  // namespace

void addCases() {
  SUMS(8u, );
  SUMS(16s, );
  SUMS(16u, );
  SUMS(32f, , 0);
}
