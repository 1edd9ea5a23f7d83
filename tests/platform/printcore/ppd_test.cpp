#include <memory>

#include <QtTest>

#include "platform/printcore/Ppd.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

// A small printer with one option of each kind that the look-ups must tell apart.
constexpr char kPpd[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TEST.PPD"
*Manufacturer: "Corvana"
*Product: "(Corvana Test)"
*ModelName: "Corvana Test"
*ShortNickName: "Corvana Test"
*NickName: "Corvana Test"
*OpenUI *QXMediaType/Media Type: PickOne
*OrderDependency: 10 AnySetup *QXMediaType
*DefaultQXMediaType: Plain
*QXMediaType Plain/Plain Paper: "<<>>setpagedevice"
*QXMediaType Thick/Thick Paper: "<<>>setpagedevice"
*CloseUI: *QXMediaType
*OpenUI *QXSleepTime/Sleep Time: PickOne
*OrderDependency: 10 AnySetup *QXSleepTime
*DefaultQXSleepTime: Auto
*QXSleepTime Auto/Automatic: "<<>>setpagedevice"
*CloseUI: *QXSleepTime
*CustomQXSleepTime True/Manual: "pop"
*ParamCustomQXSleepTime Time/Minutes: 1 int 1 99
)ppd";

} // namespace

class PpdTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anOptionIsFoundByItsKeyword();
    void whatIsNoKeywordFindsNothing_data();
    void whatIsNoKeywordFindsNothing();
    void nothingIsMarkedBeforeTheDefaultsAre();
    void theMarkedChoiceIsAnswered();
    void aCustomMarkIsTheChoiceCustom();
    void aChoiceIsFoundByItsExactKeyword_data();
    void aChoiceIsFoundByItsExactKeyword();
    void aChoiceOfNoOptionIsNone();
    void theCustomParameterIsFound();
    void aCustomParameterNeedsExactNames_data();
    void aCustomParameterNeedsExactNames();
    void aMissingPpdHasNothing();
    void aTextIsDecodedStrictly_data();
    void aTextIsDecodedStrictly();
    void aMissingTextIsNone();
    void aKeywordIsTakenAsItStands();

private:
    struct Closer
    {
        void operator()(ppd_file_t *file) const { ppdClose(file); }
    };
    std::unique_ptr<ppd_file_t, Closer> m_ppd;
};

void PpdTest::initTestCase()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(kPpd);
    file.close();
    m_ppd.reset(ppdOpenFile(QFile::encodeName(file.fileName()).constData()));
    QVERIFY(m_ppd);
}

void PpdTest::anOptionIsFoundByItsKeyword()
{
    const ppd_option_t *option = ppdOption(m_ppd.get(), u"QXMediaType"_s);
    QVERIFY(option);
    QCOMPARE(ppdKeyword(option->keyword), u"QXMediaType"_s);
}

void PpdTest::whatIsNoKeywordFindsNothing_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::newRow("unknown") << u"QXNoSuch"_s;
    QTest::newRow("other case") << u"qxmediatype"_s;
    QTest::newRow("one letter in the other case") << u"QXMediatype"_s;
    QTest::newRow("prefix") << u"QXMedia"_s;
    QTest::newRow("trailing blank") << u"QXMediaType "_s;
    QTest::newRow("Latin-1 letter") << u"QXN\u00e9"_s;
    QTest::newRow("Japanese") << u"用紙"_s;
    QTest::newRow("full-width letters") << u"ＱＸMediaType"_s;
    QTest::newRow("null character inside") << u"QXMediaType\0x"_s.left(12);
    QTest::newRow("empty") << u""_s;
    QTest::newRow("null") << QString();
}

void PpdTest::whatIsNoKeywordFindsNothing()
{
    QFETCH(QString, keyword);
    ppdMarkDefaults(m_ppd.get());
    QVERIFY(!ppdOption(m_ppd.get(), keyword));
    QVERIFY(!ppdMarkedChoice(m_ppd.get(), keyword));
    QVERIFY(!ppdHasCustomOption(m_ppd.get(), keyword));
}

void PpdTest::nothingIsMarkedBeforeTheDefaultsAre()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(kPpd);
    file.close();
    const std::unique_ptr<ppd_file_t, Closer> fresh(
        ppdOpenFile(QFile::encodeName(file.fileName()).constData()));
    QVERIFY(fresh);
    QVERIFY(!ppdMarkedChoice(fresh.get(), u"QXMediaType"_s));
}

void PpdTest::theMarkedChoiceIsAnswered()
{
    ppdMarkDefaults(m_ppd.get());
    ppdMarkOption(m_ppd.get(), "QXMediaType", "Thick");
    const ppd_choice_t *marked = ppdMarkedChoice(m_ppd.get(), u"QXMediaType"_s);
    QVERIFY(marked);
    QCOMPARE(marked->choice, "Thick");
}

void PpdTest::aCustomMarkIsTheChoiceCustom()
{
    ppdMarkDefaults(m_ppd.get());
    ppdMarkOption(m_ppd.get(), "QXSleepTime", "Custom.12");
    const ppd_choice_t *marked = ppdMarkedChoice(m_ppd.get(), u"QXSleepTime"_s);
    QVERIFY(marked);
    QCOMPARE(marked->choice, "Custom");
}

