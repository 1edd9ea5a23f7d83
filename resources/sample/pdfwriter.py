"""A small PDF writer: pages of vector drawing and text in the standard fonts.

The same input gives the same bytes on every machine: nothing is compressed, no date and no
random identifier is written, numbers are rounded to a thousandth of a point.
"""

# The standard fonts by the short names that content streams use.
FONTS = {
    "H": "Helvetica",
    "HB": "Helvetica-Bold",
    "T": "Times-Roman",
    "TI": "Times-Italic",
    "C": "Courier",
}


def number(value):
    """A PDF number; never in exponent form, never "-0"."""
    text = f"{value:.3f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


class Page:
    """The content of one page. Lengths are points, the origin is the lower left corner."""

    def __init__(self):
        self._operators = []
        self.shadings = []

    def content(self):
        return "\n".join(self._operators) + "\n"

    def fill_color(self, rgb):
        self._emit("rg", *rgb)

    def line_color(self, rgb):
        self._emit("RG", *rgb)

    def line_width(self, width):
        self._emit("w", width)

    def round_caps(self, on):
        self._emit("J", 1 if on else 0)

    def rectangle(self, x, y, width, height, color):
        self.fill_color(color)
        self._emit("re", x, y, width, height)
        self._emit("f")

    def polygon(self, points, color):
        """Filled, closed."""
        self.fill_color(color)
        self._emit("m", *points[0])
        for point in points[1:]:
            self._emit("l", *point)
        self._emit("f")

    def line(self, x1, y1, x2, y2, width, color=(0, 0, 0)):
        self.line_color(color)
        self.line_width(width)
        self._emit("m", x1, y1)
        self._emit("l", x2, y2)
        self._emit("S")

    def curve(self, start, control1, control2, end, width, color):
        """A stroked Bezier curve."""
        self.line_color(color)
        self.line_width(width)
        self._emit("m", *start)
        self._emit("c", *control1, *control2, *end)
        self._emit("S")

    def circle(self, x, y, radius, width, color=(0, 0, 0)):
        """A stroked circle, of four Bezier curves."""
        k = radius * 0.5523
        self.line_color(color)
        self.line_width(width)
        self._emit("m", x + radius, y)
        self._emit("c", x + radius, y + k, x + k, y + radius, x, y + radius)
        self._emit("c", x - k, y + radius, x - radius, y + k, x - radius, y)
        self._emit("c", x - radius, y - k, x - k, y - radius, x, y - radius)
        self._emit("c", x + k, y - radius, x + radius, y - k, x + radius, y)
        self._emit("s")

    def text(self, x, y, font, size, string, color=(0.13, 0.15, 0.2)):
        escaped = string.replace("\\", r"\\").replace("(", r"\(").replace(")", r"\)")
        self.fill_color(color)
        self._operators.append(
            f"BT /{font} {number(size)} Tf {number(x)} {number(y)} Td ({escaped}) Tj ET"
        )

    def gradient(self, x, y, width, height, start, end):
        """A rectangle that changes from one color at its left to another at its right."""
        self.shadings.append((x, x + width, start, end))
        self._emit("q")
        self._emit("re", x, y, width, height)
        self._operators.append(f"W n /S{len(self.shadings) - 1} sh Q")

    def _emit(self, operator, *operands):
        self._operators.append(" ".join([*map(number, operands), operator]))


def write_pdf(title, width, height, pages):
    """The bytes of a PDF file whose pages all have one size."""
    objects = []

    def add(body):
        objects.append(body)
        return len(objects)

    catalog = add(None)
    tree = add(None)
    info = add(f"<< /Title ({title}) >>")
    fonts = " ".join(f"/{key} {add(_font(name))} 0 R" for key, name in FONTS.items())
    kids = []
    for page in pages:
        shadings = " ".join(
            f"/S{index} {add(_shading(*shading))} 0 R"
            for index, shading in enumerate(page.shadings)
        )
        content = page.content()
        stream = add(f"<< /Length {len(content)} >>\nstream\n{content}endstream")
        kids.append(
            add(
                f"<< /Type /Page /Parent {tree} 0 R "
                f"/MediaBox [0 0 {number(width)} {number(height)}] "
                f"/Contents {stream} 0 R "
                f"/Resources << /Font << {fonts} >> /Shading << {shadings} >> >> >>"
            )
        )
    objects[catalog - 1] = f"<< /Type /Catalog /Pages {tree} 0 R >>"
    references = " ".join(f"{kid} 0 R" for kid in kids)
    objects[tree - 1] = f"<< /Type /Pages /Kids [{references}] /Count {len(kids)} >>"

    out = "%PDF-1.4\n"
    offsets = []
    for index, body in enumerate(objects, start=1):
        offsets.append(len(out))
        out += f"{index} 0 obj\n{body}\nendobj\n"
    table = len(out)
    out += f"xref\n0 {len(objects) + 1}\n0000000000 65535 f \n"
    out += "".join(f"{offset:010d} 00000 n \n" for offset in offsets)
    out += f"trailer\n<< /Size {len(objects) + 1} /Root {catalog} 0 R /Info {info} 0 R >>\n"
    out += f"startxref\n{table}\n%%EOF\n"
    return out.encode("ascii")


def _font(name):
    return f"<< /Type /Font /Subtype /Type1 /BaseFont /{name} /Encoding /WinAnsiEncoding >>"


def _shading(x1, x2, start, end):
    colors = [" ".join(map(number, color)) for color in (start, end)]
    return (
        "<< /ShadingType 2 /ColorSpace /DeviceRGB "
        f"/Coords [{number(x1)} 0 {number(x2)} 0] "
        f"/Function << /FunctionType 2 /Domain [0 1] /C0 [{colors[0]}] /C1 [{colors[1]}] /N 1 >> >>"
    )
