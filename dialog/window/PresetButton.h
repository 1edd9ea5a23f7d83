#pragma once

#include <QToolButton>

class QStyleOptionComboBox;

namespace corvana {

/// A button with a menu that looks like the lists around it, because it says what is chosen. A text
/// that has no room is cut off, and is the tool tip then.
class PresetButton : public QToolButton
{
    Q_OBJECT

public:
    explicit PresetButton(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// In which the whole text is read. Units: pixels.
    int wholeWidth() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    QStyleOptionComboBox asList() const;
    QSize sizeFor(int characters) const;
    int roomForText() const;
};

} // namespace corvana
