#pragma once

#include <atomic>
#include <chrono>
#include <memory>

#include <QString>
#include <QStringList>

class QThread;

namespace corvana {

/// Looks in the background for characters of texts that no font has, so that it can be said before
/// they are printed.
///
/// The first 32 MiB of a text are looked at, some thousands of pages; what comes behind them is
/// printed as an empty frame without having been said before. Needs a QGuiApplication.
/// Thread: GUI thread; the work has a thread of its own, which the destructor stops and waits for.
class TextCheck
{
public:
    explicit TextCheck(const QStringList &paths);
    ~TextCheck();
    TextCheck(const TextCheck &) = delete;
    TextCheck &operator=(const TextCheck &) = delete;

    /// The first of these characters, for a person: "𓀀 (U+13000), …"; empty where there is none, or
    /// where the looking takes longer than this.
    QString missing(std::chrono::milliseconds patience) const;

private:
    void look(const QString &path);

    std::u32string m_missing; // belongs to the thread until it has ended
    std::atomic<bool> m_canceled = false;
    std::unique_ptr<QThread> m_thread;
};

} // namespace corvana
