// Windows: masks, anchors and taps, how far they look, and the borders that sources are given.
#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <string>

#include "run.h"

namespace hux::python {

Py_ssize_t inside(Py_ssize_t at, Py_ssize_t size, int border) {
  if (at >= 0 && at < size) return at;
  if (border == kConstant) return -1;
  if (border == kReplicate) return at < 0 ? 0 : size - 1;
  const Py_ssize_t period = border == kWrap        ? size
                            : border == kSymmetric ? 2 * size
                                                   : std::max<Py_ssize_t>(2 * size - 2, 1);
  const Py_ssize_t in = ((at % period) + period) % period;
  return in < size ? in : border == kSymmetric ? period - 1 - in : period - in;
}

namespace {

constexpr Word kBorders[] = {{"replicate", kReplicate},   {"constant", kConstant}, {"symmetric", kSymmetric},
                             {"reflect101", kReflect101}, {"wrap", kWrap},         {"edge", kReplicate},
                             {"nearest", kReplicate}};

bool readBorder(PyObject* given, int* border, const char* operation) {
  if (!PyUnicode_Check(given)) {
    PyErr_Format(PyExc_TypeError, "%s: border is a word or None, not %R", operation, given);
    return false;
  }
  for (const Word& word : kBorders)
    if (PyUnicode_CompareWithASCIIString(given, word.word) == 0) return *border = word.value, true;
  const bool either =
      PyUnicode_CompareWithASCIIString(given, "reflect") == 0 || PyUnicode_CompareWithASCIIString(given, "mirror") == 0;
  PyErr_Format(PyExc_ValueError,
               either
                   ? "%s: border=%R may mean \"symmetric\" (cba|abcd|dcb) or \"reflect101\" (dcb|abcd|cba): say which"
                   : "%s: border is one of \"replicate\", \"constant\", \"symmetric\", \"reflect101\", \"wrap\", or "
                     "None, not %R",
               operation, given);
  return false;
}

// An image that is continued on all sides.
struct Continued {
  const char* pixels;
  Py_ssize_t step, width, height, size;  // bytes of a row and of a pixel
  int border;
  const char* value;  // a pixel

  // Writes the part of height rows from y on and width columns from x on.
  bool write(Py_ssize_t x, Py_ssize_t y, Py_ssize_t columns, Py_ssize_t rows, char* to, Py_ssize_t toStep) const {
    switch (size) {
      case 1:
        return write<1>(x, y, columns, rows, to, toStep);
      case 2:
        return write<2>(x, y, columns, rows, to, toStep);
      case 3:
        return write<3>(x, y, columns, rows, to, toStep);
      case 4:
        return write<4>(x, y, columns, rows, to, toStep);
      default:
        return write<0>(x, y, columns, rows, to, toStep);
    }
  }

