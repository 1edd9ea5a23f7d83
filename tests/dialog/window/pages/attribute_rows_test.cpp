#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>

#include "dialog/session/JobAttributes.h"
#include "dialog/session/PpdSession.h"
#include "dialog/window/pages/GeneralPage.h"
#include "tests/dialog/window/pages/AttributeRowsScene.h"
#include "tests/support/Gestures.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Place = OfferedAttribute::Place;

namespace {

struct ShownCase
{
    const char *name;
    OfferedAttribute attribute;
    QString text; // that its control shows
};

const QList<ShownCase> kShown{
    {"a word by its text", front(u"print-scaling"_s, u"none"_s), u"Actual Size"_s},
    {"nothing, where a word says so", front(u"print-color-mode"_s), u"Automatic"_s},
    {"the usual word", front(u"print-scaling"_s), u"Automatic"_s},
    {"no word", front(u"orientation-requested"_s), u"Automatic"_s},
    {"a word where there may be none", front(u"orientation-requested"_s, u"4"_s), u"Landscape"_s},
    {"a word that nobody knows", front(u"print-scaling"_s, u"odd"_s), u"odd"_s},
    {"a number", front(u"ppi"_s, u"300"_s), u"300"_s},
    {"no number", front(u"ppi"_s), u"Automatic"_s},
    {"the usual number", front(u"job-priority"_s), u"50"_s},
    {"a broken number", front(u"cpi"_s, u"16.5"_s), u"16.5"_s},
    {"a large number", front(u"page-left"_s, u"9999"_s), u"9999"_s},
    {"a number out of its range", front(u"job-priority"_s, u"300"_s), u"300"_s},
    {"a text", front(u"job-billing"_s, u"<b>Accounts</b>"_s), u"<b>Accounts</b>"_s},
    {"the usual text", front(u"job-sheets"_s), u"none"_s},
    {"a word of several forms", front(u"job-hold-until"_s, u"evening"_s), u"Evening"_s},
    {"a number with a word", front(u"finishings"_s, u"3"_s), u"None"_s},
    {"a rarer number with a word", front(u"finishings"_s, u"20"_s), u"Staple (Top Left)"_s},
    {"several numbers with a word each", front(u"finishings"_s, u"4,5"_s), u"Staple, Punch"_s},
    {"another form than words", front(u"job-hold-until"_s, u"12:30"_s), u"12:30"_s},
};

struct ChosenCase
{
    const char *name;
    QString attribute;
    QString typed;
    QString proposed;
};

struct UntouchedCase
{
    const char *name;
    QString attribute;
    QString value;
};

const QList<UntouchedCase> kUntouched{
    {"nothing, which a word stands for", u"print-color-mode"_s, {}},
    {"more digits than are shown", u"cpi"_s, u"16.66667"_s},
    {"a number with a zero before it", u"job-priority"_s, u"070"_s},
    {"blanks around a text", u"job-billing"_s, u" Accounts "_s},
    {"a number that has a word", u"finishings"_s, u"20"_s},
    {"a number that has none", u"finishings"_s, u"9999"_s},
    {"blanks around a time", u"job-hold-until"_s, u" 12:30"_s},
    {"a word that nobody knows", u"print-scaling"_s, u"odd"_s},
};

const QList<ChosenCase> kTyped{
    {"a number", u"ppi"_s, u"600"_s, u"600"_s},
    {"a number below the range", u"job-priority"_s, u"0"_s, u"0"_s},
    {"a number above the range", u"job-priority"_s, u"101"_s, u"101"_s},
    {"a broken number", u"cpi"_s, u"16.5"_s, u"16.5"_s},
    {"a text", u"job-sheets"_s, u"standard"_s, u"standard"_s},
    {"blanks around a text", u"job-sheets"_s, u" standard "_s, u"standard"_s},
    {"what is not of the form", u"job-sheets"_s, u"a,b,c"_s, u"a,b,c"_s},
};

} // namespace

