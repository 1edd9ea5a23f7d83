#pragma once

#include <utility>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/PpdLines.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

/// An option of the Print Setting panel and the control that it is chosen with.
struct PanelOption
{
    QString keyword;
    QString control;
};

/// All of them; one pop-up stands for either form of the resolution.
const QList<PanelOption> &panelOptions();

/// A choice of an option: keyword and choice.
using PanelChoice = std::pair<QString, QString>;
/// One choice for each of several options, chosen in one dialog.
using PanelJob = QList<PanelChoice>;

/// What the control of an option offers, numbers apart; nothing when no user can get at it, or the
/// printer has no such option.
QStringList offeredChoices(DialogDriver &driver, const PpdLines &ppd, const PanelOption &option);

/// Puts choices together to jobs so that none keeps another one from being chosen.
QList<PanelJob> jobsFor(const PpdLines &ppd, QList<PanelChoice> pending);

/// Chooses all of a job at the controls, each after another choice. Null, or what could not be
/// chosen.
QString chooseAll(DialogDriver &driver, const PanelJob &job);

/// How the panels call the two choices of a check box in a summary.
struct OnOffTexts
{
    QString on = u"On"_s;
    QString off = u"Off"_s;
};

/// Compares a summary with the texts that the PPD has for the choices. Null, or the first line that
/// says something else.
QString wrongLine(const PpdLines &ppd, const PanelJob &job, const QMap<QString, QString> &summary,
                  const OnOffTexts &texts = {});

/// Looks for the codes of the choices in the data for the printer, each once, and for those of the
/// other choices of their options. Null, or what is printed otherwise.
QString wrongCode(const PpdLines &ppd, const PanelJob &job, const QByteArray &data);

} // namespace corvana::test
