#include "dialog/window/HelpWindow.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace corvana {

using namespace Qt::StringLiterals;

HelpWindow::HelpWindow(QWidget *parent) : QDialog(parent), m_browser(new QTextBrowser(this))
{
    m_browser->setObjectName(u"help"_s);
    m_browser->setOpenLinks(false);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *back = buttons->addButton(tr("Back"), QDialogButtonBox::ActionRole);
    back->setObjectName(u"back"_s);
    back->setEnabled(false);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
    connect(back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole), &QPushButton::clicked,
            this, &QDialog::close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_browser);
    layout->addWidget(buttons);
    const int em = fontMetrics().height();
    resize(QSize(32 * em, 34 * em).boundedTo(screen()->availableSize()));
}

void HelpWindow::open(const HelpPage &page)
{
    setWindowTitle(page.title);
    m_browser->setAccessibleName(page.title); // its text is what it says, not what it is
    m_book = QFileInfo(page.file).canonicalPath();
    QUrl url = QUrl::fromLocalFile(page.file);
    url.setFragment(page.anchor);
    const bool isOpenedAnew = !isVisible();
    m_browser->setSource(url);
    // Back leads to what was read since then, and not through all that was read in a day.
    if (isOpenedAnew)
        m_browser->clearHistory();
    show();
    raise();
    activateWindow();
    m_browser->setFocus();
}

// Help never leaves its book, and a link that leads nowhere leaves the page as it is.
void HelpWindow::follow(const QUrl &link)
{
    const QUrl target = m_browser->source().resolved(link);
    const QFileInfo page(target.toLocalFile());
    if (target.isLocalFile() && page.isFile() && page.canonicalFilePath().startsWith(m_book + u'/'))
        m_browser->setSource(target);
}

} // namespace corvana
