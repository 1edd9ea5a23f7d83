#pragma once

#include <functional>

#include <QList>
#include <QPointer>
#include <QWidget>

namespace corvana {

/// The parts of a window between which F6 moves the focus: each gets it back where it had it last.
/// Where a control with the focus is disabled or goes, the next one that keys reach has it.
class WindowParts : public QObject
{
    Q_OBJECT

public:
    explicit WindowParts(QWidget *window);

    /// `first` answers where the focus goes in a part that has not had it.
    void add(QWidget *part, const std::function<QWidget *()> &first);

private:
    struct Part
    {
        QPointer<QWidget> widget;
        std::function<QWidget *()> first;
        QPointer<QWidget> last;
    };

    void focusChanged(QWidget *former, QWidget *now);
    void findLostFocus(const QPointer<QWidget> &former);
    void go(int step);

    QWidget *m_window;
    QList<Part> m_parts;
};

} // namespace corvana
