#include <QColor>
#include <QtTest>

#include "platform/imaging/ColorTransform.h"
#include "platform/imaging/ImageFilter.h"

using namespace corvana;

class ColorTransformTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOneThatChangesNothingIsTheDefault();
    void theFirstOneIsAppliedFirst();
    void changingNothingBeforeOrAfterChangesNothing();
    void aGreyIsTheLuminanceAndStaysItself();
};

void ColorTransformTest::theOneThatChangesNothingIsTheDefault()
{
    QVERIFY(ColorTransform().isIdentity());
    ColorTransform other;
    other.rows[1][3] = 1e-12;
    QVERIFY(!other.isIdentity());
}

void ColorTransformTest::theFirstOneIsAppliedFirst()
{
    const ColorTransform first{{{{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}}}};
    const ColorTransform next{{{{1, 0, 1, 5}, {0, 2, 0, 6}, {3, 0, 0, 7}}}};
    // Row by row: the first's rows 1 and 3 added, plus 5; twice row 2, plus 6; row 1 three times,
    // plus 7.
    const ColorTransform expected{{{{10, 12, 14, 21}, {10, 12, 14, 22}, {3, 6, 9, 19}}}};
    QVERIFY(first.then(next) == expected);
    QVERIFY(next.then(first) != expected);
}

void ColorTransformTest::changingNothingBeforeOrAfterChangesNothing()
{
    const ColorTransform some{{{{0.1, 0.2, 0.3, 0.4}, {5, 6, 7, 8}, {-9, 1e9, 11, 12}}}};
    QVERIFY(some.then({}) == some);
    QVERIFY(ColorTransform().then(some) == some);
}

void ColorTransformTest::aGreyIsTheLuminanceAndStaysItself()
{
    const ColorTransform grey = ColorTransform::grey();
    const auto filter = ImageFilter::filterWithName(kCIColorMonochrome);
    filter->setValue_forKey(FilterImage(QImage(1, 1, QImage::Format_RGB32)), kCIInputImageKey);
    filter->setValue_forKey(QColor(Qt::white), kCIInputColorKey);
    QVERIFY(filter->outputImage().transform() == grey);
    for (const auto &row : grey.then(grey).rows) {
        for (std::size_t column = 0; column < 4; ++column)
            QVERIFY(qAbs(row[column] - grey.rows[0][column]) < 1e-12);
    }
}

QTEST_GUILESS_MAIN(ColorTransformTest)

#include "color_transform_test.moc"
