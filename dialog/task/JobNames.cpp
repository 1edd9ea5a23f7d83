#include "dialog/task/JobNames.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "dialog/job/ResultFormat.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(JobNames)
};

} // namespace

QString titleOfDocuments(const QList<Document> &documents)
{
    if (documents.isEmpty())
        return {};
    const QString first = documents.constFirst().title;
    const int others = static_cast<int>(documents.size()) - 1;
    return others == 0 ? first : Texts::tr("%1 and %n more", nullptr, others).arg(first);
}

// In the current folder. A desktop starts programs in a folder where nothing can be written; then
// it is the user's own.
QString proposedOutput(const QList<Document> &documents)
{
    if (documents.isEmpty())
        return {};
    const bool writable = QFileInfo(QDir::currentPath()).isWritable() && !QDir::current().isRoot();
    const QDir folder = writable ? QDir::current() : QDir::home();
    const QFileInfo title(documents.constFirst().title);
    const QString base = title.completeBaseName();
    // A hidden file has a name of its own and no ending.
    return freeResultName(folder.path(), base.isEmpty() ? title.suffix() : base, u"ps"_s);
}

} // namespace corvana
