#include "tests/mass/MassRun.h"

#include <algorithm>
#include <stdexcept>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "dialog/session/OutputOrder.h"
#include "dialog/session/PpdFile.h"
#include "tests/support/TestPaths.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {

// Which programs a PPD may start here is a matter of its own; these PPDs are tried for their
// options.
QByteArray withoutFilters(const QByteArray &ppd)
{
    QList<QByteArray> lines = ppd.split('\n');
    lines.removeIf([](const QByteArray &line) {
        return line.startsWith("*cupsFilter") || line.startsWith("*cupsPreFilter");
    });
    return lines.join('\n');
}

// Nobody who prints a document sees these, or they follow another option.
bool isForJobs(const PpdTextOption &option)
{
    return !option.isInstallable && option.keyword != "PageRegion" && option.choices.size() > 1;
}

QString argumentOf(const PpdTextChoice &choice)
{
    return QString::fromLatin1(choice.first + '=' + choice.second);
}

// Where sheets are stacked face up, CUPS' filters turn their order round once too often. That these
// are the words for it is tested with a printer's eyes elsewhere.
QStringList orderArguments(const QString &path, const QList<PpdTextChoice> &choices)
{
    QString error;
    const PpdFile ppd = openPpdFile(path, &error);
    if (!ppd)
        return {};
    QList<JobOption> options;
    if (const ppd_choice_t *bin = ppdMarkedChoice(ppd.get(), u"OutputBin"_s))
        options += JobOption{u"OutputBin"_s, ppdKeyword(bin->choice)};
    for (const PpdTextChoice &choice : choices)
        options += JobOption{QString::fromLatin1(choice.first), QString::fromLatin1(choice.second)};
    if (!isTurnedRoundOnTheWay(ppd.get(), options))
        return {};
    return {u"-o"_s, u"outputorder="_s + withOrderForFilters(options, ppd.get()).constLast().value};
}

QString firstDifference(const QByteArray &data, const QByteArray &other)
{
    const QByteArrayList lines = data.split('\n');
    const QByteArrayList others = other.split('\n');
    for (qsizetype i = 0; i < std::max(lines.size(), others.size()); ++i) {
        if (lines.value(i) != others.value(i))
            return u"line %1: %2 / %3"_s.arg(i + 1).arg(
                QString::fromLatin1(lines.value(i).left(120)),
                QString::fromLatin1(others.value(i).left(120)));
    }
    return {};
}

// Whether what was said names the choices that a line of the PPD excludes: "A=b: this cannot be
// combined with C=d, E=f."
bool namesOpponents(const QString &said, const PpdText &text)
{
    static const QRegularExpression word(u"([!-<>-~]+)=([!-~]+)"_s);
    QList<PpdTextChoice> named;
    auto found = word.globalMatch(said);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        QByteArray choice = match.captured(2).toLatin1();
        while (choice.endsWith('.') || choice.endsWith(',') || choice.endsWith(':'))
            choice.chop(1);
        named += {match.captured(1).toLatin1(), choice};
    }
    return text.excludes(named);
}

// By a program of CUPS, which knows nothing of ours.
bool isReadable(const QString &ppd)
{
    constexpr int kNotConforming = 4; // to the letter of the format, see cupstestppd(1)
    QProcess tester;
    tester.start(u"cupstestppd"_s, {u"-q"_s, u"-r"_s, u"-W"_s, u"all"_s, ppd});
    return tester.waitForFinished() &&
           (tester.exitCode() == 0 || tester.exitCode() == kNotConforming);
}

QString cupsFilter()
{
    QString found = QStandardPaths::findExecutable(u"cupsfilter"_s);
    if (found.isEmpty())
        found = QStandardPaths::findExecutable(u"cupsfilter"_s, {u"/usr/sbin"_s});
    return found;
}

} // namespace

MassRun::MassRun(unsigned seed)
    : m_seed(seed), m_document(sourceFile("tests/data/pages.pdf"_L1)),
      m_ppd(m_folder.filePath(u"printer.ppd"_s))
{
    if (!m_folder.isValid())
        throw std::runtime_error("no temporary folder");
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"})
        qputenv(name, m_folder.path().toLocal8Bit());
}

