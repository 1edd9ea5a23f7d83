#pragma once

#include <QToolButton>

namespace corvana {

/// A tool button that cuts its text off where it has no room, rather than widen its window; the
/// whole text is its tool tip then.
class ElidedToolButton : public QToolButton
{
    Q_OBJECT

public:
    using QToolButton::QToolButton;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

private:
    bool isCut() const;
};

} // namespace corvana