void PpdTest::aChoiceIsFoundByItsExactKeyword_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<bool>("found");
    QTest::newRow("first") << u"Plain"_s << true;
    QTest::newRow("second") << u"Thick"_s << true;
    QTest::newRow("other case") << u"plain"_s << false;
    QTest::newRow("prefix") << u"Pla"_s << false;
    QTest::newRow("its text") << u"Plain Paper"_s << false;
    QTest::newRow("Latin-1 letter") << u"Caf\u00e9"_s << false;
    QTest::newRow("empty") << u""_s << false;
    QTest::newRow("null") << QString() << false;
}

void PpdTest::aChoiceIsFoundByItsExactKeyword()
{
    QFETCH(QString, choice);
    QFETCH(bool, found);
    const ppd_choice_t *answer = ppdChoice(ppdOption(m_ppd.get(), u"QXMediaType"_s), choice);
    QCOMPARE(answer != nullptr, found);
    if (answer)
        QCOMPARE(ppdKeyword(answer->choice), choice);
}

void PpdTest::aChoiceOfNoOptionIsNone()
{
    QVERIFY(!ppdChoice(nullptr, u"Plain"_s));
}

void PpdTest::theCustomParameterIsFound()
{
    QVERIFY(ppdHasCustomOption(m_ppd.get(), u"QXSleepTime"_s));
    QVERIFY(!ppdHasCustomOption(m_ppd.get(), u"QXMediaType"_s));
    const ppd_cparam_t *time = ppdCustomParameter(m_ppd.get(), u"QXSleepTime"_s, u"Time"_s);
    QVERIFY(time);
    QCOMPARE(time->minimum.custom_int, 1);
    QCOMPARE(time->maximum.custom_int, 99);
}

void PpdTest::aCustomParameterNeedsExactNames_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("name");
    const QString sleep = u"QXSleepTime"_s;
    QTest::newRow("option without custom values") << u"QXMediaType"_s << u"Time"_s;
    QTest::newRow("unknown option") << u"QXNoSuch"_s << u"Time"_s;
    QTest::newRow("option in other case") << u"qxsleeptime"_s << u"Time"_s;
    QTest::newRow("unknown parameter") << sleep << u"Minutes"_s;
    QTest::newRow("parameter in other case") << sleep << u"time"_s;
    QTest::newRow("parameter not ASCII") << sleep << u"Tim\u00e9"_s;
    QTest::newRow("empty parameter") << sleep << u""_s;
    QTest::newRow("empty option") << QString() << u"Time"_s;
}

void PpdTest::aCustomParameterNeedsExactNames()
{
    QFETCH(QString, keyword);
    QFETCH(QString, name);
    QVERIFY(!ppdCustomParameter(m_ppd.get(), keyword, name));
}

void PpdTest::aMissingPpdHasNothing()
{
    QVERIFY(!ppdOption(nullptr, u"QXMediaType"_s));
    QVERIFY(!ppdMarkedChoice(nullptr, u"QXMediaType"_s));
    QVERIFY(!ppdHasCustomOption(nullptr, u"QXSleepTime"_s));
    QVERIFY(!ppdCustomParameter(nullptr, u"QXSleepTime"_s, u"Time"_s));
}

void PpdTest::aTextIsDecodedStrictly_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<QString>("text");
    QTest::newRow("ASCII") << QByteArray("Plain Paper") << true << u"Plain Paper"_s;
    QTest::newRow("empty") << QByteArray("") << true << QString();
    QTest::newRow("Japanese") << QByteArray("\xe7\x94\xa8\xe7\xb4\x99") << true << u"用紙"_s;
    QTest::newRow("outside the basic plane") << QByteArray("\xf0\xa0\xae\xb7") << true << u"𠮷"_s;
    QTest::newRow("Latin-1") << QByteArray("Caf\xe9 noir") << false << QString();
    QTest::newRow("Shift JIS") << QByteArray("\x97\x70\x8e\x86") << false << QString();
    QTest::newRow("cut in the middle of a letter") << QByteArray("A\xe7\x94") << false << QString();
    QTest::newRow("lead byte alone") << QByteArray("\xe7") << false << QString();
    QTest::newRow("continuation byte alone") << QByteArray("\x80") << false << QString();
    QTest::newRow("overlong") << QByteArray("\xc0\xaf") << false << QString();
    QTest::newRow("surrogate") << QByteArray("\xed\xa0\x80") << false << QString();
    QTest::newRow("past the last code point")
        << QByteArray("\xf4\x90\x80\x80") << false << QString();
}

void PpdTest::aTextIsDecodedStrictly()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, readable);
    QFETCH(QString, text);
    const std::optional<QString> answer = ppdText(bytes.constData());
    QCOMPARE(answer.has_value(), readable);
    if (answer)
        QCOMPARE(*answer, text);
}

void PpdTest::aMissingTextIsNone()
{
    QVERIFY(!ppdText(nullptr));
}

void PpdTest::aKeywordIsTakenAsItStands()
{
    QCOMPARE(ppdKeyword("QXMediaType"), u"QXMediaType"_s);
    QVERIFY(ppdKeyword("").isEmpty());
    QVERIFY(ppdKeyword(nullptr).isNull());
}

QTEST_GUILESS_MAIN(PpdTest)
#include "ppd_test.moc"
