#include <memory>

#include <QAccessible>
#include <QPaintEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include "platform/imaging/ColorTransform.h"
#include "tests/dialog/window/preview/FakePictures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr QRgb kInk = 0xff2060a0;

ColorTransform withoutRed()
{
    ColorTransform transform;
    transform.rows[0] = {0, 0, 0, 0};
    return transform;
}

/// What of a widget is painted anew.
class PaintedPart : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent *>(event)->region();
        return QObject::eventFilter(watched, event);
    }

    QRegion region{};
};

} // namespace

class SheetViewTest : public QObject
{
    Q_OBJECT

private:
    FakePictures m_pictures;
    std::unique_ptr<SheetView> m_view;

    void show(const ShownSheets &sheets)
    {
        m_pictures.wishes.clear();
        m_view = std::make_unique<SheetView>();
        m_view->resize(500, 600);
        m_view->setPictures(&m_pictures);
        m_view->setSheets(sheets);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
        m_view->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_view.get()));
        m_view->setFocus();
        QTRY_VERIFY(!m_pictures.wishes.isEmpty());
    }
    void press(Qt::Key key) { QTest::keyClick(m_view.get(), key); }
    QPoint scrolled() const
    {
        return {m_view->horizontalScrollBar()->value(), m_view->verticalScrollBar()->value()};
    }
    /// The color in the middle of a side, as it is painted.
    QRgb painted(SideIndex side)
    {
        const QImage picture = m_view->viewport()->grab().toImage();
        const QPoint middle = m_view->sheetLayout().paper(side).center() - scrolled();
        return picture.pixel(middle * picture.devicePixelRatio());
    }
    void turnWheel(int delta, Qt::KeyboardModifiers modifiers, QPoint at)
    {
        QWheelEvent event(at, m_view->viewport()->mapToGlobal(at), {}, {0, delta}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_view->viewport(), &event);
    }
    QList<int> wanted() const
    {
        QList<int> pages;
        for (const SidePictures::Wish &wish : m_pictures.wishes)
            pages += wish.page;
        return pages;
    }

