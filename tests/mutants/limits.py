"""Runs the program within limits, and says what it took."""
import os
import re
import resource
import signal
import subprocess
import time

SANITIZED = "ASAN_OPTIONS" in os.environ  # which takes several times as long, and as much memory
CPU_SECONDS = 10 * (8 if SANITIZED else 1)  # of the program and of everything that it waited for
WALL_SECONDS = 90 * (3 if SANITIZED else 1)  # of a run that does something, beside whatever else is done here
IDLE_SECONDS = 10        # a run that takes no processor for so long waits for something that will not come
IDLE_SHARE = 0.01        # of a processor: who only looks at the clock from time to time waits as well
LOOKS = 100              # every 50 ms, whether what was told to end has ended
MEMORY = 500 * 1024 * (4 if SANITIZED else 1)  # KiB, of the program alone
SAID = 256 * 1024        # bytes that a run may say

# What no user is to read: errors of the program's own that it goes on after.
OWN_ERRORS = re.compile(rb"AddressSanitizer|LeakSanitizer|runtime error:|QString::arg:|QObject::|ASSERT|"
                        rb"terminate called|QPainter::|QWidget::|QLayout:|QThread:|QSocketNotifier|pure virtual")
# A terminal obeys these; lines end and tabulators are wanted.
CONTROLS = re.compile("[\x00-\x08\x0b-\x1f\x7f-\x9f\u202a-\u202e\u2066-\u2069]")


def bound_whole_run():
    """For this process and whatever it starts: a helper that wants all memory does not get it. A sanitizer
    needs terabytes of addresses."""
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    if not SANITIZED:
        resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))


class End:
    """How a run ended."""

    def __init__(self):
        self.status = None   # the exit status; below zero the signal; None when it had to be ended
        self.out = self.err = b""
        self.cpu = self.wall = 0.0
        self.memory = 0      # KiB, of the largest process among the program and its helpers
        self.own_memory = 0  # KiB, of the program alone, where it was looked at
        self.left = False    # whether a process was left behind
        self.hung = False    # whether it was ended because it waited only

    def problems(self, statuses):
        """What is never right, whatever the program was given. `statuses`: with which it may end."""
        if self.status is None:
            yield (f"no end after {self.wall:.0f} seconds ({self.cpu:.1f} of the processor"
                   f"{', none of it lately' if self.hung else ''})")
        elif self.status < 0:
            yield f"ended by the signal {signal.Signals(-self.status).name}"
        elif self.status not in statuses:
            yield f"the exit status {self.status}"
        if self.cpu > CPU_SECONDS:
            yield f"{self.cpu:.1f} seconds of the processor"
        if self.own_memory > MEMORY:
            yield f"{self.own_memory // 1024} MiB of memory"
        if self.left:
            yield "a process was left behind"
        if len(self.out) > SAID or len(self.err) > SAID:
            yield f"{len(self.out) + len(self.err)} bytes were said"
        if self.status and not (self.err + self.out).strip():
            yield "nothing was said about the failure"
        for said in (self.out, self.err):
            if error := OWN_ERRORS.search(said):
                line = said[said.rfind(b"\n", 0, error.start()) + 1:].split(b"\n")[0]
                yield f"an error of its own: {line[:200].decode(errors='replace')}"
            if control := CONTROLS.search(said.decode(errors="replace")):
                yield f"a control character was said: {control.group()!r}"
            if b"\xff" in said or "\ufffd" in said.decode(errors="replace") and b"\xef\xbf\xbd" not in said:
                yield "what was said is no UTF-8"


class Idleness:
    """Notices that a run only waits. A run is all processes of its session: what one of them waits for may be
    what another one does."""

    LOOK = 0.5  # seconds from one look to the next

    def __init__(self, session):
        self._session = session
        self._ticks = -1
        self._since = self._looked = time.monotonic()

    def lasts_too_long(self):
        now = time.monotonic()
        if now - self._looked < min(self.LOOK, IDLE_SECONDS / 4):
            return False
        self._looked = now
        ticks, waits = _work_of(self._session)
        # Of a helper that nobody waited for the time is gone with it: less is work as well.
        enough = IDLE_SECONDS * IDLE_SHARE * os.sysconf("SC_CLK_TCK")
        if not waits or abs(ticks - self._ticks) > enough:
            self._ticks, self._since = ticks, now
        return now - self._since > IDLE_SECONDS


