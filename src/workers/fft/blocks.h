// Images extended by zeros to blocks of 2^x by 2^y pixels, the spectra of blocks and the products of these: what the
// transforms of images would give, to the bit, with each block brought by in as few visits as there are. So images are
// convolved and correlated, whole or tile by tile.
//
// Rows are transformed one by one; columns as many at a time as a vector has lanes, forward, times the other factor and
// back again, while they lie in the cache. Rows that hold zeros alone are passed over on the way forward, and those
// that nobody asks for on the way back. Spectra are kept as the columns want them: groups of columns, each from top to
// bottom with parts apart, and behind them the two columns of real numbers, in the order perm.
#pragma once

#include "core/team.h"
#include "workers/fft/record.h"

namespace hux::fft {

// The least order, from 1 on, of so many numbers.
constexpr int orderOf(Index length) {
  int order = 1;
  while (Index(1) << order < length) ++order;
  return order;
}
// That of the blocks which a kernel meets along one axis: twice as long as it or longer, and once more as long where
// the order is below `doubleBelow` and such a block does not reach the length of the result.
constexpr int blockOrder(Index kernel, Index result, int doubleBelow) {
  const int order = orderOf(2 * kernel);
  return order < doubleBelow && Index(1) << order < result ? order + 1 : order;
}

// Transforms of blocks, whose inverse is divided by their size.
class Blocks {
 public:
  // Orders are 1 and above. In memory the rows of a block have `columns` numbers where those are more than the block's.
  Blocks(int orderX, int orderY, Index columns = 0);
  ~Blocks() { release(zeros_), release(record_); }
  Blocks(const Blocks&) = delete;
  Blocks& operator=(const Blocks&) = delete;

  // As where a context of such transforms is made: huxStsBadOrder or huxStsNoMem.
  HuxStatus status() const { return status_; }
  Index width() const { return width_; }
  Index height() const { return height_; }
  Index groups() const { return groups_; }

  // From row to row of a block, in floats: there is room for vectors behind the last column, and the rows of a column
  // do not share the places of the cache.
  Index step() const { return step_; }
  // Memory, in floats, of lines of the cache: of a spectrum, of a block, and what a thread needs besides.
  Index spectrumFloats() const { return lines(groups_ * groupFloats() + 2 * height_); }
  Index blockFloats() const { return lines(height_ * step_); }
  Index roomFloats() const;
  struct Room {
    Hux32f *line, *outer, *product;
    std::byte* work;
  };
  Room room(Hux32f* memory) const;

  // A row of width() numbers to a row of a block, and back. Both may be the same.
  void rowForward(const Hux32f* line, Hux32f* row, Room room) const;
  void rowInverse(const Hux32f* row, Hux32f* line, Room room) const;

  // The rows of an image, to be followed by zeros, into a block: fill(y, line) writes width() floats.
  template <class Fill>
  void rowsForward(Index count, Fill fill, Hux32f* block, Room room) const {
    for (Index y = 0; y < count; ++y) {
      fill(y, room.line);
      rowForward(room.line, block + y * step_, room);
    }
  }
  // The rows of a range from a block whose columns have been brought back: take(y, line).
  template <class Take>
  void rowsInverse(const Hux32f* block, RowRange results, Take take, Room room) const {
    for (Index y = results.first; y < results.first + results.count; ++y) {
      rowInverse(block + y * step_, room.line, room);
      take(y, room.line);
    }
  }

  // The spectrum of a block whose rows `given` have been transformed, all others being zeros. Products of conjugated
  // spectra are correlations.
  void columnsForward(RowRange given, const Hux32f* block, Hux32f* spectrum, bool conjugated, Room room) const;
  // The columns of such a block, times a spectrum and back again; of the results, the rows of a range.
  void columnsThrough(RowRange given, Hux32f* block, const Hux32f* spectrum, RowRange results, Room room) const;
  // The columns of a group, from two spectra.
  void columnsOfProduct(Index g, const Hux32f* a, const Hux32f* b, Hux32f* block, RowRange results, Room room) const;

 private:
  using Record = ImageRecord<ByPower, 25, 26, 29>;
  static constexpr Index kGroup = 2 * kSplitLanes, kLineFloats = 16;  // floats of a row of a group, of a line

  static Index lines(Index floats) { return (floats + kLineFloats - 1) / kLineFloats * kLineFloats; }
  Index groupFloats() const { return kGroup * height_; }
  template <class F>
  F* outerOf(F* spectrum) const {
    return spectrum + groups_ * groupFloats();
  }

  template <class Out>
  void groupForward(Index g, RowRange given, const Hux32f* block, Room room, Out out) const;
  template <class In>
  void groupInverse(Index g, Hux32f* block, RowRange results, Room room, In in) const;
  void outerForward(RowRange given, const Hux32f* block, Hux32f* outer, Room room) const;
  void outerInverse(Hux32f* block, const Hux32f* factor, RowRange results, Room room) const;

  HuxStatus make(int orderX, int orderY);
  Index width_, height_, groups_, step_;
  Record* record_ = nullptr;
  Hux32f* zeros_ = nullptr;  // the transform of a row of zeros, whose zeros have signs
  HuxStatus status_;
};

}  // namespace hux::fft
