#include "dialog/job/TemporaryFolder.h"

#include <QCoreApplication>
#include <QDir>

namespace corvana {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(TemporaryFolder)
};

} // namespace

QString problemOf(const QTemporaryDir &folder)
{
    return folder.isValid() ? QString()
                            : Texts::tr("No temporary files can be kept in %1: %2")
                                  .arg(QDir::tempPath(), folder.errorString());
}

} // namespace corvana
