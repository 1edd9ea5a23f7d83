#include <QApplication>
#include <QLineEdit>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTest>

#include "dialog/window/ReadableTexts.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

constexpr double kLeast = 4.5;

QPalette palette(const QColor &base, const QColor &text, const QColor &placeholder)
{
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Window, base);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, placeholder);
    palette.setColor(QPalette::Highlight, QColor(0, 0, 128));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

constexpr QColor kOfStyle(250, 250, 250);

// As some styles do that bring a theme along.
class ColorfulStyle : public QProxyStyle
{
public:
    ColorfulStyle() : QProxyStyle(u"Fusion"_s) {}
    using QProxyStyle::polish;
    void polish(QPalette &palette) override
    {
        palette.setColor(QPalette::PlaceholderText, kOfStyle);
    }
};

} // namespace

class ReadableTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // From the definition of WCAG 2, and from the examples that its explanation gives.
    void contrastIsCountedAsWebPagesCountIt()
    {
        QCOMPARE(contrast(Qt::black, Qt::white), 21.0);
        QCOMPARE(contrast(Qt::white, Qt::white), 1.0);
        QVERIFY(qAbs(contrast(QColor(0x76, 0x76, 0x76), Qt::white) - 4.54) < 0.01);
        QVERIFY(qAbs(contrast(QColor(0, 0, 0, 128), Qt::white) - 3.98) < 0.05);
    }

    void aHintThatCannotBeReadTakesAfterTheText_data()
    {
        QTest::addColumn<QColor>("base");
        QTest::addColumn<QColor>("text");
        QTest::addColumn<QColor>("placeholder");
        QTest::newRow("black on dark")
            << QColor(30, 30, 30) << QColor(239, 240, 241) << QColor(0, 0, 0, 128);
        QTest::newRow("white on white")
            << QColor(Qt::white) << QColor(Qt::black) << QColor(255, 255, 255, 128);
        QTest::newRow("all but transparent")
            << QColor(30, 30, 30) << QColor(Qt::white) << QColor(255, 255, 255, 20);
        QTest::newRow("of Qt, which is nearly enough")
            << QColor(Qt::white) << QColor(Qt::black) << QColor(0, 0, 0, 128);
        QTest::newRow("a text that is hardly readable itself")
            << QColor(Qt::white) << QColor(0x70, 0x70, 0x70) << QColor(0x70, 0x70, 0x70, 128);
    }
    void aHintThatCannotBeReadTakesAfterTheText()
    {
        QFETCH(QColor, base);
        QFETCH(QColor, text);
        QFETCH(QColor, placeholder);
        const QColor now =
            withReadableTexts(palette(base, text, placeholder)).color(QPalette::PlaceholderText);
        QCOMPARE(now.rgb(), text.rgb());
        QVERIFY2(contrast(now, base) >= kLeast, qPrintable(now.name(QColor::HexArgb)));
    }

    void aHintIsReadableBesideFieldsAsWell()
    {
        QPalette given = palette(Qt::white, Qt::black, QColor(0, 0, 0, 140));
        given.setColor(QPalette::Window, QColor(0xd4, 0xd4, 0xd4));
        const QColor now = withReadableTexts(given).color(QPalette::PlaceholderText);
        QVERIFY(contrast(now, QColor(0xd4, 0xd4, 0xd4)) >= kLeast);
    }

    void theHighlightLeavesItsTextReadable()
    {
        QPalette given = palette(Qt::white, Qt::black, QColor(0, 0, 0, 160));
        for (const auto &[highlight, text] : {std::pair{QColor(48, 140, 198), QColor(Qt::white)},
                                              std::pair{QColor(20, 90, 160), QColor(Qt::black)}}) {
            given.setColor(QPalette::Highlight, highlight);
            given.setColor(QPalette::HighlightedText, text);
            const QPalette now = withReadableTexts(given);
            QCOMPARE(now.color(QPalette::HighlightedText), text);
            QVERIFY(contrast(text, now.color(QPalette::Highlight)) >= kLeast);
        }
    }

    void whatCanBeReadStays_data()
    {
        QTest::addColumn<QPalette>("given");
        QTest::newRow("light") << palette(Qt::white, Qt::black, QColor(0, 0, 0, 160));
        QTest::newRow("dark") << palette(QColor(30, 30, 30), Qt::white, QColor(161, 169, 177));
    }
    void whatCanBeReadStays()
    {
        QFETCH(QPalette, given);
        QCOMPARE(withReadableTexts(given), given);
    }

    void widgetsHaveReadableTextsInEveryTheme()
    {
        keepTextsReadable(*qApp);
        for (const QColor &base : {QColor(Qt::white), QColor(30, 30, 30)}) {
            const bool isDark = base != Qt::white;
            QApplication::setPalette(
                palette(base, isDark ? Qt::white : Qt::black, QColor(120, 120, 120, 128)));
            const QLineEdit field;
            field.ensurePolished();
            const QPalette shown = field.palette();
            QCOMPARE(shown.color(QPalette::Base), base);
            QVERIFY(contrast(shown.color(QPalette::PlaceholderText), base) >= kLeast);
        }
    }

    // What is made only then, too.
    void widgetsHaveReadableTextsInTheThemeThatComesBack()
    {
        keepTextsReadable(*qApp);
        QApplication::setPalette(palette(QColor(30, 30, 30), Qt::white, QColor(0, 0, 0, 128)));
        QApplication::setPalette({});
        QVERIFY(!QCoreApplication::testAttribute(Qt::AA_SetPalette));
        const auto shown = [] {
            const QLineEdit field;
            field.ensurePolished();
            return field.palette();
        };
        const auto isReadable = [&] {
            return contrast(shown().color(QPalette::PlaceholderText),
                            shown().color(QPalette::Base)) >= kLeast;
        };
        QTRY_VERIFY(isReadable());
        QTest::qWait(50);
        QVERIFY(isReadable());
    }

    void aStyleWithColorsOfItsOwnKeepsThem()
    {
        QApplication::setStyle(new ColorfulStyle);
        keepTextsReadable(*qApp);
        QApplication::setPalette(palette(Qt::white, Qt::black, QColor(0, 0, 0, 128)));
        QTest::qWait(50);
        const QLineEdit field;
        field.ensurePolished();
        QCOMPARE(field.palette().color(QPalette::PlaceholderText), kOfStyle);
        QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    }

    // Styles keep what they have drawn by the palette that it was drawn with.
    void whatIsDrawnForOneWidgetServesAnother()
    {
        keepTextsReadable(*qApp);
        QWidget window;
        const QLineEdit one(&window);
        const QLineEdit other(&window);
        QCOMPARE(one.palette().cacheKey(), other.palette().cacheKey());
    }
};

QTEST_MAIN(ReadableTextsTest)

#include "readable_texts_test.moc"
