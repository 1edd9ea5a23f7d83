#include "tests/dialog/task/TaskScene.h"

#include <QTest>

#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"

namespace corvana::test {

using namespace Qt::StringLiterals;

namespace {
constexpr int kPatience = 20000; // milliseconds that printing may take on a busy machine
} // namespace

TaskScene::TaskScene() : filter("printf '%s\\n' \"$@\" >$DIR/arguments; echo printed\n") {}

TaskScene::~TaskScene()
{
    task.reset();
}

PrintRequest TaskScene::request(const QList<Printer> &printers) const
{
    PrintRequest request;
    request.documents = {filter.document()};
    request.title = u"Job"_s;
    request.output = filter.output();
    request.bundleRoots = builtBundleRoots();
    request.printers = printers;
    return request;
}

PrintRequest TaskScene::request(const PpdBuilder &ppd) const
{
    return request(QList{printer(u"office"_s, ppd.text())});
}

Printer TaskScene::printer(const QString &name, const QByteArray &ppd) const
{
    return {name, name, writeFile(filter.path(name + u".ppd"_s), ppd), 1};
}

PrintTask &TaskScene::make(const PrintRequest &request)
{
    task = std::make_unique<PrintTask>(request, face);
    face.watch(*task);
    return *task;
}

PrintTask &TaskScene::open(const PrintRequest &request)
{
    make(request).start();
    task->bringUp();
    return *task;
}

QByteArrayList TaskScene::arguments() const
{
    return filter.content(u"arguments"_s).split('\n');
}

bool TaskScene::reaches(PrintTask::Phase phase) const
{
    return QTest::qWaitFor([&] { return task->phase() == phase; }, kPatience);
}

} // namespace corvana::test
