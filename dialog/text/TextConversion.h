#pragma once

#include <atomic>
#include <memory>

#include <QObject>
#include <QString>

#include "dialog/text/TextFormat.h"

class QThread;

namespace corvana {

/// The most pages that are made of one text: ten thousands of sheets are a mistake rather than a
/// wish, and whatever comes behind this needs memory for each page.
inline constexpr int kMostPagesOfText = 50'000;

/// Makes a PDF of a text, with fonts that have its characters.
///
/// One object makes one file. Needs a QGuiApplication. Thread: GUI thread; the work has a thread of
/// its own, which the destructor stops and waits for: it looks a hundred times a second.
class TextConversion : public QObject
{
    Q_OBJECT

public:
    TextConversion(const QString &text, const TextFormat &format, const QString &pdf,
                   QObject *parent = nullptr);
    ~TextConversion() override;

    /// Starts. `finished` follows in every case, never before this returns.
    void start();
    /// Stops it; `finished` follows with a failure.
    void cancel();
    bool isCanceled() const { return m_canceled; }

Q_SIGNALS:
    void pageReached(int page);
    /// `problem` is empty when the PDF is complete.
    void finished(const QString &problem);

private:
    QString convert();

    QString m_text;
    TextFormat m_format;
    QString m_pdf;
    std::unique_ptr<QThread> m_thread;
    std::atomic<bool> m_canceled = false;
};

} // namespace corvana
