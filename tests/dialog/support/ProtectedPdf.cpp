#include "tests/dialog/support/ProtectedPdf.h"

#include <stdexcept>

#include <QFile>
#include <QProcess>

#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/NumberedPdf.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

QStringList encryptionOf(Protection protection)
{
    const QString user = kUserPassword;
    const QString owner = kOwnerPassword;
    switch (protection) {
    case Protection::Rc4With40Bits:
        return {user, owner, u"40"_s};
    case Protection::Rc4With128Bits:
        return {user, owner, u"128"_s};
    case Protection::AesWith128Bits:
        return {user, owner, u"128"_s, u"--use-aes=y"_s};
    case Protection::AesWith256Bits:
        return {user, owner, u"256"_s};
    case Protection::OwnerOnly:
        return {QString(), owner, u"256"_s};
    case Protection::OwnerOnlyNoPrinting:
        return {QString(), owner, u"256"_s, u"--print=none"_s};
    case Protection::OwnerOnlyNoPrinting40:
        return {QString(), owner, u"40"_s, u"--print=n"_s};
    case Protection::NoPrinting:
        return {user, owner, u"256"_s, u"--print=none"_s};
    case Protection::LowResolutionPrinting:
        return {QString(), owner, u"256"_s, u"--print=low"_s};
    }
    return {};
}

} // namespace

void protectPdf(const QString &from, const QString &to, const QStringList &encryption)
{
    const int status =
        QProcess::execute(u"qpdf"_s, QStringList{u"--allow-weak-crypto"_s, u"--encrypt"_s} +
                                         encryption + QStringList{u"--"_s, from, to});
    if (status != 0)
        throw std::runtime_error("qpdf cannot protect a PDF");
}

QString protectedPdf(const QString &path, Protection protection, int pages)
{
    const QString plain = writeFile(path + u".plain"_s, numberedPdf("page", pages));
    protectPdf(plain, path, encryptionOf(protection));
    QFile::remove(plain);
    return path;
}

} // namespace corvana::test
