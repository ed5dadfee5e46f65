#pragma once

#include <string>
#include <string_view>

namespace norvane {

/// A pattern that texts are searched for: case is ignored, and a match may be anywhere. Takes
/// any text, UTF-8 or not; throws nothing.
struct RegEx {
    /// Well formed, of these: "." for any character, "\d" for an ASCII digit, "[^...]" for any
    /// character but those, "\" before a character for that character, and others for themselves.
    /// Nothing repeats.
    std::string SearchPattern;

    /// Whether `text` holds a match.
    bool Search(std::string_view text) const;
};

} // namespace norvane
