#include "dialog/window/CredentialsDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

CredentialsDialog::CredentialsDialog(const CredentialsQuestion &question, QWidget *parent)
    : QDialog(parent), m_user(new QLineEdit(question.user, this)), m_password(new QLineEdit(this))
{
    setWindowTitle(tr("Log In to Print"));
    setWindowModality(Qt::WindowModal);
    const QString server = question.server.text();
    QLabel *text = plainLabel(
        question.forDevice
            ? tr("The printer wants to know who prints. User and password are sent to it through "
                 "the print server “%1”, and are forgotten when the print dialog closes.")
                  .arg(server)
            : tr("The print server “%1” wants to know who prints. User and password are forgotten "
                 "when the print dialog closes.")
                  .arg(server),
        this);
    text->setWordWrap(true);
    m_user->setObjectName(u"user"_s);
    m_password->setObjectName(u"password"_s);
    m_password->setEchoMode(QLineEdit::Password);
    auto *form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->addRow(tr("&User:"), m_user);
    form->addRow(tr("Pass&word:"), m_password);
    auto *buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Log In"));
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addLayout(form);
    if (!question.encrypted) {
        QLabel *warning =
            plainLabel(tr("The connection is not encrypted: others on the network may "
                          "read the password."),
                       this);
        warning->setObjectName(u"notEncrypted"_s);
        warning->setWordWrap(true);
        layout->addWidget(warning);
    }
    layout->addWidget(buttons);
    setMinimumWidth(24 * fontMetrics().height());
    (m_user->text().isEmpty() ? m_user : m_password)->setFocus();
}

Credentials CredentialsDialog::credentials() const
{
    return {m_user->text(), m_password->text()};
}

} // namespace corvana
