#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include "dialog/printers/PrinterFetching.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/SettingsIndex.h"
#include "platform/pde/PDEPanel.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

QStringList samplePrinters()
{
    return QDir(sourceFile(u"resources/ppd"_s)).entryList({u"*.ppd"_s}, QDir::Files);
}

struct KeyAtAnEnd
{
    const char *name;
    const char *typed;
    QList<int> before;
    int key;
    int row; // that is highlighted then; -1: none
};

const KeyAtAnEnd kKeysAtTheEnds[] = {
    {"up at the top", "paper", {}, Qt::Key_Up, 0},
    {"a page up at the top", "paper", {}, Qt::Key_PageUp, 0},
    {"down", "paper", {}, Qt::Key_Down, 1},
    {"down and up", "paper", {Qt::Key_Down}, Qt::Key_Up, 0},
    {"down in a list of one", "watermark", {}, Qt::Key_Down, 0},
    {"up in a list of one", "watermark", {}, Qt::Key_Up, 0},
    {"down in an empty list", "xyzzy", {}, Qt::Key_Down, -1},
    {"up in an empty list", "xyzzy", {}, Qt::Key_Up, -1},
    {"a page down in an empty list", "xyzzy", {}, Qt::Key_PageDown, -1},
};

} // namespace

/// Finding a setting by name, with the keyboard and the mouse, in a real window.
class WindowFindTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<WindowDriver> m_window;

    void open(const QByteArray &ppd)
    {
        m_filter = std::make_unique<FakeFilter>("echo ok\n");
        PrintRequest request;
        request.documents = {m_filter->document()};
        request.title = u"Job"_s;
        request.output = m_filter->output();
        request.bundleRoots = builtBundleRoots();
        request.printers = {{u"test"_s, u"Test"_s, writeFile(m_filter->path(u"test.ppd"_s), ppd)}};
        m_window = std::make_unique<WindowDriver>(request, WindowDriver::Activation::Yes);
        QTRY_COMPARE_WITH_TIMEOUT(task().phase(), PrintTask::Phase::Ready, kWindowPatience);
    }
    void openOffice() { open(officePrinter().text()); }
    void openSample(const QString &name)
    {
        QFile file(sourceFile(u"resources/ppd/"_s + name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        open(file.readAll());
    }

    PrintTask &task() const { return m_window->dialog().task(); }
    QLineEdit *field() const { return m_window->child<QLineEdit>(u"findField"_s); }
    QWidget *popup() const { return m_window->child<QWidget>(u"findPopup"_s); }
    bool isOpen() const { return popup() && popup()->isVisible(); }
    QString note() const { return m_window->child<QLabel>(u"findNote"_s)->text(); }
    QListView *list() const { return m_window->child<QListView>(u"foundSettings"_s); }
    QStringList found() const
    {
        QStringList rows;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            rows += list()->model()->index(row, 0).data().toString();
        return rows;
    }
    QString highlighted() const { return list()->currentIndex().data().toString(); }

    void startSearch(const QString &text)
    {
        QTest::keyClick(&m_window->dialog(), Qt::Key_F, Qt::ControlModifier);
        QTRY_VERIFY(field()->hasFocus());
        field()->clear();
        QTest::keyClicks(field(), text);
    }
    void press(int key) { QTest::keyClick(field(), static_cast<Qt::Key>(key)); }
    // Not whether the filter ran: the preview asks it, too.
    bool wasPrinted() const { return QFile::exists(m_filter->output()); }

private Q_SLOTS:
    void cleanup()
    {
        m_window.reset();
        m_filter.reset();
    }

    // Its server has other options for it by now.
    void whoTypesGoesOnTypingWhileThePrinterIsOpenedAnew()
    {
        openOffice();
        startSearch(u"pap"_s);
        QString error;
        Q_EMIT task().printers().ready(
            {task().printer(), temporaryPpd(officePrinter().text() + "*% another one\n", &error)});
        QTRY_COMPARE_WITH_TIMEOUT(task().phase(), PrintTask::Phase::Ready, kWindowPatience);
        QVERIFY(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_E);
        QCOMPARE(field()->text(), u"pape"_s);
    }

    void enterGoesToWhatIsFoundFirst()
    {
        openOffice();
        startSearch(u"upper"_s);
        QVERIFY(isOpen());
        QCOMPARE(found(), QStringList{u"Paper Source: Upper Tray"_s});
        QCOMPARE(note(), u"1 setting found"_s);
        press(Qt::Key_Return);
        QVERIFY(!isOpen());
        QCOMPARE(field()->text(), QString());
        auto *options = m_window->child<QTreeView>(u"options"_s);
        QVERIFY(options->isVisible());
        QVERIFY(options->hasFocus());
        QCOMPARE(options->currentIndex().siblingAtColumn(0).data().toString(), u"Paper Source"_s);
        // Found is not chosen.
        QCOMPARE(task().opened()->session->markedChoice(u"Tray"_s), u"Auto"_s);
        QVERIFY(!wasPrinted());
        QVERIFY(m_window->child<QWidget>(u"foundMark"_s));
    }

    void aSettingBehindADisclosureIsDisclosed()
    {
        openSample(u"corvana-cl5.ppd"_s);
        startSearch(u"mirror"_s);
        press(Qt::Key_Return);
        QVERIFY(m_window->child<QAbstractButton>(u"more"_s)->isChecked());
        startSearch(u"blank"_s);
        QCOMPARE(list()->model()->index(0, 0).data(Qt::UserRole + 1).toString(),
                 u"Print Setting › Advanced Options › Other Options"_s);
        press(Qt::Key_Return);
        auto *box = m_window->child<QWidget>(u"skipBlankButton"_s);
        QVERIFY(box->isVisible());
        QVERIFY(box->hasFocus());
    }

    void theValueNowIsShown()
    {
        openSample(u"corvana-cl5.ppd"_s);
        startSearch(u"media type"_s);
        const QModelIndex first = list()->model()->index(0, 0);
        QCOMPARE(first.data().toString(), u"Media Type"_s);
        QCOMPARE(first.data(Qt::UserRole).toString(), u"Plain Paper"_s);
        QCOMPARE(first.data(Qt::AccessibleTextRole).toString(),
                 u"Media Type, Plain Paper, on Print Setting"_s);
        // Another one while the list is open: searching anew shows it.
        task().propose(u"QXMediaType"_s, u"Thick"_s);
        press(Qt::Key_Backspace);
        QCOMPARE(list()->model()->index(0, 0).data(Qt::UserRole).toString(), u"Thick Paper"_s);
    }

    void keysAtTheEndsOfTheList_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < int(std::size(kKeysAtTheEnds)); ++i)
            QTest::newRow(kKeysAtTheEnds[i].name) << i;
    }
    void keysAtTheEndsOfTheList()
    {
        QFETCH(int, row);
        const KeyAtAnEnd &row_ = kKeysAtTheEnds[row];
        openOffice();
        startSearch(QLatin1StringView(row_.typed));
        for (const int key : row_.before)
            press(key);
        press(row_.key);
        QCOMPARE(list()->currentIndex().row(), row_.row);
        QVERIFY(field()->hasFocus());
        QVERIFY(isOpen());
    }

    void theLastOfAManyIsReachedAndSeen()
    {
        openOffice();
        startSearch(u"tray"_s);
        const int rows = list()->model()->rowCount();
        QVERIFY(rows > 10);
        for (int i = 0; i < rows + 3; ++i)
            press(Qt::Key_Down);
        QCOMPARE(list()->currentIndex().row(), rows - 1);
        QVERIFY(list()->viewport()->rect().contains(list()->visualRect(list()->currentIndex())));
        press(Qt::Key_PageUp);
        QVERIFY(list()->currentIndex().row() < rows - 3);
    }

    void anEmptyFieldLeavesEnterToPrint()
    {
        openOffice();
        startSearch(QString());
        QVERIFY(!isOpen());
        press(Qt::Key_Return);
        QTRY_VERIFY_WITH_TIMEOUT(wasPrinted(), kWindowPatience);
    }

    void whatIsNotFoundIsNotPrinted()
    {
        openOffice();
        startSearch(u"xyzzy"_s);
        QVERIFY(isOpen());
        QVERIFY2(note().contains(u"“xyzzy”"_s), qPrintable(note()));
        press(Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(task().phase(), PrintTask::Phase::Ready);
        QVERIFY(field()->hasFocus());
        QVERIFY(!wasPrinted());
    }

    void enterTakesASuggestion()
    {
        openOffice();
        startSearch(u"stapel"_s);
        QVERIFY2(note().contains(u"“Staple”"_s), qPrintable(note()));
        press(Qt::Key_Return);
        QCOMPARE(field()->text(), u"Staple"_s);
        QCOMPARE(highlighted(), u"Staple"_s);
        QVERIFY(field()->hasFocus());
    }

    void escapeEmptiesTheFieldThenGivesTheFocusBack()
    {
        openOffice();
        auto *copies = m_window->child<QWidget>(u"copies"_s);
        copies->setFocus();
        QTRY_VERIFY(copies->hasFocus());
        startSearch(u"staple"_s);
        QVERIFY(isOpen());
        press(Qt::Key_Escape);
        QVERIFY(!isOpen());
        QCOMPARE(field()->text(), QString());
        QVERIFY(field()->hasFocus());
        press(Qt::Key_Escape);
        QVERIFY(copies->hasFocus());
        QVERIFY(m_window->dialog().isVisible());
    }

    void aClickGoesThereAndAClickBesideClosesTheList()
    {
        openOffice();
        startSearch(u"paper"_s);
        QTest::mouseClick(m_window->pages()->tabBar(), Qt::LeftButton);
        QVERIFY(!isOpen());
        startSearch(u"paper"_s);
        const QModelIndex second = list()->model()->index(1, 0);
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {},
                          list()->visualRect(second).center());
        QVERIFY(!isOpen());
        auto *options = m_window->child<QTreeView>(u"options"_s);
        QCOMPARE(options->currentIndex().siblingAtColumn(0).data().toString(), u"Paper Source"_s);
    }

    void tabLeavesTheFieldAndClosesTheList()
    {
        openOffice();
        startSearch(u"staple"_s);
        QTest::keyClick(field(), Qt::Key_Tab);
        QVERIFY(!field()->hasFocus());
        QVERIFY(!isOpen());
        QCOMPARE(field()->text(), u"staple"_s);
    }

    void theListIsAListForAssistiveTechnology()
    {
        openOffice();
        startSearch(u"paper"_s);
        QAccessibleInterface *rows = QAccessible::queryAccessibleInterface(list());
        QVERIFY(rows);
        QCOMPARE(rows->role(), QAccessible::List);
        QCOMPARE(rows->text(QAccessible::Name), u"Settings that were found"_s);
        QCOMPARE(rows->childCount(), list()->model()->rowCount());
        QVERIFY(!field()->accessibleName().isEmpty());
        QVERIFY2(note().endsWith(u" settings found"_s), qPrintable(note()));
    }

    void theListLiesInTheWindowAboveTheField()
    {
        openOffice();
        startSearch(u"tray"_s);
        const QRect window = m_window->dialog().rect();
        QVERIFY(window.contains(popup()->geometry()));
        QVERIFY(popup()->geometry().bottom() <
                field()->mapTo(&m_window->dialog(), QPoint(0, 1)).y());
    }

    void withoutRoomTheFieldIsAButton()
    {
        openOffice();
        auto *button = m_window->child<QToolButton>(u"findButton"_s);
        QVERIFY(field()->isVisible());
        QVERIFY(!button->isVisible());
        auto *holder = button->parentWidget();
        holder->setMaximumWidth(button->sizeHint().width());
        QTRY_VERIFY(button->isVisible());
        QVERIFY(!field()->isVisible());
        startSearch(u"staple"_s);
        QVERIFY(field()->isVisible());
        QVERIFY(popup()->isAncestorOf(field()));
        QCOMPARE(highlighted(), u"Staple"_s);
        press(Qt::Key_Return);
        QVERIFY(!isOpen());
        QVERIFY(!field()->isVisible());
        QVERIFY(m_window->child<QTreeView>(u"options"_s)->hasFocus());
        QTest::mouseClick(button, Qt::LeftButton);
        QVERIFY(isOpen());
        QVERIFY(field()->hasFocus());
        press(Qt::Key_Escape);
        QVERIFY(!isOpen());
        QVERIFY(m_window->dialog().isVisible());
    }

    void eachSettingLeadsToItsControl_data()
    {
        QTest::addColumn<QString>("ppd");
        for (const QString &ppd : samplePrinters())
            QTest::newRow(qPrintable(ppd)) << ppd;
    }
    void eachSettingLeadsToItsControl()
    {
        QFETCH(QString, ppd);
        openSample(ppd);
        const QList<Setting> settings = settingsIndexOf(task()).settings();
        QVERIFY(settings.size() > 15);
        for (const Setting &setting : settings) {
            m_window->showPage(0);
            startSearch(setting.keyword);
            const auto rows = found();
            int row = 0;
            while (row < rows.size() && (rows.at(row) != setting.name ||
                                         list()->model()->index(row, 0).data(Qt::UserRole + 1) !=
                                             QVariant(setting.place.titles.join(u" › "_s))))
                ++row;
            QVERIFY2(row < rows.size(), qPrintable(setting.keyword + u" is not found"_s));
            for (int i = 0; i < row; ++i)
                press(Qt::Key_Down);
            press(Qt::Key_Return);
            compareShown(setting);
            if (QTest::currentTestFailed())
                return;
        }
    }

    void changesInTheListOfAllOptionsReachThePanels()
    {
        openSample(u"corvana-cl5.ppd"_s);
        QCOMPARE(m_window->pages()->tabText(3), u"All Options"_s);
        startSearch(u"drying"_s);
        press(Qt::Key_Return);
        QCOMPARE(m_window->pages()->currentIndex(), 3);
        auto *options = m_window->child<QTreeView>(u"options"_s);
        QVERIFY(options->hasFocus());
        const auto rowOf = [&](const QString &keyword) {
            return options->model()->match(options->model()->index(0, 0), Qt::UserRole, keyword, 2,
                                           Qt::MatchExactly | Qt::MatchRecursive);
        };
        for (const QString &keyword :
             {u"QXSlowDrying"_s, u"Duplex"_s, u"QXMediaType"_s, u"QXRed"_s})
            QCOMPARE(rowOf(keyword).size(), 1);
        QVERIFY(options->model()->setData(rowOf(u"QXRed"_s).at(0).siblingAtColumn(1), u"5"_s,
                                          Qt::EditRole));
        QVERIFY(options->model()->setData(rowOf(u"QXMediaType"_s).at(0).siblingAtColumn(1),
                                          u"Thick"_s, Qt::EditRole));
        m_window->showPage(1);
        QCOMPARE(m_window->child<QComboBox>(u"mediaTypePopup"_s)->currentText(), u"Thick Paper"_s);
        m_window->showPage(2);
        QCOMPARE(m_window->child<QLineEdit>(u"redField"_s)->text(), u"5"_s);
        m_window->child<QLineEdit>(u"redField"_s);
        m_window->showPage(3);
        QCOMPARE(rowOf(u"QXRed"_s).at(0).siblingAtColumn(1).data().toString(), u"5"_s);
    }

