#include <QtTest>

#include <QComboBox>

#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/PopUpButton.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class PopUpButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsSelectedAfterItWasFilled();
    void addingKeepsTheSelection();
    void aTitleThatIsThereAlreadyReplacesItsItem();
    void replacingTheSelectedItemSelectsNothing();
    void removingTheSelectedItemSelectsNothing_data();
    void removingTheSelectedItemSelectsNothing();
    void removingAnotherItemKeepsTheSelectedOne();
    void removingWhatDoesNotExistIsIgnored();
    void removingAllSelectsNothing();
    void titlesAreFoundExactly_data();
    void titlesAreFoundExactly();
    void representedObjectsAreFoundExactly_data();
    void representedObjectsAreFoundExactly();
    void theFirstItemWithTheObjectCounts();
    void anItemWithoutARepresentedObjectHasNone();
    void selectingWhatDoesNotExistSelectsNothing();
    void anImageDoesNotChangeTheItem();
    void anItemCanBeDisabled();
    void aDisabledItemIsPassedOver();
    void anItemThatDoesNotExistIsNotEnabled();
    void nothingHereFiresAnAction();
    void itemsThatComeTogetherAreThoseThatComeOneByOne();
    void manyItemsComeInOneWalk();

private:
    QStringList titles() const;

    std::unique_ptr<QComboBox> m_popUp;
};

void PopUpButtonTest::init()
{
    m_popUp = std::make_unique<QComboBox>();
    for (const char *title : {"Plain", "Thick", "Envelope"}) {
        popup::addItemWithTitle(m_popUp.get(), QString::fromLatin1(title));
        popup::setRepresentedObject(m_popUp.get(), m_popUp->count() - 1,
                                    QString::fromLatin1(title).toUpper());
    }
}

QStringList PopUpButtonTest::titles() const
{
    QStringList result;
    for (int i = 0; i < m_popUp->count(); ++i)
        result += m_popUp->itemText(i);
    return result;
}

void PopUpButtonTest::nothingIsSelectedAfterItWasFilled()
{
    QCOMPARE(m_popUp->count(), 3);
    QCOMPARE(m_popUp->currentIndex(), -1);
    QVERIFY(m_popUp->currentText().isEmpty());
}

void PopUpButtonTest::addingKeepsTheSelection()
{
    popup::selectItemAt(m_popUp.get(), 1);
    popup::addItemWithTitle(m_popUp.get(), u"Label"_s);
    QCOMPARE(m_popUp->currentText(), u"Thick"_s);
}

void PopUpButtonTest::aTitleThatIsThereAlreadyReplacesItsItem()
{
    popup::selectItemAt(m_popUp.get(), 2);
    popup::addItemWithTitle(m_popUp.get(), u"Plain"_s);
    QCOMPARE(titles(), (QStringList{u"Thick"_s, u"Envelope"_s, u"Plain"_s}));
    QVERIFY(!popup::representedObject(m_popUp.get(), 2).isValid()); // a new item
    QCOMPARE(m_popUp->currentText(), u"Envelope"_s);
}

void PopUpButtonTest::replacingTheSelectedItemSelectsNothing()
{
    popup::selectItemAt(m_popUp.get(), 0);
    popup::addItemWithTitle(m_popUp.get(), u"Plain"_s);
    QCOMPARE(m_popUp->currentIndex(), -1);
}

void PopUpButtonTest::removingTheSelectedItemSelectsNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("first") << 0;
    QTest::newRow("middle") << 1;
    QTest::newRow("last") << 2;
}

void PopUpButtonTest::removingTheSelectedItemSelectsNothing()
{
    QFETCH(int, index);
    popup::selectItemAt(m_popUp.get(), index);
    popup::removeItemAt(m_popUp.get(), index);
    QCOMPARE(m_popUp->count(), 2);
    QCOMPARE(m_popUp->currentIndex(), -1);
}

void PopUpButtonTest::removingAnotherItemKeepsTheSelectedOne()
{
    popup::selectItemAt(m_popUp.get(), 1);
    popup::removeItemAt(m_popUp.get(), 0);
    QCOMPARE(m_popUp->currentText(), u"Thick"_s);
    popup::removeItemAt(m_popUp.get(), 1);
    QCOMPARE(m_popUp->currentText(), u"Thick"_s);
}

