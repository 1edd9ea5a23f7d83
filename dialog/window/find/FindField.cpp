#include "dialog/window/find/FindField.h"

#include <functional>
#include <utility>

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>

#include "dialog/window/chooser/PrinterIcon.h"
#include "dialog/window/find/FindPopup.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Units: heights of the font.
constexpr int kUsualWidth = 16;
constexpr int kLeastWidth = 10;
constexpr int kMostWidth = 20;

constexpr int kMostLetters = 100; // more than anybody types to find something

// Tells of each press of a mouse button in the program, before anybody has it.
class PressWatch : public QObject
{
public:
    PressWatch(std::function<void(const QWidget *)> pressed, QObject *parent)
        : QObject(parent), m_pressed(std::move(pressed))
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *widget = qobject_cast<const QWidget *>(watched);
        if (event->type() == QEvent::MouseButtonPress && widget)
            m_pressed(widget);
        return false;
    }

private:
    std::function<void(const QWidget *)> m_pressed;
};

} // namespace

FindField::FindField(QWidget *parent)
    : QWidget(parent), m_edit(new QLineEdit(this)), m_button(new QToolButton(this))
{
    m_edit->setObjectName(u"findField"_s);
    m_edit->setPlaceholderText(tr("Find a setting (Ctrl+F)"));
    m_edit->setAccessibleName(tr("Find a setting"));
    m_edit->setAccessibleDescription(tr("Type a name, then go to a setting with Enter"));
    m_edit->setMaxLength(kMostLetters);
    m_edit->installEventFilter(this);
    m_button->setObjectName(u"findButton"_s);
    m_button->setToolTip(m_edit->placeholderText());
    m_button->setAccessibleName(m_edit->accessibleName());
    m_button->hide();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_edit, 1);
    layout->addWidget(m_button, 0, Qt::AlignLeft); // beside the button before it
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setMaximumWidth(kMostWidth * fontMetrics().height());
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *before, QWidget *now) {
        if (now == m_edit && before && !isAncestorOf(before))
            m_before = before;
    });
    connect(m_edit, &QLineEdit::textChanged, this, &FindField::search);
    connect(m_button, &QToolButton::clicked, this, &FindField::activate);
}

QSize FindField::sizeHint() const
{
    return {kUsualWidth * fontMetrics().height(), m_edit->sizeHint().height()};
}

QSize FindField::minimumSizeHint() const
{
    return {m_button->sizeHint().width(), m_edit->sizeHint().height()};
}

void FindField::takeIconFromTheme()
{
    m_edit->setClearButtonEnabled(true);
    m_edit->addAction(searchIcon(), QLineEdit::LeadingPosition);
    setFieldButtonNames(m_edit, QCoreApplication::translate("ClearButton", "Clear"));
    m_button->setIcon(searchIcon());
    m_edit->update(); // its text begins behind the icon by now
}

QList<QWidget *> FindField::focusOrder() const
{
    return {m_edit, m_button};
}

FindPopup *FindField::popup()
{
    if (!m_popup) {
        m_popup = new FindPopup(window());
        connect(m_popup, &FindPopup::picked, this, &FindField::picked);
    }
    return m_popup;
}

void FindField::activate()
{
    if (m_isNarrow) {
        popup()->setNothing(tr("Type the name of a setting or of a choice."));
        popup()->setField(m_edit);
        m_edit->show();
        openPopup();
    }
    m_edit->setFocus(Qt::ShortcutFocusReason);
    m_edit->selectAll();
}

void FindField::setResults(const QList<FindResult> &results)
{
    m_suggestion.clear();
    popup()->setResults(results);
    openPopup();
}

void FindField::setNothingFound(const QString &text, const QString &suggestion)
{
    m_suggestion = suggestion;
    popup()->setNothing(text);
    openPopup();
}

void FindField::refresh()
{
    if (m_popup && m_popup->isVisible())
        search();
}

void FindField::finish()
{
    m_before = nullptr;
    closePopup();
    m_edit->clear();
}

void FindField::openPopup()
{
    popup()->openAbove(this);
    if (m_watch)
        return;
    m_watch = new PressWatch(
        [this](const QWidget *pressed) {
            if (pressed != m_popup && !m_popup->isAncestorOf(pressed) && !isAncestorOf(pressed))
                closePopup();
        },
        this);
}

void FindField::closePopup()
{
    if (!m_popup || m_popup->isHidden())
        return;
    if (m_watch)
        m_watch->deleteLater(); // it may be what tells of a press just now
    m_watch = nullptr;
    if (m_isNarrow && m_edit->parentWidget() == m_popup) {
        m_edit->hide();
        m_edit->setParent(this);
        layout()->addWidget(m_edit);
    }
    m_popup->hide();
}

void FindField::search()
{
    if (!m_edit->text().trimmed().isEmpty()) {
        Q_EMIT searched(m_edit->text());
    } else if (m_isNarrow && m_popup && m_popup->isVisible()) {
        popup()->setNothing(tr("Type the name of a setting or of a choice."));
        openPopup();
    } else {
        closePopup();
    }
}

void FindField::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    setNarrow(width() < kLeastWidth * fontMetrics().height());
    if (m_popup && m_popup->isVisible())
        openPopup();
}

void FindField::setNarrow(bool narrow)
{
    if (narrow == m_isNarrow)
        return;
    const bool hadFocus = m_edit->hasFocus();
    closePopup();
    m_isNarrow = narrow;
    m_edit->setVisible(!narrow);
    m_button->setVisible(narrow);
    if (hadFocus)
        activate();
}

// Up and Down are the list's, Enter goes to its row; everything else is the field's.
bool FindField::handleKey(int key, Qt::KeyboardModifiers modifiers)
{
    if ((modifiers & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (m_popup && m_popup->isVisible())
            m_popup->move(key);
        else
            search();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return takeReturn();
    case Qt::Key_Escape:
        return takeEscape();
    default:
        return false;
    }
}

// What is searched for is no reason to print, found or not.
bool FindField::takeReturn()
{
    if (m_edit->text().trimmed().isEmpty())
        return false;
    const int row = m_popup ? m_popup->highlighted() : -1;
    if (row >= 0)
        Q_EMIT picked(row);
    else if (!m_suggestion.isEmpty())
        m_edit->setText(m_suggestion);
    else
        search();
    return true;
}

bool FindField::takeEscape()
{
    const bool hadText = !m_edit->text().isEmpty();
    if (hadText && !m_isNarrow) {
        m_edit->clear();
        return true;
    }
    const QPointer<QWidget> before = m_before;
    finish();
    if (before && before->isVisible())
        before->setFocus(Qt::OtherFocusReason);
    return before || hadText || m_isNarrow;
}

bool FindField::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_edit)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto *press = static_cast<QKeyEvent *>(event);
        if (handleKey(press->key(), press->modifiers()))
            return true;
        break;
    }
    case QEvent::FocusIn:
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::ActiveWindowFocusReason)
            search(); // values may be others by now
        break;
    case QEvent::FocusOut:
        if (static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason)
            closePopup();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace corvana
