#include <QTest>

#include "dialog/printers/PrinterId.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// What makes two values the same printer.
class PrinterIdTest : public QObject
{
    Q_OBJECT

    static Printer printer(PrinterOrigin origin, const QString &name)
    {
        Printer printer;
        printer.origin = origin;
        printer.name = name;
        printer.ppdPath = u"/ppd"_s;
        printer.uri = u"ipp://host/printers/x"_s;
        return printer;
    }

private Q_SLOTS:
    void queuesAreWhatTheirServerCallsThem_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");
        QTest::addColumn<bool>("same");
        QTest::newRow("equal") << u"office"_s << u"office"_s << true;
        QTest::newRow("case") << u"Office"_s << u"oFFICE"_s << true;
        QTest::newRow("ends of the alphabet") << u"AZ"_s << u"az"_s << true;
        QTest::newRow("beside the alphabet") << u"@["_s << u"`{"_s << false;
        QTest::newRow("case of other letters") << u"Ü"_s << u"ü"_s << false;
        QTest::newRow("beginning") << u"off"_s << u"office"_s << false;
        QTest::newRow("nothing") << QString() << u""_s << true;
        QTest::newRow("instance") << u"office/Draft"_s << u"Office/draft"_s << true;
        QTest::newRow("another instance") << u"office/draft"_s << u"office/fine"_s << false;
        QTest::newRow("queue and instance") << u"office"_s << u"office/draft"_s << false;
    }
    void queuesAreWhatTheirServerCallsThem()
    {
        QFETCH(QString, one);
        QFETCH(QString, other);
        QFETCH(bool, same);
        QCOMPARE(isSameQueue(one, other), same);
        QCOMPARE(foldedQueueName(one) == foldedQueueName(other), same);
        const Printer first = printer(PrinterOrigin::Queue, one);
        const Printer second = printer(PrinterOrigin::Queue, other);
        QCOMPARE(isCalled(first, other), same);
        QCOMPARE(idOf(first) == idOf(second), same);
        if (same)
            QCOMPARE(qHash(idOf(first)), qHash(idOf(second)));
    }

    void whatElseTellsPrintersApart_data()
    {
        QTest::addColumn<Printer>("one");
        QTest::addColumn<Printer>("other");
        QTest::addColumn<bool>("same");
        const auto row = [](const char *name, PrinterOrigin origin, bool same, auto change) {
            const Printer one = printer(origin, u"q"_s);
            Printer other = one;
            change(other);
            QTest::newRow(name) << one << other << same;
        };
        using Origin = PrinterOrigin;
        row("URI of a queue", Origin::Queue, true,
            [](Printer &p) { p.uri = u"ipp://host/classes/x"_s; });
        row("PPD of a queue", Origin::Queue, true, [](Printer &p) { p.ppdPath = u"/other"_s; });
        row("URI of a device", Origin::Device, false, [](Printer &p) { p.uri = u"ipp://x/y"_s; });
        row("name of a device", Origin::Device, true, [](Printer &p) { p.name = u"r"_s; });
        row("path of a PPD file", Origin::File, false, [](Printer &p) { p.ppdPath = u"/other"_s; });
        row("name of a PPD file", Origin::File, false, [](Printer &p) { p.name = u"Q"_s; });
        row("origin", Origin::Queue, false, [](Printer &p) { p.origin = Origin::File; });
        row("state", Origin::Queue, true, [](Printer &p) { p.state = PrinterState::Stopped; });
    }
    void whatElseTellsPrintersApart()
    {
        QFETCH(Printer, one);
        QFETCH(Printer, other);
        QFETCH(bool, same);
        QCOMPARE(idOf(one) == idOf(other), same);
    }

    void aFileIsCalledByItsNameAsItIs()
    {
        QVERIFY(isCalled(printer(PrinterOrigin::File, u"cl5"_s), u"cl5"_s));
        QVERIFY(!isCalled(printer(PrinterOrigin::File, u"cl5"_s), u"CL5"_s));
    }
};

QTEST_GUILESS_MAIN(PrinterIdTest)
#include "printer_id_test.moc"
