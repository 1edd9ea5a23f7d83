#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSignalSpy>
#include <QTest>

#include "dialog/window/pages/CustomPaperSize.h"
#include "dialog/window/pages/GeneralPage.h"
#include "platform/toolkit/PopUpButton.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

/// The paper sizes of the general page, and the row for a size of the user's own.
class PaperSizeRowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        m_page.reset();
        m_session.reset();
    }

    void aListedPaperHasNoFields()
    {
        open(sampleSession());
        QVERIFY(size());
        QVERIFY(!size()->isVisible());
        QVERIFY(popup::indexOfItemWithTitle(papers(), u"Custom Size"_s) >= 0);
    }

    void aPrinterWithoutCustomSizesOffersNone()
    {
        open(sessionFor(smallPrinter()));
        QVERIFY(!size());
        QCOMPARE(popup::indexOfItemWithTitle(papers(), u"Custom Size"_s), -1);
        QVERIFY(papers()->count() >= 2);
    }

    void theCustomSizeStandsOnceInTheMenuAndLast()
    {
        open(sampleSession());
        int custom = 0;
        for (int i = 0; i < papers()->count(); ++i)
            custom += popup::representedObject(papers(), i) == QVariant(u"Custom"_s) ? 1 : 0;
        QCOMPARE(custom, 1);
        QCOMPARE(popup::representedObject(papers(), papers()->count() - 1), QVariant(u"Custom"_s));
    }

    void aPickOfTheCustomSizeStartsAtThePaperInUse()
    {
        open(sampleSession());
        const Paper before = m_session->pageFormat().paper;
        QVERIFY(pick(papers(), u"Custom Size"_s));
        QCOMPARE(m_session->markedChoice(u"PageSize"_s), u"Custom"_s);
        QCOMPARE(m_session->customValue(u"PageSize"_s),
                 u"Custom.%1x%2"_s.arg(before.width).arg(before.height));
        QVERIFY(size()->isVisible());
        QCOMPARE(size()->size(), QSizeF(before.width, before.height));
        QCOMPARE(papers()->currentText(), u"Custom Size"_s);
        QCOMPARE(m_session->pageFormat().paper.width, before.width);
    }

    void anEnteredSizeReachesTheSession()
    {
        open(sampleSession());
        QVERIFY(pick(papers(), u"Custom Size"_s));
        m_page->findChild<QComboBox *>(u"paperUnit"_s)->setCurrentIndex(0);
        enter(u"paperWidth"_s, u"127"_s);
        enter(u"paperHeight"_s, u"254"_s);
        QCOMPARE(m_session->customValue(u"PageSize"_s), u"Custom.360x720"_s);
        QCOMPARE(m_session->pageFormat().paper.width, 360.0);
        QCOMPARE(m_session->pageFormat().paper.height, 720.0);
        QCOMPARE(m_session->printSettings().value(u"PageSize"_s), QVariant(u"Custom"_s));
    }

    void everySizeThatTheFieldsTakeIsTakenByTheSession_data()
    {
        QTest::addColumn<int>("unit");
        QTest::newRow("millimetres") << 0;
        QTest::newRow("inches") << 1;
    }
    void everySizeThatTheFieldsTakeIsTakenByTheSession()
    {
        QFETCH(int, unit);
        open(sampleSession());
        QVERIFY(pick(papers(), u"Custom Size"_s));
        m_page->findChild<QComboBox *>(u"paperUnit"_s)->setCurrentIndex(unit);
        QDoubleSpinBox *width = field(u"paperWidth"_s);
        QDoubleSpinBox *height = field(u"paperHeight"_s);
        for (double part = 0; part <= 1.0; part += 0.05) {
            width->setValue(width->minimum() + part * (width->maximum() - width->minimum()));
            height->setValue(height->minimum() + part * (height->maximum() - height->minimum()));
            const Paper &paper = m_session->pageFormat().paper;
            QVERIFY(qAbs(paper.width - size()->size().width()) < 0.001);
            QVERIFY(qAbs(paper.height - size()->size().height()) < 0.001);
        }
        QCOMPARE(m_refused, 0);
    }

    void aSizeOfTheCommandLineIsShown()
    {
        auto session = sampleSession();
        session->change(u"PageSize"_s, u"Custom.360x504"_s, Origin::Dialog);
        open(std::move(session));
        QVERIFY(size()->isVisible());
        QCOMPARE(size()->size(), QSizeF(360, 504));
        QCOMPARE(papers()->currentText(), u"Custom Size"_s);
        m_page->findChild<QComboBox *>(u"paperUnit"_s)->setCurrentIndex(1);
        QCOMPARE(field(u"paperWidth"_s)->value(), 5.0);
        QCOMPARE(field(u"paperHeight"_s)->value(), 7.0);
    }

    void showingASizeProposesNothing()
    {
        auto session = sampleSession();
        session->change(u"PageSize"_s, u"Custom.283.4567x419.5432"_s, Origin::Dialog);
        open(std::move(session));
        const QSignalSpy proposed(m_page.get(), &GeneralPage::proposed);
        m_page->refresh();
        m_page->findChild<QComboBox *>(u"paperUnit"_s)->setCurrentIndex(1);
        m_page->findChild<QComboBox *>(u"paperUnit"_s)->setCurrentIndex(0);
        m_page->refresh();
        QCOMPARE(proposed.size(), 0);
        QCOMPARE(m_session->customValue(u"PageSize"_s), u"Custom.283.4567x419.5432"_s);
    }

    void aListedPaperHidesTheFieldsAgain()
    {
        open(sampleSession());
        const QString former = papers()->currentText();
        QVERIFY(pick(papers(), u"Custom Size"_s));
        QVERIFY(size()->isVisible());
        QVERIFY(pick(papers(), former));
        QVERIFY(!size()->isVisible());
        QVERIFY(m_session->customValue(u"PageSize"_s).isNull());
        QCOMPARE(papers()->currentText(), former);
    }

    void aPickThatIsRefusedShowsTheFormerPaper()
    {
        open(sampleSession());
        m_refuse = true;
        const QString former = papers()->currentText();
        QVERIFY(pick(papers(), u"Custom Size"_s));
        QCOMPARE(papers()->currentText(), former);
        QVERIFY(!size()->isVisible());
    }

    void aRefusedSizeShowsTheFormerOne()
    {
        open(sampleSession());
        QVERIFY(pick(papers(), u"Custom Size"_s));
        m_page->findChild<QComboBox *>(u"paperUnit"_s)->setCurrentIndex(1);
        enter(u"paperWidth"_s, u"5"_s);
        const QSizeF before = size()->size();
        m_refuse = true;
        enter(u"paperWidth"_s, u"6"_s);
        QCOMPARE(m_refused, 1);
        QCOMPARE(size()->size(), before);
        QCOMPARE(field(u"paperWidth"_s)->value(), 5.0);
    }

