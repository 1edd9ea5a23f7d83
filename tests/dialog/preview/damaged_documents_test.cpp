// Documents that nobody would write: damaged ones, and such as were made to do harm.

#include <random>

#include <sys/resource.h>

#include <QFile>
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

constexpr int kPatience = 40000; // milliseconds
constexpr int kDocuments = 200;
constexpr unsigned kSeed = 14;
constexpr QSize kSize(300, 420);

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class Mutator
{
public:
    explicit Mutator(unsigned seed) : m_random(seed) {}

    QByteArray mutated(const QByteArray &sample)
    {
        QByteArray result = sample;
        const qsizetype changes = 1 + below(4);
        for (qsizetype i = 0; i < changes && result.size() > 4; ++i)
            change(result);
        return result;
    }
    qsizetype below(qsizetype limit) { return static_cast<qsizetype>(m_random()) % limit; }

private:
    void change(QByteArray &bytes)
    {
        const qsizetype at = below(bytes.size());
        switch (below(6)) {
        case 0: // another byte
            bytes[at] = static_cast<char>(below(256));
            break;
        case 1: // cut off, rarely at the beginning
            bytes.truncate(std::max(at, bytes.size() / 2));
            break;
        case 2: // a piece is missing
            bytes.remove(at, below(200));
            break;
        case 3: // a piece twice
            bytes.insert(at, bytes.mid(below(bytes.size()), below(200)));
            break;
        case 4: // another number
            for (qsizetype i = at; i < bytes.size(); ++i) {
                if (bytes.at(i) >= '0' && bytes.at(i) <= '9') {
                    bytes.replace(i, 1, kNumbers[below(std::size(kNumbers))]);
                    break;
                }
            }
            break;
        default: // zeros
            std::fill_n(bytes.begin() + at, std::min<qsizetype>(below(64), bytes.size() - at), 0);
        }
    }

    static constexpr const char *kNumbers[] = {"-1",         "0",    "999999999",
                                               "4294967296", "1e30", "65536"};
    std::mt19937 m_random;
};

/// A page with that content and what `resources` has.
QByteArray pdfOf(const QByteArray &content, const QByteArray &resources = {},
                 const QByteArray &objects = {})
{
    return "%PDF-1.5\n1 0 obj\n<</Type/Catalog/Pages 2 0 R>>\nendobj\n"
           "2 0 obj\n<</Type/Pages/Count 1/Kids[3 0 R]>>\nendobj\n"
           "3 0 obj\n<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]/Contents 4 0 R/Resources<<" +
           resources + ">>>>\nendobj\n4 0 obj\n<</Length " + QByteArray::number(content.size()) +
           ">>\nstream\n" + content + "\nendstream\nendobj\n" + objects +
           "trailer\n<</Root 1 0 R/Size 100>>\n";
}

/// Saves the state of the page two million times, each of which takes memory.
QByteArray memoryEater()
{
    return pdfOf(QByteArray("q ").repeated(2000000));
}

/// Ten billion squares, by forms that each draw another one ten times.
QByteArray endlessPage()
{
    constexpr int first = 10;
    constexpr int depth = 10;
    QByteArray objects;
    for (int i = 0; i < depth; ++i) {
        const QByteArray content =
            i + 1 < depth ? QByteArray("/F Do ").repeated(10) : QByteArray("0 0 9 9 re f");
        objects +=
            QByteArray::number(first + i) +
            " 0 obj\n<</Type/XObject/Subtype/Form/BBox[0 0 595 842]/Resources<</XObject<</F " +
            QByteArray::number(first + i + 1) + " 0 R>>>>/Length " +
            QByteArray::number(content.size()) + ">>\nstream\n" + content + "\nendstream\nendobj\n";
    }
    return pdfOf("/F Do", "/XObject<</F 10 0 R>>", objects);
}

/// An image of 3.6 billion pixels.
QByteArray hugeImage()
{
    return pdfOf("595 0 0 842 0 0 cm /I Do", "/XObject<</I 10 0 R>>",
                 "10 0 obj\n<</Type/XObject/Subtype/Image/Width 60000/Height 60000/ColorSpace/"
                 "DeviceRGB/BitsPerComponent 8/Length 3>>\nstream\nabc\nendstream\nendobj\n");
}

