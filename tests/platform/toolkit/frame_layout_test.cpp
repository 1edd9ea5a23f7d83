#include <QLabel>
#include <QtTest>

#include "platform/toolkit/FrameLayout.h"
#include "platform/toolkit/ViewFrame.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// Views that are laid out by the frames of their interface file. The tests' views have a font of
/// 12 pixels, at which a point is a pixel.
class FrameLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_view = std::make_unique<QWidget>();
        setFontSize(12);
        m_view->resize(200, 100);
        m_upper = child(QRect(10, 10, 80, 20));
        m_lower = child(QRect(10, 40, 80, 20));
        m_beside = child(QRect(110, 12, 80, 60));
        m_layout = nullptr;
    }
    void cleanup() { m_view.reset(); }

    void childrenKeepTheirFrames()
    {
        layOut(200, 100);
        QCOMPARE(m_upper->geometry(), QRect(10, 10, 80, 20));
        QCOMPARE(m_lower->geometry(), QRect(10, 40, 80, 20));
        QCOMPARE(m_beside->geometry(), QRect(110, 12, 80, 60));
        QCOMPARE(m_layout->frame(m_lower), QRectF(10, 40, 80, 20));
        QCOMPARE(m_layout->count(), 3);
    }

    void aLargerViewLeavesThemAtItsUpperEdge()
    {
        layOut(500, 400);
        QCOMPARE(m_upper->geometry(), QRect(10, 10, 80, 20));
        QCOMPARE(m_lower->geometry(), QRect(10, 40, 80, 20));
    }

    void aMirroredViewIsMirroredWhole()
    {
        layOut(500, 400);
        m_view->setLayoutDirection(Qt::RightToLeft);
        layOut(500, 400);
        QCOMPARE(m_upper->geometry(), QRect(410, 10, 80, 20));
        QCOMPARE(m_beside->geometry(), QRect(310, 12, 80, 60));
        QCOMPARE(m_layout->frame(m_lower), QRectF(10, 40, 80, 20));
        m_view->setLayoutDirection(Qt::LeftToRight);
        layOut(500, 400);
        QCOMPARE(m_upper->geometry(), QRect(10, 10, 80, 20));
    }

    void framesGrowWithTheFont()
    {
        setFontSize(24);
        layOut(400, 200);
        QCOMPARE(m_lower->geometry(), QRect(20, 80, 160, 40));
        QCOMPARE(m_layout->frame(m_lower), QRectF(10, 40, 80, 20));
    }

    void aChildThatNeedsMoreMovesThoseBelowDown_data()
    {
        QTest::addColumn<int>("needed");
        QTest::addColumn<int>("top");
        QTest::newRow("less than its frame") << 5 << 40;
        QTest::newRow("up to the next one's distance") << 22 << 40;
        QTest::newRow("a little more") << 23 << 41;
        QTest::newRow("much more") << 60 << 78; // never closer than eight points
    }
    void aChildThatNeedsMoreMovesThoseBelowDown()
    {
        QFETCH(int, needed);
        QFETCH(int, top);
        takeFrames();
        m_upper->setMinimumHeight(needed);
        layOut(200, 100);
        QCOMPARE(m_upper->geometry(), QRect(10, 10, 80, qMax(20, needed)));
        QCOMPARE(m_lower->geometry(), QRect(10, top, 80, 20));
        QCOMPARE(m_beside->geometry(), QRect(110, 12, 80, 60)); // not below it
    }

    void childrenThatStandCloserMayStayClose()
    {
        QWidget *close = child(QRect(10, 62, 80, 10)); // two points below the one above
        takeFrames();
        m_lower->setMinimumHeight(30);
        layOut(200, 100);
        QCOMPARE(close->geometry().top(), 40 + 30 + 2);
    }

    void aWholeColumnMovesDown()
    {
        QWidget *last = child(QRect(10, 70, 80, 20));
        takeFrames();
        m_upper->setMinimumHeight(100);
        layOut(200, 100);
        QCOMPARE(m_lower->geometry().top(), 118);
        QCOMPARE(last->geometry().top(), 146);
        QCOMPARE(m_layout->minimumSize(), QSize(190, 166));
    }

    void aChildThatNeedsMoreWidthTakesIt()
    {
        takeFrames();
        m_upper->setMinimumWidth(95);
        layOut(200, 100);
        QCOMPARE(m_upper->width(), 95);
        QCOMPARE(m_layout->minimumSize().width(), 190);
        m_beside->setMinimumWidth(150);
        QCOMPARE(m_layout->minimumSize().width(), 260);
    }

    void aHiddenChildTakesNoRoom()
    {
        takeFrames();
        m_upper->setMinimumHeight(60);
        layOut(200, 100);
        QCOMPARE(m_lower->geometry().top(), 78);
        m_upper->hide();
        m_layout->setGeometry(QRect(0, 0, 200, 100));
        QCOMPARE(m_lower->geometry().top(), 40);
        m_lower->hide();
        QCOMPARE(m_layout->minimumSize(), QSize(190, 72));
    }

    void childrenFollowTheSizeOfTheirView_data()
    {
        QTest::addColumn<QString>("stretch");
        QTest::addColumn<QSize>("size");
        QTest::newRow("not") << QString() << QSize(80, 20);
        QTest::newRow("width") << u"width"_s << QSize(180, 20);
        QTest::newRow("height") << u"height"_s << QSize(80, 120);
        QTest::newRow("both") << u"both"_s << QSize(180, 120);
        QTest::newRow("an unknown word") << u"depth"_s << QSize(80, 20);
    }
    void childrenFollowTheSizeOfTheirView()
    {
        QFETCH(QString, stretch);
        QFETCH(QSize, size);
        m_lower->setProperty("stretch", stretch);
        layOut(300, 200); // a hundred more each way
        QCOMPARE(m_lower->size(), size);
        QCOMPARE(m_lower->pos(), QPoint(10, 40));
        // A view that is too small for its frames is asked to be larger.
        m_layout->setGeometry(QRect(0, 0, 20, 20));
        QVERIFY(m_lower->height() >= 20);
    }

    void aStretchedChildMovedUpKeepsItsMarginBelow()
    {
        m_lower->setProperty("stretch", u"height"_s);
        layOut(200, 100);
        QVERIFY(m_layout->setFrame(m_lower, QRectF(10, 30, 80, 20)));
        m_layout->setGeometry(QRect(0, 0, 200, 100));
        // 40 points were free below it in the file.
        QCOMPARE(m_lower->geometry(), QRect(10, 30, 80, 30));
    }

    void aChildWithoutASizeIsLeftAlone()
    {
        QWidget *empty = child(QRect(5, 5, 0, 0));
        layOut(200, 100);
        QCOMPARE(m_layout->count(), 3);
        QCOMPARE(m_layout->indexOf(empty), -1);
        QCOMPARE(m_layout->frame(empty), QRectF());
        QVERIFY(!m_layout->setFrame(empty, QRectF(1, 1, 1, 1)));
    }

    void aForeignWidgetHasNoFrame()
    {
        layOut(200, 100);
        QWidget foreign;
        QCOMPARE(m_layout->frame(&foreign), QRectF());
        QVERIFY(!m_layout->setFrame(&foreign, QRectF(1, 1, 1, 1)));
        QVERIFY(!m_layout->itemAt(-1));
        QVERIFY(!m_layout->itemAt(3));
        QVERIFY(!m_layout->takeAt(3));
    }

    void aDeletedChildLeavesTheOthers()
    {
        layOut(200, 100);
        m_upper->setMinimumHeight(60);
        delete m_upper;
        QCOMPARE(m_layout->count(), 2);
        m_layout->setGeometry(QRect(0, 0, 200, 100));
        QCOMPARE(m_lower->geometry().top(), 40);
    }

    // Frames as the panels speak of them: y upwards from the lower edge of the view as it was asked
    // for.

    void aViewFrameIsThatOfTheLayout()
    {
        layOut(200, 100);
        QVERIFY(viewFrame(m_lower) == (ViewFrame{10, 40, 80, 20}));
        m_upper->setMinimumHeight(60); // what is pushed down keeps its frame
        m_layout->setGeometry(QRect(0, 0, 200, 100));
        QVERIFY(viewFrame(m_lower) == (ViewFrame{10, 40, 80, 20}));
    }

    void aViewFrameCanBeMoved()
    {
        layOut(200, 100);
        setViewFrame(m_lower, {20, 60, 90, 15});
        QVERIFY(viewFrame(m_lower) == (ViewFrame{20, 60, 90, 15}));
        m_layout->setGeometry(QRect(0, 0, 200, 100));
        // Frames that overlap are meant to: nothing is moved for them.
        QCOMPARE(m_lower->geometry(), QRect(20, 25, 90, 15));
    }

    void anotherHeightOfTheViewLeavesItsChildrenAtTheUpperEdge()
    {
        layOut(200, 100);
        setViewFrame(m_view.get(), {0, 0, 200, 60});
        QVERIFY(viewFrame(m_lower) == (ViewFrame{10, 0, 80, 20}));
        QCOMPARE(m_layout->frame(m_lower), QRectF(10, 40, 80, 20));
    }

    void pointsGrowWithTheFont()
    {
        layOut(200, 100);
        QCOMPARE(pixelsPerPoint(m_view.get()), 1.0);
        setFontSize(24);
        QCOMPARE(pixelsPerPoint(m_view.get()), 2.0);
        setViewFrame(m_view.get(), {0, 0, 300, 150});
        QCOMPARE(m_view->size(), QSize(600, 300));
        QCOMPARE(requestedPixelSize(m_view.get()), QSize(600, 300));
        QVERIFY(viewFrame(m_view.get()) == (ViewFrame{0, 0, 300, 150}));
    }

    void aRoomierViewKeepsTheFrameThatWasAskedFor()
    {
        layOut(200, 100);
        setViewFrame(m_view.get(), {0, 0, 200, 100});
        m_view->resize(700, 500);
        QVERIFY(viewFrame(m_view.get()).height == 100 && viewFrame(m_view.get()).width == 200);
    }

    void noViewHasNoFrame()
    {
        QVERIFY(viewFrame(nullptr) == ViewFrame());
        setViewFrame(nullptr, {1, 2, 3, 4});
    }

private:
    void setFontSize(int pixels)
    {
        QFont font = m_view->font();
        font.setPixelSize(pixels);
        m_view->setFont(font);
    }
    QWidget *child(const QRect &geometry)
    {
        auto *widget = new QWidget(m_view.get());
        widget->setGeometry(geometry);
        return widget;
    }
    void takeFrames() { m_layout = new FrameLayout(m_view.get()); }
    void layOut(int width, int height)
    {
        if (!m_layout)
            takeFrames();
        m_layout->setGeometry(QRect(0, 0, width, height));
    }

    std::unique_ptr<QWidget> m_view;
    FrameLayout *m_layout = nullptr;
    QWidget *m_upper = nullptr;
    QWidget *m_lower = nullptr;
    QWidget *m_beside = nullptr;
};

QTEST_MAIN(FrameLayoutTest)
#include "frame_layout_test.moc"
