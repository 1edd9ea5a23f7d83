#include "dialog/server/IppMessage.h"

#include <algorithm>
#include <array>

namespace corvana {

namespace {

// More than this of a server's text helps nobody. Units: characters.
constexpr int kLongestText = 500;

bool isText(ipp_attribute_t *attribute)
{
    switch (ippGetValueTag(attribute)) {
    case IPP_TAG_TEXT:
    case IPP_TAG_TEXTLANG:
    case IPP_TAG_NAME:
    case IPP_TAG_NAMELANG:
    case IPP_TAG_KEYWORD:
    case IPP_TAG_URI:
    case IPP_TAG_URISCHEME:
    case IPP_TAG_CHARSET:
    case IPP_TAG_LANGUAGE:
    case IPP_TAG_MIMETYPE:
        return true;
    default:
        return false;
    }
}

} // namespace

IppMessage newIppRequest(ipp_op_t operation, const QString &printerUri)
{
    IppMessage request(ippNewRequest(operation));
    if (!printerUri.isEmpty())
        addIppString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", printerUri);
    addIppString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name",
                 QString::fromLocal8Bit(cupsUser()));
    return request;
}

void addIppString(ipp_t *message, ipp_tag_t group, ipp_tag_t type, const char *name,
                  const QString &value)
{
    ippAddString(message, group, type, name, nullptr, value.toUtf8().constData());
}

void addIppKeywords(ipp_t *message, ipp_tag_t group, const char *name,
                    const QList<const char *> &keywords)
{
    ippAddStrings(message, group, IPP_CONST_TAG(IPP_TAG_KEYWORD), name,
                  static_cast<int>(keywords.size()), nullptr, keywords.constData());
}

QString ippText(ipp_attribute_t *attribute, int index)
{
    if (!attribute || !isText(attribute) || index >= ippGetCount(attribute))
        return {};
    return shownText(ippGetString(attribute, index, nullptr));
}

QStringList ippTexts(ipp_attribute_t *attribute)
{
    constexpr int kMostTexts = 100;
    QStringList texts;
    const int count = attribute ? std::min(ippGetCount(attribute), kMostTexts) : 0;
    for (int i = 0; i < count; ++i) {
        const QString text = ippText(attribute, i);
        if (!text.isEmpty())
            texts += text;
    }
    return texts;
}

int ippNumber(ipp_attribute_t *attribute, int otherwise)
{
    const ipp_tag_t type = ippGetValueTag(attribute);
    if (!attribute || (type != IPP_TAG_INTEGER && type != IPP_TAG_ENUM))
        return otherwise;
    return ippGetInteger(attribute, 0);
}

bool ippTruth(ipp_attribute_t *attribute, bool otherwise)
{
    if (!attribute || ippGetValueTag(attribute) != IPP_TAG_BOOLEAN)
        return otherwise;
    return ippGetBoolean(attribute, 0) != 0;
}

QString shownText(const char *text)
{
    QString shown = QString::fromUtf8(text).left(kLongestText);
    if (!shown.isEmpty() && shown.back().isHighSurrogate())
        shown.chop(1);
    for (QChar &c : shown) {
        if (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format ||
            c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = u' ';
    }
    return shown.trimmed();
}

QString queueUri(const QString &queue, bool isClass)
{
    std::array<char, HTTP_MAX_URI> uri{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr,
                     "localhost", 0, isClass ? "/classes/%s" : "/printers/%s",
                     queue.toUtf8().constData());
    return QString::fromUtf8(uri.data());
}

} // namespace corvana