void PopUpButtonTest::removingWhatDoesNotExistIsIgnored()
{
    popup::selectItemAt(m_popUp.get(), 1);
    for (const int index : {-1, 3, 100})
        popup::removeItemAt(m_popUp.get(), index);
    QCOMPARE(m_popUp->count(), 3);
    QCOMPARE(m_popUp->currentIndex(), 1);
    QComboBox empty;
    popup::removeItemAt(&empty, -1); // where nothing is selected
    QCOMPARE(empty.count(), 0);
}

void PopUpButtonTest::removingAllSelectsNothing()
{
    popup::selectItemAt(m_popUp.get(), 1);
    popup::removeAllItems(m_popUp.get());
    QCOMPARE(m_popUp->count(), 0);
    QCOMPARE(m_popUp->currentIndex(), -1);
    popup::addItemWithTitle(m_popUp.get(), u"Plain"_s);
    QCOMPARE(m_popUp->currentIndex(), -1);
}

void PopUpButtonTest::titlesAreFoundExactly_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("index");
    QTest::newRow("exact") << u"Thick"_s << 1;
    QTest::newRow("other case") << u"thick"_s << -1;
    QTest::newRow("prefix") << u"Thi"_s << -1;
    QTest::newRow("wildcard") << u"T*"_s << -1;
    QTest::newRow("represented object") << u"THICK"_s << -1;
    QTest::newRow("empty") << u""_s << -1;
    QTest::newRow("null") << QString() << -1;
}

void PopUpButtonTest::titlesAreFoundExactly()
{
    QFETCH(QString, title);
    QFETCH(int, index);
    QCOMPARE(popup::indexOfItemWithTitle(m_popUp.get(), title), index);
}

void PopUpButtonTest::representedObjectsAreFoundExactly_data()
{
    QTest::addColumn<QVariant>("object");
    QTest::addColumn<int>("index");
    QTest::newRow("exact") << QVariant(u"THICK"_s) << 1;
    QTest::newRow("other case") << QVariant(u"Thick"_s) << -1;
    QTest::newRow("prefix") << QVariant(u"THI"_s) << -1;
    QTest::newRow("of another type") << QVariant(12) << -1;
    QTest::newRow("text of a number") << QVariant(u"12"_s) << 3;
    QTest::newRow("empty text") << QVariant(u""_s) << -1;
    QTest::newRow("nothing") << QVariant() << -1;
}

void PopUpButtonTest::representedObjectsAreFoundExactly()
{
    QFETCH(QVariant, object);
    QFETCH(int, index);
    popup::addItemWithTitle(m_popUp.get(), u"Twelve"_s);
    popup::setRepresentedObject(m_popUp.get(), 3, u"12"_s);
    popup::addItemWithTitle(m_popUp.get(), u"Carries nothing"_s);
    QCOMPARE(popup::indexOfItemWithRepresentedObject(m_popUp.get(), object), index);
}

void PopUpButtonTest::theFirstItemWithTheObjectCounts()
{
    popup::setRepresentedObject(m_popUp.get(), 2, u"PLAIN"_s);
    QCOMPARE(popup::indexOfItemWithRepresentedObject(m_popUp.get(), u"PLAIN"_s), 0);
}

void PopUpButtonTest::anItemWithoutARepresentedObjectHasNone()
{
    popup::addItemWithTitle(m_popUp.get(), u"Label"_s);
    QVERIFY(!popup::representedObject(m_popUp.get(), 3).isValid());
    QVERIFY(!popup::representedObject(m_popUp.get(), 4).isValid());
    QVERIFY(!popup::representedObject(m_popUp.get(), -1).isValid());
}

void PopUpButtonTest::selectingWhatDoesNotExistSelectsNothing()
{
    for (const int index : {-1, 3, -7}) {
        popup::selectItemAt(m_popUp.get(), 1);
        popup::selectItemAt(m_popUp.get(), index);
        QCOMPARE(m_popUp->currentIndex(), -1);
    }
}

void PopUpButtonTest::anImageDoesNotChangeTheItem()
{
    QPixmap picture(8, 8);
    picture.fill(Qt::black);
    popup::setItemImage(m_popUp.get(), 1, QIcon(picture));
    QVERIFY(!m_popUp->itemIcon(1).isNull());
    QVERIFY(m_popUp->itemIcon(0).isNull());
    QCOMPARE(m_popUp->itemText(1), u"Thick"_s);
    QCOMPARE(popup::representedObject(m_popUp.get(), 1), QVariant(u"THICK"_s));
    QCOMPARE(m_popUp->currentIndex(), -1);
}

