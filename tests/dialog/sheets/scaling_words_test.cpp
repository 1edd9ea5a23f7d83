#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "dialog/session/JobAttributes.h"
#include "dialog/sheets/SheetCounter.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/support/NumberedPdf.h"
#include "tests/support/Rows.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int kPatience = 20000; // milliseconds

// What the chain does to each page of a document, in percent, on A4 with margins.
enum class Does { KeepsSizes, FitsEach, FillsWithEach, FitsAllIfOneIsTooLarge };

struct Row
{
    const char *name;
    const char *value;
    const char *shown;
    Does does;
};
constexpr Row kRows[] = {
    {"none", "none", "Actual Size", Does::KeepsSizes},
    {"fit", "fit", "Fit to Paper", Does::FitsEach},
    {"fill", "fill", "Fill Paper", Does::FillsWithEach},
    {"auto", "auto", "Automatic", Does::FitsAllIfOneIsTooLarge},
    {"auto-fit", "auto-fit", "Fit All Pages If One Is Too Large", Does::FitsAllIfOneIsTooLarge},
};

} // namespace

/// Each value of "print-scaling" is called what the filter chain does with it.
class ScalingWordsTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    std::unique_ptr<PpdSession> m_session = sampleSession();

    // The scale of each size of page that the document has, in their order.
    QList<double> scalesOf(const QList<QSizeF> &sizes, const char *scaling)
    {
        SheetRequest request;
        const QString path = writeFile(m_folder.filePath(u"a.pdf"_s), numberedPdf("page", sizes));
        request.documents = {Document{path, u"application/pdf"_s, u"a.pdf"_s}};
        request.options = {{u"PageSize"_s, u"A4"_s},
                           {u"print-scaling"_s, QString::fromLatin1(scaling)}};
        request.traits = layoutTraits(m_session->ppd(), request.options);
        SheetCounter counter;
        QSignalSpy finished(&counter, &SheetCounter::finished);
        counter.count(request, SheetCounter::When::Now);
        QList<double> scales(sizes.size(), 0);
        if (finished.isEmpty() && !finished.wait(kPatience))
            return scales;
        for (const PageScale &found : counter.counted(request)->documents.constFirst().scales) {
            for (qsizetype i = 0; i < sizes.size(); ++i) {
                if (qAbs(found.size.width() - sizes.at(i).width()) < 1)
                    scales[i] = found.scale;
            }
        }
        return scales;
    }

private Q_SLOTS:
    void aValueDoesWhatItIsCalled_data() { addRows(kRows); }
    void aValueDoesWhatItIsCalled()
    {
        const Row &row = currentRow(kRows);
        QCOMPARE(textOfJobAttribute({u"print-scaling"_s, QString::fromLatin1(row.value)}).value,
                 QString::fromLatin1(row.shown));
        const double small = scalesOf({kA5}, row.value).constFirst();
        const double equal = scalesOf({kA4}, row.value).constFirst();
        const double large = scalesOf({kA3}, row.value).constFirst();
        const QList<double> mixed = scalesOf({kA5, kA4, kA3}, row.value);
        const auto is = [](double scale, double expected) {
            return qAbs(scale - expected) < 0.005;
        };
        QVERIFY(small > 0 && equal > 0 && large > 0 && mixed.constFirst() > 0);
        switch (row.does) {
        case Does::KeepsSizes:
            QVERIFY(is(small, 1) && is(equal, 1) && is(large, 1));
            QVERIFY(is(mixed.at(0), 1) && is(mixed.at(1), 1) && is(mixed.at(2), 1));
            break;
        case Does::FitsEach:
        case Does::FillsWithEach:
            QVERIFY(small > 1.05 && equal < 1 && large < 1);
            QVERIFY(is(mixed.at(0), small) && is(mixed.at(1), equal) && is(mixed.at(2), large));
            QCOMPARE(large > scalesOf({kA3}, "fit").constFirst() + 0.001,
                     row.does == Does::FillsWithEach);
            break;
        case Does::FitsAllIfOneIsTooLarge:
            QVERIFY(is(small, 1) && is(equal, 1) && large < 1);
            QVERIFY(mixed.at(0) > 1.05 && mixed.at(1) < 1 && is(mixed.at(2), large));
            QCOMPARE(scalesOf({kA5, kA4}, row.value), (QList<double>{small, equal}));
            break;
        }
    }
};

QTEST_MAIN(ScalingWordsTest)

#include "scaling_words_test.moc"
