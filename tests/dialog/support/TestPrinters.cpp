#include "tests/dialog/support/TestPrinters.h"

#include <stdexcept>

#include <QFile>
#include <QTemporaryDir>

namespace corvana::test {

QString samplePpdPath()
{
    return QStringLiteral(CORVANA_TEST_SOURCE_DIR "/resources/ppd/corvana-cl5.ppd");
}

namespace {

std::unique_ptr<PpdSession> opened(const QString &path)
{
    QString error;
    auto session = PpdSession::open(path, &error);
    if (!session)
        throw std::runtime_error(error.toStdString());
    return session;
}

} // namespace

std::unique_ptr<PpdSession> sampleSession()
{
    return opened(samplePpdPath());
}

std::unique_ptr<PpdSession> sessionFor(const QByteArray &ppdText)
{
    // A session keeps nothing of the file but what it has read.
    const QTemporaryDir folder;
    return opened(writeFile(folder.filePath(QStringLiteral("test.ppd")), ppdText));
}

PpdBuilder smallPrinter()
{
    return PpdBuilder()
        .option("Duplex", "Two-Sided", "None",
                {{"None", "Off"}, {"DuplexNoTumble", "Long Edge"}, {"DuplexTumble", "Short Edge"}})
        .option("Tray", "Tray", "Upper", {{"Upper", "Upper Tray"}, {"Lower", "Lower Tray"}})
        .option("Media", "Media", "Plain",
                {{"Plain", "Plain Paper"}, {"Card", "Card"}, {"Film", "Film"}})
        .onOff("Boost", "Boost")
        .option("QXOutput", "Output To", "Printer", {{"Printer", "Printer"}, {"FAX", "Fax"}})
        .option(
            "AP_ColorMatchingMode", "Colors Matched By", "AP_VendorColorMatching",
            {{"AP_ApplicationColorMatching", "Application"}, {"AP_VendorColorMatching", "Printer"}})
        .constraint("Media", "Card", "Duplex", "DuplexNoTumble")
        .constraint("Media", "Card", "Duplex", "DuplexTumble")
        .constraint("Media", "Film", "Tray", "Lower")
        .constraint("PageSize", "Postcard", "Tray", "Lower");
}

QString writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error((path + QStringLiteral(": ") + file.errorString()).toStdString());
    return path;
}

} // namespace corvana::test
