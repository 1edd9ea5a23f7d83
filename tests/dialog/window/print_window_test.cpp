#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScopeGuard>
#include <QScrollArea>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "dialog/printers/PrinterFetching.h"
#include "dialog/session/OptionRequest.h"
#include "dialog/window/JobFooter.h"
#include "tests/dialog/job/FakeFilter.h"
#include "tests/dialog/support/LoadedBundle.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/Gestures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// What the window owes the panels that it shows.
class PrintWindowTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<FakeFilter> m_filter;
    std::unique_ptr<WindowDriver> m_window;

    void open(const QByteArray &script, const QList<Printer> &printers)
    {
        m_filter = std::make_unique<FakeFilter>(script);
        PrintRequest request;
        request.documents = {m_filter->document()};
        request.title = u"Job"_s;
        request.output = m_filter->output();
        request.bundleRoots = builtBundleRoots();
        request.printers = printers;
        m_window = std::make_unique<WindowDriver>(request);
        QTRY_VERIFY(!dialog().findChildren<QScrollArea *>().isEmpty());
    }
    /// A printer without panels; the filter notes its arguments, one a line.
    void openOffice(const QStringList &options, const PpdBuilder &ppd = officePrinter())
    {
        m_filter = std::make_unique<FakeFilter>("printf '%s\\n' \"$@\" >$DIR/arguments; echo ok\n");
        writeFile(m_filter->ppdPath(), ppd.text());
        PrintRequest request;
        request.documents = {m_filter->document()};
        request.title = u"Job"_s;
        request.output = m_filter->output();
        request.options = options.isEmpty() ? QList<JobOption>() : parseOptions(options);
        request.printers = {small()};
        m_window = std::make_unique<WindowDriver>(request, WindowDriver::Activation::Yes);
    }
    QModelIndex option(const QString &keyword)
    {
        const QAbstractItemModel *model = control<QTreeView>(u"options"_s)->model();
        return model
            ->match(model->index(0, 0), Qt::UserRole, keyword, 1,
                    Qt::MatchExactly | Qt::MatchRecursive)
            .value(0)
            .siblingAtColumn(1);
    }
    QString shown(const QString &keyword) { return option(keyword).data().toString(); }
    /// Goes to an option and types the beginning of a choice, or a value in place of the former.
    void choose(const QString &keyword, const QString &typed)
    {
        auto *list = control<QTreeView>(u"options"_s);
        list->setCurrentIndex(option(keyword));
        if (!list->isAncestorOf(QApplication::focusWidget()))
            list->setFocus();
        else
            control<QLineEdit>(u"customValue"_s)->selectAll();
        QTest::keyClicks(QApplication::focusWidget(), typed.left(1));
        QTest::keyClicks(QApplication::focusWidget(), typed.mid(1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    static Printer sample() { return {u"cl5"_s, u"CL"_s, samplePpdPath(), 5}; }
    Printer small() const { return {u"small"_s, u"Small"_s, m_filter->ppdPath(), 1}; }

    PrintWindow &dialog() { return m_window->dialog(); }
    template <typename Control> Control *control(const QString &name)
    {
        return m_window->child<Control>(name);
    }
    QList<QWidget *> panelViews() { return m_window->panelViews(); }
    QString message() { return m_window->message(); }

private Q_SLOTS:
    void cleanup()
    {
        m_window.reset();
        m_filter.reset();
    }

    // Help is open, say, while the options of another printer come.
    void aWindowThatWasActiveWhenPanelsCameUpMayClose()
    {
        Printer second = sample();
        second.name = u"second"_s;
        open("echo ok\n", {sample(), second});
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        auto *printers = control<QComboBox>(u"printers"_s);
        const QPointer<QWidget> first = panelViews().value(0);
        printers->setCurrentIndex(1 - printers->currentIndex());
        Q_EMIT printers->activated(printers->currentIndex());
        QTRY_VERIFY(!first && panelViews().size() == 2);
        QVERIFY(other.isActiveWindow());
        other.close();
        QCoreApplication::processEvents();
        // The panel's instruction for envelopes.
        QTimer answering;
        connect(&answering, &QTimer::timeout, [] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
                box->buttons().constFirst()->click();
        });
        answering.start(10);
        auto *pages = control<QTabWidget>(u"pages"_s);
        auto *sizes = control<QComboBox>(u"PageSize"_s);
        sizes->setCurrentIndex(sizes->findData(u"EnvDL"_s));
        Q_EMIT sizes->activated(sizes->currentIndex());
        pages->setCurrentIndex(1);
        QCoreApplication::processEvents();
        auto *media = control<QComboBox>(u"mediaTypePopup"_s);
        QTRY_COMPARE(media->currentData().toString(), u"Env"_s);
    }

    // The first question to a theme takes as long as the first paint itself.
    void thePrintersPictureIsTheThemesAfterTheFirstPaint()
    {
        const QTemporaryDir themes;
        const QColor unmistakable(1, 200, 100);
        QVERIFY(QDir(themes.path()).mkpath(u"test/48"_s));
        writeFile(themes.filePath(u"test/index.theme"_s),
                  "[Icon Theme]\nName=test\nDirectories=48\n[48]\nSize=48\n");
        QImage picture(48, 48, QImage::Format_ARGB32);
        picture.fill(unmistakable);
        QVERIFY(picture.save(themes.filePath(u"test/48/printer.png"_s)));
        const auto former = std::pair(QIcon::themeSearchPaths(), QIcon::themeName());
        const auto restored = qScopeGuard([&former] {
            QIcon::setThemeSearchPaths(former.first);
            QIcon::setThemeName(former.second);
        });
        QIcon::setThemeSearchPaths({themes.path()});
        QIcon::setThemeName(u"test"_s);
        const auto isThemes = [&](const QPixmap &pixmap) {
            return pixmap.toImage().pixelColor(pixmap.width() / 4, pixmap.height() / 4) ==
                   unmistakable;
        };
        // Twice: what an earlier window has asked for counts for no later one.
        for (int window = 0; window < 2; ++window) {
            m_filter = std::make_unique<FakeFilter>("echo ok\n");
            PrintRequest request;
            request.documents = {m_filter->document()};
            request.output = m_filter->output();
            request.printers = {small()};
            request.printers[0].state = PrinterState::Processing; // told below the printer
            const auto shown = [](PrintWindow &of) {
                const auto *printers = of.findChild<QComboBox *>(u"printers"_s);
                return printers->itemIcon(printers->currentIndex()).pixmap(48, 48);
            };
            PrintWindow unseen(request);
            QVERIFY(!isThemes(shown(unseen)));
            m_window = std::make_unique<WindowDriver>(request);
            QTRY_VERIFY(isThemes(shown(dialog())));
            QVERIFY(!isThemes(shown(unseen)));
        }
    }

    void panelsComeUpAfterTheFirstPaint()
    {
        open("echo ok\n", {sample()});
        QTRY_COMPARE(panelViews().size(), 2);
    }

    void theOptionsThatRulesReadHaveControls_data()
    {
        QTest::addColumn<QString>("keyword");
        QTest::newRow("output destination") << u"QXOutput"_s;
        QTest::newRow("who matches colors") << u"AP_ColorMatchingMode"_s;
        QTest::newRow("two-sided") << u"Duplex"_s;
        QTest::newRow("paper size") << u"PageSize"_s;
    }
    void theOptionsThatRulesReadHaveControls()
    {
        QFETCH(QString, keyword);
        open("echo ok\n", {sample()});
        auto *popUp = control<QComboBox>(keyword);
        QVERIFY(popUp);
        QVERIFY(popUp->isEnabled());
        QVERIFY(popUp->count() >= 2);
    }

    void noAncestorOfAPanelIsEverDisabled()
    {
        open("touch $DIR/started; sleep 300\n", {sample()});
        QTRY_COMPARE(panelViews().size(), 2);
        const auto verify = [&] {
            for (QWidget *view : panelViews()) {
                for (QWidget *widget = view; widget; widget = widget->parentWidget())
                    QVERIFY2(widget->isEnabled(), qPrintable(widget->objectName()));
            }
        };
        verify();
        QVERIFY(m_window->pressPrint());
        QVERIFY(m_filter->waitForFile(u"started"_s));
        verify();
        dialog().reject();
        QTRY_COMPARE_WITH_TIMEOUT(message(), u"Printing was canceled."_s, 10000);
        verify();
    }

    void aCanceledJobLeavesTheDialogOpenAndReady()
    {
        open("touch $DIR/started; sleep 300\n", {sample()});
        auto *print = control<QPushButton>(u"print"_s);
        QTRY_VERIFY(print->isEnabled());
        print->click();
        QVERIFY(m_filter->waitForFile(u"started"_s));
        dialog().reject();
        QTRY_VERIFY_WITH_TIMEOUT(print->isEnabled(), 10000);
        QVERIFY(dialog().isVisible());
        QVERIFY(dialog().printedTo().isEmpty());
    }

    void theFocusOfPrintDoesNotGoToCancelWhileTheJobRuns()
    {
        open("touch $DIR/started; sleep 300\n", {sample()});
        QTRY_COMPARE(panelViews().size(), 2);
        dialog().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog()));
        auto *print = control<QPushButton>(u"print"_s);
        print->setFocus();
        QTest::keyClick(print, Qt::Key_Space);
        QVERIFY(m_filter->waitForFile(u"started"_s));
        // A second press takes nothing back.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(dialog().task().phase(), PrintTask::Phase::Printing);
        QVERIFY(!control<QLineEdit>(u"output"_s)->isEnabled());
        dialog().reject();
        QTRY_VERIFY_WITH_TIMEOUT(print->isEnabled(), 10000);
        QVERIFY(print->hasFocus());
        QVERIFY(control<QLineEdit>(u"output"_s)->isEnabled());
    }

    void aRunningJobDoesNotWidenTheWindow()
    {
        open("touch $DIR/started; sleep 300\n", {sample()});
        QTRY_COMPARE(panelViews().size(), 2);
        const int width = dialog().width();
        QVERIFY(m_window->pressPrint());
        QVERIFY(m_filter->waitForFile(u"started"_s));
        QVERIFY(control<QLabel>(u"progressText"_s)->isVisible());
        // What a printer says may be long, and a job that a queue has can be left as well.
        dialog().findChild<JobFooter *>()->showProgress({}, true);
        QVERIFY(control<QPushButton>(u"leave"_s)->isVisible());
        control<QLabel>(u"progressText"_s)->setText(QString(200, u'w'));
        dialog().layout()->activate();
        QCOMPARE(dialog().width(), width);
        dialog().reject();
        QTRY_COMPARE_WITH_TIMEOUT(message(), u"Printing was canceled."_s, 10000);
        QVERIFY(!control<QLabel>(u"progressText"_s)->isVisible());
    }

    void aFailureOffersToPrintAgain()
    {
        open("[ -e $DIR/mended ] || exit 1; echo ok\n", {sample()});
        QTRY_COMPARE(panelViews().size(), 2);
        QVERIFY(m_window->pressPrint());
        QTRY_VERIFY_WITH_TIMEOUT(!message().isEmpty(), 10000);
        QCOMPARE(control<QPushButton>(u"messageAction"_s)->text(), u"Print Again"_s);
        QVERIFY2(!message().contains(u"twice"_s), qPrintable(message()));
        writeFile(m_filter->path(u"mended"_s), "");
        QVERIFY(m_window->press(u"messageAction"_s));
        QTRY_VERIFY_WITH_TIMEOUT(m_filter->hasOutput(), 10000);
        QTRY_VERIFY(!dialog().isVisible());
    }

    void noButtonOfTheFooterWidensTheWindow_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("silenced messages") << u"silencedAlerts"_s;
        QTest::newRow("close") << u"leave"_s;
    }
    void noButtonOfTheFooterWidensTheWindow()
    {
        QFETCH(QString, button);
        open("echo ok\n", {sample()});
        QTRY_COMPARE(panelViews().size(), 2);
        // Whatever else is in the window shall not decide how narrow it can be.
        for (int i = control<QTabWidget>(u"pages"_s)->count(); i > 0; --i)
            control<QTabWidget>(u"pages"_s)->removeTab(0);
        for (QWidget *field : {control<QWidget>(u"printers"_s), control<QWidget>(u"output"_s)})
            field->setMinimumWidth(1);
        dialog().layout()->activate();
        dialog().resize(1, dialog().height());
        const int width = dialog().width();
        auto *footer = dialog().findChild<JobFooter *>();
        QTRY_VERIFY(footer->width() < width); // the window's new width has reached it
        if (button == u"leave"_s)
            footer->showProgress({}, true);
        control<QWidget>(button)->show();
        dialog().layout()->activate();
        QCOMPARE(dialog().width(), width);
        QVERIFY(width < dialog().fontMetrics().height() * 36); // which is what it begins with
    }

    void aPrintedJobClosesTheDialogAndNamesItsPlace()
    {
        open("echo ok\n", {sample()});
        QTRY_COMPARE(panelViews().size(), 2);
        QVERIFY(m_window->pressPrint());
        QTRY_COMPARE_WITH_TIMEOUT(dialog().printedTo(), m_filter->output(), 10000);
        QVERIFY(!dialog().isVisible());
        QCOMPARE(m_filter->content(u"out.ps"_s), QByteArray("ok\n"));
    }

    void aDialogThatIsDestroyedInTheMidstOfAJobTakesItAlong()
    {
        open("echo $$ > $DIR/parent; touch $DIR/started; sleep 300\n", {sample()});
        QTRY_COMPARE(panelViews().size(), 2);
        QVERIFY(m_window->pressPrint());
        QVERIFY(m_filter->waitForFile(u"started"_s));
        m_window.reset();
        QVERIFY(m_filter->waitForEndOf(u"parent"_s));
        QVERIFY(m_filter->leftOvers().isEmpty());
    }

    void anotherPrinterGetsNewPanelsAndTheOldOnesGo()
    {
        Printer other = sample();
        other.name = u"second"_s;
        other.description = u"Second"_s;
        open("echo ok\n", {sample(), other});
        QTRY_COMPARE(panelViews().size(), 2);
        const QPointer<QWidget> before = panelViews().constFirst();
        QVERIFY(pick(control<QComboBox>(u"printers"_s), u"Second"_s));
        QTRY_VERIFY(before.isNull());
        QTRY_COMPARE(panelViews().size(), 2);
    }

    void aPrinterWithoutPanelsShowsItsOptionsAsTheCommandLineSetThem()
    {
        openOffice({u"Tray=Lower Sleep=Custom.12"_s});
        auto *pages = control<QTabWidget>(u"pages"_s);
        QCOMPARE(pages->count(), 3);
        QCOMPARE(pages->tabText(1), u"Options"_s);
        QTRY_COMPARE(shown(u"Tray"_s), u"Lower Tray"_s);
        QCOMPARE(shown(u"Sleep"_s), u"Custom: 12"_s);
        QStringList lines;
        for (const auto &[title, value] : m_window->summaryLines())
            lines += title + u": "_s + value;
        QCOMPARE(lines, (QStringList{u"Copies: 1"_s, u"Sheets: …"_s, u"Two-Sided: Off"_s,
                                     u"Paper Size: A4"_s, u"Paper Source: Lower Tray"_s,
                                     u"Sleep Time: 12"_s}));
    }

    void theOptionsOfAPrinterWithoutPanelsArePrinted()
    {
        openOffice({});
        m_window->showPage(1);
        choose(u"Tray"_s, u"upper"_s);
        QCOMPARE(shown(u"Tray"_s), u"Upper Tray"_s);
        QVERIFY(m_window->pressPrint());
        QTRY_VERIFY_WITH_TIMEOUT(!dialog().isVisible(), 10000);
        const QByteArrayList arguments = m_filter->content(u"arguments"_s).split('\n');
        QVERIFY(arguments.contains("Tray=Upper"));
        QVERIFY(arguments.contains("Media=Plain"));
    }

    void aRefusedOptionIsPutBackAndTheWayOutTakesIt()
    {
        openOffice({u"Staple=Left"_s});
        m_window->showPage(1);
        QTRY_COMPARE(shown(u"Staple"_s), u"Top Left"_s);
        choose(u"Media"_s, u"trans"_s);
        QVERIFY2(message().contains(u"Top Left"_s), qPrintable(message()));
        QCOMPARE(shown(u"Media"_s), u"Plain Paper"_s);
        QVERIFY(m_window->press(u"messageAction"_s));
        QCOMPARE(shown(u"Media"_s), u"Transparency"_s);
        QCOMPARE(shown(u"Staple"_s), u"Off"_s);
    }

    void anOfferGoesWithThePrinterThatItWasMadeFor()
    {
        openOffice({u"Staple=Left"_s});
        m_window->showPage(1);
        QTRY_COMPARE(shown(u"Staple"_s), u"Top Left"_s);
        choose(u"Media"_s, u"trans"_s);
        QVERIFY(!message().isEmpty());
        // Its options change at the server to something that cannot be opened.
        writeFile(m_filter->ppdPath(), "no PPD any more");
        Q_EMIT dialog().task().printers().ready(printerWithItsFile(small()));
        QVERIFY(!control<QWidget>(u"messageAction"_s)->isVisible());
        QCOMPARE(dialog().task().phase(), PrintTask::Phase::Missing);
    }

    void aRefusedValueIsSaidAsThePagesShowIt()
    {
        openOffice({u"Staple=Left"_s},
                   officePrinter().constraint("Sleep", "Custom", "Staple", "Left"));
        m_window->showPage(1);
        QTRY_COMPARE(shown(u"Staple"_s), u"Top Left"_s);
        choose(u"Sleep"_s, u"Custom"_s);
        choose(u"Sleep"_s, u"12"_s);
        QCOMPARE(message(), u"“Sleep Time: 12” cannot be combined with “Staple: Top Left”."_s);
    }

    void aValueThatCannotBeTakenHoldsTheJobBack()
    {
        openOffice({u"Sleep=Custom.12"_s});
        auto *pages = control<QTabWidget>(u"pages"_s);
        pages->setCurrentIndex(1);
        QTRY_COMPARE(shown(u"Sleep"_s), u"Custom: 12"_s);
        choose(u"Sleep"_s, u"100"_s);
        pages->setCurrentIndex(0);
        QVERIFY(m_window->pressPrint());
        QVERIFY(dialog().isVisible());
        QCOMPARE(pages->currentIndex(), 1);
        QVERIFY(control<QLabel>(u"hint"_s)->text().contains(u"1 to 99"_s));
        QCOMPARE(control<QLineEdit>(u"customValue"_s)->text(), u"100"_s);
        QVERIFY(control<QLineEdit>(u"customValue"_s)->hasFocus());
        choose(u"Sleep"_s, u"42"_s);
        QVERIFY(m_window->pressPrint());
        QTRY_VERIFY_WITH_TIMEOUT(!dialog().isVisible(), 10000);
        QVERIFY(m_filter->content(u"arguments"_s).split('\n').contains("Sleep=Custom.42"));
    }

    void panelsLeaveNoPlaceForTheOptions()
    {
        open("echo ok\n", {sample()});
        QTRY_COMPARE(panelViews().size(), 2);
        QVERIFY(!control<QTreeView>(u"options"_s));
    }

    void aPrinterWithoutFurtherOptionsHasNoPageForThem()
    {
        openOffice({}, PpdBuilder());
        QCOMPARE(control<QTabWidget>(u"pages"_s)->count(), 2);
    }

    void aRefusedPickOffersTheWayOut()
    {
        open("echo ok\n", {sample()});
        QTRY_COMPARE(panelViews().size(), 2);
        auto *duplex = control<QComboBox>(u"Duplex"_s);
        QVERIFY(pick(duplex, u"Long-Edge Binding"_s));
        m_window->showPage(1);
        auto *media = panelViews().at(0)->findChild<QComboBox *>(u"mediaTypePopup"_s);
        QVERIFY(media);
        const QString before = media->currentText();
        QVERIFY(pick(media, u"Glossy Paper"_s));
        QTRY_VERIFY2(message().contains(u"Glossy Paper"_s), qPrintable(message()));
        QVERIFY2(message().contains(u"Long-Edge Binding"_s), qPrintable(message()));
        QCOMPARE(media->currentText(), before); // refused, so shown as it was
        // How it is loaded is shown as after any pick.
        bool shown = false;
        QTimer::singleShot(0, this, [&shown] {
            auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(alert);
            shown = true;
            alert->buttons().constFirst()->click();
        });
        QVERIFY(m_window->press(u"messageAction"_s));
        QVERIFY(shown);
        QTRY_COMPARE(media->currentText(), u"Glossy Paper"_s);
        QCOMPARE(duplex->currentText(), u"Off (1-Sided)"_s);
    }
};

QTEST_MAIN(PrintWindowTest)

#include "print_window_test.moc"
