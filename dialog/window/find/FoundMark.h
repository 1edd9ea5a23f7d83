#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

namespace corvana {

/// A frame around a control that was searched for, for a moment. It moves and goes with the
/// control, and takes no click. It fades away, or is just gone where the desktop wants no
/// animations.
class FoundMark : public QWidget
{
    Q_OBJECT
    /// Range: 1, and less while it fades.
    Q_PROPERTY(double opacity MEMBER m_opacity)

public:
    /// Marks a control; the mark that was there before goes.
    static void show(QWidget *control);
    /// The same for a part of a view: a row of a list. Units: pixels of the view.
    static void show(QWidget *view, const QRect &part);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    FoundMark(QWidget *parent, QWidget *control);
    void follow();
    void begin();

    QPointer<QWidget> m_control; // null for a part of a view
    QTimer m_end;
    double m_opacity = 1.0;
};

} // namespace corvana
