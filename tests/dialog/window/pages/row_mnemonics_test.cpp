#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "dialog/window/pages/RowMnemonics.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

struct MnemonicCase
{
    const char *name;
    QString text;
    QString english;
    QString taken; // letters that buttons of the window have
    QString shown;
};

const QList<MnemonicCase> kCases{
    {"the first letter", u"Scaling"_s, {}, {}, u"&Scaling"_s},
    {"another word's", u"Pages per Sheet"_s, {}, u"p"_s, u"Pages per &Sheet"_s},
    {"in the midst of a word", u"Order"_s, {}, u"o"_s, u"O&rder"_s},
    {"whatever its case", u"Order"_s, {}, u"OR"_s, u"Or&der"_s},
    {"none is free", u"Aa"_s, {}, u"a"_s, u"Aa"_s},
    {"an & is no key", u"A & B"_s, {}, u"a"_s, u"A && &B"_s},
    {"no letters", u"部数"_s, u"Copies"_s, {}, u"部数(&C)"_s},
    {"no letters, and a taken one", u"部数"_s, u"Copies"_s, u"c"_s, u"部数(&O)"_s},
    {"nothing", {}, {}, {}, {}},
};

} // namespace

class RowMnemonicsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyRowHasAKeyOfItsOwn_data() { addRows(kCases); }
    void everyRowHasAKeyOfItsOwn()
    {
        const MnemonicCase &row = currentRow(kCases);
        QWidget window;
        for (const QChar letter : row.taken)
            new QPushButton(u"&%1"_s.arg(letter), &window);
        QCOMPARE(withFreeMnemonic(row.text, row.english, &window), row.shown);
    }

    void onlyALabelThatLeadsSomewhereTakesAKey()
    {
        QWidget window;
        auto *label = new QLabel(u"&Scaling"_s, &window);
        QCOMPARE(withFreeMnemonic(u"Sheet"_s, {}, &window), u"&Sheet"_s);
        label->setBuddy(new QLineEdit(&window));
        QCOMPARE(withFreeMnemonic(u"Sheet"_s, {}, &window), u"S&heet"_s);
    }
};

QTEST_MAIN(RowMnemonicsTest)

#include "row_mnemonics_test.moc"
