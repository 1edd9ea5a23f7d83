#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include "dialog/session/OptionRequest.h"
#include "dialog/window/PrintWindow.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The attributes of a job, from the window's controls to what the filters are called with.
class WindowAttributesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<PrintWindow> m_dialog;

    void open(const QString &options = {})
    {
        m_filter = std::make_unique<FakeFilter>("printf '%s\\n' \"$@\" >$DIR/arguments; echo ok\n");
        writeFile(m_filter->ppdPath(), smallPrinter().text());
        PrintRequest request;
        request.documents = {m_filter->document()};
        request.title = u"Job"_s;
        request.output = m_filter->output();
        if (!options.isEmpty())
            request.options = parseOptions({options});
        request.printers = {{u"small"_s, u"Small"_s, m_filter->ppdPath(), 1}};
        m_dialog = std::make_unique<PrintWindow>(request);
        m_dialog->show();
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
        QTRY_VERIFY(control<QPushButton>(u"print"_s)->isEnabled());
        QTRY_VERIFY(control<QTableWidget>(u"summary"_s)); // the panels have come up
    }
    template <typename Control = QWidget> Control *control(const QString &name)
    {
        return m_dialog->findChild<Control *>(name);
    }
    QStringList summary(const QString &title)
    {
        auto *pages = control<QTabWidget>(u"pages"_s);
        const int before = pages->currentIndex();
        pages->setCurrentIndex(pages->count() - 1);
        const auto *table = control<QTableWidget>(u"summary"_s);
        QStringList values;
        for (int row = 0; row < table->rowCount(); ++row) {
            if (table->item(row, 0)->text() == title)
                values += table->item(row, 1)->text();
        }
        pages->setCurrentIndex(before);
        return values;
    }
    QByteArrayList printed()
    {
        control<QPushButton>(u"print"_s)->click();
        const bool done = QTest::qWaitFor([this] { return m_filter->hasOutput(); }, 20000);
        return done ? m_filter->content(u"arguments"_s).split('\n') : QByteArrayList();
    }

