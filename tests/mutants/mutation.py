"""Changes of chance to a piece of input: what a broken disk, a careless program or somebody who means
harm makes of it. The same random numbers make the same changes."""
import re
import struct
import zlib

# Texts that have broken programs before: formats, markup, terminals, directions, encodings, numbers.
HOSTILE = [
    b"%1 %2 %s %n", b"\x1b[31m", b"<b>&amp;</b>", "\u202e\u2066".encode(), b"\xff\xfe\xc3", b"\0", b"\x07\x08",
    b"../../../etc/passwd", b"$(id)", b"`id`", b"'\"\\", b"{}[]()<>", b"=", b":", b"*", b"/", b"\r", b"\n",
    b"99999999999999999999", b"-1", b"0", b"1e999", b"nan", b"0x7fffffff", b"2147483648", b"\xef\xbb\xbf",
]
NUMBERS = [b"0", b"-1", b"1", b"2", b"255", b"65536", b"2147483647", b"-2147483648", b"4294967296",
           b"99999999999999999999", b"0.0000001", b"1e30", b"nan", b"Custom.1"]


def _place(random, data):
    return random.randrange(len(data) + 1)


def _span(random, data, most=400):
    begin = _place(random, data)
    return begin, min(len(data), begin + random.randint(1, most))


def _flip(random, data, _others):
    if not data:
        return data
    changed = bytearray(data)
    for _ in range(random.choice((1, 1, 4, 16))):
        changed[random.randrange(len(changed))] ^= 1 << random.randrange(8)
    return bytes(changed)


def _cut_off(random, data, _others):
    return data[:_place(random, data)]


def _leave_out(random, data, _others):
    begin, end = _span(random, data)
    return data[:begin] + data[end:]


def _repeat(random, data, _others):
    begin, end = _span(random, data, 200)
    return data[:end] + data[begin:end] * random.choice((1, 2, 20, 300)) + data[end:]


def _insert(random, data, _others):
    at = _place(random, data)
    return data[:at] + random.choice(HOSTILE) + data[at:]


def _splice(random, data, others):
    other = random.choice(others)
    begin, end = _span(random, other, 2000)
    at = _place(random, data)
    return data[:at] + other[begin:end] + data[at + random.choice((0, end - begin)):]


def _other_number(random, data, _others):
    found = list(re.finditer(rb"[0-9]+", data))
    if not found:
        return data
    number = random.choice(found)
    return data[:number.start()] + random.choice(NUMBERS) + data[number.end():]


def _other_word(random, data, _others):
    words = list(re.finditer(rb"[A-Za-z_]{3,}", data))
    if len(words) < 2:
        return data
    word, other = random.choice(words), random.choice(words)
    return data[:word.start()] + other.group() + data[word.end():]


def _long_word(random, data, _others):
    words = list(re.finditer(rb"[A-Za-z_]{3,}", data))
    if not words:
        return data
    word = random.choice(words)
    return data[:word.end()] + word.group() * random.choice((3, 10, 100, 3000)) + data[word.end():]


def _other_integer(random, data, _others):
    """As formats of bytes have them, of either order."""
    at = _place(random, data)
    number = random.choice((0, 1, -1, 0x7FFFFFFF, 0x10000, 100_000))
    return data[:at] + struct.pack(random.choice("<>") + "i", number) + data[at + 4:]


def resized_png(random, data):
    """A picture that says another size of itself, with a checksum that fits."""
    sizes = (0, 1, 5000, 30_000, 100_000, 0x7FFFFFFF)
    header = data[12:16] + struct.pack(">II", random.choice(sizes), random.choice(sizes)) + data[24:29]
    return data[:12] + header + struct.pack(">I", zlib.crc32(header)) + data[33:]


def _lines(change):
    def changed(random, data, others):
        lines = data.split(b"\n")
        change(random, lines, others)
        return b"\n".join(lines)
    return changed


@_lines
def _without_line(random, lines, _others):
    del lines[random.randrange(len(lines))]


@_lines
def _same_line_again(random, lines, _others):
    line = random.choice(lines)
    at = random.randrange(len(lines) + 1)
    lines[at:at] = [line] * random.choice((1, 1, 2, 50))


@_lines
def _moved_line(random, lines, _others):
    line = lines.pop(random.randrange(len(lines)))
    lines.insert(random.randrange(len(lines) + 1), line)


@_lines
def _line_of_another(random, lines, others):
    lines.insert(random.randrange(len(lines) + 1), random.choice(random.choice(others).split(b"\n")))


@_lines
def _shuffled_block(random, lines, _others):
    begin = random.randrange(len(lines))
    block = lines[begin:begin + random.randint(2, 12)]
    random.shuffle(block)
    lines[begin:begin + len(block)] = block


BYTES = [_flip, _flip, _cut_off, _leave_out, _repeat, _insert, _splice, _other_number, _other_number,
         _other_integer, _other_integer]
LINES = [_without_line, _without_line, _same_line_again, _moved_line, _line_of_another, _shuffled_block,
         _other_word, _other_word, _other_number, _other_number, _long_word, _insert, _flip]


def mutate_bytes(random, data, others=()):
    """A few changes that know nothing of what they change."""
    return _mutate(random, data, others, BYTES)


def mutate_text(random, data, others=()):
    """A few changes of lines, words and numbers; rarely of bytes."""
    return _mutate(random, data, others, BYTES if random.random() < 0.15 else LINES)


def _mutate(random, data, others, changes):
    for _ in range(random.choice((1, 1, 2, 3, 6))):
        data = random.choice(changes)(random, data, list(others) or [data])
    return data
