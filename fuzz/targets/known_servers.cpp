#include <QTemporaryDir>

#include "dialog/server/KnownServers.h"
#include "dialog/server/ServerAddress.h"
#include "dialog/server/ServerProblem.h"
#include "fuzz/support/InputFile.h"
#include "fuzz/support/Target.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

QList<QByteArray> linesOf(const QByteArray &content)
{
    QList<QByteArray> lines;
    for (const QByteArray &line : content.split('\n')) {
        if (!line.trimmed().isEmpty())
            lines += line.trimmed();
    }
    return lines;
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
    const QList<QByteArray> left = linesOf(contentOf(path));
    for (const QByteArray &line : linesOf(input)) {
        // Of several lines about one server one counts.
        const QByteArray name = line.split(' ').value(0);
        const bool isThere = left.contains(line);
        const bool isOfServer = KnownServers(path).key(QString::fromUtf8(name)).has_value();
        require(isThere || name == server.toUtf8() || isOfServer || line.contains(" sha256:"),
                "whatever else stands in the file stays", QString::fromUtf8(line));
    }
}

const Target target("known_servers", run);

} // namespace

} // namespace corvana::fuzz
