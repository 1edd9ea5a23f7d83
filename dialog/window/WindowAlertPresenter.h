#pragma once

#include "platform/toolkit/Alert.h"

namespace corvana {

/// Shows alerts as windows of the dialog.
class WindowAlertPresenter : public AlertPresenter
{
public:
    AlertAnswer runModal(const Alert &alert, QWidget *parent) override;
};

} // namespace corvana
