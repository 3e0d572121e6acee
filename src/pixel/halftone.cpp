// Bit images: eight pixels a byte, the most significant bit first. Unpacking to 0 and 255, and halftoning by error
// diffusion.
#include <algorithm>

#include "core/scratch.h"
#include "huxi_pixel.h"
#include "lanes/elementwise.h"

namespace hux {
namespace {

// Rows of bits that all begin at one bit, 0 to 7, of their first byte.
struct BitRows {
  const Hux8u* first;
  Index step;
  int offset;

  const Hux8u* row(Index y) const { return first + y * step; }
  bool contiguous(Index width) const { return offset == 0 && step * 8 == width; }
};

// A row of bits as lanes of 0 and 255. No byte is read that holds no bit of the row.
struct BitStream {
  static constexpr int period = 1;
  static constexpr int lanes = kLaneBytes;
  using V = Lanes<Hux8u, lanes>;
  using Word = std::uint64_t;
  const Hux8u* row;
  int offset;

  V load(Index i, int) const { return spread(row + i / 8); }
  V load(Index i, int, int count) const {
    Hux8u bytes[lanes / 8 + 1] = {};
    std::memcpy(bytes, row + i / 8, std::size_t(offset + count + 7) / 8);
    return spread(bytes);
  }

 private:
  V spread(const Hux8u* p) const {
    // The bits behind the offset, from the top of a word.
    Word bits = 0;
    for (int i = 0; i < lanes / 8; ++i) bits |= Word(p[i]) << (56 - 8 * i);
    if (offset) bits = bits << offset | Word(p[lanes / 8]) << offset << (64 - lanes) >> 8;
    // Each byte eight times over, so that each lane tests one of its bits.
    Lanes<Word, lanes / 8> v;
    V tested;
    for (int i = 0; i < lanes / 8; ++i) v[i] = Word(56 - 8 * i);
    for (int i = 0; i < lanes; ++i) tested[i] = Hux8u(0x80 >> i % 8);
    v = (bits >> v) & Word(0xff);
    v |= v << Word(8);
    v |= v << Word(16);
    v |= v << Word(32);
    return V((bitsAs<V>(v) & tested) != 0);
  }
};

HuxStatus unpack(const Hux8u* pSrc, int srcStep, int srcBitOffset, Hux8u* pDst, int dstStep, HuxiSize roi) {
  if (HuxStatus s =
          check(pointers(pSrc, pDst), size(roi), steps(srcStep, dstStep), failUnless(srcBitOffset >= 0, huxStsBadSize)))
    return s;
  const int offset = srcBitOffset & 7;  // whole bytes of the offset do not count
  forEachRow(roi, BitRows{pSrc, srcStep, offset}, rows<C1>(pDst, dstStep), [&](const Hux8u* src, auto* dst, Index n) {
    applyRule<C1>(dst, n, Same<Hux8u>{}, BitStream{src, offset});
  });
  return huxStsOk;
}

// Error rows have this many entries of 0 on either side.
constexpr Index kMargin = 2;

// What the errors of the two rows above give to each pixel of a row, with the pixel itself.
void diffuseDown(const Hux8u* src, const Hux32s* __restrict above2, const Hux32s* __restrict above1,
                 Hux32s* __restrict sums, Index n) {
  for (Index x = 0; x < n; ++x) {
    const Hux32s *a = above2 + x, *b = above1 + x;
    const Hux32s outer = a[-2] + a[2] + 2 * (a[-1] + a[1] + b[-2] + b[2]), inner = a[0] + b[-1] + b[1] + 2 * b[0];
    sums[x] = src[x] * 8192 + 23 * (outer + 4 * inner);
  }
}

// Decides the pixels of a row, left to right, and leaves their errors in place of the sums.
//
// In the destination's first byte the bits ahead of the offset stay, and where there is an offset the bits behind a row
// that ends there are cleared; behind a row that ends in any other byte, or begins a byte, the old bits stay.
void decide(Hux32s* errors, Index n, Hux32s limit, Hux8u* dst, int offset) {
  Hux32s left1 = 0, left2 = 0;
  for (Index x = 0; x < n; ++dst, offset = 0) {
    const int count = int(std::min<Index>(8 - offset, n - x));
    unsigned bits = 0;
    for (const Index end = x + count; x < end; ++x) {
      const Hux32s t = (errors[x] + 92 * left2) + 184 * left1;
      const bool set = t > limit;
      bits = bits << 1 | unsigned(set);
      left2 = left1;
      left1 = errors[x] = (t >> 10) - (set ? 2047 : 0);
    }
    const unsigned kept = offset ? 0xff00u >> offset : 0xffu >> count;
    *dst = Hux8u((*dst & kept) | bits << (8 - offset - count));
  }
}

HuxStatus halftone(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, int dstBitOffset, HuxiSize roi,
                   Hux8u threshold) {
  if (HuxStatus s = check(pointers(pSrc, pDst), size(roi), failUnless(dstBitOffset >= 0, huxStsBadSize))) return s;
  const Index n = roi.width, stride = n + 2 * kMargin;
  const Scratch<Hux32s> memory(3 * stride);
  if (!memory) return huxStsNoMem;
  std::fill_n(memory.get(), 3 * stride, 0);
  Hux32s* above2 = memory.get() + kMargin;
  Hux32s *above1 = above2 + stride, *errors = above1 + stride;
  for (Index y = 0; y < roi.height; ++y) {
    diffuseDown(pSrc + y * srcStep, above2, above1, errors, n);
    decide(errors, n, threshold * 8192, pDst + y * dstStep, dstBitOffset & 7);
    std::swap(above2, above1);
    std::swap(above1, errors);
  }
  return huxStsOk;
}

}  // namespace
}  // namespace hux

HuxStatus huxiConvert_1u8u_C1R(const Hux8u* pSrc, int srcStep, int srcBitOffset, Hux8u* pDst, int dstStep,
                               HuxiSize roiSize) {
  return hux::unpack(pSrc, srcStep, srcBitOffset, pDst, dstStep, roiSize);
}
HuxStatus huxiConvert_8u1u_C1R(const Hux8u* pSrc, int srcStep, Hux8u* pDst, int dstStep, int dstBitOffset,
                               HuxiSize roiSize, Hux8u threshold) {
  return hux::halftone(pSrc, srcStep, pDst, dstStep, dstBitOffset, roiSize, threshold);
}
