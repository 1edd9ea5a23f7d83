#include "dialog/window/pages/RowMnemonics.h"

#include <algorithm>

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>

#include "platform/toolkit/Mnemonics.h"

namespace corvana {

namespace {

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

QString takenLetters(const QWidget *window)
{
    QString taken;
    const auto add = [&](const QString &text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            taken += QChar(key[0].key()).toLower();
    };
    const auto labels = window->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy())
            add(label->text());
    }
    const auto buttons = window->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons)
        add(button->text());
    return taken;
}

// Where the first free letter stands: the beginning of a word before the midst of one.
qsizetype freeLetter(const QString &text, const QString &taken)
{
    for (const bool atBeginning : {true, false}) {
        for (qsizetype i = 0; i < text.size(); ++i) {
            const bool begins = i == 0 || !isLetter(text.at(i - 1));
            if (isLetter(text.at(i)) && begins == atBeginning &&
                !taken.contains(text.at(i).toLower()))
                return i;
        }
    }
    return -1;
}

} // namespace

QString withFreeMnemonic(const QString &text, const QString &english, const QWidget *window)
{
    const QString taken = takenLetters(window);
    const bool hasLetters = std::any_of(text.cbegin(), text.cend(), isLetter);
    const QString &letters = hasLetters ? text : english;
    const qsizetype at = freeLetter(letters, taken);
    if (at < 0)
        return withoutMnemonic(text);
    if (hasLetters)
        return withoutMnemonic(text.left(at)) + u'&' + withoutMnemonic(text.mid(at));
    return QStringLiteral("%1(&%2)").arg(withoutMnemonic(text), letters.at(at).toUpper());
}

} // namespace corvana
