#pragma once

#include <memory>

#include <QObject>
#include <QString>
#include <QTimer>

#include "dialog/task/SheetPreview.h"

namespace corvana {

class DrawnPages;
class PreviewPane;
class PrintTask;
struct ShownPreview;

/// Keeps a pane of sheets at what a task would print now, and lets the task have the documents that
/// are chosen in it.
///
/// Ownership: borrows the task and the pane; holds the files of what is shown.
class TaskPreview : public QObject
{
    Q_OBJECT

public:
    TaskPreview(PrintTask &task, PreviewPane &pane, QObject *parent = nullptr);
    ~TaskPreview() override;

    /// Something is set otherwise: has the sheets laid out anew. Several calls in a row are one.
    void update() { m_updating.start(); }

Q_SIGNALS:
    /// The user wants to read what is to be said of a marked sheet.
    void markPressed(const QString &text);

private:
    void connectDocuments();
    void showDocuments();
    void showWantedSheet();
    void showColors();
    void showSheets();
    QString note() const;
    ShownPreview shown(const SheetPreview &preview) const;

    PrintTask &m_task;
    PreviewPane &m_pane;
    std::unique_ptr<DrawnPages> m_pictures; // from the first sheets on
    SheetPreview m_preview;                 // its files are those that are shown
    QString m_wanted;                       // the document whose first sheet is to be shown
    QTimer m_updating;
};

} // namespace corvana
