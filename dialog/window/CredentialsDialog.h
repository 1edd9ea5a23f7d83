#pragma once

#include <QDialog>

#include "dialog/server/CredentialStore.h"

class QLineEdit;

namespace corvana {

/// Asks for the user and the password of a print server or a printer, in one question.
class CredentialsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CredentialsDialog(const CredentialsQuestion &question, QWidget *parent = nullptr);

    Credentials credentials() const;

private:
    QLineEdit *m_user;
    QLineEdit *m_password;
};

} // namespace corvana
