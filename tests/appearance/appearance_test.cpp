// Every page of the dialog, looked at for what a designer would not let pass: clipped texts,
// overlapping controls, texts that cannot be read on their background, controls without a name.

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QTreeView>

#include "dialog/app/Translations.h"
#include "dialog/window/pages/MessageBar.h"
#include "dialog/window/preview/SheetView.h"
#include "tests/appearance/Inspection.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// A dark palette moves nothing: where only the room for texts is in question, the light one does.
QList<bool> looks()
{
    return qEnvironmentVariableIsSet("CORVANA_LIGHT_ONLY") ? QList<bool>{false}
                                                           : QList<bool>{false, true};
}

QPalette darkPalette()
{
    QPalette palette(QColor(0x2b, 0x2b, 0x2b));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::AlternateBase, QColor(0x33, 0x33, 0x33));
    return palette;
}

PrintRequest request(const QStringList &options, const QString &printer = u"cl5"_s)
{
    CommandLine line = sampleDocument();
    line.ppd = sharedFile(u"ppd/corvana-%1.ppd"_s).arg(printer);
    line.options = options;
    return requestFor(line);
}

} // namespace

class AppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
        installTranslations(*qApp, corvana::test::sharedFile(u"translations"_s));
    }

    // Buttons of Qt's own dialogs stand beside ours.
    void qtSpeaksTheLanguageOfTheDialog()
    {
        const QString texts = u"%1/qtbase_%2.qm"_s.arg(
            QLibraryInfo::path(QLibraryInfo::TranslationsPath), QLocale().name());
        const QString ours = QCoreApplication::translate("corvana::SavePresetDialog", "Cancel");
        if (!QFile::exists(texts) && !QFile::exists(texts.section(u'_', 0, -2) + u".qm"_s))
            QSKIP("Qt has no texts in this language here.");
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), ours);
    }

    void everyPageIsWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<int>("page");
        const char *names[] = {"general", "print-setting", "color-setting", "summary"};
        for (const bool dark : looks()) {
            for (int page = 0; page < 4; ++page)
                QTest::addRow("%s_%s", names[page], dark ? "dark" : "light") << dark << page;
        }
    }

    void everyPageIsWhole()
    {
        QFETCH(bool, dark);
        QFETCH(int, page);
        QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
        WindowDriver window(request({}));
        PrintWindow &dialog = window.dialog();
        auto *pages = window.pages();
        QCOMPARE(pages->count(), 4);
        pages->setCurrentIndex(page);
        QTest::qWait(50);
        savePicture(dialog, QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(faultsOf(&dialog), QString());
        QCOMPARE(sharedAccessKeys(&dialog).join(u'\n'), QString());
    }

    void everyShapeOfTheWindowIsWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("shape");
        for (const bool dark : looks()) {
            for (const char *shape : {"two-sided", "several-documents", "no-document", "folded",
                                      "mirrored", "narrow", "message", "found"})
                QTest::addRow("shape_%s_%s", shape, dark ? "dark" : "light")
                    << dark << QString::fromLatin1(shape);
        }
    }

    void everyShapeOfTheWindowIsWhole()
    {
        QFETCH(bool, dark);
        QFETCH(QString, shape);
        QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
        QApplication::setLayoutDirection(shape == "mirrored"_L1 ? Qt::RightToLeft
                                                                : Qt::LeftToRight);
        PrintRequest wanted = request({u"sides=two-sided-long-edge"_s});
        if (shape == "several-documents"_L1) {
            while (wanted.documents.size() < 6)
                wanted.documents += wanted.documents.constFirst();
            wanted.documents[1].title = QString(150, u'm') + u".pdf"_s;
        }
        if (shape == "no-document"_L1)
            wanted.documents.clear();
        WindowDriver window(wanted);
        PrintWindow &dialog = window.dialog();
        QTRY_COMPARE(dialog.task().phase(), PrintTask::Phase::Ready);
        if (shape == "narrow"_L1)
            dialog.resize(dialog.width() - window.child<QWidget>(u"preview"_s)->width() + 330,
                          dialog.height());
        if (shape == "folded"_L1)
            window.child<QToolButton>(u"foldPreview"_s)->click();
        if (shape == "message"_L1)
            window.child<MessageBar>(u"message"_s)
                ->showMessage(MessageBar::Kind::Problem, u"Some words. "_s.repeated(60),
                              u"Change it"_s, [] {});
        if (shape == "found"_L1)
            window.child<QLineEdit>(u"findField"_s)->setText(u"o"_s); // finds more than it shows
        auto *sheets = window.child<SheetView>(u"sheets"_s);
        if (shape != "no-document"_L1)
            QTRY_VERIFY_WITH_TIMEOUT(!sheets->sheets().plan.sheets.isEmpty(), kWindowPatience);
        QTest::qWait(500); // for the pictures
        savePicture(dialog, QString::fromLatin1(QTest::currentDataTag()));
        const QString faults = faultsOf(&dialog);
        QApplication::setLayoutDirection(Qt::LeftToRight);
        if (shape == "folded"_L1)
            window.child<QToolButton>(u"foldPreview"_s)->click(); // which is remembered
        QCOMPARE(faults, QString());
    }

    void theAttributesOfAJobAreWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<bool>("opened");
        for (const bool dark : looks()) {
            for (const bool opened : {false, true})
                QTest::addRow("attributes_%s_%s", opened ? "opened" : "closed",
                              dark ? "dark" : "light")
                    << dark << opened;
        }
    }

    // With each kind of row, something of every kind in force, and a value that is refused.
    void theAttributesOfAJobAreWhole()
    {
        QFETCH(bool, dark);
        QFETCH(bool, opened);
        QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
        QString options = QStringLiteral(
            "number-up=4 print-scaling=auto-fit number-up-layout=tbrl page-border=double-thick "
            "job-hold-until=12:30 job-sheets=standard,classified page-top=36");
        if (!opened) // what a disclosure says of these has no end
            options +=
                QStringLiteral(" outputorder=reverse job-billing=%1").arg(QString(200, u'm'));
        PrintWindow dialog(request({options}));
        const int width = dialog.width();
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *pages = dialog.findChild<QTabWidget *>(QStringLiteral("pages"));
        QTRY_COMPARE(dialog.findChild<QComboBox *>(QStringLiteral("number-up"))->currentText(),
                     QStringLiteral("4"));
        if (opened) {
            dialog.findChild<QPushButton *>(QStringLiteral("more"))->click();
            auto *priority = dialog.findChild<QDoubleSpinBox *>(QStringLiteral("job-priority"));
            priority->setValue(101);
            const auto *note = dialog.findChild<QLabel *>(QStringLiteral("job-priorityNote"));
            QVERIFY(note && note->isVisibleTo(&dialog));
        }
        QTest::qWait(50);
        savePicture(dialog, QString::fromLatin1(QTest::currentDataTag()));
        auto *area = pages->currentWidget()->findChild<QScrollArea *>();
        QCOMPARE(clippedTexts(&dialog).join(u'\n'), QString());
        QCOMPARE(faultsOf(&dialog), QString());
        QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
        QCOMPARE(dialog.width(), width);
    }

    void theOptionsOfAPrinterWithoutPanelsAreWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("edited");
        for (const bool dark : looks()) {
            for (const char *edited : {"", "Media", "Sleep"})
                QTest::addRow("options%s%s_%s", *edited ? "_" : "", edited, dark ? "dark" : "light")
                    << dark << QString::fromLatin1(edited);
        }
    }

    void theOptionsOfAPrinterWithoutPanelsAreWhole()
    {
        QFETCH(bool, dark);
        QFETCH(QString, edited);
        QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
        const QTemporaryDir folder;
        PrintRequest office =
            request({u"PageSize=Postcard Staple=Left Sleep=Custom.12 Tray2=ON Pin=Custom.1234"_s});
        office.printers = {{u"office"_s, u"Office"_s,
                            writeFile(folder.filePath(u"office.ppd"_s), officePrinter().text()),
                            1}};
        office.wantedPrinter.clear();
        WindowDriver window(office);
        PrintWindow &dialog = window.dialog();
        dialog.activateWindow();
        auto *pages = window.pages();
        QCOMPARE(pages->count(), 3);
        pages->setCurrentIndex(1);
        auto *options = window.child<QTreeView>(u"options"_s);
        // The options are taken after the first paint.
        auto *sizes = window.child<QComboBox>(u"PageSize"_s);
        QTRY_COMPARE(sizes->currentIndex(), 1);
        const QModelIndexList found =
            options->model()->match(options->model()->index(0, 0), Qt::UserRole, edited, 1,
                                    Qt::MatchExactly | Qt::MatchRecursive);
        if (!found.isEmpty()) {
            options->setFocus();
            options->setCurrentIndex(found.constFirst().siblingAtColumn(1));
            QTest::keyClick(options, Qt::Key_Return);
        }
        QTest::qWait(50);
        savePicture(dialog, QString::fromLatin1(QTest::currentDataTag()));
        if (QWidget *list = QApplication::activePopupWidget())
            savePicture(*list, u"list_%1"_s.arg(QString::fromLatin1(QTest::currentDataTag())));
        QCOMPARE(faultsOf(&dialog), QString());
        QCOMPARE(options->horizontalScrollBar()->maximum(), 0);
    }

    void everyAdvancedOptionIsWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("page");
        // Between them they have each option in each of its forms.
        const std::pair<const char *, QStringList> printers[] = {
            {"cl5",
             {u"TonerSaveMode"_s, u"ImproveOutput"_s, u"QXDensityAdjustment"_s, u"QXSleepTime"_s,
              u"QXQuietMode"_s, u"OtherOption"_s}},
            {"cl3",
             {u"ImproveOutput"_s, u"QXDensityAdjustment"_s, u"QXQuietMode"_s, u"OtherOption"_s}},
            {"cl2",
             {u"TonerSaveMode"_s, u"ImproveOutput"_s, u"QXDensityAdjustment"_s, u"QXSleepTime"_s}},
        };
        for (const bool dark : looks()) {
            for (const auto &[printer, pages] : printers) {
                for (const QString &page : pages)
                    QTest::addRow("advanced_%s_%s_%s", printer, qPrintable(page),
                                  dark ? "dark" : "light")
                        << dark << QString::fromLatin1(printer) << page;
            }
        }
    }

    void everyAdvancedOptionIsWhole()
    {
        QFETCH(bool, dark);
        QFETCH(QString, printer);
        QFETCH(QString, page);
        QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
        WindowDriver window(request({}, printer));
        PrintWindow &dialog = window.dialog();
        auto *pages = window.pages();
        pages->setCurrentIndex(1);
        auto *panel = qobject_cast<QScrollArea *>(pages->currentWidget());
        QVERIFY(window.waitForPanel(pages->currentIndex()));
        panel->widget()->findChild<QPushButton *>(u"optionButton"_s)->click();
        auto *rows = panel->widget()->findChild<QTableView *>(u"advancedTableView"_s);
        auto *shown = panel->widget()->findChild<QWidget *>(page);
        QVERIFY(shown && rows->isVisible());
        for (int row = 0; row < rows->model()->rowCount() && !shown->isVisible(); ++row)
            rows->selectRow(row);
        QVERIFY(shown->isVisible());
        QTest::qWait(50);
        savePicture(dialog, QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(faultsOf(&dialog), QString());
        QCOMPARE(clippedControls(shown).join(u'\n'), QString());
        QCOMPARE(clippedTexts(&dialog).join(u'\n'), QString());
        // The window has grown as far as is needed.
        QCOMPARE(panel->verticalScrollBar()->maximum(), 0);
        QCOMPARE(panel->horizontalScrollBar()->maximum(), 0);
    }

    void theColorAdjustmentIsWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("printer");
        // With all effects, with two of them, and with the longest list of modes.
        for (const bool dark : looks()) {
            for (const char *printer : {"cl5", "cl3", "cl4"})
                QTest::addRow("adjustment_%s_%s", printer, dark ? "dark" : "light")
                    << dark << QString::fromLatin1(printer);
        }
    }

    void theColorAdjustmentIsWhole()
    {
        QFETCH(bool, dark);
        QFETCH(QString, printer);
        QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
        WindowDriver window(request({}, printer));
        PrintWindow &dialog = window.dialog();
        auto *pages = window.pages();
        pages->setCurrentIndex(2);
        auto *panel = qobject_cast<QScrollArea *>(pages->currentWidget());
        QVERIFY(window.waitForPanel(pages->currentIndex()));
        panel->widget()->findChild<QPushButton *>(u"optionButton"_s)->click();
        auto *preview = panel->widget()->findChild<QWidget *>(u"effectImageView"_s);
        QTRY_VERIFY(preview->isVisible());
        QTest::qWait(50);
        savePicture(dialog, QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(faultsOf(&dialog), QString());
        QCOMPARE(clippedTexts(&dialog).join(u'\n'), QString());
        QCOMPARE(panel->verticalScrollBar()->maximum(), 0);
        QCOMPARE(panel->horizontalScrollBar()->maximum(), 0);
        // The preview shows something to judge by.
        const QImage picture = preview->grab().toImage();
        QSet<QRgb> colors;
        for (int x = 0; x < picture.width(); x += 4)
            colors += picture.pixel(x, picture.height() / 6);
        QVERIFY2(colors.size() > 8, qPrintable(QString::number(colors.size())));
    }

    void everyAlertIsWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<bool>("whenPrinting");
        QTest::addColumn<QStringList>("options");
        const bool japanese = qgetenv("LC_ALL").startsWith("ja");
        for (const bool dark : looks()) {
            const char *look = dark ? "dark" : "light";
            const auto alert = [&](const char *medium, const char *duplex, bool whenPrinting) {
                QStringList options{u"QXMediaType=%1"_s.arg(QLatin1StringView(medium))};
                if (*duplex)
                    options += u"Duplex=%1"_s.arg(QLatin1StringView(duplex));
                QTest::addRow("alert_%s_%s%s_%s", whenPrinting ? "back-cover" : "media", medium,
                              *duplex ? "_two-sided" : "", look)
                    << dark << whenPrinting << options;
            };
            for (const char *medium : {"Thick", "Glossy", "Label"})
                alert(medium, "", false);
            for (const char *duplex : {"", "DuplexNoTumble"}) {
                alert("Env", duplex, true);
                alert("Label", duplex, true);
                if (japanese) // elsewhere this medium is not offered
                    alert("PostCard", duplex, true);
            }
        }
    }

    void everyAlertIsWhole()
    {
        QFETCH(bool, dark);
        QFETCH(bool, whenPrinting);
        QFETCH(QStringList, options);
        QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
        QTemporaryDir folder;
        PrintRequest wanted = request(whenPrinting ? options : QStringList());
        wanted.output = folder.filePath(u"job.ps"_s);
        WindowDriver window(wanted);
        PrintWindow &dialog = window.dialog();
        auto *pages = window.pages();
        pages->setCurrentIndex(1);
        QVERIFY(window.waitForPanel(1));
        AlertInspector inspector(QString::fromLatin1(QTest::currentDataTag()));
        if (whenPrinting) {
            QVERIFY(window.pressPrint());
        } else {
            auto *media = window.child<QComboBox>(u"mediaTypePopup"_s);
            const QString medium = options.constFirst().section(u'=', 1);
            media->setCurrentIndex(media->findData(medium));
            Q_EMIT media->activated(media->currentIndex());
        }
        QCOMPARE(inspector.seen, 1);
        QCOMPARE(inspector.faults.join(u'\n'), QString());
        dialog.reject(); // and with it the job
    }

    void aMessageFitsIntoTheDialog()
    {
        QApplication::setPalette(QApplication::style()->standardPalette());
        WindowDriver window(request({u"QXMediaType=Glossy"_s}));
        PrintWindow &dialog = window.dialog();
        QTest::qWait(50);
        auto *duplex = window.child<QComboBox>(u"Duplex"_s);
        duplex->setCurrentIndex(1);
        QTest::qWait(50);
        QVERIFY(!window.message().isNull());
        savePicture(dialog, u"conflict"_s);
        QCOMPARE(clippedControls(&dialog).join(u'\n'), QString());
        QCOMPARE(overlappingControls(&dialog).join(u'\n'), QString());
    }

    void aNarrowedDialogScrollsInsteadOfClipping()
    {
        WindowDriver window(request({}));
        PrintWindow &dialog = window.dialog();
        auto *pages = window.pages();
        pages->setCurrentIndex(2);
        dialog.resize(dialog.minimumSizeHint());
        QTest::qWait(50);
        auto *area = qobject_cast<QScrollArea *>(pages->currentWidget());
        QVERIFY(area);
        QVERIFY(area->widget()->width() >= area->widget()->minimumSizeHint().width());
        QVERIFY(area->widget()->height() >= area->widget()->minimumSizeHint().height());
    }
};

QTEST_MAIN(AppearanceTest)
#include "appearance_test.moc"
