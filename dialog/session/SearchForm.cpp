#include "dialog/session/SearchForm.h"

#include <algorithm>

namespace corvana {

namespace {

// Marks that change the sound of a kana are no accents.
bool isAccent(QChar c)
{
    constexpr char16_t kVoiced = 0x3099;
    constexpr char16_t kSemiVoiced = 0x309a;
    return c.category() == QChar::Mark_NonSpacing && c != kVoiced && c != kSemiVoiced;
}

} // namespace

QString searchForm(const QString &text)
{
    // Most texts of most printers, at a tenth of the price.
    const bool isAscii =
        std::all_of(text.cbegin(), text.cend(), [](QChar c) { return c.unicode() < 0x80; });
    if (isAscii)
        return text.toLower();
    QString form = text.normalized(QString::NormalizationForm_KD);
    form.removeIf(isAccent);
    return form.toCaseFolded();
}

QStringList searchWords(const QString &typed)
{
    return searchForm(typed).simplified().split(u' ', Qt::SkipEmptyParts);
}

} // namespace corvana
