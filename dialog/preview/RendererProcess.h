#pragma once

#include <chrono>
#include <functional>
#include <vector>

#include <sys/types.h>

#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include "renderer/protocol/MessageReading.h"
#include "renderer/protocol/MessageSocket.h"

namespace corvana {

/// The program that draws pages, and how long it is waited for.
struct RendererSettings
{
    QString program;
    std::chrono::milliseconds startPatience{10000};
    std::chrono::milliseconds pagePatience{20000}; ///< for opening a document, too

    /// Those of the program that belongs to this one.
    static RendererSettings shipped();
};

/// What the renderer finds in a PDF that is to be printed.
struct CheckedPdf
{
    bool isEncrypted = false;
    bool mayPrint = true; ///< without the owner's password
    bool isOwner = false; ///< the password is the owner's
    bool isDamaged = false;
    int pages = 0; ///< that can be read
    int lostPages = 0;
    quint64 damagedAt = 0; ///< byte; 0: nobody knows
    QString detail{};      ///< what is wrong, in a library's words
};

/// The program that draws pages, which is a process of its own and may do anything but harm: it may
/// die, hang, or answer nonsense. After any of these it is gone and can be started again.
///
/// Thread: one, which waits in here. The process ends with that thread at the latest.
class RendererProcess
{
public:
    enum class Outcome {
        Done,
        Damaged,
        TooLarge,
        PasswordNeeded,
        Unreadable, ///< there is no such file, or it is not to be read
        OutOfTime,
        Died, ///< it has ended, or said what cannot be
        Interrupted,
        CannotStart,
    };
    /// Asked again and again while the process is waited for; false ends the wait, and the process.
    using KeepOn = std::function<bool()>;

    /// `wake` becomes readable when there is a reason to ask `keepOn` at once; -1 for none.
    explicit RendererProcess(RendererSettings settings, KeepOn keepOn = {}, int wake = -1);
    ~RendererProcess();
    RendererProcess(const RendererProcess &) = delete;
    RendererProcess &operator=(const RendererProcess &) = delete;

    /// Done when it runs already. A process that has died meanwhile is noticed here.
    Outcome start();
    void stop();
    bool isRunning() const { return m_process > 0; }
    pid_t processId() const { return m_process; }
    /// How many processes there were: another number is another process, which has no documents.
    int starts() const { return m_starts; }
    /// What keeps the running process in.
    const renderer::Ready &locks() const { return m_locks; }

    // What follows needs a process that runs. OutOfTime, Died and Interrupted have ended it, as has
    // TooLarge when the process itself said so; with it all its documents are closed.

    /// `document` is a number that no open document has; from 1.
    Outcome open(quint32 document, const QString &file, const QString &password, int *pages);
    /// All sizes of its pages. Units: points. Empty for a page that cannot be read.
    Outcome listSizes(quint32 document, int pages, QList<QSizeF> *sizes);
    /// What the document calls its pages, one text for each; empty where that is a page's number.
    /// One line each, without control characters, however hostile the document.
    Outcome listLabels(quint32 document, int pages, QStringList *labels);
    /// `picture` is opaque, of the format RGB32, and nobody else's.
    /// Range of `size`: what renderer::isPictureSize() allows, else TooLarge.
    Outcome draw(quint32 document, int page, QSize size, QImage *picture);
    Outcome close(quint32 document);
    /// Looks into a PDF. `checked` says what is wrong with one that is Damaged, too.
    Outcome check(const QString &file, const QString &password, CheckedPdf *checked);
    /// Writes what was checked last into an open, empty file, without a password and without what
    /// could not be read.
    Outcome copy(int file);

private:
    using Clock = std::chrono::steady_clock;

    bool spawn();
    /// Waits until there is something to be received.
    Outcome await(std::chrono::milliseconds patience);
    template <typename Answer> Outcome receive(std::chrono::milliseconds patience, Answer *answer);
    template <typename Answer, typename Asked>
    Outcome ask(const Asked &request, int descriptor, Answer *answer);
    template <typename Answer, typename Asked, typename Take>
    Outcome list(quint32 document, int pages, quint32 atOnce, const Take &take);
    Outcome ended(Outcome outcome);

    RendererSettings m_settings;
    KeepOn m_keepOn;
    int m_wake;
    pid_t m_process = -1;
    int m_starts = 0;
    renderer::Descriptor m_socket;
    renderer::Ready m_locks;
    quint32 m_sequence = 0;
};

} // namespace corvana
