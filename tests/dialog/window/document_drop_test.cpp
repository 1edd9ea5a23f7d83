#include <QDropEvent>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include "dialog/window/DocumentDrop.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// Documents that are dropped on a window, in the ways in which other programs offer them.
class DocumentDropTest : public QObject
{
    Q_OBJECT

private:
    static constexpr auto kAnything = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;

    QTemporaryDir m_folder;
    std::unique_ptr<WindowDriver> m_window;

    QUrl file(const QString &name) const
    {
        return QUrl::fromLocalFile(writeFile(m_folder.filePath(name), "Some words.\n"));
    }
    QStringList titles() const
    {
        QStringList found;
        for (const Document &each : m_window->dialog().task().documents())
            found += each.title;
        return found;
    }
    // What whoever gave the documents hears while they hover, and of the drop.
    struct Answers
    {
        bool isTaken = false;
        Qt::DropAction hovering = Qt::IgnoreAction;
        Qt::DropAction dropped = Qt::IgnoreAction;
    };
    // As Qt delivers it: `target` is the innermost widget there that takes drops. It proposes to
    // move where that is possible, as with Shift pressed.
    static Answers drop(const QMimeData &data, QWidget *target, Qt::DropActions possible)
    {
        Answers answers;
        QDragEnterEvent enter({5, 5}, possible, &data, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(target, &enter);
        if (!enter.isAccepted())
            return answers;
        QDragMoveEvent move({6, 6}, possible, &data, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(target, &move);
        if (!move.isAccepted())
            return answers;
        answers.hovering = move.dropAction();
        QDropEvent event({6, 6}, possible, &data, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(target, &event);
        answers.isTaken = event.isAccepted();
        answers.dropped = event.dropAction();
        return answers;
    }
    void hover(const QMimeData &data) const
    {
        QDragEnterEvent event({5, 5}, kAnything, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&m_window->dialog(), &event);
    }
    Answers drop(const QList<QUrl> &urls, Qt::DropActions possible = kAnything)
    {
        QMimeData data;
        data.setUrls(urls);
        return drop(data, &m_window->dialog(), possible);
    }

private Q_SLOTS:
    void initTestCase() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.path())); }
    void init()
    {
        CommandLine line = sampleDocument();
        line.ppd = sharedFile(u"ppd/corvana-cl5.ppd"_s);
        line.documents = {file(u"first.txt"_s).toLocalFile()};
        QDir::setCurrent(m_folder.path());
        m_window = std::make_unique<WindowDriver>(requestFor(line));
        QTRY_COMPARE(m_window->dialog().task().phase(), PrintTask::Phase::Ready);
    }
    void cleanup() { m_window.reset(); }

    // Whoever offers to move them deletes the files when that is agreed to.
    void droppedDocumentsAreNeverMoved_data()
    {
        QTest::addColumn<Qt::DropActions>("possible");
        QTest::addColumn<Qt::DropAction>("done");
        QTest::newRow("anything") << Qt::DropActions(kAnything) << Qt::CopyAction;
        QTest::newRow("copied or moved") << (Qt::CopyAction | Qt::MoveAction) << Qt::CopyAction;
        QTest::newRow("linked or moved") << (Qt::LinkAction | Qt::MoveAction) << Qt::LinkAction;
    }
    void droppedDocumentsAreNeverMoved()
    {
        QFETCH(Qt::DropActions, possible);
        QFETCH(Qt::DropAction, done);
        const Answers answers = drop({file(u"a.txt"_s)}, possible);
        QVERIFY(answers.isTaken);
        QCOMPARE(answers.hovering, done);
        QCOMPARE(answers.dropped, done);
        QTRY_COMPARE(titles(), (QStringList{u"first.txt"_s, u"a.txt"_s}));
    }

    void whatCanOnlyBeMovedIsNotTaken()
    {
        QVERIFY(!drop({file(u"a.txt"_s)}, Qt::MoveAction).isTaken);
        QCOMPARE(titles(), QStringList{u"first.txt"_s});
    }

    void whatIsElsewhereIsNamedBesideWhatIsTaken()
    {
        QVERIFY(drop({QUrl(u"https://example.com/b.pdf"_s), file(u"a.txt"_s),
                      QUrl(u"file://another.example/c.pdf"_s)})
                    .isTaken);
        QTRY_COMPARE(titles(), (QStringList{u"first.txt"_s, u"a.txt"_s}));
        QTRY_COMPARE(m_window->message(),
                     u"https://example.com/b.pdf is not on this computer. Save it here to print "
                     "it.\nfile://another.example/c.pdf is not on this computer. Save it here to "
                     "print it."_s);
        QVERIFY(!drop({QUrl(u"https://example.com/b.pdf"_s)}).isTaken);
    }

