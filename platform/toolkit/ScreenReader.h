#pragma once

#include <QAccessible>
#include <QString>

#include "platform/PlatformExport.h"

class QLineEdit;
class QTabWidget;
class QWidget;

/// What Qt 6.4 leaves out of what a screen reader is told over AT-SPI.
namespace corvana {

/// Has a screen reader say `text` now, wherever the focus is: a choice that was refused, how many
/// were found, what became of a job. What is said stays in the window's tree for a while, so that
/// it can be read again. Qt 6.4 passes no alert on to AT-SPI; a notification that comes into view
/// is passed on, and read out. Range: an empty text says nothing. Thread: the GUI thread.
CORVANA_PLATFORM_EXPORT void announce(QWidget *near, const QString &text);

/// Says what a widget is that paints itself or that holds others together. To be called before
/// anybody asks, that is, where the widget is made.
CORVANA_PLATFORM_EXPORT void setAccessibleRole(QWidget *widget, QAccessible::Role role);

/// Names a control that no label beside it names. AT-SPI takes what is chosen for the name of a
/// pop-up button, so its name has to come from a label, which is not shown.
CORVANA_PLATFORM_EXPORT void setAccessibleLabel(QWidget *control, const QString &name);

/// Names the list of each pop-up button after the button, when the list has opened: Qt leaves it
/// without a name. Serves all windows, for as long as `owner` lives.
CORVANA_PLATFORM_EXPORT void nameListsOfPopUps(QObject *owner);

/// Names the buttons inside a field: the one that empties it, and the icon before its text, which
/// leads into the field like a label. Qt says of both that they are buttons without a name.
CORVANA_PLATFORM_EXPORT void setFieldButtonNames(QLineEdit *field, const QString &clear);

/// Gives a tool tip that shows exactly `text`, and has a screen reader say the same. Qt reads the
/// markup of a tool tip out where there is no description.
CORVANA_PLATFORM_EXPORT void setPlainToolTip(QWidget *widget, const QString &text);

/// Whoever says something else of a widget for a while covers what is said of it, and uncovers it
/// in the end. Tool tips that are set meanwhile count from then on. Where several do, what was said
/// before comes back with the last of them.
CORVANA_PLATFORM_EXPORT void coverDescription(QWidget *widget);
CORVANA_PLATFORM_EXPORT QString coveredDescription(const QWidget *widget);
CORVANA_PLATFORM_EXPORT void uncoverDescription(QWidget *widget);

/// Has the tabs say which of them is selected, and which has the focus. Qt 6.4 says of the selected
/// tab that it has the focus, always, and of none that it is selected.
CORVANA_PLATFORM_EXPORT void makeTabsAccessible(QTabWidget *tabs);

} // namespace corvana
