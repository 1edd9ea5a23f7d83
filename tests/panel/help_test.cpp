// Where a panel finds its help book, and what it opens in it.

#include <optional>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "platform/foundation/Bundle.h"
#include "platform/foundation/HelpManager.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TestPanel.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The bundle lies where bundles are installed: with a folder of help books beside its own folder.
class HelpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        write(u"Panels/Test.bundle/info.json"_s, R"({
            "CFBundleIdentifier": "com.corvana.test.help", "CFBundleName": "TestPanel",
            "CFBundleHelpBookName": "A Book", "CFBundleLocalizations": ["English"]})");
        m_bundle = Bundle::open(m_folder->filePath(u"Panels/Test.bundle"_s));
        QVERIFY(m_bundle);
        Bundle::associateModule(QCoreApplication::applicationFilePath(), m_bundle);
        m_panel = std::make_unique<TestPanel>();
        QVERIFY(m_panel->initWithHost(RecordingHost::forSamplePrinter()));
        HelpManager::sharedHelpManager().setViewer(
            [this](const HelpPage &page) { m_opened += page; });
    }
    void cleanup()
    {
        HelpManager::sharedHelpManager().setViewer(nullptr);
        m_opened.clear();
        m_panel.reset();
        Bundle::associateModule(QCoreApplication::applicationFilePath(), nullptr);
        m_bundle.reset();
        m_folder.reset();
    }

    void theBookLiesTwoFoldersAboveInHelp()
    {
        addBook(u"Help/TestPanel.help"_s);
        QVERIFY(registerHelp());
        m_panel->setMode(kModeHelpRegistered, true);
        QVERIFY2(!m_panel->shouldShowHelp(), "the host shows no help of its own then");
        const QList<HelpPage> expected{
            {u"A Book"_s, fileOf(u"Help/TestPanel.help/English/index.html"_s), u"QxHelpAnchor"_s}};
        QVERIFY(m_opened == expected);
    }

    void aBookElsewhereIsNotFound_data()
    {
        QTest::addColumn<QString>("book");
        QTest::newRow("one folder above") << u"Panels/Help/TestPanel.help"_s;
        QTest::newRow("in the bundle") << u"Panels/Test.bundle/Help/TestPanel.help"_s;
        QTest::newRow("without its folder") << u"TestPanel.help"_s;
        QTest::newRow("of another panel") << u"Help/OtherPanel.help"_s;
        QTest::newRow("with a large letter") << u"Help/TestPanel.Help"_s;
    }
    void aBookElsewhereIsNotFound()
    {
        QFETCH(QString, book);
        addBook(book);
        QVERIFY(!registerHelp());
        QVERIFY2(m_panel->shouldShowHelp(), "the host shows its own help");
        QVERIFY(m_opened.isEmpty());
    }

    void theHelpButtonOpensTheBookOnlyWhenItIsRegistered()
    {
        addBook(u"Help/TestPanel.help"_s);
        QVERIFY(registerHelp());
        m_panel->setMode(kModeHelpRegistered, false);
        m_panel->showHelpFile(nullptr);
        QVERIFY(m_opened.isEmpty());
        m_panel->setMode(kModeHelpRegistered, true);
        m_panel->showHelpFile(nullptr);
        QCOMPARE(m_opened.size(), 1);
    }

private:
    // The base's own; the test panel replaces it.
    bool registerHelp() { return m_panel->QXPrintQualityPDE::registerHelp(); }
    void addBook(const QString &path)
    {
        write(path + u"/info.json"_s, R"({"CFBundleHelpBookName": "A Book"})");
        write(path + u"/English/index.html"_s, "<p>Help</p>");
    }
    QString fileOf(const QString &path) const
    {
        return QFileInfo(m_folder->filePath(path)).canonicalFilePath();
    }
    void write(const QString &path, const QByteArray &content)
    {
        QFile file(m_folder->filePath(path));
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }

    std::optional<QTemporaryDir> m_folder;
    std::shared_ptr<Bundle> m_bundle;
    std::unique_ptr<TestPanel> m_panel;
    QList<HelpPage> m_opened;
};

QTEST_MAIN(HelpTest)
#include "help_test.moc"
