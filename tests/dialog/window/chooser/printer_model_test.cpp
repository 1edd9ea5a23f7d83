#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

#include "dialog/window/chooser/PrinterModel.h"
#include "tests/dialog/window/chooser/ChooserPrinters.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// Lists of printers, taken over by their difference.
class PrinterModelTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<PrinterModel> m_model;

    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < m_model->rowCount(); ++row)
            names += m_model->printer(row).name;
        return names;
    }
    static QList<Printer> named(const QString &letters)
    {
        QList<Printer> printers;
        for (const QChar letter : letters)
            printers += queue(QString(letter));
        return printers;
    }
    QString letters() const { return names().join(QString()); }

private Q_SLOTS:
    void init()
    {
        m_model = std::make_unique<PrinterModel>();
        new QAbstractItemModelTester(
            m_model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest, m_model.get());
    }

    void theRowsAreTheLastListInItsOrder_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        for (const auto &[before, after] : {std::pair{"", "abc"},
                                            {"abc", ""},
                                            {"abc", "abc"},
                                            {"abc", "cba"},
                                            {"abcd", "dabc"},
                                            {"abcd", "bcda"},
                                            {"abc", "xaybzc"},
                                            {"abcdef", "ace"},
                                            {"abcdef", "xfyb"},
                                            {"abc", "xyz"},
                                            {"aab", "ab"},
                                            {"ab", "aba"},
                                            {"aba", "baa"}})
            QTest::addRow("%s to %s", before, after)
                << QString::fromLatin1(before) << QString::fromLatin1(after);
    }
    void theRowsAreTheLastListInItsOrder()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        m_model->setPrinters(named(before));
        QCOMPARE(letters(), before);
        m_model->setPrinters(named(after));
        QCOMPARE(letters(), after);
    }

    void whoHoldsAPrinterHoldsItThroughAnUpdate_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("insert before") << u"abc"_s << u"xyabc"_s;
        QTest::newRow("remove before") << u"abc"_s << u"bc"_s;
        QTest::newRow("reverse") << u"abcde"_s << u"edcba"_s;
        QTest::newRow("all at once") << u"abcde"_s << u"xedyb"_s;
    }
    void whoHoldsAPrinterHoldsItThroughAnUpdate()
    {
        QFETCH(QString, before);
        QFETCH(QString, after);
        m_model->setPrinters(named(before));
        const QPersistentModelIndex held = m_model->index(1);
        QCOMPARE(m_model->printer(1).name, u"b"_s);
        m_model->setPrinters(named(after));
        QVERIFY(held.isValid());
        QCOMPARE(held.row(), after.indexOf(u'b'));
    }

    void whatMakesAPrinterTheSame_data()
    {
        QTest::addColumn<Printer>("other");
        QTest::addColumn<bool>("same");
        const Printer base = queue(u"q"_s);
        const auto row = [&](const char *name, bool same, auto change) {
            Printer other = base;
            change(other);
            QTest::newRow(name) << other << same;
        };
        row("description", true, [](Printer &p) { p.description = u"Other"_s; });
        row("state", true, [](Printer &p) { p.state = PrinterState::Stopped; });
        row("PPD of a queue", true, [](Printer &p) { p.ppdPath = u"/tmp/q.ppd"_s; });
        row("name", false, [](Printer &p) { p.name = u"other"_s; });
        row("case of the name", true, [](Printer &p) { p.name = u"Q"_s; });
        row("URI of a class", true, [](Printer &p) { p.uri.replace(u"printers"_s, u"classes"_s); });
        row("origin", false, [](Printer &p) { p.origin = PrinterOrigin::Device; });
    }
    void whatMakesAPrinterTheSame()
    {
        QFETCH(Printer, other);
        QFETCH(bool, same);
        m_model->setPrinters({queue(u"q"_s)});
        const QPersistentModelIndex held = m_model->index(0);
        m_model->setPrinters({other});
        QCOMPARE(held.isValid(), same);
        QCOMPARE(m_model->printer(0), other);
    }

    void twoPpdFilesOfOneNameAreTwoPrinters()
    {
        const Printer one{u"q"_s, u"Q"_s, u"/one.ppd"_s, 1};
        const Printer two{u"q"_s, u"Q"_s, u"/two.ppd"_s, 1};
        m_model->setPrinters({one, two});
        QCOMPARE(m_model->rowOf(idOf(two)), 1);
    }

    void aSmallChangeAmongThousandsTouchesOnlyItsRows()
    {
        QList<Printer> printers = queues(2000);
        m_model->setPrinters(printers);
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        QSignalSpy inserted(m_model.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(m_model.get(), &QAbstractItemModel::rowsRemoved);
        QSignalSpy layout(m_model.get(), &QAbstractItemModel::layoutChanged);
        QSignalSpy reset(m_model.get(), &QAbstractItemModel::modelReset);
        for (int i = 0; i < 5; ++i)
            printers[i * 300].state = PrinterState::Processing;
        for (int i = 1000; i < 1005; ++i)
            printers[i].state = PrinterState::Stopped;
        printers.removeAt(1700);
        printers.insert(50, queue(u"new"_s));
        m_model->setPrinters(printers);
        QCOMPARE(changed.size(), 6); // five alone, five in a row at once
        int rows = 0;
        for (const auto &signal : changed)
            rows += signal.at(1).toModelIndex().row() - signal.at(0).toModelIndex().row() + 1;
        QCOMPARE(rows, 10);
        QCOMPARE(inserted.size(), 1);
        QCOMPARE(inserted.at(0).at(1).toInt(), 50);
        QCOMPARE(inserted.at(0).at(2).toInt(), 50);
        QCOMPARE(removed.size(), 1);
        QCOMPARE(layout.size(), 0);
        QCOMPARE(reset.size(), 0);
    }

    // Each group by itself would cost views and proxies the time of all rows.
    void manySeparateChangesAreFewForAView()
    {
        const QList<Printer> all = queues(2000);
        QList<Printer> half;
        for (int i = 0; i < all.size(); i += 2)
            half += all.at(i);
        m_model->setPrinters(half);
        const QPersistentModelIndex held = m_model->index(700);
        QSignalSpy inserted(m_model.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(m_model.get(), &QAbstractItemModel::rowsRemoved);
        QSignalSpy layout(m_model.get(), &QAbstractItemModel::layoutChanged);
        const auto isShown = [this](const QList<Printer> &printers) {
            for (int i = 0; i < printers.size(); ++i) {
                if (m_model->printer(i) != printers.at(i))
                    return false;
            }
            return m_model->rowCount() == printers.size();
        };
        m_model->setPrinters(all);
        QVERIFY(isShown(all));
        QCOMPARE(held.row(), 1400);
        QCOMPARE(inserted.size(), 1);
        QVERIFY(layout.size() <= 1);
        m_model->setPrinters(half);
        QVERIFY(isShown(half));
        QCOMPARE(held.row(), 700);
        QCOMPARE(removed.size(), 1);
        QVERIFY(layout.size() <= 3);
    }

    void theSameListAgainTouchesNothing()
    {
        m_model->setPrinters(queues(2000));
        QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
        QSignalSpy inserted(m_model.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy layout(m_model.get(), &QAbstractItemModel::layoutChanged);
        m_model->setPrinters(queues(2000));
        QCOMPARE(changed.size() + inserted.size() + layout.size(), 0);
    }

    void anyNumberOfMovesIsOneChangeOfTheLayout()
    {
        QList<Printer> printers = queues(100);
        m_model->setPrinters(printers);
        QSignalSpy layout(m_model.get(), &QAbstractItemModel::layoutChanged);
        QSignalSpy removed(m_model.get(), &QAbstractItemModel::rowsRemoved);
        std::reverse(printers.begin(), printers.end());
        m_model->setPrinters(printers);
        QCOMPARE(layout.size(), 1);
        QCOMPARE(removed.size(), 0);
    }

    void aKeptPrinterThatIsNotListedStaysInItsPlace()
    {
        m_model->setPrinters(named(u"abcd"_s));
        m_model->keep(2);
        m_model->setPrinters(named(u"adx"_s));
        QCOMPARE(letters(), u"acdx"_s);
        QVERIFY(m_model->isGone(1));
        QVERIFY(m_model->index(1).data(PrinterModel::GoneRole).toBool());
        QCOMPARE(m_model->index(1).data(PrinterModel::StateTextRole).toString(),
                 u"No longer available"_s);
        m_model->setPrinters({});
        QCOMPARE(letters(), u"c"_s);
        m_model->setPrinters(named(u"xc"_s));
        QCOMPARE(letters(), u"xc"_s);
        QVERIFY(!m_model->isGone(1));
    }

    void aPrinterThatIsGoneGoesWhenAnotherIsKept()
    {
        m_model->setPrinters(named(u"abc"_s));
        m_model->keep(1);
        m_model->setPrinters(named(u"ac"_s));
        QCOMPARE(letters(), u"abc"_s);
        m_model->keep(2);
        QTRY_COMPARE(letters(), u"ac"_s);
    }

    void theRolesSayWhatIsKnown()
    {
        Printer printer = queue(u"q"_s, u"Red"_s, u"Cellar"_s);
        m_model->setPrinters({printer});
        const QModelIndex row = m_model->index(0);
        QCOMPARE(row.data().toString(), u"Red"_s);
        QCOMPARE(row.data(PrinterModel::PrinterRole).value<Printer>(), printer);
        QCOMPARE(row.data(PrinterModel::LocationRole).toString(), u"Cellar"_s);
        QCOMPARE(row.data(PrinterModel::StateTextRole).toString(), u"Idle"_s);
        QCOMPARE(row.data(PrinterModel::DetailRole).toString(), u"Cellar — Idle"_s);
        QCOMPARE(row.data(Qt::AccessibleTextRole).toString(), u"Red, Cellar, Idle"_s);
        QVERIFY(row.data(Qt::ToolTipRole).toString().contains(printer.uri));
        QVERIFY(!row.data(Qt::DecorationRole).value<QIcon>().isNull());
    }

    void aPrinterIsFoundByItsIdentity()
    {
        m_model->setPrinters(named(u"abc"_s));
        QCOMPARE(m_model->rowOf(idOf(queue(u"b"_s, u"other words"_s))), 1);
        QCOMPARE(m_model->rowOf(idOf(queue(u"x"_s))), -1);
    }
};

QTEST_MAIN(PrinterModelTest)

#include "printer_model_test.moc"
