// The machine's own vector instructions; of x86-64 those of the level, since it takes a compiler a second to read them
// all.
#pragma once

#if defined(__AVX__)
#include <immintrin.h>
#elif defined(__SSE4_1__)
#include <nmmintrin.h>
#elif defined(__SSSE3__)
#include <tmmintrin.h>
#elif defined(__SSE2__)
#include <emmintrin.h>
#elif defined(__aarch64__)
#include <arm_neon.h>
#endif
