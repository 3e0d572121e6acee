#include "workers/passes.h"

#include <cstdlib>
#include <cstring>

namespace hux {
namespace {

// As many rows as the processor can foresee beside those around them, in memory and in the ways of its cache.
constexpr Index kBlockRows = 8;
// Where the caches hold both images, more rows of windows that are five rows high: above each block, four are computed
// again.
constexpr Index kCachedRows = 32, kCached = Index(4) << 20;  // bytes
constexpr Index kGrain = 64;                                 // elements; no vector has more

// Source rows where they are shorter than a vector: copies, around which memory is readable.
template <class T>
class ShortRows {
 public:
  ShortRows(const Rows<const T>& src, Index y, Index rows, Index above, Index bytes, Index before) {
    for (Index j = 0; j < rows + 2 * above; ++j)
      std::memcpy(lines_[j], advance(src.row(y + j - above), -before), std::size_t(bytes + 2 * before));
    first_ = advance(lines_[above], before);
  }
  const Element<T>* first() const { return first_; }
  static constexpr Index step = Index(sizeof(T)) * (kGrain + 2 * 2 * 4);

 private:
  Element<T> lines_[kBlockRows + 4][kGrain + 2 * 2 * 4] = {};
  const Element<T>* first_;
};

template <class D>
void storeRow(Element<D>* dst, const Element<D>* row, Index n, bool whole) {
  if (whole) return void(std::memcpy(dst, row, std::size_t(n) * sizeof(D)));
  for (Index i = 0; i < n; i += 4) std::memcpy(dst + i, row + i, 3 * sizeof(D));
}

}  // namespace

template <class T, class D>
void runPasses(const Passes<T, D>& filter, Rows<const T> src, Rows<D> dst, HuxiSize roi, int channels, int processed) {
  const Index above = filter.height / 2, lanes = filter.lanes;
  const bool whole = channels == processed;
  // Alpha of the last pixels is not even read.
  const Index elements = Index(roi.width) * channels - (channels - processed);
  const bool direct = whole && elements >= lanes;
  const bool cached = roi.height * (std::abs(src.step) + std::abs(dst.step)) <= kCached;
  // Rows that overlap are written one after another, so that the last one stands.
  const Index most = std::abs(dst.step) < elements * Index(sizeof(D)) ? 1
                     : direct && cached && filter.height == 5         ? kCachedRows
                                                                      : kBlockRows;

  for (Index y = 0; y < roi.height; y += most) {
    const Index rows = std::min(most, roi.height - y);
    if (direct) {
      const Index lead = Index(reinterpret_cast<std::uintptr_t>(dst.row(y)) / sizeof(D) % std::size_t(lanes));
      filter.run(src.row(y), channels, dst.row(y), {elements, lead, rows, src.step, dst.step});
      continue;
    }
    // Through memory of ours, from where only colours are taken.
    constexpr Index strip = 8 * kGrain;
    alignas(64) Element<D> output[kBlockRows][strip];
    for (Index x = 0; x < elements; x += strip) {
      // A short rest begins earlier, at a pixel, and computes some elements again.
      const Index first = x > 0 && elements - x < lanes ? x - kGrain : x;
      const Index n = std::min(elements - first, strip);
      const PassBlock block = {std::max(n, lanes), 0, rows, src.step, sizeof output[0]};
      if (n >= lanes) {
        filter.run(src.row(y) + first, channels, output[0], block);
      } else {
        const ShortRows<T> copies(src, y, rows, above, n * Index(sizeof(T)), above * channels * Index(sizeof(T)));
        filter.run(copies.first(), channels, output[0], {block.n, 0, rows, copies.step, block.dstStep});
      }
      for (Index r = 0; r < rows; ++r) storeRow(dst.row(y + r) + first, output[r], n, whole);
    }
  }
}

template void runPasses(const Passes<Hux8u, Hux8u>&, Rows<const Hux8u>, Rows<Hux8u>, HuxiSize, int, int);
template void runPasses(const Passes<Hux8u, Hux16s>&, Rows<const Hux8u>, Rows<Hux16s>, HuxiSize, int, int);
template void runPasses(const Passes<Hux8s, Hux16s>&, Rows<const Hux8s>, Rows<Hux16s>, HuxiSize, int, int);
template void runPasses(const Passes<Hux16s, Hux16s>&, Rows<const Hux16s>, Rows<Hux16s>, HuxiSize, int, int);
template void runPasses(const Passes<Hux32f, Hux32f>&, Rows<const Hux32f>, Rows<Hux32f>, HuxiSize, int, int);

}  // namespace hux
