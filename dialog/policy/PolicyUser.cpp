#include "dialog/policy/PolicyUser.h"

#include <vector>

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

namespace corvana {

namespace {

// More than any system lets one user have. Units: groups.
constexpr int kMostGroups = 65536;

PolicyUser userOf(const passwd *entry)
{
    // Somebody without a name, as in some containers, is known by the number.
    return {entry ? QString::fromLocal8Bit(entry->pw_name) : QString::number(::getuid()), {}};
}

} // namespace

PolicyUser currentUser()
{
    return userOf(::getpwuid(::getuid()));
}

bool isUser(const QString &name)
{
    return ::getpwnam(name.toLocal8Bit().constData()) != nullptr;
}

PolicyUser userWithGroups(const QString &name)
{
    const passwd *entry =
        name.isEmpty() ? ::getpwuid(::getuid()) : ::getpwnam(name.toLocal8Bit().constData());
    PolicyUser user = name.isEmpty() ? userOf(entry) : PolicyUser{name, {}};
    if (!entry)
        return user;
    std::vector<gid_t> ids(64);
    int count = int(ids.size());
    const QByteArray login = entry->pw_name; // the next call may write over it
    while (::getgrouplist(login.constData(), entry->pw_gid, ids.data(), &count) < 0) {
        if (count <= int(ids.size()))
            count = int(ids.size()) * 2;
        if (count > kMostGroups)
            return user;
        ids.resize(size_t(count));
    }
    for (int i = 0; i < count; ++i) {
        if (const group *found = ::getgrgid(ids[size_t(i)]))
            user.groups += QString::fromLocal8Bit(found->gr_name);
    }
    return user;
}

} // namespace corvana
