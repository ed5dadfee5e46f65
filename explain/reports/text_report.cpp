#include "explain/reports/text_report.h"

#include "framework/text/text.h"

namespace norvane {

TextReport &TextReport::add(std::string_view text) {
    appendPrintable(bytes_.text(), text);
    return *this;
}

} // namespace norvane