 private:
  template <int kSize>
  bool write(Py_ssize_t x, Py_ssize_t y, Py_ssize_t columns, Py_ssize_t rows, char* to, Py_ssize_t toStep) const {
    const Continued image = *this;  // which what is written cannot be, as far as compilers know
    const Py_ssize_t bytes = kSize ? kSize : image.size;
    const Py_ssize_t first = std::clamp<Py_ssize_t>(-x, 0, columns),
                     end = std::clamp<Py_ssize_t>(image.width - x, first, columns);
    Py_ssize_t few[64];
    const Py_ssize_t around = first + columns - end;
    std::unique_ptr<Py_ssize_t[]> many(around > 64 ? new (std::nothrow) Py_ssize_t[around] : nullptr);
    Py_ssize_t* const places = around > 64 ? many.get() : few;
    if (!places) return false;
    for (Py_ssize_t i = 0; i < around; ++i)
      places[i] = inside(x + (i < first ? i : end + i - first), image.width, image.border);
    for (Py_ssize_t row = 0; row < rows; ++row, to += toStep) {
      const Py_ssize_t at = y + row;
      const Py_ssize_t source = at >= 0 && at < image.height ? at : inside(at, image.height, image.border);
      if (source < 0) {
        for (Py_ssize_t i = 0; i < columns; ++i) std::memcpy(to + i * bytes, image.value, size_t(bytes));
        continue;
      }
      const char* const from = image.pixels + source * image.step;
      auto put = [&](Py_ssize_t column, Py_ssize_t place) {
        std::memcpy(to + column * bytes, place < 0 ? image.value : from + place * bytes, size_t(bytes));
      };
      for (Py_ssize_t i = 0; i < first; ++i) put(i, places[i]);
      if (end > first) std::memcpy(to + first * bytes, from + (x + first) * bytes, size_t((end - first) * bytes));
      for (Py_ssize_t i = end; i < columns; ++i) put(i, places[first + i - end]);
    }
    return true;
  }
};

}  // namespace

// frame(image, out, left, top, border, value): puts the rows of an image in a larger one, and a border around them.
// Both have their pixels one after another; value is a pixel in bytes. A side that is longer than the image goes on as
// the rule does.
PyObject* frame(PyObject*, PyObject* arguments) {
  PyObject *from, *to;
  Py_ssize_t left, top, size;
  int border;
  const char* value;
  if (!PyArg_ParseTuple(arguments, "OOnniy#", &from, &to, &left, &top, &border, &value, &size)) return nullptr;
  Py_buffer in, out;
  if (PyObject_GetBuffer(from, &in, PyBUF_RECORDS_RO) < 0) return nullptr;
  if (PyObject_GetBuffer(to, &out, PyBUF_RECORDS) < 0) {
    PyBuffer_Release(&in);
    return nullptr;
  }
  const bool good = in.ndim >= 2 && out.ndim >= 2 && in.shape[0] > 0 && in.shape[1] > 0 &&
                    (in.strides[1] == size || in.shape[1] == 1) && (out.strides[1] == size || out.shape[1] == 1);
  if (good) {
    const Py_ssize_t rows = out.shape[0], columns = out.shape[1];
    const Continued image{static_cast<char*>(in.buf), in.strides[0], in.shape[1], in.shape[0], size, border, value};
    PyThreadState* state = rows * columns > kKeepLock ? PyEval_SaveThread() : nullptr;
    const bool written = image.write(-left, -top, columns, rows, static_cast<char*>(out.buf), out.strides[0]);
    if (state) PyEval_RestoreThread(state);
    if (!written) PyErr_NoMemory();
  } else {
    PyErr_SetString(PyExc_ValueError, "no such frame");
  }
  PyBuffer_Release(&in);
  PyBuffer_Release(&out);
  if (PyErr_Occurred()) return nullptr;
  Py_RETURN_NONE;
}

bool Run::takeWindow(const Parameter& parameter, PyObject* value, char*) {
  switch (parameter.kind) {
    case Kind::maskSize: {
      if (!value) {  // the word where none is given, "3x3" and the like
        maskSize = {parameter.fallback[0] - '0', parameter.fallback[2] - '0'};
      } else if (!readMaskSize(value, &maskSize, op.name)) {
        return false;
      }
      if (!parameter.fallback) return true;
      const int number = maskSize.width > 9 || maskSize.height > 9 ? 0 : maskSize.width * 10 + maskSize.height;
      const short only[] = {33, 0}, *const masks = member->masks ? member->masks : only;
      std::string list;
      for (const short* mask = masks; *mask; ++mask) {
        if (*mask == number) return true;
        list += (list.empty() ? "\"" : ", \"") + std::to_string(*mask / 10) + 'x' + std::to_string(*mask % 10) + '"';
      }
      return fail(huxStsBadMaskSize,
                  ("mask_size of " + std::string(kFunctions[member->function].name) + " is one of " + list).c_str());
    }
    case Kind::footprint:
      if (!numbers.take(value, "footprint", op.name)) return false;
      if (numbers.axes != 2)
        return refuse(PyExc_TypeError, "footprint is an array of two axes, 0 where a pixel does not count");
      taps = numbers.as(Type::t8u, "footprint", op.name);
      maskSize = {int(numbers.columns), int(numbers.rows)};
      return true;
    case Kind::kernel: {
      const bool flat = std::strchr(member->program, 'w');
      if (numbers.axes != (flat ? 1 : 2))
        return refuse(PyExc_TypeError, flat ? "kernel is an array of one axis" : "kernel is an array of two axes");
      taps = numbers.as(form ? Type::t32s : Type::t32f, "taps", op.name);
      maskSize = {int(numbers.columns), int(flat ? numbers.columns : numbers.rows)};
      return taps;
    }
    case Kind::anchor:
      if (!value) return true;
      anchored = true;
      if (std::strchr(member->program, 'P'))
        return readInts(value, 2, &anchor.x, parameter.name, "a pair of integers (x, y)", op.name);
      if (!readInt(value, &anchor.x, parameter.name, op.name)) return false;
      anchor.y = anchor.x;
      return true;
    case Kind::divisor:
      if (!value) return true;
      return std::strchr(member->program, 'd')
                 ? readInt(value, &divisor, parameter.name, op.name)
                 : refuse(PyExc_TypeError, op.family == Family::window
                                               ? "a divisor goes with integer kernels and images"
                                               : "a divisor goes with integer images");
    case Kind::border:
      border = kReplicate;
      if (!value) return true;
      if (value == Py_None) return border = kValidRegion, true;
      return readBorder(value, &border, op.name);
    default:  // the value of a constant border
      return !value || border != kConstant ||
             writeConstants(value, a.first.type, a.first.channels, borderPixel, op.name);
  }
}

bool Run::findReach() {
  if (std::strpbrk(member->program, "Ww") && (maskSize.width < 1 || maskSize.height < 1))
    return fail(huxStsBadMaskSize, "the window has no extent");
  if (!anchored) anchor = {maskSize.width / 2, maskSize.height / 2};
  if (anchored && (anchor.x < 0 || anchor.x >= maskSize.width || anchor.y < 0 || anchor.y >= maskSize.height))
    return fail(huxStsBadAnchor, "the anchor lies outside of the window");
  if (maskSize.width > 1 << 30 || maskSize.height > 1 << 30) return fail(huxStsBadMaskSize, "the window is too large");
  const Reach& reach = member->reach;
  left = reach.left(maskSize.width, anchor.x);
  top = reach.top(maskSize.height, anchor.y);
  right = reach.right(maskSize.width, anchor.x);
  bottom = reach.bottom(maskSize.height, anchor.y);
  if ((a.first.width + left + right) * 16 > Py_ssize_t(INT_MAX) || a.first.height + top + bottom > INT_MAX - 1)
    return fail(huxStsBadMaskSize, "the window is too large");
  return true;
}

bool Run::findShapeOfWindow() {
  height = a.first.height - (border < 0 ? top + bottom : 0);
  width = a.first.width - (border < 0 ? left + right : 0);
  return (height > 0 && width > 0) || fail(huxStsBadSize, "the image is smaller than the window");
}

bool Run::findWork() {
  int size = 0;
  HuxStatus status;
  if (op.family == Family::window)
    status = huxiFilterWienerGetBufferSize({int(width), int(height)}, maskSize, sourceLayout == kAC4 ? 3 : a.channels(),
                                           &size);
  else
    status = huxiResizeSqrPixelGetBufSize({resultRegion.width, resultRegion.height}, a.planes() ? 1 : a.channels(),
                                          interpolation(), &size);
  if (status < 0) return fail(status, "no work memory is known for this call");
  work.reset(new (std::nothrow) char[std::max(size, 1)]);
  return work || (PyErr_NoMemory(), false);
}

// The source, continued, where the window leaves it. Of large images only the edges are; what lies between them is
// computed where it is, if that does not matter to the function.
Value Run::callWindow(Value* values) {
  const Function& function = kFunctions[member->function];
  const View& image = a.first;
  const Py_ssize_t element = kTypeSizes[int(image.type)];
  const Py_ssize_t size = element * (image.layout == kAC4 ? 4 : image.channels);
  const Py_ssize_t outSize = kTypeSizes[int(out.first.type)] * (out.first.layout == kAC4 ? 4 : out.first.channels);
  // All functions of windows begin with the source, the destination, and the size of it.
  auto run = [&](const char* source, Py_ssize_t step, Py_ssize_t x, Py_ssize_t y, Py_ssize_t columns, Py_ssize_t rows) {
    values[0].p = const_cast<char*>(source);
    values[1].i = int(step);
    values[2].p = out.first.data() + y * out.first.step + x * outSize;
    values[4].size = {int(columns), int(rows)};
    return tool::call(function.shape, function.address, values);
  };
  const bool same = out.same(a);
  if (border < 0 && !same) return run(image.data() + top * image.step + left * size, image.step, 0, 0, width, height);

  const Continued continued{image.data(), image.step, image.width, image.height, size, border, borderPixel};
  auto framed = [&](Py_ssize_t x, Py_ssize_t y, Py_ssize_t columns, Py_ssize_t rows) {
    const Py_ssize_t step = (columns + left + right) * size;
    const size_t bytes = size_t(step * (rows + top + bottom));
    char few[2048];
    const bool small = bytes <= sizeof few;
    std::unique_ptr<char, decltype(&std::free)> many(small ? nullptr : static_cast<char*>(std::malloc(bytes)),
                                                     std::free);
    char* const whole = small ? few : many.get();
    Value status = {};
    status.i = huxStsNoMem;
    if (!whole || !continued.write(x - left, y - top, columns + left + right, rows + top + bottom, whole, step))
      return status;
    return run(whole + top * step + left * size, step, x, y, columns, rows);
  };
  const bool pieces =
      local() && !same && width * height > 4 * kKeepLock && width > 2 * (left + right) && height > 2 * (top + bottom);
  if (!pieces) return framed(0, 0, width, height);
  Value status = run(image.data() + top * image.step + left * size, image.step, left, top, width - left - right,
                     height - top - bottom);
  auto also = [&](Py_ssize_t x, Py_ssize_t y, Py_ssize_t columns, Py_ssize_t rows) {
    if (columns < 1 || rows < 1 || status.i < 0) return;
    const Value own = framed(x, y, columns, rows);
    if (own.i < 0 || !status.i) status = own;
  };
  also(0, 0, width, top);
  also(0, height - bottom, width, bottom);
  also(0, top, left, height - top - bottom);
  also(width - right, top, right, height - top - bottom);
  return status;
}

}  // namespace hux::python
