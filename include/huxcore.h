/* libhuxcore: the few things that hux shares with its sibling libraries. Plain C99. */
#ifndef HUXCORE_H
#define HUXCORE_H

#include "huxdefs.h"

HUX_BEGIN_C

/* The number of threads that a parallel function asks the OpenMP runtime for, read each time a parallel region opens.
 * Initially the number of processors that the process may run on. 0 acts as 1, and more than 1024 as 1024; the runtime
 * may grant fewer. Results do not depend on it, but for the last bits of the few functions whose comments say so. */
extern HUX_CORE_API Hux32u threads_omp_of_n_hux;

/* SetThreadCount, GetThreadCount: set and get the number of threads that a call may use.
 * They may be called at any time, while other threads call the library too: a call takes the number once. */
HUX_CORE_API void huxSetThreadCount(Hux32u count);
HUX_CORE_API Hux32u huxGetThreadCount(void);

/* The values that float functions write where a result has none: +infinity and quiet NaNs. */
extern HUX_CORE_API const Hux32f huxConstantOfINF_32f;
extern HUX_CORE_API const Hux32f huxConstantOfNAN_32f;
extern HUX_CORE_API const Hux64f huxConstantOfNAN_64f;

HUX_END_C

#endif
