// Norm, NormDiff and NormRel. The peer has one norm for all channels together, which is as much work.
#include "measures.h"

namespace {

using bench::add, bench::Measures, bench::Numbers, bench::Pair, bench::Shape;

// Random integers without the largest magnitudes, at which a search for them would stop.
template <class Images>
struct Modest : Images {
  Modest() = default;
  Modest(HuxiSize s, int margin = 0) : Images(s, margin) {
    for (auto& byte : Images::bytes()) byte &= 0x3f;
  }
  std::span<std::uint8_t> bytes() const { return {}; }
};

#define IMAGES o.src.first, o.src.step, o.src.second, o.src.step
#define NORM(M, CV, t, l, c, ...)                                                    \
  add<Modest<Numbers<Hux##t, c>>, Measures<1>>(                                      \
      "Norm_" #M "_" #t "_" #l "R", Shape::Same,                                     \
      RUN(Hux64f value[4]; huxiNorm_##M##_##t##_##l##R(SRC, ROI, value __VA_ARGS__); \
          o.dst.set(c == 1 ? value[0] : 0)),                                         \
      PEER("norm", const auto value = cv::norm(o.src.mat, CV); o.dst.set(c == 1 ? value : 0)))
#define PAIR(F, M, CV, t, l, c, ...)                                                     \
  add<Modest<Pair<Hux##t, c>>, Measures<1>>(                                             \
      #F "_" #M "_" #t "_" #l "R", Shape::Same,                                          \
      RUN(Hux64f value[4]; huxi##F##_##M##_##t##_##l##R(IMAGES, ROI, value __VA_ARGS__); \
          o.dst.set(c == 1 ? value[0] : 0)),                                             \
      PEER("norm", const auto value = cv::norm(o.src.mat1, o.src.mat2, CV); o.dst.set(c == 1 ? value : 0)))
#define NORMS(M, CV, t, ...)                    \
  NORM(M, CV, t, C1, 1, __VA_ARGS__);           \
  NORM(M, CV, t, C3, 3, __VA_ARGS__);           \
  PAIR(NormDiff, M, CV, t, C1, 1, __VA_ARGS__); \
  PAIR(NormDiff, M, CV, t, C4, 4, __VA_ARGS__); \
  PAIR(NormRel, M, CV | cv::NORM_RELATIVE, t, C1, 1, __VA_ARGS__)
#define METRICS(t, ...)                   \
  NORMS(Inf, cv::NORM_INF, t, );          \
  NORMS(L1, cv::NORM_L1, t, __VA_ARGS__); \
  NORMS(L2, cv::NORM_L2, t, __VA_ARGS__)

}  // namespace

void addCases() {
  METRICS(8u, );
  METRICS(16s, );
  METRICS(16u, );
  METRICS(32f, , 0);
  NORM(Inf, cv::NORM_INF, 32s, C1, 1, );
}
