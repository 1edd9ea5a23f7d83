#include "platform/foundation/OwnVariable.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

bool isOfUser(const QString &program)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(program).constData(), &status) == 0 &&
           status.st_uid == ::geteuid() && ::geteuid() == ::getuid();
}

} // namespace

QString ownVariable(const char *name, const QString &program)
{
    return isOfUser(program) ? qEnvironmentVariable(name) : QString();
}

QString ownVariable(const char *name)
{
    // The file that runs, whatever name it was started by.
    return ownVariable(name, u"/proc/self/exe"_s);
}

} // namespace corvana
