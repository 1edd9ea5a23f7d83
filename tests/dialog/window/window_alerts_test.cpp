#include <algorithm>
#include <functional>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "dialog/window/WindowAlertPresenter.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

using Act = std::function<void(QMessageBox &)>;

// Runs the alert while `act` does what its user does. An alert that is still open then is closed.
AlertAnswer answered(const Alert &alert, const Act &act, QWidget *parent = nullptr)
{
    bool ran = false;
    QTimer::singleShot(0, qApp, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        ran = true;
        act(*box);
        if (box->isVisible()) {
            QTest::qFail("the alert was not answered", __FILE__, __LINE__);
            box->done(0);
        }
    });
    WindowAlertPresenter presenter;
    const AlertAnswer answer = presenter.runModal(alert, parent);
    if (!ran)
        QTest::qFail("no alert was shown", __FILE__, __LINE__);
    return answer;
}

void clickButton(QMessageBox &box, const QString &label)
{
    const auto buttons = box.buttons();
    for (QAbstractButton *button : buttons) {
        if (button->text() == label)
            return button->click();
    }
}

const Act kEscape = [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); };

Alert threeButtons()
{
    Alert alert;
    alert.messageText = u"Open the cover"_s;
    alert.informativeText = u"Pull both levers."_s;
    alert.buttons = {u"Continue"_s, u"Wait"_s, u"Stop"_s};
    return alert;
}

// A picture as panels hand it over: hidden, of a fixed size.
QWidget *newIllustration(QWidget *parent)
{
    auto *view = new QWidget(parent);
    view->setFixedSize(120, 80);
    view->hide();
    return view;
}

} // namespace

