#include "geometry/resize_super.h"

#include "core/scratch.h"

namespace hux {
namespace {

// Adds the elements of a row to sums, or sets the sums to them, as rule(sum, element) tells.
template <class T, class S, class Rule>
void addRow(const Element<T>* row, S* sums, Index elements, Rule rule) {
  constexpr int lanes = laneCount<S>;
  const auto step = [&](Index e, int count) {
    const auto pixels = convert<S>(count == lanes ? loadLanes<Lanes<T, lanes>>(row + e)
                                                  : loadLanes<Lanes<T, lanes>>(row + e, count, T(0)));
    storeLanes(sums + e, rule(loadLanes<Lanes<S, lanes>>(sums + e), pixels));
  };
  Index e = 0;
  for (; e + lanes <= elements; e += lanes) step(e, lanes);
  if (e < elements) step(e, int(elements - e));
}

// The sum of each column over a cover's rows; S has room behind the last element for a vector.
template <class T, class S, class Row>
void sumRows(const Cover& cover, S* sums, Index elements, Row row) {
  bool first = true;
  const auto add = [&](Index y, S weight) {
    const auto w = splat<Lanes<S, laneCount<S>>>(weight);
    if (first)
      addRow<T>(row(y), sums, elements, [w](auto, auto p) { return p * w; });
    else if (weight == 1)
      addRow<T>(row(y), sums, elements, [](auto sum, auto p) { return sum + p; });
    else
      addRow<T>(row(y), sums, elements, [w](auto sum, auto p) { return sum + p * w; });
    first = false;
  };
  if (cover.head != 0) add(cover.first, S(cover.head));
  for (Index y = 0; y < cover.whole; ++y) add(cover.firstWhole() + y, 1);
  if (cover.tail != 0) add(cover.firstWhole() + cover.whole, S(cover.tail));
}

// The mean of a block, in double precision.
template <class T>
T meanOf(Hux64f sum, Hux64f scale) {
  if constexpr (std::is_integral_v<T>)
    return T(std::clamp(sum * scale + 0.5, 0.0, Hux64f(std::numeric_limits<T>::max())));
  else
    return T(sum * scale);
}

// S is what columns are summed up in, Total what blocks are.
template <class T, class S, class Total>
HuxStatus decimate(const ResizePlane& p, Hux64f xStep, Hux64f yStep) {
  const Format& f = p.format;
  const Index stride = f.stride, width = p.x.count;
  const Scratch<Cover> columns(width);
  if (!columns) return huxStsNoMem;
  Covers alongX(xStep);
  for (Index x = 0; x < width; ++x) columns[x] = alongX.next();
  // Source columns from the region's first; those behind the image's last stand for it.
  const Index origin = Index(p.x.origin), needed = columns[width - 1].end();
  const Index there = std::min(needed, p.x.image - origin);
  const Scratch<S> sums((needed + 64) * stride);
  const Scratch<Total> blocks(width * stride);
  if (!sums || !blocks) return huxStsNoMem;

  const Hux64f scale = p.x.step * p.y.step;
  const auto rowAt = [&](Index y) {
    const Index row = std::min(Index(p.y.origin) + y, p.y.image - 1);
    return reinterpret_cast<const Element<T>*>(p.src + row * p.srcStep + origin * f.pixelBytes());
  };
  Covers alongY(yStep);
  for (Index y = 0; y < p.y.count; ++y) {
    const Cover rows = alongY.next();
    std::fill_n(blocks.get(), width * stride, Total(0));
    // Integer sums of columns, whose rows are all whole, have room for 65536 of them.
    constexpr Index most = std::is_integral_v<S> ? 65536 : std::numeric_limits<Index>::max();
    for (Index done = 0; done == 0 || done < rows.whole; done += most) {
      Cover part = rows;
      part.first += done, part.whole = std::min(most, rows.whole - done);
      sumRows<T>(part, sums.get(), (there - 1) * stride + f.touched, rowAt);
      for (Index e = there * stride; e < needed * stride; ++e) sums[e] = sums[e - stride];
      for (Index x = 0; x < width; ++x) {
        const Cover& cover = columns[x];
        for (int c = 0; c < f.touched; ++c) {
          const S* at = sums.get() + cover.first * stride + c;
          Total total = blocks[x * stride + c];
          if (cover.head != 0) total += Total(*at) * Total(cover.head), at += stride;
          for (Index k = 0; k < cover.whole; ++k, at += stride) total += Total(*at);
          if (cover.tail != 0) total += Total(*at) * Total(cover.tail);
          blocks[x * stride + c] = total;
        }
      }
    }
    auto* dst = reinterpret_cast<Element<T>*>(p.dst + y * p.dstStep);
    for (Index x = 0; x < width; ++x)
      for (int c = 0; c < f.touched; ++c) dst[x * stride + c] = meanOf<T>(Hux64f(blocks[x * stride + c]), scale);
  }
  return huxStsOk;
}

template <class T>
HuxStatus decimate(const ResizePlane& p) {
  const Hux64f x = 1 / p.x.step, y = 1 / p.y.step;
  if constexpr (std::is_integral_v<T>)
    if (x == std::floor(x) && y == std::floor(y)) return decimate<T, Hux32u, std::uint64_t>(p, x, y);
  return decimate<T, Hux32f, Hux32f>(p, x, y);
}

}  // namespace

HuxStatus ownviDecimateSuper(const ResizePlane& p) {
  switch (p.format.type) {
    case ElementType::u8:
      return decimate<Hux8u>(p);
    case ElementType::u16:
      return decimate<Hux16u>(p);
    case ElementType::f32:
      return decimate<Hux32f>(p);
  }
  return huxStsOk;
}

}  // namespace hux
