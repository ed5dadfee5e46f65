#include "decode/caption.h"
#include "decode/replacement_chain.h"
#include "framework/text/failures.h"
#include "tests/support/plain_walk.h"

#include <cstdint>
#include <cstdlib>

namespace {

template <class Decode>
std::string captionOrFailure(Decode decode) {
    try {
        return decode();
    } catch (const norvane::OutOfBoundsException &) {
        return "no pair";
    }
}

void compare(std::string_view hexText) {
    const std::string product = captionOrFailure([&] {
        std::string captions = "before";
        norvane::appendCaption(captions, hexText);
        return captions.substr(6);
    });
    const std::string plain = captionOrFailure([&] { return norvane::plain::caption(hexText); });
    if (product != plain ||
        norvane::replaceCodeWords(hexText) != norvane::plain::replaceCodeWords(hexText))
        std::abort();
}

} // namespace

/// Any bytes as a line's hex text, and as the bytes that its words stand for: the plain walk and
/// the product must agree.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    compare({reinterpret_cast<const char *>(data), size});
    std::string words;
    for (std::size_t i = 0; i < size; ++i) {
        constexpr std::string_view kDigits = "0123456789abcdef";
        words += kDigits[data[i] / 16];
        words += kDigits[data[i] % 16];
        if (i % 2 == 1)
            words += ' ';
    }
    compare(words);
    return 0;
}
