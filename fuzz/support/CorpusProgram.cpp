// Runs a target over its seeds, once each, with any compiler: what libFuzzer has found is a test
// from then on. "NAME FOLDER", where NAME is that of the program.
#include <cstdio>
#include <string>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "fuzz/support/Target.h"

using corvana::fuzz::Target;

int main(int argc, char **argv)
{
    const QString name = QFileInfo(QFile::decodeName(argv[0])).fileName();
    const Target *target = Target::named(name.toStdString());
    if (!target || argc != 2) {
        std::fprintf(stderr, "usage: TARGET FOLDER; \"%s\" is no target, or no folder was named\n",
                     qPrintable(name));
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    corvana::fuzz::prepareProgram(argc, argv);
    int seeds = 0;
    for (const QFileInfo &seed : folder.entryInfoList(QDir::Files, QDir::Name)) {
        QFile file(seed.filePath());
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "%s cannot be read\n", qPrintable(seed.filePath()));
            return 2;
        }
        // Said before, since a seed that breaks a promise ends the program.
        std::fprintf(stderr, "%s\n", qPrintable(seed.fileName()));
        target->run(file.readAll());
        ++seeds;
    }
    if (seeds == 0) {
        std::fprintf(stderr, "there are no seeds in %s\n", qPrintable(folder.path()));
        return 1;
    }
    return 0;
}
