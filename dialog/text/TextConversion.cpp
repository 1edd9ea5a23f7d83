#include "dialog/text/TextConversion.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QThread>
#include <QTimer>

#include "dialog/text/TextFlow.h"
#include "dialog/text/TextGlyphs.h"
#include "dialog/text/TextPdf.h"
#include "dialog/text/TextSource.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// How often somebody is told how far it is. Units: pages.
constexpr int kPagesBetweenReports = 50;

} // namespace

TextConversion::TextConversion(const QString &text, const TextFormat &format, const QString &pdf,
                               QObject *parent)
    : QObject(parent), m_text(text), m_format(format), m_pdf(pdf)
{
}

TextConversion::~TextConversion()
{
    m_canceled = true;
    if (m_thread)
        m_thread->wait();
}

void TextConversion::start()
{
    // Fonts belong to the application; without one they crash.
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        QTimer::singleShot(0, this, [this] {
            Q_EMIT finished(tr("There are no fonts for the text %1.").arg(m_text));
        });
        return;
    }
    m_thread.reset(QThread::create([this] {
        const QString problem = convert();
        QMetaObject::invokeMethod(
            this, [this, problem] { Q_EMIT finished(problem); }, Qt::QueuedConnection);
    }));
    m_thread->start();
}

void TextConversion::cancel()
{
    m_canceled = true;
}

// Runs on the other thread. Answers what stands in the way.
QString TextConversion::convert()
{
    const QString name = QFileInfo(m_text).fileName();
    QString problem;
    TextSource source(m_text, textLanguageOf(QLocale().name()), &problem);
    QFile file(m_pdf);
    if (!problem.isEmpty())
        return tr("%1 cannot be read: %2").arg(name, problem);
    // What a buffer could not write would be reported without its reason.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return tr("%1 cannot be written: %2").arg(m_pdf, file.errorString());
    TextGlyphs glyphs(source.encoding().language);
    TextPdf pdf(file, m_format, glyphs);
    bool isWritten = true;
    const auto takePage = [&](const TextPage &page) {
        isWritten = pdf.addPage(page);
        if (pdf.pages() % kPagesBetweenReports == 0)
            QMetaObject::invokeMethod(
                this, [this, page = pdf.pages()] { Q_EMIT pageReached(page); },
                Qt::QueuedConnection);
        return isWritten && !m_canceled && pdf.pages() < kMostPagesOfText;
    };
    TextFlow flow(m_format, source.encoding().signsAreWide, takePage);
    bool wanted = true;
    while (wanted && !source.atEnd())
        wanted = flow.write(source.read());
    const bool tooLong = pdf.pages() >= kMostPagesOfText;
    if (m_canceled)
        return tr("Printing was canceled.");
    if (!source.problem().isEmpty())
        return tr("%1 cannot be read: %2").arg(name, source.problem());
    if (isWritten && tooLong)
        return tr("%1 would have more than %2 pages, and a text is printed on no more than that.")
            .arg(name, QString::number(kMostPagesOfText));
    isWritten = isWritten && flow.finish() && pdf.finish();
    if (!isWritten)
        return tr("%1 cannot be written: %2").arg(m_pdf, file.errorString());
    return {};
}

} // namespace corvana
