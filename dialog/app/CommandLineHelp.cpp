#include "dialog/app/CommandLineHelp.h"

#include <algorithm>

#include <QCoreApplication>
#include <QTextBoundaryFinder>

#include "dialog/app/CommandLineOptions.h"
#include "dialog/terminal/ExitStatus.h"
#include "dialog/text/CharacterCells.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// One less than terminals usually have: some begin a new line when the last column is written.
constexpr int kColumns = 79;
constexpr int kIndent = 2;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

bool isIdeographOrKana(char32_t character)
{
    // Hangul is as wide, but its words are written with blanks between them.
    return cellsOf(character) == 2 && QChar::script(character) != QChar::Script_Hangul;
}

// Where a boundary that Unicode's rules for lines allow breaks one here. They would also break
// options at their hyphens and paths at their slashes.
bool breaksAt(const QString &text, qsizetype position)
{
    const QChar before = text.at(position - 1);
    // A dash that stands for a stream belongs to what is said of it.
    if (before == u' ')
        return !QStringView(text).left(position).endsWith(u"- ") ||
               (position > 2 && text.at(position - 3).isLetterOrNumber());
    return isIdeographOrKana(before.isLowSurrogate() && position > 1
                                 ? QChar::surrogateToUcs4(text.at(position - 2), before)
                                 : before.unicode()) ||
           isIdeographOrKana(QStringView(text).mid(position, 2).toUcs4().value(0));
}

// The pieces of a text that stay whole, each with the blanks behind it.
QStringList unbreakablePieces(const QString &text)
{
    QStringList pieces;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end > 0; end = finder.toNextBoundary()) {
        if (end < text.size() && !breaksAt(text, end))
            continue;
        pieces += text.mid(start, end - start);
        start = end;
    }
    return pieces;
}

QString withoutBlanksBehind(QString text)
{
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

QString namesOf(const QCommandLineOption &option)
{
    QStringList names;
    const QStringList all = option.names();
    for (const QString &name : all)
        names += (name.size() == 1 ? u"-"_s : u"--"_s) + name;
    const QString text = names.join(u", "_s);
    return option.valueName().isEmpty() ? text : text + u" <"_s + option.valueName() + u'>';
}

// A row of two columns, of which the right one begins at `right`.
QString row(const QString &name, const QString &text, int right)
{
    const int gap = std::max(right - kIndent - columnsOf(name), 1);
    return QString(kIndent, u' ') + name + QString(gap, u' ') +
           wrappedText(text, kColumns - right, right) + u'\n';
}

} // namespace

int columnsOf(const QString &text)
{
    int columns = 0;
    const QList<uint> characters = text.toUcs4();
    for (const uint character : characters)
        columns += cellsOf(character);
    return columns;
}

QString wrappedText(const QString &text, int columns, int indent)
{
    QString lines;
    QString line;
    const QStringList pieces = unbreakablePieces(text);
    for (const QString &piece : pieces) {
        if (!line.isEmpty() && columnsOf(withoutBlanksBehind(line + piece)) > columns) {
            lines += withoutBlanksBehind(line) + u'\n' + QString(indent, u' ');
            line.clear();
        }
        line += piece;
    }
    return lines + withoutBlanksBehind(line);
}

QString commandLineHelp(const CommandLineOptions &options)
{
    const QString file = u"FILE"_s;
    const QList<QCommandLineOption> all = options.all();
    int longest = 0;
    for (const QCommandLineOption &option : all)
        longest = std::max(longest, columnsOf(namesOf(option)));
    const int right = kIndent + longest + 2;

    QString help = wrappedText(Texts::tr("Usage: %1").arg(u"corvana-print [OPTION]... [FILE]..."_s),
                               kColumns, 0) +
                   u'\n' +
                   wrappedText(Texts::tr("Prints a document with the settings of its printer, in a "
                                         "dialog or without one."),
                               kColumns, 0) +
                   u"\n\n"_s + Texts::tr("Options:") + u'\n';
    for (const QCommandLineOption &option : all)
        help += row(namesOf(option), option.description(), right);
    help += u'\n' + Texts::tr("Arguments:") + u'\n' +
            row(file,
                Texts::tr("The document: PDF, PostScript, text, PNG or JPEG; - is standard input. "
                          "Several are one job."),
                right);
    help += u'\n' + Texts::tr("Exit status:") + u'\n';
    const QList<ExitStatusMeaning> statuses = exitStatusMeanings();
    for (const ExitStatusMeaning &one : statuses)
        help += row(QString::number(int(one.status)), one.meaning, 7);
    return help + QString(kIndent, u' ') +
           wrappedText(Texts::tr("128 and a signal's number: ended by that signal"),
                       kColumns - kIndent, kIndent) +
           u'\n';
}

} // namespace corvana
