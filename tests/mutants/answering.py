"""A print server for one run: it answers each request with what a real one answered to the same, mutated
where the case says so. It listens on a free port of 127.0.0.1 and ends with the run."""
import http.server
import random
import re
import socketserver
import struct
import threading

import seeds
from mutation import mutate_bytes, mutate_text

# Where the recorded answers name their server; of the same length as any port that is free here.
PORT = b"40632"
_UNKNOWN = bytes.fromhex("020005010000000103")  # an operation that is not supported
_NAMES = {0x0002: "print-job", 0x0004: "validate-job", 0x0005: "create-job", 0x0006: "send-document",
          0x0008: "cancel-job", 0x0009: "get-job-attributes", 0x000A: "get-jobs", 0x000B: "get-printer-attributes",
          0x4001: "get-default", 0x4002: "get-printers"}


def name_of(path, body):
    """Of a request: the operation, with the queue where that matters."""
    if len(body) < 8 or not body:
        return path.rsplit("/", 1)[-1]  # the file of a PPD
    operation = struct.unpack(">H", body[2:4])[0]
    name = _NAMES.get(operation, f"operation-{operation:04x}")
    if name == "get-printer-attributes":
        queue = re.search(rb"/printers/([a-z]+)", body)
        name += "-" + (queue.group(1).decode() if queue else "none")
    return name


class Handler(http.server.BaseHTTPRequestHandler):
    """Reads whole requests, also in chunks. `answer` makes the bytes that go back."""

    protocol_version = "HTTP/1.1"
    timeout = 30

    def log_message(self, *_):
        pass

    def do_GET(self):
        self.take(b"")

    def do_POST(self):
        if self.headers.get("Transfer-Encoding", "").lower() == "chunked":
            body = b""
            while size := int(self.rfile.readline() or b"0", 16):
                body += self.rfile.read(size)
                self.rfile.readline()
            self.rfile.readline()
        else:
            body = self.rfile.read(int(self.headers.get("Content-Length", 0)))
        self.take(body)

    def take(self, body):
        answer, hangs_up = self.server.answer(self, body)
        if answer is None:
            self.rfile.read(1)  # until the client leaves
            hangs_up = True
        else:
            self.wfile.write(answer)
        self.close_connection = self.close_connection or hangs_up


class Server(socketserver.ThreadingTCPServer):
    daemon_threads = True
    block_on_close = False
    allow_reuse_address = True

    def __init__(self, port=0):
        super().__init__(("127.0.0.1", port), Handler)
        self.port = self.server_address[1]

    def start(self):
        threading.Thread(target=self.serve_forever, kwargs={"poll_interval": 0.02}, daemon=True).start()

    def stop(self):
        self.shutdown()
        self.server_close()

    def handle_error(self, *_):
        pass  # a client may leave whenever it wants


def http_answer(content, kind, status="200 OK"):
    return (f"HTTP/1.1 {status}\r\nContent-Type: {kind}\r\nContent-Length: {len(content)}\r\n\r\n").encode() + content


class MutatingServer(Server):
    """`harm` maps the name of a request to what is done to its answers; others are as recorded."""

    def __init__(self, key, harm, ppd):
        super().__init__()
        self.key = key
        self.harm = harm
        self.ppd = ppd
        self.requests = []  # (name, body)
        self.lock = threading.Lock()

    def answer(self, handler, body):
        name = name_of(handler.path, body)
        with self.lock:
            count = sum(1 for known, _ in self.requests if known == name)
            self.requests.append((name, body))
        chance = random.Random(f"{self.key} {name} {count}")
        if name == "plain.ppd" and name not in self.harm:
            return http_answer(b"", "text/html", "404 Not Found"), False
        if name.endswith(".ppd"):
            content, kind = self.ppd, "application/vnd.cups-ppd"
        else:
            recorded = seeds.read("tests/mutants/seeds/answers/*.ipp")
            content = recorded.get(name + ".ipp", _UNKNOWN)
            content = content[:4] + body[4:8] + content[8:]
            content, kind = content.replace(PORT, b"%d" % self.port), "application/ipp"
        harm = self.harm.get(name)
        return harm(chance, content, kind) if harm else (http_answer(content, kind), False)

    def got(self, keyword, choice):
        """Whether a job was made with that option."""
        attribute = b"".join(struct.pack(">H", len(text)) + text
                             for text in (keyword.encode("latin-1"), choice.encode("latin-1")))
        return any(attribute in body for name, body in self.requests if name in ("create-job", "print-job"))

    def documents(self):
        """How many documents arrived with something in them."""
        return sum(1 for name, body in self.requests
                   if name in ("send-document", "print-job") and len(body) > 300)


