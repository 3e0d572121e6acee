// Transforms of images: those of all rows, then those of all columns; the inverse of a real image the other way round.
//
// Columns are transformed as many at a time as a vector has lanes, straight from the image's rows and back to them, up
// to the height where a transform's columns would themselves be cut up; longer columns, and those whose height is no
// power of two, are brought together and transformed one by one. Either gives the same bits.
#pragma once

#include <algorithm>

#include "core/rows.h"
#include "workers/fft/across.h"
#include "workers/fft/length.h"

namespace hux::fft {

// The two kinds of plans that images are transformed by.
struct ByPower {
  using Complex = PowerPlan;
  using Real = RealPlan;
};
struct ByLength {
  using Complex = LengthPlan;
  using Real = RealLengthPlan;
};

inline void toSpectrum(const void* block, const RealPlan& plan, const Hux32f* src, Hux32f* dst, std::byte* work) {
  transformReal<Order::pack>(block, plan, src, dst, work);
}
inline void toSpectrum(const void* block, const RealLengthPlan& plan, const Hux32f* src, Hux32f* dst, std::byte* work) {
  transformReal(block, plan, src, dst, work);
}
inline void fromSpectrum(const void* block, const RealPlan& plan, const Hux32f* src, Hux32f* dst, std::byte* work) {
  transformToReal<Order::pack>(block, plan, src, dst, work);
}
inline void fromSpectrum(const void* block, const RealLengthPlan& plan, const Hux32f* src, Hux32f* dst,
                         std::byte* work) {
  transformToReal(block, plan, src, dst, work);
}
template <Way W, class Plan>
void transformReals(const void* block, const Plan& plan, const Hux32f* src, Hux32f* dst, std::byte* work) {
  if constexpr (W == Way::forward)
    toSpectrum(block, plan, src, dst, work);
  else
    fromSpectrum(block, plan, src, dst, work);
}

// Rows and columns of a complex image have `row` and `column`, those of a real one `realRow`, `realColumn` and, for the
// columns of a spectrum that are complex, `column`.
template <class Kind>
struct ImagePlan {
  HuxiSize size;
  typename Kind::Complex row, column;
  typename Kind::Real realRow, realColumn;
};

// Work memory of a transform: planes of a row or of columns, and what the one-dimensional transforms take.
constexpr std::int64_t bufferBytes(std::int64_t work) { return work ? work + 16 : 0; }

template <class T>
using Bare = std::conditional_t<std::is_const_v<T>, const Hux32f, Hux32f>;
template <class T>
Bare<T>* rowOf(Rows<T> image, Index y) {
  return reinterpret_cast<Bare<T>*>(image.row(y));
}

// --- Columns of complex numbers.

// As many as there are lanes: in(y) gives a row of them, out(y, z) takes one.
template <Way W, class Plan, class In, class Out>
void transformColumns(const void* block, const Plan& plan, Index height, std::byte* work, In in, Out out) {
  using V = SplitLanes;
  constexpr int lanes = kSplitLanes;
  if constexpr (std::is_same_v<Plan, PowerPlan>) {
    auto* planes = reinterpret_cast<Hux32f*>(work);
    if (plan.order <= kMergeOrder)
      return transformAcross<W>(block, plan, Columns<V>{planes, planes + lanes * height}, in, out);
  }
  auto* columns = reinterpret_cast<Hux32fc*>(work);
  Hux32fc row[lanes];
  for (Index y = 0; y < height; ++y) {
    storeSplit(row, in(y));
    for (int l = 0; l < lanes; ++l) columns[l * height + y] = row[l];
  }
  std::byte* more = roundedUp(columns + lanes * height);
  for (int l = 0; l < lanes; ++l) transform<W>(block, plan, columns + l * height, columns + l * height, more);
  for (Index y = 0; y < height; ++y) {
    for (int l = 0; l < lanes; ++l) row[l] = columns[l * height + y];
    out(y, loadSplit<V>(row));
  }
}

// `count` columns of complex numbers that lie side by side, from the float `first` of each row on.
template <Way W, class Plan>
void adjacentColumns(const void* block, const Plan& plan, Index height, Rows<const Hux32f> src, Rows<Hux32f> dst,
                     Index first, Index count, std::byte* work) {
  using V = SplitLanes;
  for (; count >= kSplitLanes; count -= kSplitLanes, first += 2 * kSplitLanes)
    transformColumns<W>(
        block, plan, height, work, [=](Index y) { return loadSplit<V>(rowOf(src, y) + first); },
        [=](Index y, Split<V> z) { storeSplit(rowOf(dst, y) + first, z); });
  if (count > 0)
    transformColumns<W>(
        block, plan, height, work, [=](Index y) { return loadSplit<V>(rowOf(src, y) + first, count); },
        [=](Index y, Split<V> z) { storeSplit(rowOf(dst, y) + first, z, count); });
}

// The pairs of columns 1 and 2, 3 and 4, ... of a spectrum of several channels: a lane is a channel of a pair.
template <Way W, class L, class Plan>
void pairedColumns(const void* block, const Plan& plan, Index height, Rows<const Hux32f> src, Rows<Hux32f> dst,
                   Index pairs, std::byte* work) {
  using V = SplitLanes;
  const Index all = pairs * L::processed;
  for (Index e = 0; e < all; e += kSplitLanes) {
    const int count = int(std::min<Index>(kSplitLanes, all - e));
    std::array<Index, kSplitLanes> re{}, im{};
    for (int l = 0; l < count; ++l) {
      re[std::size_t(l)] = (2 * ((e + l) / L::processed) + 1) * L::channels + (e + l) % L::processed;
      im[std::size_t(l)] = re[std::size_t(l)] + L::channels;
    }
    transformColumns<W>(
        block, plan, height, work,
        [=](Index y) {
          const auto* row = src.row(y);
          Split<V> z{};
          for (int l = 0; l < count; ++l) z.re[l] = row[re[std::size_t(l)]], z.im[l] = row[im[std::size_t(l)]];
          return z;
        },
        [=](Index y, Split<V> z) {
          auto* row = dst.row(y);
          for (int l = 0; l < count; ++l) row[re[std::size_t(l)]] = z.re[l], row[im[std::size_t(l)]] = z.im[l];
        });
  }
}

// --- Real rows and columns, by channel: each is brought into a plane of its own.

template <Way W, class L, class Plan, class From, class To>
void transformPlanes(const void* block, const Plan& plan, Index n, std::byte* work, From from, To to) {
  auto* planes = reinterpret_cast<Hux32f*>(work);
  for (Index i = 0; i < n; ++i) {
    const auto* pixel = from(i);
    for (int c = 0; c < L::processed; ++c) planes[c * n + i] = pixel[c];
  }
  std::byte* more = roundedUp(planes + L::processed * n);
  for (int c = 0; c < L::processed; ++c) transformReals<W>(block, plan, planes + c * n, planes + c * n, more);
  for (Index i = 0; i < n; ++i) {
    auto* pixel = to(i);
    for (int c = 0; c < L::processed; ++c) pixel[c] = planes[c * n + i];
  }
}

template <Way W, class L, class Plan>
void realRows(const void* block, const Plan& plan, HuxiSize size, Rows<const Hux32f> src, Rows<Hux32f> dst,
              std::byte* work) {
  for (Index y = 0; y < size.height; ++y)
    if constexpr (L::channels == 1)
      transformReals<W>(block, plan, rowOf(src, y), rowOf(dst, y), work);
    else
      transformPlanes<W, L>(
          block, plan, size.width, work, [=](Index x) { return src.row(y) + x * L::channels; },
          [=](Index x) { return dst.row(y) + x * L::channels; });
}

template <Way W, class L, class Plan>
void realColumn(const void* block, const Plan& plan, Index height, Index x, Rows<const Hux32f> src, Rows<Hux32f> dst,
                std::byte* work) {
  transformPlanes<W, L>(
      block, plan, height, work, [=](Index y) { return src.row(y) + x * L::channels; },
      [=](Index y) { return dst.row(y) + x * L::channels; });
}

// --- Images.

template <Way W, class Kind>
void transformImage(const void* block, const ImagePlan<Kind>& plan, Rows<const Hux32f> src, Rows<Hux32f> dst,
                    std::byte* work) {
  const Index width = plan.size.width, height = plan.size.height;
  const auto numbers = [](auto* p) {
    return reinterpret_cast<
        std::conditional_t<std::is_const_v<std::remove_pointer_t<decltype(p)>>, const Hux32fc, Hux32fc>*>(p);
  };
  constexpr Index number = sizeof(Hux32fc);
  if (width == 1 && height > 1) {
    if (src.step == number && dst.step == number)
      return transform<W>(block, plan.column, numbers(rowOf(src, 0)), numbers(rowOf(dst, 0)), work);
    return adjacentColumns<W>(block, plan.column, height, src, dst, 0, 1, work);
  }
  for (Index y = 0; y < height; ++y)
    transform<W>(block, plan.row, numbers(rowOf(src, y)), numbers(rowOf(dst, y)), work);
  if (height > 1)
    adjacentColumns<W>(block, plan.column, height, {dst.first, dst.step, dst.pixelBytes}, dst, 0, width, work);
}

template <Way W, class L, class Kind>
void transformRealImage(const void* block, const ImagePlan<Kind>& plan, Rows<const Hux32f> src, Rows<Hux32f> dst,
                        std::byte* work) {
  const Index width = plan.size.width, height = plan.size.height;
  const Rows<const Hux32f> result{dst.first, dst.step, dst.pixelBytes};
  if (height == 1) return realRows<W, L>(block, plan.realRow, plan.size, src, dst, work);
  if (width == 1) {
    if (L::channels == 1 && src.step == Index(sizeof(Hux32f)) && dst.step == Index(sizeof(Hux32f)))
      return transformReals<W>(block, plan.realColumn, rowOf(src, 0), rowOf(dst, 0), work);
    return realColumn<W, L>(block, plan.realColumn, height, 0, src, dst, work);
  }
  if constexpr (W == Way::forward) {
    realRows<W, L>(block, plan.realRow, plan.size, src, dst, work);
    src = result;
  }
  realColumn<W, L>(block, plan.realColumn, height, 0, src, dst, work);
  const Index pairs = (width - 1) / 2;
  if constexpr (L::channels == 1)
    adjacentColumns<W>(block, plan.column, height, src, dst, 1, pairs, work);
  else
    pairedColumns<W, L>(block, plan.column, height, src, dst, pairs, work);
  if (width % 2 == 0) realColumn<W, L>(block, plan.realColumn, height, width - 1, src, dst, work);
  if constexpr (W == Way::inverse) realRows<W, L>(block, plan.realRow, plan.size, result, dst, work);
}

}  // namespace hux::fft
