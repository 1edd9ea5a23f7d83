#pragma once

#include <QString>
#include <QWidget>

#include "dialog/window/preview/SheetView.h"

class QStackedWidget;

namespace corvana {

class ColorsRow;
class CountsRow;
class DocumentArea;
class DropHint;
class PreviewPlaceholder;
class SheetsRow;

/// What a pane of sheets shows.
struct ShownPreview
{
    enum class State {
        NoDocument, ///< there is nothing to print yet
        None,       ///< no sheets; `reason` says why
        Begun,      ///< the sheets are the first ones; how many there will be is not known yet
        Updating,   ///< the sheets are those of older settings, if there are any
        Known,
    };

    State state = State::None;
    QString reason{};
    QString note{};   ///< what that means for printing
    QString counts{}; ///< "9 pages × 2 copies = 6 sheets"; empty while nobody knows
    ShownSheets sheets{};
};

/// The part of the print window that shows what will come out: the documents, the sheets, and below
/// them how many there are and how large they are shown. It can be folded away; the counts stay.
///
/// It knows no rule: it shows what it is told, and tells what is pressed.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewPane(QWidget *parent = nullptr);

    /// Shows more than the place of the sheets. To be called when the window has been painted once:
    /// every control that is in it before makes it come up later.
    void complete();
    SheetView *sheets() const { return m_view; }
    DocumentArea *documents() const { return m_documents; }
    SheetsRow *sheetsRow() const { return m_sheetsRow; }

    void showPreview(const ShownPreview &preview);
    /// What the settings do to the colors of pages, and what is to be said of that. A button to
    /// compare is there while they do anything.
    void setColors(const ColorTransform &colors, const QString &text);
    /// Folded, only the counts are there. `canUnfold`: whether there would be room for more.
    void setFolded(bool folded, bool canUnfold);
    bool isFolded() const { return m_isFolded; }
    /// Documents are held above the window, and would be taken.
    void setDropHovers(bool hovers);
    /// The controls that Tab reaches, in its order.
    QList<QWidget *> focusOrder() const;
    /// Where the focus goes that is given to this part of the window.
    QWidget *focusTarget() const;

Q_SIGNALS:
    /// The user wants it folded away, or back.
    void foldPressed(bool fold);

private:
    void arrange();

    DocumentArea *m_documents;
    QStackedWidget *m_stack;
    SheetView *m_view;
    PreviewPlaceholder *m_placeholder;
    SheetsRow *m_sheetsRow;
    ColorsRow *m_colorsRow;
    CountsRow *m_countsRow;
    DropHint *m_dropHint = nullptr; ///< once something was held above
    ColorTransform m_colors;
    bool m_isFolded = false;
    bool m_isComplete = false;
};

} // namespace corvana
