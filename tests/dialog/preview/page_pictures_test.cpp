#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/preview/PagePictures.h"
#include "tests/dialog/preview/ReferencePages.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 20000; // milliseconds

struct Drawing
{
    const char *name;
    const char *file; // of the source tree; null: numbered pages
    int page;
    QSize size;
};
const Drawing kDrawings[] = {
    {"a page of text", "resources/sample/welcome.pdf", 0, {595, 842}},
    {"larger", "resources/sample/welcome.pdf", 0, {1190, 1684}},
    {"a thumbnail", "tests/data/pages.pdf", 1, {60, 85}},
    {"distorted", "tests/data/pages.pdf", 0, {500, 300}},
    {"a font that is not in the document", nullptr, 1, {595, 842}},
    {"another paper", nullptr, 2, {612, 792}},
};

} // namespace

class PagePicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_numbered = writtenFile(m_folder.path(), u"numbered.pdf"_s,
                                 numberedPdf("page", {kA4, kA4, kLetter}));
    }

    void pagesLookAsPdftoppmDrawsThem_data() { addRows(kDrawings); }
    void pagesLookAsPdftoppmDrawsThem()
    {
        const Drawing &row = currentRow(kDrawings);
        const PageToDraw page{row.file ? sourceFile(QLatin1StringView(row.file)) : m_numbered,
                              row.page, row.size};
        PagePictures pictures;
        pictures.want({page});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(page).isNull(), kPatience);
        const QImage picture = pictures.picture(page);
        QCOMPARE(picture.format(), QImage::Format_RGB32);
        QCOMPARE(picture.size(), row.size);
        // The same library with the same settings.
        QCOMPARE(largestDifference(picture, drawnByPdftoppm(page.file, row.page, row.size)), 0);
    }

private:
    QTemporaryDir m_folder;
    QString m_numbered;
};

QTEST_GUILESS_MAIN(PagePicturesTest)
#include "page_pictures_test.moc"
