#pragma once

#include <future>

#include <QString>

#include "dialog/session/PpdFile.h"

namespace corvana {

/// Opens a PPD on a thread of its own, for somebody who knows which one he will need and has other
/// things to do until then. Where no thread can be had, it is opened when it is needed.
class PpdAhead
{
public:
    /// Nobody else opens a PPD until open() was called.
    void begin(const QString &path);

    /// As openPpdFile() does. The one that was begun is waited for, and is there once.
    PpdFile open(const QString &path, QString *error);

private:
    struct Opened
    {
        PpdFile ppd;
        QString error;
    };

    QString m_path;
    std::future<Opened> m_opened;
};

} // namespace corvana
