#include <QFile>
#include <QImage>

#include "dialog/sheets/LaidOutDocument.h"
#include "tests/dialog/documents/CameraPictures.h"
#include "tests/dialog/task/ByHandScene.h"
#include "tests/dialog/task/SidePictures.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

constexpr char kPdfPrinter[] = "*% it takes a PDF\n";
constexpr QSize kWide{640, 384};
constexpr int kDots = 50; // per inch
// Units: the average of all channels, of 255
constexpr double kAlike = 4;
constexpr double kDifferent = 10;

} // namespace

/// A picture that was taken with the camera on its side prints, is shown and is counted as one that
/// was taken upright.
class TaskCameraTest : public ByHandScene
{
    Q_OBJECT

private:
    Document photo(const QString &name, const QByteArray &file) const
    {
        return {writeFile(m_home->filePath(name), file), u"image/jpeg"_s, name};
    }
    // Held upright, in a file that says nothing of it.
    Document upright() const { return photo(u"upright.jpg"_s, jpegOf(corneredPicture(kWide))); }
    // The same picture, as it lies in the file of a camera that was held otherwise.
    static QByteArray fileOfTurned()
    {
        return withOrientation(jpegOf(corneredPicture(kWide).transformed(QTransform().rotate(-90))),
                               6);
    }
    static QByteArray fileOfUpsideDown()
    {
        return withOrientation(jpegOf(corneredPicture(kWide).transformed(QTransform().rotate(180))),
                               3);
    }
    Document turned() const { return photo(u"turned.jpg"_s, fileOfTurned()); }

    PrintRequest requestFor(const QList<Document> &documents, const QString &options = {})
    {
        PrintRequest request = ByHandScene::request(Kind::A4, options);
        request.documents = documents;
        return request;
    }
    static QImage drawn(const QByteArray &pdf, int page = 1)
    {
        const QTemporaryDir folder;
        const QString path = writeFile(folder.filePath(u"a.pdf"_s), pdf);
        QProcess drawing;
        drawing.start(u"pdftoppm"_s,
                      {u"-r"_s, QString::number(kDots), u"-png"_s, u"-singlefile"_s, u"-f"_s,
                       QString::number(page), path, folder.filePath(u"a"_s)});
        return drawing.waitForFinished() ? QImage(folder.filePath(u"a.png"_s)) : QImage();
    }
    static double difference(const QImage &one, const QImage &other)
    {
        if (one.isNull() || one.size() != other.size())
            return 255;
        double sum = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                const QRgb first = one.pixel(x, y);
                const QRgb second = other.pixel(x, y);
                sum += qAbs(qRed(first) - qRed(second)) + qAbs(qGreen(first) - qGreen(second)) +
                       qAbs(qBlue(first) - qBlue(second));
            }
        }
        return sum / (3.0 * one.width() * one.height());
    }
    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QList<QByteArray> streamsOf(const PrintRequest &request)
    {
        const qsizetype before = jobs().size();
        m_scene->face.outcomes.clear();
        open(request);
        task().print();
        QList<QByteArray> streams;
        if (waitForTheEnd()) {
            for (const CapturedJob &job : jobs().mid(before))
                streams += job.data;
        }
        return streams;
    }

private Q_SLOTS:
    void itPrintsAsOneThatWasHeldUpright()
    {
        addQueue(kPdfPrinter);
        const QImage expected = drawn(streamsOf(requestFor({upright()})).value(0));
        for (const QByteArray &file : {fileOfTurned(), fileOfUpsideDown()}) {
            const QImage printed =
                drawn(streamsOf(requestFor({photo(u"turned.jpg"_s, file)})).value(0));
            QVERIFY2(difference(printed, expected) < kAlike,
                     qPrintable(QString::number(difference(printed, expected))));
        }
        // A picture that nobody turned is another one.
        const Document lying = photo(u"lying.jpg"_s, fileOfUpsideDown().replace("Exif", "Exof"));
        const QImage other = drawn(streamsOf(requestFor({lying})).value(0));
        QVERIFY(difference(other, expected) > kDifferent);
    }

    // Made small for the web: CUPS takes it for no picture.
    void oneThatSaysNothingOfItselfPrintsAsAnyOther()
    {
        addQueue(kPdfPrinter);
        const QByteArray file = jpegOf(corneredPicture(kWide));
        const QByteArray bare = "\xff\xd8" + file.mid(file.indexOf("\xff\xdb"));
        const Document small = photo(u"small.jpg"_s, bare);
        const QImage printed = drawn(streamsOf(requestFor({small})).value(0));
        const QImage expected = drawn(streamsOf(requestFor({upright()})).value(0));
        QVERIFY(!expected.isNull());
        QVERIFY2(difference(printed, expected) < kAlike,
                 qPrintable(QString::number(difference(printed, expected))));
        open(requestFor({small}));
        QVERIFY(preview().files.value(0));
    }

    void thatIsWhatIsShown()
    {
        addQueue(kPdfPrinter);
        QList<QImage> shown;
        for (const Document &document : {upright(), turned()}) {
            open(requestFor({document}));
            QVERIFY(preview().files.value(0));
            shown += drawn(contentOf(preview().files.constFirst()->path()));
        }
        QVERIFY(difference(shown.at(0), shown.at(1)) < kAlike);
    }

    void amongSeveralEachIsWhatItIs()
    {
        addQueue(kPdfPrinter);
        // They become one on the way.
        const QByteArray stream = streamsOf(requestFor({turned(), upright(), turned()})).value(0);
        for (const int page : {1, 3})
            QVERIFY(difference(drawn(stream, page), drawn(stream, 2)) < kAlike);
    }

    void aFileHasItTurned()
    {
        addQueue(kPdfPrinter);
        QList<QImage> files;
        for (const Document &document : {upright(), turned()}) {
            m_scene->face.outcomes.clear();
            open(requestFor({document}));
            task().setPrintsToFile(true);
            task().setOutput(m_home->filePath(u"out.pdf"_s), true);
            task().print();
            QVERIFY(waitForTheEnd());
            files += drawn(contentOf(m_home->filePath(u"out.pdf"_s)));
        }
        QVERIFY(difference(files.at(0), files.at(1)) < kAlike);
    }

    // What is printed is a copy of it, which the result would not replace.
    void theResultIsNotThePictureItself()
    {
        addQueue(kPdfPrinter);
        const Document document = turned();
        open(requestFor({document}));
        task().setPrintsToFile(true);
        task().setOutput(document.path, true);
        task().print();
        QVERIFY(waitForTheEnd());
        QCOMPARE(task().outcome().kind, JobOutcome::Kind::Failed);
        QCOMPARE(contentOf(document.path), fileOfTurned());
    }

    // What goes past all filters is the file, byte for byte.
    void withRawTheFileIsSent()
    {
        addQueue(kPdfPrinter);
        QCOMPARE(streamsOf(requestFor({turned()}, u"raw"_s)), QList{fileOfTurned()});
    }
};

QTEST_MAIN(TaskCameraTest)
#include "task_camera_test.moc"
