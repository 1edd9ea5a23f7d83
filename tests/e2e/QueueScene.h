#pragma once

#include <memory>
#include <optional>

#include <QList>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>

#include "tests/e2e/QueueDriver.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/PrivateCups.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

/// The queue of a QueueScene.
inline const QString kQueue = u"office"_s;
/// The printer of a window that prints into files.
inline const QString kFilePrinter = u"Save as PDF"_s;

// What the window says, as expressions: the beginning of a complaint about the server, the end of
// one about a job, and the report of a job with that number.
inline const QString kServer = u"The print server “127\\.0\\.0\\.1:[0-9]+” "_s;
inline const QString kNothingPrinted = u" Nothing was printed\\."_s;
inline const QString kPrintedAs = u"Printed on “office” as job office-%1\\."_s;

/// A user's folders for the time of a test program: home, preferences and caches are empty, and
/// servers are waited for two seconds. One for a program, before any window.
class UserFolders
{
public:
    /// Errors: throws std::runtime_error.
    UserFolders();

    QString filePath(const QString &name) const { return m_folder.filePath(name); }
    /// Writes a file and answers its path. Errors: throws std::runtime_error.
    QString write(const QString &name, const QByteArray &content) const;
    /// Writes a PDF of three pages that is longer than what is sent in one piece. Units: bytes.
    QString longDocument(const QString &name = u"document.pdf"_s, int size = 600000) const;

private:
    QTemporaryDir m_folder;
};

/// The whole content of a file. Errors: throws std::runtime_error.
QByteArray contentOf(const QString &path);
/// The path of a sample printer's PPD ("corvana-cl5").
QString samplePpdPath(const QString &printer);
/// Whether the whole text is what the expression says.
bool matches(const QString &text, const QString &expression);

/// A print server with something in front of it that misbehaves when it is told to, a printer, and
/// the window of somebody who prints there. Acts on the server block: the heart stands still then.
struct QueueScene
{
    explicit QueueScene(const CupsSettings &settings = {});

    /// Adds the queue "office", a printer with panels that prints to `device`.
    void addQueue(const QString &ppdPath = samplePpdPath(u"corvana-cl5"_s));
    /// Opens the window; without a printer that is named where `printer` is empty.
    void open(const QStringList &documents, const QString &printer = kQueue);
    /// The states of all jobs, by their numbers.
    QList<int> states() const;

    void goAway();
    void fallSilent();
    /// All faults end.
    void mend();

    PrivateCups cups;
    FaultyServer between;
    CaptureDevice device;
    std::unique_ptr<QueueDriver> window;
};

/// A window that waits for a server stands still for the patience of the scene, 2 seconds, at
/// least. What the window does itself is far less, but a busy machine makes many times that of it.
/// Units: milliseconds.
inline constexpr qint64 kLongestGap = 1500;

/// What tests of one queue set up: folders of a user, a document, and a window whose settings are
/// not what it comes with.
class QueueFixture : public QObject
{
protected:
    void makeFolders()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
        m_folders.emplace();
        m_document = m_folders->longDocument();
    }
    void open(QueueScene &scene)
    {
        scene.addQueue();
        scene.open({m_document});
        QVERIFY(scene.window->waitUntil([&] { return scene.window->canPrint(); }));
        scene.window->changeSettings();
    }

    /// Prints what the window shows; it is the server's job number `job`.
    static void printAndVerify(QueueScene &scene, int job)
    {
        QVERIFY(scene.window->press(u"print"_s));
        QVERIFY(scene.window->waitForTheEnd());
        QVERIFY2(matches(scene.window->dialog().report(), kPrintedAs.arg(job)),
                 qPrintable(scene.window->message()));
        QCOMPARE(scene.cups.job(job).state, IPP_JSTATE_COMPLETED);
    }

    std::optional<UserFolders> m_folders;
    QString m_document;
};

} // namespace corvana::test
