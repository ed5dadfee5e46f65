#pragma once

#include "framework/text/failures.h"

#include <memory>
#include <string>
#include <utility>

namespace norvane {

/// A shared reference that may be nil. Testing it is safe; using it while nil throws
/// NilObjectException with the reason that the maker gave.
template <class T>
class Ref {
  public:
    explicit Ref(std::shared_ptr<T> object) : object_(std::move(object)) {}

    /// A nil reference. `reason` is UTF-8 text for the user: what could not be had, and why.
    static Ref nil(const std::string &reason) {
        Ref none{nullptr};
        none.reason_ = reason;
        return none;
    }

    explicit operator bool() const { return object_ != nullptr; }

    T *operator->() const {
        if (!object_)
            throw NilObjectException(reason_);
        return object_.get();
    }
    T &operator*() const { return *operator->(); }

  private:
    std::shared_ptr<T> object_;
    std::string reason_;
};

} // namespace norvane
