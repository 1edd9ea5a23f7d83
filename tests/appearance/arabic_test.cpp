// The dialog where people read from the right to the left: in an Arabic locale, whose direction Qt
// takes for the windows once its own Arabic texts are installed. Ours are not among them, so that
// what is written stays English, in a mirrored window.

#include <algorithm>

#include <QApplication>
#include <QLabel>
#include <QMap>
#include <QPainter>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>

#include "dialog/window/chooser/ElidedLabel.h"
#include "tests/appearance/Inspection.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/support/WindowDriver.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// Of what has a name and can be seen on a page, the place in the window.
QMap<QString, QRect> placesOf(const QWidget &window)
{
    QMap<QString, QRect> places;
    for (const QWidget *child : window.findChildren<QWidget *>()) {
        const QString name = child->objectName();
        if (name.isEmpty() || name.startsWith("qt_"_L1) || !child->isVisible() ||
            child->visibleRegion().isEmpty() || child->isWindow())
            continue;
        places.insert(name, {child->mapTo(&window, QPoint()), child->size()});
    }
    return places;
}

QRect mirrored(const QRect &place, int width)
{
    return {width - place.x() - place.width(), place.y(), place.width(), place.height()};
}

/// Between which columns something is written in a label. Units: pixels.
std::pair<int, int> writtenIn(QLabel &label)
{
    const QImage picture = label.grab().toImage();
    int first = picture.width();
    int last = -1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < 100) {
                first = qMin(first, x);
                last = qMax(last, x);
            }
        }
    }
    return {first, last};
}

} // namespace

class ArabicTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<WindowDriver> open(Qt::LayoutDirection direction)
    {
        QApplication::setLayoutDirection(direction);
        CommandLine line = sampleDocument();
        line.ppd = sharedFile(u"ppd/corvana-cl5.ppd"_s);
        auto window = std::make_unique<WindowDriver>(requestFor(line));
        window->dialog().resize(1200, 850);
        const auto *counts = window->child<QLabel>(u"counts"_s);
        const auto isUp = [&] { return counts->text().contains(u'='); };
        if (!window->waitForPanel(1) || !QTest::qWaitFor(isUp, kWindowPatience))
            throw std::runtime_error("the window does not come up");
        return window;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
        QCOMPARE(QLocale().language(), QLocale::Arabic);
        QCOMPARE(QLocale().textDirection(), Qt::RightToLeft);
    }
    void cleanup() { QApplication::setLayoutDirection(Qt::LeftToRight); }

    void everyPageIsMirroredWhole_data()
    {
        QTest::addColumn<int>("page");
        const char *names[] = {"general", "print-setting", "color-setting", "summary"};
        for (int page = 0; page < 4; ++page)
            QTest::addRow("%s", names[page]) << page;
    }
    void everyPageIsMirroredWhole()
    {
        QFETCH(int, page);
        QMap<QString, QRect> places[2];
        for (const bool isArabic : {false, true}) {
            const auto window = open(isArabic ? QLocale().textDirection() : Qt::LeftToRight);
            window->showPage(page);
            QTest::qWait(300); // for the pictures
            places[isArabic ? 1 : 0] = placesOf(window->dialog());
            if (isArabic) {
                savePicture(window->dialog(),
                            u"arabic_%1"_s.arg(QLatin1StringView(QTest::currentDataTag())));
                QCOMPARE(faultsOf(&window->dialog()), QString());
            }
        }
        constexpr int kWidth = 1200;
        constexpr int kTolerance = 3; // Units: pixels
        QVERIFY(places[0].size() > 15);
        QCOMPARE(places[1].keys(), places[0].keys());
        QStringList others;
        for (auto place = places[0].cbegin(); place != places[0].cend(); ++place) {
            const QRect wanted = mirrored(place.value(), kWidth);
            const QRect is = places[1].value(place.key());
            if (qAbs(is.left() - wanted.left()) > kTolerance ||
                qAbs(is.right() - wanted.right()) > kTolerance)
                others += u"%1: %2 to %3, not %4 to %5"_s.arg(place.key())
                              .arg(is.left())
                              .arg(is.right())
                              .arg(wanted.left())
                              .arg(wanted.right());
        }
        QVERIFY2(others.isEmpty(), qPrintable(others.join(u'\n')));
    }

    // In a label that is wider than its words, these went to the side where English begins.
    void wordsStandBesideWhatTheyAreOf()
    {
        constexpr int kNear = 4; // Units: pixels
        const auto window = open(Qt::RightToLeft);
        const auto *copies = window->child<QWidget>(u"copies"_s);
        const auto labels = window->dialog().findChildren<QLabel *>();
        const auto ofCopies = std::find_if(labels.cbegin(), labels.cend(),
                                           [&](QLabel *label) { return label->buddy() == copies; });
        QVERIFY(ofCopies != labels.cend());
        const auto [begin, end] = writtenIn(**ofCopies);
        QVERIFY(end > 0 && end < (*ofCopies)->width() - 2 * kNear); // it has room on both sides
        QVERIFY2(begin <= kNear, qPrintable(QString::number(begin)));
        window->showPage(1);
        auto *heading = window->pages()->currentWidget()->findChild<QLabel *>(u"optionLabel"_s);
        QVERIFY(heading && heading->isVisible());
        const auto [first, last] = writtenIn(*heading);
        QVERIFY(first > 2 * kNear);
        QVERIFY2(last >= heading->width() - 1 - kNear, qPrintable(QString::number(last)));
    }

    // "3 pages = 3 sheets" would begin with its last word, and a path end with its first slash.
    void aLineReadsAsItIsWritten_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("fromTheRight");
        QTest::newRow("counts") << u"3 pages × 2 copies = 6 sheets"_s << false;
        QTest::newRow("a path") << u"/home/lisa/report (1).pdf"_s << false;
        QTest::newRow("Arabic") << u"3 صفحات"_s << true;
    }
    void aLineReadsAsItIsWritten()
    {
        QFETCH(QString, text);
        QFETCH(bool, fromTheRight);
        ElidedLabel label;
        label.setLayoutDirection(Qt::RightToLeft);
        label.setLine(text);
        label.resize(400, label.sizeHint().height());
        const QImage shown = label.grab().toImage().convertToFormat(QImage::Format_RGB32);
        QImage wanted(shown.size(), QImage::Format_RGB32);
        wanted.fill(label.palette().color(QPalette::Window));
        QPainter painter(&wanted);
        painter.setFont(label.font());
        painter.setPen(label.palette().color(QPalette::WindowText));
        painter.setLayoutDirection(fromTheRight ? Qt::RightToLeft : Qt::LeftToRight);
        painter.drawText(wanted.rect(), int(Qt::AlignAbsolute | Qt::AlignRight | Qt::AlignVCenter),
                         text);
        painter.end();
        QCOMPARE(shown, wanted);
    }
};

QTEST_MAIN(ArabicTest)

#include "arabic_test.moc"