def _processes_of(session):
    """The processes of a session that have not ended: their numbers, and what the system says of each from its
    state on."""
    found = []
    for entry in os.scandir("/proc"):
        if not entry.name.isdigit():
            continue
        try:
            with open(f"/proc/{entry.name}/stat", "rb") as stat:
                fields = stat.read().rpartition(b")")[2].split()
        except OSError:
            continue  # it has ended
        if int(fields[3]) == session and fields[0] not in (b"Z", b"X"):
            found.append((int(entry.name), fields))
    return found


def _work_of(session):
    """What the processes of a session, and those that ended before them, have had of the processor, in ticks;
    and whether all of them wait. One that could go on and gets no processor, or waits for a disk, is not idle."""
    processes = [fields for _, fields in _processes_of(session)]
    return (sum(int(field) for fields in processes for field in fields[11:15]),
            all(fields[0] not in (b"R", b"D") for fields in processes))


def _hears_sigterm(pid):
    """Whether a process does something of its own about it. On a busy machine that takes longer than anybody
    would look at a window."""
    try:
        with open(f"/proc/{pid}/status", encoding="ascii", errors="replace") as status:
            taken = next((line for line in status if line.startswith("SigCgt:")), "SigCgt: 0")
    except OSError:
        return False  # it has ended
    return bool(int(taken.split()[1], 16) >> (signal.SIGTERM - 1) & 1)


def run(command, environment, folder, looks_at_memory=False, end_after=None):
    """Runs a command in a folder, where it leaves what was said as "out" and "err". `end_after`: so many
    seconds after it hears that, it is asked to end, as a desktop does."""
    end = End()
    with open(folder / "out", "wb") as out, open(folder / "err", "wb") as err:
        begin = time.monotonic()
        process = subprocess.Popen(command, env=environment, cwd=folder / "work", stdin=subprocess.DEVNULL,
                                   stdout=out, stderr=err, start_new_session=True)
        pause = 0.002
        idleness = Idleness(process.pid)
        ends_at = None
        while True:
            pid, status, usage = os.wait4(process.pid, os.WNOHANG)
            if pid:
                break
            end.wall = time.monotonic() - begin
            if looks_at_memory:
                end.own_memory = max(end.own_memory, _peak(process.pid))
            if end_after is not None and ends_at is None and _hears_sigterm(process.pid):
                ends_at = end.wall + end_after
            if ends_at is not None and end.wall > ends_at:
                os.kill(process.pid, signal.SIGTERM)
                end_after = ends_at = None
            end.hung = idleness.lasts_too_long()
            if end.hung or end.wall > WALL_SECONDS:
                _end_session(process.pid)
                _, status, usage = os.wait4(process.pid, 0)
                status = None
                break
            time.sleep(pause)
            pause = 0.002 if looks_at_memory else min(pause * 1.3, 0.03)
        process.returncode = 0  # it has been waited for
        end.wall = time.monotonic() - begin
    end.status = None if status is None else os.waitstatus_to_exitcode(status)
    end.cpu = usage.ru_utime + usage.ru_stime
    end.memory = usage.ru_maxrss
    end.left = _is_left(process.pid)
    end.out, end.err = ((folder / name).read_bytes() for name in ("out", "err"))
    return end


def _peak(pid):
    try:
        with open(f"/proc/{pid}/status", encoding="ascii", errors="replace") as status:
            found = re.search(r"VmHWM:\s*(\d+)", status.read())
    except OSError:
        return 0
    return int(found.group(1)) if found else 0


def _end_session(session):
    """Helpers may be groups of their own. False when there was nobody."""
    processes = [pid for pid, _ in _processes_of(session)]
    for pid in processes:
        try:
            os.kill(pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
    return bool(processes)


def _is_left(session):
    """Helpers that were told to end may need a moment."""
    for _ in range(LOOKS):
        if not _processes_of(session):
            return False
        time.sleep(0.05)
    return _end_session(session)
