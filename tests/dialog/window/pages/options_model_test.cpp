#include <algorithm>

#include <QFont>
#include <QSignalSpy>
#include <QTest>

#include "dialog/session/SearchForm.h"
#include "dialog/window/pages/OptionsModel.h"
#include "tests/dialog/support/TestPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

using Origin = PpdSession::Origin;

/// What the list of all options holds, and which of it a search finds.
class OptionsModelTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PpdSession> m_session;
    std::unique_ptr<OptionsModel> m_model;

    void open(const PpdBuilder &ppd)
    {
        m_model.reset();
        m_session = sessionFor(ppd);
        m_model = std::make_unique<OptionsModel>(*m_session);
        connect(m_model.get(), &OptionsModel::proposed, m_session.get(),
                [this](const QString &keyword, const QString &choice) {
                    m_session->change(keyword, choice, Origin::Dialog);
                });
    }
    /// "Group: Option, Option" for each group of a model.
    static QStringList rows(const QAbstractItemModel &model, int role = Qt::DisplayRole)
    {
        QStringList rows;
        for (int g = 0; g < model.rowCount(); ++g) {
            const QModelIndex group = model.index(g, 0);
            QStringList options;
            for (int o = 0; o < model.rowCount(group); ++o)
                options += model.index(o, 0, group).data(role).toString();
            rows += group.data().toString() + u": "_s + options.join(u", "_s);
        }
        return rows;
    }
    QModelIndex option(const QString &keyword, int column = OptionsModel::Choice) const
    {
        const QModelIndexList found =
            m_model->match(m_model->index(0, 0), OptionsModel::KeywordRole, keyword, 1,
                           Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QModelIndex() : found.constFirst().siblingAtColumn(column);
    }
    QString shown(const QString &keyword) const { return option(keyword).data().toString(); }
    bool isBold(const QString &keyword, int column) const
    {
        return option(keyword, column).data(Qt::FontRole).value<QFont>().bold();
    }

private Q_SLOTS:
    void cleanup()
    {
        m_model.reset();
        m_session.reset();
    }

    void groupsAndOptionsStandInTheOrderOfThePpd()
    {
        open(officePrinter());
        const QStringList found = rows(*m_model, OptionsModel::KeywordRole);
        QCOMPARE(found.mid(0, 4), (QStringList{u"General: Banner"_s, u"Paper: Tray, Media"_s,
                                               u"Finishing: Punch, Staple, Shift"_s,
                                               u"Job and Security: Sleep, Pin, Mark"_s}));
        QVERIFY(found.at(4).startsWith(u"Trays Installed: Tray1, Tray2, "_s));
        QCOMPARE(found.size(), 5);
        QCOMPARE(m_model->optionCount(), 23);
    }

    void whatTheGeneralPageOffersIsLeftOut()
    {
        open(smallPrinter());
        QCOMPARE(rows(*m_model), QStringList{u"General: Tray, Media, Boost"_s});
    }

    // Run in several languages: libcups reads the texts of one language per process.
    void theTextsAreThoseOfTheLanguage()
    {
        struct Texts
        {
            QString language, group, title, choice;
        };
        const QList<Texts> kTexts{
            {u"ja"_s, u"用紙"_s, u"給紙方法"_s, u"自動"_s},
            {u"zh"_s, u"纸张"_s, u"纸张来源"_s, u"自动"_s},
            {u"C."_s, u"Paper"_s, u"Paper Source"_s, u"Automatic"_s},
        };
        const QString language = qEnvironmentVariable("LC_ALL").left(2);
        const auto texts =
            std::find_if(kTexts.cbegin(), kTexts.cend(),
                         [&](const Texts &candidate) { return candidate.language == language; });
        QVERIFY(texts != kTexts.cend());
        open(officePrinter());
        QCOMPARE(option(u"Tray"_s).parent().data().toString(), texts->group);
        QCOMPARE(option(u"Tray"_s, OptionsModel::Title).data().toString(), texts->title);
        QCOMPARE(shown(u"Tray"_s), texts->choice);
    }

    void aTextThatCannotBeReadIsReplacedByItsKeyword()
    {
        open(PpdBuilder()
                 .line("*OpenGroup: Fold/Fal\xdf")
                 .option("Fold", "Fal\xdf", "Z", {{"Z", "W\xe4 "}, {"C", "Wickel"}})
                 .line("*CloseGroup: Fold"));
        QCOMPARE(rows(*m_model), QStringList{u"Fold: Fold"_s});
        QCOMPARE(shown(u"Fold"_s), u"Z"_s);
        QVERIFY(m_model->setData(option(u"Fold"_s), u"C"_s, Qt::EditRole));
        QCOMPARE(shown(u"Fold"_s), u"Wickel"_s);
    }

    void aChoiceThatIsSetIsProposedAndThenShown()
    {
        open(officePrinter());
        const QSignalSpy proposed(m_model.get(), &OptionsModel::proposed);
        QVERIFY(m_model->setData(option(u"Tray"_s), u"Lower"_s, Qt::EditRole));
        QCOMPARE(proposed.size(), 1);
        QCOMPARE(proposed.constFirst(), (QVariantList{u"Tray"_s, u"Lower"_s}));
        QCOMPARE(shown(u"Tray"_s), u"Lower Tray"_s);
    }

    void aRefusedChoiceIsNotShown()
    {
        open(officePrinter());
        m_session->change(u"Staple"_s, u"Left"_s, Origin::Dialog);
        QVERIFY(!m_model->setData(option(u"Media"_s), u"Film"_s, Qt::EditRole));
        QCOMPARE(shown(u"Media"_s), u"Plain Paper"_s);
    }

    void refreshingShowsTheMarksAndProposesNothing()
    {
        open(officePrinter());
        const QSignalSpy proposed(m_model.get(), &OptionsModel::proposed);
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_session->change(u"Sleep"_s, u"Custom.12"_s, Origin::Dialog);
        QCOMPARE(shown(u"Tray"_s), u"Automatic"_s);
        m_model->refresh();
        QCOMPARE(shown(u"Tray"_s), u"Lower Tray"_s);
        QCOMPARE(shown(u"Sleep"_s), u"Custom: 12"_s);
        m_session->change(u"Sleep"_s, u"Custom.13"_s, Origin::Dialog);
        m_model->refresh();
        QCOMPARE(shown(u"Sleep"_s), u"Custom: 13"_s);
        QCOMPARE(proposed.size(), 0);
    }

    void aPasswordIsShownNowhere()
    {
        open(officePrinter());
        m_session->change(u"Pin"_s, u"Custom.4711"_s, Origin::Dialog);
        m_model->refresh();
        QCOMPARE(shown(u"Pin"_s), u"Custom: ••••••"_s);
        for (int column = 0; column < OptionsModel::ColumnCount; ++column) {
            for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole,
                                   Qt::AccessibleDescriptionRole})
                QVERIFY(!option(u"Pin"_s, column).data(role).toString().contains(u"4711"_s));
        }
    }

    void whatDiffersFromTheDefaultIsBoldAndNamesIt()
    {
        open(officePrinter());
        const auto isMarked = [this](const QString &keyword) {
            const bool bold = isBold(keyword, OptionsModel::Title);
            return bold == isBold(keyword, OptionsModel::Choice) &&
                   bold == !option(keyword).data(Qt::ToolTipRole).toString().isEmpty() && bold;
        };
        QVERIFY(!isMarked(u"Tray"_s));
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_session->change(u"Sleep"_s, u"Custom.5"_s, Origin::Dialog);
        m_model->refresh();
        QVERIFY(isMarked(u"Tray"_s));
        QVERIFY(isMarked(u"Sleep"_s));
        QVERIFY(!isMarked(u"Media"_s));
        QCOMPARE(option(u"Tray"_s).data(Qt::ToolTipRole),
                 QVariant(u"<qt>Default: Automatic</qt>"_s));
        m_model->proposeDefault(option(u"Tray"_s));
        m_model->proposeDefault(option(u"Sleep"_s));
        QVERIFY(!isMarked(u"Tray"_s));
        QVERIFY(!isMarked(u"Sleep"_s));
        QVERIFY(m_session->customValue(u"Sleep"_s).isNull());
    }

    void whatChangesAreComparedWithCanBeSomethingElse()
    {
        open(officePrinter());
        m_session->change(u"Tray"_s, u"Lower"_s, Origin::Dialog);
        m_model->refresh();
        m_model->showChanges({u"Back to Reports"_s, {{u"Media"_s, u"Reports: Card"_s}}});
        QVERIFY(!isBold(u"Tray"_s, OptionsModel::Title));
        QVERIFY(!m_model->isChanged(option(u"Tray"_s)));
        QVERIFY(isBold(u"Media"_s, OptionsModel::Title));
        QVERIFY(m_model->isChanged(option(u"Media"_s)));
        QCOMPARE(option(u"Media"_s).data(Qt::ToolTipRole),
                 QVariant(u"<qt>Changed. Reports: Card</qt>"_s));
        QCOMPARE(option(u"Media"_s).data(Qt::AccessibleDescriptionRole).toString(),
                 u"Changed. Reports: Card"_s);
        m_model->showChanges({u"Back to Reports"_s, {}});
        QVERIFY(!isBold(u"Media"_s, OptionsModel::Title));
    }

    void withoutADefaultNothingDiffersFromIt()
    {
        open(PpdBuilder().option("Tray", "Tray", "Unknown", {{"A", "A"}, {"B", "B"}}));
        QVERIFY(!isBold(u"Tray"_s, OptionsModel::Choice));
        QVERIFY(m_model->setData(option(u"Tray"_s), u"B"_s, Qt::EditRole));
        QVERIFY(!isBold(u"Tray"_s, OptionsModel::Choice));
        QVERIFY(!m_model->isChanged(option(u"Tray"_s)));
    }

    void ofSeveralChoicesAtOnceTheOneThatWasPickedLastCounts()
    {
        open(PpdBuilder()
                 .line("*OpenUI *Extras/Extras: PickMany")
                 .line("*DefaultExtras: A")
                 .line("*Extras A/First: \"\"")
                 .line("*Extras B/Second: \"\"")
                 .line("*CloseUI: *Extras"));
        QVERIFY(m_model->setData(option(u"Extras"_s), u"B"_s, Qt::EditRole));
        QCOMPARE(shown(u"Extras"_s), u"Second"_s);
    }

    void aHeadingCannotBeGoneTo()
    {
        open(officePrinter());
        QCOMPARE(m_model->index(0, 0).flags(), Qt::NoItemFlags);
        QVERIFY(option(u"Tray"_s).flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(!option(u"Tray"_s, OptionsModel::Title).flags().testFlag(Qt::ItemIsEditable));
    }

    void aScreenReaderNamesTheGroupOfAnOption()
    {
        open(officePrinter());
        QCOMPARE(option(u"Tray"_s, OptionsModel::Title).data(Qt::AccessibleDescriptionRole),
                 QVariant(u"Paper"_s));
    }

    void aSearchFinds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        const auto row = [](const char *name, const QString &text, const QStringList &found) {
            QTest::newRow(name) << text << found;
        };
        row("an option", u"punching"_s, {u"Finishing: Punch"_s});
        row("a choice", u"transparency"_s, {u"Paper: Media"_s});
        row("a choice that is not set", u"top right"_s, {u"Finishing: Staple"_s});
        row("a group", u"security"_s, {u"Job and Security: Sleep, Pin, Mark"_s});
        row("whatever the case", u"WATERmark"_s, {u"Job and Security: Mark"_s});
        row("without accents", u"creme"_s, {u"Paper: Media"_s});
        row("with accents", u"crêmè"_s, {u"Paper: Media"_s});
        row("full-width letters", u"ｐｕｎｃｈ"_s, {u"Finishing: Punch"_s});
        row("all words, in any order", u"upper  paper"_s, {u"Paper: Tray"_s});
        row("not one word of two", u"upper glitter"_s, {});
        row("nothing", u"glitter"_s, {});
    }
    void aSearchFinds()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, found);
        open(officePrinter());
        OptionsFilter filter;
        filter.setSourceModel(m_model.get());
        const QStringList all = rows(filter, OptionsModel::KeywordRole);
        QCOMPARE(all.size(), 5);
        filter.search(text);
        QCOMPARE(rows(filter, OptionsModel::KeywordRole), found);
        filter.search(u"  "_s);
        QCOMPARE(rows(filter, OptionsModel::KeywordRole), all);
    }

    void theSoundOfAKanaIsNoAccent()
    {
        QVERIFY(searchForm(u"が"_s) != searchForm(u"か"_s));
        QVERIFY(searchForm(u"ぱ"_s) != searchForm(u"は"_s));
        QCOMPARE(searchForm(u"ｶﾞ"_s), searchForm(u"ガ"_s));
        QCOMPARE(searchForm(u"É"_s), searchForm(u"e"_s));
    }
};

QTEST_MAIN(OptionsModelTest)

#include "options_model_test.moc"
