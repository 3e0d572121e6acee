#include "run.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "chain.h"

namespace hux::python {
namespace {

std::string describe(Type type, int layout) {
  std::string word = kTypeNames[int(type)];
  switch (layout) {
    case kVector:
      return word + " vectors";
    case kAC4:
      return word + " with 4 channels and alpha=\"keep\"";
    case kP3:
    case kP4:
      return word + " in " + std::to_string(layout == kP3 ? 3 : 4) + " planes";
    case kOneOf3:
    case kOneOf4:
      return word + " with one channel of " + std::to_string(layout == kOneOf3 ? 3 : 4);
    default:
      return word + " with " + std::to_string(layout);
  }
}

const Member* find(const Operation& op, unsigned key) {
  const Member *first = kMembers + op.first, *end = first + op.count;
  const Member* found = std::lower_bound(first, end, key, [](const Member& m, unsigned k) { return m.key < k; });
  return found != end && found->key == key ? found : nullptr;
}
}  // namespace

bool Run::readOptions(Py_ssize_t count, PyObject* names) {
  const Parameter* const parameters = kParameters + op.firstParameter;
  auto put = [&](int i, PyObject* value) {
    if (options.own[i])
      return PyErr_Format(PyExc_TypeError, "%s: %s is given twice", op.name, parameters[i].name), false;
    options.own[i] = value;
    return true;
  };
  int place = 0;
  for (Py_ssize_t i = op.sources; i < count; ++i, ++place) put(place, given[i]);
  const Py_ssize_t named = names ? PyTuple_Size(names) : 0;
  for (Py_ssize_t i = 0; i < named; ++i) {
    PyObject *name = PyTuple_GetItem(names, i), *value = given[count + i];
    // Keywords are mostly the very strings that are kept here.
    int own = 0, word = 0;
    for (bool exact : {true, false}) {
      auto is = [&](PyObject* kept) { return exact ? name == kept : PyUnicode_Compare(name, kept) == 0; };
      for (own = 0; own < op.parameters && !is(self.names[own]);) ++own;
      for (word = 0; word < kKeywords && !is(gKeywords[word]);) ++word;
      if (own < op.parameters || word < kKeywords) break;
    }
    if (own < op.parameters) {
      if (!put(own, value)) return false;
    } else if (word == kOut) {
      options.out = value == Py_None ? nullptr : value;
    } else if (word == kShift && op.scaled) {
      if (!readInt(value, &options.shift, "shift", op.name)) return false;
    } else if (word == kAlpha) {
      options.keepAlpha = value != Py_None;
      if (options.keepAlpha && (!PyUnicode_Check(value) || PyUnicode_CompareWithASCIIString(value, "keep") != 0)) {
        PyErr_Format(PyExc_ValueError, "%s: alpha is \"keep\" or None, not %R", op.name, value);
        return false;
      }
    } else if (word == kDtype) {
      if (value != Py_None && !readType(value, &options.type, op.name)) return false;
    } else if (word == kMask && op.masked) {
      options.mask = value == Py_None ? nullptr : value;
    } else if (word == kShape && (!op.sources || op.family == Family::geometry)) {
      options.shape = value == Py_None ? nullptr : value;
    } else {
      const std::string_view doc = op.doc;
      const std::string there(doc.substr(0, doc.find('\n')));
      PyErr_Format(PyExc_TypeError, "%s: no keyword %R in %s", op.name, name, there.c_str());
      return false;
    }
  }
  for (int i = 0; i < op.parameters; ++i) {
    const Kind kind = parameters[i].kind;
    const bool optional = kind == Kind::dtype || kind == Kind::anchor || kind == Kind::divisor || kind == Kind::size ||
                          kind == Kind::factor || kind == Kind::region || parameters[i].fallback;
    if (options.own[i] == Py_None && optional && kind != Kind::border) options.own[i] = nullptr;
    if (options.own[i] && kind == Kind::dtype && !readType(options.own[i], &options.type, op.name)) return false;
  }
  return true;
}

bool Run::fail(HuxStatus status, const char* text) {
  PyObject* none = PyObject_CallFunction(gReport, "izss", int(status), nullptr, op.name, text);
  Py_XDECREF(none);
  return false;
}

PyObject* Run::operator()(Py_ssize_t count, PyObject* names, Asked what) {
  asked = what;
  int most = op.sources;
  for (int i = 0; i < op.parameters; ++i) most += !kParameters[op.firstParameter + i].keyword;
  if (count < op.sources || count > most) {
    PyErr_Format(PyExc_TypeError, "%s takes %d positional argument%s, not %zd", op.name,
                 count < op.sources ? op.sources : most, (count < op.sources ? op.sources : most) == 1 ? "" : "s",
                 count);
    return nullptr;
  }
  if (!readOptions(count, names) || !takeSources() || !takeOut() || !choose()) return nullptr;
  if (asked == Asked::name) return PyUnicode_FromString(kFunctions[member->function].name);
  if (!takeOwn()) return nullptr;
  if (asked == Asked::reach) return Py_BuildValue("iiii", left, top, right, bottom);
  if (!findShape()) return nullptr;
  if (asked == Asked::shape) return shapeAndType();
  if (!fitOut() || !makeResult()) return nullptr;
  return call();
}

PyObject* Run::shapeAndType() {
  const Key key = parts(member->key);
  PyObject* dtype = dtypeOf(op.moves ? a.first.type : key.destination);
  if (a.first.axes == 3) return Py_BuildValue("((nni)O)", height, width, a.first.channels, dtype);
  return Py_BuildValue("((nn)O)", height, width, dtype);
}

bool Run::takeSources() {
  if (!op.sources) {
    if (options.shape) return readShape(options.shape, sides, &axes, op.name);
    return options.out || refuse(PyExc_TypeError, "takes out= or shape= and dtype=");
  }
  if (!a.take(given[0], false, op.planes, op.name)) return false;
  constant = op.sources == 2 && op.takesConstant && isConstant(given[1], given[0], op.planes);
  const bool ofOneShape = op.family == Family::pixels || op.family == Family::measure;
  if (two()) {
    if (!b.take(given[1], false, op.planes, op.name)) return false;
    if (b.first.type != a.first.type) {
      PyErr_Format(PyExc_TypeError, "%s: the sources have %s and %s; there is no promotion", op.name,
                   kTypeNames[int(a.first.type)], kTypeNames[int(b.first.type)]);
      return false;
    }
    if (ofOneShape && (a.count != b.count || !b.first.sameShape(a.first)))
      return refuse(PyExc_ValueError, "the sources differ in shape; there is no broadcasting");
    if (a.channels() != b.channels()) return refuse(PyExc_TypeError, "the sources differ in channels");
    // Images of two layouts become two of the plain one.
    if (ofOneShape && a.layout() != b.layout() && (!packSource(a) || !packSource(b))) return false;
  }
  auto settle = [&](Image& image) {
    if (!ofOneShape && (image.first.height < 1 || image.first.width < 1)) return fail(huxStsBadSize, "an empty array");
    const bool odd = image.layout() == kNoLayout || (two() && !ofOneShape && image.first.layout >= kAC4);
    return (!odd && image.plain()) || packSource(image);
  };
  if (!settle(a) || (two() && !settle(b))) return false;
  if (op.parameters && kParameters[op.firstParameter].kind == Kind::kernel && options.own[0]) {
    if (!numbers.take(options.own[0], "kernel", op.name)) return false;
    form = numbers.whole && a.first.type != Type::t32f;  // those of integers have a divisor
  }
  return !options.keepAlpha || a.channels() == 4 || a.layout() == kAC4 || options.out ||
         refuse(PyExc_TypeError, "alpha=\"keep\" is for four channels");
}

bool Run::takeOut() {
  if (options.out) {
    if (op.results) return refuse(PyExc_TypeError, "gives numbers, and takes no out=");
    if (!out.take(options.out, true, op.planes, op.name)) return false;
    for (int i = 0; i < out.count; ++i) {
      View& view = out.at(i);
      const Py_ssize_t row = view.width * view.channels * kTypeSizes[int(view.type)];
      const bool overlapping = view.rowsApart && std::abs(view.step) < row && view.height > 1;
      if (view.layout == kNoLayout || overlapping)
        return refuse(PyExc_ValueError, "out must have its pixels one after another, and rows that do not overlap");
    }
    if (!out.plain() && !out.pack(true, op.name)) return false;
    if (options.keepAlpha && out.channels() != 4 && out.layout() != kAC4 && a.channels() != 4)
      return refuse(PyExc_TypeError, "alpha=\"keep\" is for four channels");
  }
  if (options.mask) {
    if (!out.given()) return refuse(PyExc_TypeError, "mask= needs out=");
    if (!mask.take(options.mask, false, op.name)) return false;
    if (mask.type != Type::t8u && mask.type != Type::boolean) return refuse(PyExc_TypeError, "a mask is uint8 or bool");
    if (mask.axes != 2 || mask.height != out.first.height || mask.width != out.first.width)
      return refuse(PyExc_ValueError, "the mask must have the rows and columns of out");
    if ((mask.layout != kC1 || mask.rowsApart || mask.touches(out.first)) && !mask.pack(false, op.name)) return false;
  }
  return true;
}

// The functions for the images as they lie, from one type to another: one that writes elsewhere, and one in place.
bool Run::look(Type source, Type destination) {
  const bool fourth = options.keepAlpha;
  sourceLayout = a.given() ? layoutOf(a) : kNoLayout;
  auto one = [&](int from) {
    destinationLayout = op.results                ? kNoLayout
                        : out.given()             ? layoutOf(out)
                        : !op.sources             ? (axes == 1   ? int(kVector)
                                                     : axes == 3 ? int(sides[2])
                                                                 : 1)
                        : from == kAC4 && !fourth ? int(kC3)
                                                  : int(self.destinationLayout[from]);
    if (!op.sources && fourth && destinationLayout == kC4) destinationLayout = kAC4;
    if (op.sources && from != kVector && destinationLayout == kVector) destinationLayout = kC1;
    const unsigned key = keyOf(source, destination, from, destinationLayout, form, false, options.mask);
    if (key != self.soughtKey) {
      self.soughtKey = key;
      self.apart = find(op, key);
      self.inPlace = op.sources
                         ? find(op, keyOf(source, destination, from, destinationLayout, form, true, options.mask))
                         : nullptr;
    }
    apart = self.apart;
    inPlace = self.inPlace;
    return apart || inPlace;
  };
  if (one(sourceLayout)) return true;
  if (sourceLayout == kVector && one(kC1)) return sourceLayout = kC1, true;
  if (!op.sources && destinationLayout == kVector && axes <= 1) {
    destinationLayout = kC1;
    apart = find(op, keyOf(source, destination, 0, kC1, form, false, options.mask));
    return apart != nullptr;
  }
  return false;
}

// Which function: by what the images are; or, where none is for that, for plain copies of them. Of one that writes
// elsewhere and one in place, out decides.
bool Run::choose() {
  form |= constant;
  for (int i = 0; i < op.parameters; ++i) form |= options.own[i] && op.formMask >> i & 1;
  const Type type = a.given() ? a.first.type : Type::none;
  const Type source = Type(self.sourceType[int(type)]);
  Type destination = Type::none, wanted = Type::none;
  if (!op.results) {
    wanted = out.given() ? out.first.type : options.type;
    if (out.given() && options.type != Type::none && options.type != wanted)
      return refuse(PyExc_TypeError, "dtype= and out= differ");
    if (op.needsType && wanted == Type::none) return refuse(PyExc_TypeError, "needs dtype=, or out=");
    if (!op.sources && wanted == Type::none) return refuse(PyExc_TypeError, "takes out= or shape= and dtype=");
    if (wanted == Type::none) wanted = op.moves ? type : Type(self.destinationType[int(source)]);
    destination = op.moves ? Type(self.sourceType[int(wanted)]) : wanted;
    if (op.moves && op.sources && wanted != type)
      return refuse(PyExc_TypeError, "out must have the dtype of the source");
  } else if (options.type != Type::none) {
    return refuse(PyExc_TypeError, "no keyword 'dtype'");
  }
  auto odd = [](const Image& image) {
    return image.given() && !image.planes() &&
           (image.layout() == kOneOf3 || image.layout() == kOneOf4 || image.layout() == kAC4);
  };
  bool found = look(source, destination);
  if (!found && odd(a)) {
    if (!packSource(a) || (b.given() && !packSource(b))) return false;
    found = look(source, destination);
  }
  if (!found && odd(out)) {
    if (!out.pack(true, op.name)) return false;
    found = look(source, destination);
  }
  if (!found) return explain(source);
  if (options.shift && !std::strchr((apart ? apart : inPlace)->program, 's')) {
    PyErr_Format(PyExc_TypeError, "%s: no shift for %s", op.name, kTypeNames[int(destination)]);
    return false;
  }
  member = apart;
  if (op.results || !out.given()) {
    if (!member) member = inPlace;
    return true;
  }
  if (!op.sources) return true;
  const bool first = !op.inPlaceSecond || !two(), second = two() && (op.inPlaceSecond || op.commutative);
  if (inPlace && first && out.same(a) && !(two() && b.touches(out))) {
    member = inPlace;
    return true;
  }
  if (inPlace && second && out.same(b) && !a.touches(out)) {
    member = inPlace;
    swapped = !op.inPlaceSecond;
    return true;
  }
  if (!member) member = inPlace;
  if (op.family == Family::window) return windowMayWrite();
  // Sources that share bytes with out without being it are copied.
  const Layout before = layoutOf(a), beforeSecond = layoutOf(b);
  if ((a.touches(out) && !packSource(a)) || (two() && b.touches(out) && !packSource(b))) return false;
  if (layoutOf(a) == before && layoutOf(b) == beforeSecond) return true;
  // Copies do not lie as the function wants it: then out is a copy too, until the end.
  if (!packSource(a) || (two() && !packSource(b)) || !out.pack(true, op.name)) return false;
  if (!look(source, destination)) return explain(source);
  member = apart ? apart : inPlace;
  return true;
}

// The source of a window is framed first, so out may be the source. What shares but a part of it is a slip.
bool Run::windowMayWrite() {
  View source, destination;
  const bool copied = a.first.own || out.first.own;
  if (copied && !(source.take(a.first.object, false, op.name) && destination.take(out.first.object, true, op.name)))
    return false;
  const View &s = copied ? source : a.first, &d = copied ? destination : out.first;
  return d.same(s) || !s.touches(d) ||
         refuse(PyExc_ValueError, "out shares memory with the source, and is not the same array");
}

// The images that there are functions for; behind those that go with the other arguments, what else there is.
std::string Run::existing() const {
  std::vector<std::string> words;
  std::string list;
  for (const bool wanted : {form, !form}) {
    std::string part;
    for (int i = 0; i < op.count; ++i) {
      const Key key = parts(kMembers[op.first + i].key);
      if (key.form != wanted || key.masked != bool(options.mask)) continue;
      std::string word = key.source == Type::none ? describe(key.destination, key.destinationLayout)
                                                  : describe(key.source, key.sourceLayout);
      if (key.source != key.destination && key.source != Type::none && key.destination != Type::none)
        word += " to " + std::string(kTypeNames[int(key.destination)]);
      if (std::find(words.begin(), words.end(), word) != words.end()) continue;
      words.push_back(word);
      part += (part.empty() ? "" : "; ") + word;
    }
    if (part.empty()) continue;
    if (wanted != form) list += (list.empty() ? "" : "; ") + otherForm() + ": ";
    list += part;
  }
  return list;
}

// What would have to be given for the other form.
std::string Run::otherForm() const {
  if (op.takesConstant) return form ? "with two images" : "with a constant";
  std::string names;
  for (int i = 0; i < op.parameters; ++i)
    if (op.formMask >> i & 1)
      names += (names.empty() ? "" : " and ") + std::string(kParameters[op.firstParameter + i].name);
  if (!names.empty()) return (form ? "without " : "with ") + names;
  return form ? "with a kernel of floats" : "with a kernel of integers";
}

bool Run::explain(Type source) {
  const Type usual = Type(self.destinationType[int(source)]);
  if (out.given() && !op.needsType && usual != out.first.type && look(source, usual)) {
    PyErr_Format(PyExc_TypeError, "%s: out must have the dtype %s", op.name, kTypeNames[int(usual)]);
    return false;
  }
  if (out.given() && a.given() && out.channels() != a.channels())
    return refuse(PyExc_ValueError, "out must have the shape of the source");
  const Image& image = a.given() ? a : out;
  const std::string list = existing();
  const int channels = image.given() ? image.channels() : axes == 3 ? int(sides[2]) : 1;
  const Type type = image.given() ? image.first.type : options.type;
  PyErr_Format(
      PyExc_TypeError, "%s: no function for %s%s%s%s with %d channel%s%s%s; there are: %s", op.name,
      constant ? "a constant and " : "", kTypeNames[int(type)], options.type != Type::none && a.given() ? " to " : "",
      options.type != Type::none && a.given() ? kTypeNames[int(options.type)] : "", channels, channels == 1 ? "" : "s",
      options.mask ? ", a mask" : "", options.keepAlpha ? " and alpha=\"keep\"" : "", list.c_str());
  return false;
}

bool Run::takeOwn() {
  if (constant) {
    const Values& values = member->own[0];  // of a constant in the place of an image it is the first
    if (!writeConstants(given[1], values.type, values.count, constants[0], op.name)) return false;
  }
  for (int i = 0; i < op.parameters; ++i)
    if (!takeOwn(kParameters[op.firstParameter + i], member->own[placeOf(i)], options.own[i], constants[placeOf(i)]))
      return false;
  return op.family != Family::window || findReach();
}

bool Run::takeOwn(const Parameter& parameter, const Values& values, PyObject* value, char* place) {
  if (parameter.kind == Kind::dtype) return true;
  if (parameter.kind >= Kind::maskSize) {
    const Kind kind = parameter.kind;
    const bool needed = kind == Kind::matrix || kind == Kind::quad || kind == Kind::map ||
                        (kind <= Kind::kernel && !parameter.fallback);
    if ((!value && needed) || (value == Py_None && kind != Kind::border)) {
      PyErr_Format(PyExc_TypeError, "%s needs %s", op.name, parameter.name);
      return false;
    }
    return parameter.kind < Kind::size ? takeWindow(parameter, value, place)
                                       : takeGeometry(parameter, values, value, place);
  }
  if (!values.count) {
    if (!value) return true;
    PyErr_Format(PyExc_TypeError, "%s: %s takes no %s", op.name, kFunctions[member->function].name, parameter.name);
    return false;
  }
  if (!value && !parameter.fallback) {
    PyErr_Format(PyExc_TypeError, "%s needs %s", op.name, parameter.name);
    return false;
  }
  int number = 0;
  switch (parameter.kind) {
    case Kind::enumeration: {
      if (value) {
        if (!readWord(parameter, value, &number, op.name)) return false;
      } else {
        for (const Word* word = kWords[parameter.words]; word->word; ++word)
          if (!std::strcmp(word->word, parameter.fallback)) number = word->value;
      }
      std::memcpy(place, &number, sizeof number);
      return true;
    }
    case Kind::order: {
      const Py_ssize_t size = PySequence_Size(value);
      if (size < 0) return false;
      if (size != values.count) return refuse(PyExc_ValueError, "a channel is given for each of three");
      for (int k = 0; k < values.count; ++k) {
        PyObject* item = PySequence_GetItem(value, k);
        const bool good = item && readInt(item, &number, parameter.name, op.name);
        Py_XDECREF(item);
        if (!good) return false;
        std::memcpy(place + k * sizeof number, &number, sizeof number);
      }
      return true;
    }
    case Kind::seed:
      return readSeed(value, place);
    default: {
      if (!value) return std::memset(place, 0, sizeof constants[0]), true;
      // An image whose bits are only moved takes constants of its own type.
      const bool own = op.moves && !op.sources;
      const Type type = !own ? values.type : out.given() ? out.first.type : options.type;
      return writeConstants(value, type, values.count, place, op.name);
    }
  }
}

// A number, or a hux.Seed, whose state the function then goes on with.
bool Run::readSeed(PyObject* value, char* place) {
  if (PyLong_Check(value)) return writeNumber(value, Type::t32u, place, op.name);
  PyObject* state = PyObject_GetAttrString(value, "state");
  if (!state) {
    PyErr_Clear();
    return refuse(PyExc_TypeError, "seed is an int or a hux.Seed");
  }
  seed = value;
  const bool good = PyLong_Check(state) ? writeNumber(state, Type::t32u, place, op.name)
                                        : refuse(PyExc_TypeError, "seed is an int or a hux.Seed");
  Py_DECREF(state);
  return good;
}

bool Run::findShape() {
  switch (op.family) {
    case Family::window:
      return findShapeOfWindow();
    case Family::geometry:
      return findShapeOfGeometry();
    case Family::convolution:
    case Family::match:
      return findShapeOfTwo();
    default:
      break;
  }
  if (op.sources) {
    height = op.transposes ? a.first.width : a.first.height;
    width = op.transposes ? a.first.height : a.first.width;
  } else if (out.given()) {
    height = out.first.height;
    width = out.first.width;
  } else {
    height = axes == 1 ? 1 : sides[0];
    width = axes == 1 ? sides[0] : sides[1];
  }
  return true;
}

// Whether out has the shape of the result.
bool Run::fitOut() {
  if (!out.given() || !op.sources) return true;
  const View &s = a.first, &d = out.first;
  if (d.height != height || d.width != width) {
    PyErr_Format(PyExc_ValueError, "%s: out must have the shape (%zd, %zd), not (%zd, %zd)", op.name, height, width,
                 d.height, d.width);
    return false;
  }
  const bool vector = s.axes == 1, asked = d.axes == 1;
  const bool fits = op.family == Family::pixels ? vector == asked : vector ? height == 1 || !asked : !asked;
  const bool apart =
      s.axes > 1 && s.axes != d.axes && s.channels == 1 && d.channels == 1 && !a.planes() && !out.planes();
  return (fits && !apart) || refuse(PyExc_ValueError, "out must have the axes of the source");
}

bool Run::makeResult() {
  if (op.results) return true;
  const Key key = parts(member->key);
  const bool pixels = op.family == Family::pixels, alpha = key.destinationLayout == kAC4;
  if (out.given()) {
    result = Py_NewRef(options.out);
    // A form in place starts from the source.
    if (!key.inPlace || !op.sources || out.same(swapped || (op.inPlaceSecond && two()) ? b : a)) return true;
    for (int i = 0; i < out.count; ++i)
      if (!copy(out.at(i).array(), a.at(i).array())) return false;
    return true;
  }
  fresh = true;
  Type type = key.destination;
  int count = axes, channels = axes > 2 ? int(sides[2]) : 1;
  if (op.sources) {
    const int lay = key.destinationLayout;
    channels = lay == kAC4 ? 4 : lay <= kC4 ? lay : 1;
    count = channels > 1                                                     ? 3
            : a.first.axes == 1 && !op.transposes && (pixels || height == 1) ? 1
            : a.first.axes == 3 && a.first.channels == 1                     ? 3
                                                                             : 2;
  }
  if (op.moves) type = op.sources ? a.first.type : options.type;
  const bool shaped = pixels || (a.first.height == height && a.first.width == width) || op.family == Family::window;
  const bool keeps = alpha && op.sources && shaped && a.first.type == type && a.channels() == 4;
  const bool zero = op.family == Family::geometry || (alpha && !keeps);
  const int planes = key.destinationLayout == kP3 ? 3 : key.destinationLayout == kP4 ? 4 : 0;
  if (std::max(height, width) > INT_MAX || width * channels * kTypeSizes[int(type)] > INT_MAX)
    return refuse(PyExc_ValueError, "sides and rows of an array end at 2^31 - 1");
  if (planes) {
    result = PyTuple_New(planes);
    out.others.reset(new (std::nothrow) View[planes - 1]);
    if (!result || !out.others) return PyErr_NoMemory(), false;
    for (int i = 0; i < planes; ++i) {
      PyObject* plane = newArray(type, height, width, 2, 1, zero);
      if (!plane) return false;
      PyTuple_SetItem(result, i, plane);
      if (!out.at(i).takeNew(plane, type, kC1, height, width, 1)) return false;
      const bool starts = pixels && (key.inPlace || (i == 3 && a.count == 4));  // alpha may be left alone
      if (starts && !copy(plane, a.at(i).array())) return false;
    }
    out.count = planes;
    return true;
  }
  result = newArray(type, height, width, count, channels, zero);
  if (!result || !out.first.takeNew(result, type, Layout(key.destinationLayout), height, width, channels)) return false;
  out.count = 1;
  if (pixels && op.sources && (key.inPlace || keeps)) return copy(result, a.first.array());
  if (keeps) keepAlpha();
  return true;
}

// The fourth channel of a new array is that of the pixels around which, or in whose place, those of the result are.
void Run::keepAlpha() {
  const int size = kTypeSizes[int(out.first.type)];
  for (Py_ssize_t y = 0; y < height; ++y) {
    const char* from =
        a.first.data() + (y + (border < 0 ? top : 0)) * a.first.step + (border < 0 ? left : 0) * 4 * size;
    char* to = out.first.data() + y * out.first.step;
    for (Py_ssize_t x = 0; x < width; ++x)
      std::memcpy(to + (x * 4 + 3) * size, from + (x * 4 + 3) * size, size_t(size));
  }
}

__attribute__((always_inline)) inline Value Run::argument(char letter) {
  Image &first = swapped ? b : a, &second = swapped ? a : b;
  Value value = {};
  switch (letter) {
    case 'a':
      value.p = first.data();
      break;
    case 'A':
    case 'J':
      value.i = int(first.first.step);
      break;
    case 'b':
      value.p = second.data();
      break;
    case 'B':
      value.i = int(second.first.step);
      break;
    case 'o':
      value.p = out.data();
      break;
    case 'O':
      value.i = int(out.first.step);
      break;
    case 'm':
      value.p = mask.data();
      break;
    case 'M':
      value.i = int(mask.step);
      break;
    case 'S':
      value.size =
          op.transposes ? HuxiSize{int(a.first.width), int(a.first.height)} : HuxiSize{int(width), int(height)};
      break;
    case 'n':
      value.i = int(width);
      break;
    case 's':
      value.i = options.shift;
      break;
    case 'x':
    case 'y':
    case 'z':
      value.p = results[letter - 'x'];
      break;
    case 'K':
      value.p = taps;
      break;
    case 'W':
      value.size = maskSize;
      break;
    case 'w':
      value.i = maskSize.width;
      break;
    case 'P':
      value.point = anchor;
      break;
    case 'p':
      value.i = anchor.x;
      break;
    case 'f':
      value.i = maskSize.width * 10 + maskSize.height;
      break;
    case 'd':
      value.i = divisor;
      break;
    case 'Z':
      value.size = part.given ? part.size : HuxiSize{int(a.first.width), int(a.first.height)};
      break;
    case 'T':
      value.size = {int(b.first.width), int(b.first.height)};
      break;
    case 'R':
      value.rect = region;
      break;
    case 'D':
      value.rect = resultRegion;
      break;
    case 'X':
    case 'Y':
      value.p = maps[letter - 'X'].data();
      break;
    case 'h':
    case 'v':
      value.i = int(maps[letter == 'v'].step);
      break;
    case 'u':
      value.p = work.get();
      break;
    default: {
      char* const place = constants[letter - '0'];
      const Values& own = member->own[letter - '0'];
      if (own.byAddress)
        value.p = place;
      else
        value = byValue(own.type, place);
      break;
    }
  }
  return value;
}

// The images as seen from the place where the whole ones would begin.
void Run::moveToPart() {
  auto move = [](Image& image, HuxiPoint to) {
    for (int i = 0; i < image.count; ++i) {
      View& view = image.at(i);
      const Py_ssize_t pixel = kTypeSizes[int(view.type)] * (view.layout == kAC4 ? 4 : view.channels);
      view.moved = -(to.y * view.step + to.x * pixel);
    }
  };
  move(a, part.source);
  move(out, part.result);
}

PyObject* Run::call() {
  if (two() && a.first.step != b.first.step && std::strchr(member->program, 'J') && (!packSource(a) || !packSource(b)))
    return nullptr;
  const bool pixels = op.family == Family::pixels || op.family == Family::measure;
  if (!pixels && std::strchr(member->program, 'u') && !findWork()) return nullptr;
  Value values[20];
  if (part.given) moveToPart();
  for (int i = 0; member->program[i]; ++i) values[i] = argument(member->program[i]);
  const Function& function = kFunctions[member->function];
  if (noting() && !note(described())) return nullptr;
  gCalled[member->function] = true;
  Py_ssize_t elements = std::max(a.given() ? a.first.width * a.first.height * a.channels() : 0,
                                 out.given() ? width * height * out.channels() : 0);
  // For each pixel a second image is looked at.
  if (op.family == Family::match || op.family == Family::convolution) elements *= 16;
  PyThreadState* state = elements > kKeepLock ? PyEval_SaveThread() : nullptr;
  const Value status =
      op.family == Family::window ? callWindow(values) : tool::call(function.shape, function.address, values);
  if (state) PyEval_RestoreThread(state);
  if (out.given() && !fresh && status.i >= 0 && !out.putBack()) return nullptr;
  if (seed && status.i >= 0) {
    int i = 0;
    while (kParameters[op.firstParameter + i].kind != Kind::seed) ++i;
    Hux32u next;
    std::memcpy(&next, constants[placeOf(i)], sizeof next);
    PyObject* number = PyLong_FromUnsignedLong(next);
    if (!number) return nullptr;
    const int failed = PyObject_SetAttrString(seed, "state", number);
    Py_DECREF(number);
    if (failed) return nullptr;
  }
  if (status.i < 0 || (status.i && !noting())) {
    PyObject* none = PyObject_CallFunction(gReport, "iss", status.i, function.name, op.name);
    if (!none) return nullptr;
    Py_DECREF(none);
  }
  return op.results ? numbersOfAll() : std::exchange(result, nullptr);
}

// For a chain: the function; its program, with = for what is given; that, as values or, with True, what they point to;
// what the result starts as (1 the first source, 2 zeros); type and count of the results; of a window border, a pixel
// of it, reach, and whether it is local.
PyObject* Run::described() {
  const Key key = parts(member->key);
  const bool alpha = key.destinationLayout == kAC4;
  const bool zero = alpha && (a.first.type != out.first.type || a.channels() != 4);
  const bool starts = fresh && op.sources && (key.inPlace || alpha || key.destinationLayout == kP4);
  PyObject *fixed = PyList_New(0), *found = PyList_New(0);
  const auto add = [](PyObject*& list, PyObject* item) {
    if (!list || !item || PyList_Append(list, item) < 0) Py_CLEAR(list);
    Py_XDECREF(item);
  };
  std::string program = member->program;
  for (char& letter : program) {
    if (std::strchr("aAbBoOmMJSxyz", letter)) continue;
    const Value value = argument(letter);
    const bool own = letter >= '0' && letter < '0' + kOwn && member->own[letter - '0'].byAddress;
    const size_t bytes = letter == 'K' ? size_t(numbers.count()) * 8 : own ? sizeof constants[0] : 0;
    add(fixed, bytes ? Py_BuildValue("y#O", value.p, Py_ssize_t(bytes), Py_True)
                     : Py_BuildValue("y#O", &value, Py_ssize_t(sizeof value), Py_False));
    letter = '=';
  }
  for (const Values& own : member->results)
    if (own.count) add(found, Py_BuildValue("ii", int(own.type), int(own.count)));
  if (fixed && found) {
    const Py_ssize_t pixel = kTypeSizes[int(a.first.type)] * a.first.channels;
    return Py_BuildValue("isNiN(iy#(iiii)O)", member->function, program.c_str(), fixed, starts ? zero ? 2 : 1 : 0,
                         found, border, borderPixel, pixel, left, top, right, bottom,
                         op.family != Family::window || local() ? Py_True : Py_False);
  }
  Py_XDECREF(fixed);
  Py_XDECREF(found);
  return nullptr;
}

PyObject* Run::numbersOfAll() {
  int count = 0;
  while (count < kResults && member->results[count].count) ++count;
  if (count == 1) return numbersOf(0);
  PyObject* all = PyTuple_New(count);
  for (int i = 0; all && i < count; ++i) {
    PyObject* one = numbersOf(i);
    if (!one) {
      Py_DECREF(all);
      return nullptr;
    }
    PyTuple_SetItem(all, i, one);
  }
  if (!all || !self.results) return all;
  PyObject* named = PyObject_CallObject(self.results, all);
  Py_DECREF(all);
  return named;
}

// A number of one channel, an array of several.
PyObject* Run::numbersOf(int i) {
  const Values& values = member->results[i];
  const void* const from = results[i];
  if (values.count > 1) {
    PyObject* array = newArray(values.type, 1, values.count, 1, 1, false);
    View view;
    if (!array || !view.takeNew(array, values.type, kVector, 1, values.count, 1)) return Py_XDECREF(array), nullptr;
    std::memcpy(view.data(), from, size_t(values.count) * kTypeSizes[int(values.type)]);
    return array;
  }
  auto as = [&](auto kind) {
    std::memcpy(&kind, from, sizeof kind);
    return kind;
  };
  switch (values.type) {
    case Type::t8u:
      return PyLong_FromLong(as(Hux8u()));
    case Type::t16s:
      return PyLong_FromLong(as(Hux16s()));
    case Type::t32s:
      return PyLong_FromLong(as(int()));
    case Type::t32f:
      return PyFloat_FromDouble(double(as(Hux32f())));
    default:
      return PyFloat_FromDouble(as(Hux64f()));
  }
}

}  // namespace hux::python
