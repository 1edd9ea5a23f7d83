#pragma once

#include <memory>
#include <optional>

#include <QTimer>

#include "dialog/documents/DocumentChecks.h"
#include "dialog/task/JobColors.h"
#include "dialog/task/SettingsHistory.h"
#include "dialog/task/TaskSettings.h"
#include "dialog/text/TextCheck.h"

namespace corvana {

/// Parts of what a PrintTask keeps, each for one of its subjects.
struct TaskState
{
    struct Output
    {
        QString path;
        bool toFile = false;
        bool confirmed = false;
        QString proposed{}; // and nobody's choice
    };
    struct Colors
    {
        PageColors shown;
        QString text;
        bool isBlack = false; // the job is black and white, whatever the panels say
    };
    // What is found out about the documents before they are printed.
    struct Looks
    {
        DocumentChecks documents;
        std::unique_ptr<TextCheck> texts;
        QTimer textPatience;  // until a job is made without the finding of the texts
        QStringList declined; // documents whose password somebody does not want to give
        QStringList told;     // what was said of them
        bool isAsking = false;
        bool areReady = false;   // of the job that is made; else they are waited for
        bool printsThen = false; // Print was chosen meanwhile
        bool countsThen = false;
    };
    struct Baseline
    {
        SessionSnapshot opened;  // before any option was taken
        SessionSnapshot started; // before the user changed anything
        SessionSnapshot shown;   // as the face was told last
        QList<JobOption> chosen; // attributes, before the user changed anything
        SettingsBase base;
        SettingsHistory history;
        QStringList touched;                // since the last step, in this order
        std::optional<TaskSettings> coming; // to be restored when their printer is open
        bool willRecord = false;
    };
};

} // namespace corvana
