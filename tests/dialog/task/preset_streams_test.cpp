#include <QElapsedTimer>

#include "dialog/job/FileJob.h"
#include "dialog/task/PresetApplication.h"
#include "tests/dialog/task/PresetRounds.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// How many of the printers that nobody here made are printed to: each takes seconds.
constexpr int kStreams = 6;

} // namespace

/// What a printer gets with settings that were kept is what it got before.
class PresetStreamsTest : public PresetRounds
{
    Q_OBJECT

private:
    QByteArray streamOf(const Desk &desk, const QString &ppd, const JobTicket &ticket)
    {
        const QString path = m_folder.filePath(u"pages.pdf"_s);
        writeFile(path, numberedPdf("page", 3));
        const QString output = m_folder.filePath(u"out.data"_s);
        FileJob job({{Document{path, u"application/pdf"_s, u"pages.pdf"_s}}, ticket, ppd, output});
        job.start();
        const JobOutcome outcome = job.wait();
        QFile file(output);
        if (outcome.kind != JobOutcome::Kind::Printed || !file.open(QIODevice::ReadOnly))
            qFatal("%s: %s", qPrintable(desk.printer->fetched.printer.name),
                   qPrintable(outcome.text));
        return withoutDates(file.readAll());
    }
    // Whether filters that everybody has make what the printer gets.
    static bool canBePrintedHere(const QString &ppd)
    {
        QFile file(ppd);
        return file.open(QIODevice::ReadOnly) && !file.readAll().contains("hpps");
    }
    // What sets up the device, and secrets, are kept by neither.
    static JobTicket asKept(JobTicket ticket, const PresetContent &content)
    {
        ticket.options.removeIf([&](const JobOption &option) {
            return !isKept(option.name) && !content.options.contains(option.name);
        });
        return ticket;
    }

private Q_SLOTS:
    void theSameStreamComesOut()
    {
        const qsizetype foreign = m_ppds.size() - kForeignPpds;
        if (foreign <= 0 || !m_ppds.constLast().contains(u"foreign"_s))
            QSKIP("no PPDs of others here");
        int printed = 0;
        int others = 0;
        for (qsizetype i = foreign; i < m_ppds.size() && printed < kStreams; ++i) {
            const QString ppd = m_ppds.at(i);
            if (!canBePrintedHere(ppd))
                continue;
            m_chance.seed(seedFor(ppd));
            Desk first = open(ppd);
            const PresetContent defaults = first.content();
            const QByteArray usual = streamOf(first, ppd, asKept(first.ticket(), defaults));
            changeSomething(first);
            const Preset preset = kept(first, defaults);
            const QByteArray before = streamOf(first, ppd, asKept(first.ticket(), preset.content));
            Desk second = open(ppd);
            changeSomething(second);
            applyPreset(withChanges(defaults, preset.content),
                        {PresetUse::Others::Cleared, preset.changed}, {}, *second.printer,
                        second.settings);
            const QByteArray after = streamOf(second, ppd, asKept(second.ticket(), preset.content));
            QVERIFY2(after == before, qPrintable(second.model()));
            ++printed;
            others += before == usual ? 0 : 1;
        }
        qInfo("%d printers, %d streams that are others than the usual ones", printed, others);
        QCOMPARE(printed, kStreams);
        QVERIFY(others > printed / 2);
    }
};

QTEST_MAIN(PresetStreamsTest)
#include "preset_streams_test.moc"
