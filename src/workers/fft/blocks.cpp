#include "workers/fft/blocks.h"

#include <algorithm>

#include "core/check.h"

// Rows lie in the order perm, so that the complex columns start at whole vectors. The first number of each row is none:
// its halves are the two real columns, which are taken before the first group is and put back after it.
namespace hux::fft {
namespace {

using V = SplitLanes;

template <class U>
Split<U> product(Split<U> a, Split<U> b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

bool within(Index y, RowRange range) { return std::size_t(y - range.first) < std::size_t(range.count); }

// Of real columns, in the order perm: the first two numbers are real.
void conjugate(Hux32f* column, Index n) {
  for (Index i = 3; i < n; i += 2) column[i] = -column[i];
}
// In lanes apart, for GCC 12 would make fused operations of products as they lie, whatever it is told.
void multiply(Hux32f* column, const Hux32f* by, Index n) {
  column[0] = column[0] * by[0], column[1] = column[1] * by[1];
  for (Index i = 2; i < n; i += 2 * kSplitLanes) {
    const Index count = std::min<Index>(kSplitLanes, (n - i) / 2);
    if (count == kSplitLanes)
      storeSplit(column + i, product(loadSplit<V>(column + i), loadSplit<V>(by + i)));
    else
      storeSplit(column + i, product(loadSplit<V>(column + i, count), loadSplit<V>(by + i, count)), count);
  }
}

}  // namespace

Blocks::Blocks(int orderX, int orderY, Index columns)
    : width_(Index(1) << orderX),
      height_(Index(1) << orderY),
      groups_(std::max<Index>(1, width_ / kGroup)),
      step_(lines(std::max({width_, columns, kGroup})) + kLineFloats),
      status_(make(orderX, orderY)) {}

HuxStatus Blocks::make(int orderX, int orderY) {
  if (HuxStatus s = failUnless(std::max(orderX, orderY) <= kMostOrder, huxStsBadOrder)) return s;
  if (HuxStatus s = makeImageRecord(&record_, Record::kReal, orderX, orderY, {1 << orderX, 1 << orderY}, huxFftScaleInv,
                                    huxHintNone))
    return s;
  zeros_ = static_cast<Hux32f*>(allocate(std::size_t(step_) * sizeof(Hux32f)));
  const Scratch<Hux32f> memory(roomFloats());
  if (!zeros_ || !memory) return huxStsNoMem;
  std::fill_n(zeros_, width_, 0.0f);
  rowForward(zeros_, zeros_, room(memory.get()));
  return huxStsOk;
}

Index Blocks::roomFloats() const {
  return lines(width_) + lines(2 * height_) + groupFloats() + lines(record_->bufSize / Index(sizeof(Hux32f)) + 4);
}
Blocks::Room Blocks::room(Hux32f* memory) const {
  Hux32f *outer = memory + lines(width_), *product = outer + lines(2 * height_);
  return {memory, outer, product, reinterpret_cast<std::byte*>(product + groupFloats())};
}

void Blocks::rowForward(const Hux32f* line, Hux32f* row, Room room) const {
  transformReal<Order::perm>(record_, record_->plan.realRow, line, row, room.work);
  if (width_ < kGroup) std::fill(row + width_, row + kGroup, 0.0f);
}
void Blocks::rowInverse(const Hux32f* row, Hux32f* line, Room room) const {
  transformToReal<Order::perm>(record_, record_->plan.realRow, row, line, room.work);
}

template <class Out>
void Blocks::groupForward(Index g, RowRange given, const Hux32f* block, Room room, Out out) const {
  const Hux32f *first = block + g * kGroup, *zeros = zeros_ + g * kGroup;
  transformColumns<Way::forward>(
      record_, record_->plan.column, height_, room.work,
      [=, step = step_](Index y) { return loadSplit<V>(within(y, given) ? first + y * step : zeros); }, out);
}
template <class In>
void Blocks::groupInverse(Index g, Hux32f* block, RowRange results, Room room, In in) const {
  Hux32f* first = block + g * kGroup;
  transformColumns<Way::inverse>(record_, record_->plan.column, height_, room.work, in,
                                 [=, step = step_](Index y, Split<V> z) {
                                   if (within(y, results)) storeSplit(first + y * step, z);
                                 });
}

void Blocks::outerForward(RowRange given, const Hux32f* block, Hux32f* outer, Room room) const {
  for (Index y = 0; y < height_; ++y) {
    const Hux32f* row = within(y, given) ? block + y * step_ : zeros_;
    outer[y] = row[0], outer[height_ + y] = row[1];
  }
  for (Hux32f* column : {outer, outer + height_})
    transformReal<Order::perm>(record_, record_->plan.realColumn, column, column, room.work);
}
void Blocks::outerInverse(Hux32f* block, const Hux32f* factor, RowRange results, Room room) const {
  for (Hux32f* column : {room.outer, room.outer + height_}) {
    multiply(column, factor + (column - room.outer), height_);
    transformToReal<Order::perm>(record_, record_->plan.realColumn, column, column, room.work);
  }
  for (Index y = results.first; y < results.first + results.count; ++y)
    block[y * step_] = room.outer[y], block[y * step_ + 1] = room.outer[height_ + y];
}

void Blocks::columnsForward(RowRange given, const Hux32f* block, Hux32f* spectrum, bool conjugated, Room room) const {
  for (Index g = 0; g < groups_; ++g)
    groupForward(g, given, block, room, [=, to = spectrum + g * groupFloats()](Index y, Split<V> z) {
      storeParted(to + y * kGroup, conjugated ? Split<V>{z.re, -z.im} : z);
    });
  Hux32f* outer = outerOf(spectrum);
  outerForward(given, block, outer, room);
  if (conjugated) conjugate(outer, height_), conjugate(outer + height_, height_);
}

void Blocks::columnsThrough(RowRange given, Hux32f* block, const Hux32f* spectrum, RowRange results, Room room) const {
  outerForward(given, block, room.outer, room);
  for (Index g = 0; g < groups_; ++g) {
    groupForward(g, given, block, room,
                 [factor = spectrum + g * groupFloats(), to = room.product](Index y, Split<V> z) {
                   storeParted(to + y * kGroup, product(z, loadParted<V>(factor + y * kGroup)));
                 });
    groupInverse(g, block, results, room, [from = room.product](Index y) { return loadParted<V>(from + y * kGroup); });
  }
  outerInverse(block, outerOf(spectrum), results, room);
}

void Blocks::columnsOfProduct(Index g, const Hux32f* a, const Hux32f* b, Hux32f* block, RowRange results,
                              Room room) const {
  groupInverse(g, block, results, room, [a = a + g * groupFloats(), b = b + g * groupFloats()](Index y) {
    return product(loadParted<V>(a + y * kGroup), loadParted<V>(b + y * kGroup));
  });
  if (g > 0) return;
  std::copy_n(outerOf(a), 2 * height_, room.outer);
  outerInverse(block, outerOf(b), results, room);
}

}  // namespace hux::fft
