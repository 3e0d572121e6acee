// Images extended by zeros to blocks of 2^x by 2^y pixels, the spectra of blocks and the products of these: what the
// transforms of images would give, to the bit, with each block brought by in as few visits as there are.
//
// Rows are transformed one by one; columns as many at a time as a vector has lanes, forward, times the other factor and
// back again, while they lie in the cache. Spectra are kept as the columns want them: groups of columns, each from top
// to bottom with parts apart, and behind them the two columns of real numbers, in the order perm.
#pragma once

#include "core/team.h"
#include "workers/fft/image.h"

namespace hux::fft {

// Transforms of blocks, whose inverse is divided by their size. Orders are 1 to kMostOrder.
class Blocks {
 public:
  Blocks(int orderX, int orderY)
      : width_(Index(1) << orderX),
        height_(Index(1) << orderY),
        groups_(std::max<Index>(1, width_ / (2 * kSplitLanes))),
        // A line more, so that the rows of a group do not share the places of the cache.
        stride_(std::max<Index>(width_, 2 * kSplitLanes) + kLineFloats),
        tables_(takeTables(orderX, orderY)),
        status_(tables_ && orderX + orderY <= kMostOrders ? fillTables(std::max(orderX, orderY)) : huxStsNoMem) {}

  // huxStsNoMem where there was no memory for the tables, or could be none for a block.
  HuxStatus status() const { return status_; }
  Index width() const { return width_; }
  Index height() const { return height_; }
  Index groups() const { return groups_; }

  // Memory, in floats, of lines of the cache: of a spectrum, of a block, and what a thread needs besides.
  Index spectrumFloats() const { return lines(groups_ * groupFloats() + 2 * height_); }
  Index blockFloats() const { return lines(height_ * stride_); }
  Index roomFloats() const {
    return lines(width_) + lines(2 * height_) + 2 * groupFloats() + lines(Index(moreBytes_ / sizeof(Hux32f)) + 4);
  }
  struct Room {
    Hux32f *line, *outer, *product, *planes;
    std::byte* more;
  };
  Room room(Hux32f* memory) const {
    Hux32f *outer = memory + lines(width_), *product = outer + lines(2 * height_), *planes = product + groupFloats();
    return {memory, outer, product, planes, reinterpret_cast<std::byte*>(planes + groupFloats())};
  }

  // The rows of an image into a block: fill(y, line) writes width() floats. Rows from `rows` on are zeros.
  template <class Fill>
  void rowsForward(Index rows, Fill fill, Hux32f* block, Room room) const {
    for (Index y = 0; y < rows; ++y) {
      fill(y, room.line);
      rowForward(room.line, block + y * stride_, room.more);
    }
  }

  // The spectrum of a block whose rows have been transformed.
  void columnsForward(Index rows, const Hux32f* block, Hux32f* spectrum, Room room) const {
    for (Index g = 0; g < groups_; ++g)
      groupForward(g, rows, block, room,
                   [to = spectrum + g * groupFloats()](Index y, Split<V> z) { storeParted(to + y * kPair, z); });
    outerForward(rows, block, outerOf(spectrum), room.more);
  }

  // The columns of such a block, times a spectrum and back again; of the results, the rows of a range.
  void columnsThrough(Index rows, Hux32f* block, const Hux32f* spectrum, RowRange results, Room room) const {
    outerForward(rows, block, room.outer, room.more);
    for (Index g = 0; g < groups_; ++g) {
      groupForward(g, rows, block, room,
                   [factor = spectrum + g * groupFloats(), to = room.product](Index y, Split<V> z) {
                     storeParted(to + y * kPair, product(z, loadParted<V>(factor + y * kPair)));
                   });
      groupInverse(g, block, results, room, [from = room.product](Index y) { return loadParted<V>(from + y * kPair); });
    }
    outerInverse(block, outerOf(spectrum), results, room);
  }

  // The columns of a group, from two spectra.
  void columnsOfProduct(Index g, const Hux32f* a, const Hux32f* b, Hux32f* block, RowRange results, Room room) const {
    groupInverse(g, block, results, room, [a = a + g * groupFloats(), b = b + g * groupFloats()](Index y) {
      return product(loadParted<V>(a + y * kPair), loadParted<V>(b + y * kPair));
    });
    if (g > 0) return;
    std::copy_n(outerOf(a), 2 * height_, room.outer);
    outerInverse(block, outerOf(b), results, room);
  }

  // The rows of a range from a block whose columns have been brought back: take(y, line).
  template <class Take>
  void rowsInverse(const Hux32f* block, RowRange results, Take take, Room room) const {
    for (Index y = results.first; y < results.first + results.count; ++y) {
      transformToReal<Order::perm>(tables_.get(), row_, block + y * stride_, room.line, room.more);
      take(y, room.line);
    }
  }

