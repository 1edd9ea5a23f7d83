#include <QApplication>
#include <QPushButton>
#include <QTest>

#include "tests/dialog/window/pages/AttributeRowsScene.h"

using namespace corvana;
using namespace corvana::test;
using namespace Qt::StringLiterals;

/// Where the rows of the job's attributes stand on the General page, and how keys lead there.
class AttributeKeysTest : public AttributeRowsScene
{
    Q_OBJECT

private Q_SLOTS:
    void tabGoesInReadingOrder()
    {
        open({collate({}, true), more(u"page-set"_s), more(u"job-hold-until"_s, u"12:30"_s),
              front(u"number-up"_s)});
        control<QPushButton>(u"more"_s)->click();
        // One that comes later stands in its place all the same.
        m_page->setAttributes({collate({}, true), front(u"number-up"_s), front(u"print-scaling"_s),
                               more(u"page-set"_s), more(u"job-hold-until"_s, u"12:30"_s)});
        QTRY_VERIFY(control(u"print-scaling"_s)->isVisible());
        control(u"copies"_s)->setFocus();
        QStringList order;
        for (QWidget *last = nullptr; QApplication::focusWidget() != last && order.size() < 20;) {
            last = QApplication::focusWidget();
            order += last->objectName();
            QTest::keyClick(last, Qt::Key_Tab);
            if (!m_page->isAncestorOf(QApplication::focusWidget()))
                break;
        }
        QCOMPARE(order.join(u' '),
                 (QStringList{u"copies"_s, u"collate"_s, u"pageRanges"_s, u"choosePages"_s,
                              u"Duplex"_s, u"PageSize"_s, u"QXOutput"_s, u"AP_ColorMatchingMode"_s,
                              u"number-up"_s, u"print-scaling"_s, u"more"_s, u"page-set"_s,
                              u"job-hold-until"_s, u"job-hold-untilOther"_s})
                     .join(u' '));
        int former = 0;
        for (const QString &name : std::as_const(order)) {
            const int top = control(name)->mapTo(m_window.get(), QPoint()).y();
            QVERIFY2(top >= former - 4, qPrintable(name)); // a check box is less high
            former = top;
        }
    }

    void theKeysOfARowLeadToItsControl()
    {
        open({collate({}, true), front(u"number-up"_s), more(u"page-set"_s)});
        QTest::keyClick(m_window.get(), Qt::Key_S, Qt::AltModifier); // Pages per &Sheet
        QVERIFY(control(u"number-up"_s)->hasFocus());
        QTest::keyClick(m_window.get(), Qt::Key_M, Qt::AltModifier);
        QTRY_VERIFY(control<QPushButton>(u"more"_s)->isChecked());
    }

    void aRowHasTheHeightOfItsNeighbours()
    {
        open({front(u"number-up"_s), front(u"print-scaling"_s)});
        const int neighbour = control(u"PageSize"_s)->height();
        QCOMPARE(control(u"number-up"_s)->height(), neighbour);
        const auto top = [&](const QString &name) {
            return control(name)->mapTo(m_page, QPoint()).y();
        };
        QCOMPARE(top(u"print-scaling"_s) - top(u"number-up"_s),
                 top(u"AP_ColorMatchingMode"_s) - top(u"QXOutput"_s));
    }

    void returnTakesWhatIsTypedBeforeItPrints()
    {
        open({front(u"job-sheets"_s)});
        connect(m_page, &GeneralPage::attributeProposed, this,
                [this](const QString &name, const QString &value) {
                    m_page->showAttributeProblem(name, {});
                    m_page->setAttributes({front(name, value)});
                });
        type(u"job-sheets"_s, u"standard"_s);
        QTest::keyClick(control(u"job-sheets"_s), Qt::Key_Return);
        QCOMPARE(proposal(), (QStringList{u"job-sheets"_s, u"standard"_s}));
        QCOMPARE(m_proposed->size(), 1);
        QTest::keyClick(control(u"job-sheets"_s), Qt::Key_Return); // nothing is new
        QCOMPARE(m_proposed->size(), 1);
    }
};

QTEST_MAIN(AttributeKeysTest)

#include "attribute_keys_test.moc"
