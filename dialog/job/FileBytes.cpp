#include "dialog/job/FileBytes.h"

#include <algorithm>

#include <QStringDecoder>

namespace corvana {

namespace {

constexpr char16_t kFirst = 0xDC80;
constexpr char16_t kLast = 0xDCFF;
constexpr char16_t kOffset = 0xDC00;

// Half of a pair stands for itself in no text.
bool isStray(const QString &name, qsizetype i)
{
    const char16_t unit = name.at(i).unicode();
    return unit >= kFirst && unit <= kLast && (i == 0 || !name.at(i - 1).isHighSurrogate());
}

// How many bytes at that place are one character of UTF-8; 0 for none.
qsizetype lengthOfCharacter(const QByteArray &bytes, qsizetype at)
{
    const auto first = static_cast<uchar>(bytes.at(at));
    if (first < 0x80)
        return 1;
    const int length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString character = decoder(bytes.mid(at, length));
    return decoder.hasError() || at + length > bytes.size() ? 0 : length;
}

} // namespace

QString nameOfBytes(const QByteArray &bytes)
{
    QString name;
    for (qsizetype i = 0; i < bytes.size();) {
        const qsizetype length = lengthOfCharacter(bytes, i);
        if (length > 0)
            name += QString::fromUtf8(bytes.mid(i, length));
        else
            name += QChar(char16_t(kOffset + static_cast<uchar>(bytes.at(i))));
        i += std::max<qsizetype>(1, length);
    }
    return name;
}

QByteArray bytesOfName(const QString &name)
{
    QByteArray bytes;
    qsizetype done = 0;
    for (qsizetype i = 0; i <= name.size(); ++i) {
        if (i < name.size() && !isStray(name, i))
            continue;
        bytes += name.mid(done, i - done).toUtf8();
        if (i < name.size())
            bytes += static_cast<char>(name.at(i).unicode() - kOffset);
        done = i + 1;
    }
    return bytes;
}

bool hasStrayBytes(const QString &name)
{
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (isStray(name, i))
            return true;
    }
    return false;
}

QString shownName(const QString &name)
{
    QString shown = name;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        if (isStray(name, i))
            shown[i] = QChar::ReplacementCharacter;
    }
    return shown;
}

} // namespace corvana
