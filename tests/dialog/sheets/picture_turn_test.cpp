#include <QTest>

#include "dialog/sheets/PictureTurn.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;

namespace {

// The content of a page that holds a picture, as the chain's filter for pictures writes it.
struct Content
{
    const char *name;
    const char *content;
    int turn;
};
constexpr const char *kPlaced = "1 0 0 1 12.0 93.0 cm\n818.000 0 0 409.000 0 0 cm\n/Im Do\n";
const Content kContents[] = {
    {"upright", "", 0},
    {"turned to the left", "0 1 -1 0 595 0 cm\n", 90},
    {"turned to the right", "0 -1 1 0 0 842 cm\n", 270},
    {"upside down", "-1 0 0 -1 595 842 cm\n", 180},
    {"mirrored", "-1 0 0 1 595 0 cm\n", 0},
    {"mirrored and turned", "-1 0 0 1 595 0 cm\n0 1 -1 0 595 0 cm\n", 270},
};

} // namespace

class PictureTurnTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theContentSaysHowAPictureLies_data() { addRows(kContents); }
    void theContentSaysHowAPictureLies()
    {
        const Content &row = currentRow(kContents);
        const QByteArray file = QByteArray("%PDF-1.3\n5 0 obj <</Length 6 0 R >> stream\nq\n") +
                                row.content + kPlaced + "Q\nendstream\nendobj\n";
        QCOMPARE(turnOfPicture(file), row.turn);
    }

    void whatSaysNothingIsUpright()
    {
        QCOMPARE(turnOfPicture(QByteArray()), 0);
        QCOMPARE(turnOfPicture(QByteArray("%PDF-1.4\n0 1 -1 0 595 0 cm\n")), 0);
        QCOMPARE(turnOfPicture(QByteArray("/Im Do")), 0);
        QCOMPARE(turnOfPicture(QStringLiteral("/nonexistent")), 0);
    }
};

QTEST_MAIN(PictureTurnTest)

#include "picture_turn_test.moc"
