#include "dialog/window/PresetMenu.h"

#include <QMessageBox>
#include <QPushButton>

#include "dialog/task/TaskPresets.h"
#include "dialog/window/SavePresetDialog.h"
#include "platform/foundation/ForeignText.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;
using Kind = SelectedPreset::Kind;

namespace {

// Units: characters of a name that is shown.
constexpr int kLongestName = 60;

} // namespace

QString presetLabel(const QString &name)
{
    QString label = terminalLine(name);
    constexpr int kHalf = kLongestName / 2;
    if (label.size() > kLongestName)
        label = label.left(kHalf) + u'…' + label.right(kHalf);
    return label.replace(u'&', "&&"_L1);
}

PresetMenu::PresetMenu(TaskPresets &presets, QWidget *parent) : QMenu(parent), m_presets(presets)
{
    setObjectName(u"presetMenu"_s);
    connect(this, &QMenu::aboutToShow, this, [this] {
        m_presets.look(); // other windows keep some as well
        fill();
    });
    connect(&m_presets, &TaskPresets::changed, this, [this] {
        if (isVisible())
            fill();
    });
}

void PresetMenu::fill()
{
    clear();
    addPresets();
    addSeparator();
    addChanges();
}

QAction *PresetMenu::addChoice(const QString &text, const SelectedPreset &selected)
{
    QAction *action = addAction(text);
    action->setCheckable(true);
    action->setChecked(m_presets.selected().kind == selected.kind &&
                       m_presets.selected().name == selected.name);
    return action;
}

void PresetMenu::addPresets()
{
    connect(addChoice(tr("Printer &Defaults"), {}), &QAction::triggered, &m_presets,
            &TaskPresets::useDefaults);
    QAction *last = addChoice(tr("&Last Used"), {Kind::LastUsed});
    last->setEnabled(m_presets.hasLastUsed());
    connect(last, &QAction::triggered, &m_presets, &TaskPresets::useLastUsed);
    bool wasForModel = false;
    for (const StoredPreset &stored : m_presets.listing().presets) {
        const QString name = stored.preset.name;
        const bool isForModel = !stored.preset.model.isEmpty();
        if (actions().size() == 2 || isForModel != wasForModel)
            addSection(isForModel ? tr("For This Model") : tr("For All Printers"));
        wasForModel = isForModel;
        QAction *action = addChoice(presetLabel(name), {Kind::Preset, name});
        connect(action, &QAction::triggered, &m_presets, [this, name] { m_presets.use(name); });
    }
    const QStringList instances = m_presets.instancesOfOthers();
    if (!instances.isEmpty())
        addSection(tr("From Other Programs"));
    for (const QString &name : instances) {
        QAction *action = addChoice(presetLabel(name), {Kind::Preset, name});
        connect(action, &QAction::triggered, &m_presets,
                [this, name] { m_presets.useInstance(name); });
    }
}

void PresetMenu::addChanges()
{
    const SelectedPreset selected = m_presets.selected();
    const std::optional<StoredPreset> stored = m_presets.listing().find(selected.name);
    const bool isOwn = selected.kind == Kind::Preset && stored && stored->isOwn;
    QAction *save = addAction(tr("&Save Preset…"));
    connect(save, &QAction::triggered, this, [this] { askForName(false); });
    if (isOwn) {
        QAction *update = addAction(tr("&Update “%1”").arg(presetLabel(selected.name)));
        update->setEnabled(m_presets.isChanged());
        connect(update, &QAction::triggered, &m_presets, &TaskPresets::update);
        QAction *rename = addAction(tr("&Rename “%1”…").arg(presetLabel(selected.name)));
        connect(rename, &QAction::triggered, this, [this] { askForName(true); });
        QAction *remove = addAction(tr("D&elete “%1”…").arg(presetLabel(selected.name)));
        connect(remove, &QAction::triggered, this, &PresetMenu::askToRemove);
    }
    addSeparator();
    QAction *remember = addAction(tr("Re&member the Settings of the Last Job"));
    remember->setCheckable(true);
    remember->setChecked(m_presets.remembersLastUsed());
    remember->setEnabled(m_presets.mayRememberLastUsed());
    connect(remember, &QAction::triggered, &m_presets, &TaskPresets::setRemembersLastUsed);
}

void PresetMenu::askForName(bool rename)
{
    auto *dialog = new SavePresetDialog(m_presets, rename, parentWidget()->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, rename] {
        if (rename)
            m_presets.rename(dialog->preset().name);
        else
            m_presets.save(dialog->preset());
    });
    dialog->open();
}

void PresetMenu::askToRemove()
{
    const QString name = m_presets.selected().name;
    auto *box = new QMessageBox(
        QMessageBox::Question, tr("Delete Preset"),
        tr("Delete the preset “%1”? The settings stay as they are.").arg(terminalLine(name)),
        QMessageBox::Cancel, parentWidget()->window());
    QPushButton *remove = box->addButton(tr("Delete"), QMessageBox::DestructiveRole);
    box->setDefaultButton(QMessageBox::Cancel);
    box->setAttribute(Qt::WA_DeleteOnClose);
    makePlain(box);
    connect(box, &QMessageBox::buttonClicked, this, [this, remove, name](QAbstractButton *button) {
        if (button == remove && m_presets.selected().name == name)
            m_presets.remove();
    });
    box->open();
}

} // namespace corvana
