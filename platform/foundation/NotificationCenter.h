#pragma once

#include <functional>
#include <vector>

#include <QString>
#include <QVariantMap>

#include "platform/PlatformExport.h"

namespace corvana {

/// One posted notification. The sender is an identity, compared and never dereferenced by the
/// centre; observers that know its type may use it while the notification is being delivered.
struct Notification
{
    QString name;
    void *sender = nullptr;
    /// User information; `hasUserInfo` tells an empty one from none at all.
    QVariantMap userInfo;
    bool hasUserInfo = false;
};

/// Delivers notifications by name, optionally by sender, at once and in the order of registration.
/// The default centre is shared by the dialog and every plug-in bundle of the process.
///
/// Delivery works over a copy of the registrations: an observer that is removed meanwhile is
/// skipped, one that is added meanwhile is not reached. Registering twice delivers twice.
/// Thread: GUI thread only.
class CORVANA_PLATFORM_EXPORT NotificationCenter
{
public:
    using Handler = std::function<void(const Notification &)>;

    NotificationCenter() = default;
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    static NotificationCenter &defaultCenter();

    /// Registers `handler` for notifications `name` of `sender`; a null sender means any sender.
    /// Ownership: the observer must remove itself before it dies.
    void addObserver(const void *observer, const QString &name, const void *sender,
                     Handler handler);
    /// Ends all registrations of the observer.
    void removeObserver(const void *observer);
    /// Ends the observer's registrations for this name and sender.
    void removeObserver(const void *observer, const QString &name, const void *sender);

    void post(const QString &name, void *sender);
    void post(const QString &name, void *sender, const QVariantMap &userInfo);

private:
    struct Registration
    {
        quint64 id;
        const void *observer;
        QString name;
        const void *sender;
        Handler handler;
    };

    void deliver(const Notification &notification);
    bool isRegistered(quint64 id) const;

    std::vector<Registration> m_registrations;
    quint64 m_nextId = 1;
};

} // namespace corvana
