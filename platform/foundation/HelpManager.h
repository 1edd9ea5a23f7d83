#pragma once

#include <functional>
#include <map>
#include <memory>

#include <QString>

#include "platform/PlatformExport.h"

namespace corvana {

class Bundle;

/// One place in a help book: what a help viewer opens.
struct HelpPage
{
    QString title;  ///< of the book
    QString file;   ///< an HTML file
    QString anchor; ///< in that file

    bool operator==(const HelpPage &) const = default;
};

/// Registers help books and opens them in the viewer that the host supplies.
///
/// A help book is a folder `NAME.help` with `info.json` ("CFBundleHelpBookName": the book's title)
/// and a folder for each localisation with an `index.html`.
/// Thread: GUI thread only.
class CORVANA_PLATFORM_EXPORT HelpManager
{
public:
    static HelpManager &sharedHelpManager();

    /// Registers the help book at `path` for a bundle, under its title, in that of the bundle's
    /// localisations which suits the user best among those that the book has.
    /// Errors: false when the book lacks its title, or every page or its text; logged.
    bool registerBooksInBundle(const Bundle &bundle, const QString &path);

    /// Opens a place of a registered book.
    /// Errors: false when there is no such book or no viewer; logged.
    bool openHelpAnchor_inBook(const QString &anchor, const QString &book);

    /// What opens a page; the host sets it. Null takes it back.
    using Viewer = std::function<void(const HelpPage &)>;
    void setViewer(Viewer viewer) { m_viewer = std::move(viewer); }

private:
    std::map<QString, QString> m_pages; // title to HTML file
    Viewer m_viewer;
};

} // namespace corvana
