#pragma once

#include <QAccessible>
#include <QWidget>

namespace norvane {

/// Makes a widget known to screen readers as of this kind; before it is given a text or a title,
/// which makes it known as what the toolkit takes it for. What they ask of a button so made known
/// is done from the event loop, and only where its user could do it as well.
void tellRole(QWidget *widget, QAccessible::Role role);

/// Reports whether a button that was made known is expanded.
void tellExpanded(QWidget *button, bool expanded);

} // namespace norvane
