#include <memory>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "dialog/window/FocusInSight.h"

using namespace corvana;

/// What is seen of the control that has the focus, on a page that scrolls.
class FocusInSightTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kRows = 20;
    static constexpr int kRowHeight = 30;
    static constexpr int kPageHeight = 200;

    std::unique_ptr<QWidget> m_window;
    QScrollArea *m_area = nullptr;
    QWidget *m_above = nullptr; // what may take room from the page
    QList<QLineEdit *> m_fields;
    QComboBox *m_popUp = nullptr; // the last row

    QWidget *seenIn() const { return m_area->viewport(); }
    QRect placeOf(const QWidget *control) const
    {
        return {control->mapTo(seenIn(), QPoint()), control->size()};
    }
    bool isWhollySeen(const QWidget *control) const
    {
        return seenIn()->rect().contains(placeOf(control));
    }
    // So that this much of a row stands at the lower edge of the page.
    void showOnly(const QWidget *control, int pixels)
    {
        const int top = control->mapTo(m_area->widget(), QPoint()).y();
        m_area->verticalScrollBar()->setValue(top + pixels - seenIn()->height());
        QCOMPARE(seenIn()->height() - placeOf(control).top(), pixels);
    }
    void turnTheWheel(int steps)
    {
        const QPoint middle = seenIn()->rect().center();
        QWheelEvent event(middle, seenIn()->mapToGlobal(middle), {}, {0, -120 * steps},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(seenIn(), &event);
    }
    static void waitForAnything() { QTest::qWait(QApplication::doubleClickInterval() + 100); }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_fields.clear();
        auto *column = new QVBoxLayout(m_window.get());
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        m_above = new QWidget;
        m_above->hide();
        column->addWidget(m_above);
        m_area = new QScrollArea;
        m_area->setWidgetResizable(true);
        m_area->setFocusPolicy(Qt::NoFocus);
        column->addWidget(m_area);
        auto *rows = new QWidget;
        auto *list = new QVBoxLayout(rows);
        for (int i = 0; i < kRows; ++i) {
            m_fields += new QLineEdit(rows);
            m_fields.constLast()->setFixedHeight(kRowHeight);
            list->addWidget(m_fields.constLast());
        }
        m_popUp = new QComboBox(rows);
        m_popUp->addItems({QStringLiteral("one"), QStringLiteral("two")});
        m_popUp->setFixedHeight(kRowHeight);
        list->addWidget(m_popUp);
        m_area->setWidget(rows);
        new FocusInSight(m_window.get());
        m_window->resize(300, kPageHeight);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QVERIFY(m_area->verticalScrollBar()->maximum() > 2 * kPageHeight);
    }
    void cleanup() { m_window.reset(); }

    void aControlThatAProgramFocusesIsWhollySeen_data()
    {
        QTest::addColumn<int>("row");
        QTest::newRow("below") << 10;
        QTest::newRow("the last") << kRows - 1;
    }
    void aControlThatAProgramFocusesIsWhollySeen()
    {
        QFETCH(int, row);
        m_fields.at(row)->setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(isWhollySeen(m_fields.at(row)));
        m_fields.at(0)->setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(isWhollySeen(m_fields.at(0)));
    }

    // The cursor stands in the middle of it, and is seen before the edges are.
    void aFieldOfWhichOnlyTheCursorIsSeenIsWhollySeen()
    {
        QLineEdit *field = m_fields.at(10);
        showOnly(field, kRowHeight - 2);
        field->setFocus(Qt::OtherFocusReason);
        QTRY_VERIFY(isWhollySeen(field));
    }

    void aControlThatIsClickedAtItsEdgeIsWhollySeenWhenTheClicksAreOver()
    {
        constexpr int kSeen = 3;
        QLineEdit *field = m_fields.at(10);
        showOnly(field, kSeen);
        QTest::mousePress(field, Qt::LeftButton, {}, {50, 1});
        waitForAnything();
        QCOMPARE(seenIn()->height() - placeOf(field).top(), kSeen); // the button is held
        QTest::mouseRelease(field, Qt::LeftButton, {}, {50, 1});
        QCoreApplication::processEvents();
        QCOMPARE(seenIn()->height() - placeOf(field).top(), kSeen); // it may be a double click
        QTest::mouseDClick(field, Qt::LeftButton, {}, {50, 1});
        QTest::mouseRelease(field, Qt::LeftButton, {}, {50, 1}); // which that leaves out
        QTRY_VERIFY(isWhollySeen(field));
    }

    void aPopUpIsScrolledToWhenItsListIsClosed()
    {
        showOnly(m_popUp, 6);
        QTest::mouseClick(m_popUp, Qt::LeftButton, {}, {50, 2});
        QTRY_VERIFY(QApplication::activePopupWidget());
        waitForAnything();
        QCOMPARE(seenIn()->height() - placeOf(m_popUp).top(), 6);
        m_popUp->hidePopup();
        QTRY_VERIFY(isWhollySeen(m_popUp));
    }

    void aPageThatBecomesShorterKeepsTheFocusInSight()
    {
        QLineEdit *field = m_fields.at(5);
        field->setFocus();
        QTRY_VERIFY(isWhollySeen(field));
        m_above->setFixedHeight(kPageHeight / 2); // a message
        m_above->show();
        QTRY_VERIFY(seenIn()->height() < kPageHeight);
        QTRY_VERIFY(isWhollySeen(field));
        m_window->resize(300, kPageHeight / 2 + 60);
        QTRY_VERIFY(isWhollySeen(field));
    }

    void rowsThatComeAboveTakeNoFocusOutOfSight()
    {
        m_fields.at(0)->hide();
        m_fields.at(1)->hide();
        m_fields.at(2)->hide();
        QCoreApplication::processEvents();
        QLineEdit *field = m_fields.at(6);
        field->setFocus();
        waitForAnything();
        QVERIFY(isWhollySeen(field));
        for (int i = 0; i < 3; ++i)
            m_fields.at(i)->show();
        QTRY_VERIFY(placeOf(field).top() > 0);
        waitForAnything();
        QVERIFY(isWhollySeen(field));
    }

    void whoScrollsAwayStaysThere()
    {
        QLineEdit *field = m_fields.at(0);
        field->setFocus();
        turnTheWheel(3);
        QVERIFY(!isWhollySeen(field));
        const int place = m_area->verticalScrollBar()->value();
        QCoreApplication::processEvents();
        m_window->resize(300, kPageHeight - 20);
        waitForAnything();
        QCOMPARE(m_area->verticalScrollBar()->value(), place);
        // Nor does the window scroll when it gets the focus back.
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        waitForAnything();
        QCOMPARE(m_area->verticalScrollBar()->value(), place);
        m_fields.at(1)->setFocus();
        QTRY_VERIFY(isWhollySeen(m_fields.at(1)));
    }

    // To a setting that is found, and cannot have the focus.
    void aProgramThatScrollsElsewhereIsNotWorkedAgainst()
    {
        m_fields.at(0)->setFocus();
        waitForAnything();
        m_area->verticalScrollBar()->setValue(2 * kPageHeight);
        waitForAnything();
        QCOMPARE(m_area->verticalScrollBar()->value(), 2 * kPageHeight);
    }

    void whoScrollsALittleIsFollowedOn()
    {
        QLineEdit *field = m_fields.at(5);
        field->setFocus();
        QTRY_VERIFY(isWhollySeen(field));
        m_area->verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
        QVERIFY(isWhollySeen(field));
        QCoreApplication::processEvents();
        m_window->resize(300, kRowHeight + 10);
        QTRY_VERIFY(isWhollySeen(field));
    }

    // There is nothing to be gained, and what was clicked would jump.
    void aControlThatFillsThePageStaysWhereItIs()
    {
        QLineEdit *field = m_fields.at(10);
        field->setFixedHeight(3 * kPageHeight);
        QCoreApplication::processEvents();
        const int top = field->mapTo(m_area->widget(), QPoint()).y();
        QTRY_VERIFY(m_area->verticalScrollBar()->maximum() > top + 2 * kPageHeight);
        m_area->verticalScrollBar()->setValue(top + 20);
        field->setFocus();
        waitForAnything();
        QCOMPARE(m_area->verticalScrollBar()->value(), top + 20);
    }
};

QTEST_MAIN(FocusInSightTest)

#include "focus_in_sight_test.moc"
