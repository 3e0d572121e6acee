// The least or the greatest elements over masks of any shape, taken by the runs of neighbouring cells in their rows.
#pragma once

#include <bit>

#include "filter/extremes.h"
#include "workers/move.h"

namespace hux {

// The cells of a mask as pieces: 1, 2, 4, 8, ... neighbours. Two pieces that may overlap make up a run.
class Pieces {
 public:
  struct Piece {
    Index row, column;
    int level;  // of 2 to this power cells
  };
  static constexpr int kMost = 256;

  Pieces(const Hux8u* pMask, HuxiSize size) {
    const auto* mask = elements(pMask);
    for (Index row = 0; row < size.height; ++row, mask += size.width)
      for (Index column = 0; column < size.width;) {
        Index end = column;
        while (end < size.width && mask[end]) ++end;
        if (const Index length = end - column) {
          if (count_ + 2 > kMost) return;
          const int level = std::bit_width(std::size_t(length)) - 1;
          const Index overlapping = end - (Index(1) << level);
          pieces_[count_++] = {row, column, level};
          if (overlapping > column) pieces_[count_++] = {row, overlapping, level};
          levels_ = std::max(levels_, level + 1);
          cells_ += length;
        }
        column = end + 1;
      }
    complete_ = true;
  }

  // Whether pieces are fewer than cells by more than they cost ahead.
  bool pay() const { return complete_ && count_ + 4 * levels_ <= cells_; }
  int levels() const { return levels_; }
  int count() const { return count_; }
  const Piece* begin() const { return pieces_; }
  const Piece* end() const { return pieces_ + count_; }

 private:
  int count_ = 0, levels_ = 0;
  Index cells_ = 0;
  bool complete_ = false;
  Piece pieces_[kMost];
};

// What windows of a mask in pieces are computed from, in strips: each source row once reduced to the extremes of 1, 2,
// 4, ... neighbours. Used as ExtremeRows is.
template <class Pick, class T>
class PieceRows {
 public:
  using G = Groups<Pick, T>;
  using V = typename G::V;
  static constexpr int lanes = G::lanes;

  struct Shape {
    const Pieces* pieces;
    HuxiSize mask;
    Index neighbour, count, atOnce = 1;

    Index lines() const { return Index(mask.height) * pieces->levels(); }
    Index widened() const { return G::padded(count) + (mask.width - 1) * neighbour + lanes; }
    std::size_t ringBytes() const { return Ring<T>::bytes(lines(), widened()); }
    std::size_t bytes() const {
      return ringBytes() + std::size_t(pieces->count()) * sizeof(void*) + std::size_t(mask.height);
    }
  };
  static Shape shapeFor(const Pieces& pieces, HuxiSize mask, Index neighbour, Index elements) {
    constexpr Index near = 32 << 10;
    Shape shape{&pieces, mask, neighbour, G::elements};
    const Index common = (mask.width - 1) * neighbour, fits = near / Index(sizeof(T)) / shape.lines() - common;
    shape.count = std::clamp(std::max(fits, 2 * common) / G::elements * G::elements, G::elements,
                             std::max(elements, G::elements));
    return shape;
  }

  PieceRows(std::byte* memory, const Shape& shape)
      : shape_(shape),
        lines_(memory, shape.lines(), shape.widened()),
        at_(reinterpret_cast<const Element<T>**>(memory += shape.ringBytes())),
        holdsNaN_(reinterpret_cast<bool*>(memory + shape.pieces->count() * Index(sizeof(void*)))) {}

  void start(Window<T> top, Index count) {
    top_ = top;
    count_ = count;
    filled_ = 0;
  }

  template <class Store, class Line, class Finish>
  bool compute(Index row, Index, Line line, Finish finish) {
    const Index height = shape_.mask.height;
    for (; filled_ < row + height; ++filled_) fill(filled_);
    fetchPiece(top_[filled_], count_ + (shape_.mask.width - 1) * shape_.neighbour);
    fetchPiece(line(row + 1), count_);
    if (std::is_floating_point_v<T> && std::find(holdsNaN_, holdsNaN_ + height, true) != holdsNaN_ + height)
      return false;
    const int pieces = shape_.pieces->count();
    const Element<T>** const at = at_;
    Index k = 0;
    for (const auto& piece : *shape_.pieces)
      at[k++] = lineOf(row + piece.row, piece.level) + piece.column * shape_.neighbour;
    G::template cover<Store>(count_, [=, dst = line(row)](Index i, auto store) {
      auto v = G::load(at[0] + i);
      for (int k = 1; k < pieces; ++k) v = G::pick(v, G::load(at[k] + i));
      for (V& one : v) one = finish(one);
      store(dst, v);
    });
    return true;
  }

 private:
  Element<T>* lineOf(Index row, int level) const { return lines_[row * shape_.pieces->levels() + level]; }

  void fill(Index row) {
    const Index neighbour = shape_.neighbour, all = count_ + (shape_.mask.width - 1) * neighbour;
    holdsNaN_[row % shape_.mask.height] = anyNaN<V>(top_[row], all);
    alongRows<V>(std::array{SourceRow<T>{top_[row], 0}}, all,
                 [dst = lineOf(row, 0)](const auto& rows, Index i) { storeLanes(dst + i, loadLanes<V>(rows[0] + i)); });
    for (int level = 1; level < shape_.pieces->levels(); ++level) {
      const Index half = (Index(1) << (level - 1)) * neighbour;
      const Element<T>* const src = lineOf(row, level - 1);
      Element<T>* const dst = lineOf(row, level);
      for (Index i = 0; i < all - (2 * half - neighbour); i += lanes)  // our own lines are readable behind their ends
        storeLanes(dst + i, Pick()(loadLanes<V>(src + i), loadLanes<V>(src + i + half)));
    }
  }

  Shape shape_;
  Ring<T> lines_;
  const Element<T>** at_;
  bool* holdsNaN_;
  Window<T> top_{};
  Index count_ = 0, filled_ = 0;
};

}  // namespace hux