/// The rows of the job's attributes on the General page.
class AttributeRowsTest : public AttributeRowsScene
{
    Q_OBJECT

private Q_SLOTS:
    void theControlShowsWhatIsInForce_data() { addRows(kShown); }
    void theControlShowsWhatIsInForce()
    {
        const ShownCase &row = currentRow(kShown);
        open({row.attribute});
        QVERIFY(control(row.attribute.name));
        QCOMPARE(shown(row.attribute.name), row.text);
        // Another value, and this one again.
        m_page->setAttributes({front(row.attribute.name)});
        m_page->setAttributes({row.attribute});
        QCOMPARE(shown(row.attribute.name), row.text);
        QVERIFY(m_proposed->isEmpty());
    }

    // Whatever the table of attributes holds, or will hold.
    void everyAttributeHasARowThatAScreenReaderNames()
    {
        QList<OfferedAttribute> all;
        for (const QString &name : jobAttributeNames())
            all += front(name);
        open(all);
        for (const QString &name : jobAttributeNames()) {
            QWidget *field = control(name);
            QVERIFY2(field && field->isVisibleTo(m_window.get()), qPrintable(name));
            QCOMPARE(field->accessibleName(), textOfJobAttribute({name, {}}).title);
            // By its label where, as here, a pop-up's name is its value.
            const auto labels =
                QAccessible::queryAccessibleInterface(field)->relations(QAccessible::Label);
            QCOMPARE(labels.size(), 1);
            QCOMPARE(labels.constFirst().first->text(QAccessible::Name),
                     textOfJobAttribute({name, {}}).title);
        }
        QCOMPARE(m_page->findChild<QScrollArea *>()->horizontalScrollBar()->maximum(), 0);
    }

    void aPickedWordIsProposedOnce()
    {
        open({front(u"print-scaling"_s)});
        QVERIFY(pick(control<QComboBox>(u"print-scaling"_s), u"Fill Paper"_s));
        QCOMPARE(m_proposed->size(), 1);
        QCOMPARE(proposal(), (QStringList{u"print-scaling"_s, u"fill"_s}));
    }

    // Of print-color-mode nobody can tell "nothing" from "auto".
    // A field may have other words for a value: the nearest number, a word for "none".
    void whatNobodyHasTouchedIsNotProposed_data() { addRows(kUntouched); }
    void whatNobodyHasTouchedIsNotProposed()
    {
        const UntouchedCase &row = currentRow(kUntouched);
        open({front(row.attribute, row.value)});
        QVERIFY(m_page->finishEditing());
        QCOMPARE(proposal(), QStringList());
        // Nor when it has become that, and is gone through by keyboard.
        m_page->setAttributes({front(row.attribute)});
        m_page->setAttributes({front(row.attribute, row.value)});
        control(row.attribute)->setFocus(Qt::TabFocusReason);
        m_page->setFocus();
        QVERIFY(m_page->finishEditing());
        QCOMPARE(proposal(), QStringList());
    }

    void noValueOfAnyAttributeIsProposedByItself()
    {
        QList<OfferedAttribute> all;
        for (const QString &name : jobAttributeNames())
            all += front(name);
        open(all);
        QVERIFY(m_page->finishEditing());
        QCOMPARE(proposal(), QStringList());
    }

    void noItemStandsTwiceInAList()
    {
        for (const QString &name : jobAttributeNames()) {
            open({front(name)});
            auto *words = control<QComboBox>(name);
            QStringList titles;
            for (int i = 0; words && i < words->count(); ++i)
                titles += words->itemText(i);
            QVERIFY2(titles.removeDuplicates() == 0, qPrintable(name));
            QVERIFY2(!words || words->currentIndex() >= 0, qPrintable(name));
        }
    }

