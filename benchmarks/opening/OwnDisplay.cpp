#include "benchmarks/opening/OwnDisplay.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

extern char **environ;

namespace corvana::benchmarks {

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kPatience = 20s;
/// How often the server is asked for the pixel; what is measured is this much too long at most.
constexpr auto kPixelInterval = 200us;
/// The colour of the screen, which no style paints a window with.
constexpr unsigned kScreenColor = 0xff00ff;

template <typename T> using Owned = std::unique_ptr<T, decltype(&std::free)>;

template <typename T> Owned<T> owned(T *value)
{
    return Owned<T>(value, &std::free);
}

/// Errors: -1.
pid_t spawn(const std::vector<std::string> &command, const posix_spawn_file_actions_t *actions)
{
    std::vector<char *> arguments;
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    pid_t child = -1;
    if (posix_spawnp(&child, arguments[0], actions, nullptr, arguments.data(), environ) != 0)
        return -1;
    return child;
}

bool hasEnded(pid_t program)
{
    siginfo_t info{};
    return waitid(P_PID, static_cast<id_t>(program), &info, WEXITED | WNOHANG | WNOWAIT) != 0 ||
           info.si_pid == program;
}

void end(pid_t program)
{
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
}

/// The processor time of all threads of a program that is running.
std::chrono::duration<double> processorTime(pid_t program)
{
    std::chrono::nanoseconds sum{};
    const std::filesystem::path threads = "/proc/" + std::to_string(program) + "/task";
    std::error_code error; // a thread may have gone meanwhile
    for (const auto &thread : std::filesystem::directory_iterator(threads, error)) {
        std::int64_t nanoseconds = 0;
        std::ifstream(thread.path() / "schedstat") >> nanoseconds;
        sum += std::chrono::nanoseconds(nanoseconds);
    }
    return sum;
}

} // namespace

std::unique_ptr<OwnDisplay> OwnDisplay::start()
{
    int numberPipe[2];
    if (pipe2(numberPipe, O_CLOEXEC) != 0)
        return nullptr;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, numberPipe[1], 3);
    posix_spawn_file_actions_addopen(&actions, 2, "/dev/null", O_WRONLY, 0);
    std::unique_ptr<OwnDisplay> display(new OwnDisplay);
    display->m_server = spawn(
        {"Xvfb", "-displayfd", "3", "-screen", "0", "1600x1200x24", "-nolisten", "tcp"}, &actions);
    posix_spawn_file_actions_destroy(&actions);
    close(numberPipe[1]);
    std::string number;
    for (char digit = 0; read(numberPipe[0], &digit, 1) == 1 && digit != '\n';)
        number += digit;
    close(numberPipe[0]);
    display->m_name = ":" + number;
    if (display->m_server < 0 || number.empty() || !display->connect())
        return nullptr;
    return display;
}

OwnDisplay::~OwnDisplay()
{
    if (m_connection)
        xcb_disconnect(m_connection);
    if (m_server > 0) {
        kill(m_server, SIGTERM);
        waitpid(m_server, nullptr, 0);
    }
}

bool OwnDisplay::connect()
{
    m_connection = xcb_connect(m_name.c_str(), nullptr);
    if (xcb_connection_has_error(m_connection))
        return false;
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    const std::uint32_t values[] = {kScreenColor, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
    xcb_change_window_attributes(m_connection, m_root, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK,
                                 values);
    xcb_clear_area(m_connection, 0, m_root, 0, 0, 0, 0);
    xcb_flush(m_connection);
    return true;
}

std::optional<Opening> OwnDisplay::open(const std::vector<std::string> &command)
{
    const Clock::time_point start = Clock::now();
    const pid_t program = spawn(command, nullptr);
    if (program < 0)
        return std::nullopt;
    std::optional<Opening> opening;
    const std::optional<Window> window = waitForWindow(program);
    if (window && waitForPaint(program, *window))
        opening = {Clock::now() - start, processorTime(program)};
    end(program);
    if (window)
        waitUntilGone(*window);
    return opening;
}

std::optional<OwnDisplay::Window> OwnDisplay::waitForWindow(pid_t program)
{
    const Clock::time_point last = Clock::now() + kPatience;
    while (Clock::now() < last && !hasEnded(program)) {
        const auto event = owned(xcb_poll_for_event(m_connection));
        if (!event) {
            pollfd connection{xcb_get_file_descriptor(m_connection), POLLIN, 0};
            poll(&connection, 1, 100);
            continue;
        }
        if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY)
            continue;
        Window window{reinterpret_cast<xcb_map_notify_event_t *>(event.get())->window};
        const auto place = owned(xcb_get_geometry_reply(
            m_connection, xcb_get_geometry(m_connection, window.id), nullptr));
        if (!place)
            continue;
        window.x = static_cast<short>(place->x + place->width / 2);
        window.y = static_cast<short>(place->y + place->height / 2);
        return window;
    }
    return std::nullopt;
}

// A window without a background, as those of toolkits are, shows the screen until it is painted.
// Its first paint comes in one piece, so that one pixel speaks for all.
bool OwnDisplay::waitForPaint(pid_t program, const Window &window)
{
    const Clock::time_point last = Clock::now() + kPatience;
    while (pixelAt(window.x, window.y) == kScreenColor) {
        if (Clock::now() > last || hasEnded(program))
            return false;
        std::this_thread::sleep_for(kPixelInterval);
    }
    return true;
}

void OwnDisplay::waitUntilGone(const Window &window)
{
    while (const auto event = owned(xcb_wait_for_event(m_connection))) {
        if ((event->response_type & 0x7f) == XCB_DESTROY_NOTIFY &&
            reinterpret_cast<xcb_destroy_notify_event_t *>(event.get())->window == window.id)
            return;
    }
}

unsigned OwnDisplay::pixelAt(short x, short y)
{
    const auto image = owned(xcb_get_image_reply(
        m_connection,
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_root, x, y, 1, 1, 0xffffff),
        nullptr));
    if (!image || xcb_get_image_data_length(image.get()) < 4)
        return kScreenColor;
    const std::uint8_t *pixel = xcb_get_image_data(image.get());
    return static_cast<unsigned>(pixel[2] << 16 | pixel[1] << 8 | pixel[0]);
}

} // namespace corvana::benchmarks
