#include <QPalette>
#include <QTest>

#include "dialog/window/Placeholders.h"

using namespace corvana;

class PlaceholdersTest : public QObject
{
    Q_OBJECT

    static QPalette palette(const QColor &base, const QColor &text, const QColor &placeholder)
    {
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, text);
        palette.setColor(QPalette::PlaceholderText, placeholder);
        return palette;
    }

private Q_SLOTS:
    void aPlaceholderThatCannotBeReadTakesAfterTheText_data()
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
    }
    void aPlaceholderThatCannotBeReadTakesAfterTheText()
    {
        QFETCH(QColor, base);
        QFETCH(QColor, text);
        QFETCH(QColor, placeholder);
        const QColor now = withReadablePlaceholders(palette(base, text, placeholder))
                               .color(QPalette::PlaceholderText);
        QCOMPARE(now.rgb(), text.rgb());
        QCOMPARE(now.alpha(), 128);
    }

    void aPlaceholderThatCanBeReadStays_data()
    {
        QTest::addColumn<QPalette>("given");
        QTest::newRow("light") << palette(Qt::white, Qt::black, QColor(0, 0, 0, 128));
        QTest::newRow("dark") << palette(QColor(30, 30, 30), Qt::white, QColor(161, 169, 177));
        QTest::newRow("of Qt") << QPalette(QColor(0x2b, 0x2b, 0x2b));
    }
    void aPlaceholderThatCanBeReadStays()
    {
        QFETCH(QPalette, given);
        QCOMPARE(withReadablePlaceholders(given), given);
    }
};

QTEST_MAIN(PlaceholdersTest)

#include "placeholders_test.moc"
