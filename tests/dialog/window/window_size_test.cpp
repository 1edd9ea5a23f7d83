#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/window/WindowSize.h"
#include "platform/foundation/UserDefaults.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize kUsual{700, 600};
constexpr QSize kScreen{1920, 1080};

const QString kDomain = u"com.corvana.print.dialog"_s;

} // namespace

class WindowSizeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_formerHome = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder->path()));
    }
    void cleanup()
    {
        qputenv("XDG_CONFIG_HOME", m_formerHome);
        m_folder.reset();
    }

    void aNewUserGetsTheUsualSize() { QCOMPARE(rememberedWindowSize(kUsual, kScreen), kUsual); }

    void theLastSizeComesBack_data()
    {
        QTest::addColumn<QSize>("given");
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<QSize>("got");
        QTest::newRow("larger") << QSize(900, 800) << kScreen << QSize(900, 800);
        QTest::newRow("smaller than usual") << QSize(500, 400) << kScreen << QSize(500, 400);
        QTest::newRow("as large as the screen") << kScreen << kScreen << kScreen;
        QTest::newRow("from a larger screen") << QSize(3000, 2000) << kScreen << kScreen;
        QTest::newRow("only too wide") << QSize(3000, 800) << kScreen << QSize(1920, 800);
        QTest::newRow("on a screen smaller than usual")
            << QSize(900, 800) << QSize(640, 480) << QSize(640, 480);
        QTest::newRow("a small one on a screen smaller than usual")
            << QSize(500, 400) << QSize(640, 480) << QSize(500, 400);
        QTest::newRow("the least") << QSize(200, 200) << kScreen << QSize(200, 200);
        QTest::newRow("too narrow to show anything")
            << QSize(199, 800) << kScreen << QSize(700, 800);
        QTest::newRow("nothing") << QSize(0, 0) << kScreen << kUsual;
        QTest::newRow("less than nothing") << QSize(-900, -800) << kScreen << kUsual;
    }
    void theLastSizeComesBack()
    {
        QFETCH(QSize, given);
        QFETCH(QSize, screen);
        QFETCH(QSize, got);
        rememberWindowSize(given);
        QCOMPARE(rememberedWindowSize(kUsual, screen), got);
    }

    void aSizeThatTheScreenForcedIsNotKept_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QSize>("kept");
        QTest::newRow("as it was opened") << QSize(640, 480) << QSize(900, 800);
        QTest::newRow("made less high") << QSize(640, 400) << QSize(900, 400);
        QTest::newRow("made narrower") << QSize(500, 480) << QSize(500, 800);
    }
    void aSizeThatTheScreenForcedIsNotKept()
    {
        QFETCH(QSize, size);
        QFETCH(QSize, kept);
        rememberWindowSize({900, 800});
        const QSize given = rememberedWindowSize(kUsual, {640, 480});
        QCOMPARE(given, QSize(640, 480));
        rememberWindowSize(size, given);
        QCOMPARE(rememberedWindowSize(kUsual, kScreen), kept);
    }

    void aNewUserOnASmallScreenGetsAWindowThatFits()
    {
        QCOMPARE(rememberedWindowSize(kUsual, {640, 480}), QSize(640, 480));
    }

    void whatIsNoNumberIsNotTaken_data()
    {
        QTest::addColumn<QVariant>("width");
        QTest::addColumn<int>("got");
        QTest::newRow("a text") << QVariant(u"wide"_s) << 700;
        QTest::newRow("a list") << QVariant(QVariantList{900}) << 700;
        QTest::newRow("a decimal text") << QVariant(u"900"_s) << 900;
        QTest::newRow("more than an int holds") << QVariant(u"99999999999999999999"_s) << 1920;
    }
    void whatIsNoNumberIsNotTaken()
    {
        QFETCH(QVariant, width);
        QFETCH(int, got);
        QVERIFY(UserDefaults::standardUserDefaults().setPersistentDomain_forName(
            {{u"windowWidth"_s, width}, {u"windowHeight"_s, 800}}, kDomain));
        QCOMPARE(rememberedWindowSize(kUsual, kScreen), QSize(got, 800));
    }

    void otherPreferencesAreKept()
    {
        QVERIFY(UserDefaults::standardUserDefaults().setPersistentDomain_forName(
            {{u"other"_s, u"kept"_s}}, kDomain));
        rememberWindowSize({900, 800});
        const auto domain = UserDefaults::standardUserDefaults().persistentDomainForName(kDomain);
        QCOMPARE(domain->value(u"other"_s), QVariant(u"kept"_s));
        QCOMPARE(domain->value(u"windowWidth"_s).toInt(), 900);
    }

    void preferencesThatAreDamagedOnlyCostTheSize()
    {
        rememberWindowSize({900, 800});
        QFile file(UserDefaults::fileOfDomain(kDomain));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("[General\nno setting at all\n");
        file.close();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"dialog\\.ini\" cannot be read"_s));
        QCOMPARE(rememberedWindowSize(kUsual, kScreen), kUsual);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_formerHome;
};

QTEST_GUILESS_MAIN(WindowSizeTest)
#include "window_size_test.moc"
