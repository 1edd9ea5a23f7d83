#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QWidget>

class QListWidget;
class QToolButton;

namespace corvana {

class ElidedLabel;

/// A document, as a list shows it.
struct ListedDocument
{
    QString title{};
    QString kind{}; ///< "PDF document"
    QString place{};

    bool operator==(const ListedDocument &) const = default;
};

/// Which documents are printed: the name of a single one, and of several a list in which they are
/// put in order and removed; more can be added.
class DocumentArea : public QWidget
{
    Q_OBJECT

public:
    explicit DocumentArea(QWidget *parent = nullptr);

    /// `title` is the job's.
    void setDocuments(const QString &title, const QList<ListedDocument> &documents);
    /// Whether the documents can be others now.
    void setCanChange(bool canChange);
    /// Folded, the documents are not in the window.
    void setFolded(bool folded);
    /// Asks for files, in the dialog of the desktop.
    void choose();
    QList<QWidget *> focusOrder() const;

Q_SIGNALS:
    void chosen(const QStringList &paths);
    void removed(int index);
    void moved(int from, int to);

private:
    QToolButton *addButton(const QString &name, const QString &what);
    void buildList();
    void buildHeader();
    void moveCurrent(int by);
    void updateButtons();
    void updateHeight();

    ElidedLabel *m_title;
    QListWidget *m_list;
    QToolButton *m_up = nullptr;
    QToolButton *m_down = nullptr;
    QToolButton *m_remove = nullptr;
    QToolButton *m_add = nullptr;
    QList<ListedDocument> m_documents;
    bool m_canChange = true;
    bool m_isFolded = false;
};

} // namespace corvana
