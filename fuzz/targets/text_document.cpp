#include <QBuffer>

#include "dialog/text/TextDecoder.h"
#include "dialog/text/TextEncoding.h"
#include "dialog/text/TextFlow.h"
#include "fuzz/support/Target.h"
#include "platform/foundation/ForeignText.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kMostBytes = 20000;

void requirePage(const TextPage &page, const TextFormat &format)
{
    require(static_cast<int>(page.size()) <= format.linesOnPage(), "a page has room for its lines");
    for (const TextLine &line : page) {
        require(static_cast<int>(line.size()) <= format.cellsInLine(), "a line fits on its page");
        for (const TextCell &cell : line)
            require(cell.character == 0 || cell.character >= 0x20,
                    "no control character is printed",
                    QString::number(static_cast<uint>(cell.character)));
    }
}

void requirePages(const std::u32string &text, const TextFormat &format, bool signsAreWide)
{
    int pages = 0;
    TextFlow flow(format, signsAreWide, [&](const TextPage &page) {
        requirePage(page, format);
        return ++pages < 200;
    });
    if (flow.write(text))
        flow.finish();
    require(pages > 0, "a text has a page");
}

/// Input: a text in any encoding. One is found that the system knows, the same each time; the
/// characters are the same however the bytes are cut; and they lie on pages that have room for
/// them, as at least one page, without a control character.
void run(const QByteArray &input)
{
    const QByteArray bytes = input.left(kMostBytes);
    looksLikeText(bytes);
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    const TextEncoding encoding = recognizeEncoding(buffer, u"ja"_s);
    buffer.seek(0);
    require(recognizeEncoding(buffer, u"ja"_s) == encoding, "an encoding is found again");
    for (const QString &language : {QString(), u"ko"_s, u"zh_TW"_s}) {
        const QByteArray name = recognizeEncoding(buffer, language).name;
        require(TextDecoder(name).isValid(), "an encoding is one that the system knows",
                QString::fromLatin1(name));
    }
    require(encoding.marker >= 0 && encoding.marker <= bytes.size(),
            "a byte order mark lies in the text");
    TextDecoder whole(encoding.name);
    require(whole.isValid(), "an encoding is one that the system knows",
            QString::fromLatin1(encoding.name));
    const QByteArray body = bytes.mid(encoding.marker);
    const std::u32string text = whole.decode(body, true);
    TextDecoder pieces(encoding.name);
    std::u32string cut;
    for (qsizetype at = 0; at < body.size(); at += 3)
        cut += pieces.decode(body.mid(at, 3));
    cut += pieces.decode({}, true);
    require(cut == text, "a text is the same however it is cut",
            u"%1 characters, %2 in pieces"_s.arg(text.size()).arg(cut.size()));
    TextFormat format;
    format.page = {595, 842};
    requirePages(text, format, encoding.signsAreWide);
    format.columns = 2;
    format.wrap = false;
    requirePages(text, format, !encoding.signsAreWide);
}

const Target target("text_document", run);

} // namespace

} // namespace corvana::fuzz
