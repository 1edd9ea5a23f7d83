#include "dialog/window/pages/GeneralPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/PpdSession.h"
#include "dialog/session/Summary.h"
#include "dialog/window/pages/AttributeRows.h"
#include "dialog/window/pages/ClearButton.h"
#include "dialog/window/pages/ControlLock.h"
#include "dialog/window/pages/CopiesEditor.h"
#include "dialog/window/pages/CustomPaperSize.h"
#include "dialog/window/pages/RowMnemonics.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/MenuActions.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/NarrowComboBox.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {
// What the choices of an option are called, in the order of the PPD; by their keywords where the
// text cannot be read, as on every other page. Choices of the same text are different choices all
// the same, and are told apart by their keywords.
QStringList choiceTitles(const ppd_option_t &option)
{
    QStringList titles;
    QHash<QString, int> uses;
    for (int i = 0; i < option.num_choices; ++i) {
        titles += ppdText(option.choices[i].text).value_or(ppdKeyword(option.choices[i].choice));
        ++uses[titles.constLast()];
    }
    for (int i = 0; i < option.num_choices; ++i) {
        if (uses.value(titles.at(i)) > 1)
            titles[i] = u"%1 (%2)"_s.arg(titles.at(i), ppdKeyword(option.choices[i].choice));
    }
    return titles;
}

// popup::addItemWithTitle() would take an item of the same title away.
void addChoice(QComboBox *popUp, const QString &title, const QString &choice)
{
    const ProgrammaticChange change;
    popUp->addItem(title, choice);
}

} // namespace

GeneralPage::GeneralPage(PpdSession &session, const PDEJobValues *jobValues, QWidget *parent)
    : QWidget(parent), m_session(session), m_marks(new ChangeMarks(this)),
      m_copies(new CopiesEditor(this)), m_pageRanges(new QLineEdit(this)),
      m_choosePages(new QPushButton(this))
{
    auto *rows = new QWidget;
    m_rows = new QFormLayout(rows);
    m_rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_rows->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addJobFields(m_rows);
    scroll(rows);
    const QStringList options = generalOptionsOf(session, jobValues);
    for (const QString &keyword : options)
        addOption(keyword);
    m_attributes = new AttributeRows(m_rows);
    connect(m_attributes, &AttributeRows::proposed, this, &GeneralPage::attributeProposed);
    connect(m_attributes, &AttributeRows::fieldsChanged, this, [this] { showChanges(m_changes); });
    connect(m_marks, &ChangeMarks::resetWanted, this, &GeneralPage::resetWanted);
    // Later: the rows are laid out by then.
    connect(m_attributes, &AttributeRows::heightChanged, this, &GeneralPage::heightChanged,
            Qt::QueuedConnection);
    refresh();
}

void GeneralPage::addJobFields(QFormLayout *form)
{
    setFocusProxy(m_copies->field());
    // Its label leads past the widget that it stands in.
    m_copies->field()->setAccessibleName(QCoreApplication::translate("Summary", "Copies"));
    form->addRow(tr("&Copies:"), m_copies);
    qobject_cast<QLabel *>(form->labelForField(m_copies))->setBuddy(m_copies->field());
    addPageRanges(form);
    connect(m_copies, &CopiesEditor::changed, this, &GeneralPage::copiesEdited);
    connect(m_copies, &CopiesEditor::heightChanged, this, &GeneralPage::heightChanged,
            Qt::QueuedConnection);
    connect(m_pageRanges, &QLineEdit::textChanged, this,
            [this] { Q_EMIT pageRangesEdited(pageRanges()); });
}

void GeneralPage::addPageRanges(QFormLayout *form)
{
    // Every second page of a long document takes more than a field has room for by itself.
    constexpr int kMostLetters = 1'000'000;
    auto *field = new QWidget(this);
    auto *row = new QHBoxLayout(field);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_pageRanges, 1);
    row->addWidget(m_choosePages);
    field->setFocusProxy(m_pageRanges);
    m_pageRanges->setObjectName(u"pageRanges"_s);
    m_pageRanges->setAccessibleName(tr("Pages")); // its label leads past the row that it stands in
    m_pageRanges->setPlaceholderText(tr("All, or such as 1-4, 7, 9-"));
    m_pageRanges->setMaxLength(kMostLetters);
    addClearButton(m_pageRanges);
    m_choosePages->setObjectName(u"choosePages"_s);
    m_choosePages->setText(tr("Choos&e Pages…"));
    m_choosePages->setAutoDefault(false);
    connect(m_choosePages, &QPushButton::clicked, this, &GeneralPage::choosePagesPressed);
    form->addRow(tr("Pa&ges:"), field);
    qobject_cast<QLabel *>(form->labelForField(field))->setBuddy(m_pageRanges);
}

