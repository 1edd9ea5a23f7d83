#pragma once

#include <memory>

#include <QObject>
#include <QString>

#include "tests/dialog/job/Variable.h"
#include "tests/dialog/support/OwnHome.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/cups/FaultyServer.h"
#include "tests/support/cups/PrivateCups.h"

namespace corvana::test {

/// Tasks that print to the queue "office" of a server, without any face: what the tests of these
/// have in common. Each test has a server and a home of its own.
class QueueTaskTest : public QObject
{
    Q_OBJECT

protected:
    static constexpr int kPatience = 20000; // milliseconds that a queue may take on a busy machine

    std::unique_ptr<OwnHome> m_home;
    std::unique_ptr<Variable> m_serverRoot;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<FaultyServer> m_between;
    std::unique_ptr<TaskScene> m_scene;

    PrintTask &task() { return *m_scene->task; }
    ScriptedFace &face() { return m_scene->face; }

    void setUserOptions(const QByteArray &lines);
    QString ppd(const PpdBuilder &ppd);
    PrintRequest request(const QString &options = {});
    /// As a window: with panels up, and nothing printed yet.
    void open(const PrintRequest &request);
    /// Whether an outcome came, and no refusal.
    bool printed();
    QString attribute(const QString &name) { return task().settings().attribute(name); }
    QString jobValue(int job, const char *attribute);
    /// A job that its queue has, and whose printer does not come to its end.
    void printSlowly(const PrintRequest &request);

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
};

} // namespace corvana::test
