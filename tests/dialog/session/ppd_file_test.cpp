#include <sys/stat.h>

#include <QTemporaryDir>
#include <QTest>

#include "dialog/session/ChoiceCodes.h"
#include "dialog/session/JobTicket.h"
#include "dialog/session/PpdAhead.h"
#include "dialog/session/PpdFile.h"
#include "dialog/session/PpdSession.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

class PpdFileTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kPatience = 5000; // milliseconds

    QTemporaryDir m_folder;

    QString written(const QByteArray &text)
    {
        return writeFile(m_folder.filePath(u"test.ppd"_s), text);
    }

    PpdFile openedPpd(const QByteArray &text)
    {
        QString error;
        PpdFile ppd = openPpdFile(written(text), &error);
        if (!ppd)
            qWarning().noquote() << error;
        return ppd;
    }

private Q_SLOTS:
    void theDefaultsAreMarkedAtOnce()
    {
        QString error;
        const PpdFile ppd = openPpdFile(samplePpdPath(), &error);
        QVERIFY2(ppd, qPrintable(error));
        QVERIFY(error.isEmpty());
        QVERIFY(ppdIsMarked(ppd.get(), "PageSize", "A4"));
        QVERIFY(ppdIsMarked(ppd.get(), "QXMediaType", "Plain"));
        QVERIFY(ppdIsMarked(ppd.get(), "Duplex", "None"));
    }

    void copiesAreCollatedByDefault()
    {
        const PpdBuilder printer =
            PpdBuilder().option("Collate", "Collate", "False", {{"True", "On"}, {"False", "Off"}});
        const PpdFile ppd = openedPpd(printer.text());
        QVERIFY(ppdIsMarked(ppd.get(), "Collate", "True"));
        QCOMPARE(QByteArray(ppdFindOption(ppd.get(), "Collate")->defchoice), QByteArray("True"));
    }

    // Where it would collide with the defaults, or where the filters do not know it.
    void copiesAreCollatedByFiltersWhereThePrinterDoesNot_data()
    {
        QTest::addColumn<QByteArray>("byDefault");
        QTest::addColumn<bool>("isExcluded");
        QTest::newRow("off") << QByteArray("False") << true;
        QTest::newRow("on") << QByteArray("True") << true;
        QTest::newRow("other words") << QByteArray("Off") << false;
    }
    void copiesAreCollatedByFiltersWhereThePrinterDoesNot()
    {
        QFETCH(QByteArray, byDefault);
        QFETCH(bool, isExcluded);
        PpdBuilder printer =
            PpdBuilder()
                .option("Memory", "Memory", "Small", {{"Small", "64 MB"}, {"Large", "1 GB"}})
                .option("Collate", "Collate", byDefault,
                        isExcluded ? QList<PpdChoice>{{"True", "On"}, {"False", "Off"}}
                                   : QList<PpdChoice>{{"On", "On"}, {"Off", "Off"}});
        if (isExcluded)
            printer.constraint("Collate", "True", "Memory", "Small");
        const PpdFile ppd = openedPpd(printer.text());
        QVERIFY(!ppdOption(ppd.get(), u"Collate"_s));
        QVERIFY(!ppdMarkedChoice(ppd.get(), u"Collate"_s));
        QCOMPARE(ppdConflicts(ppd.get()), 0);
        QVERIFY(ppdOption(ppd.get(), u"Memory"_s));
        for (int i = 0; i < cupsArrayCount(ppd->marked); ++i) {
            const auto *choice = static_cast<const ppd_choice_t *>(cupsArrayIndex(ppd->marked, i));
            QVERIFY(QByteArray(choice->option->keyword) != "Collate");
        }
        const auto session = sessionFor(printer);
        for (const ppd_option_t *option : session->options())
            QVERIFY(QByteArray(option->keyword) != "Collate");
        QVERIFY(isCollated(*session, {}));
    }

    // It gets each page as often as it is to come out.
    void copiesAreCollatedByFiltersThatMakeThem()
    {
        const PpdBuilder printer =
            PpdBuilder()
                .option("Collate", "Collate", "False", {{"True", "On"}, {"False", "Off"}})
                .line("*cupsManualCopies: True");
        QVERIFY(!ppdOption(openedPpd(printer.text()).get(), u"Collate"_s));
    }

    void aPrinterCollatesItselfWithAllThatItNeeds()
    {
        PpdBuilder printer =
            PpdBuilder()
                .option("Memory", "Memory", "Large", {{"Small", "64 MB"}, {"Large", "1 GB"}})
                .option("Collate", "Collate", "False", {{"True", "On"}, {"False", "Off"}});
        printer.constraint("Collate", "True", "Memory", "Small");
        QVERIFY(ppdIsMarked(openedPpd(printer.text()).get(), "Collate", "True"));
    }

    // It would be called what the printer does anyway, and copies would come out page by page.
    void copiesAreNotCollatedWhereThePrinterWouldNotHearOfIt()
    {
        const QByteArray printer = PpdBuilder()
                                       .line("*OpenUI *Collate/Collate: PickOne")
                                       .line("*OrderDependency: -1 AnySetup *Collate")
                                       .line("*DefaultCollate: False")
                                       .line("*Collate True/On: \"true collate\"")
                                       .line("*Collate False/Off: \"false collate\"")
                                       .line("*CloseUI: *Collate")
                                       .text();
        const PpdFile ppd = openedPpd(printer);
        QVERIFY(ppdIsMarked(ppd.get(), "Collate", "False"));
        QVERIFY(!canBeSent(ppd.get(), u"Collate"_s, u"True"_s));
        const PpdFile sent = openedPpd(QByteArray(printer).replace("-1 AnySetup", "10 AnySetup"));
        QVERIFY(ppdIsMarked(sent.get(), "Collate", "True"));
    }

    void oneSidedIsNoDefaultWhereThePrinterWouldNotHearOfIt()
    {
        const QByteArray printer = PpdBuilder()
                                       .line("*OpenUI *Duplex/Two-Sided: PickOne")
                                       .line("*OrderDependency: -1 AnySetup *Duplex")
                                       .line("*DefaultDuplex: DuplexNoTumble")
                                       .line("*Duplex None/Off: \"simplex\"")
                                       .line("*Duplex DuplexNoTumble/Long: \"duplex\"")
                                       .line("*CloseUI: *Duplex")
                                       .text();
        const PpdFile ppd = openedPpd(printer);
        QVERIFY(!canBeSent(ppd.get(), u"Duplex"_s, u"None"_s));
        const PpdFile sent = openedPpd(QByteArray(printer).replace("-1 AnySetup", "10 AnySetup"));
        QVERIFY(canBeSent(sent.get(), u"Duplex"_s, u"None"_s));
    }

    void aMissingFileIsNamed()
    {
        QString error;
        QVERIFY(!openPpdFile(u"/nowhere/printer.ppd"_s, &error));
        QVERIFY2(error.startsWith(u"/nowhere/printer.ppd: "_s), qPrintable(error));
        QVERIFY2(error.contains(u"No such file"_s), qPrintable(error));
    }

    void aFolderIsNoPpd()
    {
        QString error;
        QVERIFY(!openPpdFile(m_folder.path(), &error));
        QVERIFY2(error.startsWith(m_folder.path() + u": "_s), qPrintable(error));
        QVERIFY2(error.contains(u"directory"_s), qPrintable(error));
    }

    // Reading would wait for whoever writes, or never end.
    void whatIsNoFileIsNotOpened()
    {
        const QString pipe = m_folder.filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), S_IRUSR | S_IWUSR), 0);
        const QString paths[] = {pipe, u"/dev/zero"_s};
        for (const QString &path : paths) {
            QString error;
            QVERIFY(!openPpdFile(path, &error));
            QCOMPARE(error, path + u": It is no ordinary file."_s);
        }
    }

    void aFaultIsNamedWithFileAndLine_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("what");

        QTest::newRow("not a PPD at all")
            << QByteArray("Dear printer,\nplease print.\n") << 1 << u"asterisk"_s;
        QTest::newRow("an option that is closed without being opened")
            << QByteArray("*PPD-Adobe: \"4.3\"\n*CloseGroup: Never\n*OpenGroup: A\n*OpenGroup: B\n")
            << 4 << u"OpenGroup"_s;
        QTest::newRow("a quoted value that never ends")
            << QByteArray("*PPD-Adobe: \"4.3\"\n*NickName: \"never\nends\n") << -1 << QString();
        QTest::newRow("an empty file") << QByteArray() << 0 << u"PPD"_s;
    }
    void aFaultIsNamedWithFileAndLine()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QFETCH(QString, what);
        const QString path = written(text);
        QString error;
        const PpdFile ppd = openPpdFile(path, &error);
        if (line < 0) { // libcups reads it as far as it goes
            QVERIFY(ppd);
            return;
        }
        QVERIFY(!ppd);
        const QString place = line > 0 ? u"%1:%2: "_s.arg(path).arg(line) : u"%1: "_s.arg(path);
        QVERIFY2(error.startsWith(place), qPrintable(error));
        QVERIFY2(error.contains(what), qPrintable(error));
    }

    void aQueueThatPrintsTwoSidedKeepsOneSidedAsTheDefault()
    {
        QByteArray text = smallPrinter().text();
        text.replace("*DefaultDuplex: None", "*DefaultDuplex: DuplexNoTumble");
        const PpdFile ppd = openedPpd(text);
        QVERIFY(ppd);
        QCOMPARE(QByteArray(ppdOption(ppd.get(), u"Duplex"_s)->defchoice), QByteArray("None"));
        QVERIFY(ppdIsMarked(ppd.get(), "Duplex", "DuplexNoTumble"));
        QVERIFY(!ppdIsMarked(ppd.get(), "Duplex", "None"));
    }

    void twoSidedStaysTheDefaultWhereThereIsNoOneSidedChoice()
    {
        const PpdFile ppd =
            openedPpd(PpdBuilder()
                          .option("Duplex", "Two-Sided", "DuplexTumble",
                                  {{"DuplexNoTumble", "Long Edge"}, {"DuplexTumble", "Short Edge"}})
                          .text());
        QVERIFY(ppd);
        QCOMPARE(QByteArray(ppdOption(ppd.get(), u"Duplex"_s)->defchoice),
                 QByteArray("DuplexTumble"));
        QVERIFY(ppdIsMarked(ppd.get(), "Duplex", "DuplexTumble"));
    }

    void aPrinterWithoutTwoSidedPrintingOpens()
    {
        const PpdFile ppd = openedPpd(PpdBuilder().text());
        QVERIFY(ppd);
        QVERIFY(!ppdOption(ppd.get(), u"Duplex"_s));
    }

    void aFileNameMayHaveAnyCharacters()
    {
        const QString path =
            writeFile(m_folder.filePath(u"プリンタ %1 a.ppd"_s), PpdBuilder().text());
        QString error;
        QVERIFY2(openPpdFile(path, &error), qPrintable(error));
    }

    // The file is gone by the time at which it is needed.
    void aPpdIsOpenedAhead()
    {
        const QByteArray text = PpdBuilder().text();
        PpdAhead ahead;
        PpdFile ppd;
        QString error;
        for (int patience = 50; !ppd && patience < kPatience; patience *= 2) {
            const QString path = written(text);
            ahead.begin(path);
            QTest::qSleep(patience);
            QFile::remove(path);
            ppd = ahead.open(path, &error);
        }
        QVERIFY2(ppd, qPrintable(error));
        QCOMPARE(QByteArray(ppd->nickname), QByteArray(openedPpd(text)->nickname));
        QVERIFY(ppdIsMarked(ppd.get(), "PageSize", "A4"));
        // It was there once.
        ppd = ahead.open(written(text), &error);
        QVERIFY(ppd);
        QFile::remove(m_folder.filePath(u"test.ppd"_s));
        QVERIFY(!ahead.open(m_folder.filePath(u"test.ppd"_s), &error));
    }

    void whatIsWrongIsSaidAsOfAnyOther()
    {
        const QString path = written("*PPD-Adobe: \"4.3\"\nno line of a PPD\n");
        QString expected;
        QVERIFY(!openPpdFile(path, &expected));
        QVERIFY(!expected.isEmpty());
        PpdAhead ahead;
        ahead.begin(path);
        QString error;
        QVERIFY(!ahead.open(path, &error));
        QCOMPARE(error, expected);
    }

    void anotherPpdThanTheOneAheadIsOpened()
    {
        const QString first = written(PpdBuilder().text());
        const QString other = writeFile(
            m_folder.filePath(u"other.ppd"_s),
            PpdBuilder()
                .option("Duplex", "Two-Sided", "None", {{"None", "Off"}, {"DuplexTumble", "On"}})
                .text());
        PpdAhead ahead;
        ahead.begin(first);
        QString error;
        const PpdFile ppd = ahead.open(other, &error);
        QVERIFY2(ppd, qPrintable(error));
        QVERIFY(ppdOption(ppd.get(), u"Duplex"_s));
        const PpdFile former = ahead.open(first, &error);
        QVERIFY2(former, qPrintable(error));
        QVERIFY(!ppdOption(former.get(), u"Duplex"_s));
    }
};

QTEST_GUILESS_MAIN(PpdFileTest)

#include "ppd_file_test.moc"
