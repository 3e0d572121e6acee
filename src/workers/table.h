// Bytes replaced through tables of 256, one for each channel.
#pragma once

#include <array>

#include "lanes/elementwise.h"
#include "lanes/lanes_math.h"

namespace hux {

// The tables of the processed channels of L lie one behind the other.
template <class L>
class ByteTables {
 public:
  static constexpr int bytes = 256 * L::processed;

#if defined(__AVX512VBMI__)
  explicit ByteTables(const Hux8u* tables)
      : rule_(tables, std::make_index_sequence<L::processed>{}), channels_(kChannels) {}
  void map(const Element<Hux8u>* src, Element<Hux8u>* dst, Index n) const {
    applyRule<L>(dst, n, rule_, channels_, FromRow<Hux8u, Rule::lanes>{src});
  }

 private:
  // A look-up is so cheap that every byte is looked up in all tables, and its channel selects.
  struct Rule {
    static constexpr int lanes = laneCount<Hux8u>;
    using V = Lanes<Hux8u, lanes>;
    LaneTable<Hux8u, 256> tables[L::processed];
    template <std::size_t... C>
    Rule(const Hux8u* from, std::index_sequence<C...>) : tables{LaneTable<Hux8u, 256>(from + 256 * C)...} {}
    V operator()(V channel, V v) const {
      V result = tables[0](v);
      for (int c = 1; c < L::processed; ++c) result = channel == Hux8u(c) ? tables[c](v) : result;
      return result;
    }
  };
  static constexpr Element<Hux8u> kChannels[4] = {{0}, {1}, {2}, {3}};
  Rule rule_;
  Repeat<L, Hux8u, Rule::lanes> channels_;
#else
  explicit ByteTables(const Hux8u* tables) : tables_(tables) {}
  void map(const Element<Hux8u>* src, Element<Hux8u>* dst, Index n) const {
    Index i = 0;
#if defined(__AVX2__)
    // Several vectors to each part of the table.
    if constexpr (L::channels == 1) {
      constexpr int vectors = 4;
      using Bytes = std::array<ByteShuffles::V, vectors>;
      if (n >= Index(sizeof(Bytes))) {
        const ByteShuffles shuffles(tables_);
        for (; i + Index(sizeof(Bytes)) <= n; i += sizeof(Bytes))
          storeLanes(dst + i, shuffles(loadLanes<Bytes>(src + i)));
      }
    }
#endif
    const Hux8u* const tables = tables_;
    for (; i < n; ++i)
      for (int c = 0; c < L::processed; ++c) dst[i * L::channels + c] = tables[256 * c + src[i * L::channels + c]];
  }

 private:
  const Hux8u* tables_;
#endif
};

// Fills a table with the results of a rule.
template <class Rule, class... Constants>
void tabulate(Hux8u* table, Rule rule, Constants... constants) {
  Element<Hux8u> bytes[256];
  for (int i = 0; i < 256; ++i) bytes[i] = Hux8u(i);
  applyRule<C1>(elements(table), 256, rule, constants..., FromRow<Hux8u, Rule::lanes>{bytes});
}

}  // namespace hux