    void anAttributeCanBeTakenBack()
    {
        open({front(u"orientation-requested"_s, u"4"_s), front(u"ppi"_s, u"300"_s),
              front(u"job-billing"_s, u"Accounts"_s)});
        QVERIFY(pick(control<QComboBox>(u"orientation-requested"_s), u"Automatic"_s));
        QVERIFY(m_proposed->constLast().at(1).toString().isNull());
        type(u"ppi"_s, {});
        QTest::keyClick(control(u"ppi"_s), Qt::Key_Delete);
        QTest::keyClick(control(u"ppi"_s), Qt::Key_Tab);
        QCOMPARE(proposal(), (QStringList{u"ppi"_s, QString()}));
        QVERIFY(m_proposed->constLast().at(1).toString().isNull());
        type(u"job-billing"_s, {});
        QTest::keyClick(control(u"job-billing"_s), Qt::Key_Delete);
        QTest::keyClick(control(u"job-billing"_s), Qt::Key_Tab);
        QCOMPARE(proposal(), (QStringList{u"job-billing"_s, QString()}));
        QCOMPARE(m_proposed->size(), 3);
    }

    void whatIsTypedIsProposedWhenTheFieldIsLeft_data() { addRows(kTyped); }
    void whatIsTypedIsProposedWhenTheFieldIsLeft()
    {
        const ChosenCase &row = currentRow(kTyped);
        open({front(row.attribute)});
        type(row.attribute, row.typed);
        QCOMPARE(m_proposed->size(), 0);
        m_page->setFocus();
        QCOMPARE(m_proposed->size(), 1);
        QCOMPARE(proposal(), (QStringList{row.attribute, row.proposed}));
    }

    void whatIsRefusedStaysAndSaysWhy()
    {
        open({front(u"job-priority"_s), front(u"print-scaling"_s)});
        type(u"job-priority"_s, u"101"_s);
        m_page->setFocus();
        m_page->showAttributeProblem(u"job-priority"_s, u"“101” is not allowed."_s);
        QCOMPARE(note(u"job-priority"_s), u"“101” is not allowed."_s);
        // Something else changes.
        m_page->setAttributes({front(u"job-priority"_s), front(u"print-scaling"_s, u"fill"_s)});
        QCOMPARE(shown(u"job-priority"_s), u"101"_s);
        QCOMPARE(note(u"job-priority"_s), u"“101” is not allowed."_s);
        QVERIFY(!m_page->finishEditing());
        QVERIFY(control(u"job-priority"_s)->hasFocus());
        // Mended.
        type(u"job-priority"_s, u"10"_s);
        m_page->setFocus();
        QCOMPARE(proposal(), (QStringList{u"job-priority"_s, u"10"_s}));
        m_page->showAttributeProblem(u"job-priority"_s, {});
        m_page->setAttributes({front(u"job-priority"_s, u"10"_s)});
        QCOMPARE(note(u"job-priority"_s), QString());
        QVERIFY(m_page->finishEditing());
    }

    void whatIsAllowedIsSaidBesideAField()
    {
        open({front(u"job-sheets"_s), front(u"job-priority"_s)});
        QCOMPARE(note(u"job-sheets"_s), u"one or two names of banner pages"_s);
        const auto labels = m_page->findChildren<QLabel *>();
        QVERIFY(std::any_of(labels.cbegin(), labels.cend(),
                            [](const QLabel *label) { return label->text() == u"1 to 100"_s; }));
    }

    void theArrowsOfANumberKeepToItsRange()
    {
        open({front(u"job-priority"_s, u"100"_s), front(u"ppi"_s, u"1"_s)});
        auto *priority = control<QDoubleSpinBox>(u"job-priority"_s);
        priority->stepUp();
        QCOMPARE(priority->value(), 100.0);
        priority->setValue(1);
        priority->stepDown();
        QCOMPARE(priority->value(), 1.0);
        auto *ppi = control<QDoubleSpinBox>(u"ppi"_s);
        ppi->stepDown(); // below the least there is none
        QCOMPARE(ppi->text(), u"Automatic"_s);
        ppi->stepUp();
        QCOMPARE(ppi->text(), u"1"_s);
    }