// On a small screen, or with a large font, the page scrolls rather than push the buttons below the
// edge.
void GeneralPage::scroll(QWidget *rows)
{
    m_area = new QScrollArea(this);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus); // its rows have the focus, and are scrolled into sight
    m_area->setWidgetResizable(true);
    m_area->setWidget(rows);
    m_area->viewport()->setAutoFillBackground(false);
    rows->setAutoFillBackground(false);
    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_area);
}

int GeneralPage::copies() const
{
    return m_copies->copies();
}

int GeneralPage::mostCopies() const
{
    return m_copies->field()->most();
}

void GeneralPage::setMostCopies(int copies)
{
    m_copies->setMost(copies > 0 ? qMin(copies, kMostCopies) : kMostCopies);
}

void GeneralPage::setCopies(int copies)
{
    m_copies->setCopies(copies);
}

QString GeneralPage::pageRanges() const
{
    return m_pageRanges->text().remove(u' ');
}

void GeneralPage::setPageRanges(const QString &ranges)
{
    m_pageRanges->setText(ranges);
    // Many ranges are known by their beginning.
    if (!m_pageRanges->hasFocus())
        m_pageRanges->setCursorPosition(0);
}

void GeneralPage::offerPageRanges(bool offer)
{
    m_rows->setRowVisible(m_pageRanges->parentWidget(), offer || !pageRanges().isEmpty());
}

void GeneralPage::setCanChoosePages(bool can)
{
    m_choosePages->setEnabled(can);
    setPlainToolTip(m_choosePages, can ? QString() : tr("No document has been chosen."));
}

void GeneralPage::setLocks(const QString &copiesBy, const QString &pagesBy)
{
    ControlLock::set(m_copies->field(), copiesBy);
    ControlLock::set(m_pageRanges, pagesBy, m_rows->labelForField(m_pageRanges));
}

void GeneralPage::focusPageRanges()
{
    m_pageRanges->setFocus();
    m_pageRanges->selectAll();
}

QList<MarkedControl> GeneralPage::fields() const
{
    QList<MarkedControl> fields = m_attributes->fields();
    for (auto popUp = m_popUps.cbegin(); popUp != m_popUps.cend(); ++popUp)
        fields += MarkedControl{popUp.key(), popUp.value(), m_rows->labelForField(popUp.value())};
    if (m_collate)
        fields += MarkedControl{m_collate->objectName(), m_collate, nullptr};
    return fields;
}

QStringList GeneralPage::settings() const
{
    QStringList names;
    const QList<MarkedControl> shown = fields();
    for (const MarkedControl &field : shown)
        names += field.name;
    return names;
}

void GeneralPage::showChanges(const ShownChanges &changes)
{
    m_changes = changes;
    m_marks->show(fields(), changes);
}

QWidget *GeneralPage::disclose(const QString &name)
{
    if (name == m_copies->field()->objectName())
        return m_copies->field();
    if (name == kPageRangesAttribute)
        return m_pageRanges;
    if (m_collate && name == m_collate->objectName())
        return m_collate;
    if (QComboBox *popUp = m_popUps.value(name))
        return popUp;
    return m_attributes->disclose(name);
}

void GeneralPage::setAttributes(const QList<OfferedAttribute> &offered)
{
    for (const OfferedAttribute &one : offered) {
        if (one.place == OfferedAttribute::Place::BesideCopies)
            showCollate(one);
    }
    m_attributes->show(offered);
}

void GeneralPage::showCollate(const OfferedAttribute &collate)
{
    constexpr QLatin1StringView kOn{"true"};
    const JobAttribute &attribute = *jobAttribute(collate.name);
    if (!m_collate) {
        m_collate = new QCheckBox(this);
        m_collate->setObjectName(collate.name);
        m_collate->setText(withFreeMnemonic(textOfJobAttribute({collate.name, {}}).title,
                                            QLatin1StringView(attribute.title), window()));
        m_copies->addBeside(m_collate);
        connectControlAction(m_collate, [this, name = collate.name](QWidget *) {
            Q_EMIT attributeProposed(name, m_collate->isChecked() ? u"true"_s : u"false"_s);
        });
    }
    const ProgrammaticChange change;
    m_collate->setChecked((collate.value.isNull() ? QString(attribute.usual) : collate.value) ==
                          kOn);
    m_collate->setEnabled(collate.hasEffect);
    ControlLock::set(m_collate, collate.lockedBy);
}

