#include <dlfcn.h>

#include <QComboBox>
#include <QSignalSpy>
#include <QTest>
#include <QTreeView>

#include "dialog/window/pages/OptionsModel.h"
#include "dialog/window/pages/OptionsPage.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

namespace {
int conflictQuestions = 0;
}

// Stands before the function of libcups, which looks at every constraint of the PPD.
extern "C" int cupsGetConflicts(ppd_file_t *ppd, const char *option, const char *choice,
                                cups_option_t **options)
{
    using Function = int (*)(ppd_file_t *, const char *, const char *, cups_option_t **);
    static const auto original = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "cupsGetConflicts"));
    ++conflictQuestions;
    return original(ppd, option, choice, options);
}

/// What the page with all options asks for, however many options and constraints there are.
class OptionsScaleTest : public QObject
{
    Q_OBJECT

private:
    static constexpr int kChoices = 5;

    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<OptionsPage> m_page;

    /// Option N collides with option N + 1 in its last choice, twice as often as there are options.
    void open(int options)
    {
        PpdBuilder ppd;
        for (int i = 0; i < options; ++i) {
            if (i % 40 == 0)
                ppd.line("*OpenGroup: G" + QByteArray::number(i) + "/Group " +
                         QByteArray::number(i));
            QList<PpdChoice> choices;
            for (int c = 0; c < kChoices; ++c)
                choices +=
                    PpdChoice("C" + QByteArray::number(c), "Choice " + QByteArray::number(c));
            ppd.option("O" + QByteArray::number(i), "Option " + QByteArray::number(i), "C0",
                       choices);
            if (i % 40 == 39 || i == options - 1)
                ppd.line("*CloseGroup: G" + QByteArray::number(i / 40 * 40));
        }
        for (int i = 0; i + 1 < options; ++i)
            ppd.constraint("O" + QByteArray::number(i), "C4", "O" + QByteArray::number(i + 1),
                           "C4");
        m_page.reset();
        m_session = sessionFor(ppd);
        conflictQuestions = 0;
        m_page = std::make_unique<OptionsPage>(*m_session);
        connect(m_page.get(), &OptionsPage::proposed, m_session.get(),
                [this](const QString &keyword, const QString &choice) {
                    m_session->change(keyword, choice, PpdSession::Origin::Dialog);
                });
        m_page->resize(600, 400);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
    }
    static void sizes()
    {
        QTest::addColumn<int>("options");
        QTest::newRow("few") << 10;
        QTest::newRow("many") << 1000;
    }
    QTreeView *list() const { return m_page->findChild<QTreeView *>(u"options"_s); }

private Q_SLOTS:
    void cleanup()
    {
        m_page.reset();
        m_session.reset();
    }

    void showingThePageAsksForNoConflicts_data() { sizes(); }
    void showingThePageAsksForNoConflicts()
    {
        QFETCH(int, options);
        open(options);
        QCOMPARE(m_page->findChild<OptionsModel *>()->optionCount(), options);
        QCOMPARE(conflictQuestions, 0);
        m_page->refresh();
        QCOMPARE(conflictQuestions, 0);
    }

    void oneChangeShowsOneRowAnew_data() { sizes(); }
    void oneChangeShowsOneRowAnew()
    {
        QFETCH(int, options);
        open(options);
        auto *model = m_page->findChild<OptionsModel *>();
        const QSignalSpy resets(model, &OptionsModel::modelReset);
        const QSignalSpy layouts(model, &OptionsModel::layoutChanged);
        const QSignalSpy changes(model, &OptionsModel::dataChanged);
        const QModelIndex option =
            model->index(7, OptionsModel::Choice, model->index(0, OptionsModel::Title));
        QVERIFY(model->setData(option, u"C1"_s, Qt::EditRole));
        QCOMPARE(conflictQuestions, 1); // the session's own
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.constFirst().at(0).toModelIndex().row(), 7);
        QCOMPARE(changes.constFirst().at(1).toModelIndex().row(), 7);
        QCOMPARE(resets.size() + layouts.size(), 0);
    }

    void manyChangesAreOneForEachGroup()
    {
        open(1000);
        auto *model = m_page->findChild<OptionsModel *>();
        const QSignalSpy changes(model, &OptionsModel::dataChanged);
        for (int i = 0; i < 1000; ++i)
            m_session->change(u"O%1"_s.arg(i), u"C1"_s, PpdSession::Origin::Dialog);
        m_page->refresh();
        QCOMPARE(changes.size(), 25);
    }

    void onlyTheOpenedRowIsAskedForConflicts_data() { sizes(); }
    void onlyTheOpenedRowIsAskedForConflicts()
    {
        QFETCH(int, options);
        open(options);
        QVERIFY(m_session->change(u"O8"_s, u"C4"_s, PpdSession::Origin::Dialog).accepted());
        conflictQuestions = 0;
        const QAbstractItemModel *model = list()->model();
        list()->setCurrentIndex(model->index(7, OptionsModel::Choice, model->index(0, 0)));
        QTest::keyClick(list(), Qt::Key_F2);
        auto *choices = list()->viewport()->findChild<QComboBox *>();
        QVERIFY(choices);
        QVERIFY(choices->itemData(kChoices - 1, Qt::ToolTipRole).isValid());
        // One for each choice but the marked one; the one that collides is looked at more closely.
        QCOMPARE(conflictQuestions, kChoices - 1 + 2);
    }
};

QTEST_MAIN(OptionsScaleTest)

#include "options_scale_test.moc"
