#include <QtTest>

#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "platform/toolkit/ControlActions.h"

#include "UserActs.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class WheelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void anUnfocusedControlIgnoresTheWheel_data();
    void anUnfocusedControlIgnoresTheWheel();
    void aFocusedControlFollowsTheWheel_data();
    void aFocusedControlFollowsTheWheel();
    void thePageBehindScrollsInstead_data();
    void thePageBehindScrollsInstead();
    void theWheelGivesNoFocus_data();
    void theWheelGivesNoFocus();
    void anythingElseIsLeftAlone();

private:
    void addControlRows();

    std::unique_ptr<QWidget> m_window;
};

namespace {

class Page : public QWidget
{
public:
    int scrolled = 0;

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        ++scrolled;
        event->accept();
    }
};

void turnWheel(QWidget *control)
{
    const QPointF at(control->rect().center());
    QWheelEvent event(at, control->mapToGlobal(at), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    // As from a device: only then does an event that is not accepted go on to the widget behind.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(control, &event);
}

int valueOf(const QWidget *control)
{
    if (const auto *popUp = qobject_cast<const QComboBox *>(control))
        return popUp->currentIndex();
    if (const auto *slider = qobject_cast<const QSlider *>(control))
        return slider->value();
    return qobject_cast<const QSpinBox *>(control)->value();
}

} // namespace

void WheelTest::init()
{
    m_window = std::make_unique<Page>();
    auto *layout = new QVBoxLayout(m_window.get());
    auto *other = new QSpinBox;
    other->setObjectName(u"other"_s);
    layout->addWidget(other);
    auto *popUp = new QComboBox;
    popUp->setObjectName(u"popUp"_s);
    popUp->addItems({u"0"_s, u"1"_s, u"2"_s});
    popUp->setCurrentIndex(1);
    layout->addWidget(popUp);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(u"slider"_s);
    slider->setRange(0, 100);
    slider->setValue(50);
    layout->addWidget(slider);
    auto *number = new QSpinBox;
    number->setObjectName(u"number"_s);
    number->setValue(50);
    layout->addWidget(number);
    for (QWidget *control : {static_cast<QWidget *>(popUp), static_cast<QWidget *>(slider),
                             static_cast<QWidget *>(number)})
        ignoreWheelWithoutFocus(control);
    QVERIFY(user::show(m_window.get()));
    other->setFocus();
}

void WheelTest::addControlRows()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"popUp", "slider", "number"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void WheelTest::anUnfocusedControlIgnoresTheWheel_data()
{
    addControlRows();
}

void WheelTest::anUnfocusedControlIgnoresTheWheel()
{
    QFETCH(QString, name);
    auto *control = m_window->findChild<QWidget *>(name);
    const int before = valueOf(control);
    turnWheel(control);
    QCOMPARE(valueOf(control), before);
}

void WheelTest::aFocusedControlFollowsTheWheel_data()
{
    addControlRows();
}

void WheelTest::aFocusedControlFollowsTheWheel()
{
    QFETCH(QString, name);
    auto *control = m_window->findChild<QWidget *>(name);
    control->setFocus();
    QVERIFY(control->hasFocus());
    const int before = valueOf(control);
    turnWheel(control);
    QVERIFY(valueOf(control) != before);
}

void WheelTest::thePageBehindScrollsInstead_data()
{
    addControlRows();
}

void WheelTest::thePageBehindScrollsInstead()
{
    QFETCH(QString, name);
    turnWheel(m_window->findChild<QWidget *>(name));
    QCOMPARE(static_cast<Page *>(m_window.get())->scrolled, 1);
}

void WheelTest::theWheelGivesNoFocus_data()
{
    addControlRows();
}

void WheelTest::theWheelGivesNoFocus()
{
    QFETCH(QString, name);
    auto *control = m_window->findChild<QWidget *>(name);
    QCOMPARE(control->focusPolicy(), Qt::StrongFocus);
    turnWheel(control);
    QVERIFY(!control->hasFocus());
}

void WheelTest::anythingElseIsLeftAlone()
{
    QLabel label;
    ignoreWheelWithoutFocus(&label);
    QCOMPARE(label.focusPolicy(), Qt::NoFocus);
}

QTEST_MAIN(WheelTest)
#include "wheel_test.moc"
