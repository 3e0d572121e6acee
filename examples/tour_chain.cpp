// The tour's step through a chain of calls, by the C++ front.
#include "page.h"
#include "tour.h"

namespace tour {
namespace {

// A page under a lamp, how bright its paper is, the one divided by the other, and black and white without specks.
Colour cleanPage(const Photos&) {
  const page::Gray scan = page::scanned(page::drawn(kFace));
  const page::Cleaned made = page::cleaned(scan);
  Colour out(kWhole);
  int i = 0;
  for (const page::Gray* picture : {&scan, &made.light, &made.flat, &made.clean})
    HUX_DO(huxiDup_8u_C1C3R(picture->data(), picture->step(), quarter(out, i++), out.step(), kFace));
  return out;
}

constexpr Step kSteps[] = {
    {"clean-page", "a scan; its light; without it; black and white", cleanPage},
};

}  // namespace

std::span<const Step> chainSteps() { return kSteps; }

}  // namespace tour