/// The alerts of panels as windows.
class WindowAlertsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextsAreShownAsTheyAre()
    {
        Alert alert = threeButtons();
        alert.messageText = u"<b>A & B</b>"_s;
        alert.informativeText = u"1 < 2"_s;
        answered(alert, [&](QMessageBox &box) {
            QCOMPARE(box.text(), alert.messageText);
            QCOMPARE(box.informativeText(), alert.informativeText);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            kEscape(box);
        });
    }

    void theStyleChoosesTheIcon_data()
    {
        QTest::addColumn<Alert::Style>("style");
        QTest::addColumn<QMessageBox::Icon>("icon");
        QTest::newRow("a warning") << Alert::Style::Warning << QMessageBox::Warning;
        QTest::newRow("information") << Alert::Style::Informational << QMessageBox::Information;
    }
    void theStyleChoosesTheIcon()
    {
        QFETCH(Alert::Style, style);
        QFETCH(QMessageBox::Icon, icon);
        Alert alert = threeButtons();
        alert.style = style;
        answered(alert, [&](QMessageBox &box) {
            QCOMPARE(box.icon(), icon);
            kEscape(box);
        });
    }

    void theButtonsStandInTheirOrder()
    {
        const Alert alert = threeButtons();
        answered(alert, [&](QMessageBox &box) {
            QStringList labels;
            auto buttons = box.buttons();
            std::sort(buttons.begin(), buttons.end(), [](const auto *one, const auto *other) {
                return one->geometry().x() < other->geometry().x();
            });
            for (const QAbstractButton *button : std::as_const(buttons))
                labels += button->text();
            QCOMPARE(labels, alert.buttons);
            kEscape(box);
        });
    }

    void theButtonThatIsClickedIsTheAnswer_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("index");
        QTest::newRow("first") << u"Continue"_s << 0;
        QTest::newRow("second") << u"Wait"_s << 1;
        QTest::newRow("last") << u"Stop"_s << 2;
    }
    void theButtonThatIsClickedIsTheAnswer()
    {
        QFETCH(QString, label);
        QFETCH(int, index);
        const AlertAnswer answer =
            answered(threeButtons(), [&](QMessageBox &box) { clickButton(box, label); });
        QCOMPARE(answer.button, index);
        QVERIFY(!answer.suppressed);
    }

    void enterAnswersWithTheFirstButton_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Enter of the number pad") << int(Qt::Key_Enter);
    }
    void enterAnswersWithTheFirstButton()
    {
        QFETCH(int, key);
        const AlertAnswer answer = answered(threeButtons(), [&](QMessageBox &box) {
            QCOMPARE(box.defaultButton()->text(), u"Continue"_s);
            QTest::keyClick(&box, Qt::Key(key));
        });
        QCOMPARE(answer.button, 0);
    }

    void leavingTheWindowAnswersWithTheLastButton_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::addColumn<QStringList>("buttons");
        const QStringList three = threeButtons().buttons;
        QTest::newRow("Escape") << true << three;
        QTest::newRow("the window's close button") << false << three;
        QTest::newRow("Escape with one button") << true << QStringList{u"OK"_s};
        QTest::newRow("the close button with one button") << false << QStringList{u"OK"_s};
    }
    void leavingTheWindowAnswersWithTheLastButton()
    {
        QFETCH(bool, byKey);
        QFETCH(QStringList, buttons);
        Alert alert = threeButtons();
        alert.buttons = buttons;
        const AlertAnswer answer = answered(alert, [&](QMessageBox &box) {
            if (byKey)
                kEscape(box);
            else
                box.close();
        });
        QCOMPARE(answer.button, int(buttons.size()) - 1);
    }

    void theAlertBelongsToTheWindowOfThePanel()
    {
        QWidget window;
        auto *view = new QWidget(&window);
        answered(
            threeButtons(),
            [&](QMessageBox &box) {
                QCOMPARE(box.parentWidget(), &window);
                QVERIFY(box.isModal());
                kEscape(box);
            },
            view);
    }

    void theSuppressionBoxIsShownWhereItIsWanted()
    {
        Alert alert = threeButtons();
        answered(alert, [](QMessageBox &box) {
            QVERIFY(!box.checkBox());
            kEscape(box);
        });
        alert.showsSuppressionButton = true;
        answered(alert, [](QMessageBox &box) {
            QVERIFY(box.checkBox());
            QVERIFY(box.checkBox()->isVisible());
            QVERIFY(!box.checkBox()->isChecked());
            kEscape(box);
        });
    }

    void theSuppressionBoxIsPartOfTheAnswer_data()
    {
        QTest::addColumn<QString>("label");
        QTest::addColumn<int>("clicks");
        QTest::addColumn<bool>("suppressed");
        QTest::newRow("left alone") << u"Continue"_s << 0 << false;
        QTest::newRow("on") << u"Continue"_s << 1 << true;
        QTest::newRow("on, with another button") << u"Stop"_s << 1 << true;
        QTest::newRow("on and off again") << u"Continue"_s << 2 << false;
    }
    void theSuppressionBoxIsPartOfTheAnswer()
    {
        QFETCH(QString, label);
        QFETCH(int, clicks);
        QFETCH(bool, suppressed);
        Alert alert = threeButtons();
        alert.showsSuppressionButton = true;
        const AlertAnswer answer = answered(alert, [&](QMessageBox &box) {
            for (int i = 0; i < clicks; ++i)
                box.checkBox()->click();
            clickButton(box, label);
        });
        QCOMPARE(answer.suppressed, suppressed);
    }

    void theIllustrationIsShownBetweenTheTextAndTheButtons_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("suppression");
        QTest::newRow("two texts") << u"Pull both levers."_s << false;
        QTest::newRow("the title line alone") << QString() << false;
        QTest::newRow("with a suppression box") << u"Pull both levers."_s << true;
        QTest::newRow("with a long text")
            << u"Pull both levers, one after the other. "_s.repeated(20) << true;
    }
    void theIllustrationIsShownBetweenTheTextAndTheButtons()
    {
        QFETCH(QString, text);
        QFETCH(bool, suppression);
        QWidget panel;
        Alert alert = threeButtons();
        alert.informativeText = text;
        alert.showsSuppressionButton = suppression;
        alert.accessoryView = newIllustration(&panel);
        const QWidget *view = alert.accessoryView;
        answered(alert, [&](QMessageBox &box) {
            QVERIFY(box.isAncestorOf(view));
            QVERIFY(view->isVisible());
            QCOMPARE(view->size(), QSize(120, 80));
            const auto areaOf = [&box](const QWidget *widget) {
                return QRect(widget->mapTo(&box, QPoint()), widget->size());
            };
            const QRect area = areaOf(view);
            QVERIFY(box.rect().contains(area));
            auto *title = box.findChild<QLabel *>(u"qt_msgbox_label"_s);
            QVERIFY(area.top() > areaOf(title).bottom());
            if (auto *informative = box.findChild<QLabel *>(u"qt_msgbox_informativelabel"_s))
                QVERIFY(area.top() > areaOf(informative).bottom());
            if (suppression)
                QVERIFY(area.bottom() < areaOf(box.checkBox()).top());
            const auto buttons = box.buttons();
            for (const QAbstractButton *button : buttons)
                QVERIFY(area.bottom() < areaOf(button).top());
            kEscape(box);
        });
    }

    void theIllustrationGoesBackToItsParent()
    {
        QWidget panel;
        Alert alert = threeButtons();
        const QPointer<QWidget> view = alert.accessoryView = newIllustration(&panel);
        for (int i = 0; i < 2; ++i) {
            answered(alert, kEscape);
            QVERIFY(view);
            QCOMPARE(view->parentWidget(), &panel);
            QVERIFY(view->isHidden());
        }
    }

    void anIllustrationWithoutAParentStaysWithoutOne()
    {
        Alert alert = threeButtons();
        alert.accessoryView = newIllustration(nullptr);
        const QPointer<QWidget> view = alert.accessoryView;
        answered(alert, kEscape);
        QVERIFY(view);
        QVERIFY(!view->parentWidget());
        delete view;
    }

    // The panel deletes the view that it owns, and must find it.
    void theIllustrationOutlivesAParentThatDiesMeanwhile()
    {
        auto *panel = new QWidget;
        Alert alert = threeButtons();
        alert.accessoryView = newIllustration(panel);
        const QPointer<QWidget> view = alert.accessoryView;
        answered(alert, [&](QMessageBox &box) {
            delete panel;
            QVERIFY(view);
            kEscape(box);
        });
        QVERIFY(view);
        QVERIFY(!view->parentWidget());
        QVERIFY(view->isHidden());
        delete view;
    }

    void anIllustrationThatDiesMeanwhileIsForgotten()
    {
        QWidget panel;
        Alert alert = threeButtons();
        alert.accessoryView = newIllustration(&panel);
        const AlertAnswer answer = answered(alert, [&](QMessageBox &box) {
            delete alert.accessoryView;
            clickButton(box, u"Wait"_s);
        });
        QCOMPARE(answer.button, 1);
    }
};

QTEST_MAIN(WindowAlertsTest)

#include "window_alerts_test.moc"
