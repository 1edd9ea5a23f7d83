#include "dialog/window/pages/AttributeRows.h"

#include <algorithm>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

#include "dialog/session/JobAttributes.h"
#include "dialog/window/pages/AttributeEditor.h"
#include "dialog/window/pages/ControlLock.h"
#include "dialog/window/pages/RowMnemonics.h"
#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;
using Place = OfferedAttribute::Place;

namespace {

// Of a value of its user's own the beginning is enough to know it by.
constexpr int kMostLetters = 24;

QString briefly(const QString &value)
{
    return value.size() > kMostLetters ? value.left(kMostLetters - 1) + u'…' : value;
}

} // namespace

AttributeRows::AttributeRows(QFormLayout *form)
    : QObject(form->parentWidget()), m_form(form),
      m_before(form->itemAt(form->rowCount() - 1, QFormLayout::FieldRole)->widget())
{
}

QWidget *AttributeRows::window() const
{
    return m_form->parentWidget()->window();
}

AttributeEditor *AttributeRows::editor(const QString &name) const
{
    for (const auto &editors : {m_front, m_more}) {
        const auto found = std::find_if(editors.cbegin(), editors.cend(),
                                        [&](auto *editor) { return editor->name() == name; });
        if (found != editors.cend())
            return *found;
    }
    return nullptr;
}

void AttributeRows::show(const QList<OfferedAttribute> &offered)
{
    m_offered = offered;
    bool added = false;
    for (const OfferedAttribute &one : offered) {
        const bool isMore = one.place == Place::More;
        if (one.place == Place::BesideCopies)
            continue;
        if (isMore && !m_heading)
            addMore();
        if (!editor(one.name) && (!isMore || showsMore())) {
            int row = -1;
            if (!isMore && m_heading) // before the disclosure
                m_form->getWidgetPosition(m_heading, &row, nullptr);
            addRow(one, row < 0 ? m_form->rowCount() : row);
            added = true;
        }
        if (AttributeEditor *row = editor(one.name)) {
            row->showValue(one.value);
            QWidget *label = m_form->labelForField(row);
            ControlLock::set(row->control(), one.lockedBy, label);
            if (row->lastControl() != row->control())
                ControlLock::set(row->lastControl(), one.lockedBy, label);
            row->setEnabled(one.hasEffect);
            m_form->labelForField(row)->setEnabled(one.hasEffect);
        }
    }
    if (added) {
        orderFocus();
        Q_EMIT fieldsChanged();
    }
    sayWhatIsSet();
}

void AttributeRows::addRow(const OfferedAttribute &offered, int row)
{
    const JobAttribute &attribute = *jobAttribute(offered.name);
    auto *editor = AttributeEditor::create(attribute, m_form->parentWidget());
    QLabel *label = plainLabel({}, m_form->parentWidget());
    const QString title = textOfJobAttribute({attribute.name, {}}).title;
    label->setText(asTitle(withFreeMnemonic(title, QLatin1StringView(attribute.title), window())));
    label->setBuddy(editor->control());
    // Beside the field, not beside what is said below it.
    label->setFixedHeight(editor->control()->sizeHint().height());
    connect(editor, &AttributeEditor::proposed, this, &AttributeRows::proposed);
    connect(editor, &AttributeEditor::heightChanged, this, &AttributeRows::heightChanged);
    m_form->insertRow(row, label, editor);
    (offered.place == Place::More ? m_more : m_front) += editor;
}

void AttributeRows::addMore()
{
    m_heading = new QWidget(m_form->parentWidget());
    m_disclosure = new DisclosureButton(m_heading);
    m_disclosure->setObjectName(u"more"_s);
    QLabel *title = plainLabel(tr("&More"), m_heading);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    m_disclosure->setHeading(title);
    m_set = plainLabel({}, m_heading);
    m_set->setObjectName(u"moreIsSet"_s);
    m_set->setWordWrap(true);
    m_set->setMinimumWidth(1); // a word without an end does not decide how wide the page is
    auto *layout = new QHBoxLayout(m_heading);
    layout->setContentsMargins(0, layout->spacing(), 0, 0); // apart from the rows above
    layout->addWidget(m_disclosure, 0, Qt::AlignTop);
    layout->addWidget(title, 0, Qt::AlignTop);
    layout->addWidget(m_set, 1, Qt::AlignTop);
    m_form->addRow(m_heading);
    keepLabelsInPlace();
    connect(m_disclosure, &DisclosureButton::toggled, this, &AttributeRows::showMore);
}

