#pragma once

#include <memory>

#include <QList>
#include <QString>
#include <QStringList>

#include <cups/cups.h>

namespace corvana {

struct IppDeleter
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};

/// An IPP request or response. Ownership: sole.
using IppMessage = std::unique_ptr<ipp_t, IppDeleter>;

/// A request about a printer or a server, in the user's name.
IppMessage newIppRequest(ipp_op_t operation, const QString &printerUri = {});

void addIppString(ipp_t *message, ipp_tag_t group, ipp_tag_t type, const char *name,
                  const QString &value);
void addIppKeywords(ipp_t *message, ipp_tag_t group, const char *name,
                    const QList<const char *> &keywords);

// Reading, of one attribute: null, empty or the given default where it is missing or of another
// type. Texts are what a network said: decoded, without control characters, and cut at a length
// that a person reads.

QString ippText(ipp_attribute_t *attribute, int index = 0);
/// At most a hundred: more are not read by anybody.
QStringList ippTexts(ipp_attribute_t *attribute);
int ippNumber(ipp_attribute_t *attribute, int otherwise = 0);
bool ippTruth(ipp_attribute_t *attribute, bool otherwise);

/// A text of another machine's, fit to be shown: one line without control characters.
QString shownText(const char *text);

/// "ipp://HOST/printers/NAME" with what the name needs escaped, as CUPS wants it.
QString queueUri(const QString &queue, bool isClass = false);

} // namespace corvana