QByteArray townSizedPage()
{
    QByteArray pdf = pdfOf("0 0 9 9 re f");
    return pdf.replace("0 0 595 842", "0 0 1e9 1e9");
}

constexpr auto kAnything = "";
struct Attack
{
    const char *name;
    QByteArray (*make)();
    const char *problem; ///< kAnything: that or a picture
};
const Attack kAttacks[] = {
    {"no PDF", [] { return QByteArray("hello"); }, "This page cannot be shown: it is damaged."},
    {"no pages",
     [] {
         return QByteArray(
             "%PDF-1.4\n1 0 obj\n<</Type/Catalog>>\nendobj\ntrailer\n<</Root 1 0 R>>");
     },
     "This page cannot be shown: it is damaged."},
    {"more memory than there is", memoryEater, kAnything},
    {"an image without an end", hugeImage, kAnything},
    {"a page as large as a town", townSizedPage, kAnything},
    {"a page without an end", endlessPage, "This page cannot be shown: drawing it takes too long."},
};

} // namespace

class DamagedDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase()
    {
        // Of all renderers of this test, each of which has ended. What this process itself uses
        // counts, too, because a process begins as a part of the one that starts it. Units: KiB
        QVERIFY(runningRenderers().isEmpty());
        rusage used{};
        QCOMPARE(::getrusage(RUSAGE_CHILDREN, &used), 0);
        qInfo("at most %ld KiB", used.ru_maxrss);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
        QVERIFY(used.ru_maxrss > 0 && used.ru_maxrss <= 256 * 1024);
#endif
    }

    void harmfulDocumentsCostASentence_data()
    {
        addRows(kAttacks);
    }
    void harmfulDocumentsCostASentence()
    {
        const Attack &row = currentRow(kAttacks);
        const QString file = writtenFile(m_folder.path(), u"attack.pdf"_s, row.make());
        RendererSettings settings = RendererSettings::shipped();
        settings.pagePatience = std::chrono::milliseconds(8000);
        PagePictures pictures(settings);
        const PageToDraw page{file, 0, kSize};
        pictures.want({page});
        QTRY_VERIFY_WITH_TIMEOUT(
            !pictures.problem(file, 0).isEmpty() || !pictures.picture(page).isNull(), kPatience);
        if (*row.problem)
            QCOMPARE(pictures.problem(file, 0), QString::fromLatin1(row.problem));
        // The next document is drawn as if nothing had been.
        const PageToDraw sample{sourceFile(u"tests/data/pages.pdf"_s), 0, kSize};
        pictures.want({sample});
        QTRY_VERIFY_WITH_TIMEOUT(!pictures.picture(sample).isNull(), kPatience);
    }

    void damagedDocumentsGetAPictureOrASentence()
    {
        const QByteArray samples[] = {
            contentOf(sourceFile(u"resources/sample/welcome.pdf"_s)),
            contentOf(sourceFile(u"tests/data/pages.pdf"_s)),
            numberedPdf("page", 3),
        };
        Mutator mutator(kSeed);
        PagePictures pictures;
        int drawn = 0;
        int said = 0;
        for (int i = 0; i < kDocuments; ++i) {
            const QByteArray &sample = samples[mutator.below(std::size(samples))];
            QVERIFY(!sample.isEmpty());
            const QString file =
                writtenFile(m_folder.path(), u"%1.pdf"_s.arg(i), mutator.mutated(sample));
            const PageToDraw page{file, 0, kSize};
            pictures.want({page});
            QTRY_VERIFY_WITH_TIMEOUT(!pictures.problem(file, page.page).isEmpty() ||
                                         !pictures.picture(page).isNull(),
                                     kPatience);
            pictures.problem(file, page.page).isEmpty() ? ++drawn : ++said;
            QVERIFY(runningRenderers().size() <= 1);
            pictures.forget(file);
        }
        qInfo("%d drawn, %d not", drawn, said);
        // Poppler mends most; a test in which nothing is damaged, or everything, would say little.
        QVERIFY(drawn > 20);
        QVERIFY(said > 20);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(DamagedDocumentsTest)
#include "damaged_documents_test.moc"
