// What every sample printer has to keep to, so that the panels can work with it, in each language.

#include <memory>
#include <span>

#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include "tests/resources/SamplePpd.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {

// The texts of the file itself for a language, by what they translate ("QXMediaType Plain").
QHash<QString, QString> writtenTexts(const QString &printer, const QString &language)
{
    QFile file(u"%1/%2.ppd"_s.arg(samplePpdFolder(), printer));
    QHash<QString, QString> texts;
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    static const QRegularExpression line(
        uR"(^\*(?:(ja|zh_CN)\.)?([A-Za-z_]+ [^/:]+|OpenUI \*[^/]+|OpenGroup: [^/]+)/([^:]*):?.*$)"_s);
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &text : lines) {
        const auto match = line.match(text);
        if (!match.hasMatch() || match.captured(1) != language)
            continue;
        QString key = match.captured(2);
        key.replace(u"OpenUI *"_s, u"Translation "_s).replace(u"OpenGroup: "_s, u"Translation "_s);
        texts.insert(key, match.captured(3));
    }
    return texts;
}

} // namespace

class SamplePrintersTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<SamplePpd> m_ppd;
    QString m_printer;
    QByteArray m_language;

    void forEachPrinter(const QList<QByteArray> &languages = {"en_US"})
    {
        QTest::addColumn<QString>("printer");
        QTest::addColumn<QByteArray>("language");
        for (const QString &printer : samplePrinterNames()) {
            for (const QByteArray &language : languages)
                QTest::addRow("%s in %s", qPrintable(printer), language.constData())
                    << printer << language;
        }
    }
    void forEachPrinterAndLanguage() { forEachPrinter({"en_US", "ja_JP", "zh_CN"}); }

    // Each text of an option and its choices, by what it translates.
    QHash<QString, QString> textsOf(const ppd_option_t *option)
    {
        const QString keyword = ppdKeyword(option->keyword);
        QHash<QString, QString> texts;
        texts.insert(u"Translation "_s + keyword, ppdText(option->text).value_or(QString()));
        for (const QString &choice : m_ppd->choices(option->keyword)) {
            texts.insert(keyword + u' ' + choice,
                         m_ppd->text(option->keyword, choice.toLatin1().constData()));
        }
        return texts;
    }

