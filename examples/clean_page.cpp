// A scanned page made black and white: the light divided out, a threshold, specks removed, in one pass over memory.
#include <cstdio>

#include "page.h"

int main() {
  const page::Gray drawn = page::drawn({1240, 1754});  // A4 at 150 dots per inch
  const page::Gray scan = page::scanned(drawn);
  const page::Cleaned made = page::cleaned(scan);
  const int specks = hux::count_in_range(scan, 0, 10), ink = hux::count_in_range(drawn, 0, 0);
  std::printf("scan: %d pixels are as dark as specks; drawn: %d of ink, clean: %d\n", specks, ink, made.ink);
  const double wrong = hux::norm_diff_l1(drawn, made.clean) / 255;
  std::printf("pixels that differ from the page as it was drawn: %.2f %%\n",
              100 * wrong / (double(drawn.width()) * drawn.height()));
}
