#pragma once

#include <memory>
#include <utility>

#include <QList>
#include <QMap>
#include <QString>
#include <QWidget>

#include "dialog/app/CommandLine.h"
#include "dialog/window/PrintWindow.h"

class QTabWidget;

namespace corvana::test {

/// How long a window may take to show something on a busy machine. Units: milliseconds.
inline constexpr int kWindowPatience = 20000;

/// What the program would be asked for with this command line. Errors: throws std::runtime_error.
PrintRequest requestFor(const CommandLine &line);
/// A command line for the sample document, with the panels of the build.
CommandLine sampleDocument();

/// The print window, shown, and worked through its own controls. Every test that has a whole window
/// finds its controls here, so that a control that moves or is renamed is mended in one place.
///
/// Settings and caches that outlive a window are its caller's affair (XDG_CONFIG_HOME,
/// XDG_CACHE_HOME).
class WindowDriver
{
public:
    enum class Activation { No, Yes };

    /// Returns when the window is on the screen, and with `Yes` when it has the focus, too. Panels
    /// and options come after that. Errors: throws std::runtime_error.
    explicit WindowDriver(const PrintRequest &request, Activation activation = Activation::No);
    virtual ~WindowDriver();
    Q_DISABLE_COPY_MOVE(WindowDriver)

    PrintWindow &dialog() { return *m_dialog; }
    const PrintWindow &dialog() const { return *m_dialog; }
    /// A child of the window; null when there is none of that name and kind.
    template <typename Child> Child *child(const QString &name) const
    {
        return m_dialog->findChild<Child *>(name);
    }

    QTabWidget *pages() const;
    void showPage(int page);
    void showLastPage();
    /// The views of the panels that are up, in the order of their pages.
    QList<QWidget *> panelViews() const;
    /// Waits for the panel of a page and answers its view; null when none comes.
    QWidget *waitForPanel(int page) const;
    bool waitForPanels(int count) const;

    /// What the message bar says; null when it is not there.
    QString message() const;
    /// The lines of the page "Summary", title and value. It stays the current page.
    QList<std::pair<QString, QString>> summaryLines();

    /// Whether the button of this name can be pressed.
    bool canPress(const QString &button) const;
    /// Presses it as a user does. False when it is not there, hidden or disabled.
    bool press(const QString &button);
    bool pressPrint();

protected:
    /// For drivers that have to be ready before their window is. They destroy it in their own
    /// destructor, while they can still answer it.
    WindowDriver() = default;
    void open(const PrintRequest &request, Activation activation = Activation::No);
    void destroyDialog() { m_dialog.reset(); }

private:
    std::unique_ptr<PrintWindow> m_dialog;
};

} // namespace corvana::test
