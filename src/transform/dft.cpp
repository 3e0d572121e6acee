// The transform of vectors of any length: contexts, complex transforms, and real ones with their packed spectrum.
#include <limits>

#include "transform/vector.h"

struct HuxsDFTRecord {
  static constexpr Hux32s kComplex = 13, kReal = 15;
  static constexpr bool owned = true;  // there is no other way of making one

  Hux32s tag;
  HuxAccuracyHint hint;
  Hux32s workSize;
  hux::fft::RealLengthPlan plan;  // of a complex record, its inner plan is the whole

  const hux::fft::LengthPlan& whole() const { return plan.inner; }
};

namespace hux {
namespace {

using namespace fft;
using Record = HuxsDFTRecord;

constexpr Hux32s kReal = Record::kReal;

HuxStatus initAlloc(Hux32s tag, Record** ppCtx, int n, Hux32s flag, HuxAccuracyHint hint) {
  if (HuxStatus s = check(pointers(ppCtx), length(n))) return s;
  Record record{};
  record.tag = tag;
  record.hint = hint;
  const HuxStatus flagKnown = scalingOf(flag, n, tag == kReal ? record.plan.scaling : record.plan.inner.scaling);
  Arena arena(sizeof(Record));
  if (tag == kReal)
    record.plan.length = n, record.plan.take(arena);
  else
    record.plan.inner.length = n, record.plan.inner.take(arena, true, kLongestDirect);
  const std::int64_t work = tag == kReal ? record.plan.work : record.plan.inner.work;
  // What is reported of it must be a signed 32-bit number.
  constexpr std::int64_t most = std::numeric_limits<Hux32s>::max();
  if (work + 16 > most || arena.bytes() > std::size_t(most)) return huxStsNoMem;
  record.workSize = Hux32s(work);
  return create(ppCtx, arena.bytes(), [&](Record* made) -> HuxStatus {
    if (flagKnown) return flagKnown;
    *made = record;
    return tag == kReal ? made->plan.fill(made) : made->plan.inner.fill(made);
  });
}

}  // namespace
}  // namespace hux

#define EXPORT(kind, t)                                                                               \
  HuxStatus huxsDFTInitAlloc_##t(HuxsDFTRecord** ppCtx, int length, int flag, HuxAccuracyHint hint) { \
    return hux::initAlloc(HuxsDFTRecord::kind, ppCtx, length, flag, hint);                            \
  }
EXPORT(kComplex, C_32fc)
EXPORT(kReal, R_32f)
HUX_FOURIER_VECTORS(DFT)
