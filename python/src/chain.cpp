// Chains for Python: what hux/_chain.py recorded becomes the values and steps of the C++ front, which runs them.
#include "chain.h"

#include <cstring>
#include <hux/run.hpp>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "module.h"

namespace hux::python {

int gRecording = 0, gNoting = 0;

namespace {

using detail::band;
using tool::Value;

PyObject *gImages, *gRecorder;  // the types of what stands for images and numbers, and what records a call with them
thread_local PyObject* tNotes;

// ---- Calls
// -----------------------------------------------------------------------------------------------------------

struct Field {  // of what a measure gives
  char type;    // of the elements: B, h, H, i, f, d
  char merge;   // +, < the least, > the greatest
  int count;
  Py_ssize_t offset;
};

// A function of the library over bands of rows, or without one a copy of the sources: each becomes a plane.
struct Call {
  static constexpr int kNone = -1, kZeros = -2;

  int function = -1;
  // A letter for each parameter: a, b, o the sources and the destination, m the mask, A, B, O, M their steps, J the
  // step of both sources, S the size, x, y, z the results, h a list of all results, = a value that is given.
  std::string program;
  std::vector<Value> values;
  int a = kNone, b = kNone, mask = kNone;  // which of the sources
  int start = kNone;                       // what the destination starts as: a source, or zeros
  int count = 0;                           // of sources
  int planes[4] = {};                      // of each
  int madePlanes = 0, madePixel = 0;       // of the destination, the latter in bytes
  bool joint = false;                      // whether both sources must have one step
  std::vector<Field> fields;
  Py_ssize_t bytes = 0;  // of all fields

  int run(const band* in, const band* out, char* found) const {
    if (function < 0) {
      for (int p = 0; p < madePlanes; ++p) copyRows(in[p].data[0], in[p].step, out->data[p], *out);
      return 0;
    }
    for (int p = 0; start != kNone && p < madePlanes; ++p)
      copyRows(start == kZeros ? nullptr : in[start].data[p], start == kZeros ? 0 : in[start].step, out->data[p], *out);
    if (!joint || in[a].step == in[b].step) return call(in, out, found);
    // Of one row, the steps do not matter.
    band sources[4], made = *out;
    for (int k = 0; k < count; ++k) sources[k] = in[k];
    int status = 0;
    for (int y = 0; y < out->size.height && status >= 0; ++y) {
      made.size.height = 1;
      const int own = call(sources, &made, found);
      if (!status || own < 0) status = own;
      for (int k = 0; k < count; ++k) down(sources[k], planes[k]);
      down(made, madePlanes);
    }
    return status;
  }

 private:
  static void down(band& rows, int planes) {
    for (int p = 0; p < planes; ++p) rows.data[p] += rows.step;
  }
  // Or zeros.
  void copyRows(const std::byte* from, int step, std::byte* to, const band& out) const {
    const std::size_t row = std::size_t(out.size.width) * std::size_t(madePixel);
    for (int y = 0; y < out.size.height; ++y, to += out.step) {
      if (from)
        std::memcpy(to, from, row), from += step;
      else
        std::memset(to, 0, row);
    }
  }

  int call(const band* in, const band* out, char* found) const {
    const auto pixels = [](const band& rows, int planes) {
      return planes > 1 ? const_cast<std::byte**>(rows.data) : static_cast<void*>(rows.data[0]);
    };
    void* results[4];
    Value arguments[20];
    const Value* given = values.data();
    Value* value = arguments;
    for (const char letter : program) {
      switch (letter) {
        case 'a':
          value->p = pixels(in[a], planes[a]);
          break;
        case 'b':
          value->p = pixels(in[b], planes[b]);
          break;
        case 'o':
          value->p = pixels(*out, madePlanes);
          break;
        case 'm':
          value->p = in[mask].data[0];
          break;
        case 'A':
        case 'J':
          value->i = in[a].step;
          break;
        case 'B':
          value->i = in[b].step;
          break;
        case 'O':
          value->i = out->step;
          break;
        case 'M':
          value->i = in[mask].step;
          break;
        case 'S':
          value->size = (out ? out : in)->size;
          break;
        case 'h':
          for (std::size_t k = 0; k < fields.size(); ++k) results[k] = found + fields[k].offset;
          value->p = results;
          break;
        case '=':
          *value = *given++;
          break;
        default:
          value->p = found + fields[std::size_t(letter - 'x')].offset;
      }
      ++value;
    }
    const Function& own = kFunctions[function];
    return tool::call(own.shape, own.address, arguments).i;
  }
};

// What a call measures.
class Measure : public detail::tally {
 public:
  explicit Measure(const Call& call) : call_(call), part_(std::size_t(call.bytes)), total_(std::size_t(call.bytes)) {}

