#pragma once

#include <QWidget>

namespace corvana {

/// The column of the print window in which something is set. It asks for the width that the panels
/// were designed for, and leaves every further pixel to what is beside it.
class SettingsColumn : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsColumn(QWidget *parent = nullptr);

    /// Units: pixels.
    int usualWidth() const;
    QSize sizeHint() const override;
};

} // namespace corvana
