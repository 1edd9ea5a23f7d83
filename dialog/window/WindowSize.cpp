#include "dialog/window/WindowSize.h"

#include <QScreen>
#include <QWidget>

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
    return static_cast<int>(qMin<qint64>(stored < kLeast ? usual : stored, most));
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

void rememberWindowSize(const QSize &size, const QSize &given)
{
    if (size == given)
        return;
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    QVariantMap domain = defaults.persistentDomainForName(kDialogDomain).value_or(QVariantMap());
    if (size.width() != given.width())
        domain.insert(kWidth, size.width());
    if (size.height() != given.height())
        domain.insert(kHeight, size.height());
    defaults.setPersistentDomain_forName(domain, kDialogDomain);
}

void keepOnScreen(QWidget *window)
{
    const QRect screen = window->screen()->availableGeometry();
    const QSize frame = window->frameGeometry().size() - window->size();
    const QSize fitting = window->size().boundedTo(screen.size() - frame);
    if (fitting != window->size())
        window->resize(fitting);
    const QRect whole(window->pos(), fitting + frame);
    const QPoint place(qMax(screen.left(), qMin(whole.left(), screen.right() + 1 - whole.width())),
                       qMax(screen.top(), qMin(whole.top(), screen.bottom() + 1 - whole.height())));
    if (place != window->pos())
        window->move(place);
}

} // namespace corvana