    void anAddressThatNamesThisComputerIsAFile_data()
    {
        QTest::addColumn<QString>("host");
        QTest::newRow("nobody") << QString();
        QTest::newRow("localhost") << u"localhost"_s;
        QTest::newRow("its own name") << QSysInfo::machineHostName();
    }
    void anAddressThatNamesThisComputerIsAFile()
    {
        QFETCH(QString, host);
        QUrl url = file(u"a b.txt"_s);
        url.setHost(host);
        QVERIFY(drop({url}).isTaken);
        QTRY_COMPARE(titles(), (QStringList{u"first.txt"_s, u"a b.txt"_s}));
    }

    // File managers give the address as a text as well.
    void aFieldTakesTheDocumentForTheJob_data()
    {
        QTest::addColumn<QString>("field");
        for (const char *name : {"pageRanges", "copies", "findField", "output"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void aFieldTakesTheDocumentForTheJob()
    {
        QFETCH(QString, field);
        auto *widget = m_window->child<QWidget>(field);
        QVERIFY(widget);
        auto *edit = qobject_cast<QLineEdit *>(widget);
        if (!edit)
            edit = widget->findChild<QLineEdit *>();
        QVERIFY(edit);
        QMimeData data;
        data.setUrls({file(u"a.txt"_s)});
        data.setText(u"file:///a.txt"_s);
        QVERIFY(drop(data, edit, kAnything).isTaken);
        QTRY_COMPARE(titles(), (QStringList{u"first.txt"_s, u"a.txt"_s}));
        QVERIFY2(!edit->text().contains(u"file:"_s), qPrintable(edit->text()));
    }

    // Where there are documents already: their list and their pages show that more are taken.
    void whatHoversIsShownOverDocumentsAndPages()
    {
        m_window->dialog().resize(1120, 760);
        auto *area = m_window->child<QWidget>(u"preview"_s);
        auto *sheets = m_window->child<QWidget>(u"sheets"_s);
        QVERIFY(drop({file(u"a.txt"_s)}).isTaken);
        auto *list = m_window->child<QWidget>(u"documents"_s);
        QTRY_VERIFY_WITH_TIMEOUT(list->isVisible() && sheets->isVisible(), kWindowPatience);
        const QImage before = area->grab().toImage();
        QMimeData data;
        data.setUrls({file(u"b.txt"_s)});
        hover(data);
        const auto *hint = m_window->child<QWidget>(u"dropHint"_s);
        QVERIFY(hint && hint->isVisible());
        const QRect shown(hint->mapTo(area, QPoint()), hint->size());
        for (QWidget *part : {list, sheets})
            QVERIFY(shown.contains(QRect(part->mapTo(area, QPoint()), part->size())));
        const QImage hovered = area->grab().toImage();
        const QPoint corner = list->mapTo(area, QPoint(list->width() / 2, list->height() - 3));
        QVERIFY(hovered.pixel(corner) != before.pixel(corner));
        // The drop goes to what lies below.
        QVERIFY(area->childAt(shown.center()) != hint);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&m_window->dialog(), &leave);
        QVERIFY(!hint->isVisible());
        hover(data);
        QVERIFY(hint->isVisible());
        QVERIFY(drop(data, &m_window->dialog(), kAnything).isTaken);
        QVERIFY(!hint->isVisible());
    }

    void whatIsNotTakenHasNoHint()
    {
        QMimeData here;
        here.setUrls({file(u"a.txt"_s)});
        hover(here);
        const auto *hint = m_window->child<QWidget>(u"dropHint"_s);
        QVERIFY(hint && hint->isVisible());
        QMimeData elsewhere;
        elsewhere.setUrls({QUrl(u"https://example.com/b.pdf"_s)});
        hover(elsewhere);
        QVERIFY(!hint->isVisible());
    }

    // Other texts are still dropped into fields.
    void aTextIsDroppedIntoAField()
    {
        auto *edit = m_window->child<QLineEdit>(u"pageRanges"_s);
        QVERIFY(edit);
        QMimeData data;
        data.setText(u"1-2"_s);
        QVERIFY(drop(data, edit, Qt::CopyAction).isTaken);
        QCOMPARE(edit->text(), u"1-2"_s);
    }
};

QTEST_MAIN(DocumentDropTest)

#include "document_drop_test.moc"
