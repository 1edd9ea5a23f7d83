// Every page of the dialog, looked at for what a designer would not let pass: clipped texts,
// overlapping controls, texts that cannot be read on their background, controls without a name.

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QStyleFactory>
#include <QStyleOptionFrame>
#include <QTabWidget>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include "dialog/app/RequestFromCommandLine.h"
#include "dialog/app/Translations.h"
#include "dialog/window/PrintWindow.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x2b, 0x2b, 0x2b));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::AlternateBase, QColor(0x33, 0x33, 0x33));
    return palette;
}

PrintRequest request(const QStringList &options, const QString &printer = QStringLiteral("cl5"))
{
    CommandLine line;
    line.documents = {corvana::test::sourceFile(QStringLiteral("resources/sample/welcome.pdf"))};
    line.ppd = corvana::test::sharedFile(QStringLiteral("ppd/corvana-%1.ppd")).arg(printer);
    line.bundleRoots = {corvana::test::bundleRoot()};
    line.options = options;
    QString error;
    return preparePrintRequest(line, &error).value_or(PrintRequest());
}

QString described(const QWidget *widget)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QLatin1StringView(widget->metaObject()->className()), widget->objectName());
}

// Controls whose whole text must be seen without scrolling.
bool showsItsText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return !label->wordWrap() && !label->text().isEmpty();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return !button->text().isEmpty();
    return qobject_cast<const QComboBox *>(widget);
}

bool isVisibleInside(const QWidget *ancestor, const QWidget *widget)
{
    return widget->isVisibleTo(ancestor) && !widget->size().isEmpty();
}

QStringList clippedControls(const QWidget *page)
{
    QStringList clipped;
    const auto widgets = page->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!isVisibleInside(page, widget) || !showsItsText(widget))
            continue;
        if (widget->minimumSizeHint().width() > widget->width())
            clipped += described(widget) + QStringLiteral(" is narrower than its text");
        const QRect inWindow(widget->mapTo(page, QPoint()), widget->size());
        if (!page->rect().contains(inWindow))
            clipped += described(widget) + QStringLiteral(" reaches out of its page");
    }
    return clipped;
}

QStringList overlappingControls(const QWidget *page)
{
    QStringList overlapping;
    const auto parents = page->findChildren<QWidget *>();
    for (const QWidget *parent : parents) {
        // The parts inside one control are its own affair.
        if (qobject_cast<const QComboBox *>(parent) ||
            qobject_cast<const QAbstractScrollArea *>(parent) ||
            qobject_cast<const QLineEdit *>(parent))
            continue;
        const auto children = parent->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
        for (qsizetype i = 0; i < children.size(); ++i) {
            for (qsizetype j = i + 1; j < children.size(); ++j) {
                const QWidget *a = children.at(i);
                const QWidget *b = children.at(j);
                if (isVisibleInside(page, a) && isVisibleInside(page, b) && !a->isWindow() &&
                    !b->isWindow() && a->geometry().intersects(b->geometry()))
                    overlapping += described(a) + QStringLiteral(" overlaps ") + described(b);
            }
        }
    }
    return overlapping;
}

// Texts in fields and lists, which are cut off silently.
QStringList clippedTexts(const QWidget *page)
{
    QStringList clipped;
    const auto fields = page->findChildren<QLineEdit *>();
    for (const QLineEdit *field : fields) {
        // A long text scrolls; a number must be seen whole, and the longest ones have three digits.
        const bool number = field->width() < 8 * field->fontMetrics().height();
        if (!number || !isVisibleInside(page, field))
            continue;
        QStyleOptionFrame option;
        option.initFrom(field);
        option.lineWidth = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
        constexpr int kTextMargins = 4; // pixels that a field keeps free at both ends, together
        const int room =
            field->style()->subElementRect(QStyle::SE_LineEditContents, &option, field).width() -
            kTextMargins;
        if (field->fontMetrics().horizontalAdvance(QStringLiteral("240")) > room)
            clipped += described(field) + QStringLiteral(" is narrower than its numbers");
    }
    const auto tables = page->findChildren<QTableView *>();
    for (const QTableView *table : tables) {
        if (!isVisibleInside(page, table) || !table->model()->rowCount())
            continue;
        const QAbstractItemView *view = table; // asking a table is not public
        if (view->sizeHintForColumn(0) > table->columnWidth(0))
            clipped += described(table) + QStringLiteral(" is narrower than its texts");
        if (table->horizontalScrollBar()->maximum() > 0)
            clipped += described(table) + QStringLiteral(" scrolls sideways");
    }
    return clipped;
}