  const char* total(const Field& field) const { return total_.data() + field.offset; }

  tally* another() const override try { return new Measure(call_); } catch (const std::bad_alloc&) {
    return nullptr;
  }
  void clear() override { any_ = false; }
  status add(const band* in, int) override {
    const int found = call_.run(in, nullptr, part_.data());
    if (found >= 0) take(part_);
    return status(found);
  }
  void join(const tally& next) override {
    if (const auto& other = static_cast<const Measure&>(next); other.any_) take(other.total_);
  }
  void give(extent) override {}

 private:
  void take(const std::vector<char>& more) {
    if (!any_) {
      total_ = more;
      any_ = true;
      return;
    }
    for (const Field& field : call_.fields) {
      switch (field.type) {
        case 'B':
          merge<Hux8u>(field, more);
          break;
        case 'h':
          merge<Hux16s>(field, more);
          break;
        case 'H':
          merge<Hux16u>(field, more);
          break;
        case 'i':
          merge<Hux32s>(field, more);
          break;
        case 'f':
          merge<Hux32f>(field, more);
          break;
        default:
          merge<Hux64f>(field, more);
      }
    }
  }
  template <class T>
  void merge(const Field& field, const std::vector<char>& more) {
    for (int k = 0; k < field.count; ++k) {
      const Py_ssize_t at = field.offset + k * Py_ssize_t(sizeof(T));
      T own, other;
      std::memcpy(&own, total_.data() + at, sizeof own);
      std::memcpy(&other, more.data() + at, sizeof other);
      if (field.merge == '<')
        own = std::min(own, other);
      else if (field.merge == '>')
        own = std::max(own, other);
      else if constexpr (std::is_integral_v<T>)
        own = T(std::make_unsigned_t<T>(own) + std::make_unsigned_t<T>(other));
      else
        own += other;
      std::memcpy(total_.data() + at, &own, sizeof own);
    }
  }

  const Call& call_;
  std::vector<char> part_, total_;
  bool any_ = false;
};

// ---- Chains
// ----------------------------------------------------------------------------------------------------------

// An argument of a chain as it was: an array, or anything else.
struct Argument {
  PyObject* own = nullptr;  // of an array its dtype
  int axes = 0;             // 0 of what is no array
  Py_ssize_t shape[3] = {};
};

// What was recorded for images of one kind. All but the runs happens under the lock of the interpreter.
struct Chain {
  std::vector<detail::value> values;
  std::vector<detail::step> steps;
  std::vector<std::unique_ptr<Call>> calls;  // of the steps
  std::vector<int> inputs, outputs;          // values, in the order of arguments and results
  std::vector<PyObject*> shapes, dtypes;     // of the results
  bool single = false;                       // whether there is one result, an image
  extent size = {};
  std::vector<Argument> arguments;  // it was made for; none where they are looked at from Python alone
  std::vector<std::unique_ptr<detail::runner>> idle;  // what earlier runs left, for the next one

  Chain() = default;
  Chain(const Chain&) = delete;
  ~Chain() {
    for (auto* list : {&shapes, &dtypes})
      for (PyObject* own : *list) Py_DECREF(own);
    for (const Argument& own : arguments) Py_DECREF(own.own);
  }

