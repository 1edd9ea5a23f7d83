#include "dialog/job/CupsFilter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

#include "platform/foundation/OwnVariable.h"

namespace corvana {

namespace {

using namespace Qt::StringLiterals;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CupsFilter)
};

} // namespace

QString findCupsFilter(QString *error)
{
    const QString given = ownVariable("CORVANA_PRINT_CUPSFILTER");
    if (!given.isEmpty()) {
        if (QFileInfo(given).isExecutable())
            return given;
        *error = Texts::tr("The program %1, named by CORVANA_PRINT_CUPSFILTER, cannot be run.")
                     .arg(given);
        return {};
    }
    const QString name = u"cupsfilter"_s;
    QString found = QStandardPaths::findExecutable(name);
    if (found.isEmpty())
        found = QStandardPaths::findExecutable(name,
                                               {u"/usr/sbin"_s, u"/usr/local/sbin"_s, u"/sbin"_s});
    if (found.isEmpty())
        *error = Texts::tr("The program cupsfilter was found neither on the path nor in /usr/sbin. "
                           "It comes with CUPS (on Debian the package “cups”).");
    return found;
}

} // namespace corvana
