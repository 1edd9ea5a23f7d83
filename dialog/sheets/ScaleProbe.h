#pragma once

#include <QByteArray>
#include <QList>
#include <QSizeF>

#include "dialog/job/PdfPages.h"

namespace corvana {

/// Finds out at which scale the filter chain lays pages out, and which way round, by having it lay
/// out a document of ours: one page for each kind of page that the user's document has, each
/// covered with numbered marks. How far the marks are from each other in the result is the scale,
/// and where they lie from each other is the way in which a page was turned, whatever else the
/// chain has moved, mirrored, cropped, or put together on one side.

/// What looks alike among pages, in the order in which each kind comes first. Empty where there are
/// more kinds than anybody wants to read.
QList<PdfPage> kindsOfPages(const QList<PdfPage> &pages);

/// The size at which a page of this kind is seen: that of its trim box, as it is turned.
/// Units: points.
QSizeF sizeOfPage(const PdfPage &page);

/// The document of ours, as a PDF.
QByteArray probeDocument(const QList<PdfPage> &kinds);

/// How pdftotext of Poppler is asked for the marks of a laid-out probe.
QStringList probeReadingArguments(const QString &path);
inline constexpr const char *kPdfTextProgram = "pdftotext";

/// The scale of each kind, from the answer to that: 1 is the actual size.
/// Errors: 0 for a kind of which fewer than two marks are left.
QList<double> scalesOfProbe(const QByteArray &answer, const QList<PdfPage> &kinds);

/// By how much the side is turned to read a page of each kind upright, from the same answer. Units:
/// degrees clockwise. Errors: 0 for a kind of which too few marks are left.
QList<int> turnsOfProbe(const QByteArray &answer, const QList<PdfPage> &kinds);

} // namespace corvana
