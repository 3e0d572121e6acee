// The transform of vectors of any length: contexts, complex transforms, and real ones with their packed spectrum.
#include <limits>

#include "huxs_transform.h"
#include "workers/fft/length.h"

struct HuxsDFTRecord {
  Hux32s tag;
  HuxAccuracyHint hint;
  Hux32s workSize;
  hux::fft::RealLengthPlan plan;  // of a complex record, its inner plan is the whole
};

namespace hux {
namespace {

using namespace fft;
using Record = HuxsDFTRecord;

constexpr Hux32s kComplex = 13, kReal = 15;

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

HuxStatus freeRecord(Hux32s tag, Record* pCtx) {
  if (HuxStatus s = check(pointers(pCtx), recordOf(pCtx, tag))) return s;
  retire(pCtx, true);
  return huxStsOk;
}

HuxStatus getBufSize(Hux32s tag, const Record* pCtx, int* pSize) {
  if (HuxStatus s = check(pointers(pCtx, pSize), recordOf(pCtx, tag))) return s;
  *elements(pSize) = pCtx->workSize ? pCtx->workSize + 16 : 0;
  return huxStsOk;
}

// Checks and work memory of a transform.
template <class T, class Run>
HuxStatus transforming(Hux32s tag, const T* pSrc, const T* pDst, const Record* pCtx, Hux8u* pBuffer, Run run) {
  if (HuxStatus s = check(pointers(pCtx), recordOf(pCtx, tag), pointers(pSrc, pDst))) return s;
  const WorkBuffer work(pBuffer, std::size_t(pCtx->workSize));
  if (!work) return huxStsNoMem;
  run(work.get());
  return huxStsOk;
}

template <Way W>
HuxStatus complexTransform(const Hux32fc* pSrc, Hux32fc* pDst, const Record* pCtx, Hux8u* pBuffer) {
  return transforming(kComplex, pSrc, pDst, pCtx, pBuffer,
                      [=](std::byte* work) { transform<W>(pCtx, pCtx->plan.inner, pSrc, pDst, work); });
}
template <Way W>
HuxStatus realTransform(const Hux32f* pSrc, Hux32f* pDst, const Record* pCtx, Hux8u* pBuffer) {
  return transforming(kReal, pSrc, pDst, pCtx, pBuffer, [=](std::byte* work) {
    if constexpr (W == Way::forward)
      transformReal(pCtx, pCtx->plan, pSrc, pDst, work);
    else
      transformToReal(pCtx, pCtx->plan, pSrc, pDst, work);
  });
}

}  // namespace
}  // namespace hux

#define EXPORT(kind, t)                                                                               \
  HuxStatus huxsDFTInitAlloc_##t(HuxsDFTRecord** ppCtx, int length, int flag, HuxAccuracyHint hint) { \
    return hux::initAlloc(hux::kind, ppCtx, length, flag, hint);                                      \
  }                                                                                                   \
  HuxStatus huxsDFTFree_##t(HuxsDFTRecord* pCtx) { return hux::freeRecord(hux::kind, pCtx); }         \
  HuxStatus huxsDFTGetBufSize_##t(const HuxsDFTRecord* pCtx, int* pSize) {                            \
    return hux::getBufSize(hux::kind, pCtx, pSize);                                                   \
  }
EXPORT(kComplex, C_32fc)
EXPORT(kReal, R_32f)
#undef EXPORT

#define EXPORT(name, T, ...)                                                                   \
  HuxStatus huxsDFT##name(const T* pSrc, T* pDst, const HuxsDFTRecord* pCtx, Hux8u* pBuffer) { \
    return hux::__VA_ARGS__(pSrc, pDst, pCtx, pBuffer);                                        \
  }
EXPORT(Fwd_CToC_32fc, Hux32fc, complexTransform<hux::Way::forward>)
EXPORT(Inv_CToC_32fc, Hux32fc, complexTransform<hux::Way::inverse>)
EXPORT(Fwd_RToPack_32f, Hux32f, realTransform<hux::Way::forward>)
EXPORT(Inv_PackToR_32f, Hux32f, realTransform<hux::Way::inverse>)