void PopUpButtonTest::anItemCanBeDisabled()
{
    popup::selectItemAt(m_popUp.get(), 1);
    popup::setItemEnabled(m_popUp.get(), 1, false);
    QVERIFY(popup::isItemEnabled(m_popUp.get(), 0));
    QVERIFY(!popup::isItemEnabled(m_popUp.get(), 1));
    QCOMPARE(m_popUp->currentIndex(), 1); // what to do then is the caller's
    popup::setItemEnabled(m_popUp.get(), 1, true);
    QVERIFY(popup::isItemEnabled(m_popUp.get(), 1));
    // An item that takes the title of a disabled one can be picked.
    popup::setItemEnabled(m_popUp.get(), 1, false);
    popup::addItemWithTitle(m_popUp.get(), u"Thick"_s);
    QVERIFY(popup::isItemEnabled(m_popUp.get(), 2));
}

void PopUpButtonTest::aDisabledItemIsPassedOver()
{
    popup::selectItemAt(m_popUp.get(), 0);
    popup::setItemEnabled(m_popUp.get(), 1, false);
    QTest::keyClick(m_popUp.get(), Qt::Key_Down);
    QCOMPARE(m_popUp->currentIndex(), 2);
}

void PopUpButtonTest::anItemThatDoesNotExistIsNotEnabled()
{
    for (const int index : {-1, 3, 1000}) {
        popup::setItemEnabled(m_popUp.get(), index, true);
        QVERIFY(!popup::isItemEnabled(m_popUp.get(), index));
    }
    QCOMPARE(m_popUp->count(), 3);
}

void PopUpButtonTest::nothingHereFiresAnAction()
{
    int fired = 0;
    connectControlAction(m_popUp.get(), [&](QWidget *) { ++fired; });
    popup::selectItemAt(m_popUp.get(), 0);
    popup::addItemWithTitle(m_popUp.get(), u"Plain"_s);
    popup::selectItemAt(m_popUp.get(), 1);
    popup::removeItemAt(m_popUp.get(), 0);
    popup::removeItemAt(m_popUp.get(), 0);
    popup::setRepresentedObject(m_popUp.get(), 0, 1);
    popup::selectItemAt(m_popUp.get(), 0);
    popup::removeAllItems(m_popUp.get());
    QCoreApplication::processEvents();
    QCOMPARE(fired, 0);
}

void PopUpButtonTest::itemsThatComeTogetherAreThoseThatComeOneByOne()
{
    const QList<popup::Item> items{{u"A"_s, 1}, {u"B"_s, 2}, {u"A"_s, 3}, {u"a"_s, 4}, {u""_s, 5}};
    popup::removeAllItems(m_popUp.get());
    for (const popup::Item &item : items) {
        popup::addItemWithTitle(m_popUp.get(), item.title);
        popup::setRepresentedObject(m_popUp.get(), m_popUp->count() - 1, item.object);
    }
    const QStringList oneByOne = titles();
    popup::selectItemAt(m_popUp.get(), 1);
    QSignalSpy chosen(m_popUp.get(), &QComboBox::activated);
    popup::setItems(m_popUp.get(), items);
    QCOMPARE(titles(), oneByOne);
    QCOMPARE(m_popUp->currentIndex(), -1);
    QCOMPARE(popup::indexOfItemWithRepresentedObject(m_popUp.get(), 3),
             popup::indexOfItemWithTitle(m_popUp.get(), u"A"_s));
    QCOMPARE(popup::indexOfItemWithRepresentedObject(m_popUp.get(), 1), -1);
    QCOMPARE(chosen.size(), 0);
}

void PopUpButtonTest::manyItemsComeInOneWalk()
{
    QList<popup::Item> items;
    for (int i = 0; i < 50'000; ++i)
        items += popup::Item{u"Choice %1"_s.arg(i), i};
    QElapsedTimer time;
    time.start();
    popup::setItems(m_popUp.get(), items);
    QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(m_popUp->count(), 50'000);
}

QTEST_MAIN(PopUpButtonTest)
#include "pop_up_button_test.moc"
