#include "dialog/printers/LastPrinter.h"

#include "dialog/session/DialogPreferences.h"
#include "platform/foundation/UserDefaults.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {
constexpr QLatin1StringView kServer = "lastServer"_L1;
constexpr QLatin1StringView kPrinter = "lastPrinter"_L1;
} // namespace

QString lastPrinter(const QString &server)
{
    const QVariantMap domain = UserDefaults::standardUserDefaults()
                                   .persistentDomainForName(kDialogDomain)
                                   .value_or(QVariantMap());
    return domain.value(kServer).toString() == server ? domain.value(kPrinter).toString()
                                                      : QString();
}

void rememberPrinter(const QString &server, const QString &name)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    QVariantMap domain = defaults.persistentDomainForName(kDialogDomain).value_or(QVariantMap());
    domain.insert(kServer, server);
    domain.insert(kPrinter, name);
    defaults.setPersistentDomain_forName(domain, kDialogDomain);
}

} // namespace corvana
