#pragma once

#include <optional>

#include <QByteArray>
#include <QList>
#include <QRectF>
#include <QStringList>

namespace corvana {

/// One page as a PDF describes it. Units: points.
struct PdfPage
{
    QRectF media;
    QRectF crop;
    QRectF trim;
    int rotation = 0; ///< Range: 0, 90, 180, 270; clockwise

    bool operator==(const PdfPage &) const = default;
};

/// The pages of a PDF.
struct PdfPages
{
    int count = 0;
    /// As many of them as were asked for, from the first one on.
    QList<PdfPage> pages;
};

/// Asks the program pdfinfo of Poppler for the number of the pages of a PDF, and for the boxes of
/// the first `described` ones.
QStringList pdfPagesArguments(const QString &path, int described);
inline constexpr const char *kPdfInfoProgram = "pdfinfo";
/// How it ends for a PDF without any page: no first page is there that it could describe. One that
/// it cannot read has another status.
inline constexpr int kPdfInfoFoundNoPage = 99;

/// What it has answered. Errors: nothing for what is no answer. What a document says of itself (its
/// title may look like such an answer) is not taken for one.
std::optional<PdfPages> readPdfPages(const QByteArray &answer);

} // namespace corvana
