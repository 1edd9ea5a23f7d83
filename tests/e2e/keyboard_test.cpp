#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "dialog/window/preview/SheetView.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/UserHands.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/PrintedSides.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

// Somebody who has no mouse: a document is chosen, laid out, looked at, and printed.
class KeyboardTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"})
            qputenv(variable, QFile::encodeName(m_folder.path()));
        QDir::setCurrent(m_folder.path());
    }

    void aJobIsDoneWithKeysAlone()
    {
        const QString document =
            writeFile(m_folder.filePath(u"pages.pdf"_s), numberedPdf("page", 6));
        CommandLine line = sampleDocument();
        line.ppd = sourceFile(u"resources/ppd/corvana-cl5.ppd"_s);
        line.documents.clear();
        WindowDriver window(requestFor(line), WindowDriver::Activation::Yes);
        QTRY_COMPARE_WITH_TIMEOUT(window.dialog().task().phase(), PrintTask::Phase::Ready,
                                  kWindowPatience);
        QVERIFY(window.waitForPanel(1));
        UserHands hands(window.dialog());

        // Open. The dialog for files is the toolkit's own here, whose keys are not ours.
        QVERIFY(hands.tabTo(u"chooseDocuments"_s));
        QTimer::singleShot(300, this, [&] {
            auto *files = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(files);
            hands.type(document);
            hands.key(Qt::Key_Return);
        });
        hands.key(Qt::Key_Space);
        window.dialog().activateWindow(); // as a window manager does
        QVERIFY(QTest::qWaitForWindowActive(&window.dialog()));
        const auto *counts = window.child<QLabel>(u"counts"_s);
        QTRY_COMPARE_WITH_TIMEOUT(counts->text(), u"6 pages = 6 sheets"_s, kWindowPatience);

        // Lay out.
        QVERIFY(hands.tabTo(u"number-up"_s));
        hands.key(Qt::Key_Down);
        QTRY_COMPARE_WITH_TIMEOUT(counts->text(), u"6 pages = 3 sheets"_s, kWindowPatience);
        QVERIFY(hands.tabTo(u"Duplex"_s));
        hands.key(Qt::Key_Down);
        QTRY_COMPARE_WITH_TIMEOUT(counts->text(), u"6 pages = 2 sheets"_s, kWindowPatience);

        // Look, and hear.
        QVERIFY(hands.tabTo(u"sheets"_s));
        auto *sheets = window.child<SheetView>(u"sheets"_s);
        QAccessibleInterface *told = QAccessible::queryAccessibleInterface(sheets);
        QVERIFY(told);
        const QString first = told->text(QAccessible::Value) + told->text(QAccessible::Name) +
                              told->text(QAccessible::Description);
        QVERIFY2(first.contains(u"1 and 2"_s), qPrintable(first));
        hands.key(Qt::Key_Right);
        QCOMPARE(sheets->current(), (SideIndex{0, true}));
        hands.key(Qt::Key_Right);
        QCOMPARE(sheets->current(), (SideIndex{1, false}));
        const QString later = told->text(QAccessible::Value) + told->text(QAccessible::Name) +
                              told->text(QAccessible::Description);
        QVERIFY2(later.contains(u"5 and 6"_s), qPrintable(later));
        hands.key(Qt::Key_Home);
        QCOMPARE(sheets->current(), (SideIndex{0, false}));
        hands.key(Qt::Key_F6); // to another part of the window, and nothing is lost
        QVERIFY(!sheets->hasFocus());

        // Print.
        QVERIFY(hands.tabTo(u"print"_s));
        hands.key(Qt::Key_Return);
        QTRY_VERIFY_WITH_TIMEOUT(!window.dialog().printedTo().isEmpty(), 60000);
        QCOMPARE(hands.clicks(), 0);
        QFile file(window.dialog().printedTo());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray data = file.readAll();
        QCOMPARE(printedSides(data).size(), 3);
        QVERIFY(printedFeatures(data).contains(u"Duplex=DuplexNoTumble"_s));
    }
};

QTEST_MAIN(KeyboardTest)

#include "keyboard_test.moc"
