#include "dialog/printers/PpdCopy.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryFile>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PpdCopy)
};

} // namespace

QByteArray hashOfPpd(const QByteArray &ppd)
{
    return QCryptographicHash::hash(ppd, QCryptographicHash::Sha256).toHex();
}

SharedPpd ppdOfFile(const QString &path)
{
    return std::make_shared<const PpdCopy>(PpdCopy{path});
}

SharedPpd temporaryPpd(const QByteArray &content, QString *error)
{
    auto file =
        std::make_shared<QTemporaryFile>(QDir::temp().filePath(u"corvana-print-XXXXXX.ppd"_s));
    if (file->open() && file->write(content) == content.size() && file->flush())
        return std::make_shared<const PpdCopy>(
            PpdCopy{file->fileName(), hashOfPpd(content), false, file});
    *error = Texts::tr("The printer's options cannot be written to %1: %2")
                 .arg(QDir::tempPath(), file->errorString());
    return nullptr;
}

SharedPpd writtenPpd(const QByteArray &content, QString *error)
{
    const SharedPpd ppd = temporaryPpd(content, error);
    if (!ppd)
        return nullptr;
    PpdCopy written = *ppd;
    written.isWritten = true;
    return std::make_shared<const PpdCopy>(std::move(written));
}

} // namespace corvana
