#pragma once

#include "explain/reports/film_captions.h"
#include "explain/reports/json.h"
#include "explain/reports/text_report.h"

#include <functional>

namespace norvane {

// What a viewer sees of a line, and when. The timecodes are in the film's own form: of the word
// that shows a caption, and of the word that removes it.

/// "seen 00:00:35;02 to 00:00:38;10, shown by line 9, removed by line 11", and the like, in
/// lines of their own, for the captions that a line loads, and for those of other lines that it
/// shows. With `screen`, rows of the former as they appear on the screen.
void addSeen(TextReport &report, const FilmCaptions &captions, std::size_t line, bool screen);

/// The captions that a line shows, an object of each in a line of its own.
void addSeen(JsonWriter &json, std::string_view file, const FilmCaptions &captions,
             std::size_t line);

/// The members of an object on a caption that both reports and pages have.
void addMembers(JsonWriter &json, const Caption &caption, const FilmCaptions &captions);

/// Its member "rows". With `placeOf`, each says by line where among the line's words, as that gives
/// it, the word of each character stands.
void addRows(JsonWriter &json, const Caption &caption,
             const std::function<long(const Moment &)> &placeOf = {});

/// "pop-on", "roll-up", "paint-on".
std::string_view nameOf(CaptionMode mode);

} // namespace norvane
