// Chains: calls that are recorded, then run over bands of rows. hux/chain.py records and settles them.
#pragma once

#define PY_SSIZE_T_CLEAN
#define Py_LIMITED_API 0x030B0000
#include <Python.h>

namespace hux::python {

// Above 0 while the function of a chain runs. Calls look at it before anything else.
extern int gRecording;

// What the recorder makes of a call; NotImplemented where none of its arguments is an image of a chain.
PyObject* recorded(PyObject* operation, PyObject* const* given, Py_ssize_t count, PyObject* names);

// Whether the calls of this thread are noted: which function they run, and with what. Warnings are not told then.
extern int gNoting;  // threads whose calls are
bool thisThreadNotes();
inline bool noting() { return gNoting && thisThreadNotes(); }
// Adds a note, which it takes; null passes an error on.
bool note(PyObject* entry);

extern PyMethodDef kChainFunctions[];  // see chain.cpp; ended by an empty one

}  // namespace hux::python
