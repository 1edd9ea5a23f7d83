#include <algorithm>
#include <functional>
#include <limits>
#include <memory>

#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/window/thumbnails/PageChooser.h"
#include "dialog/window/thumbnails/PageModel.h"
#include "dialog/window/thumbnails/PageThumbnails.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Heartbeat.h"
#include "tests/support/LabelledPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 60000; // milliseconds that a renderer may take on a busy machine

// What a keyboard does, from the first page on, when all 12 are chosen.
struct Keys
{
    const char *name;
    QList<QKeyCombination> keys;
    QString value;
};
constexpr QKeyCombination kShiftSpace = Qt::SHIFT | Qt::Key_Space;
const Keys kKeys[] = {
    {"Space takes a tick", {Qt::Key_Space}, u"2-12"_s},
    {"and gives it back", {Qt::Key_Space, Qt::Key_Space}, u""_s},
    {"Right goes on", {Qt::Key_Right, Qt::Key_Right, Qt::Key_Space}, u"1-2,4-12"_s},
    {"Left goes back", {Qt::Key_Right, Qt::Key_Left, Qt::Key_Space}, u"2-12"_s},
    {"End is the last page", {Qt::Key_End, Qt::Key_Space}, u"1-11"_s},
    {"Home is the first page", {Qt::Key_End, Qt::Key_Home, Qt::Key_Space}, u"2-12"_s},
    {"Shift is a run", {Qt::Key_Space, Qt::Key_Right, Qt::Key_Right, kShiftSpace}, u"4-12"_s},
    {"a run backwards",
     {Qt::Key_End, Qt::Key_Space, Qt::Key_Left, Qt::Key_Left, kShiftSpace},
     u"1-9"_s},
    {"a number is gone to", {Qt::Key_7, Qt::Key_Space}, u"1-6,8-12"_s},
};

struct Buttons
{
    const char *name;
    QStringList buttons;
    QString text; // in the field
    bool isGood;
};
const Buttons kButtons[] = {
    {"all", {u"chooseNone"_s, u"chooseAll"_s}, u"1-12"_s, true},
    {"none", {u"chooseNone"_s}, u""_s, false},
    {"odd", {u"chooseOdd"_s}, u"1, 3, 5, 7, 9, 11"_s, true},
    {"even", {u"chooseEven"_s}, u"2, 4, 6, 8, 10, 12"_s, true},
    {"odd inverted is even", {u"chooseOdd"_s, u"invert"_s}, u"2, 4, 6, 8, 10, 12"_s, true},
    {"all inverted is none", {u"invert"_s}, u""_s, false},
};

struct TypedText
{
    const char *name;
    QString text;
    int ticked; // of 12 pages
    bool isGood;
};
const TypedText kTypedTexts[] = {
    {"ranges", u"1-4, 7"_s, 5, true},           {"an open end", u"5-"_s, 8, true},
    {"another order", u"7,1"_s, 2, true},       {"beyond the end", u"11-99"_s, 2, true},
    {"only beyond the end", u"20"_s, 0, false}, {"nothing", u""_s, 0, false},
};

// What somebody does with many pages, each of it at once.
struct Work
{
    const char *name;
    void (*act)(PageChooser &chooser);
};
const Work kWork[] = {
    {"a tick",
     [](PageChooser &chooser) {
         auto *model = chooser.findChild<PageModel *>();
         const QModelIndex index = model->index(5);
         const bool isTicked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
         model->setData(index, isTicked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
     }},
    {"odd pages",
     [](PageChooser &chooser) { chooser.findChild<QPushButton *>(u"chooseOdd"_s)->click(); }},
    {"all pages",
     [](PageChooser &chooser) { chooser.findChild<QPushButton *>(u"chooseAll"_s)->click(); }},
    {"scrolling far",
     [](PageChooser &chooser) {
         QScrollBar *bar = chooser.findChild<PageThumbnails *>()->verticalScrollBar();
         bar->setValue((bar->value() + bar->maximum() / 3) % bar->maximum());
     }},
    {"another width",
     [](PageChooser &chooser) { chooser.resize(chooser.width() + 150, chooser.height()); }},
};
constexpr qint64 kMostAtOnce = 8; // milliseconds in which nothing else has its turn

// The best of some tries: whatever else a machine does makes it longer. Units: milliseconds.
qint64 largestGap(const std::function<void()> &act)
{
    qint64 best = std::numeric_limits<qint64>::max();
    for (int i = 0; i < 5; ++i) {
        Heartbeat heartbeat;
        heartbeat.start();
        QTest::qWait(30);
        act();
        QTest::qWait(60);
        heartbeat.stop();
        best = std::min(best, heartbeat.takeLargestGap());
    }
    return best;
}

} // namespace

class PageChooserTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<PageChooser> m_chooser;

    ChoosableDocument document(const QString &title, const QByteArray &pdf, int pages)
    {
        return {title, writeFile(m_folder.filePath(title), pdf), pages, {}};
    }
    ChoosablePages twelve() { return {{document(u"a.pdf"_s, numberedPdf("page", 12), 12)}, {}}; }
    void show(const ChoosablePages &pages)
    {
        m_chooser = std::make_unique<PageChooser>(pages);
        m_chooser->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_chooser.get()));
        m_chooser->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_chooser.get()));
    }
    template <typename Child> Child *child(const char *name) const
    {
        return m_chooser->findChild<Child *>(QLatin1StringView(name));
    }
    PageThumbnails *view() const { return child<PageThumbnails>("thumbnails"); }
    QModelIndex row(int number) const { return view()->model()->index(number, 0); }
    bool isTicked(int number) const
    {
        return row(number).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    QString text() const { return child<QLineEdit>("ranges")->text(); }
    QString note() const { return child<QLabel>("note")->text(); }
    QPushButton *ok() const
    {
        return m_chooser->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    }
    void click(int number, Qt::KeyboardModifiers modifiers = {})
    {
        view()->scrollTo(row(number));
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, modifiers,
                          view()->visualRect(row(number)).center());
    }
    void type(const QString &typed)
    {
        auto *field = child<QLineEdit>("ranges");
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, typed);
    }

