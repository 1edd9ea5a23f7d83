// A CUPS backend that keeps what it is sent. Its device URI says how it behaves, see
// CaptureDevice.h.
//
// Per run it leaves JOB-DOCUMENT.arguments and .environment (texts that end with a NUL), then
// .part, which becomes .data when all has been read. "reached-JOB-POINT" and "release-POINT" are
// its agreement with the test.

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/prctl.h>
#include <unistd.h>

extern char **environ;

namespace {

constexpr int failed = 1; // CUPS_BACKEND_FAILED

struct Device
{
    std::string folder;
    int pages = 0;
    int exitStatus = 0;
    bool waitsAtStart = false;
    bool waitsAtPages = false;
    bool waitsAtEnd = false;
    std::vector<std::string> reports;
};

[[noreturn]] void die(const std::string &what)
{
    std::fprintf(stderr, "ERROR: capture: %s\n", what.c_str());
    std::exit(failed);
}

std::string decoded(std::string_view text)
{
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == '%' && at + 2 < text.size()) {
            result += static_cast<char>(
                std::strtol(std::string(text.substr(at + 1, 2)).c_str(), nullptr, 16));
            at += 2;
        } else {
            result += text[at];
        }
    }
    return result;
}

Device deviceOf(std::string_view uri)
{
    Device device;
    const std::size_t colon = uri.find(':');
    const std::size_t mark = uri.find('?');
    device.folder = decoded(uri.substr(colon + 1, mark - colon - 1));
    std::string_view rest = mark == uri.npos ? std::string_view() : uri.substr(mark + 1);
    while (!rest.empty()) {
        const std::string_view item = rest.substr(0, rest.find('&'));
        rest.remove_prefix(item.size() == rest.size() ? item.size() : item.size() + 1);
        const std::string_view name = item.substr(0, item.find('='));
        const std::string value = decoded(item.substr(name.size() + 1));
        if (name == "pages")
            device.pages = std::atoi(value.c_str());
        else if (name == "exit")
            device.exitStatus = std::atoi(value.c_str());
        else if (name == "report")
            device.reports.push_back(value);
        else if (name == "wait" && value == "start")
            device.waitsAtStart = true;
        else if (name == "wait" && value == "pages")
            device.waitsAtPages = true;
        else if (name == "wait" && value == "end")
            device.waitsAtEnd = true;
        else
            die("does not know " + std::string(item));
    }
    return device;
}

bool exists(const std::string &path)
{
    return ::access(path.c_str(), F_OK) == 0;
}

void write(int file, const char *bytes, std::size_t size)
{
    while (size > 0) {
        const ssize_t written = ::write(file, bytes, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            die("cannot write");
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
}

/// Readable for the test's own user, whoever the backend runs as.
int created(const std::string &path, int flags = 0)
{
    return ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | flags, 0644);
}

void writeTexts(const std::string &path, char **texts)
{
    // A reader never meets half of it.
    const std::string unfinished = path + "~";
    const int file = created(unfinished);
    if (file < 0)
        die("cannot make " + unfinished);
    for (; *texts; ++texts)
        write(file, *texts, std::string_view(*texts).size() + 1);
    ::close(file);
    std::rename(unfinished.c_str(), path.c_str());
}

/// Tells the test that a point is reached, and returns when it is released.
void waitAt(const Device &device, const std::string &job, const std::string &point)
{
    // Watched before it looks: nothing can come in between unseen.
    const int events = ::inotify_init1(IN_CLOEXEC);
    if (events < 0 || ::inotify_add_watch(events, device.folder.c_str(), IN_CREATE) < 0)
        die("cannot watch " + device.folder);
    ::close(created(device.folder + "/reached-" + job + "-" + point));
    while (!exists(device.folder + "/release-" + point) &&
           !exists(device.folder + "/release-all")) {
        char buffer[4096];
        if (::read(events, buffer, sizeof buffer) < 0 && errno != EINTR)
            die("cannot wait");
    }
    ::close(events);
}

void copy(int from, const std::string &path)
{
    const int to = created(path);
    if (to < 0)
        die("cannot make " + path);
    char buffer[65536];
    for (;;) {
        const ssize_t size = ::read(from, buffer, sizeof buffer);
        if (size < 0 && errno == EINTR)
            continue;
        if (size < 0)
            die("cannot read the document");
        if (size == 0)
            break;
        write(to, buffer, static_cast<std::size_t>(size));
    }
    ::close(to);
}

} // namespace

int main(int argc, char **argv)
{
    // Asked which devices there are: none that could be found.
    if (argc == 1)
        return 0;
    const char *uri = std::getenv("DEVICE_URI");
    if (argc < 6 || !uri)
        die("job, user, title, copies, options and DEVICE_URI are wanted");
    // No job goes on behind the back of a server that was killed.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const Device device = deviceOf(uri);
    const std::string job = argv[1];

    int document = 1;
    const auto name = [&] { return device.folder + "/" + job + "-" + std::to_string(document); };
    while (exists(name() + ".arguments"))
        ++document;
    writeTexts(name() + ".environment", environ);
    writeTexts(name() + ".arguments", argv);

    if (device.waitsAtStart)
        waitAt(device, job, "start");
    const int input = argc > 6 ? ::open(argv[6], O_RDONLY | O_CLOEXEC) : STDIN_FILENO;
    if (input < 0)
        die("cannot open the document");
    copy(input, name() + ".part");
    if (std::rename((name() + ".part").c_str(), (name() + ".data").c_str()) != 0)
        die("cannot keep the document");

    for (const std::string &line : device.reports)
        std::fprintf(stderr, "%s\n", line.c_str());
    for (int page = 1; page <= device.pages; ++page) {
        std::fprintf(stderr, "PAGE: %d %s\nATTR: job-media-progress=%d\n", page, argv[4],
                     100 * page / device.pages);
        if (device.waitsAtPages)
            waitAt(device, job, "page-" + std::to_string(page));
    }
    if (device.waitsAtEnd)
        waitAt(device, job, "end");
    return device.exitStatus;
}
