// The least or the greatest elements of windows. Elements are treated alike; `neighbour` is the distance between pixels
// in them.
//
// A selection keeps its second operand where the first does not beat it: of equal extremes the later one stands, which
// tells 0 from -0, and a NaN replaces what came before it and gives way to what comes behind it. Without NaN a
// selection may be split and overlapped at will as long as later elements stay second operands; with one it may not.
#pragma once

#include <bit>
#include <limits>

#include "core/fetch.h"
#include "core/ring.h"
#include "filter/vector_rows.h"
#include "lanes/lanes_count.h"

namespace hux {

struct Lesser {
  template <class V>
  V operator()(V kept, V candidate) const {
    return lesser(kept, candidate);
  }
  template <class T>
  static constexpr T limit = std::numeric_limits<T>::max();  // finite
};
struct Greater {
  template <class V>
  V operator()(V kept, V candidate) const {
    return greater(kept, candidate);
  }
  template <class T>
  static constexpr T limit = std::numeric_limits<T>::lowest();
};

// rule(i, load) for vectors at i that cover `count` elements, as coverRow does; load(p) reads no more of p than belongs
// to them.
template <class V, class T, class Rule>
void overRow(Index count, Rule rule) {
  if (count >= lanesIn<V>)
    coverRow<lanesIn<V>>(count, [&](Index i) { rule(i, [](const Element<T>* p) { return loadLanes<V>(p); }); });
  else
    rule(Index(0), [&](const Element<T>* p) { return loadLanes<V>(p, int(count), T(0)); });
}

template <class V, class T>
bool anyNaN(const Element<T>* row, Index count) {
  if constexpr (std::is_floating_point_v<T>) {
    auto found = V{} != V{};
    Index i = 0;
    for (constexpr int lanes = lanesIn<V>; i + 2 * lanes <= count; i += 2 * lanes)
      found |= unordered(loadLanes<V>(row + i), loadLanes<V>(row + i + lanes));
    overRow<V, T>(count - i, [&, rest = row + i](Index i, auto load) {
      const V v = load(rest + i);
      found |= unordered(v, v);
    });
    return anyHolds(found);
  } else {
    return false;
  }
}

// In which order the extreme of nine cells is found where the order shows, for floats: that of each row, then of these;
// that of each column, then of these; or one by one, row by row. The latter two start from the greatest or the lowest
// finite number.
enum class Order { kRows, kColumns, kCells };

// Rows of full 3 by 3 windows, one for each place to store them.
template <class Pick, Order order, class Store, class T, std::size_t rows>
void extremes3x3(Window<T> window, Index neighbour, const std::array<Element<T>*, rows>& dst, Index count) {
  using V = Lanes<T, laneCount<T>>;
  const Pick pick;
  const auto of3 = [=](V a, V b, V c) { return pick(pick(a, b), c); };
  alongRows<V>(sourceRows<rows + 2>(window, 2 * neighbour), count, [=](const auto& sources, Index i) {
    const auto cell = [&](std::size_t j, Index k) { return loadLanes<V>(sources[j] + i + k * neighbour); };
    if constexpr (order == Order::kRows || !std::is_floating_point_v<T>) {
      std::array<V, rows + 2> along;
      for (std::size_t j = 0; j < rows + 2; ++j) along[j] = of3(cell(j, 0), cell(j, 1), cell(j, 2));
      for (std::size_t r = 0; r < rows; ++r)
        storePixels<Store>(dst[r], i, of3(along[r], along[r + 1], along[r + 2]), count);
    } else {
      for (std::size_t r = 0; r < rows; ++r) {
        const auto column = [&](Index k) { return of3(cell(r, k), cell(r + 1, k), cell(r + 2, k)); };
        V v = splat<V>(Pick::template limit<T>);
        if constexpr (order == Order::kColumns)
          v = of3(pick(v, column(0)), column(1), column(2));
        else
          for (std::size_t j = r; j < r + 3; ++j) v = pick(of3(v, cell(j, 0), cell(j, 1)), cell(j, 2));
        storePixels<Store>(dst[r], i, v, count);
      }
    }
  });
}

// Rows of them by columns: the extremes of columns are kept, and serve three windows each. Parts of a row whose windows
// have a NaN are left to the order that a NaN asks for.
template <class Pick, class Store, class T, std::size_t rows>
void extremesOfColumns(Window<T> window, Index neighbour, const std::array<Element<T>*, rows>& dst, Index count) {
  static_assert(rows % 2 == 0);
  using V = Lanes<T, laneCount<T>>;
  constexpr Index strip = 512, line = strip + 2 * 4, lanes = lanesIn<V>;
  const Pick pick;
  Element<T> columns[rows][line];
  for (Index x = 0; x < count; x += strip) {
    // A short rest begins earlier, at a pixel, and finds some elements again.
    const Index first = x > 0 && count - x < lanes ? x - 16 : x, n = std::min(count - first, strip);
    Window<T> part = {window.first + first, window.step};
    const auto find = [pick, to = columns[0], ahead = dst, first](const auto& sources, Index i, auto found) {
      // What is written next is asked for meanwhile: the machine does not foresee short pieces of many rows.
      for (std::size_t r = 0; r < rows; ++r) fetchPiece(ahead[r] + first + i, 1);
      std::array<V, rows + 2> cells;
      for (std::size_t j = 0; j < rows + 2; ++j) cells[j] = loadLanes<V>(sources[j] + i);
      for (std::size_t r = 0; r < rows; r += 2) {
        // What two windows share, which is also where both are limited.
        const V between = pick(splat<V>(Pick::template limit<T>), pick(cells[r + 1], cells[r + 2]));
        storeLanes(to + Index(r) * line + i, pick(cells[r], between));
        storeLanes(to + Index(r + 1) * line + i, pick(between, cells[r + 3]));
      }
      for (std::size_t j = 0; j < rows + 2; j += 2) found |= unordered(cells[j], cells[j + 1]);
      return found;
    };
    const auto found = foldRows<V>(sourceRows<rows + 2>(part, 0), n + 2 * neighbour, V{} != V{}, find);
    const bool ordered = !anyHolds(found);
    for (std::size_t r = 0; r < rows; ++r, part.first = part[1])
      if (ordered)
        coverRow<lanes>(n, [=, from = columns[r], to = dst[r] + first](Index i) {
          const auto column = [=](Index k) { return loadLanes<V>(from + i + k * neighbour); };
          storePixels<Store>(to, i, pick(pick(column(0), column(1)), column(2)), n);
        });
      else
        extremes3x3<Pick, Order::kColumns, Store>(part, neighbour, std::array{dst[r] + first}, n);
  }
}

// A region of them: rows that are found together share the source rows between.
template <class Pick, Order order, class Store, class T>
void extremes3x3(WindowRows<T> src, Rows<T> dst, Index neighbour, Index count, Index height) {
  Index y = 0;
  if constexpr (order == Order::kColumns && std::is_floating_point_v<T>) {
    for (; y + 4 <= height; y += 4)
      extremesOfColumns<Pick, Store>(src.row(y), neighbour,
                                     std::array{dst.row(y), dst.row(y + 1), dst.row(y + 2), dst.row(y + 3)}, count);
    for (; y + 2 <= height; y += 2)
      extremesOfColumns<Pick, Store>(src.row(y), neighbour, std::array{dst.row(y), dst.row(y + 1)}, count);
  }
  for (; y + 2 <= height; y += 2)
    extremes3x3<Pick, order, Store>(src.row(y), neighbour, std::array{dst.row(y), dst.row(y + 1)}, count);
  if (y < height) extremes3x3<Pick, order, Store>(src.row(y), neighbour, std::array{dst.row(y)}, count);
}

// Neighbouring vectors, treated together to make up for what leads up to them.
template <class Pick, class T, int Vectors = 4>
struct Groups {
  static constexpr int lanes = laneCount<T>, vectors = Vectors;
  static constexpr Index elements = vectors * lanes;
  using V = Lanes<T, lanes>;
  using Group = std::array<V, vectors>;

