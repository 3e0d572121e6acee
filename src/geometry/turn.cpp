#include "geometry/turn.h"

#include "core/stamp.h"
#include "huxi_pixel.h"

namespace hux {
namespace {

// A region of one plane by its first pixel, whose next row may lie above it, too.
struct Region {
  std::byte* first;
  int step;

  // The same rows, the last one first.
  Region upsideDown(Index rows) const { return {first + (rows - 1) * step, -step}; }
};

// The moves of pixels by element type. Pixels of four elements, of which three are touched, are transposed in tiles by
// way of a buffer.
template <class W>
struct Moves;
#define MOVES(t, copy)                                                                                  \
  template <>                                                                                           \
  struct Moves<Hux##t> {                                                                                \
    static constexpr auto mirrorC1 = huxiMirror_##t##_C1R, mirrorC3 = huxiMirror_##t##_C3R,             \
                          mirrorC4 = huxiMirror_##t##_C4R, mirrorAC4 = huxiMirror_##t##_AC4R;           \
    static constexpr auto transposeC1 = huxiTranspose_##t##_C1R, transposeC3 = huxiTranspose_##t##_C3R, \
                          transposeC4 = huxiTranspose_##t##_C4R;                                        \
    static HuxStatus copyAC4(const Hux##t* src, int srcStep, Hux##t* dst, int dstStep, HuxiSize roi) {  \
      return huxiCopy_##copy##_AC4R(reinterpret_cast<const Hux##copy*>(src), srcStep,                   \
                                    reinterpret_cast<Hux##copy*>(dst), dstStep, roi);                   \
    }                                                                                                   \
  };
MOVES(8u, 8u)
MOVES(16u, 16s)
MOVES(32s, 32s)

// Turned half around: rows and pixels in reverse.
template <class W>
void ownvi_Rotate180(const Format& format, Region src, Region dst, HuxiSize size) {
  using M = Moves<W>;
  const auto mirror = format.stride == 1    ? M::mirrorC1
                      : format.stride == 3  ? M::mirrorC3
                      : format.touched == 4 ? M::mirrorC4
                                            : M::mirrorAC4;
  mirror(reinterpret_cast<W*>(src.first), src.step, reinterpret_cast<W*>(dst.first), dst.step, size, huxAxsBoth);
}

// Rows become columns. A quarter turn is this and one of the images upside down.
template <class W>
void ownvi_Rotate90(const Format& format, Region src, Region dst, HuxiSize size) {
  using M = Moves<W>;
  auto* from = reinterpret_cast<W*>(src.first);
  auto* to = reinterpret_cast<W*>(dst.first);
  if (format.stride == format.touched) {
    const auto transpose = format.stride == 1 ? M::transposeC1 : format.stride == 3 ? M::transposeC3 : M::transposeC4;
    transpose(from, src.step, to, dst.step, size);
    return;
  }
  constexpr int side = 32, pixelBytes = 4 * sizeof(W);
  W tile[side * side * 4];
  for (int y = 0; y < size.height; y += side)
    for (int x = 0; x < size.width; x += side) {
      const HuxiSize part = {std::min(side, size.width - x), std::min(side, size.height - y)};
      M::transposeC4(advance(from, Index(y) * src.step + Index(x) * pixelBytes), src.step, tile, side * pixelBytes,
                     part);
      M::copyAC4(tile, side * pixelBytes, advance(to, Index(x) * dst.step + Index(y) * pixelBytes), dst.step,
                 {part.height, part.width});
    }
}

// An inclusive range of columns or rows.
struct Range {
  Index first, last;
  Index count() const { return last - first + 1; }
};
Range common(Range a, Range b) { return {std::max(a.first, b.first), std::min(a.last, b.last)}; }

// The image of a range at shift + v, or at shift - v.
Range shifted(Index shift, Range r) { return {shift + r.first, shift + r.last}; }
Range reversed(Index shift, Range r) { return {shift - r.last, shift - r.first}; }

}  // namespace

HuxStatus quarterTurn(const Warp& w, int turns, Hux64f xShift, Hux64f yShift) {
  if (HuxStatus s =
          check(pointers(w.src.argument, w.dst.argument), size(w.srcSize), rectangle(w.srcRoi), rectangle(w.dstRoi),
                steps(w.src.step, w.dst.step), planes(w.format, w.src, w.dst), overlap(w.srcSize, w.srcRoi)))
    return s;
  // Shifts beyond all images are as good as infinite ones.
  const auto whole = [](Hux64f shift) { return Index(std::min(std::max(shift, -0x1p40), 0x1p40)); };
  const Index sx = whole(xShift), sy = whole(yShift);
  const HuxiRect source = commonPart(w.srcSize, w.srcRoi);
  const Range columns = {source.x, Index(source.x) + source.width - 1};
  const Range rows = {source.y, Index(source.y) + source.height - 1};
  const Range x = common({w.dstRoi.x, Index(w.dstRoi.x) + w.dstRoi.width - 1}, turns == 1   ? shifted(sx, rows)
                                                                               : turns == 2 ? reversed(sx, columns)
                                                                                            : reversed(sx, rows));
  const Range y = common({w.dstRoi.y, Index(w.dstRoi.y) + w.dstRoi.height - 1}, turns == 1   ? reversed(sy, columns)
                                                                                : turns == 2 ? reversed(sy, rows)
                                                                                             : shifted(sy, columns));
  if (x.count() < 1 || y.count() < 1) return huxStsNoOverlapWarn;
  // What of the source goes there.
  const Range fromX = turns == 1 ? reversed(sy, y) : turns == 2 ? reversed(sx, x) : shifted(-sy, y);
  const Range fromY = turns == 1 ? shifted(-sx, x) : turns == 2 ? reversed(sy, y) : reversed(sx, x);
  const HuxiSize size = {int(fromX.count()), int(fromY.count())};
  const Index pixelBytes = w.format.pixelBytes();
  for (int p = 0; p < w.format.planes; ++p) {
    const Region src = {const_cast<std::byte*>(w.src.plane[p]) + fromY.first * w.src.step + fromX.first * pixelBytes,
                        int(w.src.step)};
    const Region dst = {w.dst.plane[p] + y.first * w.dst.step + x.first * pixelBytes, int(w.dst.step)};
    const auto turn = [&]<class W>(W) {
      if (turns == 2)
        ownvi_Rotate180<W>(w.format, src, dst, size);
      else if (turns == 1)
        ownvi_Rotate90<W>(w.format, src, dst.upsideDown(size.width), size);
      else
        ownvi_Rotate90<W>(w.format, src.upsideDown(size.height), dst, size);
    };
    switch (w.format.type) {
      case ElementType::u8:
        turn(Hux8u());
        break;
      case ElementType::u16:
        turn(Hux16u());
        break;
      case ElementType::f32:
        turn(Hux32s());
        break;
    }
  }
  return huxStsOk;
}

}  // namespace hux
