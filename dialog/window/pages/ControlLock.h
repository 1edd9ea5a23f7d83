#pragma once

#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QString>

class QLineEdit;
class QWidget;

namespace corvana {

/// Shows that a control's value is an administrator's to choose: it keeps the focus and stays
/// readable, a padlock stands on it, its tool tip and its accessible description say who has
/// chosen, and what would change it is not taken. It is neither disabled, which would take the
/// focus and the words from a screen reader, nor does it fight rules of its owner that disable it
/// for another reason.
///
/// What gets past it all the same, such as an action of assistive technology, is refused by the
/// task, which knows the same locks.
class ControlLock : public QObject
{
    Q_OBJECT

public:
    /// Locks a control, with everything in it; an empty `why` unlocks it. To be said as often as
    /// somebody likes. `label`, which may be null, gets the same tool tip.
    static void set(QWidget *control, const QString &why, QWidget *label = nullptr);
    static bool isLocked(const QWidget *control);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ControlLock(QWidget *control, QWidget *label);
    ~ControlLock() override;
    void watch(QWidget *widget);
    void say(const QString &why);
    void placeMark();
    void placeInField(QLineEdit *field, int size);

    QWidget *m_control;
    QPointer<QWidget> m_label;
    QPointer<QWidget> m_mark;
    QString m_toolTip; // as they were without the lock
    QString m_labelToolTip;
    QString m_description;
    QString m_why;
};

/// A padlock in a colour, as high and as wide as that. Units: pixels of a screen with that ratio.
QPixmap lockPicture(int size, const QColor &color, qreal ratio);

} // namespace corvana
