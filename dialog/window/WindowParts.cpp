#include "dialog/window/WindowParts.h"

#include <algorithm>

#include <QApplication>
#include <QShortcut>
#include <QTimer>

namespace corvana {

namespace {

bool canFocus(const QWidget *widget)
{
    return widget && widget->isVisible() && widget->isEnabled() &&
           widget->focusPolicy() != Qt::NoFocus;
}

// Where Tab would lead from it; null where it leads nowhere.
QWidget *nextStop(const QWidget *widget)
{
    QWidget *next = widget->nextInFocusChain();
    for (; next && next != widget; next = next->nextInFocusChain()) {
        if (canFocus(next) && (next->focusPolicy() & Qt::TabFocus))
            return next;
    }
    return nullptr;
}

} // namespace

WindowParts::WindowParts(QWidget *window) : QObject(window), m_window(window)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *former, QWidget *now) { focusChanged(former, now); });
    connect(new QShortcut(Qt::Key_F6, window), &QShortcut::activated, this, [this] { go(1); });
    connect(new QShortcut(Qt::SHIFT | Qt::Key_F6, window), &QShortcut::activated, this,
            [this] { go(-1); });
}

void WindowParts::add(QWidget *part, const std::function<QWidget *()> &first)
{
    m_parts += {part, first, nullptr};
}

void WindowParts::focusChanged(QWidget *former, QWidget *now)
{
    // Qt looks for another one when the control itself is disabled, not when its row is; and a page
    // that is shown again hands the focus to the control that had it last, hidden meanwhile or not.
    QWidget *lost = now ? now : former;
    if (lost && !(now && now->isVisible()) && m_window->isAncestorOf(lost))
        QTimer::singleShot(0, this,
                           [this, lost = QPointer<QWidget>(lost)] { findLostFocus(lost); });
    for (Part &part : m_parts) {
        if (now && part.widget && (part.widget == now || part.widget->isAncestorOf(now)))
            part.last = now;
    }
}

void WindowParts::findLostFocus(const QPointer<QWidget> &former)
{
    const QWidget *focus = m_window->focusWidget();
    if (!m_window->isActiveWindow() || (focus && focus->isVisible()))
        return;
    QWidget *next = former && m_window->isAncestorOf(former) ? nextStop(former) : nullptr;
    if (!next)
        return go(1);
    next->setFocus(Qt::OtherFocusReason);
}

void WindowParts::go(int step)
{
    const QWidget *focus = m_window->focusWidget();
    const auto holds = [focus](const Part &part) {
        return focus && part.widget && (part.widget == focus || part.widget->isAncestorOf(focus));
    };
    const auto found = std::find_if(m_parts.begin(), m_parts.end(), holds);
    const qsizetype count = m_parts.size();
    const qsizetype from =
        found == m_parts.end() ? (step > 0 ? count - 1 : 0) : found - m_parts.begin();
    for (qsizetype i = 1; i <= count; ++i) {
        const Part &part = m_parts.at(((from + i * step) % count + count) % count);
        QWidget *target = canFocus(part.last) ? part.last.data() : part.first();
        if (canFocus(target))
            return target->setFocus(Qt::ShortcutFocusReason);
    }
}

} // namespace corvana
