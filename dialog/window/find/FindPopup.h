#pragma once

#include <QFrame>
#include <QList>

#include "dialog/window/find/FindModel.h"

class QLabel;
class QLineEdit;
class QListView;
class QVBoxLayout;

namespace corvana {

/// The settings that were found, above the field where they are searched for. It lies over its
/// window, as a part of it, so that the focus stays in the field.
class FindPopup : public QFrame
{
    Q_OBJECT

public:
    explicit FindPopup(QWidget *window);

    /// Shows what was found, with the first of it highlighted.
    void setResults(const QList<FindResult> &results);
    /// Shows why there is nothing to show.
    void setNothing(const QString &text);
    /// Takes the field in, for a window that has no room for it elsewhere; or lets go of it with
    /// null.
    void setField(QLineEdit *field);
    /// Lies above `anchor`, a part of the same window, and is at least as wide.
    void openAbove(const QWidget *anchor);

    /// The row that Enter takes; -1 for none.
    int highlighted() const;
    /// Moves the highlight: Up, Down, PageUp or PageDown. Keys at an end of the list move nothing.
    void move(int key);

Q_SIGNALS:
    void picked(int row);

private:
    void build();
    void highlight(int row);
    void sayCount();

    FindModel *m_model;
    QVBoxLayout *m_layout = nullptr;
    QListView *m_list = nullptr;
    QLabel *m_note = nullptr; // how many there are, or why there is none
    int m_saying = 0;         // how often there was something to be said
};

} // namespace corvana
