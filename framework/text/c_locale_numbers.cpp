#include "framework/text/c_locale_numbers.h"

#include "framework/text/text.h"

#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale.h> // locale_t is POSIX
#ifdef __APPLE__
#include <xlocale.h>
#endif

namespace norvane::c_locale {

namespace {

/// The C locale for this thread, as long as the object lives.
class InCLocale {
  public:
    InCLocale() : before_(uselocale(cLocale())) {}
    ~InCLocale() { uselocale(before_); }
    InCLocale(const InCLocale &) = delete;
    InCLocale &operator=(const InCLocale &) = delete;

  private:
    static locale_t cLocale() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }
    locale_t before_;
};

std::size_t behindDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

/// Without what strtod would read beyond it: hex forms.
std::string_view decimalNumber(std::string_view text) {
    std::size_t end = behindDigits(text, 0);
    if (end < text.size() && text[end] == '.')
        end = behindDigits(text, end + 1);
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        const bool isSigned =
            end + 1 < text.size() && (text[end + 1] == '+' || text[end + 1] == '-');
        const std::size_t digits = end + (isSigned ? 2 : 1);
        if (const std::size_t behind = behindDigits(text, digits); behind > digits)
            end = behind;
    }
    return text.substr(0, end);
}

std::string print(const char *form, int precision, double value) {
    const InCLocale inCLocale;
    std::array<char, 512> buffer; // the largest double has 309 digits
    const int size = std::snprintf(buffer.data(), buffer.size(), form, precision, value);
    return {buffer.data(), static_cast<std::size_t>(size)};
}

} // namespace

double leadingNumber(std::string_view text) {
    const InCLocale inCLocale;
    return std::strtod(std::string(decimalNumber(text)).c_str(), nullptr);
}

std::string general(double value, int digits) {
    return print("%.*g", digits, value);
}

std::string fixed(double value, int decimals) {
    return print("%.*f", decimals, value);
}

} // namespace norvane::c_locale
