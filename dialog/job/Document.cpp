#include "dialog/job/Document.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QTemporaryFile>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Format
{
    QLatin1StringView mimeType;
    const char *name;
};
constexpr Format kFormats[] = {
    {"application/pdf"_L1, QT_TRANSLATE_NOOP("Document", "PDF document")},
    {"application/postscript"_L1, QT_TRANSLATE_NOOP("Document", "PostScript document")},
    {"image/png"_L1, QT_TRANSLATE_NOOP("Document", "PNG picture")},
    {"image/jpeg"_L1, QT_TRANSLATE_NOOP("Document", "JPEG picture")},
    {"text/plain"_L1, QT_TRANSLATE_NOOP("Document", "text")},
};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Document)
};

// Programs and notes are text too; an EPS picture is PostScript.
const Format *formatOf(const QMimeType &type)
{
    const auto found = std::find_if(std::begin(kFormats), std::end(kFormats),
                                    [&](const Format &f) { return type.inherits(f.mimeType); });
    return found == std::end(kFormats) ? nullptr : found;
}

} // namespace

Document inspectDocument(const QString &path, QString *error)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.exists()) {
        *error = Texts::tr("%1: there is no such file.").arg(path);
        return {};
    }
    if (info.isDir()) {
        *error = Texts::tr("%1 is a folder; a document was expected.").arg(path);
        return {};
    }
    // A pipe or a device can be read only once, and perhaps never ends.
    if (!info.isFile()) {
        *error = Texts::tr("%1 is no ordinary file; a document was expected.").arg(path);
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *error = Texts::tr("%1 cannot be read: %2").arg(path, file.errorString());
        return {};
    }
    if (info.size() == 0) {
        *error = Texts::tr("%1 is empty.").arg(path);
        return {};
    }
    const QMimeDatabase database;
    const QMimeType content = database.mimeTypeForData(&file);
    const Format *held = formatOf(content);
    const auto namedTypes = database.mimeTypesForFileName(info.fileName());
    const Format *promised = namedTypes.isEmpty() ? nullptr : formatOf(namedTypes.constFirst());
    if (!held) {
        *error =
            Texts::tr(
                "%1 cannot be printed: it holds %2. Documents can be PDF, PostScript, text, PNG "
                "or JPEG.")
                .arg(path, content.comment());
        return {};
    }
    if (promised && promised != held) {
        *error = Texts::tr("%1 is named like a %2, but holds a %3. Rename it if that is right.")
                     .arg(path, Texts::tr(promised->name), Texts::tr(held->name));
        return {};
    }
    return {info.absoluteFilePath(), held->mimeType, info.fileName()};
}

Document readStandardInput(std::shared_ptr<QTemporaryFile> *file, QString *error)
{
    const QString name = Texts::tr("standard input");
    QFile input;
    auto copy = std::make_shared<QTemporaryFile>();
    if (!input.open(stdin, QIODevice::ReadOnly) || !copy->open()) {
        *error = Texts::tr("%1 cannot be read: %2").arg(name, input.errorString());
        return {};
    }
    constexpr qint64 kChunk = 1 << 20;
    for (QByteArray chunk = input.read(kChunk); !chunk.isEmpty(); chunk = input.read(kChunk)) {
        if (copy->write(chunk) != chunk.size()) {
            *error = Texts::tr("%1 cannot be kept: %2").arg(name, copy->errorString());
            return {};
        }
    }
    copy->close();
    Document document = inspectDocument(copy->fileName(), error);
    if (document.path.isEmpty())
        error->replace(copy->fileName(), name);
    document.title = name;
    *file = copy;
    return document;
}

} // namespace corvana
