#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/session/OptionRequest.h"

namespace corvana::test {

/// An instance of a user's, and its line in lpoptions.
inline const QString kInstance = QStringLiteral("lobby/reports");
inline const QList<JobOption> kOptions{
    {QStringLiteral("sides"), QStringLiteral("two-sided-long-edge")}};
inline const QByteArray kLine = "Dest lobby/reports sides=two-sided-long-edge";

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

/// Makes files that are called lpoptions, each in a folder of its own.
class UserQueuesFolder
{
public:
    QString path() const { return m_folder.path(); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }
    QString newPath()
    {
        const QString folder = m_folder.filePath(QString::number(++m_number));
        QDir().mkpath(folder);
        return folder + QStringLiteral("/lpoptions");
    }
    QString newFile(const QByteArray &content)
    {
        const QString path = newPath();
        writeFile(path, content);
        return path;
    }

private:
    QTemporaryDir m_folder;
    int m_number = 0;
};

} // namespace corvana::test
