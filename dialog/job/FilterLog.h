#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

namespace corvana {

/// What the programs of a filter chain say on their standard error, a line at a time. A document
/// that is a program, as PostScript is, may say anything there, without end and without a line's
/// end: only what is shown in the end is kept. Units: bytes.
class FilterLog
{
public:
    /// What is longer of a line is left out.
    static constexpr qsizetype kLongestLine = 4096;

    /// Forgets everything. `program` is what is started next.
    void begin(const QString &program);
    /// Answers the lines that are whole now; a line may come in pieces.
    QByteArrayList add(const QByteArray &said);
    /// Why the program failed, in its own words and without their prefix: what its filters said
    /// last but that one of them has stopped, else what it said first itself, since the rest only
    /// follows from that. Empty when nothing was said.
    QString error() const;

private:
    void take(const QByteArray &line, QString *ofFilters, QString *own) const;

    QByteArray m_ownPrefix;
    QByteArray m_line; // that is not whole yet
    QString m_ofFilters;
    QString m_own;
};

} // namespace corvana