  static constexpr Index padded(Index count) { return (count + elements - 1) / elements * elements; }

  static Group load(const Element<T>* p) {
    Group v;
    for (std::size_t u = 0; u < vectors; ++u) v[u] = loadLanes<V>(p + u * lanes);
    return v;
  }
  static void keep(T* p, const Group& v) { storeLanes(p, v); }
  static Group pick(const Group& kept, const Group& candidate) {
    Group v;
    for (std::size_t u = 0; u < vectors; ++u) v[u] = Pick()(kept[u], candidate[u]);
    return v;
  }

  // body(i, store) for groups at i that cover `count` elements; store(dst, group) stores what belongs to them.
  template <class Store, class Body>
  static void cover(Index count, Body body) {
    Index i = 0;
    for (; i + elements <= count; i += elements)
      body(i, [i](Element<T>* dst, const Group& v) {
        for (int u = 0; u < vectors; ++u) storePixels<Store>(dst, i + u * lanes, v[std::size_t(u)], i + elements);
      });
    if (i < count)
      body(i, [i, count](Element<T>* dst, const Group& v) {
        for (int u = 0; u < vectors && i + u * lanes < count; ++u)
          storePixels<Store>(dst, i + u * lanes, v[std::size_t(u)], count);
      });
  }
};

// What a full window of mask.width by mask.height is computed from: strips of rows, each row reduced to the extremes
// over the mask's width by overlapping windows of growing width, several of these rows to a row of output. The height
// is paid once for `atOnce` rows of output: those that they have in common, and the rest from the middle outwards.
template <class Pick, class T>
class ExtremeRows {
 public:
  using G = Groups<Pick, T>;
  using G2 = Groups<Pick, T, 2>;
  using V = typename G::V;
  static constexpr int lanes = G::lanes;
  static constexpr Index kGroup = G::elements;
  // Of low windows so many rows are computed at once, without memory for what they have.
  static constexpr Index kInRegisters = 4, kLowest = 8;
  static constexpr Index kDirect = 6;  // the widest windows that are found in one pass
  static_assert((kDirect - 1) * 4 <= kWidestMargin);

