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

// The covers of the columns, and the row of sums that they need: source columns from the region's first; those behind
// the image's last stand for it.
struct Columns {
  Scratch<Cover> covers;
  Index needed = 0, there = 0, most = 0;  // columns, those of the image, and the most of one cover

  Columns(const Axis& x, Hux64f step) : covers(x.count) {
    if (!covers) return;
    Covers walk(step);
    for (Index i = 0; i < x.count; ++i) {
      covers[i] = walk.next();
      most = std::max(most, covers[i].end() - covers[i].first);
    }
    needed = covers[x.count - 1].end();
    there = std::min(needed, x.image - Index(x.origin));
  }
  template <class T, class S, class Row>
  void sum(const Cover& rows, const Format& f, S* sums, Row row) const {
    sumRows<T>(rows, sums, (there - 1) * f.stride + f.touched, row);
    for (Index e = there * f.stride; e < needed * f.stride; ++e) sums[e] = sums[e - f.stride];
  }
};

// The source row y of a region, from its first pixel on; the rows behind the image's last stand for it.
template <class T>
const Element<T>* rowOf(const ResizePlane& p, Index y) {
  const Index row = std::min(Index(p.y.origin) + y, p.y.image - 1);
  return reinterpret_cast<const Element<T>*>(p.src + row * p.srcStep + Index(p.x.origin) * p.format.pixelBytes());
}

