// Every page of the dialog, looked at for what a designer would not let pass: clipped texts,
// overlapping controls, texts that cannot be read on their background, controls without a name.

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>

#include "dialog/app/PrintDialog.h"
#include "dialog/app/Translations.h"

using namespace corvana;

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x2b, 0x2b, 0x2b));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::AlternateBase, QColor(0x33, 0x33, 0x33));
    return palette;
}

PrintRequest request(const QStringList &options)
{
    CommandLine line;
    line.documents = {QStringLiteral(CORVANA_TEST_SOURCE_DIR "/resources/sample/welcome.pdf")};
    line.ppd = QStringLiteral(CORVANA_TEST_SHARE_DIR "/ppd/corvana-cl5.ppd");
    line.bundleRoots = {QFileInfo(QStringLiteral(CORVANA_TEST_BUNDLE_DIR)).path()};
    line.options = options;
    QString error;
    return preparePrintRequest(line, &error);
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
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget);
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

void save(PrintDialog &dialog, const QString &name)
{
    const QString folder = qEnvironmentVariable("CORVANA_SCREENSHOTS");
    if (folder.isEmpty())
        return;
    QDir().mkpath(folder);
    dialog.grab().save(QStringLiteral("%1/%2_%3x_%4.png")
                           .arg(folder, qEnvironmentVariable("LC_ALL").section(u'.', 0, 0),
                                qEnvironmentVariable("QT_SCALE_FACTOR"), name));
}

} // namespace

class AppearanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        installTranslations(*qApp, QStringLiteral(CORVANA_TEST_SHARE_DIR "/translations"));
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
        PrintDialog dialog(request({}));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        auto *pages = dialog.findChild<QTabWidget *>(QStringLiteral("pages"));
        QCOMPARE(pages->count(), 4);
        pages->setCurrentIndex(page);
        QTest::qWait(50);
        save(dialog, QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(clippedControls(&dialog), QStringList());
        QCOMPARE(overlappingControls(&dialog), QStringList());
        QCOMPARE(unreadableLabels(&dialog), QStringList());
        QCOMPARE(namelessControls(&dialog), QStringList());
    }

    void aMessageFitsIntoTheDialog()
    {
        QApplication::setPalette(QApplication::style()->standardPalette());
        PrintDialog dialog(request({QStringLiteral("QXMediaType=Glossy")}));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTest::qWait(50);
        auto *duplex = dialog.findChild<QComboBox *>(QStringLiteral("Duplex"));
        duplex->setCurrentIndex(1);
        QTest::qWait(50);
        auto *message = dialog.findChild<QLabel *>(QStringLiteral("messageText"));
        QVERIFY(message->isVisible());
        save(dialog, QStringLiteral("conflict"));
        QCOMPARE(clippedControls(&dialog), QStringList());
        QCOMPARE(overlappingControls(&dialog), QStringList());
    }

    void aNarrowedDialogScrollsInsteadOfClipping()
    {
        PrintDialog dialog(request({}));
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
