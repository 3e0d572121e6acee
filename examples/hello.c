#include <stdio.h>

#include "huxi.h"

int main(void) {
  const HuxiSize whole = {640, 480}, window = {320, 240};
  const Hux8u blue[3] = {20, 60, 160}, amber[3] = {250, 180, 30};
  int step;
  Hux8u* image = huxiMalloc_8u_C3(whole.width, whole.height, &step);
  HuxStatus status = image ? huxiSet_8u_C3R(blue, image, step, whole) : huxStsNoMem;
  if (!status) status = huxiSet_8u_C3R(amber, image + 120 * step + 160 * 3, step, window);
  if (!status) printf("centre: %d %d %d\n", image[240 * step + 960], image[240 * step + 961], image[240 * step + 962]);
  huxiFree(image);
  return status != huxStsOk;
}
