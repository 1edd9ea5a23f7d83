#include "dialog/job/ResultPages.h"

#include <algorithm>
#include <iterator>

#include <QCoreApplication>
#include <QFile>
#include <QTimer>

#include "dialog/job/PdfPages.h"
#include "dialog/job/ProgramRun.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ResultPages)
};

// Formats of raster data, by their first bytes, and the size of a file that has no page.
struct RasterForm
{
    QByteArrayView mark;
    qint64 sizeWithoutPage;
};
constexpr RasterForm kRasterForms[] = {
    {"RaSt", 4}, {"tSaR", 4}, {"RaS2", 4}, {"2SaR", 4}, {"RaS3", 4}, {"3SaR", 4}, {"UNIRAST", 12},
};

constexpr QByteArrayView kPagesComment = "%%Pages:";

// The number behind the last such comment; -1 when there is none.
int pagesInComment(const QByteArray &text)
{
    const qsizetype at = text.lastIndexOf(kPagesComment);
    if (at < 0)
        return -1;
    const QByteArray rest = text.mid(at + kPagesComment.size(), 16);
    const qsizetype end =
        std::find_if(rest.cbegin(), rest.cend(), [](char c) { return c == '\n' || c == '\r'; }) -
        rest.cbegin();
    bool isNumber = false;
    const int pages = rest.first(end).trimmed().toInt(&isNumber);
    return isNumber ? pages : -1;
}

// Printers may be sent commands of another language first.
bool contains(const QByteArray &head, QByteArrayView mark)
{
    constexpr qsizetype kRoomForCommands = 8 << 10;
    return head.first(std::min(head.size(), kRoomForCommands)).contains(mark);
}

} // namespace

QString noPageText()
{
    return Texts::tr("Nothing would be printed: what came out has no page.");
}

bool isKnownToBeEmpty(const QByteArray &head, const QByteArray &tail, qint64 size)
{
    const auto raster =
        std::find_if(std::begin(kRasterForms), std::end(kRasterForms),
                     [&](const RasterForm &form) { return head.startsWith(form.mark); });
    if (raster != std::end(kRasterForms))
        return size <= raster->sizeWithoutPage;
    if (!contains(head, "%!PS"))
        return false;
    // The beginning may promise a number that only the end names.
    const int atEnd = pagesInComment(tail);
    return (atEnd >= 0 ? atEnd : pagesInComment(head)) == 0;
}

void checkResultPages(const QString &path, QObject *owner,
                      const std::function<void(const QString &problem)> &answer)
{
    QFile file(path);
    const auto later = [&](const QString &problem) {
        QTimer::singleShot(0, owner, [answer, problem] { answer(problem); });
    };
    // Whoever gives the file its name meets the same problem, and has the words for it.
    if (!file.open(QIODevice::ReadOnly))
        return later({});
    const QByteArray head = file.read(kLookedAt);
    const bool hasTail = file.seek(std::max(qint64(0), file.size() - kLookedAt));
    const QByteArray tail = hasTail ? file.read(kLookedAt) : QByteArray();
    if (!contains(head, "%PDF-") || contains(head, "%!PS"))
        return later(isKnownToBeEmpty(head, tail, file.size()) ? noPageText() : QString());
    auto *run =
        new ProgramRun(QString::fromLatin1(kPdfInfoProgram), pdfPagesArguments(path, 0), {}, owner);
    QObject::connect(run, &ProgramRun::finished, owner, [answer, run] {
        run->deleteLater();
        answer(run->exitStatus() == kPdfInfoFoundNoPage ? noPageText() : QString());
    });
    run->start();
}

} // namespace corvana
