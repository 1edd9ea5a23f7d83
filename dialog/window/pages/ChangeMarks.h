#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include "dialog/window/pages/ShownChanges.h"

namespace corvana {

/// Where a setting stands on a page.
struct MarkedControl
{
    QString name{}; ///< of the setting
    QPointer<QWidget> control{};
    QPointer<QWidget> label{}; ///< null where the control has its title itself
};

/// A dot beside the title of each setting that was changed, with what it was as its tool tip; the
/// control's description says the same to a screen reader. The context menu of title, dot and
/// control takes the setting back.
///
/// The dots lie over a page and take no room in it: nothing of a panel's view is moved or cut.
class ChangeMarks : public QObject
{
    Q_OBJECT

public:
    explicit ChangeMarks(QObject *parent = nullptr);
    ~ChangeMarks() override;

    /// Marks those of the controls whose settings were changed.
    void show(const QList<MarkedControl> &controls, const ShownChanges &changes);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The user wants the setting back.
    void resetWanted(const QString &name);

private:
    class Dot;
    struct Mark
    {
        MarkedControl of;
        QPointer<Dot> dot;
    };

    void mark(const MarkedControl &control, const QString &text);
    void unmark(Mark &mark);
    void openMenu(const QString &name, const QPoint &place);

    QHash<QString, Mark> m_marks;
    QString m_back;
};

} // namespace corvana
