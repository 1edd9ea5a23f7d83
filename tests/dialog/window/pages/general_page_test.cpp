#include <QComboBox>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include "dialog/session/PpdSession.h"
#include "dialog/window/pages/GeneralPage.h"
#include "tests/dialog/support/FakePlugIn.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QStringList titles(const QComboBox *popUp)
{
    QStringList titles;
    for (int i = 0; i < popUp->count(); ++i)
        titles += popUp->itemText(i);
    return titles;
}

} // namespace

/// What every printer is set with.
class GeneralPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyChoiceIsOffered_data()
    {
        QTest::addColumn<QList<PpdChoice>>("choices");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("different")
            << QList<PpdChoice>{{"A", "One"}, {"B", "Two"}} << QStringList{u"One"_s, u"Two"_s};
        QTest::newRow("of one text")
            << QList<PpdChoice>{{"A", "Same"}, {"B", "Same"}, {"C", "Other"}}
            << QStringList{u"Same (A)"_s, u"Same (B)"_s, u"Other"_s};
        QTest::newRow("not UTF-8")
            << QList<PpdChoice>{{"A", "One"}, {"B", "Fal\xff"}} << QStringList{u"One"_s, u"B"_s};
        QTest::newRow("called like another one's keyword")
            << QList<PpdChoice>{{"A", "B"}, {"B", "\xff"}} << QStringList{u"B (A)"_s, u"B (B)"_s};
    }
    void everyChoiceIsOffered()
    {
        QFETCH(QList<PpdChoice>, choices);
        QFETCH(QStringList, shown);
        const auto session = sessionFor(PpdBuilder().option("QXOutput", "Output To", "A", choices));
        GeneralPage page(*session);
        auto *output = page.findChild<QComboBox *>(u"QXOutput"_s);
        QCOMPARE(titles(output), shown);
        QCOMPARE(output->currentText(), shown.constFirst());
        QSignalSpy proposed(&page, &GeneralPage::proposed);
        QVERIFY(pick(output, shown.at(1)));
        QCOMPARE(proposed.size(), 1);
        QCOMPARE(proposed.at(0).at(1).toString(), u"B"_s);
        session->change(u"QXOutput"_s, u"B"_s, PpdSession::Origin::Dialog);
        page.refresh();
        QCOMPARE(output->currentIndex(), 1);
        QCOMPARE(proposed.size(), 1);
    }

    void noChoiceTakesAnothersPlace()
    {
        const auto session = sessionFor(PpdBuilder().option(
            "QXOutput", "Output To", "A", {{"A", "Same (B)"}, {"B", "Same"}, {"C", "Same"}}));
        const GeneralPage page(*session);
        QCOMPARE(page.findChild<QComboBox *>(u"QXOutput"_s)->count(), 3);
    }

    void nothingIsChosenWhereNothingIsMarked()
    {
        const auto session = sessionFor(
            PpdBuilder().option("QXOutput", "Output To", "Unknown", {{"A", "One"}, {"B", "Two"}}));
        const GeneralPage page(*session);
        QCOMPARE(page.findChild<QComboBox *>(u"QXOutput"_s)->currentIndex(), -1);
    }

    void anOptionForColorThatLeavesNoChoiceIsNotOffered()
    {
        FakeJobValues values;
        const auto session =
            sessionFor(PpdBuilder()
                           .option("Ink", "Ink", "Gray", {{"Gray", "Gray"}})
                           .option("Tone", "Tone", "Gray", {{"Gray", "Gray"}, {"All", "Color"}}));
        QCOMPARE(GeneralPage(*session, &values).findChild<QComboBox *>(u"Tone"_s), nullptr);
        values.color = u"Ink"_s;
        QCOMPARE(GeneralPage(*session, &values).findChild<QComboBox *>(u"Ink"_s), nullptr);
        values.color = u"Tone"_s;
        QVERIFY(GeneralPage(*session, &values).findChild<QComboBox *>(u"Tone"_s));
    }

    void noMoreCopiesAreOfferedThanThePrinterMakes_data()
    {
        QTest::addColumn<int>("most");
        QTest::addColumn<int>("wanted");
        QTest::addColumn<int>("copies");
        QTest::newRow("fewer") << 10 << 3 << 3;
        QTest::newRow("as many") << 10 << 10 << 10;
        QTest::newRow("more") << 10 << 11 << 10;
        QTest::newRow("one at a time") << 1 << 2 << 1;
        QTest::newRow("nobody knows") << 0 << 9999 << 9999;
        QTest::newRow("more than the dialog takes") << 2000000000 << 10000 << 9999;
    }
    void noMoreCopiesAreOfferedThanThePrinterMakes()
    {
        QFETCH(int, most);
        QFETCH(int, wanted);
        QFETCH(int, copies);
        const auto session = sessionFor(smallPrinter());
        GeneralPage page(*session);
        page.setMostCopies(most);
        page.setCopies(wanted);
        QCOMPARE(page.copies(), copies);
    }

    // What is refused is no number of copies, and none that arrows lead to.
    void moreCopiesThanThePrinterMakesAreRefused()
    {
        const auto session = sessionFor(smallPrinter());
        GeneralPage page(*session);
        page.setMostCopies(20);
        page.setCopies(2);
        QSignalSpy edited(&page, &GeneralPage::copiesEdited);
        auto *field = page.findChild<QSpinBox *>(u"copies"_s);
        field->selectAll();
        QTest::keyClicks(field, u"150"_s);
        QCOMPARE(field->text(), u"150"_s);
        QCOMPARE(page.copies(), 15); // the last number that could be printed
        QCOMPARE(edited.constLast().at(0).toInt(), 15);
        QVERIFY(!page.finishEditing());
        QCOMPARE(page.findChild<QLabel *>(u"copiesNote"_s)->text(),
                 u"“150” is not allowed. Allowed: 1 to 20."_s);
        page.setCopies(15); // what counts already
        QCOMPARE(field->text(), u"150"_s);
        page.setMostCopies(200);
        QVERIFY(page.finishEditing());
        QCOMPARE(page.copies(), 150);
        page.setMostCopies(20);
        QCOMPARE(field->value(), 20);
        field->stepBy(1);
        QCOMPARE(field->value(), 20);
        field->selectAll();
        QTest::keyClicks(field, u"0"_s);
        QVERIFY(!page.finishEditing());
        page.setCopies(3); // another number: from a preset, or undone
        QCOMPARE(field->value(), 3);
        QVERIFY(page.finishEditing());
        field->stepBy(-5);
        QCOMPARE(field->value(), 1);
    }
};

QTEST_MAIN(GeneralPageTest)
#include "general_page_test.moc"
