#include <cmath>

#include <QTest>

#include "dialog/session/PaperSize.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

struct SizeRow
{
    const char *what;
    const char *text;
    double width; // points; 0: it is none
    double height;
};

constexpr SizeRow kSizes[] = {
    {"points without a unit", "300x400", 300, 400},
    {"points", "300x400pt", 300, 400},
    {"fractions", "300.5x400.25", 300.5, 400.25},
    {"inches", "5x7in", 360, 504},
    {"feet", "0.5x1ft", 432, 864},
    {"millimetres", "127x254mm", 360, 720},
    {"centimetres", "12.7x25.4cm", 360, 720},
    {"metres", "0.127x0.254m", 360, 720},
    {"nothing is a size", "0x0", 0.0001, 0.0001},
    {"as long as there may be", "999999999x1", 999999999, 1},
    {"too many digits", "1000000000x1", 0, 0},
    {"no text", "", 0, 0},
    {"no height", "300", 0, 0},
    {"no height behind the x", "300x", 0, 0},
    {"no width", "x400", 0, 0},
    {"three lengths", "300x400x500", 0, 0},
    {"a unit of its own for each", "127mmx254mm", 0, 0},
    {"unknown unit", "300x400px", 0, 0},
    {"unit in capital letters", "127x254MM", 0, 0},
    {"capital X", "300X400", 0, 0},
    {"sign", "-300x400", 0, 0},
    {"plus sign", "+300x400", 0, 0},
    {"exponent", "3e2x400", 0, 0},
    {"decimal comma", "12,7x25,4cm", 0, 0},
    {"fraction without digits", "12.x25cm", 0, 0},
    {"fraction without a number", ".5x.5cm", 0, 0},
    {"blank before", " 300x400", 0, 0},
    {"blank behind", "300x400 ", 0, 0},
    {"blank before the unit", "300x400 mm", 0, 0},
    {"line break", "300x400\n", 0, 0},
    {"full-width digits", "３００x４００", 0, 0},
};

struct MediaRow
{
    const char *name;
    int width; // hundredths of a millimetre; 0: it is none
    int height;
};

constexpr MediaRow kMedia[] = {
    {"iso_a4_210x297mm", 21000, 29700},
    {"na_letter_8.5x11in", 21590, 27940},
    {"custom_100x150mm_100x150mm", 10000, 15000},
    {"custom_small_2x3in", 5080, 7620},
    {"custom_small_10x15cm", 10000, 15000},
    {"custom_small_0.1x0.15m", 10000, 15000},
    {"custom_small_288x432pt", 10160, 15240},
    {"custom_small_0.5x1ft", 15240, 30480},
    {"custom_small_100x150px", 0, 0},
    {"custom_small_100x150", 0, 0},
    {"custom_min_76.2x127mm", 7620, 12700},
    {"oe_photo-l_3.5x5in", 8890, 12700},
    {"na-letter", 21590, 27940},
    {"iso-a4", 21000, 29700},
    {"custom_thin_0.5x100mm", 0, 0},
    {"custom_endless_100x60000mm", 0, 0},
    {"auto", 0, 0},
    {"", 0, 0},
    {"bürste_x", 0, 0},
};

} // namespace

/// The one reading of lengths and sizes of papers.
class PaperSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSizeIsReadWithItsUnit_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QSizeF>("size");
        for (const SizeRow &row : kSizes)
            QTest::newRow(row.what) << QString::fromUtf8(row.text) << QSizeF(row.width, row.height);
    }
    void aSizeIsReadWithItsUnit()
    {
        QFETCH(QString, text);
        QFETCH(QSizeF, size);
        for (const auto &read : {sizeWithUnit(text), customPageSize(u"Custom."_s + text)}) {
            QCOMPARE(read.has_value(), !size.isEmpty());
            if (read) {
                QVERIFY(std::abs(read->width() - size.width()) < 0.001);
                QVERIFY(std::abs(read->height() - size.height()) < 0.001);
            }
        }
    }

    void aCustomChoiceHasItsPrefix()
    {
        QVERIFY(!customPageSize(u"300x400"_s));
        QVERIFY(!customPageSize(u"custom.300x400"_s));
        QVERIFY(!customPageSize(u"Custom"_s));
        QVERIFY(!sizeWithUnit(u"Custom.300x400"_s));
    }

    void aMediaNameStatesItsSize_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QSize>("size");
        for (const MediaRow &row : kMedia)
            QTest::newRow(row.name) << QString::fromUtf8(row.name)
                                    << (row.width > 0 ? QSize(row.width, row.height) : QSize());
    }
    void aMediaNameStatesItsSize()
    {
        QFETCH(QString, name);
        QTEST(dimensionOfMedia(name), "size");
    }

    void theNameOfAnySizeStatesThatSize()
    {
        for (const QSize size : {QSize(100, 100), QSize(7620, 12700), QSize(21000, 29700),
                                 QSize(12345, 54321), QSize(5'000'000, 5'000'000)})
            QCOMPARE(dimensionOfMedia(customMediaName(size)), size);
        QCOMPARE(customMediaName({10000, 15000}), u"custom_100x150mm_100x150mm"_s);
    }

    void hundredthsAndPointsAreTheSameLength()
    {
        QCOMPARE(pointsOfHundredths(2540), 72.0);
        QCOMPARE(hundredthsOfPoints(72), 2540.0);
        for (const int length : {1, 635, 21000, 29700, 5'000'000})
            QCOMPARE(qRound(hundredthsOfPoints(pointsOfHundredths(length))), length);
    }

    void whatCanBeAPaper()
    {
        QVERIFY(isPaper({100, 5'000'000}));
        QVERIFY(!isPaper({99, 5'000'000}));
        QVERIFY(!isPaper({100, 5'000'001}));
        QVERIFY(!isPaper({}));
    }
};

QTEST_GUILESS_MAIN(PaperSizeTest)
#include "paper_size_test.moc"
