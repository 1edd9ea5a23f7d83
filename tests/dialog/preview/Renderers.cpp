#include "tests/dialog/preview/Renderers.h"

#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace corvana::test {

using namespace Qt::StringLiterals;

QList<pid_t> runningRenderers(const char *name)
{
    QList<pid_t> found;
    const QStringList processes = QDir(u"/proc"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &process : processes) {
        QFile file(u"/proc/"_s + process + u"/stat"_s);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        // "PID (NAME, cut after 15 letters) STATE PARENT"
        const QByteArray line = file.readAll();
        const QList<QByteArray> rest = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (line.contains('(' + QByteArray(name).left(15) + ')') && rest.value(0) != "Z" &&
            rest.value(1).toInt() == ::getpid())
            found.append(process.toInt());
    }
    return found;
}

RendererSettings hostileRenderer(const char *manner)
{
    qputenv("HOSTILE_MANNER", manner);
    RendererSettings settings;
    settings.program = QCoreApplication::applicationDirPath() + u"/hostile_renderer"_s;
    settings.startPatience = std::chrono::milliseconds(3000);
    settings.pagePatience = std::chrono::milliseconds(500);
    return settings;
}

} // namespace corvana::test
