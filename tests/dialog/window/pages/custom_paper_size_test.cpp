#include <cmath>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSignalSpy>
#include <QTest>

#include "dialog/window/pages/CustomPaperSize.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/TestBundle.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr double kPointsOfAMillimetre = 72.0 / 25.4;
constexpr double kHair = 1e-5; // points

bool near(double a, double b)
{
    return std::abs(a - b) < 1e-9;
}

// A printer of the given limits, in points.
PpdBuilder printerOf(const QByteArray &width, const QByteArray &height)
{
    return PpdBuilder()
        .line("*VariablePaperSize: True")
        .line("*CustomPageSize True/Custom: \"\"")
        .line("*ParamCustomPageSize Width/Width: 1 points " + width)
        .line("*ParamCustomPageSize Height/Height: 2 points " + height)
        .line("*ParamCustomPageSize WidthOffset/Width Offset: 3 points 0 0")
        .line("*ParamCustomPageSize HeightOffset/Height Offset: 4 points 0 0")
        .line("*ParamCustomPageSize Orientation/Orientation: 5 int 0 0");
}

} // namespace

/// The fields for a paper of the user's own. The sample printer takes sizes from 216 x 360 to
/// 612 x 1008 points: 76.2 x 127 to 215.9 x 355.6 mm, or 3 x 5 to 8.5 x 14 inches.
class CustomPaperSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_session = sampleSession(); }
    void cleanup()
    {
        m_size.reset();
        m_session.reset();
    }

    void theUnitIsThatOfTheUsersCountry_data()
    {
        QTest::addColumn<QString>("country");
        QTest::addColumn<QString>("unit");
        QTest::newRow("Germany") << u"de_DE"_s << u"mm"_s;
        QTest::newRow("Japan") << u"ja_JP"_s << u"mm"_s;
        QTest::newRow("United Kingdom") << u"en_GB"_s << u"mm"_s;
        QTest::newRow("United States") << u"en_US"_s << u"inches"_s;
    }
    void theUnitIsThatOfTheUsersCountry()
    {
        QFETCH(QString, country);
        QFETCH(QString, unit);
        const UserLanguage user(country);
        open();
        QCOMPARE(this->unit()->currentText(), unit);
    }

    void aSizeIsShownInTheUnit_data()
    {
        QTest::addColumn<int>("unitIndex");
        QTest::addColumn<QSizeF>("points");
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        QTest::newRow("millimetres, a postcard") << 0 << QSizeF(283.46, 419.53) << 100.0 << 148.0;
        QTest::newRow("millimetres, the smallest") << 0 << QSizeF(216, 360) << 76.2 << 127.0;
        QTest::newRow("millimetres, the largest") << 0 << QSizeF(612, 1008) << 215.9 << 355.6;
        QTest::newRow("inches") << 1 << QSizeF(360, 504) << 5.0 << 7.0;
        QTest::newRow("inches, a postcard") << 1 << QSizeF(283.46, 419.53) << 3.94 << 5.83;
        QTest::newRow("too small") << 0 << QSizeF(1, 1) << 76.2 << 127.0;
        QTest::newRow("too large") << 1 << QSizeF(5000, 5000) << 8.5 << 14.0;
        QTest::newRow("nothing") << 0 << QSizeF() << 76.2 << 127.0;
    }
    void aSizeIsShownInTheUnit()
    {
        QFETCH(int, unitIndex);
        QFETCH(QSizeF, points);
        QFETCH(double, width);
        QFETCH(double, height);
        open();
        unit()->setCurrentIndex(unitIndex);
        const QSignalSpy entered(m_size.get(), &CustomPaperSize::entered);
        m_size->setSize(points);
        QVERIFY(near(field(u"paperWidth"_s)->value(), width));
        QVERIFY(near(field(u"paperHeight"_s)->value(), height));
        QCOMPARE(entered.size(), 0); // nobody entered it
    }

    void theFieldsEndAtThePrintersLimits_data()
    {
        QTest::addColumn<int>("unitIndex");
        QTest::addColumn<double>("leastWidth");
        QTest::addColumn<double>("mostWidth");
        QTest::addColumn<double>("leastHeight");
        QTest::addColumn<double>("mostHeight");
        QTest::addColumn<int>("decimals");
        QTest::newRow("millimetres") << 0 << 76.2 << 215.9 << 127.0 << 355.6 << 1;
        QTest::newRow("inches") << 1 << 3.0 << 8.5 << 5.0 << 14.0 << 2;
    }
    void theFieldsEndAtThePrintersLimits()
    {
        QFETCH(int, unitIndex);
        QFETCH(double, leastWidth);
        QFETCH(double, mostWidth);
        QFETCH(double, leastHeight);
        QFETCH(double, mostHeight);
        QFETCH(int, decimals);
        open();
        unit()->setCurrentIndex(unitIndex);
        QVERIFY(near(field(u"paperWidth"_s)->minimum(), leastWidth));
        QVERIFY(near(field(u"paperWidth"_s)->maximum(), mostWidth));
        QVERIFY(near(field(u"paperHeight"_s)->minimum(), leastHeight));
        QVERIFY(near(field(u"paperHeight"_s)->maximum(), mostHeight));
        QCOMPARE(field(u"paperWidth"_s)->decimals(), decimals);
        const QDoubleSpinBox *width = field(u"paperWidth"_s);
        QVERIFY(width->toolTip().contains(width->textFromValue(leastWidth)));
        QVERIFY(width->toolTip().contains(width->textFromValue(mostWidth)));
    }

    void limitsBetweenTwoStepsAreRoundedInwards()
    {
        m_session = sessionFor(printerOf("100 300", "101 301"));
        open();
        for (int index = 0; index < 2; ++index) {
            unit()->setCurrentIndex(index);
            const double points = index == 0 ? kPointsOfAMillimetre : 72.0;
            QVERIFY(field(u"paperWidth"_s)->minimum() * points > 100.0 - kHair);
            QVERIFY(field(u"paperWidth"_s)->maximum() * points < 300.0 + kHair);
            QVERIFY(field(u"paperHeight"_s)->minimum() * points > 101.0 - kHair);
            QVERIFY(field(u"paperHeight"_s)->maximum() * points < 301.0 + kHair);
        }
    }

    void aPrinterOfOneWidthHasNoChoiceOfIt()
    {
        m_session = sessionFor(printerOf("288 288", "100 500"));
        open();
        unit()->setCurrentIndex(1);
        m_size->setSize({200, 300});
        QCOMPARE(m_size->size(), QSizeF(288, 300));
        QCOMPARE(field(u"paperWidth"_s)->value(), 4.0);
        QCOMPARE(field(u"paperWidth"_s)->minimum(), field(u"paperWidth"_s)->maximum());
    }

    void anEnteredSizeIsTakenInPoints_data()
    {
        QTest::addColumn<int>("unitIndex");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<double>("points");
        QTest::newRow("millimetres") << 0 << u"127"_s << 360.0;
        QTest::newRow("tenths of millimetres") << 0 << u"100.1"_s << 100.1 * kPointsOfAMillimetre;
        QTest::newRow("inches") << 1 << u"5.25"_s << 378.0;
        QTest::newRow("a digit too many is not taken")
            << 0 << u"999"_s << 99 * kPointsOfAMillimetre;
        QTest::newRow("the largest") << 0 << u"215.9"_s << 215.9 * kPointsOfAMillimetre;
        QTest::newRow("too small") << 1 << u"1"_s << 216.0;
    }
    void anEnteredSizeIsTakenInPoints()
    {
        QFETCH(int, unitIndex);
        QFETCH(QString, typed);
        QFETCH(double, points);
        open();
        unit()->setCurrentIndex(unitIndex);
        m_size->setSize({400, 600});
        const QSignalSpy entered(m_size.get(), &CustomPaperSize::entered);
        type(u"paperWidth"_s, typed);
        QCOMPARE(entered.size(), 1);
        QVERIFY2(near(m_size->size().width(), points), qPrintable(toText(m_size->size().width())));
        QCOMPARE(m_size->size().height(), 600.0); // the other one stays exact
    }

    void aSizeIsTakenWhenItIsComplete()
    {
        open();
        m_size->setSize({400, 600});
        const QSignalSpy entered(m_size.get(), &CustomPaperSize::entered);
        QDoubleSpinBox *width = field(u"paperWidth"_s);
        width->setFocus();
        width->selectAll();
        QTest::keyClicks(width, u"150"_s);
        QCOMPARE(entered.size(), 0);
        QTest::keyClick(width, Qt::Key_Tab);
        QCOMPARE(entered.size(), 1);
        QVERIFY(near(m_size->size().width(), 150 * kPointsOfAMillimetre));
    }

    void anUntouchedFieldEntersNothing()
    {
        open();
        m_size->setSize({283.5, 419.5}); // between the steps of the fields
        const QSignalSpy entered(m_size.get(), &CustomPaperSize::entered);
        for (const QString &name : {u"paperWidth"_s, u"paperHeight"_s}) {
            field(name)->setFocus();
            QTest::keyClick(field(name), Qt::Key_Return);
        }
        QCOMPARE(entered.size(), 0);
        QCOMPARE(m_size->size(), QSizeF(283.5, 419.5));
    }

    void anotherUnitLosesNothing()
    {
        open();
        const QSignalSpy entered(m_size.get(), &CustomPaperSize::entered);
        for (const QSizeF &size : {QSizeF(283.4567, 419.5432), QSizeF(216, 360), QSizeF(612, 1008),
                                   QSizeF(300.001, 700.999)}) {
            m_size->setSize(size);
            for (int turn = 0; turn < 4; ++turn) {
                unit()->setCurrentIndex(turn % 2 == 0 ? 1 : 0);
                QCOMPARE(m_size->size(), size);
            }
        }
        QCOMPARE(entered.size(), 0);
    }

    void theArrowsStepByAMillimetreOrATenthOfAnInch()
    {
        open();
        unit()->setCurrentIndex(0);
        m_size->setSize({100 * kPointsOfAMillimetre, 600});
        field(u"paperWidth"_s)->stepUp();
        QVERIFY(near(field(u"paperWidth"_s)->value(), 101.0));
        QVERIFY(near(m_size->size().width(), 101 * kPointsOfAMillimetre));
        unit()->setCurrentIndex(1);
        m_size->setSize({360, 600});
        field(u"paperWidth"_s)->stepUp();
        QVERIFY(near(field(u"paperWidth"_s)->value(), 5.1));
    }

    void aLockedFieldSaysWhoHasLockedIt()
    {
        open();
        m_size->setLocked(u"Set by your administrator."_s);
        m_size->setSize({360, 600});
        unit()->setCurrentIndex(1);
        for (const QString &name : {u"paperWidth"_s, u"paperHeight"_s})
            QVERIFY2(field(name)->toolTip().contains(u"administrator"_s),
                     qPrintable(field(name)->toolTip()));
        m_size->setLocked({});
        m_size->setSize({360, 600});
        QVERIFY2(field(u"paperWidth"_s)->toolTip().contains(u"3.00"_s),
                 qPrintable(field(u"paperWidth"_s)->toolTip()));
    }

    void assistiveTechnologyKnowsTheFields()
    {
        open();
        QVERIFY(!field(u"paperWidth"_s)->accessibleName().isEmpty());
        QVERIFY(!field(u"paperHeight"_s)->accessibleName().isEmpty());
        QVERIFY(field(u"paperWidth"_s)->accessibleName() !=
                field(u"paperHeight"_s)->accessibleName());
        QVERIFY(!unit()->accessibleName().isEmpty());
        QCOMPARE(m_size->focusProxy(), field(u"paperWidth"_s));
    }

private:
    void open()
    {
        m_size = std::make_unique<CustomPaperSize>(m_session->ppd());
        m_size->show();
        m_size->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_size.get()));
    }
    QDoubleSpinBox *field(const QString &name) { return m_size->findChild<QDoubleSpinBox *>(name); }
    QComboBox *unit() { return m_size->findChild<QComboBox *>(u"paperUnit"_s); }
    void type(const QString &name, const QString &text)
    {
        field(name)->setFocus();
        field(name)->selectAll();
        QTest::keyClicks(field(name), text);
        QTest::keyClick(field(name), Qt::Key_Return);
    }
    static QString toText(double number) { return QString::number(number, 'g', 17); }

    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<CustomPaperSize> m_size;
};

QTEST_MAIN(CustomPaperSizeTest)
#include "custom_paper_size_test.moc"