    void anotherFormThanWordsIsEnteredBehindTheLastItem()
    {
        open({front(u"job-hold-until"_s)});
        auto *other = control<QLineEdit>(u"job-hold-untilOther"_s);
        QVERIFY(!other->isVisible());
        QVERIFY(pick(control<QComboBox>(u"job-hold-until"_s), u"Other…"_s));
        QVERIFY(other->isVisible() && other->hasFocus());
        QVERIFY(m_proposed->isEmpty()); // nothing is chosen yet
        QTest::keyClicks(other, u"12:30"_s);
        QTest::keyClick(other, Qt::Key_Return);
        QCOMPARE(proposal(), (QStringList{u"job-hold-until"_s, u"12:30"_s}));
        m_page->setAttributes({front(u"job-hold-until"_s, u"night"_s)});
        QVERIFY(!other->isVisible());
    }

    // Else the job would be printed as if nothing had been picked.
    void somethingElseWithoutAnyValueIsNoEnd()
    {
        open({front(u"job-hold-until"_s)});
        connect(m_page, &GeneralPage::attributeProposed, this,
                [this](const QString &name) { m_page->showAttributeProblem(name, u"no"_s); });
        QVERIFY(pick(control<QComboBox>(u"job-hold-until"_s), u"Other…"_s));
        QVERIFY(!m_page->finishEditing());
        QCOMPARE(proposal(), (QStringList{u"job-hold-until"_s, QString()}));
        QVERIFY(!m_proposed->constLast().at(1).toString().isNull());
    }

    void moreIsMadeWhenItIsOpenedAndSaysBeforeWhatIsSet()
    {
        open({front(u"number-up"_s), more(u"job-sheets"_s, u"standard"_s), more(u"page-set"_s),
              more(u"job-billing"_s, QString(200, u'm'))});
        QVERIFY(!control(u"job-sheets"_s));
        auto *set = control<QLabel>(u"moreIsSet"_s);
        QVERIFY2(set->text().startsWith(u"Banner Pages: standard, Billed To: mmm"_s),
                 qPrintable(set->text()));
        QVERIFY(set->text().endsWith(u'…'));
        QCOMPARE(m_page->findChild<QScrollArea *>()->horizontalScrollBar()->maximum(), 0);
        auto *button = control<QPushButton>(u"more"_s);
        QCOMPARE(button->accessibleName(), u"More, "_s + set->text());
        button->click();
        QCOMPARE(shown(u"job-sheets"_s), u"standard"_s);
        QCOMPARE(shown(u"page-set"_s), u"All"_s);
        QVERIFY(set->text().isEmpty());
        button->click();
        QVERIFY(!control(u"job-sheets"_s)->isVisible());
        QVERIFY(!set->text().isEmpty());
    }

    void withoutAnythingBehindItThereIsNoMore()
    {
        open({front(u"number-up"_s)});
        QVERIFY(!control(u"more"_s));
    }

    void aRefusedValueBehindMoreIsShown()
    {
        open({more(u"job-priority"_s)});
        auto *button = control<QPushButton>(u"more"_s);
        button->click();
        type(u"job-priority"_s, u"0"_s);
        button->setFocus();
        m_page->showAttributeProblem(u"job-priority"_s, u"no"_s);
        button->click();
        QVERIFY(!control(u"job-priority"_s)->isVisible());
        QVERIFY(!m_page->finishEditing());
        QVERIFY(control(u"job-priority"_s)->isVisible());
        QVERIFY(control(u"job-priority"_s)->hasFocus());
    }

    void copiesAreCollatedWhereThereAreSeveral()
    {
        open({collate({}, false)});
        auto *box = control<QCheckBox>(u"collate"_s);
        QVERIFY(box->isChecked() && !box->isEnabled());
        m_page->setAttributes({collate({}, true)});
        QVERIFY(click(box));
        QCOMPARE(proposal(), (QStringList{u"collate"_s, u"false"_s}));
        m_page->setAttributes({collate(u"false"_s, true)});
        QVERIFY(!box->isChecked());
        QVERIFY(click(box));
        QCOMPARE(proposal(), (QStringList{u"collate"_s, u"true"_s}));
        QCOMPARE(m_proposed->size(), 2);
    }
};

QTEST_MAIN(AttributeRowsTest)

#include "attribute_rows_test.moc"
