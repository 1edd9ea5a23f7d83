#include <QTest>

#include "plugin/QXJobValues.h"
#include "tests/plugin/JobOptions.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// The other forms of a choice that was marked.
class CompanionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bothFormsOfTheImprovementsAgree_data()
    {
        QTest::addColumn<JobOption>("marked");
        QTest::addColumn<QString>("single"); // the entry before; null: none
        QTest::addColumn<QList<JobOption>>("companions");
        const QString improve = u"QXImproveOutput"_s;
        const QString fix = u"QXFixIntensity"_s;
        const QString curl = u"QXLessPaperCurl"_s;
        const QString off = u"OFF"_s;
        const QString on = u"ON"_s;
        const auto both = [&](const QString &fixChoice, const QString &curlChoice) {
            return QList<JobOption>{{fix, fixChoice}, {curl, curlChoice}};
        };
        const QList<JobOption> none;
        QTest::newRow("single off") << JobOption{improve, off} << off << both(off, off);
        QTest::newRow("single, fixing") << JobOption{improve, fix} << fix << both(on, off);
        QTest::newRow("single, less curl") << JobOption{improve, curl} << curl << both(off, on);
        QTest::newRow("single, an unknown choice") << JobOption{improve, on} << on << none;
        QTest::newRow("fixing on") << JobOption{fix, on} << off << QList<JobOption>{{improve, fix}};
        QTest::newRow("less curl on")
            << JobOption{curl, on} << fix << QList<JobOption>{{improve, curl}};
        QTest::newRow("fixing on, nothing known before")
            << JobOption{fix, on} << QString() << QList<JobOption>{{improve, fix}};
        QTest::newRow("fixing off, which the single one stood for")
            << JobOption{fix, off} << fix << QList<JobOption>{{improve, off}};
        QTest::newRow("less curl off, which the single one stood for")
            << JobOption{curl, off} << curl << QList<JobOption>{{improve, off}};
        QTest::newRow("fixing off, the other one is on") << JobOption{fix, off} << curl << none;
        QTest::newRow("less curl off, the other one is on") << JobOption{curl, off} << fix << none;
        QTest::newRow("fixing off, nothing known before")
            << JobOption{fix, off} << QString() << none;
        QTest::newRow("another option") << JobOption{u"QXQuietMode"_s, on} << fix << none;
        QTest::newRow("other letter case") << JobOption{u"qxfixintensity"_s, on} << off << none;
    }
    void bothFormsOfTheImprovementsAgree()
    {
        QFETCH(JobOption, marked);
        QFETCH(QString, single);
        QFETCH(QList<JobOption>, companions);
        PrintSettings settings;
        if (!single.isNull())
            settings.setValue(u"QXImproveOutput"_s, single);
        const QVariantMap before = settings.entries();
        QCOMPARE(QXJobValues().companions(marked, settings, nullptr), companions);
        QCOMPARE(settings.entries(), before); // marking is the host's
    }
};

QTEST_MAIN(CompanionsTest)
#include "companions_test.moc"