// Blocks of any size, one element after the other. S is what columns are summed up in, Total what blocks are.
template <class T, class S, class Total>
HuxStatus bySingles(const ResizePlane& p, const Columns& columns, Hux64f yStep) {
  const Format& f = p.format;
  const Index stride = f.stride, width = p.x.count;
  const Scratch<S> sums((columns.needed + 64) * stride);
  const Scratch<Total> blocks(width * stride);
  if (!sums || !blocks) return huxStsNoMem;
  const Hux64f scale = p.x.step * p.y.step;
  Covers alongY(yStep);
  for (Index y = 0; y < p.y.count; ++y) {
    const Cover rows = alongY.next();
    std::fill_n(blocks.get(), width * stride, Total(0));
    // Integer sums of columns, whose rows are all whole, have room for 65536 of them.
    constexpr Index most = std::is_integral_v<S> ? 65536 : std::numeric_limits<Index>::max();
    for (Index done = 0; done == 0 || done < rows.whole; done += most) {
      Cover part = rows;
      part.first += done, part.whole = std::min(most, rows.whole - done);
      columns.sum<T>(part, f, sums.get(), [&](Index row) { return rowOf<T>(p, row); });
      for (Index x = 0; x < width; ++x) {
        const Cover& cover = columns.covers[x];
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

// Writes what a format touches of `count` elements.
template <class T, class V>
void storeTouched(const Format& f, Element<T>* dst, V v, int count) {
  if (f.touched == f.stride)
    storeColours<4>(dst, v, count);
  else if (f.stride == 4 && f.touched == 3)
    storeColours<3>(dst, v, count);
  else
    for (int i = 0; i < count; i += f.stride)
      for (int c = 0; c < f.touched; ++c) dst[i + c] = v[i + c];
}

// The same in vectors, of blocks whose sums fit 32 bits and a row of sums that 32 bits count.
template <class T, class S>
HuxStatus byLanes(const ResizePlane& p, const Columns& columns, Hux64f yStep) {
  using V = Lanes<S, laneCount<S>>;
  constexpr Index lanes = lanesIn<V>, perStore = lanes * 4 / Index(sizeof(T));
  const Format& f = p.format;
  const Index stride = f.stride, elements = p.x.count * stride, all = (elements + perStore - 1) / perStore * perStore;
  // Where the samples of an element begin, and what each of them counts; 0: it is none.
  const Index room = (columns.needed + columns.most + 64) * stride;
  const Scratch<S> sums(room), weights(columns.most * all);
  const Scratch<Hux32s> first(all);
  if (!sums || !weights || !first) return huxStsNoMem;
  std::fill_n(sums.get(), room, S(0));
  std::fill_n(weights.get(), columns.most * all, S(0));
  std::fill_n(first.get(), all, 0);
  for (Index e = 0; e < elements; ++e) {
    const Cover& cover = columns.covers[e / stride];
    first[e] = Hux32s(cover.first * stride + e % stride);
    S* w = weights.get() + e;
    if (cover.head != 0) *w = S(cover.head), w += all;
    for (Index k = 0; k < cover.whole; ++k, w += all) *w = 1;
    if (cover.tail != 0) *w = S(cover.tail);
  }

  const Hux64f scale = p.x.step * p.y.step;
  const auto means = [&](Index e) {
    V total{};
    auto at = loadLanes<Lanes<Hux32s, lanes>>(first.get() + e);
    for (Index k = 0; k < columns.most; ++k, at += Hux32s(stride)) {
      const V w = loadLanes<V>(weights.get() + k * all + e), sample = gatherLanes<V>(sums.get(), at);
      if constexpr (std::is_integral_v<S>)
        total += sample & -w;
      else
        total = w != 0 ? total + sample * w : total;
    }
    const auto mean = convert<Hux64f>(total) * scale;
    if constexpr (std::is_floating_point_v<T>)
      return convert<Hux32f>(mean);
    else
      return convert<Hux32s>(lesser(mean + 0.5, splat<Lanes<Hux64f, lanes>>(Hux64f(std::numeric_limits<T>::max()))));
  };
  Covers alongY(yStep);
  for (Index y = 0; y < p.y.count; ++y) {
    columns.sum<T>(alongY.next(), f, sums.get(), [&](Index row) { return rowOf<T>(p, row); });
    auto* dst = reinterpret_cast<Element<T>*>(p.dst + y * p.dstStep);
    for (Index e = 0; e < elements; e += perStore) {
      std::array<decltype(means(e)), 4 / sizeof(T)> v;
      for (std::size_t i = 0; i < v.size(); ++i) v[i] = means(e + Index(i) * lanes);
      storeTouched(f, dst + e, narrowed<T>(v), int(std::min(perStore, elements - e)));
    }
  }
  return huxStsOk;
}

// The means of two by two pixels: the even ones of a row and the odd ones come from the same windows.
template <class T, int PerLane>
auto meansOfFour(const Windows& windows, const std::byte* upper, const std::byte* lower, Index pixelBytes, Index lane) {
  const WindowBytes a = windows.pick<PerLane>(upper, lane), b = windows.pick<PerLane>(upper + pixelBytes, lane);
  const WindowBytes c = windows.pick<PerLane>(lower, lane), d = windows.pick<PerLane>(lower + pixelBytes, lane);
  using Pixels = Lanes<T, kLaneBytes / int(sizeof(T))>;
  if constexpr (std::is_floating_point_v<T>) {
    return ((bitsAs<Pixels>(a) + bitsAs<Pixels>(c)) + (bitsAs<Pixels>(b) + bitsAs<Pixels>(d))) * T(0.25);
  } else {
    // Two elements in each lane of twice their width.
    using W = std::conditional_t<sizeof(T) == 1, Hux16u, Hux32u>;
    using Wide = Lanes<W, kLaneBytes / int(sizeof(W))>;
    constexpr W low = std::numeric_limits<T>::max(), bits = 8 * sizeof(T);
    const Wide all[4] = {bitsAs<Wide>(a), bitsAs<Wide>(b), bitsAs<Wide>(c), bitsAs<Wide>(d)};
    const Wide lows = (all[0] & low) + (all[1] & low) + (all[2] & low) + (all[3] & low);
    const Wide highs = (all[0] >> bits) + (all[1] >> bits) + (all[2] >> bits) + (all[3] >> bits);
    return bitsAs<Pixels>(((lows + W(2)) >> W(2)) | (((highs + W(2)) >> W(2)) << bits));
  }
}

// Blocks of two by two pixels that lie in the image; false where they do not, or where there are no windows for them.
template <class T>
bool byHalves(const ResizePlane& p) {
  const Format& f = p.format;
  constexpr Index size = Index(sizeof(T)), lanes = kLaneBytes / size;
  if (2 * p.x.count > p.x.image - Index(p.x.origin) || 2 * p.y.count > p.y.image - Index(p.y.origin)) return false;
  // Strips of whole pixels that are, but for the last one, whole vectors.
  const Index most = 4 * kStrip / size / (f.stride * lanes) * lanes;
  for (Index done = 0; done < p.x.count; done += most) {
    const Index elements = std::min(most, p.x.count - done) * f.stride, vectors = (elements + lanes - 1) / lanes;
    const Index firstByte = (Index(p.x.origin) + 2 * done) * f.pixelBytes();
    Windows windows;
    windows.build<int(size), int(size)>(vectors * kWindows, p.rowBytes(), f.pixelBytes(), [&](Index unit) {
      const auto e = unsigned(std::min(unit, elements - 1)), pixel = e / unsigned(f.stride);
      const Index c = std::min<Index>(e % unsigned(f.stride), f.touched - 1);
      return firstByte + (2 * Index(pixel) * f.stride + c) * size;
    });
    if (windows.perLane() == 0) return false;
    const auto rows = [&]<int PerLane>(std::integral_constant<int, PerLane>) {
      for (Index y = 0; y < p.y.count; ++y) {
        const std::byte* upper = p.src + (Index(p.y.origin) + 2 * y) * p.srcStep;
        auto* dst = reinterpret_cast<Element<T>*>(p.dst + y * p.dstStep + done * f.pixelBytes());
        for (Index e = 0; e < elements; e += lanes) {
          const Index lane = e / lanes * kWindows;
          storeTouched(f, dst + e, meansOfFour<T, PerLane>(windows, upper, upper + p.srcStep, f.pixelBytes(), lane),
                       int(std::min(lanes, elements - e)));
        }
      }
    };
    if (windows.perLane() == 1)
      rows(std::integral_constant<int, 1>{});
    else
      rows(std::integral_constant<int, 2>{});
  }
  return true;
}

template <class T>
HuxStatus decimate(const ResizePlane& p) {
  const Hux64f x = 1 / p.x.step, y = 1 / p.y.step;
  if (x == 2 && y == 2 && byHalves<T>(p)) return huxStsOk;
  const Columns columns(p.x, x);
  if (!columns.covers) return huxStsNoMem;
  const bool counted = (columns.needed + columns.most) * p.format.stride < (Index(1) << 30);
  if constexpr (std::is_integral_v<T>) {
    if (x == std::floor(x) && y == std::floor(y)) {
      if (counted && x * y * std::numeric_limits<T>::max() < 0x1p31) return byLanes<T, Hux32s>(p, columns, y);
      return bySingles<T, Hux32u, std::uint64_t>(p, columns, y);
    }
  }
  return counted ? byLanes<T, Hux32f>(p, columns, y) : bySingles<T, Hux32f, Hux32f>(p, columns, y);
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
