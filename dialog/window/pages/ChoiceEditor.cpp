#include "dialog/window/pages/ChoiceEditor.h"

#include <functional>
#include <utility>

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QWheelEvent>

#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionTexts.h"
#include "dialog/session/OptionValues.h"
#include "dialog/session/PpdSession.h"
#include "dialog/session/Summary.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ProgrammaticChange.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Says when its list is closed; lets the wheel scroll the page behind it.
class ListedChoices : public QComboBox
{
public:
    using QComboBox::QComboBox;

    std::function<void()> listClosed;

    void showPopup() override
    {
        m_open = true;
        QComboBox::showPopup();
    }
    void hidePopup() override
    {
        QComboBox::hidePopup();
        // Later: what was picked in the list is told after it was closed.
        if (std::exchange(m_open, false))
            QMetaObject::invokeMethod(
                this, [this] { listClosed(); }, Qt::QueuedConnection);
    }

protected:
    void wheelEvent(QWheelEvent *event) override { event->ignore(); }

private:
    bool m_open = false;
};

QString described(const SummaryLine &line)
{
    return ChoiceEditor::tr("“%1: %2”").arg(line.title, line.value);
}

} // namespace

ChoiceEditor::ChoiceEditor(PpdSession &session, const OptionValues &values, ppd_option_t *option,
                           QWidget *parent)
    : QWidget(parent), m_session(session), m_values(values), m_option(option),
      m_keyword(ppdKeyword(option->keyword)), m_limits(customLimits(session.ppd(), m_keyword))
{
    auto *choices = new ListedChoices(this);
    choices->listClosed = [this] {
        if (!isCustom())
            finish();
    };
    m_choices = choices;
    m_choices->setObjectName(u"choices"_s);
    m_choices->setAccessibleName(ppdText(option->text).value_or(m_keyword));
    // The name of a pop-up is what it shows; a screen reader takes the option's from a label.
    auto *label = plainLabel(withoutMnemonic(m_choices->accessibleName()), this);
    label->setBuddy(m_choices);
    label->hide();
    m_choices->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_choices->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_choices, 1);
    if (m_limits)
        addField();
    setAutoFillBackground(true);
    setFocusProxy(m_choices);
    addChoices();
    showMark();
    connectControlAction(m_choices, [this](QWidget *) { picked(); });
    connect(qApp, &QApplication::focusChanged, this, &ChoiceEditor::focusMoved);
}

// A widget that goes gives the focus away, when this is no editor any more.
ChoiceEditor::~ChoiceEditor()
{
    disconnect(qApp, nullptr, this, nullptr);
}

void ChoiceEditor::addChoices()
{
    const ProgrammaticChange change;
    const QColor weak = palette().color(QPalette::PlaceholderText);
    for (int i = 0; i < m_option->num_choices; ++i) {
        const ppd_choice_t &choice = m_option->choices[i];
        const QString keyword = ppdKeyword(choice.choice);
        const bool custom =
            keyword == kCustomChoice && ppdHasCustomOption(m_session.ppd(), m_keyword);
        // Several values at once cannot be entered here, only kept.
        if (custom && !m_limits && m_values.of(m_keyword).choice != kCustomChoice)
            continue;
        const QString text = choiceText(choice);
        m_choices->addItem(custom && m_limits ? text + u'…' : text, keyword);
        if (const QString note = conflictNote(keyword); !note.isNull()) {
            const int item = m_choices->count() - 1;
            m_choices->setItemData(item, weak, Qt::ForegroundRole);
            m_choices->setItemData(item, plainToolTip(note), Qt::ToolTipRole);
            m_choices->setItemData(item, note, Qt::AccessibleDescriptionRole);
        }
    }
}

void ChoiceEditor::addField()
{
    m_field = new QLineEdit(this);
    m_field->setObjectName(u"customValue"_s);
    m_field->setAccessibleName(m_choices->accessibleName());
    m_field->setAccessibleDescription(allowed());
    m_field->setPlaceholderText(allowed());
    m_field->setToolTip(plainToolTip(allowed()));
    if (isSecret(m_session.ppd(), m_keyword))
        m_field->setEchoMode(QLineEdit::Password);
    layout()->addWidget(m_field);
    static_cast<QHBoxLayout *>(layout())->setStretchFactor(m_field, 1);
    connect(m_field, &QLineEdit::textEdited, this, [this] {
        m_changed = true;
        Q_EMIT hintChanged();
    });
}

