#include <QTest>

#include "dialog/preview/PictureCache.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize kSize(10, 10);
constexpr qint64 kBytes = 400; // of one picture

PageToDraw pageOf(int page, QSize size = kSize, const QString &file = u"a.pdf"_s)
{
    return {file, page, size};
}

QImage pictureOf(QSize size = kSize)
{
    return QImage(size, QImage::Format_RGB32);
}

} // namespace

class PictureCacheTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasNotUsedForLongestGoesFirst()
    {
        PictureCache cache(3 * kBytes);
        for (int page = 0; page < 3; ++page)
            cache.insert(pageOf(page), pictureOf());
        QVERIFY(!cache.picture(pageOf(0)).isNull()); // used
        cache.insert(pageOf(3), pictureOf());
        QVERIFY(cache.contains(pageOf(0)));
        QVERIFY(!cache.contains(pageOf(1)));
        QCOMPARE(cache.bytes(), 3 * kBytes);
    }

    void whatIsWantedStays()
    {
        PictureCache cache(2 * kBytes);
        cache.insert(pageOf(0), pictureOf());
        cache.setWanted({pageOf(0), pageOf(1), pageOf(2)});
        cache.insert(pageOf(1), pictureOf());
        cache.insert(pageOf(2), pictureOf()); // no room beside what is wanted
        QVERIFY(cache.contains(pageOf(0)));
        QVERIFY(cache.contains(pageOf(1)));
        QVERIFY(!cache.contains(pageOf(2)));
        QCOMPARE(cache.bytes(), 2 * kBytes);
    }

    void sizesOfAPageAreApart()
    {
        PictureCache cache(100 * kBytes);
        QVERIFY(cache.anyPicture(u"a.pdf"_s, 0).isNull());
        cache.insert(pageOf(0, {5, 5}), pictureOf({5, 5}));
        cache.insert(pageOf(0), pictureOf());
        cache.insert(pageOf(1, {90, 90}), pictureOf({90, 90}));
        QVERIFY(cache.picture(pageOf(0, {7, 7})).isNull());
        QCOMPARE(cache.anyPicture(u"a.pdf"_s, 0).size(), kSize); // the largest
        QVERIFY(cache.anyPicture(u"b.pdf"_s, 0).isNull());
    }

    void theSamePageAgainTakesNoMoreRoom()
    {
        PictureCache cache(2 * kBytes);
        cache.insert(pageOf(0), pictureOf());
        cache.insert(pageOf(0), pictureOf());
        QCOMPARE(cache.bytes(), kBytes);
    }

    void aForgottenFileLeavesNothing()
    {
        PictureCache cache(10 * kBytes);
        cache.insert(pageOf(0), pictureOf());
        cache.insert(pageOf(1), pictureOf());
        cache.insert(pageOf(0, kSize, u"b.pdf"_s), pictureOf());
        cache.forget(u"a.pdf"_s);
        QVERIFY(!cache.contains(pageOf(0)));
        QVERIFY(cache.contains(pageOf(0, kSize, u"b.pdf"_s)));
        QCOMPARE(cache.bytes(), kBytes);
    }
};

QTEST_APPLESS_MAIN(PictureCacheTest)
#include "picture_cache_test.moc"
