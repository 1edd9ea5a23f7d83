#pragma once

#include "platform/toolkit/Alert.h"

namespace corvana {

/// Shows alerts as windows of the dialog.
class WindowAlertPresenter : public AlertPresenter
{
public:
    AlertAnswer runModal(const Alert &alert, QWidget *parent) override;
};

/// Writes alerts to standard error and goes on as their default button would: for runs that nobody
/// watches.
class TerminalAlertPresenter : public AlertPresenter
{
public:
    AlertAnswer runModal(const Alert &alert, QWidget *parent) override;
};

} // namespace corvana
