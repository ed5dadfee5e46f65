#pragma once

#include "decode/data_line.h"
#include "explain/checks/problem.h"

#include <optional>
#include <string>
#include <string_view>

namespace norvane {

/// A film as the viewer of a page wants it: JSON texts.
struct PageData {
    std::optional<Problem> refused{}; // what keeps it from having a transcript
    std::string film{};               // an object: header, summary, lines, captions, findings
    std::string summary{};            // an object, or null: the film in an index of several
};

/// `text` is the whole file, `name` what the user called it, `program` the name and version of what
/// makes the page. Start times are those of a transcript with this clock. Any text is taken.
PageData pageData(std::string_view text, std::string_view name, std::string_view program,
                  Clock clock);

/// The same for a film that could not be read.
PageData refusedPage(std::string_view name, std::string_view program, const Problem &problem);

} // namespace norvane
