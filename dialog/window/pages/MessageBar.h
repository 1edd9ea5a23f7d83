#pragma once

#include <functional>

#include <QFrame>
#include <QString>

class QLabel;
class QPushButton;
class QToolButton;

namespace corvana {

/// A message inside the dialog, with at most one thing to do about it. It never takes the focus and
/// never blocks; it goes when it is dismissed or the next message comes.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    enum class Kind { Information, Problem };

    explicit MessageBar(QWidget *parent = nullptr);

    void showMessage(Kind kind, const QString &text);
    /// The same, with a button that does something about it.
    void showMessage(Kind kind, const QString &text, const QString &actionText,
                     const std::function<void()> &action);
    void dismiss();
    /// Takes a message back that offers to do something: it was said of a printer that is gone.
    void withdrawOffer();
    QString text() const;

private:
    QLabel *m_icon;
    QLabel *m_text;
    QPushButton *m_action;
    std::function<void()> m_do;
};

} // namespace corvana
