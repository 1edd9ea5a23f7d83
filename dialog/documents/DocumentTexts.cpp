#include "dialog/documents/DocumentTexts.h"

#include <algorithm>

#include <QCoreApplication>
#include <QLocale>

#include "platform/foundation/ForeignText.h"

namespace corvana {

namespace {

using Kind = DocumentState::Kind;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DocumentTexts)
};

QString isDamaged(const QString &name, const DocumentState &state)
{
    return state.damagedAt > 0
               ? Texts::tr("“%1” is damaged at byte %2.")
                     .arg(name, QLocale().toString(static_cast<qulonglong>(state.damagedAt)))
               : Texts::tr("“%1” is damaged.").arg(name);
}

QString twoSentences(const QString &first, const QString &second)
{
    return Texts::tr("%1 %2", "two sentences").arg(first, second);
}

} // namespace

QString documentProblem(const QString &title, const DocumentState &state)
{
    const QString name = terminalLine(title);
    switch (state.kind) {
    case Kind::Unknown:
    case Kind::Fine:
        break;
    case Kind::Locked:
        return state.isPasswordWrong
                   ? Texts::tr("“%1” is protected, and the password that was given does not open "
                               "it.")
                         .arg(name)
                   : Texts::tr("“%1” is protected: it is printed only with its password.")
                         .arg(name);
    case Kind::Forbidden:
        return Texts::tr("“%1” does not allow printing. Only its owner's password does.").arg(name);
    case Kind::Unreadable:
        return twoSentences(isDamaged(name, state), Texts::tr("None of its pages can be printed."));
    case Kind::NotCopied:
        return Texts::tr("“%1” is protected, and a copy without protection could not be made: it "
                         "is too large, or there is no room for it.")
            .arg(name);
    }
    return {};
}

QString documentLoss(const QString &title, const DocumentState &state)
{
    if (state.kind != Kind::Fine || state.lostPages == 0)
        return {};
    const int all = state.pages + state.lostPages;
    return twoSentences(isDamaged(terminalLine(title), state),
                        state.pages == 1
                            ? Texts::tr("1 of its %1 pages can be printed.").arg(all)
                            : Texts::tr("%1 of its %2 pages can be printed.")
                                  .arg(QString::number(state.pages), QString::number(all)));
}

QString documentNote(const QString &title, const DocumentState &state, PrintsTo to)
{
    const QString name = terminalLine(title);
    if (state.kind != Kind::Fine)
        return {};
    if (state.isUnlocked)
        return to == PrintsTo::File
                   ? Texts::tr("“%1” is protected. The file that is printed to is not.").arg(name)
                   : Texts::tr(
                         "“%1” is protected. The print server gets a copy without protection.")
                         .arg(name);
    if (state.isDamaged && state.lostPages == 0)
        return twoSentences(isDamaged(name, state),
                            Texts::tr("All pages that were found in it are printed."));
    return {};
}

QString commandsNote(const Document &document)
{
    constexpr qsizetype kMost = 8;
    if (document.settings.isEmpty())
        return {};
    QStringList names = document.settings.first(std::min(kMost, document.settings.size()));
    if (names.size() < document.settings.size())
        names += QStringLiteral("…");
    return Texts::tr("“%1” brings settings for a printer along, which are not followed: %2. Choose "
                     "them here, or pass the document on with the option “raw”.")
        .arg(terminalLine(document.title), terminalLine(names.join(QStringLiteral(", "))));
}

} // namespace corvana
