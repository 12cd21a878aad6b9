#pragma once

#include "runtime/Types.h"

#include <pybind11/pybind11.h>

#include <utility>

namespace zorvane::python {

/// A text on its way to or from Python. Texts of libraries are bytes, mostly UTF-8; other bytes
/// become surrogates, as in file names, so that a name that Python has got finds its plate again.
struct Text {
    Text() = default;
    Text(String given) : bytes(std::move(given)) {} // NOLINT(google-explicit-constructor): a value
    String bytes;
};

} // namespace zorvane::python

template <>
struct pybind11::detail::type_caster<zorvane::python::Text> {
    PYBIND11_TYPE_CASTER(zorvane::python::Text, const_name("str"));

    bool load(handle source, bool /*convert*/) {
        if (!PyUnicode_Check(source.ptr())) return false;
        const auto encoded = reinterpret_steal<object>(
            PyUnicode_AsEncodedString(source.ptr(), "utf-8", "surrogateescape"));
        if (!encoded) throw error_already_set();
        value.bytes = reinterpret_borrow<pybind11::bytes>(encoded);
        return true;
    }

    static handle cast(const zorvane::python::Text& text, return_value_policy /*policy*/,
                       handle /*parent*/) {
        return PyUnicode_DecodeUTF8(text.bytes.data(), static_cast<Py_ssize_t>(text.bytes.size()),
                                    "surrogateescape");
    }
};
