#pragma once

#include <functional>
#include <optional>

#include <QWidget>

#include "dialog/window/chooser/PrinterIcon.h"
#include "dialog/window/chooser/PrinterTexts.h"

class QLabel;
class QPushButton;

namespace corvana {

class ElidedLabel;

/// What stands below the chosen printer: where it is and what it is doing, or what is wrong, with a
/// button to try again. Plain text of two lines at most, cut off where it has no room; the whole is
/// in the tool tip.
class PrinterStatusLine : public QWidget
{
    Q_OBJECT

public:
    explicit PrinterStatusLine(QWidget *parent = nullptr);

    void setPrinter(const Printer &printer, Presence presence = Presence::Listed);
    /// Shows a problem instead of a printer, and says it to assistive technology. Without `retry`
    /// there is no button; `buttonText` is for another one than "Try Again". The problem stays
    /// until the next call.
    void setProblem(const QString &text, const std::function<void()> &retry = {},
                    const QString &buttonText = {});
    /// Shows nothing; the line keeps its place.
    void clear();

    QString text() const;

    /// From now on the printer's picture is the theme's.
    void takeIconFromTheme();

protected:
    void changeEvent(QEvent *event) override;

private:
    void updateIcon();
    void showLine(const QIcon &icon, const QString &text, const QString &head,
                  const std::function<void()> &retry);

    QLabel *m_icon;
    ElidedLabel *m_text;
    QPushButton *m_retryButton;
    QIcon m_shownIcon;
    std::optional<PrinterLook> m_look; ///< of the printer; nothing when no printer is shown
    IconSource m_source = IconSource::Own;
    std::function<void()> m_retry;
};

} // namespace corvana
