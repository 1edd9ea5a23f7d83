#include <QTest>

#include "dialog/window/chooser/PrinterModel.h"
#include "dialog/window/chooser/PrinterSearch.h"
#include "tests/dialog/window/chooser/ChooserPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// What a search finds, and in which order.
class PrinterSearchTest : public QObject
{
    Q_OBJECT

private:
    PrinterModel m_model;
    PrinterSearch m_search;

    QStringList found(const QString &text)
    {
        m_search.setText(text);
        QStringList names;
        for (int row = 0; row < m_search.rowCount(); ++row)
            names += m_search.index(row, 0).data(PrinterModel::PrinterRole).value<Printer>().name;
        return names;
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_model.setPrinters({queue(u"zeta"_s, u"Color Laser"_s, u"Café, 2nd floor"_s),
                             queue(u"alpha"_s, u"Großraum"_s, u"Zürich"_s),
                             queue(u"mid"_s, u"カラー複合機"_s, u"大阪 ガラス棟"_s),
                             queue(u"last"_s, u"Laser, plain"_s, u"2nd cafeteria"_s)});
        m_search.setPrinters(&m_model);
    }

    void wordsAreFoundInTheOrderOfTheList_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("names");
        const QStringList all{u"zeta"_s, u"alpha"_s, u"mid"_s, u"last"_s};
        QTest::newRow("nothing") << QString() << all;
        QTest::newRow("blanks") << u"  \u3000 "_s << all;
        QTest::newRow("name") << u"zet"_s << QStringList{u"zeta"_s};
        QTest::newRow("description") << u"laser"_s << QStringList{u"zeta"_s, u"last"_s};
        QTest::newRow("location") << u"floor"_s << QStringList{u"zeta"_s};
        QTest::newRow("case") << u"COLOR"_s << QStringList{u"zeta"_s};
        QTest::newRow("accent left out") << u"zurich"_s << QStringList{u"alpha"_s};
        QTest::newRow("accent added") << u"cafétéria"_s << QStringList{u"last"_s};
        QTest::newRow("accent as a mark") << u"cafe\u0301"_s << QStringList{u"zeta"_s, u"last"_s};
        QTest::newRow("any order") << u"2nd cafe laser"_s << QStringList{u"zeta"_s, u"last"_s};
        QTest::newRow("all words") << u"laser zurich"_s << QStringList();
        QTest::newRow("not across two texts") << u"zetacolor"_s << QStringList();
        QTest::newRow("narrow kana") << u"ｶﾗｰ"_s << QStringList{u"mid"_s};
        QTest::newRow("wide letters") << u"ｚｅｔａ"_s << QStringList{u"zeta"_s};
        QTest::newRow("voiced kana") << u"ガラス"_s << QStringList{u"mid"_s};
        QTest::newRow("a mark is another kana") << u"カラス"_s << QStringList();
        QTest::newRow("no pattern") << u".*"_s << QStringList();
    }
    void wordsAreFoundInTheOrderOfTheList()
    {
        QFETCH(QString, text);
        QTEST(found(text), "names");
    }

    void aPrinterThatChangesIsFoundByItsNewWords()
    {
        PrinterModel model;
        PrinterSearch search;
        search.setPrinters(&model);
        model.setPrinters({queue(u"q"_s, u"Red"_s)});
        search.setText(u"blue"_s);
        QCOMPARE(search.rowCount(), 0);
        model.setPrinters({queue(u"q"_s, u"Blue"_s)});
        QCOMPARE(search.rowCount(), 1);
    }
};

QTEST_MAIN(PrinterSearchTest)

#include "printer_search_test.moc"
