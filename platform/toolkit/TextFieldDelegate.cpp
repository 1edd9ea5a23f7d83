#include "platform/toolkit/TextFieldDelegate.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include "platform/toolkit/ProgrammaticChange.h"

namespace corvana {

namespace {

class EditingWatcher : public QObject
{
public:
    EditingWatcher(QLineEdit *field, TextFieldDelegate delegate)
        : QObject(field), m_field(field), m_delegate(std::move(delegate))
    {
        field->installEventFilter(this);
        connect(field, &QLineEdit::textChanged, this, [this] {
            if (!ProgrammaticChange::isInProgress())
                m_delegate.controlTextDidChange(
                    {QLatin1StringView(kControlTextDidChangeNotification), m_field, {}, false});
        });
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusOut) {
            const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
            const bool leaves = reason != Qt::ActiveWindowFocusReason &&
                                reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
            if (leaves && !mayBeLeft())
                QTimer::singleShot(0, this, [this] { takeFocusBack(); });
        } else if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent *>(event)->key();
            const bool returns = key == Qt::Key_Return || key == Qt::Key_Enter;
            if (returns && !mayBeLeft())
                return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool mayBeLeft() const
    {
        return m_delegate.control_textShouldEndEditing(m_field, m_field->text());
    }

    // Whatever the user went to may have hidden or disabled the field, and ended its say.
    void takeFocusBack()
    {
        if (!m_field->isVisible() || !m_field->isEnabled() || mayBeLeft())
            return;
        m_field->setFocus(Qt::OtherFocusReason);
        m_field->selectAll();
    }

    QLineEdit *m_field;
    TextFieldDelegate m_delegate;
};

} // namespace

void setTextFieldDelegate(QLineEdit *field, const TextFieldDelegate &delegate)
{
    new EditingWatcher(field, delegate);
}

} // namespace corvana
