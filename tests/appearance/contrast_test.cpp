// Whether everything can be read, in the palettes that people have: measured in what is painted.

#include <algorithm>
#include <memory>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>

#include "dialog/window/ReadableTexts.h"
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

constexpr double kTextContrast = 4.5;

QPalette darkPalette()
{
    QPalette palette(QColor(0x2b, 0x2b, 0x2b));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::AlternateBase, QColor(0x33, 0x33, 0x33));
    return palette;
}

// As desktops set it for people who see little: two colors, and a third for what is selected.
QPalette highContrast(const QColor &ground, const QColor &text, const QColor &selected)
{
    QPalette palette(text, ground, ground.lighter(), ground.darker(), ground, text, text, ground,
                     ground);
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::Highlight, selected);
    palette.setColor(QPalette::HighlightedText,
                     contrast(Qt::black, selected) > 7 ? Qt::black : Qt::white);
    palette.setColor(QPalette::PlaceholderText, text);
    return palette;
}

QPalette paletteOf(const QString &name)
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(u"Fusion"_s));
    QPalette palette = fusion->standardPalette();
    if (name == "dark"_L1)
        palette = darkPalette();
    if (name == "white on black"_L1)
        palette = highContrast(Qt::black, Qt::white, Qt::yellow);
    if (name == "black on white"_L1)
        palette = highContrast(Qt::white, Qt::black, QColor(0, 0, 0x80));
    return withReadableTexts(palette);
}

bool showsText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return !label->text().trimmed().isEmpty();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return !button->text().isEmpty();
    if (const auto *field = qobject_cast<const QLineEdit *>(widget))
        return !field->text().isEmpty() || !field->placeholderText().isEmpty();
    return qobject_cast<const QComboBox *>(widget) != nullptr;
}

// The color of most pixels is what is behind, and the one that differs most from it is the text's:
// the stems of letters are as wide as a pixel.
double contrastIn(const QImage &picture)
{
    QHash<QRgb, int> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++colors[picture.pixel(x, y)];
    }
    const auto most = std::max_element(colors.cbegin(), colors.cend());
    double best = 1;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color)
        best = std::max(best, contrast(QColor(color.key()), QColor(most.key())));
    return best;
}

// Frames are no texts: what is measured is inside of them.
QRect textOf(const QWidget *widget)
{
    const bool isFramed = qobject_cast<const QComboBox *>(widget) ||
                          qobject_cast<const QLineEdit *>(widget) ||
                          qobject_cast<const QPushButton *>(widget);
    const int frame = isFramed ? 4 : 0;
    QRect part = widget->rect().adjusted(frame, frame, -frame, -frame);
    if (qobject_cast<const QComboBox *>(widget))
        part.setWidth(part.width() - widget->height()); // its arrow
    return part;
}

QStringList unreadableTexts(QWidget &window)
{
    QStringList faults;
    const QImage whole = window.grab().toImage();
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible() || !widget->isEnabled() || !showsText(widget))
            continue;
        const QRect seen = widget->visibleRegion().boundingRect() & textOf(widget);
        if (seen.width() < 6 || seen.height() < 6)
            continue;
        const double measured =
            contrastIn(whole.copy(QRect(widget->mapTo(&window, seen.topLeft()), seen.size())));
        if (measured < kTextContrast)
            faults += u"%1 \"%2\" has a contrast of %3"_s.arg(
                QLatin1StringView(widget->metaObject()->className()), widget->objectName(),
                QString::number(measured, 'f', 2));
    }
    return faults;
}

} // namespace

class ContrastTest : public QObject
{
    Q_OBJECT

    static void palettes()
    {
        QTest::addColumn<QString>("palette");
        for (const char *name : {"light", "dark", "white on black", "black on white"})
            QTest::addRow("%s", name) << QString::fromLatin1(name);
    }

