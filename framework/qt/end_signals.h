#pragma once

#include <QObject>

#include <functional>

namespace norvane {

/// Calls `end` from the event loop, for as long as `owner` lives, whenever the process gets TERM,
/// INT or HUP, which no longer end it by themselves.
void onEndSignals(QObject &owner, std::function<void()> end);

} // namespace norvane
