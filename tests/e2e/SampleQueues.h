#pragma once

#include <memory>

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/PanelChoices.h"
#include "tests/support/cups/PrivateCups.h"

namespace corvana::test {

/// A dialog whose job is on its way, and what was chosen in it. While one is printed, the next one
/// can be chosen in a dialog of its own.
struct SentJob
{
    std::unique_ptr<DialogDriver> driver;
    PanelJob choices{};
};

/// A print server with a queue for each sample printer, under the printer's name, and the dialogs
/// of a user who has used none of them yet.
class SampleQueues
{
public:
    /// Errors: throws std::runtime_error, as PrivateCups does.
    SampleQueues();

    static QStringList printers();
    static QString ppdOf(const QString &printer);

    PrivateCups &cups() { return m_cups; }
    std::unique_ptr<DialogDriver> open(const QString &printer, const QStringList &options = {},
                                       const QString &document = {});
    /// Waits until a dialog has closed over its job, and answers what the printer got; null when
    /// the dialog does not say, or not rightly, that it was printed.
    QByteArray printedBy(DialogDriver &driver, const QString &printer);

private:
    QTemporaryDir m_home;
    PrivateCups m_cups;
};

} // namespace corvana::test
