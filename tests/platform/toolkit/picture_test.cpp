#include <dlfcn.h>

#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "platform/toolkit/ImageView.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// How large a picture of a file is drawn.
class PictureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMultipleOfSeventyTwoDotsAnInchIsForFinerScreens_data()
    {
        QTest::addColumn<int>("dotsPerInch");
        QTest::addColumn<double>("ratio");
        for (const int dots : {1, 36, 71, 72, 73, 96, 100, 143, 145, 150, 300})
            QTest::addRow("%d", dots) << dots << 1.0;
        QTest::newRow("144") << 144 << 2.0;
        QTest::newRow("216") << 216 << 3.0;
        QTest::newRow("the finest screen") << 576 << 8.0;
        QTest::newRow("finer than any screen") << 36864 << 1.0;
        QTest::newRow("288") << 288 << 4.0;
    }
    void aMultipleOfSeventyTwoDotsAnInchIsForFinerScreens()
    {
        QFETCH(int, dotsPerInch);
        QFETCH(double, ratio);
        for (const QString &format : {u"png"_s, u"tiff"_s}) {
            const QString file = m_folder.filePath(u"picture."_s + format);
            QImage picture(24, 12, QImage::Format_RGB32);
            picture.fill(Qt::red);
            picture.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
            picture.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
            QVERIFY(picture.save(file));
            // Whatever the screen: the picture itself says what it is.
            for (const double screen : {1.0, 2.0}) {
                const QImage read = readPicture(file, screen);
                QCOMPARE(read.size(), picture.size());
                QCOMPARE(read.devicePixelRatio(), ratio);
                QCOMPARE(read.deviceIndependentSize(), QSizeF(24, 12) / ratio);
            }
        }
    }

    void theContentCountsNotTheName()
    {
        QImage picture(8, 4, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QString file = m_folder.filePath(u"named.tiff"_s);
        QVERIFY(picture.save(file, "PNG"));
        QCOMPARE(readPicture(file, 1.0).size(), QSize(8, 4));
    }

    void aFileThatIsNoPictureIsLogged_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("name");
        QTest::newRow("words") << QByteArray("no picture") << u"words.tiff"_s;
        QTest::newRow("nothing") << QByteArray() << u"empty.tiff"_s;
        QTest::newRow("cut short") << QByteArray("II*\0\x08\0\0\0\xff\xff", 10) << u"cut.tiff"_s;
        QTest::newRow("no page") << QByteArray("%PDF-1.4\n") << u"cut.pdf"_s;
    }
    void aFileThatIsNoPictureIsLogged()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, name);
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"is no picture"_s));
        QVERIFY(readPicture(file.fileName(), 1.0).isNull());
    }

    // What draws PDF pages is a library of its own, which an installation may lack.
    void aPdfPageIsSkippedWhereNothingDrawsIt()
    {
        const QString file = m_folder.filePath(u"page.pdf"_s);
        {
            QPdfWriter writer(file);
            QPainter painter(&writer);
            painter.drawEllipse(QRect(0, 0, 100, 100));
        }
        if (qEnvironmentVariableIsSet(kWithoutTheLibrary)) {
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(u"pictures that are PDF pages cannot be shown: "
                                                    ".*libcorvana-pdf-pictures"_s));
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"is no picture"_s));
            QVERIFY(readPicture(file, 1.0).isNull());
            // Said once, as often as it is missed.
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"is no picture"_s));
            QVERIFY(readPicture(file, 1.0).isNull());
            return;
        }
        QVERIFY(!readPicture(file, 1.0).isNull());
        // The same once more, in a process whose platform library lies there alone.
        const QFileInfo library(libraryOf(reinterpret_cast<const void *>(&readPicture)));
        QVERIFY(QFile::copy(library.filePath(), m_folder.filePath(library.fileName())));
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"LD_LIBRARY_PATH"_s, m_folder.path());
        environment.insert(QString::fromLatin1(kWithoutTheLibrary), u"1"_s);
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::arguments().constFirst(),
                      {QString::fromLatin1(QTest::currentTestFunction())});
        QVERIFY(process.waitForFinished());
        QVERIFY2(process.exitCode() == 0, process.readAllStandardOutput().constData());
    }

private:
    static QString libraryOf(const void *code)
    {
        Dl_info library{};
        return ::dladdr(code, &library) ? QFile::decodeName(library.dli_fname) : QString();
    }

    static constexpr char kWithoutTheLibrary[] = "CORVANA_TEST_WITHOUT_PDF_PICTURES";
    QTemporaryDir m_folder;
};

QTEST_MAIN(PictureTest)
#include "picture_test.moc"
