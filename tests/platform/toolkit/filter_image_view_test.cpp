#include <cmath>

#include <QPaintDevice>
#include <QPaintEngine>
#include <QSignalSpy>
#include <QTest>

#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/FilterImageView.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

// One picture that was drawn: where, its pixels, and the buffer that they were in.
struct Drawn
{
    QRectF place;
    QImage pixels; // a copy of its own: one that shares them would make the view take a new buffer
    const uchar *buffer;
};

// A device on which nothing is drawn but noted.
class NotingEngine : public QPaintEngine
{
public:
    QList<Drawn> drawn;

    NotingEngine() : QPaintEngine(QPaintEngine::AllFeatures) {}
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &now) override { m_transform = now.transform(); }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawImage(const QRectF &place, const QImage &image, const QRectF &,
                   Qt::ImageConversionFlags) override
    {
        drawn += Drawn{m_transform.mapRect(place), image.copy(), image.constBits()};
    }
    Type type() const override { return User; }

private:
    QTransform m_transform;
};

class NotingDevice : public QPaintDevice
{
public:
    mutable NotingEngine engine;

    QPaintEngine *paintEngine() const override { return &engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 4000;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        case PdmDepth:
            return 32;
        default:
            return 96;
        }
    }
};

// What a view draws in one painting.
QList<Drawn> painted(QWidget &view)
{
    NotingDevice device;
    view.render(&device, QPoint(), QRegion(), QWidget::RenderFlags());
    return device.engine.drawn;
}

QImage waves(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto wave = [&](double period) {
                return 128 + static_cast<int>(std::lround(60 * std::sin((x + 2 * y) / period)));
            };
            picture.setPixel(x, y, qRgb(wave(9), wave(13), wave(17)));
        }
    }
    return picture;
}

// Warmer, darker, with more contrast; no value of waves() leaves 0..255.
ColorTransform effect()
{
    return {{{{1.2, -0.05, 0.0, -0.05}, {0.05, 1.0, -0.1, 0.02}, {0.0, 0.1, 0.8, 0.01}}}};
}

struct Difference
{
    int largest = 0;          // of a component, in steps of 255
    double shareAboveOne = 0; // of all components
};

Difference differenceOf(const QImage &a, const QImage &b)
{
    Difference result;
    int aboveOne = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            for (const int d : {qRed(p) - qRed(q), qGreen(p) - qGreen(q), qBlue(p) - qBlue(q)}) {
                result.largest = std::max(result.largest, std::abs(d));
                aboveOne += std::abs(d) > 1 ? 1 : 0;
            }
        }
    }
    result.shareAboveOne = aboveOne / (3.0 * a.width() * a.height());
    return result;
}

} // namespace

class FilterImageViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePictureIsAsLargeAsFitsAndKeepsItsProportions_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("view");
        QTest::addColumn<QRectF>("place"); // at the upper edge, in the middle
        QTest::newRow("smaller") << QSize(400, 200) << QSize(200, 100) << QRectF(0, 0, 200, 100);
        QTest::newRow("larger") << QSize(20, 10) << QSize(200, 100) << QRectF(0, 0, 200, 100);
        QTest::newRow("too wide") << QSize(400, 100) << QSize(200, 100) << QRectF(0, 0, 200, 50);
        QTest::newRow("too high") << QSize(100, 400) << QSize(200, 100) << QRectF(87, 0, 25, 100);
        QTest::newRow("a line") << QSize(30000, 1) << QSize(200, 100) << QRectF(0, 0, 200, 1);
        QTest::newRow("a column") << QSize(1, 30000) << QSize(200, 100) << QRectF(100, 0, 1, 100);
        QTest::newRow("one pixel") << QSize(1, 1) << QSize(200, 100) << QRectF(50, 0, 100, 100);
    }
    void thePictureIsAsLargeAsFitsAndKeepsItsProportions()
    {
        QFETCH(QSize, picture);
        QFETCH(QSize, view);
        QFETCH(QRectF, place);
        FilterImageView shown;
        shown.resize(view);
        shown.setImage(FilterImage(waves(picture.width(), picture.height())));
        const QList<Drawn> drawn = painted(shown);
        QCOMPARE(drawn.size(), 1);
        QCOMPARE(drawn.first().place, place);
        QCOMPARE(drawn.first().pixels.size(), place.size().toSize()); // one pixel to one
    }

    void noImageDrawsNothing()
    {
        FilterImageView view;
        view.resize(200, 100);
        QVERIFY(painted(view).isEmpty());
        view.setImage(FilterImage(waves(20, 10)));
        QCOMPARE(painted(view).size(), 1);
        view.setImage(FilterImage());
        QVERIFY(painted(view).isEmpty());
        QVERIFY(view.pixels().isNull());
        QCOMPARE(view.image().extent(), QSize(0, 0));
    }

    void aViewWithoutRoomDoesNotHurt_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("nothing") << QSize(0, 0);
        QTest::newRow("no width") << QSize(0, 50);
        QTest::newRow("no height") << QSize(50, 0);
        QTest::newRow("one pixel") << QSize(1, 1);
    }
    void aViewWithoutRoomDoesNotHurt()
    {
        QFETCH(QSize, size);
        FilterImageView view;
        view.setMinimumSize(0, 0);
        view.resize(size);
        view.setImage(FilterImage(waves(40, 30)));
        QVERIFY(painted(view).size() <= 1);
    }

    void whatIsPaintedIsTheFilteredPictureScaled_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("a little smaller") << QSize(300, 200);
        QTest::newRow("much smaller") << QSize(75, 50);
        QTest::newRow("as large") << QSize(330, 220);
        QTest::newRow("larger") << QSize(450, 300);
    }
    void whatIsPaintedIsTheFilteredPictureScaled()
    {
        QFETCH(QSize, size);
        FilterImageView view;
        view.resize(size);
        view.setImage(FilterImage(waves(330, 220)).filtered(effect()));
        const QImage expected =
            view.pixels().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        const QList<Drawn> drawn = painted(view);
        QCOMPARE(drawn.size(), 1);
        QCOMPARE(drawn.first().pixels.size(), size);
        const Difference difference = differenceOf(drawn.first().pixels, expected);
        // Enlarging rounds between the pixels, and the filter enlarges that: rarely by one more.
        const bool enlarged = size.width() > 330;
        QVERIFY(difference.largest <= (enlarged ? 2 : 1));
        QVERIFY(difference.shareAboveOne < 0.01);
        const QImage unfiltered =
            waves(330, 220).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QVERIFY(differenceOf(drawn.first().pixels, unfiltered).largest > 20);
    }

    void theScreenShowsWhatIsPainted()
    {
        FilterImageView view;
        view.resize(150, 100);
        view.setImage(FilterImage(waves(330, 220)).filtered(effect()));
        const QImage screen = view.grab().toImage();
        QCOMPARE(screen.size(), QSize(150, 100));
        QVERIFY(differenceOf(screen, painted(view).first().pixels).largest <= 1);
    }

    void otherFiltersTakeNoNewBuffer()
    {
        FilterImageView view;
        view.resize(150, 100);
        const FilterImage picture(waves(330, 220));
        view.setImage(picture);
        QList<Drawn> first = painted(view);
        QImage former = first.first().pixels;
        for (int step = 1; step <= 40; ++step) {
            ColorTransform brighter;
            brighter.rows[0][3] = step / 200.0;
            view.setImage(picture.filtered(brighter));
            const QList<Drawn> drawn = painted(view);
            QCOMPARE(drawn.size(), 1);
            QCOMPARE(drawn.first().buffer, first.first().buffer);
            QVERIFY(drawn.first().pixels != former);
            former = drawn.first().pixels;
        }
    }

    void aTranslucentPictureLetsTheViewShineThrough()
    {
        QImage half(10, 10, QImage::Format_ARGB32);
        half.fill(QColor(255, 0, 0, 128));
        FilterImageView view;
        view.setAutoFillBackground(true);
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::blue);
        view.setPalette(palette);
        view.resize(100, 100);
        view.setImage(FilterImage(half));
        const QColor color = view.grab().toImage().pixelColor(50, 50);
        QVERIFY(qAbs(color.red() - 128) <= 1 && qAbs(color.blue() - 127) <= 1);
    }

    void theImageKeepsItsOwnSize()
    {
        FilterImageView view;
        view.resize(30, 20);
        view.setImage(FilterImage(waves(330, 220)));
        QCOMPARE(view.image().extent(), QSize(330, 220));
        QCOMPARE(view.pixels(), waves(330, 220));
    }

    void whatWasChangedIsPaintedAtOnce()
    {
        FilterImageView view;
        view.setImage(FilterImage(waves(33, 22)));
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.repaint();
        Paintings paintings(&view);
        view.displayIfNeeded();
        QCOMPARE(paintings.count, 0); // nothing changed
        view.setImage(FilterImage(waves(33, 22)).filtered(effect()));
        view.displayIfNeeded();
        QCOMPARE(paintings.count, 1);
        view.displayIfNeeded();
        QCOMPARE(paintings.count, 1);
    }

    void aHiddenViewIsNotPainted()
    {
        FilterImageView view;
        view.setImage(FilterImage(waves(33, 22)));
        const Paintings paintings(&view);
        view.displayIfNeeded();
        QCOMPARE(paintings.count, 0);
    }

    void anotherSizeIsAnAct()
    {
        FilterImageView view;
        QList<QWidget *> senders;
        QVERIFY(connectControlAction(&view, [&](QWidget *sender) { senders += sender; }));
        const QSignalSpy resized(&view, &FilterImageView::resized);
        view.resize(200, 100);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const qsizetype before = resized.size();
        QVERIFY(before >= 1);
        view.resize(210, 100);
        QTRY_VERIFY(resized.size() > before);
        QCOMPARE(senders.size(), resized.size());
        QCOMPARE(senders.constLast(), &view);
    }

    void theViewTakesTheRoomThatThereIsAndNeedsLittle()
    {
        const FilterImageView view;
        QVERIFY(view.minimumSizeHint().width() <= view.sizeHint().width());
        QVERIFY(view.minimumSizeHint().height() <= view.sizeHint().height());
        QVERIFY(!view.minimumSizeHint().isEmpty());
        QCOMPARE(view.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(view.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    }

private:
    // Counts how often a widget is painted.
    class Paintings : public QObject
    {
    public:
        explicit Paintings(QWidget *view) { view->installEventFilter(this); }
        int count = 0;

        bool eventFilter(QObject *watched, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return QObject::eventFilter(watched, event);
        }
    };
};

QTEST_MAIN(FilterImageViewTest)
#include "filter_image_view_test.moc"
