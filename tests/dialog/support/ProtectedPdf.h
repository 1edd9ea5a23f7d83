#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace corvana::test {

/// Makes a protected copy of a PDF with the program qpdf: "--encrypt" and what follows it, up to
/// "--". Errors: throws std::runtime_error.
void protectPdf(const QString &from, const QString &to, const QStringList &encryption);

// The passwords of documents that protectedPdf() makes. The second one has what no 7-bit encoding
// has.
inline constexpr QLatin1StringView kUserPassword{"open-sesame-4711"};
inline constexpr QLatin1StringView kOwnerPassword{"owner-sesame-0815"};

/// Ways in which a PDF can be protected: with which passwords and how strongly.
enum class Protection {
    Rc4With40Bits,
    Rc4With128Bits,
    AesWith128Bits,
    AesWith256Bits,
    OwnerOnly,             ///< opens without a password, allows printing
    OwnerOnlyNoPrinting,   ///< opens without a password, forbids printing
    OwnerOnlyNoPrinting40, ///< the same of the oldest kind
    NoPrinting,            ///< opens with the user's password, forbids printing
    LowResolutionPrinting, ///< opens without a password, allows printing at a low resolution
};

/// A PDF of so many pages, whose texts are "page 1" and so on, protected. Answers its path.
QString protectedPdf(const QString &path, Protection protection, int pages = 5);

} // namespace corvana::test
