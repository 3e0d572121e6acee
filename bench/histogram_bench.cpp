// Histograms: 256 even bins of each type, and lists of levels for each way to count.
#include <algorithm>

#include "measures.h"

namespace {

using bench::add, bench::Image, bench::Measures, bench::Numbers, bench::Shape;

// Levels that divide a range evenly, and what is counted.
template <class Level>
struct Bins {
  std::vector<Level> levels;
  std::vector<Hux32s> counts;

  Bins(int bins, double low, double high) : counts(std::size_t(bins)) {
    for (int k = 0; k <= bins; ++k) levels.push_back(Level(low + (high - low) * k / bins));
  }
  int count() const { return int(levels.size()); }
  template <class To>
  void show(const To& to, int c = 0) const {
    std::copy(counts.begin(), counts.end(), to.numbers->begin() + c * std::ptrdiff_t(counts.size()));
  }
};
Bins<Hux32s>& integers(int bins, int low, int high) {
  static Bins<Hux32s> kept(1, 0, 1);
  if (kept.count() != bins + 1) kept = Bins<Hux32s>(bins, low, high);
  return kept;
}
Bins<Hux32f>& floats(int bins, double low, double high) {
  static Bins<Hux32f> kept(1, 0, 1);
  if (kept.count() != bins + 1) kept = Bins<Hux32f>(bins, low, high);
  return kept;
}

#ifdef HUX_BENCH_OPENCV
template <class To>
void calcHist(const cv::Mat& image, int channels, int bins, float low, float high, const To& to) {
  const float range[] = {low, high};
  const float* ranges[] = {range};
  for (int c = 0; c < channels; ++c) {
    cv::Mat counts;
    cv::calcHist(&image, 1, &c, cv::Mat(), counts, 1, &bins, ranges);
    std::copy_n(counts.ptr<float>(), bins, to.numbers->begin() + c * bins);
  }
}
#endif

template <class T, int C, class To, class Fn>
void even(Fn fn, const Image<T, C>& src, int bins, int low, int high, const To& to) {
  Hux32s levels[C][257], counts[C][256], lower[C], upper[C];
  Hux32s *pLevels[C], *pCounts[C];
  int n[C];
  for (int c = 0; c < C; ++c)
    pLevels[c] = levels[c], pCounts[c] = counts[c], n[c] = bins + 1, lower[c] = low, upper[c] = high;
  if constexpr (C == 1)
    fn(src.data, src.step, src.size, counts[0], levels[0], bins + 1, low, high);
  else
    fn(src.data, src.step, src.size, pCounts, pLevels, n, lower, upper);
  for (int c = 0; c < C; ++c) std::copy_n(counts[c], bins, to.numbers->begin() + c * bins);
}

#define EVEN(t, l, c, bins, low, high)                                                     \
  add<Image<Hux##t, c>, Measures<c * bins>>(                                               \
      "HistogramEven_" #t "_" #l "R, " #bins " bins", Shape::Same,                         \
      RUN(even<Hux##t, c>(huxiHistogramEven_##t##_##l##R, o.src, bins, low, high, o.dst)), \
      PEER("calcHist", calcHist(o.src.mat, c, bins, low, high, o.dst)))
#define RANGE(t, bins, low, high, kind)                                                                        \
  add<Numbers<Hux##t, 1>, Measures<bins>>(                                                                     \
      "HistogramRange_" #t "_C1R, " #bins " bins", Shape::Same,                                                \
      RUN(auto& b = kind(bins, low, high);                                                                     \
          huxiHistogramRange_##t##_C1R(SRC, ROI, b.counts.data(), b.levels.data(), b.count()); b.show(o.dst)), \
      PEER("calcHist", calcHist(o.src.mat, 1, bins, low, high, o.dst)))

}  // namespace

void addCases() {
  EVEN(8u, C1, 1, 256, 0, 256);
  EVEN(8u, C3, 3, 256, 0, 256);
  EVEN(8u, C4, 4, 256, 0, 256);
  EVEN(16u, C1, 1, 256, 0, 65536);
  EVEN(16u, C3, 3, 256, 0, 65536);
  RANGE(16u, 8, 0, 65536, integers);
  RANGE(32f, 16, -100, 100, floats);
  RANGE(32f, 256, -100, 100, floats);
}
