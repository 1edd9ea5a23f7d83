#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace corvana {

/// What is in the place of the sheets while there are none: why, or where documents are dropped and
/// chosen.
class PreviewPlaceholder : public QFrame
{
    Q_OBJECT

public:
    explicit PreviewPlaceholder(QWidget *parent = nullptr);

    /// `note` says what that means for printing.
    void showReason(const QString &reason, const QString &note);
    /// There is nothing to print yet.
    void showDropArea();
    /// Something that would be taken is held above the window.
    void setDropHovers(bool hovers);
    QPushButton *chooseButton() const { return m_choose; }

Q_SIGNALS:
    void choosePressed();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void setReason(const QString &reason);

    QLabel *m_reason;
    QLabel *m_note;
    QPushButton *m_choose;
    bool m_dropHovers = false;
};

} // namespace corvana
