#include <memory>

#include <QtTest>

#include "platform/printcore/Ppd.h"

using namespace corvana;

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
    const ppd_option_t *option = ppdOption(m_ppd.get(), QStringLiteral("QXMediaType"));
    QVERIFY(option);
    QCOMPARE(ppdKeyword(option->keyword), QStringLiteral("QXMediaType"));
}

void PpdTest::whatIsNoKeywordFindsNothing_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::newRow("unknown") << QStringLiteral("QXNoSuch");
    QTest::newRow("other case") << QStringLiteral("qxmediatype");
    QTest::newRow("one letter in the other case") << QStringLiteral("QXMediatype");
    QTest::newRow("prefix") << QStringLiteral("QXMedia");
    QTest::newRow("trailing blank") << QStringLiteral("QXMediaType ");
    QTest::newRow("Latin-1 letter") << QStringLiteral("QXN\u00e9");
    QTest::newRow("Japanese") << QStringLiteral("用紙");
    QTest::newRow("full-width letters") << QStringLiteral("ＱＸMediaType");
    QTest::newRow("null character inside") << QStringLiteral("QXMediaType\0x").left(12);
    QTest::newRow("empty") << QStringLiteral("");
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
    QVERIFY(!ppdMarkedChoice(fresh.get(), QStringLiteral("QXMediaType")));
}

void PpdTest::theMarkedChoiceIsAnswered()
{
    ppdMarkDefaults(m_ppd.get());
    ppdMarkOption(m_ppd.get(), "QXMediaType", "Thick");
    const ppd_choice_t *marked = ppdMarkedChoice(m_ppd.get(), QStringLiteral("QXMediaType"));
    QVERIFY(marked);
    QCOMPARE(marked->choice, "Thick");
}

void PpdTest::aCustomMarkIsTheChoiceCustom()
{
    ppdMarkDefaults(m_ppd.get());
    ppdMarkOption(m_ppd.get(), "QXSleepTime", "Custom.12");
    const ppd_choice_t *marked = ppdMarkedChoice(m_ppd.get(), QStringLiteral("QXSleepTime"));
    QVERIFY(marked);
    QCOMPARE(marked->choice, "Custom");
}

void PpdTest::aChoiceIsFoundByItsExactKeyword_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<bool>("found");
    QTest::newRow("first") << QStringLiteral("Plain") << true;
    QTest::newRow("second") << QStringLiteral("Thick") << true;
    QTest::newRow("other case") << QStringLiteral("plain") << false;
    QTest::newRow("prefix") << QStringLiteral("Pla") << false;
    QTest::newRow("its text") << QStringLiteral("Plain Paper") << false;
    QTest::newRow("Latin-1 letter") << QStringLiteral("Caf\u00e9") << false;
    QTest::newRow("empty") << QStringLiteral("") << false;
    QTest::newRow("null") << QString() << false;
}

void PpdTest::aChoiceIsFoundByItsExactKeyword()
{
    QFETCH(QString, choice);
    QFETCH(bool, found);
    const ppd_choice_t *answer =
        ppdChoice(ppdOption(m_ppd.get(), QStringLiteral("QXMediaType")), choice);
    QCOMPARE(answer != nullptr, found);
    if (answer)
        QCOMPARE(ppdKeyword(answer->choice), choice);
}

void PpdTest::aChoiceOfNoOptionIsNone()
{
    QVERIFY(!ppdChoice(nullptr, QStringLiteral("Plain")));
}

void PpdTest::theCustomParameterIsFound()
{
    QVERIFY(ppdHasCustomOption(m_ppd.get(), QStringLiteral("QXSleepTime")));
    QVERIFY(!ppdHasCustomOption(m_ppd.get(), QStringLiteral("QXMediaType")));
    const ppd_cparam_t *time =
        ppdCustomParameter(m_ppd.get(), QStringLiteral("QXSleepTime"), QStringLiteral("Time"));
    QVERIFY(time);
    QCOMPARE(time->minimum.custom_int, 1);
    QCOMPARE(time->maximum.custom_int, 99);
}

void PpdTest::aCustomParameterNeedsExactNames_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("name");
    const QString sleep = QStringLiteral("QXSleepTime");
    QTest::newRow("option without custom values")
        << QStringLiteral("QXMediaType") << QStringLiteral("Time");
    QTest::newRow("unknown option") << QStringLiteral("QXNoSuch") << QStringLiteral("Time");
    QTest::newRow("option in other case")
        << QStringLiteral("qxsleeptime") << QStringLiteral("Time");
    QTest::newRow("unknown parameter") << sleep << QStringLiteral("Minutes");
    QTest::newRow("parameter in other case") << sleep << QStringLiteral("time");
    QTest::newRow("parameter not ASCII") << sleep << QStringLiteral("Tim\u00e9");
    QTest::newRow("empty parameter") << sleep << QStringLiteral("");
    QTest::newRow("empty option") << QString() << QStringLiteral("Time");
}

void PpdTest::aCustomParameterNeedsExactNames()
{
    QFETCH(QString, keyword);
    QFETCH(QString, name);
    QVERIFY(!ppdCustomParameter(m_ppd.get(), keyword, name));
}

void PpdTest::aMissingPpdHasNothing()
{
    QVERIFY(!ppdOption(nullptr, QStringLiteral("QXMediaType")));
    QVERIFY(!ppdMarkedChoice(nullptr, QStringLiteral("QXMediaType")));
    QVERIFY(!ppdHasCustomOption(nullptr, QStringLiteral("QXSleepTime")));
    QVERIFY(!ppdCustomParameter(nullptr, QStringLiteral("QXSleepTime"), QStringLiteral("Time")));
}

void PpdTest::aTextIsDecodedStrictly_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("readable");
    QTest::addColumn<QString>("text");
    QTest::newRow("ASCII") << QByteArray("Plain Paper") << true << QStringLiteral("Plain Paper");
    QTest::newRow("empty") << QByteArray("") << true << QString();
    QTest::newRow("Japanese") << QByteArray("\xe7\x94\xa8\xe7\xb4\x99") << true
                              << QStringLiteral("用紙");
    QTest::newRow("outside the basic plane")
        << QByteArray("\xf0\xa0\xae\xb7") << true << QStringLiteral("𠮷");
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
    QCOMPARE(ppdKeyword("QXMediaType"), QStringLiteral("QXMediaType"));
    QVERIFY(ppdKeyword("").isEmpty());
    QVERIFY(ppdKeyword(nullptr).isNull());
}

QTEST_GUILESS_MAIN(PpdTest)
#include "ppd_test.moc"
