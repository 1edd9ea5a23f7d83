#pragma once

#include <functional>

#include <QFrame>
#include <QString>

class QLabel;
class QPushButton;
class QToolButton;

namespace corvana {

class MessageText;

/// A message inside the dialog, with at most one thing to do about it. It has two lines; a longer
/// one is there as a whole when its reader wants that. It never takes the focus and never blocks;
/// it goes when it is dismissed or the next message comes.
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
    /// Adds what only whoever asks for the details of the message that is shown reads: numbers, and
    /// the words of programs.
    void addDetails(const QString &details);
    void dismiss();
    /// Takes a message back that offers to do something: it was said of a printer that is gone.
    void withdrawOffer();
    /// The message that is shown stays all the same: its offer is about something else.
    void keepOffer() { m_keeps = true; }
    QString text() const;
    /// The controls that Tab reaches, in its order.
    QList<QWidget *> focusOrder() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildButtons();
    void updateDetails();

    QLabel *m_icon;
    MessageText *m_text;
    QPushButton *m_action = nullptr;
    QToolButton *m_details = nullptr;
    QToolButton *m_close = nullptr;
    std::function<void()> m_do;
    bool m_keeps = false;
};

} // namespace corvana
