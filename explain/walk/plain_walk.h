#pragma once

#include "explain/walk/traced_text.h"

/// The road from a line's hex text to its entry, as the tables have it: row after row and pass
/// after pass on the whole text. Slow, but it keeps track of each digit, and it is the reference
/// for the fast decode. Any text is taken.
namespace norvane::plain {

/// Rows 2 to 581 of the replacement chain.
void replaceCodeWords(TracedText &text);

/// What the chain left to a caption: pairs of characters to letters, marks to blanks. False, and
/// nothing is done, when a single character is left, which makes no pair.
bool readLetters(TracedText &text);

/// The entry passes over a caption.
void cleanEntry(TracedText &entry);

/// The text passes over a transcript, or over one entry: they do not reach across its ends where a
/// tab and an end of line stand around it.
void cleanTranscript(TracedText &text);

} // namespace norvane::plain
