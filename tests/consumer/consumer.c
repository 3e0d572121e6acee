/* A user's program in C99: every public header, both libraries, an image from allocation to release. */
#include <huxcore.h>
#include <huxi.h>
#include <huxs.h>
#include <stdio.h>

int main(void) {
  int step = 0;
  HuxiSize size = {33, 4};
  Hux8u* image = huxiMalloc_8u_C1(size.width, size.height, &step);
  if (!image || step != 64) return 1;
  if (huxiSet_8u_C1R(7, image, step, size) != huxStsOk || image[3 * step + 32] != 7) return 2;
  if (huxiSet_8u_C1R(7, image, 0, size) != huxStsBadStep) return 3;
  huxiFree(image);
  huxSetThreadCount(2);
  if (threads_omp_of_n_hux != 2 || !(huxConstantOfINF_32f > 3e38f)) return 4;
  printf("%s %s\n", huxiGetLibVersion()->libraryName, huxiGetLibVersion()->versionText);
  return 0;
}
