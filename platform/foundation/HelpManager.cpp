#include "platform/foundation/HelpManager.h"

#include <QFileInfo>
#include <QLoggingCategory>

#include "platform/foundation/Bundle.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcHelp, "corvana.foundation.help", QtWarningMsg)

HelpManager &HelpManager::sharedHelpManager()
{
    static HelpManager manager;
    return manager;
}

bool HelpManager::registerBooksInBundle(const Bundle &bundle, const QString &path)
{
    // A help book is laid out as a bundle is.
    QString error;
    const std::shared_ptr<Bundle> book = Bundle::open(path, &error);
    const QString title = book ? book->infoString(kCFBundleHelpBookNameKey) : QString();
    if (title.isEmpty()) {
        qCWarning(lcHelp).noquote() << "no help book:" << path << error;
        return false;
    }
    const QStringList localizations = bundle.localizations();
    // Help in another language is better than none.
    const QStringList wanted = Bundle::preferredLocalizations(localizations) + localizations;
    for (const QString &localization : wanted) {
        const QFileInfo page(u"%1/%2/index.html"_s.arg(path, localization));
        if (page.isFile() && page.size() > 0) {
            m_pages[title] = page.canonicalFilePath();
            return true;
        }
    }
    qCWarning(lcHelp).noquote() << "the help book has no text:" << path;
    return false;
}

bool HelpManager::openHelpAnchor_inBook(const QString &anchor, const QString &book)
{
    const auto page = m_pages.find(book);
    if (page == m_pages.end() || !m_viewer) {
        qCWarning(lcHelp) << "the help book cannot be opened:" << book;
        return false;
    }
    m_viewer({book, page->second, anchor});
    return true;
}

} // namespace corvana
