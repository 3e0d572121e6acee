#include <cstdio>

#include "hux/hux.hpp"

int main() {
  hux::image<std::uint8_t, 3> image(640, 480);
  hux::set({20, 60, 160}, image);                           // blue
  hux::set({250, 180, 30}, image.roi(160, 120, 320, 240));  // amber
  const std::uint8_t* centre = image.at(320, 240);
  std::printf("centre: %d %d %d\n", centre[0], centre[1], centre[2]);
}