# What can be done to an answer: each gives the bytes, and whether the connection ends behind them.

def _content(chance, content, kind):
    return http_answer(mutate_bytes(chance, content, seeds.texts("tests/mutants/seeds/answers/*.ipp")), kind), False


def _values(chance, content, kind):
    """Other values of the same length in their places, so that the message itself stays one."""
    changed = bytearray(content)
    words = list(re.finditer(rb"[a-z0-9-]{4,}", content))
    for _ in range(chance.choice((1, 2, 8))):
        if chance.random() < 0.5 and words:
            word, other = chance.choice(words), chance.choice(words)
            length = min(len(word.group()), len(other.group()))
            changed[word.start():word.start() + length] = other.group()[:length]
        else:
            at = chance.randrange(8, len(changed) - 4)
            if changed[at - 2:at] == b"\0\x04":  # a number follows
                changed[at:at + 4] = struct.pack(">i", chance.choice((0, -1, 1, 2147483647, 65536)))
            else:
                changed[at] = chance.randrange(256)
    return http_answer(bytes(changed), kind), False


def _head(chance, content, kind):
    whole = http_answer(content, kind)
    head = whole[:-len(content)] if content else whole
    return mutate_text(chance, head, seeds.texts("fuzz/corpus/http_answer/*.http")) + content, chance.random() < 0.5


def _whole(chance, content, kind):
    return mutate_bytes(chance, http_answer(content, kind), seeds.texts("fuzz/corpus/http_answer/*.http")), True


def _other_status(chance, content, kind):
    status = chance.choice(["400 Bad Request", "401 Unauthorized", "403 Forbidden", "404 Not Found", "302 Found",
                            "426 Upgrade Required", "500 Oops", "503 Busy", "100 Continue", "999 \x1b[31m", "200"])
    return http_answer(chance.choice((b"", content)), kind, status), chance.random() < 0.5


def _ipp_status(chance, content, kind):
    status = chance.choice((0x0400, 0x0401, 0x0403, 0x0404, 0x0406, 0x040A, 0x040B, 0x0503, 0x0507, 0x0508, 0xFFFF))
    return http_answer(content[:2] + struct.pack(">H", status) + content[4:], kind), False


def _cut_off(chance, content, kind):
    whole = http_answer(content, kind)
    return whole[:chance.randrange(len(whole))], True


def _other_answer(chance, _content, kind):
    return http_answer(chance.choice(seeds.texts("tests/mutants/seeds/answers/*.ipp")), kind), False


def _seed_answer(chance, _content, _kind):
    return chance.choice(seeds.texts("fuzz/corpus/http_answer/*.http")), True


def _capabilities(chance, _content, kind):
    capabilities = chance.choice(seeds.texts("fuzz/corpus/ipp_capabilities/*.ipp"))
    return http_answer(mutate_bytes(chance, capabilities), kind), False


def _in_chunks(chance, content, kind):
    answer = f"HTTP/1.1 200 OK\r\nContent-Type: {kind}\r\nTransfer-Encoding: chunked\r\n\r\n".encode()
    while content:
        size = chance.choice((1, 7, 100, 4000))
        piece, content = content[:size], content[size:]
        said = len(piece) if chance.random() < 0.97 else chance.choice((0, 1, 0x7FFFFFFF, 0xFFFFFFFFFFFFFFFF))
        answer += b"%x\r\n" % said + piece + b"\r\n"
    return answer + b"0\r\n\r\n", chance.random() < 0.2


def _silence(_chance, _content, _kind):
    return None, True


def _much(chance, content, kind):
    """An answer in which one attribute, one group or any piece stands very often."""
    attributes = [found.start() for found in re.finditer(rb"[\x21-\x4a]\0[\x04-\x30][a-z-]{4,}", content)]
    begin = chance.choice(attributes or [8])
    end = chance.choice([at for at in attributes if at > begin] or [len(content) - 1])
    piece = chance.choice((content[begin:end], content[begin:end], b"\x04", content[8:-1]))
    times = min(chance.choice((100, 10_000, 300_000)), 8_000_000 // len(piece) + 1)
    return http_answer(content[:end] + piece * times + content[end:], kind), False


HARM = [_much, _silence, _content, _content, _values, _values, _values, _head, _whole, _other_status, _ipp_status, _ipp_status, _cut_off,
        _other_answer, _seed_answer, _capabilities, _in_chunks]
REQUESTS = ["get-printers", "get-printers", "get-default", "get-printer-attributes-lobby",
            "get-printer-attributes-lobby", "get-printer-attributes-plain", "lobby.ppd", "plain.ppd", "create-job",
            "send-document", "get-job-attributes", "get-job-attributes", "operation-0016", "operation-001b"]
