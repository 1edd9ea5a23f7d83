#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QPushButton;
class QToolButton;

namespace corvana {

class ElidedLabel;
class SheetView;
class ZoomControl;

/// The rows below the sheets of a preview.

/// Which sheet is looked at, and how large it is shown.
class SheetsRow : public QWidget
{
    Q_OBJECT

public:
    /// Borrows the view.
    explicit SheetsRow(SheetView &view, QWidget *parent = nullptr);

    ZoomControl *zoom() const { return m_zoom; }

private:
    void refresh();

    SheetView &m_view;
    ElidedLabel *m_lookedAt;
    ZoomControl *m_zoom;
};

/// Says how far the colors of the sheets are those of the settings, and compares on demand.
class ColorsRow : public QWidget
{
    Q_OBJECT

public:
    explicit ColorsRow(QWidget *parent = nullptr);

    void setText(const QString &text, bool canCompare);
    bool isEmpty() const;
    QPushButton *button() const { return m_compare; }

Q_SIGNALS:
    /// Whether the document shall be seen as it is: while the button is held.
    void original(bool original);

private:
    QLabel *m_text;
    QPushButton *m_compare;
};

/// How many sheets come out, and the button that folds the preview away.
class CountsRow : public QWidget
{
    Q_OBJECT

public:
    explicit CountsRow(QWidget *parent = nullptr);

    /// `areOld`: they are about to change. Other counts are said to assistive technology, once,
    /// when they have stayed the same for a while.
    void setCounts(const QString &counts, bool areOld);
    void setFolded(bool folded, bool canUnfold);
    QToolButton *button() const { return m_fold; }

Q_SIGNALS:
    void foldPressed(bool fold);

private:
    void announce();

    ElidedLabel *m_counts;
    QToolButton *m_fold;
    QTimer m_announcing;
    QString m_announced;
    bool m_isFolded = false;
};

} // namespace corvana
