/* What the calls of call.py cost in C. */
#include <huxi.h>
#include <stdio.h>
#include <time.h>

static double now(void) {
  struct timespec t;
  clock_gettime(CLOCK_MONOTONIC, &t);
  return (double)t.tv_sec * 1e6 + (double)t.tv_nsec * 1e-3;
}

/* The best of 40 rounds, in microseconds. */
#define TIME(name, call)                           \
  do {                                             \
    double best = 1e9;                             \
    for (int round = 0; round < 40; ++round) {     \
      const double start = now();                  \
      for (int i = 0; i < 2000; ++i) (void)(call); \
      const double took = (now() - start) / 2000;  \
      if (took < best) best = took;                \
    }                                              \
    printf("%-28s%7.3f us\n", name, best);         \
  } while (0)

int main(void) {
  static Hux8u a[32 * 32], b[256], c[256];
  const HuxiSize size = {16, 16}, mask = {3, 3};
  const HuxiPoint anchor = {1, 1};
  const HuxiRect whole = {0, 0, 16, 16};
  TIME("C: add", huxiAdd_8u_C1RSfs(a, 16, b, 16, c, 16, size, 0));
  TIME("C: add of a constant", huxiAddC_8u_C1RSfs(a, 16, 7, c, 16, size, 0));
  TIME("C: filter_box", huxiFilterBox_8u_C1R(a + 33, 32, c, 16, size, mask, anchor));
  TIME("C: filter_gauss", huxiFilterGauss_8u_C1R(a + 33, 32, c, 16, size, huxMskSize3x3));
  TIME("C: filter_max", huxiFilterMax_8u_C1R(a + 33, 32, c, 16, size, mask, anchor));
  TIME("C: resize", huxiResize_8u_C1R(a, size, 32, whole, c, 16, size, 1, 1, huxiInterLinear));
  return 0;
}
