#include "dialog/app/HelpWindow.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace corvana {

HelpWindow::HelpWindow(QWidget *parent) : QDialog(parent), m_browser(new QTextBrowser(this))
{
    m_browser->setObjectName(QStringLiteral("help"));
    m_browser->setOpenLinks(true);
    m_browser->setOpenExternalLinks(false); // help never leaves the help books
    auto *buttons = new QDialogButtonBox(this);
    connect(buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole), &QPushButton::clicked,
            this, &QDialog::close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_browser);
    layout->addWidget(buttons);
    const int em = fontMetrics().height();
    resize(32 * em, 34 * em);
}

void HelpWindow::open(const HelpPage &page)
{
    setWindowTitle(page.title);
    QUrl url = QUrl::fromLocalFile(page.file);
    url.setFragment(page.anchor);
    m_browser->setSource(url);
    show();
    raise();
    activateWindow();
    m_browser->setFocus();
}

} // namespace corvana
