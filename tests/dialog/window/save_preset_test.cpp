#include <algorithm>

#include <QAccessible>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>

#include "dialog/task/TaskHistory.h"
#include "dialog/task/TaskPresets.h"
#include "dialog/window/SavePresetDialog.h"
#include "tests/dialog/support/OwnHome.h"
#include "tests/dialog/support/TestPrinters.h"
#include "tests/dialog/task/PresetActs.h"
#include "tests/dialog/task/TaskScene.h"
#include "tests/support/TestPaths.h"
#include "tests/support/cups/PrivateCups.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Phase = PrintTask::Phase;

/// Keeping a preset for other programs as well: what the dialog says of it, and what becomes of the
/// instance when the preset becomes another one.
class SavePresetTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<OwnHome> m_home;
    std::unique_ptr<PrivateCups> m_cups;
    std::unique_ptr<TaskScene> m_scene;

    PrintTask &task() { return *m_scene->task; }
    TaskPresets &presets() { return task().presets(); }
    QString lpoptions() const { return m_home->filePath(u".cups/lpoptions"_s); }
    QByteArray userOptions() const
    {
        QFile file(lpoptions());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void setUserOptions(const QByteArray &content)
    {
        QDir(m_home->path()).mkpath(u".cups"_s);
        writeFile(lpoptions(), content);
    }
    // The queue "office", as in a window.
    void open()
    {
        PrintRequest request = m_scene->request(QList<Printer>());
        request.server = *ServerAddress::parse(m_cups->server());
        request.serverWasNamed = true;
        request.wantedPrinter = u"office"_s;
        request.presetPlaces = {m_home->filePath(u"presets"_s)};
        m_scene->make(request).start();
        QVERIFY2(m_scene->reaches(Phase::Opened), qPrintable(task().problem().text));
        task().bringUp();
    }
    QString done(const std::function<void()> &act) { return endOf(presets(), act); }
    QString saveElsewhere(const QString &name = u"Reports"_s)
    {
        return done([&] { presets().save({name, false, false, true, true}); });
    }
    // What is there on the other printers is read beside, after the printers.
    bool isOneTaken()
    {
        const QList<OtherQueue> others = presets().otherQueues(u"Monthly"_s, false);
        return std::ranges::count_if(
                   others, [](const auto &other) { return !other.problem.isEmpty(); }) == 1;
    }
    void propose(const QString &keyword, const QString &choice)
    {
        task().propose(keyword, choice);
        QCoreApplication::processEvents();
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrivateCups::isAvailable())
            QSKIP("no CUPS server here");
    }
    void init()
    {
        m_home = std::make_unique<OwnHome>();
        m_cups = std::make_unique<PrivateCups>();
        m_cups->start();
        m_scene = std::make_unique<TaskScene>();
        m_cups->addQueue(u"office"_s,
                         writeFile(m_home->filePath(u"office.ppd"_s), smallPrinter().text()));
    }
    void cleanup()
    {
        m_scene.reset();
        m_cups.reset();
        m_home.reset();
    }

    void theDialogShowsTheNameThatOtherProgramsHave()
    {
        setUserOptions("Dest office/taken x=1\n");
        open();
        SavePresetDialog dialog(presets(), false);
        auto *name = dialog.findChild<QLineEdit *>(u"presetName"_s);
        auto *elsewhere = dialog.findChild<QCheckBox *>(u"presetElsewhere"_s);
        const auto *remark = dialog.findChild<QLabel *>(u"presetRemark"_s);
        QVERIFY(elsewhere);
        QVERIFY(!elsewhere->isChecked());
        elsewhere->setChecked(true);
        name->setText(u"Monthly Reports"_s);
        QVERIFY2(remark->text().contains(u"“office/monthly-reports”"_s),
                 qPrintable(remark->text()));
        QVERIFY(dialog.preset().elsewhere);
        for (const auto &[typed, said] : {std::pair(u"Taken"_s, u"is there already"_s),
                                          std::pair(u"報告書"_s, u"“preset1”"_s)}) {
            name->setText(typed);
            // What is there is read beside.
            QTRY_VERIFY2(remark->text().contains(said), qPrintable(remark->text()));
            elsewhere->setChecked(false);
            QVERIFY(remark->text().isEmpty());
            elsewhere->setChecked(true);
        }
    }

    // Once the tick is gone, it goes.
    void theDialogNamesNoInstanceThatGoes()
    {
        open();
        QCOMPARE(saveElsewhere(), QString());
        const SavePresetDialog dialog(presets(), false);
        const auto *remark = dialog.findChild<QLabel *>(u"presetRemark"_s);
        auto *elsewhere = dialog.findChild<QCheckBox *>(u"presetElsewhere"_s);
        dialog.findChild<QLineEdit *>(u"presetName"_s)->setText(u"Reports"_s);
        QVERIFY(elsewhere->isChecked());
        QVERIFY2(remark->text().contains(u"“office/reports”"_s), qPrintable(remark->text()));
        elsewhere->setChecked(false);
        QVERIFY(dialog.preset().nowhereElse);
        QVERIFY2(!remark->text().contains(u"office/"_s), qPrintable(remark->text()));
    }

    void otherPrintersAreTickedInAListOfTheirOwn()
    {
        for (const QString &queue : {u"lab"_s, u"taken"_s})
            m_cups->addQueue(queue, m_home->filePath(u"office.ppd"_s));
        setUserOptions("Dest taken/monthly x=1\n");
        open();
        task().printers().start(); // as a window does
        QTRY_VERIFY(isOneTaken());
        QCOMPARE(presets().otherQueues(u"Monthly"_s, false).size(), 2);
        SavePresetDialog dialog(presets(), false);
        dialog.show();
        dialog.findChild<QLineEdit *>(u"presetName"_s)->setText(u"Monthly"_s);
        auto *more = dialog.findChild<QPushButton *>(u"presetPrinters"_s);
        QVERIFY(more && more->isVisible());
        QTest::keyClick(more, Qt::Key_Space);
        auto *printers = dialog.findChild<InstancePrinters *>();
        QVERIFY(printers);
        auto *list = printers->findChild<QListWidget *>(u"instancePrinters"_s);
        const auto *remark = printers->findChild<QLabel *>(u"instanceRemark"_s);
        QCOMPARE(list->count(), 3);
        QCOMPARE(remark->text(), u"Other programs list it as “office/monthly”."_s);
        QAccessibleInterface *rows = QAccessible::queryAccessibleInterface(list);
        QVERIFY(rows && rows->child(1));
        QTest::keyClick(list, Qt::Key_Down);
        QVERIFY(!rows->child(1)->state().checked);
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(rows->child(1)->state().checked);
        QVERIFY(rows->child(1)->text(QAccessible::Name).contains(u"lab"_s));
        // Why there is no tick is read where somebody looks for it.
        QTest::keyClick(list, Qt::Key_Down);
        QVERIFY2(remark->text().contains(u"“taken/monthly” is there already"_s),
                 qPrintable(remark->text()));
        QTest::keyClick(list, Qt::Key_Space);
        printers->accept();
        QVERIFY(!dialog.findChild<QCheckBox *>(u"presetElsewhere"_s)->isChecked());
        QCOMPARE(dialog.preset().alsoOn, QStringList{u"lab/monthly"_s});
        QVERIFY2(dialog.findChild<QLabel *>(u"presetRemark"_s)->text().contains(u"“lab/monthly”"_s),
                 qPrintable(dialog.findChild<QLabel *>(u"presetRemark"_s)->text()));
    }

    void nothingCoversTheListOfPrinters()
    {
        m_cups->addQueue(u"taken"_s, m_home->filePath(u"office.ppd"_s));
        setUserOptions("Dest taken/monthly x=1\n");
        open();
        task().printers().start();
        QTRY_VERIFY(isOneTaken());
        for (const QString &language : {QString(), u"de"_s, u"fr"_s, u"ja"_s}) {
            QTranslator translator;
            if (!language.isEmpty()) {
                QVERIFY(
                    translator.load(u"corvana-print_"_s + language, sharedFile(u"translations"_s)));
                QCoreApplication::installTranslator(&translator);
            }
            InstancePrinters printers(QList<OtherQueue>(12, OtherQueue{presets().openPrinter()}) +
                                          presets().otherQueues(u"Monthly"_s, false),
                                      {});
            printers.show();
            QCoreApplication::processEvents();
            printers.findChild<QListWidget *>()->setCurrentRow(12);
            const auto *list = printers.findChild<QListWidget *>(u"instancePrinters"_s);
            const auto *remark = printers.findChild<QLabel *>(u"instanceRemark"_s);
            QCoreApplication::processEvents();
            QVERIFY(remark->text().contains(u"taken/monthly"_s));
            QVERIFY2(remark->y() > list->geometry().bottom(), qPrintable(language));
            QVERIFY2(remark->height() >= remark->heightForWidth(remark->width()),
                     qPrintable(language));
            QCOMPARE(remark->fontMetrics().lineSpacing() * 2 <
                         remark->heightForWidth(remark->width()),
                     true);
            QCoreApplication::removeTranslator(&translator);
        }
    }

    // What was ticked for one name says nothing of what another one has already.
    void printersThatNobodyUntickedStay()
    {
        m_cups->addQueue(u"lab"_s, m_home->filePath(u"office.ppd"_s));
        open();
        QVERIFY(changeInstances({{u"lab/reports"_s, QList<JobOption>{{u"Media"_s, u"Card"_s}}}},
                                OwnInstance{u"Reports"_s, presets().modelName()})
                    .isEmpty());
        lookAgain(presets());
        task().printers().start();
        QTRY_COMPARE(presets().otherQueues(u"Reports"_s, false).size(), 1);
        SavePresetDialog dialog(presets(), false);
        dialog.show();
        auto *name = dialog.findChild<QLineEdit *>(u"presetName"_s);
        const auto accept = [&dialog](bool isTicked) {
            dialog.findChild<QPushButton *>(u"presetPrinters"_s)->click();
            auto *printers = dialog.findChild<InstancePrinters *>();
            printers->findChild<QListWidget *>(u"instancePrinters"_s)
                ->item(1)
                ->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
            printers->accept();
            QCoreApplication::sendPostedEvents(printers, QEvent::DeferredDelete);
        };
        name->setText(u"Monthly"_s);
        accept(false);
        name->setText(u"Reports"_s);
        QCOMPARE(dialog.preset().notOn, QStringList());
        accept(false);
        QCOMPARE(dialog.preset().notOn, QStringList{u"lab/reports"_s});
        accept(true);
        QCOMPARE(dialog.preset().notOn, QStringList());
    }

    void theDialogGrowsWithItsRemark()
    {
        setUserOptions("Dest office/foo a=b\n");
        open();
        QCOMPARE(done([&] { presets().save({u"Reports"_s, false, false, true}); }), QString());
        for (const QString &language : {QString(), u"de"_s, u"es"_s, u"fr"_s, u"it"_s, u"ja"_s,
                                        u"ko"_s, u"pt_BR"_s, u"zh_CN"_s, u"zh_TW"_s}) {
            QTranslator translator;
            if (!language.isEmpty()) {
                QVERIFY(
                    translator.load(u"corvana-print_"_s + language, sharedFile(u"translations"_s)));
                QCoreApplication::installTranslator(&translator);
            }
            SavePresetDialog dialog(presets(), false);
            auto *name = dialog.findChild<QLineEdit *>(u"presetName"_s);
            auto *elsewhere = dialog.findChild<QCheckBox *>(u"presetElsewhere"_s);
            const auto *remark = dialog.findChild<QLabel *>(u"presetRemark"_s);
            dialog.show();
            elsewhere->setChecked(true);
            for (const QString &typed :
                 {u"Reports"_s, u"foo"_s, u"報告書"_s, u"Last Used"_s, u"Q"_s}) {
                name->setText(typed);
                QCoreApplication::processEvents();
                QVERIFY2(!remark->text().isEmpty(), qPrintable(typed));
                QVERIFY2(
                    remark->height() >= remark->heightForWidth(remark->width()),
                    qPrintable(u"%1 %2: %3 of %4 pixels: %5"_s.arg(
                        language, typed, QString::number(remark->height()),
                        QString::number(remark->heightForWidth(remark->width())), remark->text())));
            }
            QCoreApplication::removeTranslator(&translator);
        }
    }

    void withNothingToSayTheDialogIsAsLowAsItsRows()
    {
        open();
        QTest::failOnWarning(QRegularExpression(u"Negative sizes"_s));
        SavePresetDialog dialog(presets(), false);
        const auto *remark = dialog.findChild<QLabel *>(u"presetRemark"_s);
        dialog.show();
        QCoreApplication::processEvents();
        QVERIFY(remark->text().isEmpty());
        QVERIFY(dialog.minimumHeight() > 0);
        QVERIFY(dialog.height() >= dialog.minimumSizeHint().height());
    }

    void theInstanceGoesAlongWithThePreset()
    {
        const QByteArray others = "# by hand\nDest lab x=1\n";
        setUserOptions(others);
        open();
        propose(u"Media"_s, u"Card"_s);
        QCOMPARE(saveElsewhere(), QString());
        QVERIFY(userOptions().startsWith(others + "Dest office/reports "));
        QVERIFY(userOptions().contains(" Media=Card"));
        SavePresetDialog dialog(presets(), false);
        QVERIFY(dialog.findChild<QCheckBox *>(u"presetElsewhere"_s)->isChecked());

        propose(u"Media"_s, u"Plain"_s);
        QCOMPARE(done([&] { presets().update(); }), QString());
        QVERIFY2(userOptions().contains(" Media=Plain"), userOptions().constData());
        QCOMPARE(userOptions().count("office/reports"), 1);

        // Scripts go on printing to the name that they know.
        QCOMPARE(done([&] { presets().rename(u"Accounts"_s); }), QString());
        QTRY_VERIFY(KnownInstances::read().ofPreset(u"Accounts"_s, u"office"_s) ==
                    u"office/reports"_s);
        QVERIFY(userOptions().contains("Dest office/reports "));

        QCOMPARE(done([&] { presets().remove(); }), QString());
        QTRY_COMPARE_WITH_TIMEOUT(userOptions(), others, 20000);
        QTRY_VERIFY_WITH_TIMEOUT(KnownInstances::read().own.isEmpty(), 20000);
    }

    void theDialogShowsTheNameThatARenamedPresetHasElsewhere()
    {
        open();
        QCOMPARE(saveElsewhere(), QString());
        QCOMPARE(done([&] { presets().rename(u"Accounts"_s); }), QString());
        QTRY_VERIFY(KnownInstances::read().ofPreset(u"Accounts"_s, u"office"_s) ==
                    u"office/reports"_s);
        const SavePresetDialog dialog(presets(), false);
        const QString remark = dialog.findChild<QLabel *>(u"presetRemark"_s)->text();
        QVERIFY2(remark.contains(u"“office/reports”"_s), qPrintable(remark));
        QVERIFY2(!remark.contains(u"office/accounts"_s), qPrintable(remark));
    }

    void theDialogSaysWhichInstanceFollowsAnotherPreset()
    {
        open();
        QCOMPARE(saveElsewhere(), QString());
        QCOMPARE(done([&] { presets().save({u"Other"_s, false, false, true}); }), QString());
        const SavePresetDialog dialog(presets(), false);
        const auto *remark = dialog.findChild<QLabel *>(u"presetRemark"_s);
        QVERIFY2(!remark->text().contains(u"office/"_s), qPrintable(remark->text()));
        dialog.findChild<QLineEdit *>(u"presetName"_s)->setText(u"Reports"_s);
        QVERIFY2(remark->text().contains(u"“office/reports”"_s), qPrintable(remark->text()));
    }

    void whoTakesTheTickAwayTakesTheInstanceAway()
    {
        setUserOptions("Dest lab x=1\n");
        open();
        QCOMPARE(saveElsewhere(), QString());
        QVERIFY(userOptions().contains("Dest office/reports "));
        const SavePresetDialog dialog(presets(), false);
        dialog.findChild<QCheckBox *>(u"presetElsewhere"_s)->setChecked(false);
        QCOMPARE(done([&] { presets().save(dialog.preset()); }), QString());
        QTRY_COMPARE_WITH_TIMEOUT(userOptions(), QByteArray("Dest lab x=1\n"), 20000);
        QTRY_VERIFY_WITH_TIMEOUT(KnownInstances::read().own.isEmpty(), 20000);
        QCOMPARE(presets().listing().names(), QStringList{u"Reports"_s});
    }

    void aPresetWithoutTheTickIsNowhereElse()
    {
        open();
        QCOMPARE(done([&] { presets().save({u"Reports"_s, false, false, true}); }), QString());
        QCOMPARE(done([&] { presets().update(); }), QString());
        QVERIFY(userOptions().isEmpty());
    }

    void anInstanceOfOthersStaysAndIsNamed()
    {
        setUserOptions("Dest office/Reports x=1\n");
        open();
        QCOMPARE(saveElsewhere(), QString());
        QVERIFY(!m_scene->face.messages.isEmpty());
        QVERIFY(m_scene->face.messages.constLast().text.contains(u"is there already"_s));
        QCOMPARE(userOptions(), "Dest office/Reports x=1\n");
        QCOMPARE(presets().listing().names(), QStringList{u"Reports"_s});
    }

    void instancesOfOthersAreAppliedLikePresets()
    {
        setUserOptions(
            "Dest office x=1\nDest office/draft Media=Card sides=two-sided-long-edge "
            "number-up=2 copies=3 page-ranges=1 Tray=Lower nonsense=1\nDest lab/draft a=1\n");
        open();
        QTRY_COMPARE(presets().instancesOfOthers(), QStringList{u"office/draft"_s});
        propose(u"Boost"_s, u"ON"_s);
        presets().useInstance(u"office/draft"_s);
        const PpdSession &session = m_scene->session();
        QCOMPARE(session.markedChoice(u"Tray"_s), u"Lower"_s);
        QCOMPARE(session.markedChoice(u"Boost"_s), u"OFF"_s);
        QCOMPARE(task().settings().attribute(u"number-up"_s), u"2"_s);
        QCOMPARE(task().settings().copies(), 1);
        QVERIFY(task().settings().pageRanges().isEmpty());
        QCOMPARE(presets().selectedName(), u"office/draft"_s);
        QVERIFY(!presets().isChanged());
        // Card is not printed on both sides here: which of the two is there is said.
        QVERIFY(!m_scene->face.messages.isEmpty());
        QVERIFY2(m_scene->face.messages.constLast().text.contains(u"nonsense"_s),
                 qPrintable(m_scene->face.messages.constLast().text));
        task().history().undo();
        QCOMPARE(session.markedChoice(u"Boost"_s), u"ON"_s);
        QCOMPARE(session.markedChoice(u"Tray"_s), u"Upper"_s);
    }

    void ourInstancesAreNoPresetsOfOthers()
    {
        open();
        QCOMPARE(saveElsewhere(), QString());
        QVERIFY(presets().instancesOfOthers().isEmpty());
    }

    void aFileThatCannotBeWrittenIsSaid()
    {
        QVERIFY(QDir().mkpath(lpoptions()));
        open();
        QCOMPARE(saveElsewhere(), QString());
        const QString why = presets().problemsElsewhere().join(u'\n');
        QVERIFY2(why.contains(u"lpoptions"_s), qPrintable(why));
        QVERIFY(m_scene->face.messages.constLast().text.contains(why));
        QCOMPARE(presets().listing().names(), QStringList{u"Reports"_s});
    }
};

QTEST_MAIN(SavePresetTest)
#include "save_preset_test.moc"
