#pragma once

#include "explain/reports/explanation.h"
#include "explain/reports/film_captions.h"
#include "explain/reports/json.h"

#include <map>
#include <unordered_map>

namespace norvane {

inline constexpr std::string_view kAdvice = "advice"; // the kind of advice that no finding gives

/// Writes the lines of a film, and collects what follows them: codes and findings.
class PageLines {
  public:
    PageLines(JsonWriter &json, const FilmCaptions &captions, const std::vector<Finding> &findings)
        : json_(json), captions_(captions), findings_(findings) {}

    void add(const Explanation &explanation);

    void addCodes();
    void addFindings(bool &hasAdvice);

    /// The place among the words of a line of the word that was sent in a frame of it.
    std::size_t placeOf(std::uint32_t line, std::uint32_t frame) const;

  private:
    struct Advice {
        std::size_t line;
        std::string timecode;
        std::string text;
    };
    /// Characters of an entry, from the first to before the second.
    using Marked = std::pair<std::size_t, std::size_t>;

    void addWords(const Explanation &explanation);
    void addCaptions(std::string_view name, const FilmCaptions::Range &range);
    void markFindings(const Explanation &explanation);

    JsonWriter &json_;
    const FilmCaptions &captions_;
    const std::vector<Finding> &findings_;
    std::map<std::pair<std::string, Service>, std::size_t> codes_;
    std::vector<const CodeMeaning *> meanings_;
    std::vector<std::pair<const std::string *, const Service *>> codeKeys_;
    std::vector<bool> parity_;
    std::unordered_map<std::uint32_t, std::vector<std::size_t>> starts_; // of words, by line
    std::vector<Advice> advice_;
    std::map<const Finding *, Marked> marked_;
};

} // namespace norvane
