#pragma once

#include <QPushButton>

#include "platform/PlatformExport.h"

class QLabel;

namespace corvana {

/// A small triangle that points to what it discloses: to the side while that is hidden, down while
/// it is shown. Its state is on while it is shown.
class CORVANA_PLATFORM_EXPORT DisclosureButton : public QPushButton
{
    Q_OBJECT

public:
    explicit DisclosureButton(QWidget *parent = nullptr);

    /// A click on the heading is a click on the button, and the heading names it to assistive
    /// technology.
    void setHeading(QLabel *heading);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace corvana