    static std::unique_ptr<WindowDriver> openWindow()
    {
        CommandLine line = sampleDocument();
        line.ppd = sharedFile(u"ppd/corvana-cl5.ppd"_s);
        line.options = {u"sides=two-sided-long-edge"_s};
        return std::make_unique<WindowDriver>(requestFor(line), WindowDriver::Activation::Yes);
    }

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(QStyleFactory::create(u"Fusion"_s)); }

    void everyTextCanBeRead_data() { palettes(); }
    void everyTextCanBeRead()
    {
        QFETCH(QString, palette);
        QApplication::setPalette(paletteOf(palette));
        const auto window = openWindow();
        PrintWindow &dialog = window->dialog();
        QTRY_COMPARE_WITH_TIMEOUT(dialog.task().phase(), PrintTask::Phase::Ready, kWindowPatience);
        auto *sheets = window->child<SheetView>(u"sheets"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!sheets->sheets().plan.sheets.isEmpty(), kWindowPatience);
        window->child<MessageBar>(u"message"_s)
            ->showMessage(MessageBar::Kind::Problem, u"Some words."_s, u"Change it"_s, [] {});
        for (int page = 0; page < window->pages()->count(); ++page) {
            window->pages()->setCurrentIndex(page);
            for (const char *name : {"more", "optionButton"}) {
                auto *button = window->pages()->currentWidget()->findChild<QPushButton *>(
                    QLatin1StringView(name));
                if (button && !button->isChecked())
                    button->click();
            }
            QTest::qWait(30);
            savePicture(dialog, u"contrast_%1_%2"_s.arg(palette).arg(page));
            QCOMPARE(unreadableTexts(dialog).join(u'\n'), QString());
        }
    }

    void hintsAndSelectionsCanBeRead_data() { palettes(); }
    void hintsAndSelectionsCanBeRead()
    {
        QFETCH(QString, palette);
        const QPalette colors = paletteOf(palette);
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            const auto on = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
                return contrast(colors.color(group, text), colors.color(group, ground));
            };
            QVERIFY(on(QPalette::PlaceholderText, QPalette::Base) >= kTextContrast);
            QVERIFY(on(QPalette::PlaceholderText, QPalette::Window) >= kTextContrast);
            QVERIFY(on(QPalette::HighlightedText, QPalette::Highlight) >= kTextContrast);
            QVERIFY(on(QPalette::Text, QPalette::Base) >= kTextContrast);
            QVERIFY(on(QPalette::WindowText, QPalette::Window) >= kTextContrast);
            QVERIFY(on(QPalette::ButtonText, QPalette::Button) >= kTextContrast);
        }
    }

    // Whoever uses keys alone sees where they are: what has the focus looks otherwise than without.
    void theFocusIsSeenOnEveryControl_data() { palettes(); }
    void theFocusIsSeenOnEveryControl()
    {
        QFETCH(QString, palette);
        QApplication::setPalette(paletteOf(palette));
        const auto window = openWindow();
        PrintWindow &dialog = window->dialog();
        QTRY_COMPARE_WITH_TIMEOUT(dialog.task().phase(), PrintTask::Phase::Ready, kWindowPatience);
        auto *sheets = window->child<SheetView>(u"sheets"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!sheets->sheets().plan.sheets.isEmpty(), kWindowPatience);
        QTest::qWait(300); // for the pictures
        QApplication::setCursorFlashTime(0);
        QStringList faults;
        int controls = 0;
        for (int page = 0; page < window->pages()->count(); ++page) {
            window->pages()->setCurrentIndex(page);
            for (const char *name : {"more", "optionButton"}) {
                auto *button = window->pages()->currentWidget()->findChild<QPushButton *>(
                    QLatin1StringView(name));
                if (button && !button->isChecked())
                    button->click();
            }
            QTest::qWait(30);
            window->child<QPushButton>(u"print"_s)->setFocus(Qt::TabFocusReason);
            QSet<QWidget *> seen;
            for (int i = 0; i < 100; ++i) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
                QWidget *widget = QApplication::focusWidget();
                if (seen.contains(widget))
                    break;
                seen += widget;
                ++controls;
                QCoreApplication::processEvents();
                // What shows it may be around it.
                constexpr int kAround = 4;
                const QRect place(widget->mapTo(&dialog, QPoint()), widget->size());
                const QRect part = place.adjusted(-kAround, -kAround, kAround, kAround);
                const QImage with = dialog.grab(part & dialog.rect()).toImage();
                widget->clearFocus();
                QCoreApplication::processEvents();
                const QImage without = dialog.grab(part & dialog.rect()).toImage();
                widget->setFocus(Qt::TabFocusReason);
                if (!differsVisibly(with, without))
                    faults += u"%1 \"%2\" on page %3"_s.arg(
                        QLatin1StringView(widget->metaObject()->className()), widget->objectName(),
                        QString::number(page + 1));
            }
        }
        QVERIFY2(controls > 60, qPrintable(QString::number(controls)));
        QCOMPARE(faults.join(u'\n'), QString());
    }

private:
    // Some pixels, in colors that can be told from each other.
    static bool differsVisibly(const QImage &one, const QImage &other)
    {
        constexpr int kFew = 8;
        constexpr double kLeast = 1.3; // two shades of one frame, next to each other
        int differing = 0;
        for (int y = 0; y < one.height() && y < other.height(); ++y) {
            for (int x = 0; x < one.width() && x < other.width(); ++x) {
                if (one.pixel(x, y) != other.pixel(x, y) &&
                    contrast(QColor(one.pixel(x, y)), QColor(other.pixel(x, y))) >= kLeast)
                    ++differing;
            }
        }
        return differing >= kFew;
    }
};

QTEST_MAIN(ContrastTest)

#include "contrast_test.moc"
