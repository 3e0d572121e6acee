// A contact sheet: pictures reduced to tiles of one size, in rows, each with a title and a note below.
#pragma once

#include <string_view>

#include "image.h"

namespace tour {

class Sheet {
 public:
  Sheet(std::string_view title, int tiles);

  // Lays the next picture. Text is shown in upper case.
  void add(std::string_view title, std::string_view note, const Colour& picture);

  const Colour& image() const { return image_; }

 private:
  Colour image_;
  int next_ = 0;
};

}  // namespace tour
