#include "dialog/window/DocumentPasswordDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/foundation/ForeignText.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Units: characters of a name that is shown.
constexpr int kLongestName = 80;

QString shortened(const QString &title)
{
    const QString name = terminalLine(title);
    const int half = kLongestName / 2;
    return name.size() <= kLongestName ? name : name.left(half) + u'…' + name.right(half);
}

} // namespace

DocumentPasswordDialog::DocumentPasswordDialog(const DocumentPasswordQuestion &question,
                                               QWidget *parent)
    : QDialog(parent), m_password(new QLineEdit(this))
{
    setWindowTitle(tr("Protected Document"));
    setWindowModality(Qt::WindowModal);
    const QString name = shortened(question.title);
    QLabel *text = plainLabel(
        question.forOwner
            ? tr("“%1” does not allow printing. With its owner's password it can be printed.")
                  .arg(name)
            : tr("“%1” is protected: enter its password. The password is forgotten when the print "
                 "dialog closes.")
                  .arg(name),
        this);
    text->setObjectName(u"question"_s);
    text->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    if (question.isRetry) {
        QLabel *wrong = plainLabel(tr("That is not the password. Try again."), this);
        wrong->setObjectName(u"wrong"_s);
        wrong->setWordWrap(true);
        layout->addWidget(wrong);
    }
    m_password->setObjectName(u"password"_s);
    m_password->setEchoMode(QLineEdit::Password);
    auto *form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->addRow(tr("&Password:"), m_password);
    layout->addLayout(form);
    auto *buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    QPushButton *open = buttons->button(QDialogButtonBox::Ok);
    open->setText(tr("Open"));
    open->setEnabled(false);
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    connect(m_password, &QLineEdit::textChanged, open,
            [open](const QString &typed) { open->setEnabled(!typed.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    setMinimumWidth(24 * fontMetrics().height());
    m_password->setFocus();
}

QString DocumentPasswordDialog::password() const
{
    return m_password->text();
}

} // namespace corvana
