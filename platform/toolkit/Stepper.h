#pragma once

#include <QAbstractSlider>

#include "platform/PlatformExport.h"

class QLineEdit;
class QToolButton;

namespace corvana {

/// Two small arrows, one over the other, that step a whole number up and down. Value, range and
/// step are those of every Qt slider, and so are its keys.
class CORVANA_PLATFORM_EXPORT Stepper : public QAbstractSlider
{
    Q_OBJECT

public:
    explicit Stepper(QWidget *parent = nullptr);

    /// Lets the arrow keys and the wheel step while the focus is in `field`, where the number is
    /// shown; the arrows themselves then take no focus of their own.
    void setField(QLineEdit *field);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void sliderChange(SliderChange change) override;

private:
    QToolButton *addArrow(Qt::ArrowType arrow, SliderAction action);
    void enableArrows();

    QToolButton *m_up;
    QToolButton *m_down;
};

} // namespace corvana
