#pragma once

#include <array>

#include <QList>
#include <QString>

#include "tests/e2e/DialogDriver.h"

namespace corvana::test {

/// What somebody at a desk does with the dialog all day.
enum class DeskAct { Open, SwitchPrinter, Alert, Help, Preset, Documents, Undo, Print };
inline constexpr int kDeskActs = 8;
const char *nameOf(DeskAct act);

/// Does such things in real windows, through their controls, and keeps how long each took. The
/// alerts are answered with OK.
///
/// Errors: each act throws std::runtime_error, with what did not happen.
class DeskDay
{
public:
    /// `folder`: where the jobs go; it is empty after each.
    explicit DeskDay(const QString &folder);

    /// A window with six printers, the largest sample chosen.
    void open();
    /// Chooses another printer in the list, by its name.
    void switchPrinter();
    /// Everything else that can be done in a window that stays open, once.
    void workThrough();
    /// Prints into a file, which is looked at and taken away. The window is gone then.
    void print();

    bool isOpen() const { return m_window != nullptr; }
    void close() { m_window.reset(); }

    /// Processor time of the GUI thread, each act's, measured by the yardstick that was laid beside it
    /// (`yardstickTime`). Units: none
    const QList<double> &times(DeskAct act) const { return m_times[static_cast<size_t>(act)]; }

private:
    void raiseAlert();
    void readHelp();
    void keepPreset();
    void changeDocuments();
    void undo();
    void pickPreset(const QString &text);
    void waitUntilReady(const QString &printer);

    QString m_folder;
    PrintRequest m_request;
    AlertAnswerer m_alerts;
    std::unique_ptr<WindowDriver> m_window;
    int m_next = 0;
    std::array<QList<double>, kDeskActs> m_times;
};

} // namespace corvana::test
