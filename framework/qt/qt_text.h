#pragma once

#include <QString>

#include <string>

namespace norvane {

/// UTF-8 text as Qt's; bytes that are no UTF-8 become replacement characters.
inline QString toQt(const std::string &text) {
    return QString::fromStdString(text);
}

} // namespace norvane
