#include "dialog/job/Document.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>

#include "dialog/job/DocumentCopy.h"
#include "dialog/job/FileBytes.h"
#include "dialog/job/TemporaryFolder.h"
#include "dialog/job/WrappedPostScript.h"
#include "dialog/text/TextEncoding.h"

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

QByteArray beginningOf(QFile &file)
{
    constexpr qint64 kBeginning = 4096;
    file.seek(0);
    return file.read(kBeginning);
}

// What a driver has made for a printer. It may look like a text, and pages of it would be full of
// commands.
bool isPrinterData(const QByteArray &beginning)
{
    return beginning.startsWith("\x1B%-12345X") || beginning.startsWith("\x1B"
                                                                        "E\x1B");
}

// The document between commands to a printer, which neither the counting of its pages nor all of
// CUPS' filters get along with. `copy` holds what is read of the file where it is not the user's.
Document unwrapped(const QString &path, const QString &fileName, const WrappedPostScript &part,
                   std::shared_ptr<QTemporaryDir> copy, QString *error)
{
    constexpr qint64 kPiece = 1 << 20;
    if (!copy)
        copy = std::make_shared<QTemporaryDir>();
    if (*error = problemOf(*copy); !error->isEmpty())
        return {};
    QFile file(path);
    QFile bare(copy->filePath(u"bare"_s));
    bool isDone =
        file.open(QIODevice::ReadOnly) && bare.open(QIODevice::WriteOnly) && file.seek(part.begin);
    for (qint64 at = part.begin; isDone && at < part.end;) {
        const QByteArray piece = file.read(std::min(kPiece, part.end - at));
        isDone = !piece.isEmpty() && bare.write(piece) == piece.size();
        at += piece.size();
    }
    if (!isDone || !bare.flush()) {
        const QFile &failed = bare.error() == QFile::NoError ? file : bare;
        *error = Texts::tr("%1 cannot be kept: %2").arg(fileName, failed.errorString());
        return {};
    }
    return {bare.fileName(),
            u"application/postscript"_s,
            fileName,
            copy,
            QFileInfo(path).absoluteFilePath(),
            part.settings};
}

// What a file holds. The filter chain reads no UTF-16 and no escape sequences, and no database of
// types calls them text; pages are made of them here.
const Format *formatOfContent(QFile &file, const QMimeType &type)
{
    const Format *known = formatOf(type);
    if (isPrinterData(beginningOf(file)))
        return nullptr;
    if (known)
        return known;
    constexpr const Format *kText = std::end(kFormats) - 1;
    return type.isDefault() && looksLikeText(beginningOf(file)) ? kText : nullptr;
}

// What is named so and says so itself, as most documents do, is one by any database of types.
// Reading one takes longer than all else that is done with a document before its window is there.
bool isPlainlyPdf(QFile &file, const QString &fileName)
{
    return fileName.endsWith(".pdf"_L1, Qt::CaseInsensitive) && file.peek(5) == "%PDF-";
}

// `name` is what the user calls it; `copy` holds the file where it is not the user's. Errors: see
// inspectDocument().
Document inspectFile(const QString &path, const QString &name, DocumentKinds kinds, QString *error,
                     const std::shared_ptr<QTemporaryDir> &copy = nullptr)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = Texts::tr("%1 cannot be read: %2").arg(name, file.errorString());
        return {};
    }
    if (file.size() == 0) {
        *error = Texts::tr("%1 is empty.").arg(name);
        return {};
    }
    const QString fileName = QFileInfo(name).fileName();
    if (isPlainlyPdf(file, fileName))
        return {QFileInfo(path).absoluteFilePath(), kFormats[0].mimeType, fileName};
    const QMimeDatabase database;
    const QMimeType content = database.mimeTypeForData(&file);
    const Format *held = formatOfContent(file, content);
    // What is in it is its printer's affair, and so is whether its name fits.
    if (kinds == DocumentKinds::Any)
        return {QFileInfo(path).absoluteFilePath(), held ? held->mimeType : kUnknownFormat,
                fileName};
    const auto namedTypes = database.mimeTypesForFileName(fileName);
    const Format *promised = namedTypes.isEmpty() ? nullptr : formatOf(namedTypes.constFirst());
    std::optional<WrappedPostScript> wrapped;
    if (mayBeWrapped(beginningOf(file)) && (wrapped = findWrappedPostScript(file)))
        held = &kFormats[1];
    if (!held && isPrinterData(beginningOf(file))) {
        *error = Texts::tr("%1 cannot be printed: it holds data that are ready for a printer. A "
                           "queue passes them on as they are with the option “raw”.")
                     .arg(name);
        return {};
    }
    // Its name for such data ("unknown") is no name of a thing.
    if (!held && content.isDefault()) {
        *error = Texts::tr("%1 cannot be printed: nobody can tell what is in it. Documents can be "
                           "PDF, PostScript, text, PNG or JPEG.")
                     .arg(name);
        return {};
    }
    if (!held) {
        *error =
            Texts::tr(
                "%1 cannot be printed; its contents: %2. Documents can be PDF, PostScript, text, "
                "PNG or JPEG.")
                .arg(name, content.comment());
        return {};
    }
    if (promised && promised != held) {
        *error = Texts::tr("%1 is named like a %2, but holds a %3. Rename it if that is right.")
                     .arg(name, Texts::tr(promised->name), Texts::tr(held->name));
        return {};
    }
    if (wrapped)
        return unwrapped(path, fileName, *wrapped, copy, error);
    return {QFileInfo(path).absoluteFilePath(), held->mimeType, fileName};
}

