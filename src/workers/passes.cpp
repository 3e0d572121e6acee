#include "workers/passes.h"

#include <cstring>

namespace hux {
namespace {

// What is kept, and the rows that go by, are at home in a cache of 32 KiB.
constexpr Index kLinesBytes = 24 << 10;
constexpr Index kLineGrain = 64;  // elements; no vector has more

// A source row as the loops take it: one that is shorter than a vector lies in a line of its own.
template <class T>
class SourceRows {
 public:
  SourceRows(Rows<const T> rows, Index n, Index reach, bool direct)
      : rows_(rows), n_(n), reach_(reach), direct_(direct) {}

  const Element<T>* row(Index y) {
    const Element<T>* first = rows_.row(y);
    if (direct_) return first;
    std::memcpy(line_, first - reach_, std::size_t(n_ + 2 * reach_) * sizeof(T));
    return line_ + reach_;
  }

 private:
  Rows<const T> rows_;
  Index n_, reach_;
  bool direct_;
  Element<T> line_[kLineGrain + 2 * 2 * 4] = {};
};

template <class T>
Rows<T> from(Rows<T> rows, Index element) {
  rows.first += element;
  return rows;
}

}  // namespace

template <class T, class D>
void runPasses(const Passes<T, D>& filter, Rows<const T> src, Rows<D> dst, HuxiSize roi, int channels, int processed) {
  alignas(64) std::byte memory[kLinesBytes], output[kLinesBytes / 3];
  const Index pitch = kLinesBytes / (filter.height * filter.results * filter.keptBytes) / kLineGrain * kLineGrain;
  const Index lineBytes = filter.results * pitch * filter.keptBytes;
  const Index above = filter.height / 2;
  const bool whole = channels == processed;
  // Alpha of the last pixels is not even read.
  const Index elements = Index(roi.width) * channels - (channels - processed);

  const Index strip = pitch - kLineGrain;  // lines start late by the lead
  for (Index x = 0; x < elements; x += strip) {
    // A short rest begins earlier, at a pixel, and computes some elements again.
    const Index first = x > 0 && elements - x < filter.lanes ? x - kLineGrain : x;
    const Index n = std::min(elements - first, strip);
    const bool direct = n >= filter.lanes;
    SourceRows<T> newest(from(src, first), n, above * channels, direct), centre = newest;
    const Rows<D> out = from(dst, first);
    const auto outputOf = [&](Index y) { return whole && direct ? out.row(y) : reinterpret_cast<Element<D>*>(output); };

    const Index lead = Index(reinterpret_cast<std::uintptr_t>(outputOf(0)) / sizeof(D) % std::size_t(filter.lanes));
    const PassRange range = {std::max<Index>(n, filter.lanes), direct ? lead : 0, pitch};
    std::byte* lines[2 * 5];  // twice, so that the window's rows follow each other from any row on
    for (int j = 0; j < 2 * filter.height; ++j)
      lines[j] = memory + j % filter.height * lineBytes + range.lead * filter.keptBytes;

    for (Index y = 0; y < 2 * above; ++y) filter.keep(newest.row(y - above), channels, lines[y], range);
    for (Index y = 0; y < roi.height; ++y) {
      filter.step(newest.row(y + above), centre.row(y), channels, lines + y % filter.height, outputOf(y), range);
      const Element<D>* result = elementsAs<D>(output);
      if (!whole)
        for (Index i = 0; i < n; i += 4) std::memcpy(out.row(y) + i, result + i, 3 * sizeof(D));
      else if (!direct)
        std::memcpy(out.row(y), result, std::size_t(n) * sizeof(D));
    }
  }
}

template void runPasses(const Passes<Hux8u, Hux8u>&, Rows<const Hux8u>, Rows<Hux8u>, HuxiSize, int, int);
template void runPasses(const Passes<Hux8u, Hux16s>&, Rows<const Hux8u>, Rows<Hux16s>, HuxiSize, int, int);
template void runPasses(const Passes<Hux8s, Hux16s>&, Rows<const Hux8s>, Rows<Hux16s>, HuxiSize, int, int);
template void runPasses(const Passes<Hux16s, Hux16s>&, Rows<const Hux16s>, Rows<Hux16s>, HuxiSize, int, int);
template void runPasses(const Passes<Hux32f, Hux32f>&, Rows<const Hux32f>, Rows<Hux32f>, HuxiSize, int, int);

}  // namespace hux