// Or all fields would move aside when the longer titles come.
void AttributeRows::keepLabelsInPlace()
{
    auto *label = qobject_cast<QLabel *>(m_form->itemAt(0, QFormLayout::LabelRole)->widget());
    int width = 0;
    for (const OfferedAttribute &one : std::as_const(m_offered)) {
        const QString title = asTitle(textOfJobAttribute({one.name, {}}).title);
        if (one.place == Place::More)
            width = qMax(width, label->fontMetrics().horizontalAdvance(title));
    }
    label->setMinimumWidth(width);
    // Beside its field, also words of a language that is written the other way than the window.
    label->setAlignment(QStyle::visualAlignment(label->layoutDirection(), Qt::AlignRight) |
                        Qt::AlignAbsolute | Qt::AlignVCenter);
}

bool AttributeRows::showsMore() const
{
    return m_disclosure && m_disclosure->isChecked();
}

void AttributeRows::showMore(bool shown)
{
    show(QList<OfferedAttribute>(m_offered));
    for (AttributeEditor *editor : std::as_const(m_more))
        m_form->setRowVisible(editor, shown);
    Q_EMIT heightChanged();
}

// What is set behind a closed disclosure is said in front of it.
void AttributeRows::sayWhatIsSet()
{
    if (!m_heading)
        return;
    QStringList set;
    for (const OfferedAttribute &one : std::as_const(m_offered)) {
        const JobAttributeText text = textOfJobAttribute({one.name, one.value});
        if (one.place == Place::More && !one.isUsual)
            set += tr("%1: %2").arg(text.title, briefly(text.value));
    }
    const QString text = showsMore() ? QString() : set.join(tr(", "));
    m_disclosure->setAccessibleName(text.isEmpty() ? tr("More") : tr("More, %1").arg(text));
    if (text == m_set->text())
        return;
    m_set->setText(text);
    Q_EMIT heightChanged();
}

QList<MarkedControl> AttributeRows::fields() const
{
    QList<MarkedControl> fields;
    for (AttributeEditor *editor : m_front + m_more)
        fields += MarkedControl{editor->name(), editor->control(), m_form->labelForField(editor)};
    return fields;
}

QWidget *AttributeRows::disclose(const QString &name)
{
    const auto found =
        std::find_if(m_offered.cbegin(), m_offered.cend(),
                     [&name](const OfferedAttribute &one) { return one.name == name; });
    const bool isMore = found != m_offered.cend() && found->place == Place::More;
    if (isMore && m_disclosure)
        m_disclosure->setChecked(true); // which makes the rows behind it
    AttributeEditor *row = editor(name);
    return row ? row->control() : nullptr;
}

void AttributeRows::showProblem(const QString &name, const QString &problem)
{
    if (AttributeEditor *row = editor(name))
        row->showProblem(problem);
}

bool AttributeRows::finishEditing()
{
    for (const auto &editors : {m_front, m_more}) {
        for (AttributeEditor *editor : editors) {
            if (editor->finishEditing())
                continue;
            if (m_more.contains(editor))
                m_disclosure->setChecked(true);
            editor->lastControl()->setFocus();
            return false;
        }
    }
    return true;
}

// In reading order, whenever the rows were made.
void AttributeRows::orderFocus()
{
    QWidget *former = m_before;
    const auto append = [&](QWidget *first, QWidget *last) {
        QWidget::setTabOrder(former, first);
        if (first != last)
            QWidget::setTabOrder(first, last);
        former = last;
    };
    for (AttributeEditor *editor : std::as_const(m_front))
        append(editor->control(), editor->lastControl());
    if (m_disclosure)
        append(m_disclosure, m_disclosure);
    for (AttributeEditor *editor : std::as_const(m_more))
        append(editor->control(), editor->lastControl());
}

} // namespace corvana
