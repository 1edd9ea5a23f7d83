#include "dialog/window/SavePresetDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "dialog/window/PresetMenu.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Of instances: more of them would fill the dialog.
constexpr qsizetype kMostNames = 4;

} // namespace

SavePresetDialog::SavePresetDialog(const TaskPresets &presets, bool rename, QWidget *parent)
    : QDialog(parent), m_presets(presets), m_renames(rename), m_name(new QLineEdit(this))
{
    setWindowTitle(rename ? tr("Rename Preset") : tr("Save Preset"));
    setWindowModality(Qt::WindowModal);
    m_name->setObjectName(u"presetName"_s);
    m_name->setMaxLength(int(kLongestPresetName));
    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    form->addRow(tr("&Name:"), m_name);
    layout->addLayout(form);
    if (!rename)
        addRange();
    m_remark = plainLabel({}, this);
    m_remark->setObjectName(u"presetRemark"_s);
    m_remark->setWordWrap(true);
    layout->addWidget(m_remark);
    auto *buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    m_save = buttons->button(QDialogButtonBox::Ok);
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    setMinimumWidth(26 * fontMetrics().height());
    const SelectedPreset &selected = presets.selected();
    if (selected.kind == SelectedPreset::Kind::Preset)
        m_name->setText(selected.name);
    m_name->selectAll();
    m_name->setFocus();
    connect(m_name, &QLineEdit::textChanged, this, &SavePresetDialog::check);
    connect(&presets, &TaskPresets::changed, this, &SavePresetDialog::check);
    check();
}

void SavePresetDialog::addRange()
{
    auto *box = static_cast<QVBoxLayout *>(layout());
    m_forModel = new QRadioButton(
        tr("For printers of this &model (%1)").arg(presetLabel(m_presets.modelName())), this);
    m_forModel->setChecked(true);
    m_forAll = new QRadioButton(tr("For &all printers, as far as they have these settings"), this);
    m_forAll->setObjectName(u"presetForAll"_s);
    connect(m_forAll, &QRadioButton::toggled, this, &SavePresetDialog::check);
    box->addWidget(m_forModel);
    box->addWidget(m_forAll);
    m_elsewhere = new QCheckBox(tr("Also in &other programs"), this);
    m_elsewhere->setObjectName(u"presetElsewhere"_s);
    m_elsewhere->setChecked(!m_presets.selectedElsewhere().isEmpty());
    connect(m_elsewhere, &QCheckBox::toggled, this, &SavePresetDialog::check);
    m_more = new QPushButton(tr("More &Printers…"), this);
    m_more->setObjectName(u"presetPrinters"_s);
    m_more->setAutoDefault(false);
    connect(m_more, &QPushButton::clicked, this, &SavePresetDialog::askForPrinters);
    auto *row = new QHBoxLayout;
    row->addWidget(m_elsewhere, 1);
    row->addWidget(m_more);
    box->addLayout(row);
    const QString device = m_presets.deviceSettings();
    if (device.isEmpty())
        return;
    m_device = new QCheckBox(
        tr("&With what sets up the printer itself (%1)").arg(presetLabel(device)), this);
    m_device->setObjectName(u"presetDevice"_s);
    m_device->setChecked(m_presets.selected().device);
    box->addWidget(m_device);
}

PresetToSave SavePresetDialog::preset() const
{
    PresetToSave wanted{presetName(m_name->text()), m_forAll && m_forAll->isChecked(),
                        m_device && m_device->isChecked(), m_replaces,
                        m_elsewhere && m_elsewhere->isChecked()};
    // The tick was there when the dialog opened, where the preset that is selected has an instance.
    wanted.nowhereElse =
        m_elsewhere && !wanted.elsewhere && wanted.name == m_presets.selected().name;
    const QList<OtherQueue> others = otherQueues();
    for (const OtherQueue &other : others) {
        if (other.problem.isEmpty() && isTicked(other) != other.isThere)
            (other.isThere ? wanted.notOn : wanted.alsoOn) += other.instance;
    }
    return wanted;
}