 private:
  using V = SplitLanes;
  static constexpr Index kPair = 2 * kSplitLanes, kLineFloats = 16;
  static constexpr int kMostOrders = 40;  // of both sides; no machine has the memory of more

  static Index lines(Index floats) { return (floats + kLineFloats - 1) / kLineFloats * kLineFloats; }
  Index groupFloats() const { return kPair * height_; }
  template <class F>
  F* outerOf(F* spectrum) const {
    return spectrum + groups_ * groupFloats();
  }

  template <class U>
  static Split<U> product(Split<U> a, Split<U> b) {
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
  }

  Index takeTables(int orderX, int orderY) {
    const auto prepare = [](auto& plan, PowerPlan& power, int order) {
      plan.order = order;
      return scalingOf(huxFftScaleInv, Index(1) << order, power.scaling);
    };
    prepare(row_, row_.half, orderX), prepare(realColumn_, realColumn_.half, orderY);
    prepare(column_, column_, orderY);
    Arena arena(kContextAlignment);
    row_.take(arena), realColumn_.take(arena), column_.take(arena);
    zeros_ = arena.take<Hux32f>(stride_);
    moreBytes_ = std::size_t(std::max({workBytes(row_.half.order), workBytes(orderY), std::int64_t(0)}));
    return Index(arena.bytes());
  }

  HuxStatus fillTables(int order) {
    if (order > 3) {
      const Scratch<Hux32f> quarter(Waves::entries(order));
      if (!quarter) return huxStsNoMem;
      const Waves waves(order, quarter.get());
      row_.fill(tables_.get(), waves), realColumn_.fill(tables_.get(), waves), column_.fill(tables_.get(), waves);
    }
    // The spectrum of a row of zeros, whose zeros have signs.
    const Scratch<Hux32f> line(roomFloats());
    if (!line) return huxStsNoMem;
    std::fill_n(line.get(), width_, 0.0f);
    rowForward(line.get(), zeros_.in(tables_.get()), room(line.get()).more);
    return huxStsOk;
  }

  void rowForward(const Hux32f* line, Hux32f* to, std::byte* more) const {
    transformReal<Order::perm>(tables_.get(), row_, line, to, more);
    if (width_ < kPair) std::fill(to + width_, to + kPair, 0.0f);
  }

  template <class Out>
  void groupForward(Index g, Index rows, const Hux32f* block, Room room, Out out) const {
    const Hux32f *first = block + g * kPair, *zeros = zeros_.in(tables_.get()) + g * kPair;
    transformColumns<Way::forward>(
        tables_.get(), column_, height_, reinterpret_cast<std::byte*>(room.planes),
        [=, stride = stride_](Index y) { return loadSplit<V>(y < rows ? first + y * stride : zeros); }, out);
  }
  template <class In>
  void groupInverse(Index g, Hux32f* block, RowRange results, Room room, In in) const {
    Hux32f* first = block + g * kPair;
    transformColumns<Way::inverse>(tables_.get(), column_, height_, reinterpret_cast<std::byte*>(room.planes), in,
                                   [=, stride = stride_](Index y, Split<V> z) {
                                     if (std::size_t(y - results.first) < std::size_t(results.count))
                                       storeSplit(first + y * stride, z);
                                   });
  }

  // The first two numbers of all rows, which are real and in the group's columns stand for a complex number. They are
  // to be taken before the columns of the first group and put back after them.
  void outerForward(Index rows, const Hux32f* block, Hux32f* outer, std::byte* more) const {
    const Hux32f* zeros = zeros_.in(tables_.get());
    for (Index y = 0; y < height_; ++y) {
      const Hux32f* row = y < rows ? block + y * stride_ : zeros;
      outer[y] = row[0], outer[height_ + y] = row[1];
    }
    for (Hux32f* column : {outer, outer + height_})
      transformReal<Order::perm>(tables_.get(), realColumn_, column, column, more);
  }
  void outerInverse(Hux32f* block, const Hux32f* factor, RowRange results, Room room) const {
    for (Hux32f* column : {room.outer, room.outer + height_}) {
      const Hux32f* by = factor + (column - room.outer);
      column[0] = column[0] * by[0], column[1] = column[1] * by[1];
      for (Index i = 2; i < height_; i += 2)
        storeSplit(column + i, product(loadSplit<Hux32f>(column + i), loadSplit<Hux32f>(by + i)));
      transformToReal<Order::perm>(tables_.get(), realColumn_, column, column, room.more);
    }
    for (Index y = results.first; y < results.first + results.count; ++y)
      block[y * stride_] = room.outer[y], block[y * stride_ + 1] = room.outer[height_ + y];
  }

  Index width_, height_, groups_, stride_;
  RealPlan row_, realColumn_;
  PowerPlan column_;
  At<Hux32f> zeros_;
  std::size_t moreBytes_ = 0;
  Scratch<std::byte> tables_;
  HuxStatus status_;
};

}  // namespace hux::fft
