#pragma once

#include "framework/files/system_calls.h"

#include <cstdlib>
#include <unistd.h>

namespace norvane {

/// While it lives, permissions bind also where the tests run as root.
class OrdinaryUser {
  public:
    OrdinaryUser() : wasRoot_(geteuid() == 0 && seteuid(kNobody) == 0) {}
    ~OrdinaryUser() {
        if (wasRoot_ && seteuid(0) != 0)
            std::abort();
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

  private:
    static constexpr uid_t kNobody = 65534;
    bool wasRoot_;
};

/// While it lives, one call to the system fails: the one before which `before` others were made.
class FailingCall {
  public:
    static constexpr int kShort = -1;

    /// `error` is the errno of the failure; with kShort, the call moves half the bytes that it is
    /// asked to, if it moves any.
    FailingCall(int before, int error) {
        left_ = before;
        error_ = error;
        using disk::SystemCalls;
        real_ = disk::systemCalls;
        standIn<&SystemCalls::openat, &SystemCalls::openWithoutLinks, &SystemCalls::duplicate,
                &SystemCalls::fstat, &SystemCalls::readOpenLink, &SystemCalls::faccessat,
                &SystemCalls::fdopendir, &SystemCalls::readdir, &SystemCalls::mkdirat,
                &SystemCalls::unlinkat, &SystemCalls::flock, &SystemCalls::read,
                &SystemCalls::write, &SystemCalls::fchmod, &SystemCalls::fsync,
                &SystemCalls::linkat, &SystemCalls::renameat, &SystemCalls::renameToNew>();
    }
    ~FailingCall() { disk::systemCalls = real_; }
    FailingCall(const FailingCall &) = delete;
    FailingCall &operator=(const FailingCall &) = delete;

    /// True when so many calls were made.
    static bool struck() { return left_ < 0; }

  private:
    template <auto call>
    struct StandIn;
    template <class Result, class... Parameters,
              disk::Call<Result(Parameters...)> disk::SystemCalls::*call>
    struct StandIn<call> {
        static Result made(Parameters... parameters) {
            if (left_-- == 0) {
                (halve(parameters), ...);
                errno = error_;
                if constexpr (std::is_pointer_v<Result>) {
                    if (error_ != kShort)
                        return nullptr;
                } else if (error_ != kShort) {
                    return -1;
                }
            }
            return (real_.*call)(parameters...);
        }
    };
    template <auto... calls>
    static void standIn() {
        ((disk::systemCalls.*calls = {StandIn<calls>::made}), ...);
    }
    static void halve(std::size_t &bytes) { bytes = (bytes + 1) / 2; }
    template <class Parameter>
    static void halve(const Parameter &) {}

    static inline disk::SystemCalls real_;
    static inline int left_;
    static inline int error_;
};

} // namespace norvane
