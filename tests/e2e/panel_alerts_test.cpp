#include <QCheckBox>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QXmlStreamReader>

#include "dialog/app/Translations.h"
#include "tests/e2e/DialogDriver.h"
#include "tests/e2e/PpdLines.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// The alerts of the Print Setting panel as windows of the dialog: their words, their answers and
/// what these do to the job. In the language of the process.
class PanelAlertsTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_preferences;
    QString m_language; // as PPDs name it
    QMap<QString, QString> m_texts;

    // The panels' texts as translators write them.
    void readTexts(const QString &table)
    {
        QFile file(corvana::test::sourceFile(u"resources/bundle/strings/%1.ts"_s).arg(table));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        QString key;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == u"source"_s)
                key = xml.readElementText();
            else if (xml.name() == u"translation"_s)
                m_texts.insert(key, xml.readElementText());
        }
        QVERIFY(m_texts.size() > 20);
    }
    QString text(const QByteArray &key) const { return m_texts.value(QString::fromLatin1(key)); }

    static QWidget *media(DialogDriver &driver)
    {
        return driver.control<QWidget>(u"mediaTypePopup"_s);
    }
    static QByteArray duplexCode(const char *choice)
    {
        return PpdLines(u"corvana-cl5"_s, u"en"_s).code(u"Duplex"_s, QLatin1StringView(choice));
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString locale = QString::fromLatin1(qgetenv("LC_ALL"));
        const bool japanese = locale.startsWith(u"ja"_s);
        const bool chinese = locale.startsWith(u"zh_CN"_s);
        m_language = japanese ? u"ja"_s : chinese ? u"zh_CN"_s : u"en"_s;
        readTexts(japanese ? u"Japanese"_s : chinese ? u"zh_CN"_s : u"English"_s);
        installTranslations(*qApp, corvana::test::sharedFile(u"translations"_s));
    }
    // Nothing is silenced when a test begins.
    void init()
    {
        m_preferences = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", m_preferences->path().toLocal8Bit());
    }

    void aMediumThatWantsTheFrontFeedSaysSo_data()
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QString>("medium");
        QTest::addColumn<QByteArray>("request"); // keys of the texts; empty: no alert
        QTest::addColumn<QByteArray>("howToLoad");
        QTest::addColumn<bool>("canBeSilenced");
        const QByteArray recommended = "STR_MES_TRAY_RECOMMEND_INSTRUCTIONS";
        const QByteArray load = "STR_MES_TRAY_USEMP";
        for (const char *medium : {"Env", "EnvThick", "EnvThin", "Thick", "Thicker"})
            QTest::newRow(medium) << u"corvana-cl5"_s << QString::fromLatin1(medium) << recommended
                                  << load << true;
        if (!QLocale().name().startsWith(u"ja"_s)) // where this paper is not offered
            QTest::newRow("BOND") << u"corvana-cl5"_s << u"BOND"_s << recommended << load << true;
        QTest::newRow("Glossy") << u"corvana-cl5"_s << u"Glossy"_s << recommended
                                << QByteArray("STR_MES_TRAY_USEMP_ONESHEET") << true;
        QTest::newRow("Label") << u"corvana-cl5"_s << u"Label"_s
                               << QByteArray("STR_MES_TRAY_REQUEST_INSTRUCTIONS") << load << false;
        QTest::newRow("Thin") << u"corvana-cl5"_s << u"Thin"_s << QByteArray() << load << false;
        QTest::newRow("Glossy on a model without the feed")
            << u"corvana-cl4"_s << u"Glossy"_s << QByteArray() << load << false;
        QTest::newRow("Label on a model without the feed")
            << u"corvana-cl4"_s << u"Label"_s << QByteArray() << load << false;
    }
    void aMediumThatWantsTheFrontFeedSaysSo()
    {
        QFETCH(QString, printer);
        QFETCH(QString, medium);
        QFETCH(QByteArray, request);
        QFETCH(QByteArray, howToLoad);
        QFETCH(bool, canBeSilenced);
        const PpdLines ppd(printer, m_language);
        DialogDriver driver(printer);
        if (DialogDriver::chosen(media(driver)) == medium)
            QVERIFY(DialogDriver::choose(media(driver), u"Plain"_s));
        QCOMPARE(driver.alerts().seen.size(), 0);
        QVERIFY(DialogDriver::choose(media(driver), medium));
        QCOMPARE(driver.alerts().seen.size(), request.isEmpty() ? 0 : 1);
        QCOMPARE(DialogDriver::chosen(media(driver)), medium);
        if (request.isEmpty())
            return;
        const SeenAlert alert = driver.alerts().seen.constFirst();
        QCOMPARE(alert.title, ppd.text(u"QXMediaType"_s, medium));
        QCOMPARE(alert.text, text(request) + u"\n\n - "_s + text("STR_MES_TRAY_SELECT_MP") +
                                 u"\n - "_s + text(howToLoad));
        QCOMPARE(alert.buttons, QStringList{text("OK")});
        QCOMPARE(alert.canBeSilenced, canBeSilenced);
        QVERIFY(!alert.picture.isEmpty());
    }

    void anEnvelopePaperBringsItsMediumAndSaysHowToLoadIt_data()
    {
        QTest::addColumn<QString>("printer");
        // Whatever the model.
        QTest::newRow("model 5") << u"corvana-cl5"_s;
        QTest::newRow("model 4") << u"corvana-cl4"_s;
    }
    void anEnvelopePaperBringsItsMediumAndSaysHowToLoadIt()
    {
        QFETCH(QString, printer);
        const PpdLines ppd(printer, m_language);
        DialogDriver driver(printer);
        driver.showPage(0);
        auto *sizes = driver.child<QComboBox>(u"PageSize"_s);
        sizes->setCurrentText(ppd.text(u"PageSize"_s, u"EnvDL"_s));
        Q_EMIT sizes->activated(sizes->currentIndex());
        QTRY_COMPARE(driver.alerts().seen.size(), 1);
        QCOMPARE(driver.alerts().seen.constFirst().title, ppd.text(u"QXMediaType"_s, u"Env"_s));
        driver.showPage(1);
        QCOMPARE(DialogDriver::chosen(media(driver)), u"Env"_s);
        QCOMPARE(driver.alerts().seen.size(), 1);
        const QByteArray data = driver.print();
        QCOMPARE(data.count(ppd.code(u"QXMediaType"_s, u"Env"_s)), qsizetype(1));
    }

    // The pieces of the back cover's instructions, in their order, with what stands between them.
    void theBackCoverIsAskedForBeforePrinting_data()
    {
        QTest::addColumn<QString>("medium");
        QTest::addColumn<bool>("twoSided");
        QTest::addColumn<QList<QByteArray>>("pieces");
        QTest::addColumn<int>("answer"); // index of the button; -1: Escape
        const QByteArray start = "STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS";
        const QByteArray open = "\n\n - STR_MES_BACKCOVER_OPEN";
        const QByteArray levers = "\n - STR_MES_BACKCOVER_PULLDOWN_GRAY";
        const QByteArray envelopeNote = "\n\nDLG_BACKCOVER_INSTRUCTION_NOTE";
        const QByteArray labels = "\n\nSTR_MES_BACKCOVER_NOTE_USEMP";
        const QByteArray print = "\n - STR_MES_BACKCOVER_STARTPRINT";
        const QByteArray oneSideNote = "\n\nSTR_MES_BACKCOVER_NOTE_DUPLEX";
        struct Variant
        {
            const char *medium;
            QList<QByteArray> pieces;
            QByteArray note;
        };
        QList<Variant> variants{
            {"Env", {start, open, levers}, envelopeNote},
            {"EnvThin", {start, open, levers}, envelopeNote},
            {"EnvThick", {start, open, levers}, envelopeNote},
            {"Label", {start, open, labels}, oneSideNote},
        };
        if (m_language == u"ja"_s)
            variants += {"PostCard", {start, open, levers, print}, oneSideNote};
        const std::pair<const char *, int> answers[] = {{"OK", 0}, {"Cancel", 1}, {"Escape", -1}};
        for (const Variant &variant : std::as_const(variants)) {
            for (const auto &[name, answer] : answers) {
                QTest::addRow("%s one-sided, %s", variant.medium, name)
                    << QString::fromLatin1(variant.medium) << false << variant.pieces << answer;
                QTest::addRow("%s two-sided, %s", variant.medium, name)
                    << QString::fromLatin1(variant.medium) << true
                    << (variant.pieces + QList<QByteArray>{variant.note}) << answer;
            }
        }
    }
    void theBackCoverIsAskedForBeforePrinting()
    {
        QFETCH(QString, medium);
        QFETCH(bool, twoSided);
        QFETCH(QList<QByteArray>, pieces);
        QFETCH(int, answer);
        const PpdLines ppd(u"corvana-cl5"_s, m_language);
        DialogDriver driver(u"corvana-cl5"_s, {u"QXMediaType="_s + medium,
                                               twoSided ? u"Duplex=DuplexTumble"_s : QString()});
        QCOMPARE(driver.alerts().seen.size(), 0);
        QCOMPARE(driver.message(), QString());
        driver.alerts().answer = [answer](QMessageBox &box) {
            if (answer < 0)
                QTest::keyClick(&box, Qt::Key_Escape);
            else
                box.buttons().at(answer)->click();
        };
        QString expected;
        for (const QByteArray &piece : pieces) {
            const qsizetype key = piece.lastIndexOf(' ') + 1;
            const qsizetype name = qMax(key, piece.lastIndexOf('\n') + 1);
            expected += QString::fromLatin1(piece.left(name)) + text(piece.mid(name));
        }
        driver.pressPrint();
        QCOMPARE(driver.alerts().unanswered, 0);
        QCOMPARE(driver.alerts().seen.size(), 1);
        const SeenAlert alert = driver.alerts().seen.constFirst();
        QCOMPARE(alert.title, text("DLG_TITLE_BACKCOVER"));
        QCOMPARE(alert.text, expected);
        QCOMPARE(alert.buttons, QStringList({text("OK"), text("Cancel")}));
        QVERIFY(!alert.canBeSilenced);
        QVERIFY(!alert.picture.isEmpty());
        if (answer != 0) {
            QVERIFY(driver.dialog().isVisible());
            QVERIFY(!driver.somethingWasWritten());
            // The user goes on, and the job is still one-sided.
            driver.alerts().answer = nullptr;
            QCOMPARE(driver.summary().value(ppd.text(u"Duplex"_s)),
                     ppd.text(u"Duplex"_s, u"None"_s));
            driver.pressPrint();
            QCOMPARE(driver.alerts().seen.size(), 2);
            QVERIFY(!driver.alerts().seen.constLast().text.contains(
                text("STR_MES_BACKCOVER_NOTE_DUPLEX")));
        }
        QTRY_VERIFY_WITH_TIMEOUT(!driver.dialog().printedTo().isEmpty(), 20000);
        QFile file(driver.dialog().printedTo());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray data = file.readAll();
        QCOMPARE(data.count("CorvanaOption(Duplex="), qsizetype(1));
        QCOMPARE(data.count(duplexCode("None")), qsizetype(1));
        QCOMPARE(data.count(ppd.code(u"QXMediaType"_s, medium)), qsizetype(1));
    }

    void otherMediaArePrintedWithoutAWord_data()
    {
        QTest::addColumn<QString>("option");
        QTest::newRow("glossy") << u"QXMediaType=Glossy"_s;
        QTest::newRow("thick") << u"QXMediaType=Thick"_s;
        // A fax is not printed here.
        QTest::newRow("envelope, by fax") << u"QXMediaType=Env QXOutput=FAX"_s;
    }
    void otherMediaArePrintedWithoutAWord()
    {
        QFETCH(QString, option);
        DialogDriver driver(u"corvana-cl5"_s, {option});
        QVERIFY(!driver.print().isEmpty());
        QCOMPARE(driver.alerts().seen.size(), 0);
    }

    void aSilencedAlertStaysAwayUntilTheDialogBringsItBack()
    {
        const auto chooseAgain = [](DialogDriver &driver, const QString &medium) {
            driver.alerts().seen.clear();
            QVERIFY(DialogDriver::choose(media(driver), u"Plain"_s));
            QVERIFY(DialogDriver::choose(media(driver), medium));
        };
        {
            DialogDriver driver(u"corvana-cl5"_s);
            auto *button = driver.child<QToolButton>(u"silencedAlerts"_s);
            QVERIFY(!button->isVisible());
            driver.alerts().answer = [](QMessageBox &box) {
                if (box.checkBox())
                    box.checkBox()->click();
                box.buttons().constFirst()->click();
            };
            QVERIFY(DialogDriver::choose(media(driver), u"Thick"_s));
            QCOMPARE(driver.alerts().seen.size(), 1);
            QTRY_VERIFY(button->isVisible());
            chooseAgain(driver, u"Thick"_s);
            QCOMPARE(driver.alerts().seen.size(), 0);
            chooseAgain(driver, u"Thicker"_s); // another one, which nobody has silenced
            QCOMPARE(driver.alerts().seen.size(), 1);
        }
        // The next dialog knows of it.
        DialogDriver driver(u"corvana-cl5"_s);
        auto *button = driver.child<QToolButton>(u"silencedAlerts"_s);
        QVERIFY(button->isVisible());
        chooseAgain(driver, u"Thick"_s);
        QCOMPARE(driver.alerts().seen.size(), 0);
        button->click();
        QVERIFY(!button->isVisible());
        chooseAgain(driver, u"Thick"_s);
        QCOMPARE(driver.alerts().seen.size(), 1);
    }
};

QTEST_MAIN(PanelAlertsTest)

#include "panel_alerts_test.moc"
