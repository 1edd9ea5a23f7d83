#include <memory>

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/HelpManager.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

const QByteArray kTitled = R"({"CFBundleHelpBookName": "Book"})";

} // namespace

class HelpManagerTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<Bundle> m_bundle;
    std::unique_ptr<HelpManager> m_manager;
    QList<HelpPage> m_opened;

    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString book() const { return path(u"Panel.help"_s); }
    void write(const QString &name, const QByteArray &content)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    void writePages(const QStringList &localizations)
    {
        for (const QString &localization : localizations)
            write(u"Panel.help/%1/index.html"_s.arg(localization), "<a name=\"here\"></a>text");
    }
    void expectLogged(const QString &pattern)
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(pattern));
    }

private Q_SLOTS:
    void init()
    {
        QLocale::setDefault(QLocale(u"en_US"_s));
        m_folder = std::make_unique<QTemporaryDir>();
        write(u"Test.bundle/info.json"_s,
              R"({"CFBundleLocalizations": ["English", "Japanese", "zh_CN"]})");
        m_bundle = Bundle::open(path(u"Test.bundle"_s));
        QVERIFY(m_bundle);
        m_manager = std::make_unique<HelpManager>();
        m_opened.clear();
        m_manager->setViewer([this](const HelpPage &page) { m_opened += page; });
    }
    void cleanup() { QLocale::setDefault(QLocale::system()); }

    void aRegisteredBookOpensInTheViewerAtItsAnchor()
    {
        write(u"Panel.help/info.json"_s, kTitled);
        writePages({u"English"_s});
        QVERIFY(m_manager->registerBooksInBundle(*m_bundle, book()));
        QVERIFY(m_opened.isEmpty());
        QVERIFY(m_manager->openHelpAnchor_inBook(u"here"_s, u"Book"_s));
        const QString page =
            QFileInfo(path(u"Panel.help/English/index.html"_s)).canonicalFilePath();
        QCOMPARE(m_opened, (QList<HelpPage>{{u"Book"_s, page, u"here"_s}}));
    }

    // Which anchors a page has is known to the viewer, which shows the page's beginning.
    void anAnchorThatThePageLacksStillOpensThePage()
    {
        write(u"Panel.help/info.json"_s, kTitled);
        writePages({u"English"_s});
        QVERIFY(m_manager->registerBooksInBundle(*m_bundle, book()));
        QVERIFY(m_manager->openHelpAnchor_inBook(u"nowhere"_s, u"Book"_s));
        QVERIFY(m_manager->openHelpAnchor_inBook(QString(), u"Book"_s));
        QCOMPARE(m_opened.size(), 2);
        QCOMPARE(m_opened.at(0).anchor, u"nowhere"_s);
        QCOMPARE(m_opened.at(1).anchor, QString());
    }

    void theBookIsReadInTheUsersLanguage_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("pages");
        QTest::addColumn<QString>("shown");
        const QStringList all{u"English"_s, u"Japanese"_s, u"zh_CN"_s};
        QTest::newRow("English") << u"en_GB"_s << all << u"English"_s;
        QTest::newRow("Japanese") << u"ja_JP"_s << all << u"Japanese"_s;
        QTest::newRow("Chinese") << u"zh_CN"_s << all << u"zh_CN"_s;
        QTest::newRow("traditional Chinese is another") << u"zh_TW"_s << all << u"English"_s;
        QTest::newRow("a language that no help is written in") << u"de_DE"_s << all << u"English"_s;
        QTest::newRow("a language that this book lacks")
            << u"ja_JP"_s << QStringList{u"English"_s, u"zh_CN"_s} << u"English"_s;
        QTest::newRow("a book in one language only")
            << u"en_US"_s << QStringList{u"Japanese"_s} << u"Japanese"_s;
        QTest::newRow("a page in a localisation that the bundle does not declare")
            << u"de_DE"_s << QStringList{u"de"_s, u"zh_CN"_s} << u"zh_CN"_s;
    }
    void theBookIsReadInTheUsersLanguage()
    {
        QFETCH(QString, locale);
        QFETCH(QStringList, pages);
        QFETCH(QString, shown);
        QLocale::setDefault(QLocale(locale));
        write(u"Panel.help/info.json"_s, kTitled);
        writePages(pages);
        QVERIFY(m_manager->registerBooksInBundle(*m_bundle, book()));
        QVERIFY(m_manager->openHelpAnchor_inBook(u"here"_s, u"Book"_s));
        QCOMPARE(QFileInfo(m_opened.value(0).file).dir().dirName(), shown);
    }

    void anEmptyPageIsPassedOverForAnother()
    {
        QLocale::setDefault(QLocale(u"ja_JP"_s));
        write(u"Panel.help/info.json"_s, kTitled);
        writePages({u"English"_s});
        write(u"Panel.help/Japanese/index.html"_s, "");
        QVERIFY(m_manager->registerBooksInBundle(*m_bundle, book()));
        QVERIFY(m_manager->openHelpAnchor_inBook(u"here"_s, u"Book"_s));
        QCOMPARE(QFileInfo(m_opened.value(0).file).dir().dirName(), u"English"_s);
    }

    void whatIsNoBookIsNotRegistered_data()
    {
        QTest::addColumn<QByteArray>("info");
        QTest::addColumn<QStringList>("pages");
        QTest::addColumn<QString>("logged");
        const QStringList english{u"English"_s};
        const QString noBook = u"no help book: .*Panel\\.help"_s;
        const QString noText = u"has no text: .*Panel\\.help"_s;
        QTest::newRow("no information") << QByteArray() << english << noBook;
        QTest::newRow("no title") << QByteArray("{}") << english << noBook;
        QTest::newRow("an empty title")
            << QByteArray(R"({"CFBundleHelpBookName": ""})") << english << noBook;
        QTest::newRow("a title that is no text")
            << QByteArray(R"({"CFBundleHelpBookName": 7})") << english << noBook;
        QTest::newRow("damaged information") << QByteArray("{") << english << noBook;
        QTest::newRow("an empty book") << kTitled << QStringList() << noText;
        QTest::newRow("only a language that the bundle does not declare")
            << kTitled << QStringList{u"de"_s} << noText;
    }
    void whatIsNoBookIsNotRegistered()
    {
        QFETCH(QByteArray, info);
        QFETCH(QStringList, pages);
        QFETCH(QString, logged);
        QVERIFY(QDir().mkpath(book()));
        if (!info.isNull())
            write(u"Panel.help/info.json"_s, info);
        writePages(pages);
        if (info.isNull() || info == "{")
            expectLogged(u"info\\.json"_s); // the reason of the bundle that it is laid out as
        expectLogged(logged);
        QVERIFY(!m_manager->registerBooksInBundle(*m_bundle, book()));
        expectLogged(u"cannot be opened: \"Book\""_s);
        QVERIFY(!m_manager->openHelpAnchor_inBook(u"here"_s, u"Book"_s));
        QVERIFY(m_opened.isEmpty());
    }

    void aBookThatDoesNotExistIsNotRegistered()
    {
        expectLogged(u"no help book: .*Panel\\.help"_s);
        QVERIFY(!m_manager->registerBooksInBundle(*m_bundle, book()));
    }

    void aPageThatIsAFolderIsNoPage()
    {
        write(u"Panel.help/info.json"_s, kTitled);
        QVERIFY(QDir().mkpath(path(u"Panel.help/English/index.html"_s)));
        expectLogged(u"has no text"_s);
        QVERIFY(!m_manager->registerBooksInBundle(*m_bundle, book()));
    }

    void anUnknownBookOpensNothing()
    {
        write(u"Panel.help/info.json"_s, kTitled);
        writePages({u"English"_s});
        QVERIFY(m_manager->registerBooksInBundle(*m_bundle, book()));
        expectLogged(u"cannot be opened: \"Another\""_s);
        QVERIFY(!m_manager->openHelpAnchor_inBook(u"here"_s, u"Another"_s));
        QVERIFY(m_opened.isEmpty());
    }

    void withoutAViewerNothingOpens()
    {
        write(u"Panel.help/info.json"_s, kTitled);
        writePages({u"English"_s});
        QVERIFY(m_manager->registerBooksInBundle(*m_bundle, book()));
        m_manager->setViewer(nullptr);
        expectLogged(u"cannot be opened: \"Book\""_s);
        QVERIFY(!m_manager->openHelpAnchor_inBook(u"here"_s, u"Book"_s));
    }

    void aBookThatIsRegisteredAgainFollowsTheLanguage()
    {
        write(u"Panel.help/info.json"_s, kTitled);
        writePages({u"English"_s, u"Japanese"_s});
        QVERIFY(m_manager->registerBooksInBundle(*m_bundle, book()));
        QLocale::setDefault(QLocale(u"ja_JP"_s));
        QVERIFY(m_manager->registerBooksInBundle(*m_bundle, book()));
        QVERIFY(m_manager->openHelpAnchor_inBook(u"here"_s, u"Book"_s));
        QCOMPARE(QFileInfo(m_opened.value(0).file).dir().dirName(), u"Japanese"_s);
    }

    void thePanelsAndTheHostShareOneManager()
    {
        QCOMPARE(&HelpManager::sharedHelpManager(), &HelpManager::sharedHelpManager());
    }
};

QTEST_GUILESS_MAIN(HelpManagerTest)

#include "help_manager_test.moc"
