#include "dialog/window/pages/OptionsPage.h"

#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "dialog/session/PpdSession.h"
#include "dialog/session/Summary.h"
#include "dialog/window/pages/ChoiceDelegate.h"
#include "dialog/window/pages/ChoiceEditor.h"
#include "dialog/window/pages/ClearButton.h"
#include "dialog/window/pages/OptionsModel.h"
#include "dialog/window/pages/OptionsView.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {
constexpr int kMostWithoutSearch = 20; // options that can be looked through
}

OptionsPage::OptionsPage(PpdSession &session, const ListedOptions &listed, QWidget *parent)
    : QWidget(parent), m_model(new OptionsModel(session, listed, this)),
      m_filter(new OptionsFilter(this)), m_search(new QLineEdit(this)),
      m_view(new OptionsView(this)), m_delegate(new ChoiceDelegate(*m_model, this)),
      m_reset(new QAction(tr("Back to the Default"), m_view)), m_hint(plainLabel({}, this))
{
    m_hint->setObjectName(u"hint"_s);
    m_hint->setWordWrap(true);
    m_hint->hide();
    buildSearch();
    buildList();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_hint);
    connect(m_model, &OptionsModel::proposed, this, &OptionsPage::proposed);
}

OptionsPage::~OptionsPage() = default;

bool OptionsPage::hasOptions(const PpdSession &session)
{
    return !furtherOptions(session).isEmpty();
}

void OptionsPage::buildSearch()
{
    m_search->setObjectName(u"search"_s);
    m_search->setPlaceholderText(tr("Search options and choices"));
    m_search->setAccessibleName(tr("Search options and choices"));
    addClearButton(m_search);
    m_search->installEventFilter(this);
    const bool needed = m_model->optionCount() > kMostWithoutSearch;
    m_search->setVisible(needed);
    setFocusProxy(needed ? static_cast<QWidget *>(m_search) : m_view);
    connect(m_search, &QLineEdit::textChanged, this, &OptionsPage::search);
}

void OptionsPage::buildList()
{
    m_filter->setSourceModel(m_model);
    m_view->setObjectName(u"options"_s);
    m_view->setAccessibleName(tr("Options of the printer"));
    m_view->setItemDelegate(m_delegate);
    m_view->setModel(m_filter);
    connect(m_view, &OptionsView::choosing, m_delegate, [this] {
        if (ChoiceEditor *editor = m_delegate->editor())
            editor->openList();
    });
    connect(m_delegate, &ChoiceDelegate::hinted, this,
            [this](const QString &text) { say(text, false); });
    connect(m_delegate, &ChoiceDelegate::rejected, this,
            [this](const QString &text) { say(text, true); });

    m_reset->setObjectName(u"reset"_s);
    m_reset->setShortcuts({Qt::Key_Delete, Qt::Key_Backspace});
    m_reset->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(m_reset);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(m_reset, &QAction::triggered, this, &OptionsPage::resetCurrent);
    connect(m_view, &OptionsView::currentMoved, this, &OptionsPage::updateReset);
    connect(m_model, &OptionsModel::dataChanged, this, &OptionsPage::updateReset);
    updateReset();
}

void OptionsPage::refresh()
{
    m_model->refresh();
}

void OptionsPage::showChanges(const ShownChanges &changes)
{
    m_knowsBase = true;
    m_reset->setText(QString(changes.back).replace(u'&', "&&"_L1));
    m_model->showChanges(changes);
    updateReset();
}

bool OptionsPage::finishEditing()
{
    if (ChoiceEditor *editor = m_delegate->editor())
        editor->finish();
    return !m_delegate->editor();
}

OptionsPage::Row OptionsPage::goTo(const QString &keyword)
{
    const QModelIndex option = m_model->indexOf(keyword);
    if (!option.isValid() || !finishEditing())
        return {};
    m_search->clear();
    const QModelIndex row = m_filter->mapFromSource(option);
    m_view->setCurrentIndex(row);
    m_view->scrollTo(row);
    m_view->setFocus();
    const QRect title = m_view->visualRect(row.siblingAtColumn(OptionsModel::Title));
    return {m_view->viewport(), title | m_view->visualRect(row)};
}

void OptionsPage::focusEditor()
{
    if (ChoiceEditor *editor = m_delegate->editor())
        editor->setFocus();
}

void OptionsPage::search(const QString &text)
{
    if (!finishEditing())
        m_delegate->dismissEditor();
    const QPersistentModelIndex current = m_view->currentIndex();
    m_filter->search(text);
    m_view->showAllRows();
    if (current.isValid())
        m_view->scrollTo(current);
    else
        m_view->goToFirstOption();
    say(m_filter->rowCount() == 0 ? tr("Nothing contains “%1”.").arg(text) : QString(), true);
}

void OptionsPage::goToList()
{
    if (m_filter->rowCount() == 0)
        return;
    if (!m_view->currentIndex().isValid())
        m_view->goToFirstOption();
    m_view->setFocus();
}

bool OptionsPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent *>(event)->key()) {
        case Qt::Key_Escape:
            if (m_search->text().isEmpty())
                break; // leaves the dialog
            m_search->clear();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Down:
            goToList(); // searching is not printing
            return true;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void OptionsPage::updateReset()
{
    m_reset->setEnabled(m_model->isChanged(m_filter->mapToSource(m_view->currentIndex())));
}

void OptionsPage::resetCurrent()
{
    const QModelIndex current = m_filter->mapToSource(m_view->currentIndex());
    if (m_knowsBase)
        Q_EMIT resetWanted(current.data(OptionsModel::KeywordRole).toString());
    else
        m_model->proposeDefault(current);
}

// `aloud`: a screen reader says it, although the focus stays where the user works.
void OptionsPage::say(const QString &text, bool aloud)
{
    m_hint->setText(text);
    m_hint->setVisible(!text.isEmpty());
    if (text.isEmpty())
        return;
    // What is said about a row must not cover it. Later: its editor is just being opened.
    QMetaObject::invokeMethod(
        m_view,
        [this] {
            layout()->activate();
            m_view->scrollTo(m_view->currentIndex());
        },
        Qt::QueuedConnection);
    if (aloud)
        announce(this, text);
}

} // namespace corvana
