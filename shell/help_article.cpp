#include "shell/help_article.h"

#include "framework/files/disk.h"

namespace norvane {

std::string fileAddress(const std::string &path) {
    constexpr std::string_view kPlain = "/-._~";
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string address = "file://";
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        const bool alphanumeric =
            (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (alphanumeric || kPlain.find(c) != std::string_view::npos)
            address += c;
        else
            address.append({'%', kHex[byte >> 4U], kHex[byte & 15U]});
    }
    return address;
}

std::string helpArticleAddress() {
#ifdef NORVANE_HELP_ADDRESS
    return NORVANE_HELP_ADDRESS;
#else
    const std::string folder = disk::programFolder() + "/";
    const std::string beside = folder + "help.html"; // as in a build folder
    return fileAddress(
        disk::kindOf(beside) == disk::Kind::file ? beside : folder + NORVANE_HELP_FROM_PROGRAM);
#endif
}

} // namespace norvane
