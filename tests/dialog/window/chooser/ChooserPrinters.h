#pragma once

#include <QList>

#include "dialog/printers/Printer.h"

namespace corvana::test {

/// A queue of one server that is idle.
inline Printer queue(const QString &name, const QString &description = {},
                     const QString &location = {})
{
    Printer printer;
    printer.name = name;
    printer.description = description;
    printer.origin = PrinterOrigin::Queue;
    printer.location = location;
    printer.state = PrinterState::Idle;
    printer.uri = QStringLiteral("ipp://print.example.org/printers/%1").arg(name);
    return printer;
}

/// "q0", "q1" and so on.
inline QList<Printer> queues(int count)
{
    QList<Printer> printers;
    for (int i = 0; i < count; ++i)
        printers += queue(QStringLiteral("q%1").arg(i));
    return printers;
}

} // namespace corvana::test
