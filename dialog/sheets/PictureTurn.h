#pragma once

#include <QByteArray>
#include <QString>

namespace corvana {

/// By how much a page that the filter chain has made of a picture is turned to see the picture
/// upright: its filter for pictures turns a wide picture on upright paper by itself, and says so at
/// the beginning of the PDF that it writes. Units: degrees clockwise. Range: 0, 90, 180, 270.
/// Errors: 0 where that says nothing.
int turnOfPicture(const QString &path);

/// The same of the first bytes of such a file.
int turnOfPicture(const QByteArray &begin);

} // namespace corvana
