#include "command/page_text.h"

#include "command/page_parts.h"
#include "explain/reports/json.h"
#include "framework/text/text.h"

namespace norvane {

namespace {

/// A text as HTML. What is no valid UTF-8, browsers replace.
std::string escaped(std::string_view text) {
    std::string result;
    for (const char letter : printable(text)) {
        if (letter == '<')
            result += "&lt;";
        else if (letter == '&')
            result += "&amp;";
        else
            result += letter;
    }
    return result;
}

} // namespace

std::string pageText(PageKind kind, std::string_view title, std::string_view data) {
    std::string page;
    page.reserve(data.size() + kPageStyle.size() + kPageScript.size() + 2048);
    const auto add = [&page](auto... parts) { (page.append(parts), ...); };
    add("<!doctype html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src '",
        kPageStyleHash, "'; script-src '", kPageScriptHash,
        "'; base-uri 'none'; form-action 'none'\">\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>",
        escaped(title), "</title>\n<style>", kPageStyle,
        "</style>\n</head>\n<body>\n<main id=\"view\"><noscript>This page needs JavaScript, which "
        "is turned off in this browser.</noscript></main>\n"
        "<script type=\"application/json\" id=\"",
        kind == PageKind::film ? "film" : "films", "\">");
    page.append(forPage(data));
    add("</script>\n<script>", kPageScript, "</script>\n</body>\n</html>\n");
    return page;
}

} // namespace norvane
