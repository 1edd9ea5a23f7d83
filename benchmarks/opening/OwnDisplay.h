#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

struct xcb_connection_t;

namespace corvana::benchmarks {

/// What a program needed until its first window was there.
struct Opening
{
    std::chrono::duration<double> wall{};      ///< from the start of the process
    std::chrono::duration<double> processor{}; ///< what all of its threads used until then
};

/// An X server without a screen and without a window manager, for programs that are timed from
/// outside: they say nothing of themselves, so that any program can be compared with any other.
class OwnDisplay
{
public:
    /// Errors: null without Xvfb.
    static std::unique_ptr<OwnDisplay> start();
    ~OwnDisplay();
    OwnDisplay(const OwnDisplay &) = delete;
    OwnDisplay &operator=(const OwnDisplay &) = delete;

    /// The value for the variable DISPLAY.
    const std::string &name() const { return m_name; }

    /// Starts `command`, waits until its first window is mapped and painted, and ends it.
    /// Errors: nothing when it ends by itself or shows nothing for 20 seconds.
    std::optional<Opening> open(const std::vector<std::string> &command);

private:
    struct Window
    {
        unsigned id = 0;
        short x = 0; ///< of the middle, as y
        short y = 0;
    };

    OwnDisplay() = default;
    bool connect();
    std::optional<Window> waitForWindow(pid_t program);
    bool waitForPaint(pid_t program, const Window &window);
    void waitUntilGone(const Window &window);
    unsigned pixelAt(short x, short y);

    pid_t m_server = -1;
    std::string m_name;
    xcb_connection_t *m_connection = nullptr;
    unsigned m_root = 0;
};

} // namespace corvana::benchmarks
