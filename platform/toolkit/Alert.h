#pragma once

#include <QString>
#include <QStringList>

#include "platform/PlatformExport.h"

class QWidget;

namespace corvana {

/// A modal alert as a panel words it.
struct Alert
{
    enum class Style { Informational, Warning };

    Style style = Style::Informational;
    QString messageText;     ///< the title line
    QString informativeText; ///< what to know or to do
    /// Labels in the order of the alert; the first is the default button. Never empty.
    QStringList buttons;
    /// Shows a check box with which the user asks not to see this alert again.
    bool showsSuppressionButton = false;
    /// An illustration shown in the alert, or null. Ownership: stays with the panel.
    QWidget *accessoryView = nullptr;
};

/// How an alert was answered.
struct AlertAnswer
{
    int button = 0;          ///< index into Alert::buttons
    bool suppressed = false; ///< the suppression box was on
};

/// Shows alerts and waits for their answers. The host supplies it, so that a window, a terminal and
/// a test each answer in their own way.
class CORVANA_PLATFORM_EXPORT AlertPresenter
{
public:
    AlertPresenter() = default;
    AlertPresenter(const AlertPresenter &) = delete;
    AlertPresenter &operator=(const AlertPresenter &) = delete;
    virtual ~AlertPresenter();

    /// Runs the alert until it is answered. `parent` is the panel's view, or null.
    virtual AlertAnswer runModal(const Alert &alert, QWidget *parent) = 0;
};

} // namespace corvana
