#include <cmath>

#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QTest>

#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/ViewFrame.h"
#include "printsetting/ExtraAccessoryView.h"
#include "printsetting/QXTextField.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

constexpr QRgb kTopLeft = qRgb(255, 0, 0);
constexpr QRgb kTopRight = qRgb(0, 255, 0);
constexpr QRgb kBottomLeft = qRgb(0, 0, 255);
constexpr QRgb kBottomRight = qRgb(255, 255, 0);
constexpr QRgb kPaper = qRgb(12, 34, 56);

// A picture of four colours, one a quarter.
QImage quarters(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool left = x < width / 2;
            image.setPixel(x, y,
                           y < height / 2 ? (left ? kTopLeft : kTopRight)
                                          : (left ? kBottomLeft : kBottomRight));
        }
    }
    return image;
}

QImage plain(QRgb color)
{
    QImage image(10, 10, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

// What the view draws when only `rectangle` of it is asked for.
QImage drawn(const ExtraAccessoryView &view, const QRectF &rectangle)
{
    QImage canvas(320, 240, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(kPaper);
    QPainter painter(&canvas);
    view.drawRect(painter, rectangle);
    return canvas;
}

} // namespace

/// The illustration of an alert, and the question whether a text fits its field.
class IllustrationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWholeImageIsSqueezedIntoTheView()
    {
        ExtraAccessoryView view;
        view.resize(200, 100);
        view.setImage(quarters(400, 400));
        // However little is to be drawn anew.
        const QImage image = drawn(view, QRectF(0, 0, 1, 1));
        QCOMPARE(image.pixel(1, 1), kTopLeft);
        QCOMPARE(image.pixel(95, 45), kTopLeft);
        QCOMPARE(image.pixel(105, 45), kTopRight);
        QCOMPARE(image.pixel(95, 55), kBottomLeft);
        QCOMPARE(image.pixel(198, 98), kBottomRight);
        QCOMPARE(image.pixel(200, 50), kPaper);
        QCOMPARE(image.pixel(50, 100), kPaper);
    }

    void theImageStartsWhereTheViewsOwnCoordinatesDo()
    {
        ExtraAccessoryView view;
        view.resize(200, 100);
        view.setBoundsOrigin(QPointF(10, 5));
        view.setImage(quarters(400, 400));
        const QImage image = drawn(view, QRectF(10, 5, 200, 100));
        QCOMPARE(image.pixel(9, 50), kPaper);
        QCOMPARE(image.pixel(50, 4), kPaper);
        QCOMPARE(image.pixel(11, 6), kTopLeft);
        QCOMPARE(image.pixel(208, 103), kBottomRight);
        QCOMPARE(image.pixel(210, 50), kPaper);
        QCOMPARE(image.pixel(50, 105), kPaper);
        // On the screen it fills the view wherever these coordinates begin.
        const QImage screen = view.grab().toImage();
        QCOMPARE(screen.pixel(1, 1), kTopLeft);
        QCOMPARE(screen.pixel(198, 98), kBottomRight);
    }

    void theImageReplacesWhatWasThere()
    {
        QImage clear(20, 20, QImage::Format_ARGB32_Premultiplied);
        clear.fill(Qt::transparent);
        ExtraAccessoryView view;
        view.resize(20, 20);
        view.setImage(clear);
        QCOMPARE(qAlpha(drawn(view, QRectF(0, 0, 20, 20)).pixel(10, 10)), 0);
    }

    void nothingIsDrawnWithoutAnImage()
    {
        ExtraAccessoryView view;
        view.resize(20, 20);
        QCOMPARE(drawn(view, QRectF(0, 0, 20, 20)).pixel(10, 10), kPaper);
        view.setImage(QImage());
        QCOMPARE(drawn(view, QRectF(0, 0, 20, 20)).pixel(10, 10), kPaper);
        QVERIFY(!view.grab().isNull());
    }

    void theNewestImageIsDrawnAndEveryOneKept()
    {
        static int freed;
        freed = 0;
        uchar pixels[2][4] = {{0, 0, 255, 255}, {0, 255, 0, 255}};
        {
            ExtraAccessoryView view;
            view.resize(20, 20);
            for (auto &pixel : pixels)
                view.setImage(QImage(
                    pixel, 1, 1, QImage::Format_RGB32, [](void *) { ++freed; }, nullptr));
            QCOMPARE(drawn(view, QRectF(0, 0, 20, 20)).pixel(10, 10), kTopRight);
            QCOMPARE(freed, 0);
        }
        QCOMPARE(freed, 2);
    }

    void aNewImageIsShownAtOnce()
    {
        ExtraAccessoryView view;
        view.resize(20, 20);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        view.setImage(plain(kTopLeft));
        QCOMPARE(view.grab().toImage().pixel(10, 10), kTopLeft);
        view.setImage(plain(kTopRight));
        QCOMPARE(view.grab().toImage().pixel(10, 10), kTopRight);
    }

    void theViewWantsTheSizeThatItWasGiven()
    {
        ExtraAccessoryView view;
        setViewFrame(&view, {0, 0, 120, 60});
        QCOMPARE(view.sizeHint(), requestedPixelSize(&view));
        QCOMPARE(view.sizeHint(), view.size());
        QVERIFY(view.sizePolicy().horizontalPolicy() == QSizePolicy::Fixed);
    }

    // Texts and their fields

    void onlyATextThatIsWiderThanItsFieldIsCut_data()
    {
        QTest::addColumn<double>("text");
        QTest::addColumn<double>("field");
        QTest::addColumn<bool>("cut");
        QTest::newRow("as wide") << 100.0 << 100.0 << false;
        QTest::newRow("half a pixel wider") << 100.5 << 100.0 << true;
        QTest::newRow("narrower") << 99.5 << 100.0 << false;
        QTest::newRow("nothing in nothing") << 0.0 << 0.0 << false;
    }
    void onlyATextThatIsWiderThanItsFieldIsCut()
    {
        QFETCH(double, text);
        QFETCH(double, field);
        QFETCH(bool, cut);
        QCOMPARE(QXTextField::isWider(text, field), cut);
    }

    void aFieldIsMeasuredInItsOwnFont_data()
    {
        QTest::addColumn<bool>("label");
        QTest::newRow("a label") << true;
        QTest::newRow("a field") << false;
    }
    void aFieldIsMeasuredInItsOwnFont()
    {
        QFETCH(bool, label);
        const QString text = u"Media Type: "_s;
        QLabel labelled(text);
        QLineEdit line(text);
        QWidget *field = label ? static_cast<QWidget *>(&labelled) : &line;
        QFont font = field->font();
        for (const int size : {9, 30}) {
            font.setPixelSize(size);
            field->setFont(font);
            const double width = QFontMetricsF(font).horizontalAdvance(text);
            field->setMinimumWidth(0);
            field->setFixedWidth(static_cast<int>(std::ceil(width)));
            QVERIFY(!QXTextField::isStringValueTruncated(field));
            field->setFixedWidth(static_cast<int>(std::ceil(width)) - 1);
            QVERIFY(QXTextField::isStringValueTruncated(field));
        }
    }

    void aLabelIsMeasuredAsItIsShown_data()
    {
        QTest::addColumn<bool>("leadsToAControl");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("an ampersand, written twice")
            << true << u"Paper && Tray"_s << u"Paper & Tray"_s;
        QTest::newRow("the mark of a key") << true << u"&Paper"_s << u"Paper"_s;
        QTest::newRow("both") << true << u"&Paper &&&& Tray"_s << u"Paper && Tray"_s;
        QTest::newRow("no mark, for no control")
            << false << u"Paper && Tray"_s << u"Paper && Tray"_s;
    }
    void aLabelIsMeasuredAsItIsShown()
    {
        QFETCH(bool, leadsToAControl);
        QFETCH(QString, text);
        QFETCH(QString, shown);
        QLabel label;
        QLineEdit field;
        if (leadsToAControl)
            label.setBuddy(&field);
        label.setText(text);
        QCOMPARE(literalText(&label), shown);
        const double width = QFontMetricsF(label.font()).horizontalAdvance(shown);
        label.setFixedWidth(static_cast<int>(std::ceil(width)));
        QVERIFY(!QXTextField::isStringValueTruncated(&label));
        label.setFixedWidth(static_cast<int>(std::ceil(width)) - 1);
        QVERIFY(QXTextField::isStringValueTruncated(&label));
    }

    void whatHasNoTextIsNotCut()
    {
        QLabel label;
        label.setFixedWidth(0);
        QVERIFY(!QXTextField::isStringValueTruncated(&label));
        QWidget other;
        QVERIFY(!QXTextField::isStringValueTruncated(&other));
        QVERIFY(!QXTextField::isStringValueTruncated(nullptr));
    }
};

QTEST_MAIN(IllustrationTest)
#include "illustration_test.moc"