  // Strips of `count` elements; no more than mask.height rows at once.
  struct Shape {
    HuxiSize mask;
    Index neighbour, atOnce, count;

    Index lines() const { return atOnce + mask.height - 1; }
    Index padded() const { return G::padded(count); }
    Index widened() const { return padded() + (mask.width - 1) * neighbour + lanes; }
    std::size_t bytes() const {
      const std::size_t parts[] = {ringBytes(), temporaryBytes(), innerBytes(), std::size_t(atOnce) * sizeof(void*),
                                   std::size_t(lines()) * (sizeof(void*) + sizeof(bool))};
      std::size_t total = 0;
      for (std::size_t part : parts)
        if (__builtin_add_overflow(total, part, &total)) return std::numeric_limits<std::size_t>::max();
      return total;
    }
    std::size_t ringBytes() const { return Ring<T>::bytes(lines(), padded()); }
    std::size_t temporaryBytes() const { return Ring<T>::bytes(2, widened()); }
    std::size_t innerBytes() const { return std::size_t(atOnce * kGroup) * sizeof(T); }
  };

  // The shape of strips for a region of so many elements and rows: as wide as stays near the processor, but not so
  // narrow that what they have in common outweighs them. The second cache is near enough: what strips of the first one
  // would save there is lost in memory, where each of their short rows begins with a wait.
  static Shape shapeFor(HuxiSize mask, Index neighbour, Index elements, Index rows) {
    constexpr Index near = 256 << 10;
    const Index atOnce = mask.height >= kInRegisters && mask.height <= kLowest ? kInRegisters : mask.height;
    Shape shape{mask, neighbour, std::min(atOnce, rows), kGroup};
    const Index fits = near / Index(sizeof(T)) / shape.lines(), common = (mask.width - 1) * neighbour;
    shape.count = std::clamp(std::max(fits, 4 * common) / kGroup * kGroup, kGroup, std::max(elements, kGroup));
    return shape;
  }

  ExtremeRows(std::byte* memory, const Shape& shape)
      : shape_(shape),
        lines_(memory, shape.lines(), shape.padded()),
        temporary_(memory += shape.ringBytes(), 2, shape.widened()),
        inner_(reinterpret_cast<T*>(memory += shape.temporaryBytes())),
        window_(reinterpret_cast<const Element<T>**>(memory += shape.innerBytes())),
        line_(reinterpret_cast<Element<T>**>(memory += shape.lines() * Index(sizeof(void*)))),
        holdsNaN_(reinterpret_cast<bool*>(memory + shape.atOnce * Index(sizeof(void*)))) {}

  // From here on, the strip of `count` elements whose first window starts with `top`.
  void start(Window<T> top, Index count) {
    top_ = top;
    count_ = count;
    filled_ = 0;
  }

  // The rows of output from `row` on, `rows` of them; follows the rows before. line(r) is where the strip's part of row
  // r belongs, finish(v) the last thing done to its vectors. False where a NaN lies in a window: then nothing has been
  // stored.
  template <class Store, class Line, class Finish>
  bool compute(Index row, Index rows, Line line, Finish finish) {
    const Index windows = rows + shape_.mask.height - 1, lines = shape_.lines();
    for (; filled_ < row + windows; ++filled_) fill(filled_);
    for (Index k = 0; k < windows; ++k) {
      if (std::is_floating_point_v<T> && holdsNaN_[(row + k) % lines]) return false;
      window_[k] = lines_[row + k];
    }
    for (Index r = 0; r < rows; ++r) line_[r] = line(row + r);
    if (rows == kInRegisters)
      G2::template cover<Store>(count_, [&](Index i, auto store) { fourRows(i, finish, store); });
    else
      G::template cover<Store>(count_, [&](Index i, auto store) { group(i, rows, finish, store); });
    return true;
  }

