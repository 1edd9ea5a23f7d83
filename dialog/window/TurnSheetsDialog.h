#pragma once

#include <functional>

#include <QDialog>

#include "dialog/task/ByHand.h"

namespace corvana {

/// Asks to put the sheets back whose first sides are printed. Accepted: they are in the tray.
class TurnSheetsDialog : public QDialog
{
    Q_OBJECT

public:
    /// `mayLeave` is asked before the other sides are left unprinted.
    TurnSheetsDialog(const TurnQuestion &question, std::function<bool()> mayLeave,
                     QWidget *parent = nullptr);

    void reject() override;

private:
    void addTexts(const TurnQuestion &question);
    void addButtons();

    std::function<bool()> m_mayLeave;
};

} // namespace corvana
