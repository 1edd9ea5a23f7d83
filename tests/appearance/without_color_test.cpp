#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QTest>

#include "dialog/window/chooser/PrinterIcon.h"
#include "dialog/window/pages/MessageBar.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

constexpr int kSide = 24; // the smallest picture that a list of printers has

/// What somebody sees who tells no color from another: where something light is, and where dark.
QImage withoutColor(const QPixmap &picture)
{
    QImage drawn(picture.size(), QImage::Format_RGB32);
    drawn.fill(Qt::black);
    QPainter(&drawn).drawPixmap(0, 0, picture);
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            const QRgb color = drawn.pixel(x, y);
            // A color that is not gray counts as dark, whatever its lightness.
            const int least = std::min({qRed(color), qGreen(color), qBlue(color)});
            drawn.setPixel(x, y, least > 160 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
        }
    }
    return drawn;
}

int differingPixels(const QImage &one, const QImage &other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    }
    return count;
}

const QList<PrinterLook> kLooks{PrinterLook::Ready, PrinterLook::Printing, PrinterLook::Stopped,
                                PrinterLook::TakesNoJobs, PrinterLook::Gone};

} // namespace

/// Nothing is said by color alone.
class WithoutColorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theStatesOfAPrinterDifferInTheirForm()
    {
        QList<QImage> seen;
        for (const PrinterLook look : kLooks)
            seen += withoutColor(printerIcon(look, IconSource::Own).pixmap(kSide, kSide));
        for (int one = 0; one < seen.size(); ++one) {
            for (int other = one + 1; other < seen.size(); ++other)
                QVERIFY2(differingPixels(seen.at(one), seen.at(other)) >= 8,
                         qPrintable(u"the looks %1 and %2"_s.arg(one).arg(other)));
        }
    }

    void theKindsOfMessagesDifferInTheirForm()
    {
        MessageBar bar;
        const auto seen = [&](MessageBar::Kind kind) {
            bar.showMessage(kind, u"Something is said."_s);
            const auto labels = bar.findChildren<QLabel *>();
            for (const QLabel *label : labels) {
                if (!label->pixmap().isNull())
                    return withoutColor(label->pixmap());
            }
            return QImage();
        };
        const QImage problem = seen(MessageBar::Kind::Problem);
        const QImage other = seen(MessageBar::Kind::Information);
        QVERIFY(!problem.isNull());
        QCOMPARE(problem.size(), other.size());
        QVERIFY(differingPixels(problem, other) >= 8);
    }
};

QTEST_MAIN(WithoutColorTest)
#include "without_color_test.moc"