private Q_SLOTS:
    void cleanup() { m_view.reset(); }

    void whatIsSeenIsAskedForFirstAndAtThePixelsOfTheScreen()
    {
        show(sheetsOfPages(300));
        QCOMPARE(wanted().constFirst(), 0);
        const QSize size = m_view->sheetLayout().paper({0}).size();
        QCOMPARE(m_pictures.wishes.constFirst().size, size * m_view->devicePixelRatioF());
        QVERIFY2(wanted().size() < 8, qPrintable(QString::number(wanted().size())));
        // Far away: the visible one, then its neighbours.
        m_view->setCurrent({200});
        QTRY_COMPARE(wanted().constFirst(), 200);
        QVERIFY(wanted().contains(201));
        QVERIFY(wanted().contains(199));
        QVERIFY(!wanted().contains(0));
    }

    void aMarkIsSeenSaidAndAnswersAClickAndAKey()
    {
        ShownSheets sheets = sheetsOfPages(3);
        sheets.marks = {{1, SheetSide::Front, u"It is damaged."_s}};
        show(sheets);
        QVERIFY(!m_view->accessibleName().contains("damaged"_L1));
        m_view->setCurrent({1});
        QVERIFY(m_view->accessibleName().endsWith("Note: It is damaged."_L1));
        QSignalSpy pressed(m_view.get(), &SheetView::markPressed);
        press(Qt::Key_Space);
        QCOMPARE(pressed.size(), 1);
        QCOMPARE(pressed.constFirst().constFirst().toString(), u"It is damaged."_s);
        // In the corner at the end of a line, and nowhere else.
        const QRect paper = m_view->sheetLayout().paper({1}).translated(-scrolled());
        const int em = m_view->fontMetrics().height();
        const QPoint corner(paper.right() - em, paper.top() + em);
        const QImage seen = m_view->viewport()->grab().toImage();
        QVERIFY(seen.pixelColor(corner).blue() < 100);
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, paper.center());
        QCOMPARE(pressed.size(), 1);
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, corner);
        QCOMPARE(pressed.size(), 2);
        // Space on a side of which there is nothing to say is the window's.
        m_view->setCurrent({0});
        press(Qt::Key_Space);
        QCOMPARE(pressed.size(), 2);
    }

    void aPageThatCannotBeDrawnIsMarkedAsWell()
    {
        m_pictures.problems.insert(0, u"This page is damaged."_s);
        show(sheetsOfPages(2));
        QVERIFY(m_view->accessibleName().endsWith("Note: This page is damaged."_L1));
        m_pictures.problems.clear();
    }

    void aPageThatWasTurnedIsAskedForAsItWasLaidOut()
    {
        ShownSheets sheets = sheetsOfPages(1, false, kA4Points.transposed());
        sheets.plan.sheets[0].front.turn = 90;
        show(sheets);
        const QSize paper = m_view->sheetLayout().paper({0}).size();
        QCOMPARE(m_pictures.wishes.constFirst().size,
                 paper.transposed() * m_view->devicePixelRatioF());
        // The upper half of the picture comes to the right.
        QImage image(m_pictures.wishes.constFirst().size, QImage::Format_RGB32);
        image.fill(Qt::white);
        for (int y = 0; y < image.height() / 2; ++y)
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, kInk);
        class Turned : public FakePictures
        {
        public:
            QImage image;
            QImage picture(const Wish &) const override { return image; }
        } turned;
        turned.image = image;
        m_view->setPictures(&turned);
        const QImage shown = m_view->viewport()->grab().toImage();
        const QRect where = m_view->sheetLayout().paper({0});
        const double ratio = shown.devicePixelRatio();
        const auto at = [&](double part) {
            return shown.pixel(
                (QPointF(where.left() + part * where.width(), where.center().y()) * ratio)
                    .toPoint());
        };
        QCOMPARE(at(0.75), kInk);
        QCOMPARE(at(0.25), QRgb(0xffffffff));
        m_view->setPictures(nullptr);
    }

    void paperIsBlankThenCoarseThenSharp()
    {
        show(sheetsOfPages(2));
        QCOMPARE(painted({0}), QRgb(0xffffffff));
        m_pictures.draw(u"/laid-out.pdf"_s, 0, {30, 42}, QColor(kInk));
        QCOMPARE(painted({0}), kInk); // another size, shown scaled
        m_pictures.drawAll(Qt::darkGreen);
        QCOMPARE(painted({0}), QColor(Qt::darkGreen).rgb());
    }

    void colorsAreThoseOfTheSettingsWithoutDrawingPagesAnew()
    {
        show(sheetsOfPages(2));
        m_pictures.drawAll(QColor(kInk));
        m_pictures.wishes.clear();
        m_view->setColors(withoutRed());
        QCOMPARE(painted({0}), QRgb(0xff0060a0));
        QTest::qWait(50);
        QVERIFY(m_pictures.wishes.isEmpty());
        m_view->setColors({});
        QCOMPARE(painted({0}), kInk);
    }

    void aPageThatCannotBeDrawnSaysWhy()
    {
        m_pictures.problems.insert(0, u"WWWWWWWW WWWWWWWW WWWWWWWW"_s);
        show(sheetsOfPages(1));
        const QImage picture = m_view->viewport()->grab().toImage();
        const QRect paper = m_view->sheetLayout().paper({0});
        int dark = 0;
        for (int y = paper.top() + 10; y < paper.bottom() - 10; ++y)
            for (int x = paper.left() + 10; x < paper.right() - 10; ++x)
                dark += qGray(picture.pixel(QPoint(x, y) * picture.devicePixelRatio())) < 128;
        m_pictures.problems.clear();
        QVERIFY(dark > 50);
    }

    void theKeysMoveACurrentSide()
    {
        show(sheetsOfPages(5, true));
        QCOMPARE(m_view->current(), SideIndex{0});
        press(Qt::Key_Right);
        QCOMPARE(m_view->current(), (SideIndex{0, true}));
        press(Qt::Key_Right);
        QCOMPARE(m_view->current(), SideIndex{1});
        press(Qt::Key_Left);
        QCOMPARE(m_view->current(), (SideIndex{0, true}));
        press(Qt::Key_Down);
        QCOMPARE(m_view->current(), (SideIndex{1, true}));
        press(Qt::Key_Down); // the last sheet has no back
        QCOMPARE(m_view->current(), SideIndex{2});
        press(Qt::Key_Right);
        QCOMPARE(m_view->current(), SideIndex{2});
        press(Qt::Key_Home);
        QCOMPARE(m_view->current(), SideIndex{0});
        press(Qt::Key_End);
        QCOMPARE(m_view->current(), SideIndex{2});
        press(Qt::Key_PageUp);
        QVERIFY(m_view->current().sheet < 2);
    }

    void theCurrentSideIsInSight()
    {
        show(sheetsOfPages(300));
        for (const int sheet : {299, 150, 151, 0}) {
            m_view->setCurrent({sheet});
            const QRect paper = m_view->sheetLayout().paper({sheet}).translated(-scrolled());
            QVERIFY(m_view->viewport()->rect().contains(paper));
            QCOMPARE(m_view->lookedAt(), sheet);
        }
    }

    void keysReadASideThatIsHigherThanTheView()
    {
        show(sheetsOfPages(2));
        m_view->setZoom({Zoom::Fit::Percent, 200});
        press(Qt::Key_Home);
        const int top = scrolled().y();
        press(Qt::Key_Down);
        QCOMPARE(m_view->current(), SideIndex{0});
        QVERIFY(scrolled().y() > top);
        for (int i = 0; i < 100 && m_view->current().sheet == 0; ++i)
            press(Qt::Key_Down);
        QCOMPARE(m_view->current(), SideIndex{1});
    }

    // Of a frame around a side nothing is seen in its midst, or elsewhere.
    void theFocusIsSeenWhereverTheViewIs()
    {
        show(sheetsOfPages(9));
        const QRgb focus = m_view->palette().color(QPalette::Highlight).rgb();
        const auto edges = [this] {
            const QImage picture = m_view->viewport()->grab().toImage();
            return QList<QRgb>{picture.pixel(1, picture.height() / 2),
                               picture.pixel(picture.width() / 2, picture.height() - 2)};
        };
        const QList<QRgb> framed{focus, focus};
        QVERIFY(!edges().contains(focus)); // the side itself is framed
        m_view->setZoom({Zoom::Fit::Percent, 400});
        m_view->horizontalScrollBar()->setValue(900);
        m_view->verticalScrollBar()->setValue(900);
        QCOMPARE(edges(), framed);
        m_view->verticalScrollBar()->setValue(1000);
        QCOMPARE(edges(), framed);
        m_view->clearFocus();
        QVERIFY(!edges().contains(focus));
        m_view->setFocus();
        m_view->setZoom({Zoom::Fit::Page, 100});
        QVERIFY(!edges().contains(focus));
        m_view->verticalScrollBar()->setValue(m_view->verticalScrollBar()->maximum());
        QCOMPARE(edges(), framed);
    }

    void theLineAroundTheViewIsNotScrolled()
    {
        show(sheetsOfPages(9));
        m_view->setZoom({Zoom::Fit::Percent, 400});
        m_view->horizontalScrollBar()->setValue(900);
        m_view->verticalScrollBar()->setValue(900);
        QTest::qWait(50); // for what is painted later
        PaintedPart painted;
        m_view->viewport()->installEventFilter(&painted);
        m_view->verticalScrollBar()->setValue(910);
        QTRY_COMPARE(painted.region.boundingRect(), m_view->viewport()->rect());
    }

    void keysOfTheWindowAreLeftToIt()
    {
        show(sheetsOfPages(2));
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_A}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            QCoreApplication::sendEvent(m_view.get(), &event);
            QVERIFY(!event.isAccepted());
        }
    }

    void theWheelZoomsAroundThePointer()
    {
        show(sheetsOfPages(20));
        m_view->setCurrent({7});
        m_view->setZoom({Zoom::Fit::Percent, 100});
        const QPoint at(200, 250);
        const auto under = [&] {
            const SideIndex side = m_view->sheetLayout().sideAt(scrolled() + at);
            const QRect paper = m_view->sheetLayout().paper(side);
            const QPointF part(double(scrolled().x() + at.x() - paper.left()) / paper.width(),
                               double(scrolled().y() + at.y() - paper.top()) / paper.height());
            return std::pair(side.sheet, part);
        };
        const auto before = under();
        turnWheel(120, Qt::ControlModifier, at);
        QCOMPARE(m_view->zoom(), (Zoom{Zoom::Fit::Percent, 125}));
        const auto after = under();
        QCOMPARE(after.first, before.first);
        QVERIFY(qAbs(after.second.y() - before.second.y()) < 0.03);
        QVERIFY(qAbs(after.second.x() - before.second.x()) < 0.05);
        // A pad tells a part of a step at a time.
        turnWheel(-60, Qt::ControlModifier, at);
        QCOMPARE(m_view->percent(), 125);
        turnWheel(-60, Qt::ControlModifier, at);
        QCOMPARE(m_view->percent(), 100);
    }

    // Small enough, several lie beside each other, and the current one in no middle of anything.
    void theCurrentSideStaysInSightWhateverTheScale_data()
    {
        QTest::addColumn<int>("current");
        for (const int sheet : {0, 1, 57, 58, 59})
            QTest::addRow("%d", sheet) << sheet;
    }
    void theCurrentSideStaysInSightWhateverTheScale()
    {
        QFETCH(int, current);
        show(sheetsOfPages(60));
        const auto isSeen = [&] {
            const QRect paper = m_view->sheetLayout().paper({current});
            return paper.intersects(QRect(scrolled(), m_view->viewport()->size())) &&
                   m_view->lookedAt() == current;
        };
        m_view->resize(800, 600);
        m_view->setZoom({Zoom::Fit::Percent, 25});
        QVERIFY(m_view->sheetLayout().columns() > 2);
        m_view->setCurrent({current});
        while (m_view->percent() < 400) {
            m_view->zoomBy(1);
            QVERIFY2(isSeen(), qPrintable(QString::number(m_view->percent())));
        }
        for (const Zoom &zoom : {Zoom{Zoom::Fit::Percent, 25}, Zoom{}, Zoom{Zoom::Fit::Percent, 25},
                                 Zoom{Zoom::Fit::Width}, Zoom{Zoom::Fit::Percent, 25},
                                 Zoom{Zoom::Fit::Percent, 200}}) {
            m_view->setZoom(zoom);
            QVERIFY2(isSeen(), qPrintable(QString::number(m_view->percent())));
        }
        m_view->setZoom({});
        const QRect paper = m_view->sheetLayout().paper({current}).translated(-scrolled());
        QVERIFY(m_view->viewport()->rect().contains(paper)); // whole, as it is named
    }

    void theScaleHasItsBounds()
    {
        show(sheetsOfPages(1));
        for (int i = 0; i < 30; ++i)
            m_view->zoomBy(1);
        QCOMPARE(m_view->percent(), 400);
        for (int i = 0; i < 30; ++i)
            m_view->zoomBy(-1);
        QCOMPARE(m_view->percent(), 25);
    }

    void noPictureIsLargerThanMemoryAllows()
    {
        show(sheetsOfPages(50, true));
        m_view->setZoom({Zoom::Fit::Percent, 400});
        QTRY_VERIFY(m_pictures.wishes.constFirst().size.width() > 1000);
        qint64 most = 0; // of two rows with two sides each
        for (int i = 0; i < qMin(4, int(m_pictures.wishes.size())); ++i)
            most += qint64(m_pictures.wishes.at(i).size.width()) *
                    m_pictures.wishes.at(i).size.height() * 4;
        QVERIFY2(most <= 32 << 20, qPrintable(QString::number(most)));
    }

    void thePlaceIsKeptWhenSheetsBecomeOthers()
    {
        show(sheetsOfPages(100));
        m_view->setCurrent({60});
        QCOMPARE(m_view->lookedAt(), 60);
        ShownSheets others = sheetsOfPages(100);
        others.files = {u"/newer.pdf"_s};
        m_view->setSheets(others);
        QCOMPARE(m_view->lookedAt(), 60);
        m_view->resize(700, 500);
        QTRY_COMPARE(m_view->lookedAt(), 60);
        m_view->setSheets(sheetsOfPages(10));
        QCOMPARE(m_view->current(), SideIndex{9});
    }

    void whatIsFittedNeedsNoBars()
    {
        show(sheetsOfPages(4, true));
        // From a view with a bar to one that has room for everything.
        for (const QSize size :
             {QSize(400, 300), QSize(330, 620), QSize(500, 200), QSize(330, 900)}) {
            m_view->resize(size);
            QCoreApplication::processEvents();
            QCOMPARE(m_view->horizontalScrollBar()->maximum(), 0);
        }
        QCOMPARE(m_view->verticalScrollBar()->maximum(), 0);
        QVERIFY(!m_view->verticalScrollBar()->isVisible());
    }

    void oldSheetsAreDimmedOnlyWhenTheNewOnesTakeLong()
    {
        show(sheetsOfPages(3));
        m_view->setUpdating(true);
        QVERIFY(!m_view->isDimmed());
        m_view->setSheets(sheetsOfPages(2));
        QTest::qWait(250);
        QVERIFY(!m_view->isDimmed());
        m_view->setUpdating(true);
        QTRY_VERIFY(m_view->isDimmed());
        QVERIFY(painted({0}) != QRgb(0xffffffff));
        m_view->setSheets(sheetsOfPages(3));
        QVERIFY(!m_view->isDimmed());
    }

    void nothingIsAskedForWhatCannotBeSeen()
    {
        show(sheetsOfPages(3));
        m_view->hide();
        QVERIFY(m_pictures.wishes.isEmpty());
        m_view->setSheets(sheetsOfPages(30));
        m_view->setZoom({Zoom::Fit::Width});
        QTest::qWait(30);
        QVERIFY(m_pictures.wishes.isEmpty());
        m_view->show();
        QTRY_VERIFY(!m_pictures.wishes.isEmpty());
    }

    void aScreenReaderHearsTheCurrentSide()
    {
        show(sheetsOfPages(4, true));
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(m_view.get());
        QVERIFY(face);
        QCOMPARE(face->text(QAccessible::Name), u"Preview. Sheet 1, front: page 1"_s);
        press(Qt::Key_Right);
        QCOMPARE(face->text(QAccessible::Name), u"Preview. Sheet 1, back: page 2"_s);
        m_view->setSheets({});
        QCOMPARE(face->text(QAccessible::Name), u"Preview"_s);
    }

    void aClickMakesASideTheCurrentOne()
    {
        show(sheetsOfPages(4, true));
        const QPoint place = m_view->sheetLayout().paper({0, true}).center() - scrolled();
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(m_view->current(), (SideIndex{0, true}));
    }

    void thousandsOfSheetsAreScrolledWithoutAStall()
    {
        show(sheetsOfPages(2000));
        m_pictures.drawAll(QColor(kInk));
        QElapsedTimer timer;
        qint64 longest = 0;
        for (int i = 0; i < 200; ++i) {
            timer.start();
            m_view->verticalScrollBar()->setValue(i * 5000);
            m_view->viewport()->repaint();
            QCoreApplication::processEvents();
            longest = qMax(longest, timer.elapsed());
        }
        // A loaded machine is given much more than a frame.
        QVERIFY2(longest < 100, qPrintable(QString::number(longest)));
    }
};

QTEST_MAIN(SheetViewTest)
#include "sheet_view_test.moc"
