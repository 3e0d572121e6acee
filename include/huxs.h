/* hux vector functions. Plain C99. */
#ifndef HUXS_H
#define HUXS_H

#include "huxdefs.h"

HUX_BEGIN_C

/* Malloc: allocates len elements, aligned to 32 bytes. Null when len is below 1 or memory runs out. Free with
 * huxsFree, never with free. */
HUX_API Hux8u* huxsMalloc_8u(int len);
HUX_API Hux8s* huxsMalloc_8s(int len);
HUX_API Hux16u* huxsMalloc_16u(int len);
HUX_API Hux16s* huxsMalloc_16s(int len);
HUX_API Hux32u* huxsMalloc_32u(int len);
HUX_API Hux32s* huxsMalloc_32s(int len);
HUX_API Hux32f* huxsMalloc_32f(int len);
HUX_API Hux16sc* huxsMalloc_16sc(int len);
HUX_API Hux32sc* huxsMalloc_32sc(int len);
HUX_API Hux32fc* huxsMalloc_32fc(int len);
HUX_API Hux64fc* huxsMalloc_64fc(int len);

/* Frees a vector from huxsMalloc, or an image from huxiMalloc; a null pointer is ignored. */
HUX_API void huxsFree(void* pVector);

HUX_END_C

#endif
