#include "explain/reports/json.h"

#include "framework/text/text.h"

namespace norvane {

namespace {

void appendEscape(std::string &bytes, unsigned value) {
    bytes += "\\u";
    for (const unsigned shift : {12U, 8U, 4U, 0U})
        bytes += kHexDigits[value >> shift & 15U];
}

/// Whether a byte is a character that JSON has as it is.
bool isPlain(char c) {
    return c >= ' ' && c < 0x7F && c != '"' && c != '\\';
}

/// Of a character of two or three bytes, or of ASCII.
unsigned valueOf(std::string_view character) {
    const auto byte = [character](std::size_t i) {
        return static_cast<unsigned char>(character[i]) & 0x3FU;
    };
    return character.size() == 1   ? static_cast<unsigned char>(character[0])
           : character.size() == 2 ? (byte(0) & 0x1FU) << 6U | byte(1)
                                   : (byte(0) & 0x0FU) << 12U | byte(1) << 6U | byte(2);
}

} // namespace

void JsonWriter::comma() {
    if (wantsComma_)
        bytes_.text() += ',';
    wantsComma_ = true;
}

void JsonWriter::open(char bracket) {
    comma();
    bytes_.text() += bracket;
    wantsComma_ = false;
}

void JsonWriter::close(char bracket) {
    bytes_.text() += bracket;
    wantsComma_ = true;
    bytes_.flushMuch();
}

void JsonWriter::name(std::string_view name) {
    comma();
    bytes_.text().append("\"").append(name).append("\":");
    wantsComma_ = false;
}

void JsonWriter::addBare(std::string_view value) {
    comma();
    bytes_.text() += value;
}

void JsonWriter::add(std::string_view text) {
    comma();
    bytes_.text() += '"';
    std::size_t done = 0;
    for (std::size_t at = 0; at < text.size();) {
        if (isPlain(text[at])) {
            ++at;
            continue;
        }
        const std::string_view character = text.substr(at, characterSize(text.substr(at)));
        const bool isBroken = character.size() == 1 && text[at] < 0;
        const bool isMark = text[at] == '"' || text[at] == '\\';
        if (isBroken || isMark || isHarmful(character)) {
            bytes_.text().append(text, done, at - done);
            if (isBroken)
                bytes_.text() += "\uFFFD";
            else if (isMark)
                bytes_.text().append("\\").append(character);
            else
                appendEscape(bytes_.text(), valueOf(character));
            done = at + character.size();
        }
        at += character.size();
    }
    bytes_.text().append(text, done).append("\"");
}

void JsonWriter::endLine() {
    bytes_.text() += '\n';
    wantsComma_ = false;
}

std::string forPage(std::string_view json) {
    std::string text;
    text.reserve(json.size());
    for (const char c : json) {
        if (c == '<' || c == '>' || c == '&')
            appendEscape(text, static_cast<unsigned char>(c));
        else
            text += c;
    }
    return text;
}

} // namespace norvane
