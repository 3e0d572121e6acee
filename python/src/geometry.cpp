// Geometry, convolution and matching: results whose shape is not that of their source.
#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>

#include "run.h"

namespace hux::python {

bool Run::takeGeometry(const Parameter& parameter, const Values& values, PyObject* value, char* place) {
  switch (parameter.kind) {
    case Kind::size: {
      HuxiSize size{};
      if (!value) return true;
      if (!readInts(value, 2, &size.width, "size", "a pair of integers (x, y)", op.name)) return false;
      if (size.width < 1 || size.height < 1) return fail(huxStsBadSize, "size has no extent");
      width = size.width;
      height = size.height;
      return true;
    }
    case Kind::factor: {  // left open, it follows from the shape
      double number = 0;
      if (value) number = PyFloat_AsDouble(value);
      if (value && number == -1 && PyErr_Occurred()) return false;
      std::memcpy(place, &number, sizeof number);
      return true;
    }
    case Kind::matrix:
    case Kind::quad: {
      Numbers given;
      const Py_ssize_t rows = parameter.kind == Kind::quad ? 4
                              : values.count == 9          ? 3
                                                           : 2,
                       columns = values.count / rows;
      if (!given.take(value, parameter.name, op.name)) return false;
      if (given.axes != 2 || given.rows != rows || given.columns != columns) {
        PyErr_Format(PyExc_ValueError, "%s: %s has the shape (%zd, %zd)", op.name, parameter.name, rows, columns);
        return false;
      }
      for (int i = 0; i < values.count; ++i) {
        const double number = given[i];
        std::memcpy(place + i * sizeof number, &number, sizeof number);
      }
      return true;
    }
    case Kind::map: {
      if (!maps) maps.reset(new (std::nothrow) View[2]);
      if (!maps) return PyErr_NoMemory(), false;
      View& map = maps[maps[0].object ? 1 : 0];
      if (!map.take(value, false, op.name)) return false;
      if (map.type != Type::t32f || map.axes != 2 || map.width < 1 || map.height < 1)
        return refuse(PyExc_TypeError, "maps are arrays (H, W) of float32");
      if ((map.layout != kC1 || map.rowsApart) && !map.pack(false, op.name)) return false;
      return true;
    }
    case Kind::flag: {
      const int set = value ? PyObject_IsTrue(value) : 0;
      smooth = set > 0;
      return set >= 0;
    }
    default: {  // of the source, or of the result
      const bool source = parameter.name[0] == 'r';
      HuxiRect& rectangle = source ? region : resultRegion;
      if (!value) return true;
      (source ? hasRegion : hasResultRegion) = true;
      return readInts(value, 4, &rectangle.x, parameter.name, "(x, y, width, height)", op.name);
    }
  }
}

// Columns or rows that a length becomes, one at least.
static Py_ssize_t scaled(Py_ssize_t length, double factor) {
  const double exact = factor > 0 && factor < 2147483648.0 ? double(length) * factor : 0;
  return exact >= 1 ? Py_ssize_t(std::min(exact + 1e-7, double(INT_MAX))) : 1;
}

bool Run::findShapeOfGeometry() {
  const Py_ssize_t wholeWidth = part.given ? part.size.width : a.first.width;
  const Py_ssize_t wholeHeight = part.given ? part.size.height : a.first.height;
  if (!hasRegion) region = {0, 0, int(wholeWidth), int(wholeHeight)};
  const Py_ssize_t w = std::max<Py_ssize_t>(std::min<Py_ssize_t>(region.width, wholeWidth - region.x), 1);
  const Py_ssize_t h = std::max<Py_ssize_t>(std::min<Py_ssize_t>(region.height, wholeHeight - region.y), 1);
  // The shape is told by size=, shape=, out= or maps, which must agree; or follows from factors; or is the source's.
  bool known = width != 0;
  auto tell = [&](Py_ssize_t rows, Py_ssize_t columns, const char* conflict) {
    if (known && (height != rows || width != columns)) return refuse(PyExc_ValueError, conflict);
    known = true;
    height = rows;
    width = columns;
    return true;
  };
  if (maps) {
    if (maps[0].height != maps[1].height || maps[0].width != maps[1].width)
      return refuse(PyExc_ValueError, "maps and out must have one shape (H, W)");
    height = maps[0].height;
    width = maps[0].width;
    known = true;
  }
  const char* const conflict = maps ? "maps and out must have one shape (H, W)" : "size=, shape= and out= differ";
  if (options.shape) {
    if (!readShape(options.shape, sides, &axes, op.name)) return false;
    if (axes < 2) return refuse(PyExc_ValueError, "shape is (H, W)");
    if (!tell(sides[0], sides[1], conflict)) return false;
  }
  if (out.given() && !tell(out.first.height, out.first.width, conflict)) return false;

  double* factor[2] = {};
  bool divided = false, open = false;
  for (int i = 0; i < op.parameters; ++i) {
    const Parameter& parameter = kParameters[op.firstParameter + i];
    const bool x = !std::strcmp(parameter.name, "x_factor") || !std::strcmp(parameter.name, "x_fr");
    const bool y = !std::strcmp(parameter.name, "y_factor") || !std::strcmp(parameter.name, "y_fr");
    if (!x && !y) continue;
    factor[y] = reinterpret_cast<double*>(constants[placeOf(i)]);
    divided = parameter.name[2] == 'f' && parameter.name[3] == 'r';
    open |= parameter.kind == Kind::factor && !options.own[i];
    if (known && parameter.kind == Kind::factor && !options.own[i])
      *factor[y] = x ? double(width) / double(w) : double(height) / double(h);
  }
  if (!known && open) return refuse(PyExc_TypeError, "needs a size, both factors, shape= or out=");
  if (!known && factor[0]) {
    auto of = [&](double value) { return divided ? (value != 0 ? 1 / value : 0) : value; };
    height = scaled(h, of(*factor[1]));
    width = scaled(w, of(*factor[0]));
  } else if (!known) {
    height = a.first.height;
    width = a.first.width;
  }
  if (height < 1 || width < 1) return fail(huxStsBadSize, "the result has no extent");
  if (height > (Py_ssize_t(1) << 40) / (width * a.channels()))
    return refuse(PyExc_ValueError, "the result is too large");
  if (!hasResultRegion) resultRegion = {0, 0, int(width), int(height)};
  HuxiRect& r = resultRegion;
  if (r.x < 0 || r.y < 0 || r.x > width - r.width || r.y > height - r.height) {
    PyErr_Format(PyExc_ValueError, "%s: dst_roi (%d, %d, %d, %d) lies outside of the result", op.name, r.x, r.y,
                 r.width, r.height);
    return false;
  }
  if (part.given) {
    r.x += part.result.x;
    r.y += part.result.y;
  }
  if (smooth) interpolation() += INT_MIN;
  return true;
}

int& Run::interpolation() {
  int i = 0;
  while (std::strcmp(kParameters[op.firstParameter + i].name, "inter")) ++i;
  return *reinterpret_cast<int*>(constants[placeOf(i)]);
}

// Extents of matching and of convolution: every place where the images meet, those of the first, or those where one
// lies within the other.
bool Run::findShapeOfTwo() {
  const View *big = &a.first, *small = &b.first;
  if (op.family == Family::convolution && op.extent < 0 && (big->width < small->width || big->height < small->height))
    std::swap(big, small);
  if (op.family == Family::match && (small->width > big->width || small->height > big->height))
    return fail(huxStsBadSize, "the template is larger than the image");
  height = big->height + op.extent * (small->height - 1);
  width = big->width + op.extent * (small->width - 1);
  return (height > 0 && width > 0) || fail(huxStsBadSize, "neither image lies within the other");
}

}  // namespace hux::python
