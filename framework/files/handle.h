#pragma once

#include <unistd.h>
#include <utility>

namespace norvane {

/// An open descriptor of the system, or none; closed at its end.
class Handle {
  public:
    Handle() = default;
    explicit Handle(int descriptor) : descriptor_(descriptor) {}
    ~Handle() { close(); }
    Handle(Handle &&other) noexcept : descriptor_(other.release()) {}
    Handle &operator=(Handle &&other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }

    /// Gives the descriptor to the caller, who has to close it.
    int release() { return std::exchange(descriptor_, -1); }

    void close() {
        if (isOpen())
            ::close(release());
    }

  private:
    int descriptor_ = -1;
};

} // namespace norvane
