// Blocks of pixels that are taken through the spectrum of a small image, the kernel, which is made once: correlation
// and convolution tile by tile.
//
// A block comes to its product in three steps, between which its memory holds nothing that others understand:
//
//   blocks.multiply(block, step, spectrum, work);          the rows forward, then each column forward, times, back
//   blocks.finish(block + y * step, work);                 a row back: only those that are wanted
//
// The numbers are those of the transforms of images and of the product of packed spectra, with the factor 1 / (width *
// height) on the way back.
#pragma once

#include "workers/fft/record.h"

namespace hux {

// The order of the blocks along one axis: the least, from 1 on, with which a block is twice as long as the kernel or
// longer; one more where that is below `doubleBelow` and the block does not reach the length of the result.
constexpr int blockOrder(Index kernel, Index result, int doubleBelow) {
  int order = 1;
  while (Index(1) << order < 2 * kernel) ++order;
  return order < doubleBelow && Index(1) << order < result ? order + 1 : order;
}

class Blocks {
 public:
  Blocks() = default;
  ~Blocks() { release(record_); }
  Blocks(const Blocks&) = delete;
  Blocks& operator=(const Blocks&) = delete;

  // Plans blocks of 2^orderX by 2^orderY: huxStsBadOrder or huxStsNoMem as where a context of their transforms is made.
  HuxStatus make(int orderX, int orderY);

  Index width() const { return record_->plan.size.width; }
  Index height() const { return record_->plan.size.height; }
  // Floats from row to row of a block in memory that has `columns` columns, those of the block or more: with room for
  // vectors behind the last, and so that the rows of one column lie in different places of the cache.
  static Index step(Index columns) { return (columns + 15) / 16 * 16 + 16; }
  Index spectrumFloats() const;
  std::size_t workBytes() const;

  // The spectrum of a block, which is used up. Conjugated, products are correlations.
  void spectrumOf(Hux32f* block, Index step, Hux32f* spectrum, bool conjugated, std::byte* work) const;
  void multiply(Hux32f* block, Index step, const Hux32f* spectrum, std::byte* work) const;
  void finish(Hux32f* row, std::byte* work) const;

 private:
  using Record = fft::ImageRecord<fft::ByPower, 25, 26, 29>;

  void forwardRows(Hux32f* block, Index step, std::byte* work) const;
  void takeOuter(const Hux32f* block, Index step, Hux32f* outer, std::byte* work) const;
  Index groups() const;

  Record* record_ = nullptr;
};

}  // namespace hux
