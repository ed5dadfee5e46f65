#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

namespace norvane {

/// A block of memory that is filled from its start. Unlike a text, its room is not cleared first.
class Bytes {
  public:
    Bytes() = default;
    explicit Bytes(std::size_t room) : data_(new char[room]), room_(room) {}

    std::string_view view() const { return {data_.get(), size_}; }
    std::size_t size() const { return size_; }

    /// The room after what is filled, and its size.
    char *rest() { return data_.get() + size_; }
    std::size_t restSize() const { return room_ - size_; }

    /// Counts `size` more bytes, at most the rest, as filled.
    void fill(std::size_t size) { size_ += size; }
    void clear() { size_ = 0; }

    /// Takes the first `size` bytes out; the others move to the front.
    void drop(std::size_t size) {
        size_ -= size;
        if (size_ != 0)
            std::memmove(data_.get(), data_.get() + size, size_);
    }

    /// Makes the whole room `room` bytes, not less than what is filled.
    void grow(std::size_t room) {
        std::unique_ptr<char[]> larger(new char[room]); // NOLINT: as above
        if (size_ != 0)
            std::memcpy(larger.get(), data_.get(), size_);
        data_ = std::move(larger);
        room_ = room;
    }

  private:
    std::unique_ptr<char[]> data_; // NOLINT: memory that is not cleared
    std::size_t size_ = 0;
    std::size_t room_ = 0;
};

} // namespace norvane