private:
    // A page whose proposals go to its session, as in the dialog.
    void open(std::unique_ptr<PpdSession> session)
    {
        m_refuse = false;
        m_refused = 0;
        m_session = std::move(session);
        m_page = std::make_unique<GeneralPage>(*m_session);
        connect(m_page.get(), &GeneralPage::proposed, this,
                [this](const QString &keyword, const QString &choice) {
                    if (m_refuse || !m_session->change(keyword, choice, Origin::Dialog).accepted())
                        ++m_refused;
                    m_page->refresh();
                });
        m_page->show();
        m_page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    }
    QComboBox *papers() { return m_page->findChild<QComboBox *>(u"PageSize"_s); }
    CustomPaperSize *size() { return m_page->findChild<CustomPaperSize *>(); }
    QDoubleSpinBox *field(const QString &name) { return m_page->findChild<QDoubleSpinBox *>(name); }
    void enter(const QString &name, const QString &text)
    {
        field(name)->setFocus();
        field(name)->selectAll();
        QTest::keyClicks(field(name), text);
        QTest::keyClick(field(name), Qt::Key_Return);
    }

    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<GeneralPage> m_page;
    bool m_refuse = false;
    int m_refused = 0;
};

QTEST_MAIN(PaperSizeRowTest)
#include "paper_size_row_test.moc"
