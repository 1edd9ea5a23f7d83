#include "platform/foundation/NotificationCenter.h"

#include <algorithm>

namespace corvana {

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(const void *observer, const QString &name, const void *sender,
                                     Handler handler)
{
    m_registrations.push_back({m_nextId++, observer, name, sender, std::move(handler)});
}

void NotificationCenter::removeObserver(const void *observer)
{
    std::erase_if(m_registrations, [&](const Registration &r) { return r.observer == observer; });
}

void NotificationCenter::removeObserver(const void *observer, const QString &name,
                                        const void *sender)
{
    std::erase_if(m_registrations, [&](const Registration &r) {
        return r.observer == observer && r.name == name && r.sender == sender;
    });
}

void NotificationCenter::post(const QString &name, void *sender)
{
    deliver({name, sender, {}, false});
}

void NotificationCenter::post(const QString &name, void *sender, const QVariantMap &userInfo)
{
    deliver({name, sender, userInfo, true});
}

void NotificationCenter::deliver(const Notification &notification)
{
    std::vector<Registration> receivers;
    std::copy_if(m_registrations.cbegin(), m_registrations.cend(), std::back_inserter(receivers),
                 [&](const Registration &r) {
                     return r.name == notification.name &&
                            (!r.sender || r.sender == notification.sender);
                 });
    for (const Registration &receiver : receivers) {
        if (isRegistered(receiver.id))
            receiver.handler(notification);
    }
}

bool NotificationCenter::isRegistered(quint64 id) const
{
    return std::any_of(m_registrations.cbegin(), m_registrations.cend(),
                       [id](const Registration &r) { return r.id == id; });
}

} // namespace corvana
