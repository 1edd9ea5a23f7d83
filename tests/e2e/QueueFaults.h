#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

#include "tests/e2e/QueueScene.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

/// A fault that meets somebody who prints, and what becomes of it.
struct QueueFault
{
    using Act = std::function<void(QueueScene &)>;
    using States = QList<int>;
    enum class Sends { OneDocument, SeveralDocuments, LargeDocument };

    QByteArray ppd{}; ///< of the queue; empty: the sample printer's
    /// How the device behind the queue behaves.
    std::function<void(CaptureDevice &)> device{};
    Act arrange{}; ///< when the window is ready, before Print is pressed
    /// Then something happens in the midst of it.
    std::function<bool(QueueScene &)> when{};
    Act strike{};
    QString says{};      ///< expression that the whole message matches, or the report
    bool closes = false; ///< printed: the window is gone
    States jobs{};       ///< at the server
    int documents = 0;   ///< that the printer got
    Act mend = [](QueueScene &scene) { scene.mend(); };
    QString saysAgain{}; ///< after Print was pressed once more; empty: it is not
    bool closesAgain = true;
    States jobsAgain{};
    int documentsAgain = 0;
    Sends sends = Sends::OneDocument;
    Act verify{}; ///< what else is so after the last try
};

/// Plays faults from the opening of a window to the second try, and watches whether the window
/// reacts all the while. What is not as a fault says fails the test that is running. One for a test
/// program; its folders are the user's meanwhile.
class FaultPlayer
{
public:
    /// A document of some blocks, so that both parts of it are several. Units: bytes.
    static constexpr qint64 partOfDocument = 200000;

    FaultPlayer();

    /// Plays without a fault, some times, to learn for how long the window does not react then.
    void learnTheUsual();
    /// Fails as well when the window did not react for longer than usual.
    void play(const QueueFault &fault);

    /// The document of `Sends::OneDocument`.
    QString document() const { return m_document; }

    /// What is said, and what is at the server and the printer, at the end of a try.
    static void verifyEnd(QueueScene &scene, const QString &says, bool closes,
                          const QueueFault::States &jobs, int documents);

private:
    /// The longest times for which the window did not react. Units: milliseconds.
    struct Gaps
    {
        qint64 opening = 0;
        qint64 printing = 0;
    };

    void playOnce(const QueueFault &fault);
    void tryTwice(QueueScene &scene, const QueueFault &fault);
    bool isSmooth() const;

    UserFolders m_folders;
    QString m_document;
    QString m_largeDocument;
    Gaps m_usual; // without any fault
    Gaps m_gaps;  // of the scene that was played last
};

/// A test of what faults come to: its player has learnt what is usual before the first one. The
/// faults of a test stand in the column "fault" of its data.
class QueueFaultTest : public QObject
{
    Q_OBJECT

protected:
    using Scene = QueueScene;
    using Fault = QueueFault;
    using States = QueueFault::States;
    static constexpr qint64 kPartOfDocument = FaultPlayer::partOfDocument;

    FaultPlayer &player() { return *m_player; }
    /// Plays the fault of the current row.
    void playRow();

private Q_SLOTS:
    void initTestCase();

private:
    std::optional<FaultPlayer> m_player;
};

} // namespace corvana::test