  std::unique_ptr<detail::runner> take() {
    if (!idle.empty()) {
      std::unique_ptr<detail::runner> own = std::move(idle.back());
      idle.pop_back();
      own->moved();
      return own;
    }
    auto own = std::make_unique<detail::runner>();
    own->values = values;
    own->steps = steps;
    own->size = size;
    for (const auto& call : calls)
      if (!call->fields.empty()) own->tallies.push_back(std::make_unique<Measure>(*call));
    return own;
  }
  // One that holds little stays.
  void leave(std::unique_ptr<detail::runner> own) try {
    if (idle.empty() && own->bytes() < std::size_t(4) << 20) idle.push_back(std::move(own));
  } catch (const std::bad_alloc&) {
  }
};

constexpr const char* kName = "hux.chain";
Chain* chainOf(PyObject* capsule) { return static_cast<Chain*>(PyCapsule_GetPointer(capsule, kName)); }

bool place(detail::value& own, bool written, void* data, Py_ssize_t step) {
  (written ? own.out : own.in)[0] = static_cast<std::byte*>(data);
  (written ? own.out_step : own.in_step) = int(step);
  return true;
}

// What a run came to: None, where outputs share bytes with other images in a way that they may not; else the statuses
// of the steps, or None where all are 0, and the measures.
PyObject* run(Chain& chain, std::unique_ptr<detail::runner> own, int threads, int rows, bool& clean) {
  status ended = status::ok;
  int whose = 0;
  const running options{threads < 1 ? int(huxGetThreadCount()) : threads, rows};
  {
    PyThreadState* const state =
        std::int64_t(chain.size.width) * chain.size.height > 4000 ? PyEval_SaveThread() : nullptr;
    ended = own->run(options, whose);
    if (state) PyEval_RestoreThread(state);
  }
  clean = ended == status::ok && own->tallies.empty();
  if (whose == detail::runner::kNoStep && ended == status::no_mem) return PyErr_NoMemory();
  if (clean || (whose == detail::runner::kNoStep && ended != status::ok)) {
    chain.leave(std::move(own));
    return Py_NewRef(Py_None);
  }
  PyObject* told = ended == status::ok ? Py_NewRef(Py_None) : PyTuple_New(Py_ssize_t(chain.steps.size()));
  for (std::size_t s = 0; told && ended != status::ok && s < chain.steps.size(); ++s)
    PyTuple_SetItem(told, Py_ssize_t(s), PyLong_FromLong(int(own->status_of(s))));
  PyObject* measures = PyList_New(0);
  std::size_t index = 0;
  for (const auto& call : chain.calls) {
    if (call->fields.empty() || int(ended) < 0) continue;
    const auto& found = static_cast<const Measure&>(own->measured(index++));
    for (const Field& field : call->fields) {
      PyObject* bytes = measures ? PyBytes_FromStringAndSize(found.total(field), Py_ssize_t(field.count) * 8) : nullptr;
      if (!bytes || PyList_Append(measures, bytes) < 0) Py_CLEAR(measures);
      Py_XDECREF(bytes);
    }
  }
  chain.leave(std::move(own));
  PyObject* const both = told && measures ? PyTuple_Pack(2, told, measures) : nullptr;
  Py_XDECREF(told);
  Py_XDECREF(measures);
  return both;
}

// ---- For Python
// ------------------------------------------------------------------------------------------------------

bool refuse(const char* text) { return PyErr_SetString(PyExc_ValueError, text), false; }

bool readStep(PyObject* from, Chain& chain) {
  auto call = std::make_unique<Call>();
  detail::step& step = chain.steps.emplace_back();
  const char *program, *values, *filler;
  Py_ssize_t bytes, pixel;
  PyObject *sources, *fields;
  int left, top, right, bottom, border;
  if (!PyArg_ParseTuple(from, "isy#O!(iiii)i(iiii)(iy#)O!", &call->function, &program, &values, &bytes, &PyTuple_Type,
                        &sources, &call->a, &call->b, &call->mask, &call->start, &step.destination, &left, &top, &right,
                        &bottom, &border, &filler, &pixel, &PyTuple_Type, &fields))
    return false;
  call->program = program;
  call->joint = call->program.find('J') != std::string::npos;
  call->values.resize(std::size_t(bytes) / sizeof(Value));
  std::memcpy(static_cast<void*>(call->values.data()), values, call->values.size() * sizeof(Value));
  call->count = step.count = int(PyTuple_Size(sources));
  const int known = int(chain.values.size());
  if (step.count > 4 || step.destination >= known || pixel > Py_ssize_t(sizeof step.outside))
    return refuse("no such step");
  for (int k = 0; k < step.count; ++k) {
    detail::part_of_value& own = step.sources[k];
    if (!PyArg_ParseTuple(PyTuple_GetItem(sources, k), "iii", &own.value, &own.plane, &own.offset)) return false;
    if (own.value < 0 || own.value >= known) return refuse("no such image");
    call->planes[k] = own.plane < 0 ? chain.values[std::size_t(own.value)].planes : 1;
    own.plane = std::max(own.plane, 0);
  }
  if (step.destination >= 0) {
    const detail::value& made = chain.values[std::size_t(step.destination)];
    call->madePlanes = made.planes;
    call->madePixel = made.pixel;
  }
  step.windowed = left || top || right || bottom;
  step.around = {left, top, right, bottom};
  constexpr hux::border kRules[] = {hux::border::constant, hux::border::replicate, hux::border::symmetric,
                                    hux::border::reflect101, hux::border::wrap};
  static_assert(kConstant == 0 && kReplicate == 1 && kSymmetric == 2 && kReflect101 == 3 && kWrap == 4);
  if (step.windowed) step.rule = kRules[border];
  if (border == kConstant) std::memcpy(step.outside, filler, std::size_t(pixel));
  for (Py_ssize_t i = 0; i < PyTuple_Size(fields); ++i) {
    int type, merge, count;
    if (!PyArg_ParseTuple(PyTuple_GetItem(fields, i), "CCi", &type, &merge, &count)) return false;
    call->fields.push_back({char(type), char(merge), count, call->bytes});
    call->bytes += (Py_ssize_t(count) * 8 + 15) / 16 * 16;
  }
  const Call* const own = call.get();
  if (!own->fields.empty()) {
    step.measured = 0;
    for (const auto& other : chain.calls) step.measured += !other->fields.empty();
  } else {
    step.work = detail::work([own](const band* in, const band& out) { return status(own->run(in, &out, nullptr)); });
  }
  chain.calls.push_back(std::move(call));
  return true;
}

bool readValues(PyObject* from, std::vector<int>& to, std::vector<detail::value>& values, bool written) {
  for (Py_ssize_t i = 0; i < PyTuple_Size(from); ++i) {
    const long index = PyLong_AsLong(PyTuple_GetItem(from, i));
    if (index < 0 || std::size_t(index) >= values.size()) return refuse("no such image");
    detail::value& own = values[std::size_t(index)];
    (written ? own.output : own.input) = true;
    to.push_back(int(index));
  }
  return true;
}

// make_chain(values, steps, inputs, outputs, kinds, size, single)
PyObject* makeChain(PyObject*, PyObject* arguments) try {
  PyObject *values, *steps, *inputs, *outputs, *kinds;
  auto chain = std::make_unique<Chain>();
  int single;
  if (!PyArg_ParseTuple(arguments, "O!O!O!O!O!(ii)p", &PyTuple_Type, &values, &PyTuple_Type, &steps, &PyTuple_Type,
                        &inputs, &PyTuple_Type, &outputs, &PyTuple_Type, &kinds, &chain->size.width,
                        &chain->size.height, &single))
    return nullptr;
  chain->single = single;
  for (Py_ssize_t i = 0; i < PyTuple_Size(values); ++i) {
    detail::value& own = chain->values.emplace_back();
    if (!PyArg_ParseTuple(PyTuple_GetItem(values, i), "ii", &own.pixel, &own.planes)) return nullptr;
    own.own = own.pixel;
  }
  if (!readValues(inputs, chain->inputs, chain->values, false) ||
      !readValues(outputs, chain->outputs, chain->values, true))
    return nullptr;
  for (Py_ssize_t i = 0; i < PyTuple_Size(kinds); ++i) {
    PyObject *dtype, *shape;
    if (!PyArg_ParseTuple(PyTuple_GetItem(kinds, i), "OO", &dtype, &shape)) return nullptr;
    chain->dtypes.push_back(Py_NewRef(dtype));
    chain->shapes.push_back(Py_NewRef(shape));
  }
  for (Py_ssize_t i = 0; i < PyTuple_Size(steps); ++i)
    if (!readStep(PyTuple_GetItem(steps, i), *chain)) return nullptr;
  return PyCapsule_New(chain.release(), kName,
                       [](PyObject* capsule) { delete static_cast<Chain*>(PyCapsule_GetPointer(capsule, kName)); });
} catch (const std::bad_alloc&) {
  return PyErr_NoMemory();
}

// set_arguments(chain, arguments): what the chain has been made for, so that run_again knows it.
PyObject* setArguments(PyObject*, PyObject* given) try {
  PyObject *capsule, *arguments;
  if (!PyArg_ParseTuple(given, "OO!", &capsule, &PyTuple_Type, &arguments)) return nullptr;
  Chain* const chain = chainOf(capsule);
  if (!chain) return nullptr;
  for (Py_ssize_t i = 0; gArrayType && i < PyTuple_Size(arguments); ++i) {
    PyObject* const own = PyTuple_GetItem(arguments, i);
    Argument& kept = chain->arguments.emplace_back();
    kept.own = Py_NewRef(own);
    if (Py_TYPE(own) != gArrayType) continue;
    const auto& array = *reinterpret_cast<NumpyArray*>(own);
    kept.axes = array.axes;
    std::copy_n(array.shape, array.axes, kept.shape);
    kept.own = Py_NewRef(array.dtype);
    Py_DECREF(own);
  }
  Py_RETURN_NONE;
} catch (const std::bad_alloc&) {
  return PyErr_NoMemory();
}

class Buffers {
 public:
  explicit Buffers(std::size_t count) : all_(new Py_buffer[count]) {}
  ~Buffers() {
    for (std::size_t i = 0; i < held_; ++i) PyBuffer_Release(&all_[i]);
  }
  const Py_buffer* take(PyObject* array, bool written) {
    if (PyObject_GetBuffer(array, &all_[held_], written ? PyBUF_RECORDS : PyBUF_RECORDS_RO) < 0) return nullptr;
    return &all_[held_++];
  }

