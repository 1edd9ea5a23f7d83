#include <cstdio>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/documents/DocumentWatch.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

class DocumentWatchTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kPatience = 30000;
    // Longer than a change takes to be told. Units: milliseconds.
    static constexpr int kLong = 2500;

    QTemporaryDir m_folder;

    QString file(const QString &name, const QByteArray &content = "former") const
    {
        return writeFile(m_folder.filePath(name), content);
    }
    void replace(const QString &path) const
    {
        QCOMPARE(::rename(QFile::encodeName(file(u"new"_s, "another one")).constData(),
                          QFile::encodeName(path).constData()),
                 0);
    }

private Q_SLOTS:
    void whatIsWrittenToIsTold()
    {
        const QString path = file(u"a"_s);
        DocumentWatch watch;
        QSignalSpy changed(&watch, &DocumentWatch::changed);
        watch.watch({path});
        file(u"a"_s, "longer than before");
        QVERIFY(changed.wait(kPatience));
    }

    // Each of them is another file; the name alone stays.
    void whatIsReplacedAgainAndAgainIsTold()
    {
        const QString path = file(u"a"_s);
        DocumentWatch watch;
        QSignalSpy changed(&watch, &DocumentWatch::changed);
        watch.watch({path});
        for (int i = 0; i < 3; ++i) {
            QTest::qWait(20); // another time than that of the one before
            replace(path);
            QVERIFY(changed.wait(kPatience));
        }
        file(u"a"_s, "written to in the end");
        QVERIFY(changed.wait(kPatience));
    }

    void whatGoesAndComesBackIsTold()
    {
        const QString path = file(u"a"_s);
        DocumentWatch watch;
        QSignalSpy changed(&watch, &DocumentWatch::changed);
        watch.watch({path});
        QVERIFY(QFile::remove(path));
        QVERIFY(changed.wait(kPatience));
        file(u"a"_s, "back");
        QVERIFY(changed.wait(kPatience));
    }

    // A program that writes for a while is not followed piece by piece.
    void manyWritesAreToldOnce()
    {
        const QString path = file(u"a"_s);
        DocumentWatch watch;
        QSignalSpy changed(&watch, &DocumentWatch::changed);
        watch.watch({path});
        for (int i = 1; i <= 10; ++i) {
            file(u"a"_s, QByteArray(100 * i, 'x'));
            QTest::qWait(30);
        }
        QTest::qWait(kLong);
        QCOMPARE(changed.size(), 1);
    }

    void whatIsReadOnlyOrNotWatchedAnyMoreIsNotTold()
    {
        const QString path = file(u"a"_s);
        DocumentWatch watch;
        QSignalSpy changed(&watch, &DocumentWatch::changed);
        watch.watch({path, file(u"b"_s)});
        watch.watch({path});
        QCOMPARE(contentOf(path), "former");
        file(u"b"_s, "another one");
        QTest::qWait(kLong);
        QCOMPARE(changed.size(), 0);
    }

private:
    static QByteArray contentOf(const QString &path)
    {
        QFile opened(path);
        return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
    }
};

QTEST_MAIN(DocumentWatchTest)

#include "document_watch_test.moc"
