#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

#include "dialog/presets/PresetWork.h"
#include "dialog/printers/Printer.h"
#include "dialog/task/PrintRequest.h"

namespace corvana {

/// An instance of a preset on a queue that is not open. What it has to say is known only where that
/// queue is open with the preset: its defaults, the names of its options, what its panels make of
/// them. So that is what is done, by a run of its own.
struct OtherInstance
{
    QString name;   ///< "lab/reports"
    QString preset; ///< the name for people
    QString model;  ///< of printers that the preset is for; empty: for all
};

/// A queue that is not open, where a preset could be an instance as well.
struct OtherQueue
{
    Printer printer;
    QString instance{};   ///< by which name; empty where there can be none
    QString problem{};    ///< why there can be none, for the user
    bool isThere = false; ///< it is one of that preset already
};

/// What a run without a window is asked for that writes such an instance; `request` is of the one
/// that kept the preset.
PrintRequest requestForOther(const OtherInstance &instance, PrintRequest request);
/// The same for the program itself.
QStringList argumentsForOther(const OtherInstance &instance, const PrintRequest &request);

/// Has the program write instances on queues that are not open, beside the GUI thread: each queue
/// is opened by a process of its own, one after the other, and none is waited for forever.
///
/// Thread: GUI thread. A destroyed object waits for what it has begun, for a while.
class OtherQueues : public QObject
{
    Q_OBJECT

public:
    explicit OtherQueues(QObject *parent = nullptr) : QObject(parent) {}

    /// ended() follows.
    void write(const QList<OtherInstance> &instances, const PrintRequest &request);
    bool isBusy() const { return m_work.isBusy(); }

Q_SIGNALS:
    /// `problems`: why instances were not written, with their names, for the user. `remarks`: what
    /// of the settings is not in those that were.
    void ended(const QStringList &problems, const QStringList &remarks);

private:
    PresetWork m_work;
};

} // namespace corvana
