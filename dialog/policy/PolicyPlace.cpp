#include "dialog/policy/PolicyPlace.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr char kVariable[] = "CORVANA_PRINT_POLICY";

bool isOfUser(const QString &program)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(program).constData(), &status) == 0 &&
           status.st_uid == ::geteuid() && ::geteuid() == ::getuid();
}

} // namespace

PolicyPlace policyPlaceOf(const QString &program)
{
    const QString named = qEnvironmentVariable(kVariable);
    if (named.startsWith(u'/') && isOfUser(program))
        return {named, true};
    return {QStringLiteral(CORVANA_SYSCONFDIR "/corvana-print/policy.d"), false};
}

PolicyPlace policyPlace()
{
    // The file that runs, whatever name it was started by.
    return policyPlaceOf(u"/proc/self/exe"_s);
}

} // namespace corvana
