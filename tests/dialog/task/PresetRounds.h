#pragma once

#include <random>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/presets/PresetStore.h"
#include "dialog/session/CustomValue.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/session/Summary.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/StartPresets.h"
#include "platform/pde/PDEPlugIn.h"
#include "platform/toolkit/Alert.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/mass/PpdCollection.h"
#include "tests/support/TestPaths.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

// PPDs that nobody here wrote, where this Debian has them; and how many of them are tried.
inline const QString kForeignDriver = u"/usr/lib/cups/driver/postscript-hp"_s;
inline constexpr qsizetype kForeignPpds = 40;

inline constexpr auto kDialog = PpdSession::Origin::Dialog;

// A printer with its job, as a task has them.
struct Desk
{
    std::unique_ptr<OpenedPrinter> printer;
    JobSettings settings;

    PresetContent content() const { return contentOf(*printer, settings); }
    JobTicket ticket() const
    {
        return makeTicket(*printer, settings.attributes(), u"Job"_s, settings.copies());
    }
    QString summary() const
    {
        return summaryText(sessionSummary(*printer->session, *printer->panels, settings.copies(),
                                          settings.attributes()));
    }
    // Options of which nothing is chosen. A tray and the feeding by hand are two forms of one
    // choice to libcups: to mark one takes the mark of the other away, and then says nothing of it.
    QStringList unmarked() const
    {
        QStringList keywords;
        for (const ppd_option_t *option : printer->session->options()) {
            const QString keyword = ppdKeyword(option->keyword);
            const bool isForm = keyword == "ManualFeed"_L1 || keyword == "InputSlot"_L1;
            if (!isForm && printer->session->markedChoice(keyword).isEmpty())
                keywords += keyword;
        }
        return keywords;
    }
    QString model() const { return modelOf(printer->session->ppd()); }
};

// Whatever is shown is taken note of and agreed with.
class Agreeing : public AlertPresenter
{
public:
    int shown = 0;

    AlertAnswer runModal(const Alert &, QWidget *) override
    {
        ++shown;
        return {};
    }
};

/// Printers whose settings are changed by chance and kept. The base of tests of what comes back.
class PresetRounds : public QObject
{
    Q_OBJECT

protected:
    // Each printer has chances of its own, and the same ones in each run.
    static unsigned seedFor(const QString &ppd)
    {
        return qChecksum(QFileInfo(ppd).fileName().toUtf8());
    }

    QTemporaryDir m_folder;
    Agreeing m_presenter;
    std::mt19937 m_chance;
    QStringList m_ppds;

    qsizetype below(qsizetype end)
    {
        return std::uniform_int_distribution<qsizetype>(0, end - 1)(m_chance);
    }

    Desk open(const QString &ppd)
    {
        FetchedPrinter fetched;
        fetched.printer.name = QFileInfo(ppd).completeBaseName();
        fetched.ppd = ppdOfFile(ppd);
        QString error;
        Desk desk{openPrinter(fetched, builtBundleRoots(), m_presenter, &error), {}};
        if (!desk.printer)
            qFatal("%s: %s", qPrintable(ppd), qPrintable(error));
        desk.printer->panels->bringUp();
        return desk;
    }

    // A choice of chance, a custom value among them, as a user would pick it.
    void changeAnOption(Desk &desk)
    {
        PpdSession &session = *desk.printer->session;
        const QList<ppd_option_t *> options = session.options();
        const ppd_option_t *option =
            options.isEmpty() ? nullptr : options.at(below(options.size()));
        if (!option || option->num_choices == 0)
            return;
        const QString keyword = ppdKeyword(option->keyword);
        if (neverKept(session).contains(keyword))
            return;
        QString choice = ppdKeyword(option->choices[below(option->num_choices)].choice);
        if (choice == kCustomChoice) {
            if (keyword == kPageSizeOption)
                choice = u"Custom.300x%1"_s.arg(400 + below(100));
            else
                choice = u"Custom.%1"_s.arg(below(12));
            choice = checkCustomValue(session.ppd(), keyword, choice).value.value_or(QString());
        }
        if (!choice.isEmpty() && !desk.printer->panels->pick(keyword, choice))
            session.change(keyword, choice, kDialog);
        desk.printer->panels->deliverPending();
    }

    // As -o would set it.
    void changeAValueOfThePanels(Desk &desk)
    {
        if (!desk.printer->jobValues)
            return;
        static const QStringList names{u"QXRed"_s,
                                       u"QXGreen"_s,
                                       u"QXBlue"_s,
                                       u"QXBrightness"_s,
                                       u"QXContrast"_s,
                                       u"QXSaturation"_s,
                                       u"QXDensityAdjustment"_s};
        applyOptions({{names.at(below(names.size())), QString::number(below(5) - 2)}},
                     *desk.printer->session, desk.printer->jobValues, *desk.printer->panels);
    }

    void changeAnAttribute(Desk &desk)
    {
        static const QList<JobOption> values{
            {u"number-up"_s, u"4"_s},         {u"page-border"_s, u"single"_s},
            {u"outputorder"_s, u"reverse"_s}, {u"print-scaling"_s, u"fill"_s},
            {u"mirror"_s, u"true"_s},         {u"job-priority"_s, u"70"_s}};
        const JobOption &one = values.at(below(values.size()));
        desk.settings.setAttribute(one.name, one.value);
    }

    void changeSomething(Desk &desk)
    {
        for (int i = 0; i < 12; ++i) {
            changeAnOption(desk);
            if (i % 2 == 0)
                changeAValueOfThePanels(desk);
            if (i % 4 == 0)
                changeAnAttribute(desk);
        }
        desk.printer->panels->restoreAll();
        desk.printer->session->takeRefusals();
    }

    // Saved, and read again from its file.
    Preset kept(const Desk &desk, const PresetContent &defaults)
    {
        Preset preset{u"Chance"_s, desk.model(), false, desk.content(), {}};
        preset.changed = namesIn(changesIn(preset.content, defaults),
                                 panelEntries(*desk.printer->session, desk.printer->jobValues));
        const PresetStore store({m_folder.filePath(u"presets"_s)});
        const QString problem = store.save(preset, PresetStore::Replacing::Yes);
        if (!problem.isEmpty())
            qFatal("%s", qPrintable(problem));
        return store.list(desk.model()).find(preset.name)->preset;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QDir samples(sourceFile("resources/ppd"_L1));
        for (const QString &name : samples.entryList({u"*.ppd"_s}))
            m_ppds += samples.filePath(name);
        m_ppds += writeFile(m_folder.filePath(u"office.ppd"_s), officePrinter().text());
        m_ppds += writeFile(m_folder.filePath(u"small.ppd"_s), smallPrinter().text());
        if (!QFileInfo(kForeignDriver).isExecutable())
            return;
        const PpdCollection foreign(kForeignDriver);
        for (qsizetype i = 0; i < kForeignPpds; ++i) {
            const NamedPpd ppd = foreign.at(i * foreign.size() / kForeignPpds);
            m_ppds += writeFile(m_folder.filePath(u"foreign-%1.ppd"_s.arg(i)), ppd.content);
        }
    }
};

} // namespace corvana::test
