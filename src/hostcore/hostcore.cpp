// libhuxcore: the thread count and the constants that hux shares with its siblings.
#include "huxcore.h"

#include <atomic>
#include <limits>

#ifdef _OPENMP
#include <omp.h>

// omp_get_num_procs honours the affinity mask: the processors that this process may run on.
Hux32u threads_omp_of_n_hux = static_cast<Hux32u>(omp_get_num_procs());
#else
Hux32u threads_omp_of_n_hux = 1;  // whatever it is set to, a team has one thread
#endif

void huxSetThreadCount(Hux32u count) { std::atomic_ref(threads_omp_of_n_hux).store(count, std::memory_order_relaxed); }
Hux32u huxGetThreadCount(void) { return std::atomic_ref(threads_omp_of_n_hux).load(std::memory_order_relaxed); }

const Hux32f huxConstantOfINF_32f = std::numeric_limits<Hux32f>::infinity();
const Hux32f huxConstantOfNAN_32f = std::numeric_limits<Hux32f>::quiet_NaN();
const Hux64f huxConstantOfNAN_64f = std::numeric_limits<Hux64f>::quiet_NaN();
