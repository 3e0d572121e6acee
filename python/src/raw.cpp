// What the package passes to a function by itself.
#include "chain.h"
#include "module.h"

#include <climits>
#include <cstring>

namespace hux::python {
namespace {

// What the package passes to a function by itself: None, an address, an array, or for planes a tuple of arrays.
class Raw {
 public:
  ~Raw() {
    for (int i = 0; i < held; ++i) PyBuffer_Release(&buffers[i]);
  }
  bool pointer(PyObject* given, void** to) {
    *to = nullptr;
    if (given == Py_None) return true;
    if (PyLong_Check(given)) {
      *to = PyLong_AsVoidPtr(given);
      return !PyErr_Occurred();
    }
    if (PyTuple_Check(given)) {
      const Py_ssize_t count = PyTuple_Size(given);
      if (count > 4 || lists == kLists) return PyErr_SetString(PyExc_TypeError, "at most four planes"), false;
      void** const list = pointers[lists++];
      for (Py_ssize_t i = 0; i < count; ++i)
        if (!pointer(PyTuple_GetItem(given, i), &list[i])) return false;
      *to = list;
      return true;
    }
    if (held == kBuffers) return PyErr_SetString(PyExc_TypeError, "too many arrays"), false;
    if (PyObject_GetBuffer(given, &buffers[held], PyBUF_RECORDS_RO) < 0) return false;
    *to = buffers[held++].buf;
    return true;
  }
  bool ints(PyObject* given, int* to, int count) {
    for (int i = 0; i < count; ++i) {
      PyObject* item = PySequence_GetItem(given, i);
      const long number = item ? PyLong_AsLong(item) : -1;
      Py_XDECREF(item);
      if (number == -1 && PyErr_Occurred()) return false;
      if (number < INT_MIN || number > INT_MAX)
        return PyErr_SetString(PyExc_ValueError, "a number is beyond 32 bits"), false;
      to[i] = int(number);
    }
    return true;
  }
  bool value(char letter, PyObject* given, Value* to) {
    switch (letter) {
      case 'p':
        return pointer(given, &to->p);
      case 'f':
        to->f = float(PyFloat_AsDouble(given));
        return !PyErr_Occurred();
      case 'd':
        to->d = PyFloat_AsDouble(given);
        return !PyErr_Occurred();
      case 'S':
        return ints(given, &to->size.width, 2);
      case 'P':
        return ints(given, &to->point.x, 2);
      case 'R':
        return ints(given, &to->rect.x, 4);
      case 'u':
        to->u = unsigned(PyLong_AsUnsignedLong(given));
        return !PyErr_Occurred();
      case 'l':
        to->l = PyLong_AsLongLong(given);
        return !PyErr_Occurred();
      default: {
        const long number = PyLong_AsLong(given);
        if (number == -1 && PyErr_Occurred()) return false;
        if (number < INT_MIN || number > INT_MAX)
          return PyErr_SetString(PyExc_ValueError, "a number is beyond 32 bits"), false;
        to->i = int(number);
        return true;
      }
    }
  }

 private:
  static constexpr int kBuffers = 24, kLists = 5;
  Py_buffer buffers[kBuffers];
  void* pointers[kLists][4];
  int held = 0, lists = 0;
};

}  // namespace

// call(function, operation, elements, arguments): raises or warns of what the function returns.
PyObject* callRaw(PyObject*, PyObject* const* given, Py_ssize_t count) {
  if (count != 4 || !PyTuple_Check(given[3]))
    return PyErr_SetString(PyExc_TypeError, "call takes four arguments"), nullptr;
  const long index = PyLong_AsLong(given[0]);
  const Py_ssize_t elements = PyLong_AsSsize_t(given[2]);
  if (PyErr_Occurred()) return nullptr;
  if (index < 0 || index >= kFunctionCount) return PyErr_SetString(PyExc_ValueError, "no such function"), nullptr;
  const Function& function = kFunctions[index];
  const Py_ssize_t own = PyTuple_Size(given[3]);
  const char* const letters = function.shapeLetters + 1;
  if (own != Py_ssize_t(std::strlen(letters)) || own > 20)
    return PyErr_Format(PyExc_TypeError, "%s takes %zd arguments", function.name, std::strlen(letters));
  Value values[20], status = {};
  Raw raw;
  for (Py_ssize_t i = 0; i < own; ++i)
    if (!raw.value(letters[i], PyTuple_GetItem(given[3], i), &values[i])) return nullptr;
  if (noting() && !note(Py_BuildValue("lO", index, given[3]))) return nullptr;
  gCalled[index] = true;
  if (elements > kKeepLock) {
    PyThreadState* state = PyEval_SaveThread();
    status = tool::call(function.shape, function.address, values);
    PyEval_RestoreThread(state);
  } else {
    status = tool::call(function.shape, function.address, values);
  }
  if (*function.shapeLetters == 'u') return PyLong_FromUnsignedLong(status.u);
  if (status.i < 0 || (status.i && !noting()))
    return PyObject_CallFunction(gReport, "isO", status.i, function.name, given[1]);
  Py_RETURN_NONE;
}

}  // namespace hux::python
