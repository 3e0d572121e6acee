// A tour of the library on two photographs: runs every step, writes a picture for each and a contact sheet of all, and
// tells how long each took.
//
//   tour <folder of the photographs> <folder for the results>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <limits>
#include <string>
#include <vector>

#include "png.h"
#include "sheet.h"
#include "tour.h"

namespace tour {
namespace {

// The result of a step and the shortest of three runs, memory for the pictures included.
Colour timed(const Step& step, const Photos& photos, double& milliseconds) {
  milliseconds = std::numeric_limits<double>::infinity();
  for (int run = 1;; ++run) {
    const auto start = std::chrono::steady_clock::now();
    Colour picture = step.run(photos);
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    milliseconds = std::min(milliseconds, took.count());
    if (run == 3) return picture;
  }
}

void run(const std::string& images, const std::string& results) {
  const Photos photos = {loadPng<3>(images + "/raccoon.png"), loadPng<1>(images + "/stairs.png")};
  if (!same(photos.raccoon.size(), kWhole) || !same(photos.stairs.size(), kStairs))
    throw std::runtime_error("the photographs in " + images + " are not those of the tour");
  std::printf("hux %s\n", huxiGetLibVersion()->versionText);
  std::vector<Step> steps;
  for (const auto room : {pixelSteps(), filterSteps(), transformSteps(), geometrySteps(), chainSteps()})
    steps.insert(steps.end(), room.begin(), room.end());
  Sheet sheet("a tour of hux", int(steps.size()));
  int number = 0;
  for (const Step& step : steps) {
    double milliseconds;
    const Colour picture = timed(step, photos, milliseconds);
    char file[64];
    std::snprintf(file, sizeof file, "%02d-%s", ++number, step.name);
    std::string title = step.name;
    std::printf("%-22s %7.2f ms  %s\n", file, milliseconds, step.shows);
    savePng(results + "/" + file + ".png", picture);
    std::replace(title.begin(), title.end(), '-', ' ');
    sheet.add(title, step.shows, picture);
  }
  savePng(results + "/contact-sheet.png", sheet.image());
  std::printf("contact sheet: %s/contact-sheet.png\n", results.c_str());
}

}  // namespace
}  // namespace tour

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fprintf(stderr, "usage: tour <folder of the photographs> <folder for the results>\n");
    return 2;
  }
  try {
    tour::run(argv[1], argv[2]);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "tour: %s\n", failure.what());
    return 1;
  }
}