// What can be read only once, or has a name that no program of the chain can be told.
Document inspectCopy(int descriptor, const QString &name, DocumentKinds kinds, QString *error,
                     const std::stop_token &stop = {})
{
    const std::shared_ptr<QTemporaryDir> copy =
        copyOfDocument(descriptor, name, error, kMostBytesOfCopy, stop);
    if (!copy)
        return {};
    Document document = inspectFile(pathOfCopy(*copy), name, kinds, error, copy);
    if (!document.path.isEmpty())
        document.copy = copy;
    return document;
}

// Closes a file at its end.
struct Descriptor
{
    int number = -1;
    explicit Descriptor(int opened) : number(opened) {}
    ~Descriptor()
    {
        if (number >= 0)
            ::close(number);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
};

} // namespace

bool isReadToItsEnd(const QString &path)
{
    struct stat info
    {
    };
    if (path == kStandardInput) {
        return ::fstat(STDIN_FILENO, &info) == 0 &&
               (S_ISFIFO(info.st_mode) || S_ISSOCK(info.st_mode) || ::isatty(STDIN_FILENO));
    }
    if (::stat(bytesOfName(path).constData(), &info) != 0 || !S_ISREG(info.st_mode))
        return S_ISFIFO(info.st_mode);
    if (hasStrayBytes(path))
        return true;
    // What stands around a document ends where it ends.
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && mayBeWrapped(beginningOf(file));
}

Document inspectDocument(const QString &path, QString *error, DocumentKinds kinds,
                         const std::stop_token &stop)
{
    if (path == kStandardInput)
        return inspectCopy(STDIN_FILENO, Texts::tr("standard input"), kinds, error, stop);
    const QString name = shownName(path);
    const QByteArray bytes = bytesOfName(path);
    struct stat info
    {
    };
    if (::stat(bytes.constData(), &info) != 0) {
        *error = errno == ENOENT || errno == ENOTDIR
                     ? Texts::tr("%1: there is no such file.").arg(name)
                     : Texts::tr("%1 cannot be read: %2").arg(name, qt_error_string(errno));
        return {};
    }
    if (S_ISDIR(info.st_mode)) {
        *error = Texts::tr("%1 is a folder; a document was expected.").arg(name);
        return {};
    }
    // A device perhaps never ends.
    if (!S_ISREG(info.st_mode) && !S_ISFIFO(info.st_mode)) {
        *error = Texts::tr("%1 is no ordinary file; a document was expected.").arg(name);
        return {};
    }
    if (S_ISREG(info.st_mode) && !hasStrayBytes(path))
        return inspectFile(path, name, kinds, error);
    // A pipe without a writer would be waited for without end.
    const Descriptor file(::open(bytes.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (file.number < 0) {
        *error = Texts::tr("%1 cannot be read: %2").arg(name, qt_error_string(errno));
        return {};
    }
    return inspectCopy(file.number, name, kinds, error, stop);
}

QString nameOfFormat(const QString &format)
{
    const auto found = std::find_if(std::begin(kFormats), std::end(kFormats),
                                    [&](const Format &f) { return format == f.mimeType; });
    return found == std::end(kFormats) ? QString() : Texts::tr(found->name);
}

bool isStandardInputGiven()
{
    struct stat info
    {
    };
    return ::fstat(STDIN_FILENO, &info) == 0 &&
           (S_ISFIFO(info.st_mode) || S_ISREG(info.st_mode) || S_ISSOCK(info.st_mode));
}

} // namespace corvana
