#pragma once

#include <memory>

#include <QByteArray>
#include <QList>
#include <QString>

#include "dialog/job/Document.h"
#include "dialog/printers/PrinterId.h"
#include "dialog/session/PpdSession.h"
#include "dialog/task/JobSettings.h"

namespace corvana {

struct PresetOrigin;

/// Everything that a user sets in a task, for one printer, and the documents of it, as one plain
/// value: what a step of the history leads from and to, and what is compared to find out what has
/// changed.
struct TaskSettings
{
    Printer printer;
    QByteArray ppdHash; ///< of the options that the session's state belongs to
    /// With what a panel shows and has not saved yet.
    SessionSnapshot session;
    JobSettings job;
    QList<Document> documents{};

    /// What a server says of its printer meanwhile, such as a low toner, is nobody's setting.
    bool operator==(const TaskSettings &other) const
    {
        return idOf(printer) == idOf(other.printer) && ppdHash == other.ppdHash &&
               session == other.session && job == other.job && documents == other.documents;
    }
};

/// What "changed" compares with and "back" returns to: what the job started with, or a preset.
struct SettingsBase
{
    TaskSettings settings;
    QString name; ///< as "Back to %1" names it: "Printer Defaults", or the preset's own name
    std::shared_ptr<const PresetOrigin> preset{}; ///< null for what is none
};

} // namespace corvana
