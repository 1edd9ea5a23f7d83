#include "dialog/window/WindowSize.h"

#include "dialog/session/DialogPreferences.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/foundation/Values.h"

namespace corvana {

namespace {

constexpr QLatin1StringView kWidth{"windowWidth"};
constexpr QLatin1StringView kHeight{"windowHeight"};

// Less than this shows nothing: such a file was not written by us.
constexpr qint64 kLeast = 200;

int remembered(const QVariantMap &domain, QLatin1StringView key, int usual, int most)
{
    const qint64 stored = integerValue(domain.value(key));
    return stored < kLeast ? usual : static_cast<int>(qMin<qint64>(stored, qMax(usual, most)));
}

} // namespace

QSize rememberedWindowSize(const QSize &usual, const QSize &screen)
{
    const QVariantMap domain = UserDefaults::standardUserDefaults()
                                   .persistentDomainForName(kDialogDomain)
                                   .value_or(QVariantMap());
    return {remembered(domain, kWidth, usual.width(), screen.width()),
            remembered(domain, kHeight, usual.height(), screen.height())};
}

void rememberWindowSize(const QSize &size)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    QVariantMap domain = defaults.persistentDomainForName(kDialogDomain).value_or(QVariantMap());
    domain.insert(kWidth, size.width());
    domain.insert(kHeight, size.height());
    defaults.setPersistentDomain_forName(domain, kDialogDomain);
}

} // namespace corvana
