#include "dialog/session/PpdFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>

#include "dialog/session/ChoiceCodes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdBounds.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcPpd, "corvana.dialog.ppd", QtWarningMsg)

namespace {

void keepOneSidedAsDefault(ppd_file_t *ppd)
{
    ppd_option_t *duplex = ppdOption(ppd, kDuplexOption);
    const ppd_choice_t *oneSided = ppdChoice(duplex, kDuplexNone);
    // A default counts as what the printer does without being told, which it would not do then.
    if (!oneSided || qstrcmp(duplex->defchoice, oneSided->choice) == 0 ||
        !canBeSent(ppd, kDuplexOption, kDuplexNone))
        return;
    qCInfo(lcPpd) << "two-sided printing is the queue's default:" << duplex->defchoice;
    qstrncpy(duplex->defchoice, oneSided->choice, sizeof duplex->defchoice);
}

// How many constraints the marks offend while an option is at a choice; it stays there.
int conflictsWith(ppd_file_t *ppd, const ppd_option_t *option, const ppd_choice_t *choice)
{
    return ppdMarkOption(ppd, option->keyword, choice->choice);
}

// The filters of CUPS make copies collated themselves where the printer's "Collate" is not at
// "True", or collides with another mark, or where they make all copies themselves. To everything
// here such a printer has no such option: what libcups looks up is not found, and the rest stays in
// place.
void leaveCollatingToFilters(ppd_file_t *ppd, ppd_option_t *collate)
{
    qCInfo(lcPpd) << "copies are collated by filters";
    for (int i = 0; i < collate->num_choices; ++i) {
        ppd_choice_t *choice = &collate->choices[i];
        if (choice->marked)
            cupsArrayRemove(ppd->marked, choice);
        choice->marked = 0;
    }
    cupsArrayRemove(ppd->options, collate);
}

// Most PPDs that can collate do not by default, and the printer then makes each page several times.
void collateByDefault(ppd_file_t *ppd)
{
    ppd_option_t *collate = ppdOption(ppd, kCollateOption);
    if (collate && ppd->manual_copies) // it gets each page once
        return leaveCollatingToFilters(ppd, collate);
    const ppd_choice_t *on = ppdChoice(collate, u"True"_s);
    const ppd_choice_t *off = ppdChoice(collate, u"False"_s);
    if (!on && ppdChoice(collate, u"On"_s) && ppdChoice(collate, u"Off"_s))
        return leaveCollatingToFilters(ppd, collate);
    if (!on || !off || !canBeSent(ppd, kCollateOption, u"True"_s))
        return;
    const int without = conflictsWith(ppd, collate, off);
    if (conflictsWith(ppd, collate, on) > without) // the last one, so that it stays there
        return leaveCollatingToFilters(ppd, collate);
    qstrncpy(collate->defchoice, on->choice, sizeof collate->defchoice);
}

QString openError(const QString &path)
{
    int line = 0;
    const ppd_status_t status = ppdLastError(&line);
    const QString what = QString::fromUtf8(ppdErrorString(status));
    if (line > 0)
        return u"%1:%2: %3"_s.arg(path, QString::number(line), what);
    return u"%1: %2"_s.arg(path, what);
}

} // namespace

PpdFile openPpdFile(const QString &path, QString *error)
{
    // Before libcups reads it, which would not come to an end.
    if (const QString excess = excessOfPpd(path); !excess.isEmpty()) {
        *error = u"%1: %2"_s.arg(path, excess);
        return nullptr;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = u"%1: %2"_s.arg(path, file.errorString());
        return nullptr;
    }
    file.close();
    PpdFile ppd(ppdOpenFile(QFile::encodeName(path).constData()));
    if (!ppd) {
        *error = openError(path);
        return nullptr;
    }
    ppdLocalize(ppd.get());
    ppdMarkDefaults(ppd.get());
    keepOneSidedAsDefault(ppd.get());
    collateByDefault(ppd.get());
    return ppd;
}

bool isOption(ppd_file_t *ppd, const ppd_option_t &option)
{
    return QLatin1StringView(option.keyword) != kCollateOption || ppdOption(ppd, kCollateOption);
}

} // namespace corvana
