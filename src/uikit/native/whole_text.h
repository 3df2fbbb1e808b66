#pragma once

#include <QHelpEvent>
#include <QWidget>

/// Shows as a tooltip, at the place pointed at, a text that a widget has no room for, until the
/// mouse leaves `area` of it, or all of it if that is empty. The text is shown as it stands: one
/// that looks like markup would be taken for it, and load what it names.
void TellWholeText(const QHelpEvent& at, QWidget& widget, const QString& text,
                   const QRect& area = {});
