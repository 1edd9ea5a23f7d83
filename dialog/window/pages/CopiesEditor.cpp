#include "dialog/window/pages/CopiesEditor.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

#include "dialog/session/JobAttributes.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Whatever is longer than anybody's number of copies is not let in.
constexpr int kMostThatFits = 999999;

QString rangeText(int most)
{
    if (most == 1)
        return QLocale().toString(1);
    AllowedValues allowed;
    allowed.range = AllowedValues::Range{1, double(most)};
    return allowedText(allowed);
}

} // namespace

CopiesField::CopiesField(QWidget *parent) : QSpinBox(parent), m_most(kMostCopies)
{
    setRange(0, kMostThatFits);
    setValue(1);
}

void CopiesField::setMost(int most)
{
    m_most = most;
}

// No number at all is refused as well, rather than be replaced by one that nobody sees any more.
void CopiesField::fixup(QString &text) const
{
    if (text.isEmpty())
        text = locale().toString(0);
    else
        QSpinBox::fixup(text);
}

void CopiesField::stepBy(int steps)
{
    setValue(qBound(1, value() + steps, m_most));
    selectAll();
}

QAbstractSpinBox::StepEnabled CopiesField::stepEnabled() const
{
    StepEnabled enabled = StepNone;
    if (isReadOnly())
        return enabled;
    if (value() < m_most)
        enabled |= StepUpEnabled;
    if (value() > 1)
        enabled |= StepDownEnabled;
    return enabled;
}

CopiesEditor::CopiesEditor(QWidget *parent)
    : QWidget(parent), m_field(new CopiesField(this)), m_row(new QHBoxLayout)
{
    m_field->setObjectName(u"copies"_s);
    ignoreWheelWithoutFocus(m_field);
    setFocusProxy(m_field);
    m_row->addWidget(m_field); // a number needs no more width than its digits
    m_row->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(m_row);
    connect(m_field, &CopiesField::valueChanged, this, &CopiesEditor::take);
}

void CopiesEditor::addBeside(QWidget *control)
{
    m_row->insertSpacing(1, m_row->spacing());
    m_row->insertWidget(2, control);
    setTabOrder(m_field, control);
}

void CopiesEditor::setCopies(int copies)
{
    const int shown = qMin(copies, m_field->most());
    if (shown != m_copies || m_field->isAllowed())
        m_field->setValue(shown);
}

void CopiesEditor::setMost(int most)
{
    if (most == m_field->most())
        return;
    const bool wasAllowed = m_field->isAllowed();
    m_field->setMost(most);
    if (wasAllowed)
        m_field->setValue(qMin(m_copies, most));
    take(); // what was too many may be none too many for another printer
}

bool CopiesEditor::finishEditing()
{
    m_field->interpretText();
    if (m_field->isAllowed())
        return true;
    m_field->setFocus();
    m_field->selectAll();
    return false;
}

void CopiesEditor::take()
{
    if (!m_field->isAllowed())
        return showProblem(tr("“%1” is not allowed. Allowed: %2.")
                               .arg(m_field->text(), rangeText(m_field->most())));
    showProblem({});
    if (m_field->value() == m_copies)
        return;
    m_copies = m_field->value();
    Q_EMIT changed(m_copies);
}

void CopiesEditor::showProblem(const QString &problem)
{
    if (m_note ? m_note->text() == problem : problem.isEmpty())
        return;
    if (!m_note) {
        m_note = plainLabel({}, this);
        m_note->setObjectName(u"copiesNote"_s);
        m_note->setWordWrap(true);
        layout()->addWidget(m_note);
    }
    m_note->setText(problem);
    m_note->setVisible(!problem.isEmpty());
    if (!problem.isEmpty())
        announce(this, problem);
    Q_EMIT heightChanged();
}

} // namespace corvana