private Q_SLOTS:
    void cleanup()
    {
        m_dialog.reset();
        m_filter.reset();
    }

    void whatTheControlsShowIsInTheSummaryAndTheJob()
    {
        open(u"number-up=2 job-billing=Accounts"_s);
        auto *pagesPerSheet = control<QComboBox>(u"number-up"_s);
        QCOMPARE(pagesPerSheet->currentText(), u"2"_s);
        QVERIFY(pick(pagesPerSheet, u"4"_s));
        QVERIFY(pick(control<QComboBox>(u"print-scaling"_s), u"Fit to Paper"_s));
        QCOMPARE(pagesPerSheet->currentText(), u"4"_s);
        QCOMPARE(summary(u"Pages per Sheet"_s), QStringList{u"4"_s});
        QCOMPARE(summary(u"Scaling"_s), QStringList{u"Fit to Paper"_s});
        QCOMPARE(control<QLabel>(u"moreIsSet"_s)->text(), u"Billed To: Accounts"_s);
        const QByteArrayList arguments = printed();
        QVERIFY(arguments.contains("number-up=4"));
        QVERIFY(arguments.contains("print-scaling=fit"));
        QVERIFY(arguments.contains("job-billing=Accounts"));
    }

    // The field proposes it when it loses the focus, which it does at the latest with its window.
    void aWindowMayGoWhileSomethingIsTyped()
    {
        open(u"job-billing=Accounts"_s);
        control<QPushButton>(u"more"_s)->click();
        auto *billing = control<QLineEdit>(u"job-billing"_s);
        billing->setFocus();
        QTRY_VERIFY(billing->hasFocus());
        QTest::keyClicks(billing, u"!"_s);
        m_dialog.reset();
    }

    void collatingFollowsTheCopies()
    {
        open();
        auto *collate = control<QCheckBox>(u"collate"_s);
        QVERIFY(!collate->isEnabled() && collate->isChecked());
        control<QSpinBox>(u"copies"_s)->setValue(2);
        QVERIFY(collate->isEnabled());
        QVERIFY(click(collate));
        QCOMPARE(summary(u"Copies"_s), QStringList{u"2, not collated"_s});
        QVERIFY(printed().contains("collate=false"));
    }

    void whatIsTypedIsTakenBeforeItPrints()
    {
        open(u"job-sheets=standard"_s);
        control<QPushButton>(u"more"_s)->click();
        auto *sheets = control<QLineEdit>(u"job-sheets"_s);
        sheets->setFocus();
        sheets->selectAll();
        QTest::keyClicks(sheets, u"secret"_s);
        QTest::keyClick(sheets, Qt::Key_Return);
        QTest::qWait(100);
        QVERIFY(!m_filter->hasOutput());
        QCOMPARE(summary(u"Banner Pages"_s), QStringList{u"secret"_s});
        QVERIFY(printed().contains("job-sheets=secret"));
    }

    void aValueOutOfItsRangeIsSaidAndNothingIsPrinted()
    {
        open(u"job-priority=20"_s);
        control<QPushButton>(u"more"_s)->click();
        auto *priority = control<QDoubleSpinBox>(u"job-priority"_s);
        priority->setFocus();
        priority->selectAll();
        QTest::keyClicks(priority, u"101"_s);
        control<QTabWidget>(u"pages"_s)->setCurrentIndex(1);
        control<QPushButton>(u"print"_s)->click();
        QTest::qWait(100);
        QVERIFY(!m_filter->hasOutput());
        QCOMPARE(control<QTabWidget>(u"pages"_s)->currentIndex(), 0);
        QVERIFY(priority->hasFocus());
        const auto *note = control<QLabel>(u"job-priorityNote"_s);
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), u"“101” is not allowed. Allowed: 1 to 100."_s);
        QCOMPARE(priority->text(), u"101"_s);
        QCOMPARE(summary(u"Priority"_s), QStringList{u"20"_s});
        priority->selectAll();
        QTest::keyClicks(priority, u"100"_s);
        QVERIFY(printed().contains("job-priority=100"));
    }

    void copiesThatNobodyCanPrintAreSaidAndNothingIsPrinted_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("none") << u"0"_s << u"0"_s;
        QTest::newRow("no number") << QString() << u"0"_s;
        QTest::newRow("one digit too many") << u"12345"_s << u"12345"_s;
    }
    void copiesThatNobodyCanPrintAreSaidAndNothingIsPrinted()
    {
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        open(u"copies=7"_s);
        auto *copies = control<QSpinBox>(u"copies"_s);
        copies->setFocus();
        copies->selectAll();
        QTest::keyClick(copies, Qt::Key_Delete);
        QTest::keyClicks(copies, typed);
        control<QTabWidget>(u"pages"_s)->setCurrentIndex(1);
        control<QPushButton>(u"print"_s)->click();
        QTest::qWait(100);
        QVERIFY(!m_filter->hasOutput());
        QCOMPARE(control<QTabWidget>(u"pages"_s)->currentIndex(), 0);
        QVERIFY(copies->hasFocus());
        QCOMPARE(copies->text(), shown);
        const auto *note = control<QLabel>(u"copiesNote"_s);
        QVERIFY(note && note->isVisible());
        QCOMPARE(note->text(), u"“%1” is not allowed. Allowed: 1 to 9,999."_s.arg(shown));
        // What else is set does not replace what has to be mended.
        QVERIFY(pick(control<QComboBox>(u"number-up"_s), u"4"_s));
        QCOMPARE(copies->text(), shown);
        copies->selectAll();
        QTest::keyClicks(copies, u"2"_s);
        QVERIFY(!note->isVisible());
        QVERIFY(printed().contains("2"));
    }

    void theWindowFollowsWhatIsDisclosedAndGoesBack()
    {
        open();
        const QSize size = m_dialog->size();
        auto *more = control<QPushButton>(u"more"_s);
        more->click();
        QTRY_VERIFY(m_dialog->height() > size.height());
        QCOMPARE(m_dialog->width(), size.width());
        more->click();
        QTRY_COMPARE(m_dialog->size(), size);
        more->click();
        QTRY_VERIFY(m_dialog->height() > size.height());
        // Another page needs nothing of it.
        control<QTabWidget>(u"pages"_s)->setCurrentIndex(1);
        QTRY_COMPARE(m_dialog->size(), size);
    }
};

QTEST_MAIN(WindowAttributesTest)

#include "window_attributes_test.moc"
