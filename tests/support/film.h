#pragma once

#include "explain/checks/check.h"
#include "explain/reports/film_captions.h"

namespace norvane {

inline FilmCaptions captionsOf(std::string_view film) {
    std::vector<Caption> list;
    const CheckResult result = check(
        film, CheckRules(), [&list](Caption &&caption) { list.push_back(std::move(caption)); });
    return {std::move(list), result.summary.dropFrame};
}

} // namespace norvane
