#pragma once

#include <functional>

#include <QByteArray>
#include <QString>

class QObject;

namespace corvana {

/// How much of a result is looked at, from its beginning and from its end. Units: bytes.
inline constexpr qint64 kLookedAt = 64 << 10;

/// Whether a file of a printer's data, other than a PDF, is known to have no page, by its first and
/// its last bytes and its size: PostScript, whose end says how many pages it has, and raster data.
/// False for every format that is not known.
bool isKnownToBeEmpty(const QByteArray &head, const QByteArray &tail, qint64 size);

/// Why such a result is not kept, for a person.
QString noPageText();

/// Looks at a file that a filter chain has made, in a bounded time. The filters call a result
/// without a page a success. `answer` is called with a sentence when there is none, else with an
/// empty text; never before this returns, and not at all when `owner` is gone.
void checkResultPages(const QString &path, QObject *owner,
                      const std::function<void(const QString &problem)> &answer);

} // namespace corvana
