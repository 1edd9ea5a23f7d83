#include "dialog/window/TurnSheetsDialog.h"

#include <utility>

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include "dialog/window/TurnPicture.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

QLabel *wrapped(const QString &text, QWidget *parent)
{
    QLabel *label = plainLabel(text, parent);
    label->setWordWrap(true);
    return label;
}

} // namespace

TurnSheetsDialog::TurnSheetsDialog(const TurnQuestion &question, std::function<bool()> mayLeave,
                                   QWidget *parent)
    : QDialog(parent), m_mayLeave(std::move(mayLeave))
{
    setWindowTitle(tr("Two-Sided by Hand"));
    setWindowModality(Qt::WindowModal);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(layout->spacing() * 2);
    addTexts(question);
    addButtons();
    setMinimumWidth(30 * fontMetrics().height());
}

void TurnSheetsDialog::addTexts(const TurnQuestion &question)
{
    auto *whole = qobject_cast<QVBoxLayout *>(layout());
    QLabel *heading = wrapped(tr("Put the sheets back to print their other sides"), this);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    whole->addWidget(heading);
    QLabel *done = wrapped(question.done, this);
    done->setObjectName(u"done"_s);
    whole->addWidget(done);
    if (!question.problem.isEmpty()) {
        const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
        auto *icon = new QLabel(this);
        icon->setPixmap(
            style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(size, devicePixelRatioF()));
        QLabel *problem = wrapped(question.problem, this);
        problem->setObjectName(u"problem"_s);
        auto *row = new QHBoxLayout;
        row->addWidget(icon, 0, Qt::AlignTop);
        row->addWidget(problem, 1);
        whole->addLayout(row);
    }
    whole->addWidget(new TurnPicture(question, this));
    auto *steps = new QGridLayout;
    steps->setColumnStretch(1, 1);
    for (int i = 0; i < question.steps.size(); ++i) {
        QLabel *step = wrapped(question.steps.at(i), this);
        step->setObjectName(u"step%1"_s.arg(i + 1));
        steps->addWidget(plainLabel(u"%1."_s.arg(i + 1), this), i, 0, Qt::AlignTop);
        steps->addWidget(step, i, 1);
    }
    whole->addLayout(steps);
}

void TurnSheetsDialog::addButtons()
{
    auto *buttons = new QDialogButtonBox(Qt::Horizontal, this);
    QPushButton *print =
        buttons->addButton(tr("&Print the Other Sides"), QDialogButtonBox::AcceptRole);
    print->setObjectName(u"printOtherSides"_s);
    print->setDefault(true);
    QPushButton *cancel = buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(u"cancelOtherSides"_s);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TurnSheetsDialog::reject);
    layout()->addItem(new QSpacerItem(0, layout()->spacing() / 2));
    layout()->addWidget(buttons);
    print->setFocus();
}

void TurnSheetsDialog::reject()
{
    if (m_mayLeave())
        QDialog::reject();
}

} // namespace corvana
