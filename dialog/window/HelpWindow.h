#pragma once

#include <QDialog>

#include "platform/foundation/HelpManager.h"

class QTextBrowser;
class QUrl;

namespace corvana {

/// Shows the pages of help books, beside the dialog and without blocking it.
class HelpWindow : public QDialog
{
    Q_OBJECT

public:
    explicit HelpWindow(QWidget *parent = nullptr);

    void open(const HelpPage &page);

private:
    void follow(const QUrl &link);

    QTextBrowser *m_browser;
    QString m_book; // the folder of the page that was opened
};

} // namespace corvana
