#pragma once

#include <QByteArray>
#include <QIODevice>

namespace corvana {

/// Writes all of it, or answers false; the device then says why. It must not be buffered: what a
/// buffer cannot write is reported without a reason.
inline bool writeWhole(QIODevice &device, const QByteArray &bytes)
{
    // A disk that is just full takes a part, and says why only when it is asked for the rest.
    qint64 taken = 0;
    while (taken < bytes.size()) {
        const qint64 more = device.write(bytes.constData() + taken, bytes.size() - taken);
        if (more <= 0)
            return false;
        taken += more;
    }
    return true;
}

} // namespace corvana
