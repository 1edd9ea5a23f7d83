#include <cmath>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/preview/PagePictures.h"
#include "tests/dialog/preview/ReferencePages.h"
#include "tests/dialog/preview/Renderers.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 20000; // milliseconds

/// Japanese in a font that the document does not bring along: Poppler's tables and a font of the
/// system are read when the renderer is locked in already.
QByteArray japanesePdf()
{
    return "%PDF-1.4\n1 0 obj\n<</Type/Catalog/Pages 2 0 R>>\nendobj\n"
           "2 0 obj\n<</Type/Pages/Count 1/Kids[3 0 R]>>\nendobj\n"
           "3 0 obj\n<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]/Contents 4 0 R/Resources<<"
           "/Font<</F <</Type/Font/Subtype/Type0/BaseFont/Ryumin-Light/Encoding/UniJIS-UTF16-H/"
           "DescendantFonts[<</Type/Font/Subtype/CIDFontType0/BaseFont/Ryumin-Light/CIDSystemInfo"
           "<</Registry(Adobe)/Ordering(Japan1)/Supplement 4>>/FontDescriptor<</Type/"
           "FontDescriptor/FontName/Ryumin-Light/Flags 4/FontBBox[0 -200 1000 900]/ItalicAngle 0/"
           "Ascent 700/Descent -150/StemV 70>>>>]>>>>>>>>\nendobj\n"
           "4 0 obj\n<</Length 44>>\nstream\nBT /F 90 Tf 50 400 Td <65e5672c8a9e> Tj ET  \n"
           "endstream\nendobj\ntrailer\n<</Root 1 0 R/Size 5>>\n";
}

/// The samples of the source tree, and what the test writes.
struct Drawing
{
    const char *name;
    const char *file;
    int page;
    QSize size;
    bool isTurned = false;
};
const Drawing kDrawings[] = {
    {"a page of text", "resources/sample/welcome.pdf", 0, {595, 842}},
    {"larger", "resources/sample/welcome.pdf", 0, {1190, 1684}},
    {"a thumbnail", "tests/data/pages.pdf", 1, {60, 85}},
    {"distorted", "tests/data/pages.pdf", 0, {500, 300}},
    {"a font that is not in the document", "numbered.pdf", 1, {595, 842}},
    {"another paper", "numbered.pdf", 2, {612, 792}},
    {"a page that is turned", "turned.pdf", 0, {842, 595}, true},
    {"a page that is cropped", "cropped.pdf", 0, {400, 300}},
    {"Japanese", "japanese.pdf", 0, {595, 842}},
};

} // namespace

class PagePicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_numbered = writtenFile(m_folder.path(), u"numbered.pdf"_s,
                                 numberedPdf("page", {kA4, kA4, kLetter}));
        writtenFile(m_folder.path(), u"turned.pdf"_s, numberedPdf("page", {NumberedPage{kA4, 90}}));
        writtenFile(m_folder.path(), u"cropped.pdf"_s,
                    numberedPdf("page", {NumberedPage{kA4, 0, QRectF(50, 300, 400, 300)}}));
        writtenFile(m_folder.path(), u"japanese.pdf"_s, japanesePdf());
        m_many = writtenFile(m_folder.path(), u"many.pdf"_s, numberedPdf("page", kManyPages));
    }

    void pagesLookAsPdftoppmDrawsThem_data() { addRows(kDrawings); }
    void pagesLookAsPdftoppmDrawsThem()
    {
        const Drawing &row = currentRow(kDrawings);
        const QString name = QString::fromLatin1(row.file);
        const PageToDraw page{name.contains(u'/') ? sourceFile(name) : m_folder.filePath(name),
                              row.page, row.size};
        PagePictures pictures;
        pictures.want({page});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(page).isNull(), kPatience);
        const QImage picture = pictures.picture(page);
        QCOMPARE(picture.format(), QImage::Format_RGB32);
        QCOMPARE(picture.size(), row.size);
        // The same library with the same settings.
        QCOMPARE(largestDifference(picture,
                                   drawnByPdftoppm(page.file, row.page, row.size, row.isTurned)),
                 0);
        QImage blank(row.size, QImage::Format_RGB32);
        blank.fill(Qt::white);
        QVERIFY(picture != blank);
    }

    void nothingRunsBeforeTheFirstWish()
    {
        PagePictures pictures;
        pictures.want({});
        QVERIFY(pictures.picture({m_numbered, 0, {100, 140}}).isNull());
        QVERIFY(pictures.problem(m_numbered, 0).isEmpty());
        QVERIFY(runningRenderers().isEmpty());
        pictures.prepare();
        QTRY_COMPARE_WITH_TIMEOUT(runningRenderers().size(), 1, kPatience);
    }

    void theMostUrgentPageComesFirstAndEachOnce()
    {
        PagePictures pictures;
        QSignalSpy drawn(&pictures, &PagePictures::drawn);
        pictures.want({{m_numbered, 2, {100, 140}},
                       {m_numbered, 0, {100, 140}},
                       {m_numbered, 2, {100, 140}},
                       {m_numbered, 1, {100, 140}}});
        QTRY_COMPARE_WITH_TIMEOUT(drawn.count(), 3, kPatience);
        QCOMPARE(drawn.at(0).at(1).toInt(), 2);
        QCOMPARE(drawn.at(1).at(1).toInt(), 0);
        QCOMPARE(drawn.at(2).at(1).toInt(), 1);
        QTest::qWait(50);
        QCOMPARE(drawn.count(), 3);
    }

    void whatIsNotWantedAnyMoreIsNotDrawn()
    {
        PagePictures pictures;
        QSignalSpy drawn(&pictures, &PagePictures::drawn);
        QList<PageToDraw> all;
        for (int page = 0; page < kManyPages; ++page)
            all.append({m_many, page, {500, 700}});
        pictures.want(all);
        QTRY_VERIFY_WITH_TIMEOUT(drawn.count() >= 1, kPatience);
        const PageToDraw last{m_many, kManyPages - 1, {500, 700}};
        pictures.want({last});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(last).isNull(), kPatience);
        QTest::qWait(100);
        QVERIFY(drawn.count() < kManyPages / 2);
    }

    void noMoreIsDrawnThanThereIsRoomFor()
    {
        // Nearly a third of the room each.
        constexpr QSize large(1400, 1900);
        PagePictures pictures;
        QSignalSpy drawn(&pictures, &PagePictures::drawn);
        QList<PageToDraw> all;
        for (int page = 0; page < 6; ++page)
            all.append({m_many, page, large});
        pictures.want(all);
        QTRY_COMPARE_WITH_TIMEOUT(drawn.count(), 3, kPatience);
        QTest::qWait(300);
        QCOMPARE(drawn.count(), 3);
        for (int page = 0; page < 6; ++page)
            QCOMPARE(pictures.picture(all.at(page)).isNull(), page >= 3);
        // What was wanted before makes room for what is wanted now.
        pictures.want({all.at(5)});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(all.at(5)).isNull(), kPatience);
        int kept = 0;
        for (const PageToDraw &page : all)
            kept += pictures.picture(page).isNull() ? 0 : 1;
        QCOMPARE(kept, 3);
    }

    void aVeryLargePictureHasFewerPixelsOfTheSameProportions()
    {
        PagePictures pictures;
        const PageToDraw page{m_numbered, 0, {8000, 12000}};
        pictures.want({page});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(page).isNull(), kPatience);
        const QSizeF size = pictures.picture(page).size();
        QVERIFY(size.width() * size.height() <= PagePictures::kMostPixels);
        QVERIFY(size.width() * size.height() > 0.99 * PagePictures::kMostPixels);
        QVERIFY(std::abs(size.width() / size.height() - 2 / 3.0) < 0.001);
        const PageToDraw strip{m_numbered, 0, {100000, 10}};
        pictures.want({strip});
        QTRY_COMPARE_WITH_TIMEOUT(pictures.picture(strip).width(), 16384, kPatience);
    }

    void anotherSizeServesMeanwhile()
    {
        PagePictures pictures;
        const PageToDraw small{m_numbered, 0, {100, 140}};
        const PageToDraw large{m_numbered, 0, {200, 280}};
        pictures.want({small});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(small).isNull(), kPatience);
        QVERIFY(pictures.picture(large).isNull());
        QCOMPARE(pictures.anyPicture(m_numbered, 0).size(), small.size);
        QVERIFY(pictures.anyPicture(m_numbered, 1).isNull());
    }

    void aFileThatWasReplacedIsDrawnAnewOnceItIsForgotten()
    {
        const QString file = writtenFile(m_folder.path(), u"layout.pdf"_s, numberedPdf("old", 1));
        PagePictures pictures;
        const PageToDraw page{file, 0, {300, 420}};
        pictures.want({page});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(page).isNull(), kPatience);
        const QImage old = pictures.picture(page);
        QVERIFY(QFile::remove(file));
        writtenFile(m_folder.path(), u"layout.pdf"_s, numberedPdf("new", 1));
        pictures.forget(file);
        QVERIFY(pictures.picture(page).isNull());
        QVERIFY(pictures.anyPicture(file, 0).isNull());
        pictures.want({page});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(page).isNull(), kPatience);
        QVERIFY(pictures.picture(page) != old);
    }

    // The whole of a document takes the place of its begin.
    void aLongerFileTakesThePicturesOverWithItsPlace()
    {
        const QByteArray pdf = numberedPdf("page", 2);
        const QString begin = writtenFile(m_folder.path(), u"begin.pdf"_s, pdf);
        const QString all = writtenFile(m_folder.path(), u"all.pdf"_s, pdf);
        PagePictures pictures;
        const PageToDraw page{begin, 1, {300, 420}};
        pictures.want({page});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(page).isNull(), kPatience);
        const QImage drawn = pictures.picture(page);
        pictures.replace(begin, all);
        QVERIFY(pictures.picture(page).isNull());
        QCOMPARE(pictures.picture({all, 1, {300, 420}}), drawn);
        QVERIFY(pictures.anyPicture(all, 0).isNull());
        pictures.want({{all, 0, {300, 420}}});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.anyPicture(all, 0).isNull(), kPatience);
    }

    void aFileThatIsForgottenInTheMidstOfAPageShowsNothingOfTheOldOne()
    {
        const PageToDraw page{m_folder.filePath(u"layout.pdf"_s), 0, {1000, 1400}};
        const auto write = [&](const QByteArray &content) {
            QFile::remove(page.file);
            writtenFile(m_folder.path(), u"layout.pdf"_s, content);
        };
        write(numberedPdf("new", 1));
        const QImage expected = drawnByPdftoppm(page.file, 0, page.size);
        for (int round = 0; round < 12; ++round) {
            PagePictures pictures;
            write(numberedPdf("old", 1));
            // It is being drawn, wherever it is.
            const PageToDraw other{m_numbered, 0, {60, 85}};
            pictures.want({other});
            QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(other).isNull(), kPatience);
            pictures.want({page});
            QTest::qSleep(round * 3);
            write(numberedPdf("new", 1));
            pictures.forget(page.file);
            pictures.want({page});
            QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(page).isNull(), kPatience);
            QCOMPARE(largestDifference(pictures.picture(page), expected), 0);
        }
    }

    void moreDocumentsThanARendererHoldsAreDrawnAllTheSame()
    {
        PagePictures pictures;
        QList<pid_t> renderers;
        for (int round = 0; round < 2; ++round) {
            for (int i = 0; i < static_cast<int>(renderer::kMaxDocuments) + 6; ++i) {
                const QString file =
                    writtenFile(m_folder.path(), u"%1.pdf"_s.arg(i), numberedPdf("page", 1));
                const PageToDraw page{file, 0, {60 + round, 85}};
                pictures.want({page});
                QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(page).isNull(), kPatience);
                if (renderers.isEmpty())
                    renderers = runningRenderers();
            }
        }
        QCOMPARE(runningRenderers(), renderers); // the same one
    }

    void whyAPageIsNotShownIsSaid()
    {
        PagePictures pictures;
        const QString absent = m_folder.filePath(u"absent.pdf"_s);
        pictures.want({{absent, 0, {60, 85}}, {m_numbered, 7, {60, 85}}});
        QTRY_COMPARE_WITH_TIMEOUT(pictures.problem(absent, 0),
                                  u"This page cannot be shown: the file cannot be read."_s,
                                  kPatience);
        QTRY_COMPARE_WITH_TIMEOUT(pictures.problem(m_numbered, 7),
                                  u"This page cannot be shown: it is damaged."_s, kPatience);
        // The one concerns the document, the other one page of it.
        QVERIFY(!pictures.problem(absent, 1).isEmpty());
        QVERIFY(pictures.problem(m_numbered, 0).isEmpty());
    }

private:
    static constexpr int kManyPages = 30;

    QTemporaryDir m_folder;
    QString m_many;
    QString m_numbered;
};

QTEST_GUILESS_MAIN(PagePicturesTest)
#include "page_pictures_test.moc"
