#include <QClipboard>
#include <QTest>
#include <QToolTip>

#include "tests/printsetting/SleepTimeFixture.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The field of the minutes: what can be typed, pasted and deleted, and what it says of that.
class SleepTimeFieldTest : public SleepTimeFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openInManualMode(); }
    void cleanup() { closeAll(); }

    void onlyDigitsInsideTheRangeStay_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("edited");
        QTest::addColumn<QString>("result");
        QTest::newRow("a digit") << u"5"_s << u"7"_s << u"7"_s;
        QTest::newRow("letters between digits") << u"5"_s << u"a1b2"_s << u"12"_s;
        QTest::newRow("full-width digits") << u"5"_s << u"\uff13\uff10"_s << u"30"_s;
        QTest::newRow("every full-width digit, low") << u"5"_s << u"\uff11\uff12"_s << u"12"_s;
        QTest::newRow("every full-width digit, high") << u"5"_s << u"\uff18\uff19"_s << u"89"_s;
        QTest::newRow("beside the full-width digits") << u"5"_s << u"\uff0f7\uff1a"_s << u"7"_s;
        QTest::newRow("beside the digits") << u"5"_s << u"/7:"_s << u"7"_s;
        QTest::newRow("digits of another script") << u"5"_s << u"٣"_s << u"5"_s;
        QTest::newRow("a sign") << u"5"_s << u"-7"_s << u"7"_s;
        QTest::newRow("blanks") << u"5"_s << u" 7 "_s << u"7"_s;
        QTest::newRow("zeros in front") << u"5"_s << u"007"_s << u"7"_s;
        QTest::newRow("the lowest") << u"5"_s << u"1"_s << u"1"_s;
        QTest::newRow("the highest") << u"5"_s << u"99"_s << u"99"_s;
        QTest::newRow("nothing") << u"5"_s << QString() << u"5"_s;
        QTest::newRow("no digit") << u"5"_s << u"abc"_s << u"5"_s;
        QTest::newRow("zero") << u"5"_s << u"0"_s << u"5"_s;
        QTest::newRow("three digits") << u"15"_s << u"150"_s << u"15"_s;
        QTest::newRow("beyond all numbers") << u"5"_s << u"999999999999"_s << u"5"_s;
        QTest::newRow("a pair of units") << u"5"_s << u"\U0001d7da3"_s << u"3"_s;
    }
    void onlyDigitsInsideTheRangeStay()
    {
        QFETCH(QString, stored);
        QFETCH(QString, edited);
        QFETCH(QString, result);
        edit(stored);
        QCOMPARE(m_panel->stored(minutesEntry()), stored);
        edit(edited);
        QCOMPARE(m_panel->sleepTimeField->text(), result);
        QCOMPARE(m_panel->outputBin().value(minutesEntry()), QVariant(result));
        QCOMPARE(m_panel->sleepTimeStepper->value(), result.toInt());
        QVERIFY2(m_host->calls().isEmpty(), "the host is not asked about minutes");
    }

    void aRefusedNumberLeavesTheCaretBehindTheFormerOne()
    {
        m_panel->kSleepTimeMin = 5;
        m_panel->kSleepTimeMax = 240;
        edit(u"60"_s);
        m_panel->sleepTimeField->selectAll();
        enter(m_panel->sleepTimeField, u"4"_s);
        QCOMPARE(m_panel->sleepTimeField->text(), u"60"_s);
        QVERIFY(!m_panel->sleepTimeField->hasSelectedText());
        QCOMPARE(m_panel->sleepTimeField->cursorPosition(), 2);
        enter(m_panel->sleepTimeField, u"5"_s);
        QCOMPARE(m_panel->stored(minutesEntry()),
                 u"60"_s); // no number of the halves: 605 is too much
    }

    void theFieldSaysWhatItTakes_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"en", "ja", "zh_CN"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }
    void theFieldSaysWhatItTakes()
    {
        QFETCH(QString, language);
        const UserLanguage user(language);
        m_bundle.reset(); // it keeps the texts of its first language
        m_bundle.emplace(TestBundle::built());
        openPanel(printerWithLongSleepTimes());
        showPanel();
        const QString said = m_panel->sleepTimeField->toolTip();
        QVERIFY2(said.endsWith(u": 5 – 240"_s), qUtf8Printable(said));
        QVERIFY(!said.startsWith(u"AllowedNumbers"_s));
        QCOMPARE(m_panel->sleepTimeField->accessibleDescription(), said);
    }

    void aRefusedNumberIsExplainedAtOnce()
    {
        QWidget window;
        m_panel->panelView()->setParent(&window);
        for (QWidget *part = m_panel->sleepTimeField; part != &window; part = part->parentWidget())
            part->show();
        window.show();
        QVERIFY(m_panel->sleepTimeField->isVisible());
        edit(u"7"_s);
        QVERIFY(!QToolTip::isVisible());
        edit(u"200"_s);
        QCOMPARE(m_panel->sleepTimeField->text(), u"7"_s);
        QVERIFY(QToolTip::isVisible());
        QCOMPARE(QToolTip::text(), m_panel->sleepTimeField->toolTip());
        QToolTip::hideText();
        m_panel->panelView()->setParent(nullptr);
    }

    void aPastedTextGivesTheNumberInIt_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("result");
        QTest::newRow("a sentence") << u"wait about 45 minutes"_s << u"45"_s;
        QTest::newRow("a number far behind")
            << u"this is how long it has always been here: 17"_s << u"17"_s;
        QTest::newRow("two numbers") << u"either 4 or, better, 2"_s << u"42"_s;
        QTest::newRow("a number that is too long") << u"123456789012345678901234"_s << u"60"_s;
    }
    void aPastedTextGivesTheNumberInIt()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, result);
        edit(u"60"_s);
        QGuiApplication::clipboard()->setText(pasted);
        m_panel->sleepTimeField->selectAll();
        m_panel->sleepTimeField->paste();
        QCOMPARE(m_panel->sleepTimeField->text(), result);
        QCOMPARE(m_panel->stored(minutesEntry()), result);
    }

    void deletingTheOnlyDigitBringsItBackAtOnce()
    {
        edit(u"5"_s);
        QTest::keyClick(m_panel->sleepTimeField, Qt::Key_Backspace);
        QCOMPARE(m_panel->sleepTimeField->text(), u"5"_s);
        QCOMPARE(m_panel->stored(minutesEntry()), u"5"_s);
    }

    void theCursorStaysWhereTheUserTypes_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("result");
        QTest::addColumn<int>("after");
        QTest::newRow("a digit at the end") << u"1"_s << 1 << u"2"_s << u"12"_s << 2;
        QTest::newRow("a digit in front") << u"1"_s << 0 << u"2"_s << u"21"_s << 1;
        QTest::newRow("a letter in the middle") << u"34"_s << 1 << u"x"_s << u"34"_s << 1;
        QTest::newRow("a letter in front") << u"34"_s << 0 << u"x"_s << u"34"_s << 0;
        QTest::newRow("a third digit in front") << u"50"_s << 0 << u"1"_s << u"50"_s << 2;
        QTest::newRow("a third digit at the end") << u"50"_s << 2 << u"1"_s << u"50"_s << 2;
        QTest::newRow("a zero in front") << u"5"_s << 0 << u"0"_s << u"5"_s << 0;
        QTest::newRow("a full-width digit") << u"5"_s << 0 << u"\uff11"_s << u"15"_s << 1;
    }
    void theCursorStaysWhereTheUserTypes()
    {
        QFETCH(QString, stored);
        QFETCH(int, cursor);
        QFETCH(QString, typed);
        QFETCH(QString, result);
        QFETCH(int, after);
        edit(stored);
        m_panel->sleepTimeField->setCursorPosition(cursor);
        enter(m_panel->sleepTimeField, typed);
        QCOMPARE(m_panel->sleepTimeField->text(), result);
        QCOMPARE(m_panel->sleepTimeField->cursorPosition(), after);
    }

    void whatIsTypedReachesTheJobWithTheNextSave()
    {
        edit(u"42"_s);
        QVERIFY(m_panel->entry(kSleepEntry) != QVariant(u"42"_s));
        m_panel->saveValuesAndReturnError(nullptr);
        QCOMPARE(m_panel->entry(kSleepEntry), QVariant(u"42"_s));
        QCOMPARE(m_panel->entry(kSleepModeEntry), QVariant(u"Custom"_s));
    }

    void aStoredValueThatIsNoTextIsShownAsNothing()
    {
        m_panel->m_outputBin.insert(minutesEntry(), QVariantList{1, 2});
        edit(u"200"_s);
        QCOMPARE(m_panel->sleepTimeField->text(), QString());
        QCOMPARE(m_panel->sleepTimeStepper->value(), 1); // the lowest that it can be
    }

    void theFieldIsLeftWithANumberInsideTheRangeOnly_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("left");
        QTest::newRow("inside") << u"5"_s << true;
        QTest::newRow("the lowest") << u"1"_s << true;
        QTest::newRow("the highest") << u"99"_s << true;
        QTest::newRow("zero") << u"0"_s << false;
        QTest::newRow("above") << u"100"_s << false;
        QTest::newRow("no digit") << u"soon"_s << false;
        QTest::newRow("empty") << u""_s << false;
        QTest::newRow("nothing") << QString() << false;
    }
    void theFieldIsLeftWithANumberInsideTheRangeOnly()
    {
        QFETCH(QString, text);
        QFETCH(bool, left);
        QCOMPARE(m_panel->control_textShouldEndEditing(m_panel->sleepTimeField, text), left);
    }
};

QTEST_MAIN(SleepTimeFieldTest)
#include "sleep_time_field_test.moc"
