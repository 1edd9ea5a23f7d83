#include <QLocale>
#include <QTest>

#include "platform/toolkit/Mnemonics.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class TitlesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::system()); }

    void aTitleEndsAsTheLanguageWritesIt_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("title");
        QTest::newRow("English") << u"en_US"_s << u"Photo:"_s;
        QTest::newRow("Japanese") << u"ja_JP"_s << u"Photo:"_s;
        QTest::newRow("French") << u"fr_FR"_s << u"Photo\u00a0:"_s;
        QTest::newRow("French of Canada") << u"fr_CA"_s << u"Photo\u00a0:"_s;
        QTest::newRow("a language whose name begins alike") << u"fy_NL"_s << u"Photo:"_s;
    }
    void aTitleEndsAsTheLanguageWritesIt()
    {
        QFETCH(QString, locale);
        QFETCH(QString, title);
        QLocale::setDefault(QLocale(locale));
        QCOMPARE(asTitle(u"Photo"_s), title);
    }
};

QTEST_MAIN(TitlesTest)
#include "titles_test.moc"
