// Prints which of the localisations named on the command line suit the environment's languages.

#include <cstdio>

#include <QCoreApplication>

#include "platform/foundation/Bundle.h"

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList offered = QCoreApplication::arguments().mid(1);
    const QStringList preferred = corvana::Bundle::preferredLocalizations(offered);
    std::fputs(qPrintable(preferred.join(u' ')), stdout);
    return 0;
}
