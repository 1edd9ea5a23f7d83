#pragma once

#include <functional>

#include <QFrame>
#include <QPersistentModelIndex>
#include <QString>

#include "dialog/window/chooser/PrinterFooterRow.h"
#include "dialog/window/chooser/PrinterSearch.h"

class QLabel;
class QLineEdit;
class QListView;
class QStackedWidget;

namespace corvana {

class PrinterModel;
class PrinterRowDelegate;

/// The open list of a PrinterComboBox: a search field with the focus above the printers.
class PrinterPopup : public QFrame
{
    Q_OBJECT

public:
    /// Ownership: `anchor` owns the popup, which opens at it.
    explicit PrinterPopup(QWidget *anchor);

    /// Shows the printers with the one in `chosenRow` (-1: none) highlighted.
    void open(PrinterModel *printers, int chosenRow);
    void setSearchText(const QString &text);
    void setFooter(const PrinterFooter &footer);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The user picked the printer in this row of the PrinterModel; the popup is closed by then.
    void picked(int row);
    void closed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void buildField();
    void buildList();
    void build();
    bool handleKey(QKeyEvent *event);
    void moveHighlight(int key);
    void pick(const QModelIndex &shown);
    void search(const QString &text);
    void highlight(const QModelIndex &shown);
    void holdPosition();
    void restorePosition();
    void updateTexts();
    void place();
    int usefulWidth() const;

    QWidget *m_anchor;
    PrinterModel *m_printers = nullptr; // while the popup is open
    PrinterSearch m_search;
    PrinterRowDelegate *m_delegate;
    QPersistentModelIndex m_chosen;      // in m_printers
    QPersistentModelIndex m_highlighted; // in m_printers, during an update
    QPersistentModelIndex m_still;       // in m_printers, the row that must not move in the view
    int m_stillAt = 0;                   // where it stands; pixels from the view's top
    int m_rowsShown = 0;                 // how many rows the popup made room for

    QLineEdit *m_field = nullptr;
    QStackedWidget *m_area = nullptr;
    QListView *m_list = nullptr;
    QLabel *m_nothing = nullptr;
    PrinterFooterRow *m_footer = nullptr;
};

} // namespace corvana
