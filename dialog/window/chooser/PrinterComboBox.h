#pragma once

#include <functional>
#include <optional>

#include "dialog/window/chooser/PrinterModel.h"
#include "dialog/window/chooser/PrinterPopup.h"
#include "platform/toolkit/NarrowComboBox.h"

namespace corvana {

/// A combo box for one printer out of thousands. Closed it looks like any other; it opens as any
/// other does, or by typing, into a list with a search field.
///
/// A pick of the user's emits QComboBox::activated(), the same printer picked again included.
/// connectControlAction() tells it from what the program does.
class PrinterComboBox : public NarrowComboBox
{
    Q_OBJECT

public:
    explicit PrinterComboBox(QWidget *parent = nullptr);

    /// Takes another list over, by its difference, while the popup may be open. The chosen printer
    /// stays chosen, also when the list lacks it: it is then shown as no longer available
    /// (isCurrentPrinterGone()) until it is listed again, or until the owner or the user chooses
    /// another one; that is also when its row disappears. Nothing is chosen by itself.
    void setPrinters(const QList<Printer> &printers);

    /// Chooses a printer without any action. Errors: false, and nothing changes, when it is not
    /// listed.
    bool setCurrentPrinter(const PrinterId &id);
    /// Nothing when no printer is chosen.
    std::optional<Printer> currentPrinter() const;
    bool isCurrentPrinterGone() const;

    /// A line below the list, such as "Looking for printers…", with a button when `buttonText` is
    /// not empty; the popup stays open when it is pressed. An empty text takes the line away.
    void setFooter(const QString &text, const QString &buttonText = {},
                   const std::function<void()> &action = {});

    /// All rows, also of printers that are gone. Ownership: the combo box's.
    PrinterModel *printers() const { return m_printers; }

    void showPopup() override;
    void hidePopup() override;

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    void userPicked(int row);

    PrinterModel *m_printers;
    PrinterPopup *m_popup = nullptr; // from the first time it is shown
    PrinterFooter m_footer;
};

} // namespace corvana
