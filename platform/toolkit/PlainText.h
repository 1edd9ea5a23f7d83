#pragma once

#include <QString>

#include "platform/PlatformExport.h"

class QLabel;
class QMessageBox;
class QWidget;

/// Texts that are shown as they are. Qt guesses whether a text is markup: a label, a tool tip or a
/// message box that is given `<img src=...>` by a PPD, a print server, the name of a document or a
/// preference would open that file. Whatever shows such a text is made by the functions here.
namespace corvana {

/// A label that shows every text as it is, also one that it is given later.
CORVANA_PLATFORM_EXPORT QLabel *plainLabel(const QString &text = {}, QWidget *parent = nullptr);

/// Makes `label` one that shows every text as it is.
CORVANA_PLATFORM_EXPORT void makePlain(QLabel *label);

/// The same for `view` and every label inside it that would guess. A label that was explicitly told
/// that it shows markup stays what it is.
CORVANA_PLATFORM_EXPORT void makeLabelsPlain(QWidget *view);

/// The same for the texts of a message box. To be called when the box has all its texts, since it
/// makes a label for each.
CORVANA_PLATFORM_EXPORT void makePlain(QMessageBox *box);

/// A text as the tool tip that shows exactly it, line for line, and that breaks long lines.
CORVANA_PLATFORM_EXPORT QString plainToolTip(const QString &text);

} // namespace corvana