void ChoiceEditor::showMark()
{
    const ProgrammaticChange change;
    m_choices->setCurrentIndex(m_choices->findData(m_values.of(m_keyword).choice));
    if (m_field)
        m_field->setText(m_values.of(m_keyword).custom.mid(kCustomPrefix.size()));
    m_changed = false;
    showField(isCustom());
}

void ChoiceEditor::showDraft(const QString &text)
{
    const ProgrammaticChange change;
    m_choices->setCurrentIndex(m_choices->findData(QString(kCustomChoice)));
    m_field->setText(text);
    m_changed = true;
    showField(true);
}

void ChoiceEditor::openList()
{
    if (isCustom())
        m_field->selectAll();
    else
        m_choices->showPopup();
}

bool ChoiceEditor::isCustom() const
{
    return m_field && m_choices->currentData() == QVariant(QString(kCustomChoice));
}

void ChoiceEditor::picked()
{
    showField(isCustom());
    // A value of the user's own has to be entered first.
    m_changed = !isCustom();
    if (!m_changed) {
        m_field->setFocus();
        m_field->selectAll();
        return;
    }
    Q_EMIT committed();
}

void ChoiceEditor::showField(bool shown)
{
    if (!m_field)
        return;
    m_field->setVisible(shown);
    setFocusProxy(shown ? static_cast<QWidget *>(m_field) : m_choices);
    Q_EMIT hintChanged();
}

bool ChoiceEditor::isChanged() const
{
    return m_changed;
}

QString ChoiceEditor::typedText() const
{
    return isCustom() ? m_field->text() : QString();
}

std::optional<QString> ChoiceEditor::choice() const
{
    if (!isCustom())
        return m_choices->currentData().toString();
    // Numbers may be typed with full-width digits.
    const QString text = m_limits->isText()
                             ? m_field->text()
                             : m_field->text().normalized(QString::NormalizationForm_KC).trimmed();
    return checkCustomValue(m_session.ppd(), m_keyword, kCustomPrefix + text).value;
}

QString ChoiceEditor::allowed() const
{
    using Kind = CustomLimits::Kind;
    switch (m_limits->kind) {
    case Kind::Points:
        return tr("%1 to %2 points").arg(m_limits->least, m_limits->most);
    case Kind::Text:
    case Kind::HiddenText:
        return tr("%1 to %2 characters").arg(m_limits->least, m_limits->most);
    default:
        return tr("%1 to %2").arg(m_limits->least, m_limits->most);
    }
}

QString ChoiceEditor::hint() const
{
    return isCustom() ? tr("%1: %2").arg(m_field->accessibleName(), allowed()) : QString();
}

QString ChoiceEditor::problem() const
{
    const bool shown = !isSecret(m_session.ppd(), m_keyword);
    return shown ? tr("“%1” is not possible for %2. Allowed: %3.")
                       .arg(m_field->text(), m_field->accessibleName(), allowed())
                 : tr("This is not possible for %1. Allowed: %2.")
                       .arg(m_field->accessibleName(), allowed());
}

void ChoiceEditor::finish()
{
    if (m_done)
        return;
    if (m_changed) {
        Q_EMIT committed();
        if (m_changed)
            return; // it could not be taken, and stays here
    }
    m_done = true;
    Q_EMIT finished();
}

void ChoiceEditor::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        finish();
        break;
    case Qt::Key_Escape:
        showMark();
        finish();
        break;
    default:
        // Keys that the controls did not want are not for the rows behind them either.
        break;
    }
    event->accept();
}

void ChoiceEditor::focusMoved(QWidget *from, QWidget *to)
{
    // Nothing when the whole window lost it.
    if (to && isInside(from) && !isInside(to))
        finish();
}

bool ChoiceEditor::lostFocus() const
{
    const QWidget *focus = QApplication::focusWidget();
    return focus && !isInside(focus);
}

// The pop-up's list is a window of its own.
bool ChoiceEditor::isInside(const QWidget *widget) const
{
    while (widget && widget != this)
        widget = widget->parentWidget();
    return widget;
}

QString ChoiceEditor::conflictNote(const QString &choice) const
{
    if (choice == m_values.of(m_keyword).choice)
        return {};
    const QList<OptionChoice> conflicting = m_session.conflictsOf({m_keyword, choice});
    QStringList others;
    for (const OptionChoice &other : conflicting)
        others += described(optionLine(m_session, other.keyword));
    return others.isEmpty() ? QString()
                            : tr("Cannot be combined with %1.").arg(others.join(tr(" and ")));
}

} // namespace corvana
