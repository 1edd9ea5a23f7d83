#pragma once

#include <QDialog>

#include "dialog/task/TaskFace.h"

class QLineEdit;

namespace corvana {

/// Asks for the password of a document.
class DocumentPasswordDialog : public QDialog
{
    Q_OBJECT

public:
    explicit DocumentPasswordDialog(const DocumentPasswordQuestion &question,
                                    QWidget *parent = nullptr);

    QString password() const;

private:
    QLineEdit *m_password;
};

} // namespace corvana
