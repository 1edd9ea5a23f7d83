#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>

#include "dialog/job/PpdFilters.h"
#include "dialog/job/ResultFormat.h"
#include "dialog/session/PpdFile.h"
#include "fuzz/support/MemoryFile.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

constexpr char kHead[] = "*PPD-Adobe: \"4.3\"\n*ModelName: \"Fuzz\"\n*NickName: \"Fuzz\"\n";

// A filter line as `cupsfilter` takes it apart, with the same calls.
struct CupsLine
{
    QByteArray format;
    QByteArray program; // empty where the line is dropped
};

CupsLine readAsCups(const char *line)
{
    std::array<char, 16> super{};
    std::array<char, 256> type{};
    std::array<char, 16> toSuper{};
    std::array<char, 256> toType{};
    std::array<char, 1024> program{};
    int cost = 0;
    if (std::sscanf(line, "%15[^/]/%255s%*[ \t]%15[^/]/%255s%d%*[ \t]%1023[^\n]", super.data(),
                    type.data(), toSuper.data(), toType.data(), &cost, program.data()) != 6 &&
        std::sscanf(line, "%15[^/]/%255s%d%*[ \t]%1023[^\n]", super.data(), type.data(), &cost,
                    program.data()) != 4)
        return {};
    QByteArray name = program.data();
    if (name.startsWith("maxsize(")) {
        const qsizetype end = name.indexOf(')');
        name = end < 0 ? QByteArray() : name.mid(end + 1);
        while (!name.isEmpty() && std::strchr(" \t\n\v\f\r", name.front()))
            name.remove(0, 1);
    }
    return {QByteArray(super.data()).toLower() + '/' + QByteArray(type.data()).toLower(), name};
}

// What may run here, said a second time.
bool mayRun(const CupsLine &line)
{
    static const QList<QByteArray> programs{"-",
                                            "gstopxl",
                                            "gstoraster",
                                            "mupdftoraster",
                                            "pdftopdf",
                                            "pdftops",
                                            "pdftoraster",
                                            "pstops",
                                            "rastertoepson",
                                            "rastertohp",
                                            "rastertolabel",
                                            "rastertoescpx",
                                            "rastertopclm",
                                            "rastertopclx",
                                            "rastertopdf",
                                            "rastertops",
                                            "rastertopwg"};
    return line.program.isEmpty() || programs.contains(line.program) ||
           line.format == "application/vnd.cups-command";
}

// The lines that `cupsfilter` goes by: the older form where the newer one is missing.
void requireProgramsOfTheSystem(ppd_file_t *ppd)
{
    const auto requireMayRun = [](const char *line) {
        require(mayRun(readAsCups(line)), "no program of a PPD runs here",
                QString::fromLatin1(line));
    };
    for (const char *keyword : {"cupsFilter2", "cupsPreFilter"}) {
        for (const ppd_attr_t *line = ppdFindAttr(ppd, keyword, nullptr); line;
             line = ppdFindNextAttr(ppd, keyword, nullptr))
            requireMayRun(line->value);
    }
    for (int i = 0; i < ppd->num_filters && !ppdFindAttr(ppd, "cupsFilter2", nullptr); ++i)
        requireMayRun(ppd->filters[i]);
}

QList<JobOption> withoutOrder(QList<JobOption> options)
{
    options.removeIf([](const JobOption &option) {
        return option.name.compare("outputorder"_L1, Qt::CaseInsensitive) == 0;
    });
    return options;
}

// Only the order of the sheets is another one for the filters.
void requireOrderOnly(const QString &path)
{
    for (const char *order : {"", "normal", "reverse"}) {
        QList<JobOption> job{{u"PageSize"_s, u"A4"_s}, {u"number-up"_s, u"2"_s}};
        if (*order)
            job += {u"outputorder"_s, QString::fromLatin1(order)};
        require(withoutOrder(inOrderForFilters(job, path)) == withoutOrder(job),
                "filters are told of another order, and of nothing else");
    }
}

/// Input: lines of a PPD that name filters. Where they may run here, `cupsfilter` reads no program
/// in them but those of the system that are on the list; where they may not, there is a sentence
/// that is shown plainly. The result has a name that is one of those that there are.
void run(const QByteArray &input)
{
    const MemoryFile file(QByteArray(kHead) + input);
    QString error;
    const PpdFile ppd = openPpdFile(file.path(), &error);
    const QString problem = problemOfPpdFilters(file.path());
    require(ppd || !problem.isEmpty(), "a PPD that does not open is a reason");
    require(std::none_of(problem.cbegin(), problem.cend(),
                         [](QChar c) { return c.unicode() < 0x20 || c.unicode() == 0x7f; }),
            "a reason is shown plainly", problem);
    streamOfPpd(file.path());
    requireOrderOnly(file.path());
    if (!ppd)
        return;
    if (problem.isEmpty())
        requireProgramsOfTheSystem(ppd.get());
    static const QStringList suffixes{u"ps"_s,  u"pdf"_s,  u"pcl"_s, u"pwg"_s,
                                      u"urf"_s, u"pclm"_s, u"prn"_s};
    require(suffixes.contains(resultSuffix(ppd.get())), "a result is named by what it is",
            resultSuffix(ppd.get()));
}

const Target target("ppd_filters", run);

} // namespace

} // namespace corvana::fuzz
