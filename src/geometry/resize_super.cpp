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
HuxStatus bySingles(const ResizePlane& p, const Columns& columns, Hux64f yStep, Planes rest) {
  const Format& f = p.format;
  const Index stride = f.stride, width = p.x.count;
  const Scratch<S> sums((columns.needed + 64) * stride);
  const Scratch<Total> blocks(width * stride);
  if (!sums || !blocks) return huxStsNoMem;
  if (HuxStatus s = ownviDecimateSuper(rest)) return s;
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
HuxStatus byLanes(const ResizePlane& p, const Columns& columns, Hux64f yStep, Planes rest) {
  using V = Lanes<S, laneCount<S>>;
  constexpr Index lanes = lanesIn<V>, perStore = lanes * 4 / Index(sizeof(T));
  const Format& f = p.format;
  const Index stride = f.stride, elements = p.x.count * stride, all = (elements + perStore - 1) / perStore * perStore;
  // Where the samples of an element begin, and what each of them counts; 0: it is none.
  const Index room = (columns.needed + columns.most + 64) * stride;
  const Scratch<S> sums(room), weights(columns.most * all);
  const Scratch<Hux32s> first(all);
  if (!sums || !weights || !first) return huxStsNoMem;
  if (HuxStatus s = ownviDecimateSuper(rest)) return s;
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

// The means of two by two pixels that follow each other, `Channels` elements each: those of one vector from two vectors
// of either row.
template <class T, int Channels>
auto meansOfTwice(const std::byte* upper, const std::byte* lower) {
  constexpr int lanes = kLaneBytes / int(sizeof(T));
  using Pixels = Lanes<T, lanes>;
  if constexpr (std::is_floating_point_v<T>) {
    const auto sum = [&](Index at) { return loadLanes<Pixels>(upper + at) + loadLanes<Pixels>(lower + at); };
    const Pixels a = sum(0), b = sum(kLaneBytes);
    const auto every = [&]<int Odd, std::size_t... I>(std::integral_constant<int, Odd>, std::index_sequence<I...>) {
      return __builtin_shufflevector(a, b, ((int(I) / Channels * 2 + Odd) * Channels + int(I) % Channels)...);
    };
    constexpr std::make_index_sequence<std::size_t(lanes)> all;
    return (every(std::integral_constant<int, 0>{}, all) + every(std::integral_constant<int, 1>{}, all)) * T(0.25);
  } else {
    // Two elements in each lane of twice their width: those of neighbouring pixels, side by side.
    using W = std::conditional_t<sizeof(T) == 1, Hux16u, Hux32u>;
    using Wide = Lanes<W, kLaneBytes / int(sizeof(W))>;
    constexpr W low = std::numeric_limits<T>::max(), bits = 8 * sizeof(T);
    static constexpr auto pairs = [] {
      std::array<Hux8u, kLaneBytes> pick{};
      for (int j = 0; j < kLaneBytes; ++j) {
        const int e = j % kWindowBytes / int(sizeof(T)), pair = e / 2;
        const int from = (pair / Channels * 2 + e % 2) * Channels + pair % Channels;
        pick[std::size_t(j)] = Hux8u(from * int(sizeof(T)) + j % int(sizeof(T)));
      }
      return pick;
    }();
    const auto load = [](const std::byte* row) {
      const auto v = loadLanes<WindowBytes>(row);
      return bitsAs<Wide>(Channels == 1 ? v : pickBytes(v, loadLanes<WindowBytes>(pairs.data())));
    };
    const auto means = [&](Index at) {
      const Wide u = load(upper + at), l = load(lower + at);
      return ((u & low) + (u >> bits) + (l & low) + (l >> bits) + W(2)) >> W(2);
    };
    const Wide a = means(0), b = means(kLaneBytes);
    if constexpr (sizeof(T) == 1) {
      using Words = Lanes<Hux16s, lanesIn<Wide>>;
      return inOrder<2>(packBytes(Words(a), Words(b)));
    } else {
      using Signed = Lanes<Hux32s, lanesIn<Wide>>;
      return narrowed<T>(std::array<Signed, 2>{Signed(a), Signed(b)});
    }
  }
}

// Blocks of two by two pixels whose size lets them fill vectors.
template <class T, int Channels>
void halves(const ResizePlane& p) {
  const Format& f = p.format;
  constexpr Index size = Index(sizeof(T)), lanes = kLaneBytes / size;
  // What is there of a row: alpha of the last pixel may lie outside the image.
  const Index elements = p.x.count * f.stride, there = (2 * elements - (f.stride - f.touched)) * size;
  for (Index y = 0; y < p.y.count; ++y) {
    const std::byte* upper = p.src + (Index(p.y.origin) + 2 * y) * p.srcStep + Index(p.x.origin) * f.pixelBytes();
    const std::byte* lower = upper + p.srcStep;
    auto* dst = reinterpret_cast<Element<T>*>(p.dst + y * p.dstStep);
    Index e = 0;
    for (; 2 * (e + lanes) * size <= there; e += lanes)
      storeTouched(f, dst + e, meansOfTwice<T, Channels>(upper + 2 * e * size, lower + 2 * e * size), lanes);
    if (e == elements) continue;
    std::byte ends[2][2 * kLaneBytes] = {};
    std::memcpy(ends[0], upper + 2 * e * size, std::size_t(there - 2 * e * size));
    std::memcpy(ends[1], lower + 2 * e * size, std::size_t(there - 2 * e * size));
    storeTouched(f, dst + e, meansOfTwice<T, Channels>(ends[0], ends[1]), int(elements - e));
  }
}

// The means of two by two pixels of integers, three elements each, from windows that hold twelve bytes of either row:
// four for each window, two of words. Writes four bytes more.
template <class T>
void meansOfThrees(const std::byte* upper, const std::byte* lower, std::byte* dst) {
  constexpr Index used = 12;
  static constexpr auto windows = [] {
    std::array<Index, kWindows> at{};
    for (int w = 0; w < kWindows; ++w) at[std::size_t(w)] = w * used;
    return at;
  }();
  // Two elements in each lane of twice their width: those of neighbouring pixels, side by side.
  using W = std::conditional_t<sizeof(T) == 1, Hux16u, Hux32u>;
  using Wide = Lanes<W, kLaneBytes / int(sizeof(W))>;
  constexpr W low = std::numeric_limits<T>::max(), bits = 8 * sizeof(T);
  static constexpr auto picks = [](auto source) {
    std::array<Hux8u, kLaneBytes> all{};
    for (int j = 0; j < kLaneBytes; ++j) all[std::size_t(j)] = Hux8u(source(j % kWindowBytes));
    return all;
  };
  static constexpr auto pairs = picks([](int j) {
    constexpr int size = sizeof(T);
    const int e = j / size, pair = e / 2;
    return j < used ? (pair / 3 * 6 + e % 2 * 3 + pair % 3) * size + j % size : 0x80;
  });
  const auto means = [&](Index at) {
    const auto load = [&](const std::byte* row) {
      return bitsAs<Wide>(pickBytes(loadWindows(row + at, windows.data()), loadLanes<WindowBytes>(pairs.data())));
    };
    const Wide u = load(upper), l = load(lower);
    return ((u & low) + (u >> bits) + (l & low) + (l >> bits) + W(2)) >> W(2);
  };
  const Wide a = means(0), b = means(used * kWindows);
  WindowBytes narrow;
  if constexpr (sizeof(T) == 1) {
    using Words = Lanes<Hux16s, lanesIn<Wide>>;
    narrow = inOrder<2>(packBytes(Words(a), Words(b)));
  } else {
    using Signed = Lanes<Hux32s, lanesIn<Wide>>;
    narrow = bitsAs<WindowBytes>(narrowed<T>(std::array<Signed, 2>{Signed(a), Signed(b)}));
  }
  // Six of eight bytes each.
  static constexpr auto closed = picks([](int j) { return j < used ? j / 6 * 8 + j % 6 : 0x80; });
  const WindowBytes result = pickBytes(narrow, loadLanes<WindowBytes>(closed.data()));
  std::byte all[kLaneBytes];
  storeLanes(all, result);
  for (Index w = 0; w < kWindows; ++w) std::memcpy(dst + w * used, all + w * kWindowBytes, kWindowBytes);
}

// Blocks of two by two pixels of three elements: of integers as many as windows hold, else one block at a time, in
// lanes of which those behind the third element of a mean hold nothing.
template <class T>
void halvesOfThree(const ResizePlane& p) {
  constexpr Index bytes = 3 * Index(sizeof(T));
  const auto mean = [](const std::byte* upper, const std::byte* lower) {
    if constexpr (std::is_floating_point_v<T>) {
      const auto sum = [&](Index at) {
        return loadLanes<Lanes<T, 4>>(upper + at) + loadLanes<Lanes<T, 4>>(lower + at);
      };
      return (sum(0) + sum(bytes)) * T(0.25);
    } else {
      // Both pixels of a row in one vector.
      using W = std::conditional_t<sizeof(T) == 1, Hux16u, Hux32s>;
      const auto both = convert<W>(loadLanes<Lanes<T, 8>>(upper)) + convert<W>(loadLanes<Lanes<T, 8>>(lower));
      const auto sum = both + __builtin_shufflevector(both, both, 3, 4, 5, 6, 7, 7, 7, 7);
      const auto means = (sum + W(2)) >> W(2);
      return convert<T>(__builtin_shufflevector(means, means, 0, 1, 2, 3));
    }
  };
  const Index last = p.x.count - 1;
  for (Index y = 0; y < p.y.count; ++y) {
    const std::byte* upper = p.src + (Index(p.y.origin) + 2 * y) * p.srcStep + Index(p.x.origin) * bytes;
    const std::byte* lower = upper + p.srcStep;
    std::byte* dst = p.dst + y * p.dstStep;
    Index x = 0;
    if constexpr (std::is_integral_v<T> && kPicks) {
      constexpr Index atOnce = 4 * kWindows / Index(sizeof(T));
      for (; x + atOnce + 2 <= p.x.count; x += atOnce)
        meansOfThrees<T>(upper + 2 * x * bytes, lower + 2 * x * bytes, dst + x * bytes);
    }
    for (; x < last; ++x) storeLanes(dst + x * bytes, mean(upper + 2 * x * bytes, lower + 2 * x * bytes));
    // Behind the last pixel may be nothing.
    std::byte ends[2][2 * bytes + 2 * sizeof(T)] = {};
    std::memcpy(ends[0], upper + 2 * last * bytes, 2 * bytes),
        std::memcpy(ends[1], lower + 2 * last * bytes, 2 * bytes);
    storeColours<3>(dst + last * bytes, mean(ends[0], ends[1]));
  }
}

// Blocks of two by two pixels: whether they lie in the image and picking bytes is not slow.
template <class T>
bool halvesServe(const ResizePlane& p) {
  if (2 * p.x.count > p.x.image - Index(p.x.origin) || 2 * p.y.count > p.y.image - Index(p.y.origin)) return false;
  return kPicks || std::is_floating_point_v<T> || p.format.stride == 1 || p.format.stride == 3;
}
template <class T>
void byHalves(const ResizePlane& p) {
  if (p.format.stride == 3)
    halvesOfThree<T>(p);
  else if (p.format.stride == 1)
    halves<T, 1>(p);
  else if (p.format.stride == 4)
    halves<T, 4>(p);
  else
    halves<T, 2>(p);  // luma of packed pixels
}

template <class T>
HuxStatus decimate(const ResizePlane& p, Planes rest) {
  const Hux64f x = 1 / p.x.step, y = 1 / p.y.step;
  if (x == 2 && y == 2 && halvesServe<T>(p)) {
    if (HuxStatus s = ownviDecimateSuper(rest)) return s;
    byHalves<T>(p);
    return huxStsOk;
  }
  const Columns columns(p.x, x);
  if (!columns.covers) return huxStsNoMem;
  const bool counted = (columns.needed + columns.most) * p.format.stride < (Index(1) << 30);
  if constexpr (std::is_integral_v<T>) {
    if (x == std::floor(x) && y == std::floor(y)) {
      if (counted && x * y * std::numeric_limits<T>::max() < 0x1p31) return byLanes<T, Hux32s>(p, columns, y, rest);
      return bySingles<T, Hux32u, std::uint64_t>(p, columns, y, rest);
    }
  }
  return counted ? byLanes<T, Hux32f>(p, columns, y, rest) : bySingles<T, Hux32f, Hux32f>(p, columns, y, rest);
}

}  // namespace

HuxStatus ownviDecimateSuper(Planes planes) {
  if (planes.empty()) return huxStsOk;
  const ResizePlane& first = planes.front();
  const Planes rest = planes.subspan(1);
  switch (first.format.type) {
    case ElementType::u8:
      return decimate<Hux8u>(first, rest);
    case ElementType::u16:
      return decimate<Hux16u>(first, rest);
    case ElementType::f32:
      return decimate<Hux32f>(first, rest);
  }
  return huxStsOk;
}

}  // namespace hux