 private:
  std::unique_ptr<Py_buffer[]> all_;
  std::size_t held_ = 0;
};

// run_chain(chain, arrays, outs, threads, rows): the arrays have their pixels one after another, and so do those that
// results go to. Gives what run gives, or an empty tuple where all is well and nothing was measured.
PyObject* runChain(PyObject*, PyObject* arguments) try {
  PyObject *capsule, *arrays, *outs;
  int threads, rows;
  if (!PyArg_ParseTuple(arguments, "OO!O!ii", &capsule, &PyTuple_Type, &arrays, &PyTuple_Type, &outs, &threads, &rows))
    return nullptr;
  Chain* const chain = chainOf(capsule);
  if (!chain) return nullptr;
  Buffers buffers{chain->inputs.size() + chain->outputs.size()};
  auto own = chain->take();
  for (const bool written : {false, true}) {
    const std::vector<int>& places = written ? chain->outputs : chain->inputs;
    PyObject* const list = written ? outs : arrays;
    if (PyTuple_Size(list) != Py_ssize_t(places.size())) return refuse("other arrays are expected"), nullptr;
    for (std::size_t i = 0; i < places.size(); ++i) {
      const Py_buffer* const array = buffers.take(PyTuple_GetItem(list, Py_ssize_t(i)), written);
      if (!array) return nullptr;
      detail::value& to = own->values[std::size_t(places[i])];
      const Py_ssize_t pixel = array->ndim == 3 ? array->itemsize * array->shape[2] : array->itemsize;
      if (array->ndim < 2 || pixel != to.pixel || array->shape[0] != chain->size.height ||
          array->shape[1] != chain->size.width || (array->shape[1] > 1 && array->strides[1] != pixel))
        return refuse("no such array"), nullptr;
      place(to, written, array->buf, chain->size.height > 1 ? array->strides[0] : chain->size.width * pixel);
    }
  }
  bool clean;
  PyObject* const found = run(*chain, std::move(own), threads, rows, clean);
  if (!clean) return found;
  Py_XDECREF(found);
  return PyTuple_New(0);
} catch (const std::bad_alloc&) {
  return PyErr_NoMemory();
}

// Whether an array is one of the shape and type, with its elements one after another but for gaps between rows, which
// go downwards.
bool fits(PyObject* object, PyObject* dtype, int axes, const Py_ssize_t* shape, int pixel, bool written) {
  if (Py_TYPE(object) != gArrayType) return false;
  const auto& array = *reinterpret_cast<NumpyArray*>(object);
  constexpr int kAligned = 0x100;
  if (array.dtype != dtype || array.axes != axes || !(array.flags & kAligned) ||
      (written && !(array.flags & kWriteable)) || !std::equal(shape, shape + axes, array.shape))
    return false;
  const Py_ssize_t *const strides = array.strides, row = shape[1] * pixel;
  return strides[1] == pixel && (axes == 2 || strides[2] * shape[2] == pixel) && strides[0] >= row &&
         strides[0] <= INT_MAX;
}

// run_again(chain, arguments, out, threads, rows): the chain's result where it is one image; a tuple of what run gives,
// and of the images; NotImplemented where an argument is not as it was, or anything else is to be looked into.
PyObject* runAgain(PyObject*, PyObject* const* given, Py_ssize_t) try {
  PyObject *const arguments = given[1], *const out = given[2];
  Chain* const chain = chainOf(given[0]);
  if (!chain) return nullptr;
  const long threads = given[3] == Py_None ? 0 : PyLong_AsLong(given[3]), rows = PyLong_AsLong(given[4]);
  if (PyErr_Occurred()) PyErr_Clear();
  const auto otherwise = [] { return Py_NewRef(Py_NotImplemented); };
  if (chain->arguments.empty() || PyTuple_Size(arguments) != Py_ssize_t(chain->arguments.size()) || rows < 0 ||
      threads < (given[3] != Py_None) || threads > INT_MAX)
    return otherwise();
  std::size_t next = 0;
  for (std::size_t i = 0; i < chain->arguments.size(); ++i) {
    const Argument& known = chain->arguments[i];
    PyObject* const own = PyTuple_GetItem(arguments, Py_ssize_t(i));
    if (known.axes) {
      const int pixel = chain->values[std::size_t(chain->inputs[next++])].pixel;
      if (!fits(own, known.own, known.axes, known.shape, pixel, false)) return otherwise();
    } else if (own != known.own) {
      if (Py_TYPE(own) != Py_TYPE(known.own) ||
          !(PyLong_CheckExact(own) || PyFloat_CheckExact(own) || PyUnicode_CheckExact(own)))
        return otherwise();
      if (PyObject_RichCompareBool(own, known.own, Py_EQ) != 1) return PyErr_Clear(), otherwise();
    }
  }
  const std::size_t count = chain->outputs.size();
  if (out != Py_None && count != 1) return otherwise();
  PyObject* const results = PyTuple_New(Py_ssize_t(count));
  if (!results) return nullptr;
  auto own = chain->take();
  bool good = true;
  for (std::size_t i = 0; good && i < count; ++i) {
    detail::value& to = own->values[std::size_t(chain->outputs[i])];
    PyObject* const made = out != Py_None
                               ? Py_NewRef(out)
                               : PyObject_CallFunctionObjArgs(gEmpty, chain->shapes[i], chain->dtypes[i], nullptr);
    if (!made) return Py_DECREF(results), nullptr;
    PyTuple_SetItem(results, Py_ssize_t(i), made);
    PyObject* const shape = chain->shapes[i];
    Py_ssize_t sides[3];
    const int axes = int(PyTuple_Size(shape));
    for (int k = 0; k < axes; ++k) sides[k] = PyLong_AsSsize_t(PyTuple_GetItem(shape, k));
    good = fits(made, chain->dtypes[i], axes, sides, to.pixel, true);
    const auto& array = *reinterpret_cast<NumpyArray*>(made);
    if (good) place(to, true, array.data, array.strides[0]);
  }
  if (!good) {
    Py_DECREF(results);
    chain->leave(std::move(own));
    return otherwise();
  }
  next = 0;
  for (std::size_t i = 0; i < chain->arguments.size(); ++i) {
    if (!chain->arguments[i].axes) continue;
    const auto& array = *reinterpret_cast<NumpyArray*>(PyTuple_GetItem(arguments, Py_ssize_t(i)));
    place(own->values[std::size_t(chain->inputs[next++])], false, array.data, array.strides[0]);
  }
  bool clean;
  PyObject* found = run(*chain, std::move(own), int(threads), int(rows), clean);
  if (found == Py_None && !clean) {
    Py_DECREF(results);
    Py_DECREF(found);
    return otherwise();
  }
  PyObject* made = nullptr;
  if (found && clean && chain->single)
    made = Py_NewRef(PyTuple_GetItem(results, 0));
  else if (found)
    made = PyTuple_Pack(2, found, results);
  Py_XDECREF(found);
  Py_DECREF(results);
  return made;
} catch (const std::bad_alloc&) {
  return PyErr_NoMemory();
}

// record(by): a function of a chain starts (1) or ends (-1). set_recorder(images, recorder): what it is recorded with.
PyObject* record(PyObject*, PyObject* by) {
  gRecording += int(PyLong_AsLong(by));
  Py_RETURN_NONE;
}
PyObject* setRecorder(PyObject*, PyObject* arguments) {
  if (!PyArg_ParseTuple(arguments, "O!O", &PyTuple_Type, &gImages, &gRecorder)) return nullptr;
  Py_INCREF(gImages);
  Py_INCREF(gRecorder);
  Py_RETURN_NONE;
}

// noted(operation, arguments, keywords): what the call gives, and the notes of the functions that it ran.
PyObject* noted(PyObject*, PyObject* arguments) {
  PyObject *operation, *given, *options;
  if (!PyArg_ParseTuple(arguments, "OO!O!", &operation, &PyTuple_Type, &given, &PyDict_Type, &options)) return nullptr;
  PyObject *const before = tNotes, *const notes = PyList_New(0);
  if (!notes) return nullptr;
  tNotes = notes;
  ++gNoting;
  PyObject* const result = PyObject_Call(operation, given, options);
  --gNoting;
  tNotes = before;
  PyObject* const both = result ? PyTuple_Pack(2, result, notes) : nullptr;
  Py_XDECREF(result);
  Py_DECREF(notes);
  return both;
}

// Whether it stands for an image or a number of a chain, or has one that does among its planes.
bool standsFor(PyObject* object) {
  for (Py_ssize_t i = 0; i < PyTuple_Size(gImages); ++i)
    if (PyObject_IsInstance(object, PyTuple_GetItem(gImages, i)) == 1) return true;
  if (!PyTuple_Check(object) && !PyList_Check(object)) return false;
  bool any = false;
  for (Py_ssize_t i = 0; !any && i < PySequence_Size(object); ++i) {
    PyObject* const item = PySequence_GetItem(object, i);
    any = item && standsFor(item);
    Py_XDECREF(item);
  }
  return any;
}

}  // namespace

bool thisThreadNotes() { return tNotes; }
bool note(PyObject* entry) {
  const bool good = entry && PyList_Append(tNotes, entry) == 0;
  Py_XDECREF(entry);
  return good;
}

PyObject* recorded(PyObject* operation, PyObject* const* given, Py_ssize_t count, PyObject* names) {
  const Py_ssize_t named = names ? PyTuple_Size(names) : 0;
  bool any = false;
  for (Py_ssize_t i = 0; !any && i < count + named; ++i) any = standsFor(given[i]);
  if (!any) return Py_NewRef(Py_NotImplemented);
  PyObject *arguments = PyTuple_New(count), *options = PyDict_New(), *result = nullptr;
  bool good = arguments && options;
  for (Py_ssize_t i = 0; good && i < count; ++i) good = PyTuple_SetItem(arguments, i, Py_NewRef(given[i])) == 0;
  for (Py_ssize_t i = 0; good && i < named; ++i)
    good = PyDict_SetItem(options, PyTuple_GetItem(names, i), given[count + i]) == 0;
  if (good) result = PyObject_CallFunctionObjArgs(gRecorder, operation, arguments, options, nullptr);
  Py_XDECREF(arguments);
  Py_XDECREF(options);
  return result;
}

PyMethodDef kChainFunctions[] = {
    {"make_chain", makeChain, METH_VARARGS, nullptr},
    {"set_arguments", setArguments, METH_VARARGS, nullptr},
    {"run_chain", runChain, METH_VARARGS, nullptr},
    {"run_again", reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(runAgain)), METH_FASTCALL, nullptr},
    {"record", record, METH_O, nullptr},
    {"set_recorder", setRecorder, METH_VARARGS, nullptr},
    {"noted", noted, METH_VARARGS, nullptr},
    {}};

}  // namespace hux::python
