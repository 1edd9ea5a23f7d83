// The dialog on a small screen, with fonts of the usual size and of twice that: all of the window
// is on the screen, its buttons above all, whatever names it has to show.

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/session/DialogPreferences.h"
#include "dialog/window/PrinterHeader.h"
#include "dialog/window/WindowSize.h"
#include "dialog/window/chooser/ElidedLabel.h"
#include "dialog/window/chooser/PrinterStatusLine.h"
#include "dialog/window/pages/MessageBar.h"
#include "platform/foundation/UserDefaults.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

class SmallScreenTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_preferences;
    std::unique_ptr<WindowDriver> m_window;
    QFont m_font;

    PrintWindow &dialog() const { return m_window->dialog(); }
    template <typename Control> Control *control(const QString &name) const
    {
        return m_window->child<Control>(name);
    }

    void open(const QString &title, const QByteArray &ppd = {})
    {
        CommandLine line = sampleDocument();
        line.ppd = ppd.isEmpty() ? sharedFile(u"ppd/corvana-cl5.ppd"_s)
                                 : writeFile(m_preferences->filePath(u"office.ppd"_s), ppd);
        line.title = title;
        line.output = u"/tmp/%1.ps"_s.arg(title);
        m_window = std::make_unique<WindowDriver>(requestFor(line));
        QTRY_VERIFY(m_window->pages()->count() > 2);
        settle();
    }
    // What is laid out queues more of it.
    static void settle()
    {
        for (int i = 0; i < 5; ++i) {
            QCoreApplication::sendPostedEvents();
            QTest::qWait(5);
        }
    }
    // What of the window is not on the screen; empty when all is.
    QString whatIsOff() const
    {
        const QRect screen = dialog().screen()->availableGeometry();
        const QRect window = dialog().frameGeometry();
        const auto told = [](const QString &what, const QRect &place) {
            QString text;
            QDebug(&text) << what << place;
            return text;
        };
        if (!screen.contains(window))
            return told(u"the window"_s, window);
        for (const QString &name : {u"helpButton"_s, u"print"_s, u"cancel"_s}) {
            const auto *button = control<QPushButton>(name);
            const QRect place(button->mapToGlobal(QPoint()), button->size());
            if (!screen.contains(place) || !window.contains(place) ||
                button->width() < button->minimumSizeHint().width())
                return told(name, place);
        }
        return {};
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_font = QApplication::font();
        QCOMPARE(QGuiApplication::primaryScreen()->size(), QSize(1024, 600));
    }
    void init()
    {
        m_preferences = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_preferences->path()));
    }
    void cleanup()
    {
        m_window.reset();
        QApplication::setFont(m_font);
    }

    void everyPageIsOnTheScreen_data()
    {
        QTest::addColumn<int>("scale");
        QTest::addColumn<QString>("title");
        QTest::addColumn<bool>("panels");
        const QString longName(240, u'm');
        for (const int scale : {1, 2}) {
            for (const bool panels : {true, false}) {
                const char *printer = panels ? "panels" : "no panels";
                QTest::addRow("font x%d, %s", scale, printer) << scale << u"Report"_s << panels;
                QTest::addRow("font x%d, %s, a long name", scale, printer)
                    << scale << longName << panels;
            }
        }
    }
    void everyPageIsOnTheScreen()
    {
        QFETCH(int, scale);
        QFETCH(QString, title);
        QFETCH(bool, panels);
        QFont font = m_font;
        font.setPointSizeF(m_font.pointSizeF() * scale);
        QApplication::setFont(font);
        open(title, panels ? QByteArray() : officePrinter().text());
        const QString folder = qEnvironmentVariable("CORVANA_SCREENSHOTS");
        for (int page = 0; page < m_window->pages()->count(); ++page) {
            m_window->pages()->setCurrentIndex(page);
            settle();
            if (auto *more =
                    m_window->pages()->currentWidget()->findChild<QPushButton *>(u"optionButton"_s))
                more->setChecked(true);
            if (auto *more =
                    m_window->pages()->currentWidget()->findChild<QPushButton *>(u"more"_s)) {
                more->setChecked(true);
                settle();
                auto *area = m_window->pages()->currentWidget()->findChild<QScrollArea *>();
                QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
            }
            settle();
            QCOMPARE(whatIsOff(), QString());
            if (!folder.isEmpty())
                dialog().grab().save(u"%1/small-%2-%3.png"_s.arg(
                    folder, QString::fromUtf8(QTest::currentDataTag()).replace(u' ', u'-'),
                    QString::number(page)));
        }
        auto *message = control<MessageBar>(u"message"_s);
        message->showMessage(MessageBar::Kind::Problem,
                             QString(200, u'w') + u' ' + u"some words "_s.repeated(100),
                             u"Change to %1"_s.arg(QString(150, u'w')), [] {});
        settle();
        QCOMPARE(whatIsOff(), QString());
        m_window->pages()->setCurrentIndex(0);
        settle();
        QCOMPARE(whatIsOff(), QString());
        if (!folder.isEmpty())
            dialog().grab().save(u"%1/small-%2-message.png"_s.arg(
                folder, QString::fromUtf8(QTest::currentDataTag()).replace(u' ', u'-')));
        // What has no room scrolls.
        auto *area = m_window->pages()->currentWidget()->findChild<QScrollArea *>();
        const auto fields = area->findChildren<QComboBox *>();
        QVERIFY(!fields.isEmpty());
        for (QComboBox *field : fields) {
            if (!field->isVisible())
                continue;
            area->ensureWidgetVisible(field, 0, 0);
            const QRect place(field->mapTo(area->viewport(), QPoint()), field->size());
            QVERIFY2(place.top() >= 0 && place.top() < area->viewport()->height(),
                     qPrintable(field->objectName()));
        }
        dialog().close();
        const QVariantMap kept = UserDefaults::standardUserDefaults()
                                     .persistentDomainForName(kDialogDomain)
                                     .value_or(QVariantMap());
        QCOMPARE(kept, QVariantMap());
    }

    // Of a queue more is said above the pages than of a file: where it is, and another place to go.
    // What is left for the pages comes back when the message is closed.
    void aMessageAboutAQueueLeavesTheButtonsOnTheScreen_data()
    {
        QTest::addColumn<double>("scale");
        for (const double scale : {1.0, 2.0, 2.4, 2.6})
            QTest::addRow("font x%.1f", scale) << scale;
    }
    void aMessageAboutAQueueLeavesTheButtonsOnTheScreen()
    {
        QFETCH(double, scale);
        QFont font = m_font;
        font.setPointSizeF(m_font.pointSizeF() * scale);
        QApplication::setFont(font);
        open(u"Report"_s);
        Printer queue = m_window->dialog().task().printer();
        queue.origin = PrinterOrigin::Queue;
        queue.location = u"Room 1"_s;
        auto *header = dialog().findChild<PrinterHeader *>();
        header->showDestination(false, false, true);
        header->status()->setPrinter(queue);
        settle();
        QVERIFY(header->status()->isVisible());
        QCOMPARE(whatIsOff(), QString());
        const int before = m_window->pages()->height();
        auto *message = control<MessageBar>(u"message"_s);
        message->showMessage(MessageBar::Kind::Problem, u"some words "_s.repeated(100),
                             u"Print Again"_s, [] {});
        settle();
        QVERIFY(message->isVisible());
        QCOMPARE(whatIsOff(), QString());
        QVERIFY(m_window->pages()->height() >= m_window->pages()->tabBar()->height());
        message->dismiss();
        settle();
        QCOMPARE(whatIsOff(), QString());
        QCOMPARE(m_window->pages()->height(), before);
    }

    // Letters of twice the size, and the measures of a style that grow with them.
    void thePagesLeaveTheOthersThreeQuartersOfTheScreen()
    {
        QFont font = m_font;
        font.setPointSizeF(m_font.pointSizeF() * 4);
        QApplication::setFont(font);
        open(u"Report"_s);
        const int least = m_window->pages()->minimumSizeHint().height();
        QVERIFY2(least <= dialog().screen()->availableSize().height() / 4,
                 qPrintable(QString::number(least)));
        QVERIFY(m_window->pages()->minimumSizeHint().width() > 0);
    }

    void aLongNameKeepsBothItsEndsAndTheWindowItsWidth()
    {
        open(u"short"_s);
        const QSize usual = dialog().size();
        dialog().close();
        const QString name = u"begin"_s + QString(240, u'm') + u"end"_s;
        open(name);
        QCOMPARE(dialog().size(), usual);
        const auto *shown = control<ElidedLabel>(u"document"_s);
        QCOMPARE(shown->text(), name);
        QVERIFY(shown->shownText().startsWith(u"begin"_s));
        QVERIFY(shown->shownText().endsWith(u"end"_s));
        QVERIFY(shown->shownText().contains(u'…'));
    }

    // A user who has a large screen as well finds the size again there.
    void theSizeOfALargerScreenIsKept()
    {
        rememberWindowSize({1800, 1000});
        open(u"short"_s);
        QCOMPARE(whatIsOff(), QString());
        dialog().close();
        QCOMPARE(rememberedWindowSize({700, 600}, {4000, 3000}), QSize(1800, 1000));
    }

    // With a font that is much too large for the screen.
    void whatTheContentsForceOnTheWindowIsNotRemembered()
    {
        QFont font = m_font;
        font.setPointSizeF(m_font.pointSizeF() * 6);
        QApplication::setFont(font);
        open(u"short"_s);
        QVERIFY(dialog().height() > dialog().screen()->availableGeometry().height());
        dialog().close();
        QCOMPARE(rememberedWindowSize({700, 600}, {4000, 3000}), QSize(700, 600));
    }

    void whatTheUserMakesOfItIsRemembered()
    {
        open(u"short"_s);
        dialog().resize(640, 500);
        settle();
        dialog().close();
        QCOMPARE(rememberedWindowSize({700, 600}, {4000, 3000}), QSize(640, 500));
    }
};

QTEST_MAIN(SmallScreenTest)

#include "small_screen_test.moc"
