// Allocation of vectors.
#include "core/scratch.h"
#include "core/stamp.h"
#include "huxs.h"

namespace hux {
namespace {

template <class T>
T* mallocVector(int len) {
  return len < 1 ? nullptr : static_cast<T*>(allocate(std::size_t(len) * sizeof(T)));
}

}  // namespace
}  // namespace hux

#define EXPORT(t, _) \
  Hux##t* huxsMalloc_##t(int len) { return hux::mallocVector<Hux##t>(len); }
HUX_STAMP(EXPORT, (8u, 8s, 16u, 16s, 32u, 32s, 32f, 16sc, 32sc, 32fc, 64fc), (_))
#undef EXPORT

void huxsFree(void* pVector) { hux::release(pVector); }