private:
    // The control that the setting is found at: on its page, seen, with the focus in it; or, where
    // it cannot be used now, with a message that says so.
    void compareShown(const Setting &setting)
    {
        const QByteArray keyword = setting.keyword.toUtf8();
        const char *name = keyword.constData();
        const QWidget *focus = QApplication::focusWidget();
        QVERIFY2(focus && focus->isVisible(), name);
        QVERIFY2(!isOpen(), name);
        QWidget *control = nullptr;
        switch (setting.place.page) {
        case SettingPlace::Page::Options: {
            const auto *options = m_window->child<QTreeView>(u"options"_s);
            QCOMPARE(options->currentIndex().data(Qt::UserRole).toString(), setting.keyword);
            QVERIFY2(options->hasFocus(), name);
            return;
        }
        case SettingPlace::Page::Panel:
            for (const PanelControl &one : task().opened()->panels->controls(setting.place.panel)) {
                if (one.keyword == setting.keyword)
                    control = one.control;
            }
            break;
        case SettingPlace::Page::General:
            QCOMPARE(m_window->pages()->currentIndex(), 0);
            control = m_window->child<QWidget>(
                setting.kind == Setting::Kind::Pages ? u"pageRanges"_s : setting.keyword);
            break;
        }
        QVERIFY2(control && control->isVisible(), name);
        const bool hasFocus = control == focus || control->isAncestorOf(focus);
        if (!control->isEnabled())
            QVERIFY2(m_window->message().contains(setting.name), name);
        else
            QVERIFY2(hasFocus, name);
    }
};

QTEST_MAIN(WindowFindTest)

#include "window_find_test.moc"