private Q_SLOTS:
    void init()
    {
        QFETCH(QString, printer);
        QFETCH(QByteArray, language);
        m_printer = printer;
        m_language = language;
        m_ppd = std::make_unique<SamplePpd>(printer, language);
        QVERIFY(m_ppd->isOpen());
    }

    // libcups keeps texts in arrays of fixed size and cuts a longer one where it stands.
    void textsArriveWhole_data() { forEachPrinterAndLanguage(); }
    void textsArriveWhole()
    {
        const QString language = m_language == "ja_JP"   ? u"ja"_s
                                 : m_language == "zh_CN" ? u"zh_CN"_s
                                                         : QString();
        const QHash<QString, QString> written = writtenTexts(m_printer, language);
        int compared = 0;
        for (const ppd_option_t *option : m_ppd->options()) {
            const QHash<QString, QString> texts = textsOf(option);
            for (auto text = texts.begin(); text != texts.end(); ++text, ++compared) {
                QVERIFY2(written.contains(text.key()), qPrintable(text.key()));
                QCOMPARE(text.value(), written.value(text.key()));
            }
        }
        const auto groups = std::span(m_ppd->ppd()->groups, size_t(m_ppd->ppd()->num_groups));
        for (const ppd_group_t &group : groups) {
            const QString key = u"Translation "_s + ppdKeyword(group.name);
            QVERIFY2(written.contains(key), qPrintable(key));
            QCOMPARE(ppdText(group.text).value_or(QString()), written.value(key));
        }
        QVERIFY(compared > 30);
    }

    // A pop-up finds its items by their titles.
    void theChoicesOfAnOptionHaveDifferentTexts_data() { forEachPrinterAndLanguage(); }
    void theChoicesOfAnOptionHaveDifferentTexts()
    {
        for (const ppd_option_t *option : m_ppd->options()) {
            QSet<QString> seen;
            for (const QString &choice : m_ppd->choices(option->keyword)) {
                const QString text = m_ppd->text(option->keyword, choice.toLatin1().constData());
                QVERIFY2(!text.isEmpty() && !seen.contains(text),
                         qPrintable(u"%1=%2"_s.arg(ppdKeyword(option->keyword), choice)));
                seen += text;
            }
        }
    }

    // A summary names its lines by them.
    void optionsHaveDifferentTexts_data() { forEachPrinterAndLanguage(); }
    void optionsHaveDifferentTexts()
    {
        QSet<QString> seen;
        if (const ppd_cparam_t *time = m_ppd->number("QXSleepTime", "Time"))
            seen += ppdText(time->text).value_or(QString());
        for (const ppd_option_t *option : m_ppd->options()) {
            const QString text = ppdText(option->text).value_or(QString());
            QVERIFY2(!text.isEmpty() && !seen.contains(text), option->keyword);
            seen += text;
        }
    }

    // By paper and language the panels propose a medium; one that is not there would be refused.
    void eachMediumThatThePanelsProposeIsThere_data() { forEachPrinter(); }
    void eachMediumThatThePanelsProposeIsThere()
    {
        QVERIFY(m_ppd->offers("QXMediaType", "Plain"));
        QVERIFY(m_ppd->offers("QXMediaType", "Thin")); // in Japanese, with old models in Chinese
        for (const QString &size : m_ppd->choices("PageSize")) {
            if (size.startsWith(u"Env"_s))
                QVERIFY2(m_ppd->offers("QXMediaType", "Env"), qPrintable(size));
        }
        if (m_ppd->offers("PageSize", "Postcard")) {
            QVERIFY(m_ppd->offers("QXMediaType", "Thick"));
            QVERIFY(m_ppd->offers("QXMediaType", "PostCard")); // in Japanese
        }
    }

    void noMediumIsTheDefaultThatALanguageDoesNotOffer_data() { forEachPrinter(); }
    void noMediumIsTheDefaultThatALanguageDoesNotOffer()
    {
        QCOMPARE(m_ppd->defaultChoice("QXMediaType"), u"Plain"_s);
    }

    // The panels take the default of "Duplex" as the one-sided choice.
    void oneSidedIsTheDefault_data() { forEachPrinter(); }
    void oneSidedIsTheDefault()
    {
        if (!m_ppd->has("Duplex"))
            QSKIP("prints on one side only");
        QCOMPARE(m_ppd->defaultChoice("Duplex"), u"None"_s);
    }

    // These are made one-sided when the job is printed; a conflict would refuse them before.
    void labelsAndPostcardsCanBeChosenWithTwoSidedPrinting_data() { forEachPrinter(); }
    void labelsAndPostcardsCanBeChosenWithTwoSidedPrinting()
    {
        QVERIFY(!m_ppd->conflict("QXMediaType", {u"Label"_s, u"PostCard"_s}, "Duplex"));
    }

    // A density that nobody has set counts as 0.
    void zeroIsADensity_data() { forEachPrinter(); }
    void zeroIsADensity()
    {
        if (!m_ppd->has("QXDensityAdjustment"))
            QSKIP("has no density");
        QCOMPARE(m_ppd->defaultChoice("QXDensityAdjustment"), u"0"_s);
        if (!m_ppd->takesNumbers("QXDensityAdjustment"))
            return;
        const ppd_cparam_t *density = m_ppd->number("QXDensityAdjustment", "Density");
        QVERIFY(density);
        QVERIFY(density->minimum.custom_int <= 0 && density->maximum.custom_int > 0);
    }

    // What the sliders reach is what the job can carry.
    void effectsHaveAChoiceForEachStep_data() { forEachPrinter(); }
    void effectsHaveAChoiceForEachStep()
    {
        QStringList steps;
        for (int step = -20; step <= 20; ++step)
            steps += QString::number(step);
        for (const char *keyword :
             {"QXBrightness", "QXContrast", "QXRed", "QXGreen", "QXBlue", "QXSaturation"}) {
            if (!m_ppd->has(keyword))
                continue;
            QCOMPARE(m_ppd->choices(keyword), steps);
            QCOMPARE(m_ppd->defaultChoice(keyword), u"0"_s);
        }
    }

    // With effects the driver has to match colors, or the panel never enables them.
    void effectsComeWithTheDriversColorMatching_data() { forEachPrinter(); }
    void effectsComeWithTheDriversColorMatching()
    {
        if (!m_ppd->has("QXBrightness"))
            QSKIP("takes no effects");
        QVERIFY(m_ppd->hasAttribute("APSupportsCustomColorMatching"));
        QVERIFY(m_ppd->has("QXColorMatching"));
    }

    void thePrinterAsksForThePanels_data() { forEachPrinter(); }
    void thePrinterAsksForThePanels()
    {
        const ppd_attr_t *panels = ppdFindAttr(m_ppd->ppd(), "QXPrintDialogExtension", nullptr);
        QVERIFY(panels);
        QCOMPARE(QByteArray(panels->value), "QXCLQuality13PDE.bundle");
    }

    // The number of a family member is in its name, as people tell them apart by it.
    void theModelNumberIsInTheFileName_data() { forEachPrinter(); }
    void theModelNumberIsInTheFileName()
    {
        QCOMPARE(m_printer.last(1).toInt(), m_ppd->modelNumber());
    }

    void theOptionsAreMarkedWithTheirDefaults_data() { forEachPrinter(); }
    void theOptionsAreMarkedWithTheirDefaults()
    {
        for (const ppd_option_t *option : m_ppd->options())
            QVERIFY2(ppdIsMarked(m_ppd->ppd(), option->keyword, option->defchoice),
                     option->keyword);
        QCOMPARE(ppdConflicts(m_ppd->ppd()), 0);
    }
};

QTEST_APPLESS_MAIN(SamplePrintersTest)

#include "sample_printers_test.moc"
