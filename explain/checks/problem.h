#pragma once

#include "framework/text/failures.h"

#include <cstddef>
#include <string>
#include <utility>

namespace norvane {

/// Something that ended the work on one file, for the user: what() is the message.
class Problem : public RuntimeException {
  public:
    explicit Problem(const std::string &what, std::string cure = "", std::size_t number = 0)
        : RuntimeException(what), help(std::move(cure)), line(number) {}

    std::string help; // what to do; may be empty
    std::size_t line; // of the file; 0 when it concerns none
};

} // namespace norvane
