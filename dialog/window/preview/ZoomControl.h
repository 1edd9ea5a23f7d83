#pragma once

#include <QWidget>

class QComboBox;
class QToolButton;

namespace corvana {

class SheetView;

/// How large the sheets of a view are shown, with all there is to choose, and buttons that go to
/// the next size. Its keys work in the whole window.
class ZoomControl : public QWidget
{
    Q_OBJECT

public:
    /// Borrows the view.
    explicit ZoomControl(SheetView &view, QWidget *parent = nullptr);

    void addShortcuts(QWidget *window);
    QList<QWidget *> focusOrder() const;

private:
    QToolButton *button(const QString &name, const QString &text, const QString &what);
    void fillSizes();
    void refresh();

    SheetView &m_view;
    QToolButton *m_out;
    QComboBox *m_sizes;
    QToolButton *m_in;
};

} // namespace corvana
