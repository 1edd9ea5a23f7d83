#pragma once

#include <QWidget>

class QAction;
class QToolButton;

namespace corvana {

class SheetView;
struct Zoom;

/// The buttons that enlarge and reduce the sheets of a view, and between them how large they are,
/// with all there is to choose. Its keys work in the whole window.
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
    void buildMenu();
    void addChoice(const QString &text, const Zoom &zoom);
    void refresh();

    SheetView &m_view;
    QToolButton *m_out;
    QToolButton *m_size;
    QToolButton *m_in;
};

} // namespace corvana
