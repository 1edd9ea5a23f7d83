#pragma once

#include <QObject>
#include <QPointer>

class QFocusFrame;
class QWidget;

namespace corvana {

/// Shows whoever uses keys where the focus is, on controls of which styles hardly show it: lists,
/// whose current row looks the same with and without it; tabs; and the default button, which is
/// framed either way. Serves every window of the program.
class KeyboardFocus : public QObject
{
public:
    explicit KeyboardFocus(QObject *parent = nullptr);
    ~KeyboardFocus() override;

private:
    void follow(QWidget *focus);

    // Children of whatever has the focus, which die with it.
    QPointer<QFocusFrame> m_frame;
    QPointer<QWidget> m_tabFrame;
};

} // namespace corvana
