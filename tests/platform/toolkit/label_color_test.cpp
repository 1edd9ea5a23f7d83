#include <QtTest>

#include <QLabel>
#include <QVBoxLayout>

#include "platform/toolkit/LabelColor.h"

using namespace corvana;

class LabelColorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { setPalette(m_palette); }
    void aNewLabelIsNormal();
    void aDisabledColorIsThatOfThePalette();
    void theNormalColorComesBack();
    void aChangeOfThePaletteIsFollowed_data();
    void aChangeOfThePaletteIsFollowed();
    void manyChangesOfThePaletteAreFollowed();
    void aLabelThatWasNeverColoredFollowsToo();
    void aNormalLabelFollowsThePaletteOfItsWindow();
    void theLabelItselfStaysEnabled();

private:
    static QPalette palette(const QColor &normal, const QColor &disabled);
    static void setPalette(const QPalette &palette)
    {
        QApplication::setPalette(palette);
        QCoreApplication::processEvents(); // the widgets hear of it by a posted event
    }
    static QColor shown(const QLabel &label)
    {
        return label.palette().color(QPalette::Active, QPalette::WindowText);
    }

    QPalette m_palette = QApplication::palette();
};

QPalette LabelColorTest::palette(const QColor &normal, const QColor &disabled)
{
    QPalette result;
    for (const auto role : {QPalette::WindowText, QPalette::Text}) {
        result.setColor(QPalette::Active, role, normal);
        result.setColor(QPalette::Inactive, role, normal);
        result.setColor(QPalette::Disabled, role, disabled);
    }
    return result;
}

void LabelColorTest::init()
{
    setPalette(palette(Qt::black, Qt::gray));
}

void LabelColorTest::aNewLabelIsNormal()
{
    const QLabel label;
    QCOMPARE(textColor(&label), ControlTextColor::Normal);
    QCOMPARE(shown(label), QColor(Qt::black));
}

void LabelColorTest::aDisabledColorIsThatOfThePalette()
{
    QLabel label;
    setTextColor(&label, ControlTextColor::Disabled);
    QCOMPARE(textColor(&label), ControlTextColor::Disabled);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(label.palette().color(group, QPalette::WindowText), QColor(Qt::gray));
        QCOMPARE(label.palette().color(group, QPalette::Text), QColor(Qt::gray));
    }
}

void LabelColorTest::theNormalColorComesBack()
{
    QLabel label;
    setTextColor(&label, ControlTextColor::Disabled);
    setTextColor(&label, ControlTextColor::Normal);
    QCOMPARE(textColor(&label), ControlTextColor::Normal);
    QCOMPARE(shown(label), QColor(Qt::black));
}

void LabelColorTest::aChangeOfThePaletteIsFollowed_data()
{
    QTest::addColumn<ControlTextColor>("color");
    QTest::addColumn<QColor>("dark");
    QTest::newRow("normal") << ControlTextColor::Normal << QColor(Qt::white);
    QTest::newRow("disabled") << ControlTextColor::Disabled << QColor(Qt::darkGray);
}

void LabelColorTest::aChangeOfThePaletteIsFollowed()
{
    QFETCH(ControlTextColor, color);
    QFETCH(QColor, dark);
    QLabel label;
    setTextColor(&label, ControlTextColor::Disabled);
    setTextColor(&label, color);
    setPalette(palette(Qt::white, Qt::darkGray));
    QCOMPARE(shown(label), dark);
}

void LabelColorTest::manyChangesOfThePaletteAreFollowed()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *label = new QLabel;
    layout->addWidget(label);
    setTextColor(label, ControlTextColor::Disabled);
    window.show();
    for (int i = 0; i < 3; ++i) {
        setPalette(palette(Qt::white, Qt::darkGray));
        QCOMPARE(shown(*label), QColor(Qt::darkGray));
        setPalette(palette(Qt::black, Qt::gray));
        QCOMPARE(shown(*label), QColor(Qt::gray));
    }
    setTextColor(label, ControlTextColor::Normal);
    setPalette(palette(Qt::white, Qt::darkGray));
    QCOMPARE(shown(*label), QColor(Qt::white));
}

void LabelColorTest::aLabelThatWasNeverColoredFollowsToo()
{
    const QLabel label;
    setPalette(palette(Qt::white, Qt::darkGray));
    QCOMPARE(shown(label), QColor(Qt::white));
}

void LabelColorTest::aNormalLabelFollowsThePaletteOfItsWindow()
{
    QWidget window;
    QLabel label(&window);
    setTextColor(&label, ControlTextColor::Disabled);
    setTextColor(&label, ControlTextColor::Normal);
    window.setPalette(palette(Qt::blue, Qt::gray));
    QCOMPARE(shown(label), QColor(Qt::blue));
}

void LabelColorTest::theLabelItselfStaysEnabled()
{
    QLabel label;
    setTextColor(&label, ControlTextColor::Disabled);
    QVERIFY(label.isEnabled()); // assistive technology still reads it as usable
}

QTEST_MAIN(LabelColorTest)
#include "label_color_test.moc"