void GeneralPage::showAttributeProblem(const QString &name, const QString &problem)
{
    m_attributes->showProblem(name, problem);
}

bool GeneralPage::finishEditing()
{
    return m_copies->finishEditing() && m_attributes->finishEditing();
}

std::optional<int> GeneralPage::missingHeight() const
{
    if (!m_attributes->showsMore())
        return std::nullopt;
    const int width = m_area->viewport()->width();
    const int needed = m_rows->hasHeightForWidth() ? m_rows->heightForWidth(width)
                                                   : m_rows->minimumSize().height();
    return needed - m_area->viewport()->height();
}

void GeneralPage::addOption(const QString &keyword)
{
    ppd_option_t *option = ppdOption(m_session.ppd(), keyword);
    // A printer that names one side as its only choice has nothing to choose from.
    if (!option || (keyword == kDuplexOption && option->num_choices < 2))
        return;
    auto *popUp = new NarrowComboBox(this);
    popUp->setObjectName(keyword);
    // The texts of a PPD do not decide how wide the window is.
    popUp->setMinimumContentsLength(12);
    const QStringList titles = choiceTitles(*option);
    for (int i = 0; i < option->num_choices; ++i) {
        if (const QString choice = ppdKeyword(option->choices[i].choice); choice != kCustomChoice)
            addChoice(popUp, titles.at(i), choice);
    }
    const QString title = ppdText(option->text).value_or(keyword);
    popUp->setAccessibleName(title);
    ignoreWheelWithoutFocus(popUp);
    connectControlAction(popUp, [this, keyword, popUp](QWidget *) {
        const QString choice = popup::representedObject(popUp, popUp->currentIndex()).toString();
        if (choice == kCustomChoice)
            proposeCustomPaper();
        else
            Q_EMIT proposed(keyword, choice);
    });
    if (keyword == kPageSizeOption)
        postNotificationWhenMenuActs(popUp); // panels follow the paper menu
    QLabel *label = plainLabel({}, this);
    label->setBuddy(popUp);
    setLiteralText(label, asTitle(title));
    m_rows->addRow(label, popUp);
    m_popUps.insert(keyword, popUp);
    if (keyword == kPageSizeOption && takesCustomPageSizes(m_session.ppd()))
        addCustomPaperSize(popUp);
}

void GeneralPage::addCustomPaperSize(QComboBox *sizes)
{
    addChoice(sizes, tr("Custom Size"), kCustomChoice);
    m_customPaper = new CustomPaperSize(m_session.ppd(), this);
    connect(m_customPaper, &CustomPaperSize::entered, this, &GeneralPage::proposeCustomPaper);
    m_rows->addRow(tr("Width × height:"), m_customPaper);
    showCustomPaper();
}

void GeneralPage::proposeCustomPaper()
{
    const QSizeF size = m_customPaper->size();
    const CustomValueCheck check =
        checkCustomValue(m_session.ppd(), kPageSizeOption,
                         kCustomPrefix + u"%1x%2"_s.arg(QString::number(size.width(), 'f', 4),
                                                        QString::number(size.height(), 'f', 4)));
    if (check.value)
        Q_EMIT proposed(kPageSizeOption, *check.value);
}

// The fields start at the size of the paper that is in use.
void GeneralPage::showCustomPaper()
{
    const Paper &paper = m_session.pageFormat().paper;
    m_customPaper->setSize({paper.width, paper.height});
    m_rows->setRowVisible(m_customPaper, !m_session.customValue(kPageSizeOption).isNull());
}

void GeneralPage::refresh()
{
    for (auto popUp = m_popUps.cbegin(); popUp != m_popUps.cend(); ++popUp)
        refreshOption(popUp.key(), popUp.value());
}

void GeneralPage::refreshOption(const QString &keyword, QComboBox *popUp)
{
    const QString choice = m_session.markedChoice(keyword);
    popup::selectItemAt(popUp, popup::indexOfItemWithRepresentedObject(popUp, choice));
    const QString by = m_session.lockedBy(keyword);
    const QString why = by.isNull() ? QString() : lockedText(by);
    ControlLock::set(popUp, why, m_rows->labelForField(popUp));
    if (keyword == kPageSizeOption && m_customPaper)
        m_customPaper->setLocked(why);
    if (keyword == kPageSizeOption && m_customPaper)
        showCustomPaper();
}

} // namespace corvana
