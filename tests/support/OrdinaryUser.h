#pragma once

#include <unistd.h>

#include <QtGlobal>

namespace corvana::test {

/// A user who may only do what permissions allow, while it lives; the superuser may do everything.
class OrdinaryUser
{
public:
    OrdinaryUser() : m_wasSuperuser(::geteuid() == 0)
    {
        constexpr uid_t kNobody = 65534;
        if (m_wasSuperuser && ::setresuid(kNobody, kNobody, 0) != 0)
            qFatal("the superuser cannot become somebody else");
    }
    ~OrdinaryUser()
    {
        if (m_wasSuperuser && ::setresuid(0, 0, 0) != 0)
            qFatal("the superuser does not come back");
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

private:
    bool m_wasSuperuser;
};

} // namespace corvana::test
