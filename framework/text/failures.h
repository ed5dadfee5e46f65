#pragma once

#include <stdexcept>
#include <string>

namespace norvane {

/// A failure that ends the running action. what() is UTF-8 text for the user: it says which file or
/// value is concerned and what is wrong with it.
class RuntimeException : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Use of an object that could not be obtained.
class NilObjectException : public RuntimeException {
  public:
    using RuntimeException::RuntimeException;
};

/// A read past the end of an array.
class OutOfBoundsException : public RuntimeException {
  public:
    using RuntimeException::RuntimeException;
};

/// A file that could not be read or written to its end.
class IOException : public RuntimeException {
  public:
    using RuntimeException::RuntimeException;
};

} // namespace norvane