private Q_SLOTS:
    void cleanup() { m_chooser.reset(); }

    void aClickTicksAndTheTextFollows()
    {
        show(twelve());
        QCOMPARE(text(), u"1-12"_s);
        QVERIFY(!m_chooser->hasChanged());
        click(3);
        QVERIFY(!isTicked(3));
        QCOMPARE(text(), u"1-3, 5-12"_s);
        QCOMPARE(note(), u"11 of 12 pages chosen."_s);
        QCOMPARE(m_chooser->value(), u"1-3,5-12"_s);
        QVERIFY(m_chooser->hasChanged());
        // A run takes what became of the first of them.
        click(8, Qt::ShiftModifier);
        QCOMPARE(text(), u"1-3, 10-12"_s);
        click(3);
        click(5, Qt::ShiftModifier);
        QCOMPARE(text(), u"1-6, 10-12"_s);
        // All of them are no choice.
        click(6);
        click(8, Qt::ShiftModifier);
        QVERIFY(m_chooser->value().isEmpty());
        QVERIFY(!m_chooser->hasChanged());
    }

    void theKeyboardIsEnough_data() { addRows(kKeys); }
    void theKeyboardIsEnough()
    {
        const Keys &keys = currentRow(kKeys);
        show(twelve());
        QCOMPARE(m_chooser->focusWidget(), view());
        for (const QKeyCombination key : keys.keys)
            QTest::keyClick(m_chooser->focusWidget(), key.key(), key.keyboardModifiers());
        QCOMPARE(m_chooser->value(), keys.value);
        QSignalSpy accepted(m_chooser.get(), &QDialog::accepted);
        QTest::keyClick(m_chooser->focusWidget(), Qt::Key_Return);
        QCOMPARE(accepted.size(), 1);
    }

    void mirroredTheKeysGoTheOtherWay()
    {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        show(twelve());
        QTest::keyClick(view(), Qt::Key_Left);
        QTest::keyClick(view(), Qt::Key_Space);
        const bool isRightOfSecond =
            view()->visualRect(row(0)).center().x() > view()->visualRect(row(1)).center().x();
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QCOMPARE(m_chooser->value(), u"1,3-12"_s);
        QVERIFY(isRightOfSecond);
    }

    void buttonsChooseManyAtOnce_data() { addRows(kButtons); }
    void buttonsChooseManyAtOnce()
    {
        const Buttons &buttons = currentRow(kButtons);
        show(twelve());
        for (const QString &name : buttons.buttons)
            m_chooser->findChild<QPushButton *>(name)->click();
        QCOMPARE(text(), buttons.text);
        QCOMPARE(ok()->isEnabled(), buttons.isGood);
        if (!buttons.isGood)
            QCOMPARE(note(), u"No page is chosen."_s);
    }

    void ticksFollowWhatIsTyped_data() { addRows(kTypedTexts); }
    void ticksFollowWhatIsTyped()
    {
        const TypedText &typed = currentRow(kTypedTexts);
        show(twelve());
        type(typed.text);
        QCOMPARE(text(), typed.text); // nobody writes into a field while something is typed
        int ticked = 0;
        for (int page = 0; page < 12; ++page)
            ticked += isTicked(page) ? 1 : 0;
        QCOMPARE(ticked, typed.ticked);
        QCOMPARE(ok()->isEnabled(), typed.isGood);
        QCOMPARE(ok()->accessibleDescription().isEmpty(), typed.isGood);
    }

    void whatIsNoPageIsSaidAndNothingIsLost()
    {
        show(twelve());
        type(u"2-4"_s);
        type(u"2-4,x"_s);
        QVERIFY(!ok()->isEnabled());
        QCOMPARE(note(), u"“x” is no page. Pages are typed as in 1-4, 7, 9-."_s);
        QVERIFY(isTicked(1) && !isTicked(4)); // as before
        QTest::keyClick(child<QLineEdit>("ranges"), Qt::Key_Return);
        QVERIFY(m_chooser->isVisible());
        type(u"9-7"_s);
        QCOMPARE(note(), u"“9-7” ends before it begins."_s);
        // A click mends it: what was a range before, while it was typed, is ticked still.
        click(0);
        QVERIFY(ok()->isEnabled());
        QCOMPARE(text(), u"1, 9-12"_s);
    }

    void everyDocumentHasTheSameTicks()
    {
        ChoosablePages pages = twelve();
        pages.documents += document(u"b.pdf"_s, numberedPdf("other", 3), 3);
        show(pages);
        QVERIFY(child<QLabel>("intro")->isVisible());
        // Two names, and the pages of both.
        QCOMPARE(view()->model()->rowCount(), 2 + 12 + 3);
        QCOMPARE(row(0).data().toString(), u"a.pdf"_s);
        QCOMPARE(row(13).data().toString(), u"b.pdf"_s);
        click(15);
        QVERIFY(!isTicked(2) && !isTicked(15));
        QCOMPARE(m_chooser->value(), u"1,3-12"_s);
        QCOMPARE(row(15).data(Qt::AccessibleTextRole).toString(), u"Page 2 of b.pdf, not chosen"_s);
        // Of the second one nothing would be left.
        type(u"4-12"_s);
        QVERIFY(!ok()->isEnabled());
        QCOMPARE(note(), u"“b.pdf” has 3 pages; 4 to 12 are not in it."_s);
    }

    void pagesThatNobodyCanDrawAreNumberedAndSayWhy()
    {
        ChoosablePages pages{{{u"a.txt"_s, {}, 2, u"The preview shows them."_s}}, {}};
        show(pages);
        QCOMPARE(view()->model()->rowCount(), 3);
        QCOMPARE(row(0).data(PageModel::ReasonRole).toString(), u"The preview shows them."_s);
        click(1);
        QCOMPARE(m_chooser->value(), u"2"_s);
        // Of one that nobody has counted they are typed.
        pages.documents[0].pages = 0;
        show(pages);
        QCOMPARE(text(), u"1-"_s);
        QVERIFY(!m_chooser->hasChanged());
        type(u"2-4,7-"_s);
        QCOMPARE(m_chooser->value(), u"2-4,7-"_s);
        QVERIFY(ok()->isEnabled());
    }

    void aFieldHasRoomForEverySecondPageOfALongDocument()
    {
        show({{{u"a.txt"_s, {}, 19999, u"The preview shows them."_s}}, {}});
        child<QPushButton>("chooseOdd")->click();
        QVERIFY(text().endsWith(", 19999"_L1));
        QVERIFY(m_chooser->value().endsWith(",19999"_L1));
    }

    void pagesThatAreTooManyToBeShownAreTyped()
    {
        show({{{u"a.pdf"_s, {}, 20000, {}}}, {}});
        QCOMPARE(view()->model()->rowCount(), 1);
        QVERIFY(!row(0).data(PageModel::ReasonRole).toString().isEmpty());
        type(u"19999-"_s);
        QCOMPARE(m_chooser->value(), u"19999-20000"_s);
        QVERIFY(ok()->isEnabled());
    }

    void whatIsFoundOutLaterLeavesTheChoice()
    {
        ChoosablePages unknown = twelve();
        unknown.documents[0].pages = 0;
        show(unknown);
        m_chooser->setPages(twelve());
        QCOMPARE(text(), u"1-12"_s);
        show(unknown);
        type(u"2-4"_s);
        m_chooser->setPages(twelve());
        QCOMPARE(m_chooser->value(), u"2-4"_s);
        QVERIFY(isTicked(1) && !isTicked(5));
    }

    void labelsAreShownAsTheyAre()
    {
        const QByteArray labels = "0 << /S /r >> 1 << /P (<b>x</b>&) >> 2 << /P <FEFF0041202E0042> "
                                  ">> 3 << /S /D /St 4 >>";
        show({{document(u"l.pdf"_s, labelledPdf("page", 5, labels), 5)}, {}});
        QTRY_COMPARE_WITH_TIMEOUT(row(0).data(PageModel::LabelRole).toString(), u"i"_s, kPatience);
        QCOMPARE(row(0).data(Qt::AccessibleTextRole).toString(), u"Page 1 (i), chosen"_s);
        QCOMPARE(row(1).data(PageModel::LabelRole).toString(), u"<b>x</b>&"_s);
        QCOMPARE(row(2).data(PageModel::LabelRole).toString(), u"A<U+202E>B"_s);
        QVERIFY(row(3).data(PageModel::LabelRole).toString().isEmpty()); // its number
    }

    void pagesAreDrawnWhereTheyAreSeen()
    {
        show(twelve());
        const auto isDrawn = [this] {
            const QImage seen = view()->viewport()->grab().toImage();
            const QRect cell = view()->visualRect(row(0));
            const double ratio = seen.devicePixelRatio();
            for (int y = cell.top(); y < cell.center().y() + cell.height() / 4; ++y)
                for (int x = cell.left(); x < cell.right(); ++x) {
                    // The red mark of a numbered page.
                    const QColor color = seen.pixelColor(QPoint(x, y) * ratio);
                    if (color.red() > 200 && color.green() < 80 && color.blue() < 80)
                        return true;
                }
            return false;
        };
        QTRY_VERIFY_WITH_TIMEOUT(isDrawn(), kPatience);
    }

    void aScreenReaderHearsPagesAndTicks()
    {
        show(twelve());
        QAccessibleInterface *list = QAccessible::queryAccessibleInterface(view());
        QVERIFY(list);
        QCOMPARE(list->childCount(), 12);
        QCOMPARE(list->child(3)->text(QAccessible::Name), u"Page 4, chosen"_s);
        click(3);
        QCOMPARE(list->child(3)->text(QAccessible::Name), u"Page 4, not chosen"_s);
    }

    void twoThousandPagesDoNotStall()
    {
        show({{document(u"long.pdf"_s, numberedPdf("page", 2000), 2000)}, {}});
        QTRY_VERIFY_WITH_TIMEOUT(!row(1999).data(PageModel::SizeRole).toSizeF().isEmpty(),
                                 kPatience);
        const qint64 beat = largestGap([] {});
        for (const Work &work : kWork) {
            const qint64 gap = largestGap([&] { work.act(*m_chooser); });
            QVERIFY2(gap <= beat + kMostAtOnce, qPrintable(u"%1: %2 ms, doing nothing: %3 ms"_s
                                                               .arg(QLatin1StringView(work.name))
                                                               .arg(gap)
                                                               .arg(beat)));
        }
    }

    void cancelingChangesNothing()
    {
        show(twelve());
        click(2);
        QSignalSpy accepted(m_chooser.get(), &QDialog::accepted);
        QTest::keyClick(m_chooser->focusWidget(), Qt::Key_Escape);
        QVERIFY(!m_chooser->isVisible());
        QVERIFY(accepted.isEmpty());
    }
};

QTEST_MAIN(PageChooserTest)

#include "page_chooser_test.moc"
