#include "tests/e2e/WindowInvariants.h"

#include <algorithm>
#include <optional>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QTabWidget>

#include "dialog/session/PpdSession.h"
#include "dialog/task/OpenedPrinter.h"
#include "platform/printcore/Ppd.h"
#include "tests/e2e/WindowInvariants-checks.h"

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

QString nameOf(const QWidget *widget)
{
    return widget ? QLatin1StringView(widget->metaObject()->className()) + " \""_L1 +
                        widget->objectName() + '"'_L1
                  : u"nothing"_s;
}

QString marksFault(PrintWindow &window)
{
    const OpenedPrinter *opened = window.task().opened();
    if (!opened)
        return {};
    const PpdSession &session = *opened->session;
    for (const ppd_option_t *option : session.options()) {
        const QString keyword = ppdKeyword(option->keyword);
        const QString marked = session.markedChoice(keyword);
        const QString standing = session.printSettings().value(keyword).toString();
        if (!marked.isNull() && standing != marked)
            return u"%1 is marked as %2 and stands as %3 in the print settings"_s.arg(
                keyword, marked, standing);
    }
    return {};
}

// What of a widget is seen, if nothing lies above it; in its own coordinates.
QRect seenPart(const QWidget &widget)
{
    QRect seen = widget.rect();
    QPoint place;
    for (const QWidget *one = &widget; one->parentWidget() && !one->isWindow();
         one = one->parentWidget()) {
        place += one->pos();
        seen &= one->parentWidget()->rect().translated(-place);
    }
    return seen;
}

// How much of a widget has to be seen: all of it, unless what it lies in is smaller, and scrolls.
// Of what is edited in a row of a list, something; Qt puts it there.
QSize leastToSee(const QWidget &widget)
{
    constexpr int kLeast = 8; // pixels, in which something can be made out
    QSize least = widget.size().boundedTo(widget.window()->size());
    for (const QWidget *one = widget.parentWidget(); one; one = one->parentWidget()) {
        if (const auto *area = qobject_cast<const QAbstractScrollArea *>(one))
            least = least.boundedTo(area->viewport()->size());
        if (qobject_cast<const QAbstractItemView *>(one))
            least = least.boundedTo({kLeast, kLeast});
    }
    return least;
}

// The focus, where it is the window's; nothing while a menu or a dialog has it.
std::optional<const QWidget *> focusOf(const PrintWindow &window)
{
    const bool isAlone = !QApplication::activePopupWidget() && !QApplication::activeModalWidget();
    if (QApplication::activeWindow() != &window || !isAlone)
        return {};
    return QApplication::focusWidget();
}

QString focusFault(PrintWindow &window)
{
    const auto focus = focusOf(window);
    if (focus && (!*focus || !(*focus)->isVisible() || !(*focus)->isEnabled()))
        return u"the focus is on %1, which nobody sees or can use"_s.arg(nameOf(*focus));
    return {};
}

QString placesFault(PrintWindow &window)
{
    for (const auto *name : {"print", "cancel"}) {
        const auto *button = window.findChild<QAbstractButton *>(QLatin1StringView(name));
        if (!button)
            return u"there is no button %1"_s.arg(QLatin1StringView(name));
        if (button->isVisible() &&
            !window.rect().contains(QRect(button->mapTo(&window, QPoint()), button->size())))
            return u"the button %1 is outside the window"_s.arg(nameOf(button));
    }
    return {};
}

QString ancestorsFault(PrintWindow &window)
{
    const auto *pages = window.findChild<QTabWidget *>(u"pages"_s);
    if (!pages)
        return u"there are no pages"_s;
    for (int i = 0; i < pages->count(); ++i) {
        for (const QWidget *one = pages->widget(i); one; one = one->parentWidget()) {
            if (one->testAttribute(Qt::WA_ForceDisabled))
                return u"%1 is disabled, above a page"_s.arg(nameOf(one));
        }
    }
    return {};
}

} // namespace

QString brokenInvariant(PrintWindow &window)
{
    if (!window.isVisible())
        return u"the window is gone"_s;
    for (const auto check : {marksFault, generalFault, optionListFault, panelFault, summaryFault,
                             focusFault, placesFault, ancestorsFault}) {
        if (const QString fault = check(window); !fault.isNull())
            return fault;
    }
    return {};
}

QString unseenFocus(const PrintWindow &window)
{
    const auto focus = focusOf(window);
    if (!focus || !*focus)
        return {};
    const QSize seen = seenPart(**focus).size();
    const QSize least = leastToSee(**focus);
    if (!seen.isEmpty() && seen.boundedTo(least) == least)
        return {};
    const auto text = [](int pixels) { return QString::number(std::max(0, pixels)); };
    return u"the focus went to %1, of which %2 x %3 of %4 x %5 pixels are seen"_s.arg(
        nameOf(*focus), text(seen.width()), text(seen.height()), text(least.width()),
        text(least.height()));
}

} // namespace corvana::test
