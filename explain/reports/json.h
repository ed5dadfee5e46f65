#pragma once

#include "explain/reports/report_bytes.h"
#include "framework/text/text.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace norvane {

/// JSON (RFC 8259) as it grows. Texts of any bytes are added; they come out as valid UTF-8, in
/// which each byte that is no part of it is U+FFFD and each harmful character (isHarmful in text.h)
/// is written as \uXXXX. There is no other way in for a text.
class JsonWriter {
  public:
    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginList() { open('['); }
    void endList() { close(']'); }

    /// In an object: the name of what is added next, which is the program's own.
    void name(std::string_view name);

    void add(std::string_view text);
    void add(const char *text) { add(std::string_view(text)); }
    void add(std::size_t number) { addBare(std::to_string(number)); }
    void add(long number) { addBare(std::to_string(number)); }
    void add(int number) { addBare(std::to_string(number)); }
    void add(double number) { addBare(Str(number)); } // no infinite one
    void add(bool value) { addBare(value ? "true" : "false"); }
    void addNull() { addBare("null"); }

    template <class Value>
    void member(std::string_view called, Value value) {
        name(called);
        add(value);
    }
    template <class List>
    void listMember(std::string_view called, const List &values) {
        name(called);
        beginList();
        for (const auto &value : values)
            add(value);
        endList();
    }

    /// Ends a value; the next one stands in a line of its own.
    void endLine();

    std::string_view bytes() const { return bytes_.view(); }
    void clear() { bytes_.text().clear(); }

    void setSink(ReportBytes::Sink sink) { bytes_.setSink(std::move(sink)); }
    void flush() { bytes_.flush(); }

  private:
    void open(char bracket);
    void close(char bracket);
    void addBare(std::string_view value);
    void comma();

    ReportBytes bytes_;
    bool wantsComma_ = false;
};

/// JSON for a script element of a page: the same values, without "<", ">" and "&".
std::string forPage(std::string_view json);

} // namespace norvane
