#pragma once

#include <QByteArray>
#include <QStringList>

namespace corvana::test {

/// The sides that a printer would print of PostScript or PDF data, read by Ghostscript: the text on
/// each, its words with one blank between them. Empty texts are blank sides.
/// Errors: nothing when Ghostscript cannot read the data.
QStringList printedSides(const QByteArray &data);

/// The setup that the data asks the printer for, "Duplex=DuplexNoTumble" and so on, each once, in
/// the order of the data.
QStringList printedFeatures(const QByteArray &data);

/// The data without what is different in each job: when it was made, and its number.
QByteArray withoutDates(const QByteArray &data);

} // namespace corvana::test
