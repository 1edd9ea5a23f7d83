#include "dialog/window/PresetRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>

#include "dialog/task/PrintTask.h"
#include "dialog/task/TaskHistory.h"
#include "dialog/task/TaskPresets.h"
#include "dialog/window/ElidedToolButton.h"
#include "dialog/window/PresetButton.h"
#include "dialog/window/PresetMenu.h"
#include "dialog/window/SettingsPages.h"
#include "dialog/window/chooser/PrinterIcon.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// The names of options may be long, and less than a few letters of one say nothing. Units: heights
// of the font.
constexpr int kMostOfUndo = 10;
constexpr int kLeastOfUndo = 5;

} // namespace

PresetRow::PresetRow(PrintTask &task, QWidget *parent) : QWidget(parent), m_task(task)
{
    buildPreset();
    buildReset();
    buildButtons();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_preset, 1);
    row->addWidget(m_reset);
    row->addWidget(m_undo);
    row->addWidget(m_redo);
    connect(&m_task.history(), &TaskHistory::changed, this, &PresetRow::refresh);
    connect(&m_task, &PrintTask::phaseChanged, this, &PresetRow::refresh);
    connect(&m_task.presets(), &TaskPresets::changed, this, &PresetRow::refreshPreset);
    refresh();
}

void PresetRow::buildPreset()
{
    m_preset = new PresetButton(this);
    m_preset->setObjectName(u"preset"_s);
    m_preset->setMenu(new PresetMenu(m_task.presets(), m_preset));
    m_label = new QLabel(tr("Prese&t:"), this);
    m_label->setBuddy(m_preset);
}

void PresetRow::refreshPreset()
{
    const TaskPresets &presets = m_task.presets();
    const QString name = presetLabel(presets.selectedName());
    const QString text = presets.isChanged() ? tr("%1 (changed)").arg(name) : name;
    m_preset->setText(text);
    m_preset->setAccessibleName(tr("Preset: %1").arg(QString(text).replace("&&"_L1, "&"_L1)));
    m_preset->setEnabled(m_task.phase() == PrintTask::Phase::Ready);
    shareRoom();
}

// What is in force is read first. The name of the step that can be taken back has what is left, and
// is the button's tool tip and its name for a screen reader in any case.
void PresetRow::shareRoom()
{
    const int em = fontMetrics().height();
    const int others = m_reset->sizeHint().width() + m_redo->sizeHint().width() +
                       (layout()->count() - 1) * layout()->spacing();
    const int room = width() - others - m_preset->wholeWidth();
    const bool hasText = room >= kLeastOfUndo * em;
    m_undo->setToolButtonStyle(hasText ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    m_undo->setMaximumWidth(hasText ? qMin(room, kMostOfUndo * em) : QWIDGETSIZE_MAX);
}

void PresetRow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    shareRoom();
}

void PresetRow::setPages(SettingsPages *pages)
{
    m_pages = pages;
}

void PresetRow::buildReset()
{
    m_reset = new QToolButton(this);
    m_reset->setObjectName(u"reset"_s);
    m_reset->setText(tr("Reset"));
    m_reset->setAutoRaise(true);
    // The whole of it opens the menu; another kind of button would hide its arrow under the text.
    m_reset->setPopupMode(QToolButton::MenuButtonPopup);
    connect(m_reset, &QToolButton::clicked, m_reset, &QToolButton::showMenu);
    auto *menu = new QMenu(m_reset);
    m_resetPage = menu->addAction(QString());
    m_resetPage->setObjectName(u"resetPage"_s);
    m_resetAll = menu->addAction(QString());
    m_resetAll->setObjectName(u"resetAll"_s);
    m_reset->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, &PresetRow::refreshReset);
    connect(m_resetPage, &QAction::triggered, this, [this] { m_pages->resetPage(); });
    connect(m_resetAll, &QAction::triggered, &m_task.history(), &TaskHistory::resetAll);
}

void PresetRow::refreshReset()
{
    const QString back = m_task.history().backText().replace(u'&', "&&"_L1);
    m_resetPage->setText(tr("This Page: %1").arg(back));
    m_resetAll->setText(tr("Everything: %1").arg(back));
    m_resetPage->setEnabled(m_pages && !m_pages->changedOnPage().isEmpty());
    m_resetAll->setEnabled(!m_task.history().changedSettings().isEmpty());
}

void PresetRow::buildButtons()
{
    m_undo = new ElidedToolButton(this);
    m_undo->setObjectName(u"undo"_s);
    m_undo->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_undo->setIcon(undoIcon());
    m_redo = new QToolButton(this);
    m_redo->setObjectName(u"redo"_s);
    m_redo->setIcon(redoIcon());
    for (QToolButton *button : {static_cast<QToolButton *>(m_undo), m_redo})
        button->setAutoRaise(true);
    connect(m_undo, &QToolButton::clicked, &m_task.history(), &TaskHistory::undo);
    connect(m_redo, &QToolButton::clicked, &m_task.history(), &TaskHistory::redo);
}

// The steps have the names of the printer's options: none of them may be taken for markup or for a
// key.
void PresetRow::refresh()
{
    refreshPreset();
    m_reset->setEnabled(m_task.phase() == PrintTask::Phase::Ready);
    const QString undo = m_task.history().undoText();
    m_undo->setText(QString(undo).replace(u'&', "&&"_L1));
    setPlainToolTip(m_undo, tr("%1 (Ctrl+Z)").arg(undo));
    m_undo->setAccessibleName(undo);
    m_undo->setEnabled(m_task.history().canUndo());
    const QString redo = m_task.history().redoText();
    setPlainToolTip(m_redo, tr("%1 (Shift+Ctrl+Z)").arg(redo));
    m_redo->setAccessibleName(redo);
    m_redo->setEnabled(m_task.history().canRedo());
    shareRoom();
}

} // namespace corvana
