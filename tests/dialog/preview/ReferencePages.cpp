#include "tests/dialog/preview/ReferencePages.h"

#include <algorithm>

#include <QFile>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>

namespace corvana::test {

using namespace Qt::StringLiterals;

QImage drawnByPdftoppm(const QString &file, int page, QSize size, bool isTurned)
{
    const QSize asked = isTurned ? size.transposed() : size;
    const QTemporaryDir folder;
    const QString number = QString::number(page + 1);
    QProcess program;
    program.start(u"pdftoppm"_s,
                  {u"-q"_s, u"-cropbox"_s, u"-f"_s, number, u"-l"_s, number, u"-singlefile"_s,
                   u"-scale-to-x"_s, QString::number(asked.width()), u"-scale-to-y"_s,
                   QString::number(asked.height()), file, folder.filePath(u"page"_s)});
    if (!program.waitForFinished(60000) || program.exitCode() != 0)
        return {};
    QImageReader::setAllocationLimit(0); // some are large
    return QImage(folder.filePath(u"page.ppm"_s)).convertToFormat(QImage::Format_RGB32);
}

int largestDifference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 255;
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        const auto *a = reinterpret_cast<const QRgb *>(one.constScanLine(y));
        const auto *b = reinterpret_cast<const QRgb *>(other.constScanLine(y));
        for (int x = 0; x < one.width(); ++x) {
            largest = std::max({largest, std::abs(qRed(a[x]) - qRed(b[x])),
                                std::abs(qGreen(a[x]) - qGreen(b[x])),
                                std::abs(qBlue(a[x]) - qBlue(b[x]))});
        }
    }
    return largest;
}

QString writtenFile(const QString &folder, const QString &name, const QByteArray &content)
{
    const QString path = folder + u'/' + name;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        return {};
    return path;
}

} // namespace corvana::test
