#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/printers/SamplePrinters.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

class SamplePrintersTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString write(const QString &name, const QByteArray &content)
    {
        return writeFile(m_folder->filePath(name), content);
    }
    QStringList names() const
    {
        QStringList found;
        for (const Printer &printer : samplePrinters(m_folder->path()))
            found += printer.name;
        return found;
    }

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder.reset(); }

    void theFileNameIsThePrintersName()
    {
        const QString path = write(u"my.first-printer.ppd"_s, PpdBuilder().modelNumber(3).text());
        const QList<Printer> printers = samplePrinters(m_folder->path());
        QCOMPARE(printers.size(), 1);
        QCOMPARE(printers.at(0).name, u"my.first-printer"_s);
        QCOMPARE(printers.at(0).description, u"Corvana Test, PostScript"_s);
        QCOMPARE(printers.at(0).ppdPath, path);
        QCOMPARE(printers.at(0).modelNumber, 3);
    }

    void theNewestModelComesFirstAndEqualOnesByName()
    {
        write(u"b.ppd"_s, PpdBuilder().modelNumber(2).text());
        write(u"d.ppd"_s, PpdBuilder().modelNumber(5).text());
        write(u"c.ppd"_s, PpdBuilder().modelNumber(5).text());
        write(u"a.ppd"_s, PpdBuilder().modelNumber(2).text());
        QCOMPARE(names(), QStringList({u"c"_s, u"d"_s, u"a"_s, u"b"_s}));
    }

    void aFileThatIsNoPpdIsLeftOutAndLogged()
    {
        write(u"good.ppd"_s, PpdBuilder().text());
        const QString bad = write(u"bad.ppd"_s, "Dear printer,\n");
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QRegularExpression::escape(bad) + u":1: "_s));
        QCOMPARE(names(), QStringList{u"good"_s});
    }

    // Looking through whole PPDs would take longer than everything else before the window.
    void theFirstLinesOfASampleSayEverything_data()
    {
        QTest::addColumn<QByteArray>("head");
        const QByteArray begin = "*PPD-Adobe: \"4.3\"\n";
        const QByteArray name = "*NickName: \"Head Only\"\n";
        const QByteArray number = "*cupsModelNumber: 7\n";
        QTest::newRow("the number last") << begin + name + number;
        QTest::newRow("the name last") << begin + number + name;
        QTest::newRow("lines between and behind")
            << begin + "*% A comment\n" + name + "*Product: \"(Head)\"\n" + number + "*%\n";
    }
    void theFirstLinesOfASampleSayEverything()
    {
        QFETCH(QByteArray, head);
        // Whoever opens this says that it is no PPD.
        write(u"head.ppd"_s, head + "*OpenUI which is broken");
        const QList<Printer> printers = samplePrinters(m_folder->path());
        QCOMPARE(printers.size(), 1);
        QCOMPARE(printers.at(0).description, u"Head Only"_s);
        QCOMPARE(printers.at(0).modelNumber, 7);
    }

    void aSampleThatEndsInItsFirstLinesIsReadToItsEnd()
    {
        write(u"short.ppd"_s, PpdBuilder().modelNumber(3).text().trimmed());
        write(u"last.ppd"_s, "*PPD-Adobe: \"4.3\"\n*NickName: \"Last\"\n*cupsModelNumber: 12");
        const QList<Printer> printers = samplePrinters(m_folder->path());
        QCOMPARE(names(), QStringList({u"last"_s, u"short"_s}));
        QCOMPARE(printers.value(0).modelNumber, 12);
    }

    void otherFilesAreNotLookedAt()
    {
        write(u"good.ppd"_s, PpdBuilder().text());
        write(u"readme.txt"_s, "not a printer");
        QVERIFY(QDir(m_folder->path()).mkdir(u"folder.ppd"_s));
        QVERIFY(QFile::link(u"/nowhere/at/all"_s, m_folder->filePath(u"broken.ppd"_s)));
        QCOMPARE(names(), QStringList{u"good"_s});
    }

    void aLinkHasAPrinterNameOfItsOwn()
    {
        const QString path = write(u"good.ppd"_s, PpdBuilder().text());
        QVERIFY(QFile::link(path, m_folder->filePath(u"office.ppd"_s)));
        QCOMPARE(names(), QStringList({u"good"_s, u"office"_s}));
    }

    void aMissingOrEmptyFolderHasNoPrinters()
    {
        QVERIFY(names().isEmpty());
        QVERIFY(samplePrinters(u"/nowhere/at/all"_s).isEmpty());
    }

    void aNameThatCannotBeReadIsReplacedByTheFilesName()
    {
        QByteArray text = PpdBuilder().text();
        text.replace("Corvana Test, PostScript", "Drucker \xfc");
        write(u"drucker.ppd"_s, text);
        QCOMPARE(samplePrinters(m_folder->path()).at(0).description, u"drucker"_s);
    }

    void aPpdThatCannotBeReadIsNamedAndHasItsErrorBeside()
    {
        QString error;
        const Printer printer = printerOfPpd(u"/nowhere/office.ppd"_s, &error);
        QCOMPARE(printer.name, u"office"_s);
        QCOMPARE(printer.description, u"office"_s);
        QVERIFY2(error.startsWith(u"/nowhere/office.ppd: "_s), qPrintable(error));
    }
};

QTEST_GUILESS_MAIN(SamplePrintersTest)

#include "sample_printers_test.moc"