 private:
  // Rows of a group: from the window of the last row upwards, which leaves what each row has of the first window, then
  // from the first window downwards.
  template <class Finish, class Put>
  void group(Index i, Index rows, Finish finish, Put put) {
    const Index height = shape_.mask.height;
    T* const inner = inner_;
    const Element<T>* const* const window = window_;
    const auto store = [=](Element<T>* dst, typename G::Group v) {
      for (V& one : v) one = finish(one);
      put(dst, v);
    };
    for (Index r = 0; r < rows; ++r) fetchPiece(line_[r] + i + kGroup, kGroup);
    Index k = height - 1;
    auto v = G::load(window[k] + i);
    for (; k >= rows; --k) v = G::pick(G::load(window[k - 1] + i), v);
    for (; k > 0; --k) {
      G::keep(inner + k * kGroup, v);
      v = G::pick(G::load(window[k - 1] + i), v);
    }
    store(line_[0], v);
    if (rows == 1) return;
    auto behind = G::load(window[height] + i);
    for (Index r = 1;; ++r) {
      store(line_[r], G::pick(G::load(elements(inner + r * kGroup)), behind));
      if (r + 1 == rows) break;
      behind = G::pick(behind, G::load(window[height + r] + i));
    }
  }

  // Four rows of a group, whose windows have all rows of the last one's from its first on in common.
  template <class Finish, class Put>
  void fourRows(Index i, Finish finish, Put put) {
    const Index height = shape_.mask.height;
    const Element<T>* const* const window = window_;
    const auto at = [=](Index k) { return G2::load(window[k] + i); };
    const auto store = [=, this](Index r, typename G2::Group v) {
      for (V& one : v) one = finish(one);
      put(line_[r], v);
    };
    auto third = at(height - 1);
    for (Index k = height - 2; k >= 3; --k) third = G2::pick(at(k), third);
    const auto second = G2::pick(at(2), third), first = G2::pick(at(1), second);
    store(0, G2::pick(at(0), first));
    auto behind = at(height);
    store(1, G2::pick(first, behind));
    behind = G2::pick(behind, at(height + 1));
    store(2, G2::pick(second, behind));
    store(3, G2::pick(third, G2::pick(behind, at(height + 2))));
  }

  // The extremes along one source row, from windows of one pixel to four times as many in each pass; of narrow windows
  // in one.
  void fill(Index row) {
    const Index neighbour = shape_.neighbour, width = shape_.mask.width;
    const Element<T>* source = top_[row];
    holdsNaN_[row % shape_.lines()] = anyNaN<V>(source, count_ + (width - 1) * neighbour);
    for (Index done = 1, pass = 0;; ++pass) {
      const Index wider = done == 1 && width <= kDirect ? width : std::min(4 * done, width),
                  count = count_ + (width - wider) * neighbour;
      auto* dst = wider == width ? lines_[row] : temporary_[pass];
      const auto overlap = [=, step = done * neighbour, last = (wider - done) * neighbour](auto terms) {
        const auto extreme = [=](const Element<T>* p, Index i) {
          V v = loadLanes<V>(p);
          for (int t = 1; t < terms - 1; ++t) v = Pick()(v, loadLanes<V>(p + t * step));
          storeLanes(dst + i, terms > 1 ? Pick()(v, loadLanes<V>(p + last)) : v);
        };
        if (pass == 0)
          alongRows<V>(std::array{SourceRow<T>{source, last}}, count,
                       [=](const auto& rows, Index i) { extreme(rows[0] + i, i); });
        else  // our own lines are readable behind their ends
          for (Index i = 0; i < count; i += lanes) extreme(source + i, i);
      };
      switch ((wider + done - 1) / done) {
        case 1:
          overlap(std::integral_constant<int, 1>{});
          break;
        case 2:
          overlap(std::integral_constant<int, 2>{});
          break;
        case 3:
          overlap(std::integral_constant<int, 3>{});
          break;
        case 4:
          overlap(std::integral_constant<int, 4>{});
          break;
        case 5:
          overlap(std::integral_constant<int, 5>{});
          break;
        case 6:
          overlap(std::integral_constant<int, 6>{});
          break;
      }
      if (wider == width) return;
      source = dst;
      done = wider;
    }
  }

  Shape shape_;
  Ring<T> lines_, temporary_;
  T* inner_;
  const Element<T>** window_;
  Element<T>** line_;
  bool* holdsNaN_;
  Window<T> top_{};
  Index count_ = 0, filled_ = 0;
};

}  // namespace hux
