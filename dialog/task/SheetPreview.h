#pragma once

#include <memory>

#include <QList>
#include <QString>

#include "dialog/sheets/LaidOutDocument.h"
#include "dialog/sheets/SheetMarks.h"
#include "dialog/sheets/SheetPlan.h"

namespace corvana {

/// What can be shown of the sheets that will come out of a job. A value: its files stay readable as
/// long as it is held, whatever is laid out meanwhile.
struct SheetPreview
{
    enum class State {
        None,     ///< nothing can be shown; `reason` says why
        Counting, ///< a layout is in work; plan and files are those of an older one, if any
        Begun,    ///< plan and files are the first sheets of what will be printed, and not all
        Known,    ///< plan and files are what will be printed
    };

    State state = State::None;
    /// A sentence or two for its place. With Known: which of the documents is not shown, and why.
    QString reason{};
    /// Whether printing may work all the same where nothing can be shown.
    bool canBePrinted = true;
    bool reasonTellsSo = false; ///< whether that stands in the reason already
    QString counts{}; ///< "9 pages × 2 copies = 6 sheets"; of this job, so empty while not Known
    SheetPlan plan{};
    /// What there is to be said of single sheets.
    QList<SheetMark> marks{};
    /// One for each document of the job; null for one that is not shown.
    QList<std::shared_ptr<const LaidOutDocument>> files{};
};

} // namespace corvana
