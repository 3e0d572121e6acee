// Records of transforms of images: how they are planned, made and freed.
#pragma once

#include <limits>

#include "workers/fft/image.h"

namespace hux::fft {

// Kind is ByPower or ByLength. The tags are those of complex, real and integer records.
template <class K, Hux32s Complex, Hux32s Real, Hux32s Integer>
struct ImageRecord {
  using Kind = K;
  static constexpr Hux32s kComplex = Complex, kReal = Real, kInteger = Integer;

  Hux32s tag;
  HuxAccuracyHint hint;
  Hux32s bufSize;
  ImagePlan<K> plan;
};

inline HuxStatus prepare(PowerPlan& plan, int order, Hux32s flag) {
  plan.order = order;
  return scalingOf(flag, Index(1) << order, plan.scaling);
}
inline HuxStatus prepare(RealPlan& plan, int order, Hux32s flag) {
  plan.order = order;
  return scalingOf(flag, Index(1) << order, plan.half.scaling);
}
template <class Plan>
HuxStatus prepare(Plan& plan, int length, Hux32s flag) {
  plan.length = length;
  return scalingOf(flag, length, plan.scaling);
}

inline std::int64_t takeFor(PowerPlan& plan, Arena& arena) {
  plan.take(arena);
  return bufferBytes(workBytes(plan.order));
}
inline std::int64_t takeFor(RealPlan& plan, Arena& arena) {
  plan.take(arena);
  return plan.order <= 3 ? 0 : bufferBytes(workBytes(plan.half.order));
}
inline std::int64_t takeFor(LengthPlan& plan, Arena& arena) {
  plan.take(arena, true, kLongestDirect);
  return bufferBytes(plan.work);
}
inline std::int64_t takeFor(RealLengthPlan& plan, Arena& arena) {
  plan.take(arena);
  return bufferBytes(plan.work);
}

// x and y are orders or lengths. On failure the plan is not to be used.
template <class R>
HuxStatus planImage(R& record, Arena& arena, int x, int y, Hux32s flag, HuxStatus& flagKnown) {
  ImagePlan<typename R::Kind>& plan = record.plan;
  const std::int64_t width = plan.size.width, height = plan.size.height;
  const auto pair = [&](auto& row, auto& column, std::int64_t& rowBytes, std::int64_t& columnBytes) {
    flagKnown = prepare(row, x, flag);
    rowBytes = takeFor(row, arena);
    if (x == y) {
      column = row, columnBytes = rowBytes;
    } else {
      prepare(column, y, flag);
      columnBytes = takeFor(column, arena);
    }
  };
  std::int64_t row, column, bytes;
  if (record.tag == R::kComplex) {
    pair(plan.row, plan.column, row, column);
    bytes = std::max(64 * height + column, row);
  } else {
    pair(plan.realRow, plan.realColumn, row, column);
    prepare(plan.column, y, flag);
    bytes = std::max({16 * height + column, 64 * height + takeFor(plan.column, arena), 16 * width + row});
  }
  constexpr std::int64_t most = std::numeric_limits<Hux32s>::max();
  if (record.tag == R::kInteger) {
    // In double, for the product alone may leave 64 bits.
    if (16.0 * double(width) * double(height) > double(most)) return huxStsNoMem;
    bytes = bytes + 16 + 4 * width + 16 * width * height + 16;
  }
  if (bytes + 16 > most || arena.bytes() > std::size_t(most)) return huxStsNoMem;
  record.bufSize = Hux32s(bytes);
  return huxStsOk;
}

template <class R>
HuxStatus fillImage(R* record) {
  ImagePlan<typename R::Kind>& plan = record->plan;
  const bool complex = record->tag == R::kComplex;
  if constexpr (std::is_same_v<typename R::Kind, ByPower>) {
    const int order =
        complex ? std::max(plan.row.order, plan.column.order) : std::max(plan.realRow.order, plan.realColumn.order);
    if (order <= 3) return huxStsOk;
    const Scratch<Hux32f> quarter(Waves::entries(order));
    if (!quarter) return huxStsNoMem;
    const Waves waves(order, quarter.get());
    if (complex)
      plan.row.fill(record, waves);
    else
      plan.realRow.fill(record, waves), plan.realColumn.fill(record, waves);
    plan.column.fill(record, waves);
    return huxStsOk;
  } else {
    const HuxStatus rows = complex ? plan.row.fill(record) : plan.realRow.fill(record);
    const HuxStatus columns = complex || rows ? rows : plan.realColumn.fill(record);
    return columns ? columns : plan.column.fill(record);
  }
}

template <class R>
HuxStatus makeImageRecord(R** ppCtx, Hux32s tag, int x, int y, HuxiSize size, Hux32s flag, HuxAccuracyHint hint) {
  R record{};
  record.tag = tag;
  record.hint = hint;
  record.plan.size = size;
  Arena arena(sizeof(R));
  HuxStatus flagKnown = huxStsOk;
  if (HuxStatus s = planImage(record, arena, x, y, flag, flagKnown)) return s;
  return create(ppCtx, arena.bytes(), [&](R* made) -> HuxStatus {
    if (flagKnown) return flagKnown;
    *made = record;
    return fillImage(made);
  });
}

template <class R>
HuxStatus freeImageRecord(R* pCtx, Hux32s tag) {
  if (HuxStatus s = check(pointers(pCtx), recordOf(pCtx, tag))) return s;
  retire(pCtx, true);
  return huxStsOk;
}

}  // namespace hux::fft