QList<OtherQueue> SavePresetDialog::otherQueues() const
{
    return m_renames ? QList<OtherQueue>()
                     : m_presets.otherQueues(presetName(m_name->text()),
                                             m_forAll && m_forAll->isChecked());
}

bool SavePresetDialog::isTicked(const OtherQueue &queue) const
{
    return m_picks.value(queue.printer.name, queue.isThere);
}

void SavePresetDialog::askForPrinters()
{
    OtherQueue open{m_presets.openPrinter()};
    const InstanceDraft draft = m_presets.elsewhere(presetName(m_name->text()));
    open.instance = draft.name;
    open.problem = draft.problem;
    InstancePrinters::Picks picks = m_picks;
    picks.insert(open.printer.name, m_elsewhere->isChecked());
    const QList<OtherQueue> others = otherQueues();
    auto *dialog = new InstancePrinters(QList{open} + others, picks, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, others, name = open.printer.name] {
        m_picks = dialog->picks();
        m_elsewhere->setChecked(m_picks.take(name));
        // What nobody has changed is no answer for a preset of another name.
        for (const OtherQueue &other : others) {
            if (m_picks.value(other.printer.name) == other.isThere)
                m_picks.remove(other.printer.name);
        }
        check();
    });
    dialog->open();
}

// By which name other programs will have it, or why they cannot.
QString SavePresetDialog::remarkOnInstance()
{
    if (!m_elsewhere || m_name->text().isEmpty())
        return {};
    const PresetToSave wanted = preset();
    QString here;
    if (m_elsewhere->isChecked()) {
        const InstanceDraft draft = m_presets.elsewhere(wanted.name);
        if (!draft.problem.isEmpty())
            return draft.problem;
        here = draft.name;
    } else if (!wanted.nowhereElse) {
        // One that the preset of this name has follows it, but for the tick that was taken away.
        here = m_presets.instanceOf(wanted.name);
    }
    QStringList instances = here.isEmpty() ? QStringList() : QStringList{here};
    const QList<OtherQueue> others = otherQueues();
    for (const OtherQueue &other : others) {
        if (other.problem.isEmpty() && isTicked(other))
            instances += other.instance;
    }
    if (instances.size() > kMostNames)
        instances = instances.mid(0, kMostNames) + QStringList{u"…"_s};
    return instances.isEmpty() ? QString()
                               : tr("Other programs list it as “%1”.").arg(instances.join(u", "_s));
}

// Says what pressing the button will do, before it is pressed.
void SavePresetDialog::check()
{
    const PresetToSave wanted = preset();
    if (m_more)
        m_more->setVisible(!otherQueues().isEmpty());
    const bool isSame = m_renames && wanted.name == m_presets.selected().name;
    const std::optional<StoredPreset> there = m_presets.listing().find(wanted.name);
    m_replaces = there && there->isOwn && there->preset.model.isEmpty() == wanted.forAllPrinters;
    QString remark = m_name->text().isEmpty() ? QString() : problemOfNewPresetName(wanted.name);
    const bool canBe = problemOfNewPresetName(wanted.name).isEmpty() && !(m_renames && there);
    if (remark.isEmpty() && there && !isSame)
        remark = m_renames    ? tr("There is a preset of this name already.")
                 : m_replaces ? tr("There is a preset of this name already. It will be replaced.")
                              : tr("There is another preset of this name, which stays.");
    if (const QString instance = remarkOnInstance(); !instance.isEmpty())
        remark = remark.isEmpty() ? instance : remark + u'\n' + instance;
    m_remark->setText(remark);
    m_save->setText(m_renames ? tr("Rename") : m_replaces ? tr("Replace") : tr("Save"));
    m_save->setEnabled(canBe);
    makeRoom();
}

// Windows do not grow with a text that takes more lines; without this it would be cut off.
void SavePresetDialog::makeRoom()
{
    layout()->activate();
    // Nothing in it wraps before there is something to say of the name.
    const int needed = layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width())
                                                     : layout()->totalMinimumSize().height();
    setMinimumHeight(needed);
    if (height() < needed)
        resize(width(), needed);
}

void SavePresetDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    makeRoom();
}

} // namespace corvana