void MassRun::tryPpd(const NamedPpd &ppd)
{
    m_name = ppd.name;
    // Each PPD has its own choices, whichever others are tried beside it.
    const QByteArray name = ppd.name.toUtf8();
    std::seed_seq seeds(name.cbegin(), name.cend());
    m_chance.seed(seeds);
    m_chance.discard(m_seed);
    QFile file(m_ppd);
    const QByteArray content = withoutFilters(ppd.content);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error("the temporary folder cannot be written");
    file.close();
    PpdText text = readPpdText(content);
    // libcups takes these two for forms of one choice, whatever a PPD says.
    text.constraints += PpdTextConstraint{{"InputSlot", QByteArray()}, {"ManualFeed", "True"}};
    ++m_count.ppds;
    if (!isReadable(m_ppd)) {
        ++m_count.broken;
        if (printInTerminal(
                {u"--ppd"_s, m_ppd, u"--output"_s, m_folder.filePath(u"job.ps"_s), m_document},
                m_folder.filePath(u"job.ps"_s))
                .isPrinted)
            m_count.faults += m_name + u": printed although CUPS cannot read it"_s;
        return;
    }
    tryChoices(text, {});
    tryChoices(text, twoChoices(text));
}

// Two options of chance, each at a choice that it does not have anyway.
MassRun::Choices MassRun::twoChoices(const PpdText &text)
{
    QList<PpdTextOption> options;
    std::copy_if(text.options.cbegin(), text.options.cend(), std::back_inserter(options),
                 isForJobs);
    std::shuffle(options.begin(), options.end(), m_chance);
    Choices choices;
    for (const PpdTextOption &option : options.mid(0, 2)) {
        QList<QByteArray> others = option.choices;
        others.removeAll(option.defaultChoice);
        const auto index = std::uniform_int_distribution<qsizetype>(0, others.size() - 1)(m_chance);
        choices += {option.keyword, others.at(index)};
    }
    return choices;
}

void MassRun::tryChoices(const PpdText &text, const Choices &choices)
{
    const QString problem = problemOf(text, choices);
    if (problem.isEmpty())
        return;
    QStringList arguments;
    for (const auto &choice : choices)
        arguments += u"-o "_s + argumentOf(choice);
    m_count.faults += u"%1 %2: %3"_s.arg(m_name, arguments.join(u' '), problem);
}

// What one request comes to. Empty when it is as it should be.
QString MassRun::problemOf(const PpdText &text, const Choices &choices)
{
    const QString output = m_folder.filePath(u"job.ps"_s);
    QStringList arguments{u"--ppd"_s, m_ppd, u"--output"_s, output};
    for (const auto &choice : choices)
        arguments += {u"-o"_s, argumentOf(choice)};
    arguments += m_document;
    const FaceEnd terminal = printInTerminal(arguments, output);
    const FaceEnd window = printInWindow(arguments, output);
    if (terminal.isPrinted != window.isPrinted)
        return u"without a window: “%1”, in one: “%2”"_s.arg(terminal.said, window.said);
    if (!terminal.isPrinted) {
        ++m_count.refused;
        if (terminal.said != window.said)
            return u"said without a window: “%1”, in one: “%2”"_s.arg(terminal.said, window.said);
        return namesOpponents(terminal.said, text)
                   ? QString()
                   : u"refused without naming what stands in the way: “%1”"_s.arg(terminal.said);
    }
    ++m_count.printed;
    if (terminal.printed != window.printed)
        return u"another result in the window: "_s +
               firstDifference(terminal.printed, window.printed);
    const QByteArray chain = chainAlone(choices);
    if (chain.isEmpty())
        return u"the chain alone makes nothing of it"_s;
    return terminal.printed == chain
               ? QString()
               : u"another result than the chain's: "_s + firstDifference(terminal.printed, chain);
}

// The same by the chain of CUPS alone.
QByteArray MassRun::chainAlone(const Choices &choices) const
{
    const QString output = m_folder.filePath(u"chain.ps"_s);
    QStringList arguments{u"-p"_s,          m_ppd,   u"-e"_s,       u"-m"_s,
                          u"printer/foo"_s, u"-t"_s, u"pages.pdf"_s};
    for (const auto &choice : choices)
        arguments += {u"-o"_s, argumentOf(choice)};
    arguments += orderArguments(m_ppd, choices);
    QProcess chain;
    chain.setStandardOutputFile(output);
    chain.setStandardErrorFile(QProcess::nullDevice());
    chain.start(cupsFilter(), arguments << m_document);
    if (!chain.waitForFinished() || chain.exitCode() != 0)
        return {};
    return takeResult(output);
}

} // namespace corvana::test
