#include "dialog/preview/PageTrouble.h"

#include <QCoreApplication>

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PageTrouble)
};

} // namespace

QString pageTroubleText(PageTrouble trouble)
{
    switch (trouble) {
    case PageTrouble::None:
        return {};
    case PageTrouble::Damaged:
        return Texts::tr("This page cannot be shown: it is damaged.");
    case PageTrouble::TooLarge:
        return Texts::tr("This page cannot be shown: it is too large.");
    case PageTrouble::TakesTooLong:
        return Texts::tr("This page cannot be shown: drawing it takes too long.");
    case PageTrouble::PasswordNeeded:
        return Texts::tr("This page cannot be shown: the document is protected by a password.");
    case PageTrouble::Unreadable:
        return Texts::tr("This page cannot be shown: the file cannot be read.");
    case PageTrouble::NoRenderer:
        return Texts::tr("Pages cannot be shown: the program that draws them does not run.");
    }
    return {};
}

} // namespace corvana
