#pragma once

#include <QLabel>

namespace corvana {

/// `text` with "…" where it is wider than `width`. What comes after `head`, with which the text
/// begins, is cut only when the head has become short: of a printer in a place with a long name the
/// state is worth more than the end of that name. Units: pixels
QString elidedLine(const QFontMetrics &metrics, const QString &text, const QString &head,
                   int width);

/// A line of plain text, cut with "…" where it has no room; the whole text is then in its tool tip.
/// Assistive technology gets the whole text at any width.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// Breaks a text that is too long for one line, once, before it is cut; the room for both lines
    /// is kept whatever is shown.
    void setTwoLines();

    /// Cuts the middle of the text instead of its end: of a file name both ends tell it from
    /// others.
    void setMiddleCut();

    /// The text begins with `head`, which is cut first (elidedLine()).
    void setLine(const QString &text, const QString &head = {});

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// What there is room for now; a line break where the text was broken.
    QString shownText() const;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QStringList broken(const QString &text) const;

    QString m_head;
    int m_lines = 1;
    bool m_cutsMiddle = false;
};

} // namespace corvana
