#include <algorithm>
#include <map>

#include <QTemporaryDir>

#include "dialog/server/KnownServers.h"
#include "dialog/server/ServerAddress.h"
#include "dialog/server/ServerProblem.h"
#include "fuzz/support/InputFile.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

// What stands in a file: the key of each server, by its name, and every other line in its order.
struct Content
{
    std::map<QByteArray, QByteArray> keys;
    QList<QByteArray> others;
};

// 32 bytes in the one form in which they are written.
bool isKey(const QByteArray &word)
{
    constexpr qsizetype kDigits = 64;
    const QByteArray kind = "sha256:";
    return word.startsWith(kind) && word.size() == kind.size() + kDigits &&
           std::all_of(word.cbegin() + kind.size(), word.cend(), [](char digit) {
               return (digit >= '0' && digit <= '9') || (digit >= 'a' && digit <= 'f');
           });
}

// Of several lines about one server the last one counts.
Content contentIn(const QByteArray &file)
{
    Content content;
    for (const QByteArray &part : file.split('\n')) {
        const QByteArray line = part.trimmed();
        const qsizetype blank = line.indexOf(' ');
        if (blank > 0 && isKey(line.mid(blank + 1)))
            content.keys[line.first(blank)] = line.mid(blank + 1);
        else if (!line.isEmpty())
            content.others += line;
    }
    return content;
}

// Nothing but the line of the server that was noted is another one.
void requireTheRestStays(const QByteArray &before, const QByteArray &after, const QString &server,
                         const QByteArray &key)
{
    Content expected = contentIn(before);
    expected.keys[server.toUtf8()] = "sha256:" + key.toHex();
    const Content left = contentIn(after);
    require(left.others == expected.others, "lines that are not understood stay, in their order",
            QString::fromUtf8(after));
    require(left.keys == expected.keys, "the keys of other servers stay", QString::fromUtf8(after));
}

// A server with another key is refused with the line that knows it.
void requireToldPlainly(const QString &server, const QByteArray &former, const QString &path)
{
    ServerProblem problem{ServerProblem::Kind::CertificateChanged};
    problem.file = path;
    problem.entry = server + u" sha256:"_s + QString::fromLatin1(former.toHex());
    const ServerAddress address = *ServerAddress::parse(server);
    require(problem.text(address).contains(problem.entry) && problem.text(address).contains(path),
            "a server with another key is refused with the line that knows it",
            problem.text(address));
    require(!problem.brief(address).isEmpty() && !problem.mayPass(),
            "another key does not become the right one by itself");
}

/// Input: the file of the servers that are known, and of their keys. A key is a whole one; a server
/// that is noted is known by the key that was noted; one that is known otherwise is not
/// overwritten; and whatever else stands in the file stays.
void run(const QByteArray &input)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(u"known-servers"_s);
    writeInput(path, input);
    const KnownServers servers(path);
    const QString server = u"print.example.com:631"_s;
    const QByteArray key(32, 'k');
    const std::optional<QByteArray> former = servers.key(server);
    require(!former || former->size() == 32, "a key that is known is a whole one");

    const KnownServers::Outcome unasked = servers.remember(server, std::nullopt, key);
    const bool isOther = former && *former != key;
    require(unasked ==
                (isOther ? KnownServers::Outcome::KnownOtherwise : KnownServers::Outcome::Kept),
            "a key that is known is not overwritten unasked");
    require(servers.remember(server, former, key) == KnownServers::Outcome::Kept,
            "a server can be noted");
    require(servers.key(server) == key, "a server that was noted is known");
    if (isOther)
        requireToldPlainly(server, *former, path);
    requireTheRestStays(input, contentOf(path), server, key);
}

const Target target("known_servers", run);

} // namespace

} // namespace corvana::fuzz
