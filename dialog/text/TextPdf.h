#pragma once

#include <vector>

#include <QByteArray>
#include <QHash>
#include <QIODevice>
#include <QList>

#include "dialog/text/TextFlow.h"
#include "dialog/text/TextFont.h"
#include "dialog/text/TextGlyphs.h"

namespace corvana {

/// Writes pages of fixed-width text as a PDF, one after the other, and its fonts at the end.
///
/// The fonts are made here, of the outlines of the glyphs that the text has (Type 3). QPdfWriter
/// was tried: it takes 7 ms for a page of plain text, where this takes well under one, and says of
/// an ideograph that it is the radical of the same shape, so that nobody finds it in the PDF. The
/// text filter of CUPS has one font for everything, says nothing of characters at all, and takes
/// its fonts from a file of the system's.
///
/// Thread: any, but only the one that made it.
class TextPdf
{
public:
    TextPdf(QIODevice &file, const TextFormat &format, TextGlyphs &glyphs);

    /// False when the file cannot be written.
    bool addPage(const TextPage &page);
    /// Writes what a PDF ends with.
    bool finish();
    int pages() const { return static_cast<int>(m_pages.size()); }

private:
    // A font has 256 places. The first holds Latin-1 under its own codes.
    struct Place
    {
        int font = 0;
        uchar code = 0;
    };

    Place placeOf(char32_t character, int cells, bool bold);
    QByteArray contentOf(const TextPage &page);
    QByteArray contentOfLine(const TextLine &line, double baseline);
    QByteArray contentOfMarks(const TextLine &line, double baseline);
    QByteArray header();
    double baselineOf(int line) const;
    QByteArray textMatrix(double x, double y) const;
    int writeFont(const TextFont &font);

    int reserve();
    void beginObject(int object);
    void writeObject(int object, const QByteArray &content);
    void writeStream(int object, const QByteArray &content);
    void write(const QByteArray &bytes);

    QIODevice &m_file;
    TextFormat m_format;
    TextGlyphs &m_glyphs;
    std::vector<qint64> m_places; // of the objects in the file, by their numbers
    std::vector<int> m_pages;     // their objects
    std::vector<TextFont> m_fonts;
    QHash<quint64, Place> m_known;
    QByteArray m_date; // for the header
    qint64 m_written = 0;
    bool m_isWhole = true;
};

} // namespace corvana
