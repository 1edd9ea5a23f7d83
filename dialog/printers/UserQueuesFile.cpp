#include "dialog/printers/UserQueuesFile.h"

#include <algorithm>
#include <optional>
#include <utility>

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

#include "dialog/printers/PrinterId.h"
#include "dialog/printers/UserQueues.h"
#include "dialog/printers/UserQueuesLine.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(UserQueuesFile)
};

// libcups reads packed files as well, and would take a line behind one for damage.
constexpr QByteArrayView kPacked{"\x1f\x8b"};

bool isOf(QByteArrayView line, const QString &name)
{
    const std::optional<UserQueuesLine> read = userQueuesLine(line);
    return read && isSameQueue(QString::fromUtf8(read->name), name);
}

bool isDefault(const QByteArray &content, const QString &name)
{
    const QList<QByteArrayView> lines = linesOfUserQueues(content);
    return std::any_of(lines.cbegin(), lines.cend(), [&](QByteArrayView line) {
        return isOf(line, name) && userQueuesLine(line)->isDefault;
    });
}

QByteArrayView endOf(QByteArrayView line)
{
    const auto end =
        std::find_if(line.cbegin(), line.cend(), [](char c) { return c == '\n' || c == '\r'; });
    return line.sliced(end - line.cbegin());
}

// Whether a content says nothing else of an instance. When libcups writes the file, it leaves out
// what the queue has as a default, adds what the queue's own line says, and quotes otherwise.
bool hasInstance(const QByteArray &content, const QString &name, const QList<JobOption> &options)
{
    bool isThere = false;
    const QList<QByteArrayView> lines = linesOfUserQueues(content);
    for (const QByteArrayView line : lines) {
        if (!isOf(line, name))
            continue;
        isThere = true;
        const QList<JobOption> found = optionsOfLine(*userQueuesLine(line));
        for (const JobOption &option : options) {
            const auto same = std::find_if(found.cbegin(), found.cend(), [&](const JobOption &one) {
                return one.name == option.name;
            });
            if (same != found.cend() && same->value != option.value)
                return false;
        }
    }
    return isThere;
}

// What is made of a file as it was found, under its lock.
struct Round
{
    QByteArray content{};
    QList<InstanceLine> made{};
    QMap<QString, QString> problems{}; // of those that are as they were
};

Round roundOf(const QByteArray &content, const QList<InstanceLine> &lines,
              const UserQueuesFile::Staying &staying)
{
    const bool isPacked = content.startsWith(kPacked);
    QStringList names;
    for (const InstanceLine &line : lines)
        names += line.name;
    const QStringList stay = staying ? staying(content, names) : QStringList();
    Round round{content};
    for (const InstanceLine &line : lines) {
        const QString &name = line.name;
        if (isPacked && line.options) {
            round.problems[name] =
                Texts::tr("The file of lpoptions is packed, and cannot be changed here.");
        } else if (stay.contains(name)) {
            if (line.options)
                round.problems[name] =
                    Texts::tr("“%1” was changed by another program, and is left as it is.")
                        .arg(name);
        } else if (!line.options && isDefault(content, name)) {
            round.problems[name] =
                Texts::tr("“%1” is your default printer, and stays: choose another one first.")
                    .arg(name);
        } else {
            round.content = line.options ? withInstance(round.content, name, *line.options)
                                         : withoutInstance(round.content, name);
            round.made += line;
        }
    }
    return round;
}

// Whether a file says what was made of it.
bool isMade(const QList<InstanceLine> &lines, const QByteArray &content)
{
    return std::all_of(lines.cbegin(), lines.cend(), [&](const InstanceLine &line) {
        return line.options ? hasInstance(content, line.name, *line.options)
                            : withoutInstance(content, line.name) == content;
    });
}

// What libcups finds in the line that would be written, as far as it is something else.
QString misreadOption(const QString &name, const QList<JobOption> &options)
{
    const std::optional<UserQueuesLine> read = userQueuesLine(lineOf(true, name, options));
    const QList<JobOption> found = read ? optionsOfLine(*read) : QList<JobOption>();
    for (const JobOption &option : options) {
        if (!found.contains(option))
            return option.name;
    }
    return {};
}

} // namespace

QString ownUserQueues()
{
    return QDir::homePath() + u"/.cups/lpoptions"_s;
}

QString systemUserQueues()
{
    return qEnvironmentVariable("CUPS_SERVERROOT", u"/etc/cups"_s) + u"/lpoptions"_s;
}

QMap<QString, QString> UserQueuesFile::change(const QList<InstanceLine> &lines,
                                              const Staying &staying) const
{
    QMap<QString, QString> problems;
    QList<InstanceLine> possible;
    for (const InstanceLine &line : lines) {
        const QString problem =
            line.options ? problemOfInstance(line.name, *line.options) : QString();
        if (problem.isEmpty())
            possible += line;
        else
            problems[line.name] = problem;
    }
    if (possible.isEmpty())
        return problems;
    Round round;
    const QString problem =
        m_file.change({[&](const QByteArray &content) {
                           round = roundOf(content, possible, staying);
                           return round.content;
                       },
                       [&](const QByteArray &content) { return isMade(round.made, content); }});
    if (problem.isEmpty()) {
        problems.insert(round.problems);
        return problems;
    }
    for (const InstanceLine &line : std::as_const(possible))
        problems[line.name] = problem;
    return problems;
}

QString problemOfInstance(const QString &name, const QList<JobOption> &options)
{
    static const QRegularExpression form(u"^[^/#\\s\\x00-\\x20\\x7f]+/[A-Za-z0-9._-]+\\z"_s);
    if (!form.match(name).hasMatch())
        return Texts::tr("“%1” is no name that other programs can print to.").arg(name);
    for (const JobOption &option : options) {
        if (const QString problem = problemOfLine(option); !problem.isEmpty())
            return problem;
    }
    if (lineOf(true, name, options).size() > kMostBytesOfLine)
        return Texts::tr("“%1” would have more settings than other programs can read.").arg(name);
    if (const QString misread = misreadOption(name, options); !misread.isNull())
        return Texts::tr("Other programs would read the value of “%1” as another one.")
            .arg(misread);
    return {};
}

QByteArray withInstance(const QByteArray &content, const QString &name,
                        const QList<JobOption> &options)
{
    QByteArray changed;
    bool isThere = false;
    const QList<QByteArrayView> lines = linesOfUserQueues(content);
    for (const QByteArrayView line : lines) {
        if (!isOf(line, name)) {
            changed += line;
            continue;
        }
        // Of several, libcups takes the first one in some calls and all of them in others.
        changed += lineOf(userQueuesLine(line)->isDefault, name, options);
        changed += endOf(line);
        isThere = true;
    }
    if (isThere)
        return changed;
    if (!lines.isEmpty() && endOf(lines.constLast()).isEmpty())
        changed += '\n';
    return changed + lineOf(false, name, options) + '\n';
}

QByteArray withoutInstance(const QByteArray &content, const QString &name)
{
    QByteArray changed;
    const QList<QByteArrayView> lines = linesOfUserQueues(content);
    for (const QByteArrayView line : lines) {
        if (!isOf(line, name) || userQueuesLine(line)->isDefault)
            changed += line;
    }
    return changed;
}

} // namespace corvana
