#include "tests/e2e/RichTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QPointer>
#include <QTabBar>
#include <QTextDocument>
#include <QTextEdit>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

class Walk
{
public:
    explicit Walk(const QString &mark) : m_mark(mark) {}

    ShownTexts found;

    void visit(QWidget *widget)
    {
        const QString name = u"%1 \"%2\""_s.arg(
            QString::fromLatin1(widget->metaObject()->className()), widget->objectName());
        guessed(name + u" tool tip"_s, widget->toolTip());
        guessed(name + u" what's this"_s, widget->whatsThis());
        for (const QAction *action : widget->actions()) {
            guessed(name + u" action"_s, action->toolTip());
            guessed(name + u" action"_s, action->whatsThis());
        }
        if (const auto *label = qobject_cast<const QLabel *>(widget))
            visitLabel(name, *label);
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            shownPlain(button->text());
        else if (const auto *box = qobject_cast<const QGroupBox *>(widget))
            shownPlain(box->title());
        else if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
            visitTabs(name, *tabs);
        else if (const auto *text = qobject_cast<const QTextEdit *>(widget))
            visitDocument(name, *text->document());
        else if (const auto *popUp = qobject_cast<const QComboBox *>(widget))
            visitItems(name, popUp->model(), {});
        else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
            visitItems(name, view->model(), {});
    }

    // What comes up while the pointer rests there.
    void point(QWidget *widget, const QPoint &at)
    {
        QHelpEvent event(QEvent::ToolTip, at, widget->mapToGlobal(at));
        QApplication::sendEvent(widget, &event);
        guessed(QString::fromLatin1(widget->metaObject()->className()) + u" under the pointer"_s,
                QToolTip::text());
        QToolTip::hideText();
    }

private:
    void shownPlain(const QString &text)
    {
        if (text.contains(m_mark))
            ++found.plain;
    }
    void rich(const QString &where, const QString &text)
    {
        found.rich += u"%1: %2"_s.arg(where, text);
    }

    // A text of which Qt guesses what it is.
    void guessed(const QString &where, const QString &text)
    {
        if (text.contains(m_mark) && Qt::mightBeRichText(text))
            rich(where, text);
        else if (text.contains(m_mark) || text.contains(m_mark.toHtmlEscaped()))
            ++found.toolTips;
    }

    void visitLabel(const QString &name, const QLabel &label)
    {
        if (!label.text().contains(m_mark))
            return;
        const bool markup =
            label.textFormat() == Qt::RichText || label.textFormat() == Qt::MarkdownText ||
            (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
        if (markup)
            rich(name, label.text());
        else
            ++found.plain;
    }

    void visitDocument(const QString &name, const QTextDocument &document)
    {
        const QString text = document.toPlainText();
        if (text.contains(QChar::ObjectReplacementCharacter))
            rich(name, text);
        shownPlain(text);
    }

    void visitTabs(const QString &name, const QTabBar &tabs)
    {
        for (int tab = 0; tab < tabs.count(); ++tab) {
            shownPlain(tabs.tabText(tab));
            guessed(name + u" tab"_s, tabs.tabToolTip(tab));
            guessed(name + u" tab"_s, tabs.tabWhatsThis(tab));
        }
    }

    void visitItems(const QString &name, const QAbstractItemModel *model, const QModelIndex &parent)
    {
        if (!model)
            return;
        for (int row = 0; row < model->rowCount(parent); ++row) {
            for (int column = 0; column < model->columnCount(parent); ++column) {
                const QModelIndex item = model->index(row, column, parent);
                shownPlain(item.data().toString());
                guessed(name + u" item"_s, item.data(Qt::ToolTipRole).toString());
                guessed(name + u" item"_s, item.data(Qt::WhatsThisRole).toString());
                visitItems(name, model, item);
            }
        }
    }

    QString m_mark;
};

} // namespace

ShownTexts shownTexts(const QString &mark, bool byPointer)
{
    Walk walk(mark);
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets)
        walk.visit(widget);
    if (!byPointer)
        return walk.found;
    // Tool tips come and go meanwhile.
    const QList<QPointer<QWidget>> living(widgets.cbegin(), widgets.cend());
    for (const QPointer<QWidget> &widget : living) {
        if (!widget || !widget->isVisible() || widget->inherits("QTipLabel"))
            continue;
        walk.point(widget, widget->rect().center());
        const auto *view = qobject_cast<const QAbstractItemView *>(widget.data());
        for (int y = 5; view && y < view->viewport()->height(); y += 10) {
            for (const int part : {1, 3})
                walk.point(view->viewport(), {view->viewport()->width() * part / 4, y});
        }
        const auto *tabs = qobject_cast<const QTabBar *>(widget.data());
        for (int tab = 0; tabs && tab < tabs->count(); ++tab)
            walk.point(widget, tabs->tabRect(tab).center());
    }
    return walk.found;
}

} // namespace corvana::test