// The difference in brightness between the darkest and the lightest pixel of a label.
int contrastOf(QWidget *label)
{
    const QImage image = label->window()
                             ->grab(QRect(label->mapTo(label->window(), QPoint()), label->size()))
                             .toImage();
    int darkest = 255;
    int lightest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int gray = qGray(image.pixel(x, y));
            darkest = qMin(darkest, gray);
            lightest = qMax(lightest, gray);
        }
    }
    return lightest - darkest;
}

QStringList unreadableLabels(QWidget *page)
{
    QStringList unreadable;
    const auto labels = page->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (!isVisibleInside(page, label) || !showsItsText(label) || !label->isEnabled())
            continue;
        // Black on white is 255; people with weak sight need about half of it.
        if (contrastOf(label) < 110)
            unreadable += described(label) + QStringLiteral(" cannot be read on its background");
    }
    return unreadable;
}

QStringList namelessControls(const QWidget *page)
{
    QStringList nameless;
    const auto widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (!isVisibleInside(page, widget) || !qobject_cast<QComboBox *>(widget))
            continue;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        if (!accessible || accessible->text(QAccessible::Name).isEmpty())
            nameless += described(widget) + QStringLiteral(" has no name for a screen reader");
    }
    return nameless;
}

void save(QWidget &window, const QString &name)
{
    const QString folder = qEnvironmentVariable("CORVANA_SCREENSHOTS");
    if (folder.isEmpty())
        return;
    QDir().mkpath(folder);
    window.grab().save(QStringLiteral("%1/%2_%3x_%4.png")
                           .arg(folder, qEnvironmentVariable("LC_ALL").section(u'.', 0, 0),
                                qEnvironmentVariable("QT_SCALE_FACTOR"), name));
}

// Looks at each alert that comes up, and answers it with its first button.
class AlertInspector : public QObject
{
public:
    explicit AlertInspector(const QString &name) : m_name(name) { qApp->installEventFilter(this); }

    int seen = 0;
    QStringList faults;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *box = qobject_cast<QMessageBox *>(watched);
        if (box && event->type() == QEvent::Show)
            QMetaObject::invokeMethod(
                box, [this, box] { inspect(*box); }, Qt::QueuedConnection);
        return QObject::eventFilter(watched, event);
    }

private:
    void inspect(QMessageBox &box)
    {
        ++seen;
        save(box, m_name);
        faults += clippedControls(&box) + overlappingControls(&box) + unreadableLabels(&box);
        const auto labels = box.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->wordWrap() && label->isVisible() &&
                label->height() < label->heightForWidth(label->width()))
                faults += described(label) + QStringLiteral(" is lower than its text");
        }
        const auto *picture = box.findChild<QWidget *>(QStringLiteral("accessoryView"));
        if (!picture || !picture->isVisible() ||
            !box.rect().contains(QRect(picture->mapTo(&box, QPoint()), picture->size())))
            faults += QStringLiteral("the picture is not seen whole");
        const QSize room = box.screen()->availableSize();
        if (box.width() > room.width() || box.height() > room.height())
            faults += QStringLiteral("the alert is larger than the screen");
        box.buttons().constFirst()->click();
    }

    QString m_name;
};

} // namespace

class AppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        installTranslations(*qApp, corvana::test::sharedFile(QStringLiteral("translations")));
    }

    void everyPageIsWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<int>("page");
        const char *names[] = {"general", "print-setting", "color-setting", "summary"};
        for (const bool dark : {false, true}) {
            for (int page = 0; page < 4; ++page)
                QTest::addRow("%s_%s", names[page], dark ? "dark" : "light") << dark << page;
        }
    }

    void everyPageIsWhole()
    {
        QFETCH(bool, dark);
        QFETCH(int, page);
        QApplication::setPalette(dark ? darkPalette() : QApplication::style()->standardPalette());
        PrintWindow dialog(request({}));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *pages = dialog.findChild<QTabWidget *>(QStringLiteral("pages"));
        QCOMPARE(pages->count(), 4);
        pages->setCurrentIndex(page);
        QTest::qWait(50);
        save(dialog, QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(clippedControls(&dialog).join(u'\n'), QString());
        QCOMPARE(overlappingControls(&dialog).join(u'\n'), QString());
        QCOMPARE(unreadableLabels(&dialog).join(u'\n'), QString());
        QCOMPARE(namelessControls(&dialog).join(u'\n'), QString());
    }

    void theAttributesOfAJobAreWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<bool>("opened");
        for (const bool dark : {false, true}) {
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
            "job-hold-until=12:30 job-sheets=standard,classified ppi=300");
        if (!opened) // what a disclosure says of these has no end
            options +=
                QStringLiteral(" position=bottom-right job-billing=%1").arg(QString(200, u'm'));
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
        save(dialog, QString::fromLatin1(QTest::currentDataTag()));
        auto *area = pages->currentWidget()->findChild<QScrollArea *>();
        QCOMPARE(clippedControls(area->widget()).join(u'\n'), QString());
        QCOMPARE(clippedTexts(&dialog).join(u'\n'), QString());
        QCOMPARE(overlappingControls(&dialog).join(u'\n'), QString());
        QCOMPARE(unreadableLabels(&dialog).join(u'\n'), QString());
        QCOMPARE(namelessControls(&dialog).join(u'\n'), QString());
        QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
        QCOMPARE(dialog.width(), width);
    }

    void theOptionsOfAPrinterWithoutPanelsAreWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("edited");
        for (const bool dark : {false, true}) {
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
        PrintRequest office = request({QStringLiteral(
            "PageSize=Postcard Staple=Left Sleep=Custom.12 Tray2=ON Pin=Custom.1234")});
        office.printers = {
            {QStringLiteral("office"), QStringLiteral("Office"),
             writeFile(folder.filePath(QStringLiteral("office.ppd")), officePrinter().text()), 1}};
        office.wantedPrinter.clear();
        PrintWindow dialog(office);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        dialog.activateWindow();
        auto *pages = dialog.findChild<QTabWidget *>(QStringLiteral("pages"));
        QCOMPARE(pages->count(), 3);
        pages->setCurrentIndex(1);
        auto *options = dialog.findChild<QTreeView *>(QStringLiteral("options"));
        // The options are taken after the first paint.
        auto *sizes = dialog.findChild<QComboBox *>(QStringLiteral("PageSize"));
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
        save(dialog, QString::fromLatin1(QTest::currentDataTag()));
        if (QWidget *list = QApplication::activePopupWidget())
            save(*list,
                 QStringLiteral("list_%1").arg(QString::fromLatin1(QTest::currentDataTag())));
        QCOMPARE(clippedControls(&dialog).join(u'\n'), QString());
        QCOMPARE(overlappingControls(&dialog).join(u'\n'), QString());
        QCOMPARE(unreadableLabels(&dialog).join(u'\n'), QString());
        QCOMPARE(namelessControls(&dialog).join(u'\n'), QString());
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
             {QStringLiteral("TonerSaveMode"), QStringLiteral("ImproveOutput"),
              QStringLiteral("QXDensityAdjustment"), QStringLiteral("QXSleepTime"),
              QStringLiteral("QXQuietMode"), QStringLiteral("OtherOption")}},
            {"cl3",
             {QStringLiteral("ImproveOutput"), QStringLiteral("QXDensityAdjustment"),
              QStringLiteral("QXQuietMode"), QStringLiteral("OtherOption")}},
            {"cl2",
             {QStringLiteral("TonerSaveMode"), QStringLiteral("ImproveOutput"),
              QStringLiteral("QXDensityAdjustment"), QStringLiteral("QXSleepTime")}},
        };
        for (const bool dark : {false, true}) {
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
        PrintWindow dialog(request({}, printer));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *pages = dialog.findChild<QTabWidget *>(QStringLiteral("pages"));
        pages->setCurrentIndex(1);
        auto *panel = qobject_cast<QScrollArea *>(pages->currentWidget());
        QTRY_VERIFY(panel->widget());
        panel->widget()->findChild<QPushButton *>(QStringLiteral("optionButton"))->click();
        auto *rows = panel->widget()->findChild<QTableView *>(QStringLiteral("advancedTableView"));
        auto *shown = panel->widget()->findChild<QWidget *>(page);
        QVERIFY(shown && rows->isVisible());
        for (int row = 0; row < rows->model()->rowCount() && !shown->isVisible(); ++row)
            rows->selectRow(row);
        QVERIFY(shown->isVisible());
        QTest::qWait(50);
        save(dialog, QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(clippedControls(&dialog).join(u'\n'), QString());
        QCOMPARE(clippedControls(shown).join(u'\n'), QString());
        QCOMPARE(clippedTexts(&dialog).join(u'\n'), QString());
        QCOMPARE(overlappingControls(&dialog).join(u'\n'), QString());
        QCOMPARE(unreadableLabels(&dialog).join(u'\n'), QString());
        QCOMPARE(namelessControls(&dialog).join(u'\n'), QString());
        // The window has grown as far as is needed.
        QCOMPARE(panel->verticalScrollBar()->maximum(), 0);
        QCOMPARE(panel->horizontalScrollBar()->maximum(), 0);
    }

    void theColorAdjustmentIsWhole_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::addColumn<QString>("printer");
        // With all effects, with two of them, and with the longest list of modes.
        for (const bool dark : {false, true}) {
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
        PrintWindow dialog(request({}, printer));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *pages = dialog.findChild<QTabWidget *>(QStringLiteral("pages"));
        pages->setCurrentIndex(2);
        auto *panel = qobject_cast<QScrollArea *>(pages->currentWidget());
        QTRY_VERIFY(panel->widget());
        panel->widget()->findChild<QPushButton *>(QStringLiteral("optionButton"))->click();
        auto *preview = panel->widget()->findChild<QWidget *>(QStringLiteral("effectImageView"));
        QTRY_VERIFY(preview->isVisible());
        QTest::qWait(50);
        save(dialog, QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(clippedControls(&dialog).join(u'\n'), QString());
        QCOMPARE(clippedTexts(&dialog).join(u'\n'), QString());
        QCOMPARE(overlappingControls(&dialog).join(u'\n'), QString());
        QCOMPARE(unreadableLabels(&dialog).join(u'\n'), QString());
        QCOMPARE(namelessControls(&dialog).join(u'\n'), QString());
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
        for (const bool dark : {false, true}) {
            const char *look = dark ? "dark" : "light";
            const auto alert = [&](const char *medium, const char *duplex, bool whenPrinting) {
                QStringList options{
                    QStringLiteral("QXMediaType=%1").arg(QLatin1StringView(medium))};
                if (*duplex)
                    options += QStringLiteral("Duplex=%1").arg(QLatin1StringView(duplex));
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
        wanted.output = folder.filePath(QStringLiteral("job.ps"));
        PrintWindow dialog(wanted);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *pages = dialog.findChild<QTabWidget *>(QStringLiteral("pages"));
        pages->setCurrentIndex(1);
        QTRY_VERIFY(qobject_cast<QScrollArea *>(pages->currentWidget())->widget());
        AlertInspector inspector(QString::fromLatin1(QTest::currentDataTag()));
        if (whenPrinting) {
            dialog.findChild<QPushButton *>(QStringLiteral("print"))->click();
        } else {
            auto *media = dialog.findChild<QComboBox *>(QStringLiteral("mediaTypePopup"));
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
        PrintWindow dialog(request({QStringLiteral("QXMediaType=Glossy")}));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTest::qWait(50);
        auto *duplex = dialog.findChild<QComboBox *>(QStringLiteral("Duplex"));
        duplex->setCurrentIndex(1);
        QTest::qWait(50);
        auto *message = dialog.findChild<QLabel *>(QStringLiteral("messageText"));
        QVERIFY(message->isVisible());
        save(dialog, QStringLiteral("conflict"));
        QCOMPARE(clippedControls(&dialog).join(u'\n'), QString());
        QCOMPARE(overlappingControls(&dialog).join(u'\n'), QString());
    }

    void aNarrowedDialogScrollsInsteadOfClipping()
    {
        PrintWindow dialog(request({}));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *pages = dialog.findChild<QTabWidget *>(QStringLiteral("pages"));
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
