#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>

#include <QObject>
#include <QString>
#include <QStringList>

class QThread;

namespace corvana {

/// Looks in the background for characters of texts that no font has, so that it can be said before
/// they are printed.
///
/// The first 32 MiB of a text are looked at, some thousands of pages. Needs a QGuiApplication.
/// Thread: GUI thread; the work has a thread of its own, which the destructor stops and waits for.
class TextCheck : public QObject
{
    Q_OBJECT

public:
    /// What is known of the texts.
    struct Finding
    {
        /// The first of these characters, for a person: "𓀀 (U+13000), …"; empty where there is
        /// none.
        QString missing{};
        /// Whether the texts were looked at to their ends.
        bool isWhole = true;
    };

    explicit TextCheck(const QStringList &paths);
    ~TextCheck() override;

    /// What was found; nothing while it is being looked for.
    std::optional<Finding> finding() const;

Q_SIGNALS:
    /// There is a finding. Never before the constructor returns.
    void finished();

private:
    void look(const QStringList &paths);
    bool lookInto(const QString &path, std::u32string &missing) const;

    std::unique_ptr<QThread> m_thread;
    std::atomic<bool> m_canceled = false;
    mutable std::mutex m_mutex;
    std::optional<Finding> m_finding;
};

} // namespace corvana
