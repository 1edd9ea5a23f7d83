#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/FilterImageView.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/ScreenReader.h"
#include "platform/toolkit/Stepper.h"

using namespace corvana;
using namespace Qt::StringLiterals;

namespace {

QAccessibleInterface *accessible(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

// What stands in the tree of a window for those who ask after they have heard that something was
// said. That it is said at all is heard on the bus only, by e2e.screen_reader.
QStringList announcementsIn(QWidget &window)
{
    QStringList texts;
    QAccessibleInterface *whole = accessible(&window);
    for (int i = 0; i < whole->childCount(); ++i) {
        if (whole->child(i)->role() == QAccessible::Notification)
            texts += whole->child(i)->text(QAccessible::Name);
    }
    return texts;
}

} // namespace

class ScreenReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsAnnouncedIsANotificationInView()
    {
        QWidget window;
        QWidget inside(&window);
        QLineEdit field(&inside);
        announce(&field, u"12 settings found"_s);
        announce(&field, {});
        announce(nullptr, u"to nobody"_s);
        QCOMPARE(announcementsIn(window), QStringList{u"12 settings found"_s});
        QAccessibleInterface *whole = accessible(&window);
        QAccessibleInterface *said = whole->child(whole->childCount() - 1);
        QVERIFY(!said->state().invisible);
        QVERIFY(!said->state().focusable);
    }

    // A screen reader asks for the text some time after it has heard that there is one.
    void textsThatAreSaidAtOnceCanAllBeRead()
    {
        QWidget window;
        for (const char *text : {"one", "two", "three"})
            announce(&window, QString::fromLatin1(text));
        QCOMPARE(announcementsIn(window), (QStringList{u"one"_s, u"two"_s, u"three"_s}));
    }

    void fewAreKeptAndTheyAreTheLastOnes()
    {
        QWidget window;
        for (int i = 0; i < 100; ++i)
            announce(&window, QString::number(i));
        QStringList kept = announcementsIn(window);
        kept.sort();
        QCOMPARE(kept, (QStringList{u"96"_s, u"97"_s, u"98"_s, u"99"_s}));
    }

    void theSameTextCanBeAnnouncedAgain()
    {
        QWidget window;
        announce(&window, u"No such page"_s);
        announce(&window, u"No such page"_s);
        QCOMPARE(announcementsIn(window).size(), 2);
    }

    void nothingIsSeenOfAnAnnouncement()
    {
        QWidget window;
        window.resize(100, 100);
        window.show();
        const QImage before = window.grab().toImage();
        announce(&window, u"12 settings found"_s);
        QCOMPARE(window.grab().toImage(), before);
    }

    void aDisclosureSaysWhetherItIsOpen()
    {
        DisclosureButton button;
        QAccessibleInterface *said = accessible(&button);
        QCOMPARE(said->role(), QAccessible::Button);
        QVERIFY(said->state().expandable && said->state().collapsed && !said->state().expanded);
        QVERIFY(!said->state().checkable);
        QSignalSpy spy(&button, &DisclosureButton::toggled);
        said->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(spy.count(), 1);
        QVERIFY(said->state().expanded && !said->state().collapsed);
    }

    void aDisclosureThatIsDisabledOffersNothing()
    {
        DisclosureButton button;
        button.setEnabled(false);
        QVERIFY(accessible(&button)->actionInterface()->actionNames().isEmpty());
        accessible(&button)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QVERIFY(!button.isChecked());
    }

    void theSelectedTabSaysSoAndNotThatItHasTheFocus()
    {
        QTabWidget tabs;
        makeTabsAccessible(&tabs);
        for (const char *name : {"&General", "Print && Cut", "Summary"})
            tabs.addTab(new QWidget, QString::fromLatin1(name));
        tabs.setCurrentIndex(1);
        tabs.show();
        QAccessibleInterface *bar = accessible(tabs.tabBar());
        QCOMPARE(bar->role(), QAccessible::PageTabList);
        QCOMPARE(bar->childCount(), 3);
        QCOMPARE(bar->child(0)->text(QAccessible::Name), u"General"_s);
        QCOMPARE(bar->child(1)->text(QAccessible::Name), u"Print & Cut"_s);
        for (int i = 0; i < 3; ++i) {
            QAccessibleInterface *tab = bar->child(i);
            QCOMPARE(tab->role(), QAccessible::PageTab);
            QCOMPARE(bool(tab->state().selected), i == 1);
            QVERIFY(!tab->state().focused);
            QCOMPARE(bar->indexOfChild(tab), i);
            QCOMPARE(tab->parent(), bar);
            QVERIFY(tab->rect().isValid());
        }
        bar->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(tabs.currentIndex(), 2);
        tabs.activateWindow();
        tabs.tabBar()->setFocus();
        QVERIFY(QTest::qWaitFor([&] { return tabs.tabBar()->hasFocus(); }));
        QVERIFY(bar->child(2)->state().focused);
        QCOMPARE(bar->focusChild(), bar->child(2));
    }

    void aTabThatHasGoneIsInvalid()
    {
        QTabWidget tabs;
        makeTabsAccessible(&tabs);
        tabs.addTab(new QWidget, u"One"_s);
        tabs.addTab(new QWidget, u"Two"_s);
        QAccessibleInterface *bar = accessible(tabs.tabBar());
        QAccessibleInterface *second = bar->child(1);
        tabs.removeTab(1);
        QVERIFY(!second->isValid());
        QVERIFY(second->text(QAccessible::Name).isEmpty());
        QVERIFY(!bar->child(1));
    }

    void aPopUpIsNamedByItsHiddenLabel()
    {
        QWidget window;
        auto *popUp = new QComboBox(&window);
        popUp->addItems({u"mm"_s, u"inches"_s});
        setAccessibleLabel(popUp, u"Unit & size"_s);
        window.show();
        QStringList names;
        const auto relations = accessible(popUp)->relations(QAccessible::Label);
        for (const auto &[other, relation] : relations)
            names += other->text(QAccessible::Name);
        QCOMPARE(names, QStringList{u"Unit & size"_s});
        QVERIFY(!window.findChild<QLabel *>()->isVisible());
    }

    void theListOfAPopUpHasItsName()
    {
        QWidget window;
        auto *popUp = new QComboBox(&window);
        popUp->addItems({u"mm"_s, u"inches"_s});
        setAccessibleLabel(popUp, u"Unit"_s);
        QObject owner;
        nameListsOfPopUps(&owner);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        popUp->showPopup();
        QTRY_COMPARE(popUp->view()->accessibleName(), u"Unit"_s);
        popUp->hidePopup();
    }

    void aToolTipIsReadWithoutItsMarkup()
    {
        QToolButton button;
        setPlainToolTip(&button, u"a < b"_s);
        QVERIFY(button.toolTip().contains(u"&lt;"_s));
        QCOMPARE(accessible(&button)->text(QAccessible::Description), u"a < b"_s);
        setPlainToolTip(&button, u"other"_s);
        QCOMPARE(accessible(&button)->text(QAccessible::Description), u"other"_s);
        setPlainToolTip(&button, {});
        QCOMPARE(accessible(&button)->text(QAccessible::Description), QString());
    }

    void whatSomebodyElseSaysOfAControlStays()
    {
        QToolButton button;
        button.setAccessibleDescription(u"Set by your administrator"_s);
        setPlainToolTip(&button, u"Smaller"_s);
        QCOMPARE(button.accessibleDescription(), u"Set by your administrator"_s);
    }

    void aToolTipThatChangesWhileItIsCoveredCountsAfterwards()
    {
        QToolButton button;
        setPlainToolTip(&button, u"Wide"_s);
        coverDescription(&button);
        button.setAccessibleDescription(u"Changed. "_s + coveredDescription(&button));
        setPlainToolTip(&button, u"Narrow"_s);
        QCOMPARE(button.accessibleDescription(), u"Changed. Wide"_s);
        QCOMPARE(coveredDescription(&button), u"Narrow"_s);
        uncoverDescription(&button);
        QCOMPARE(button.accessibleDescription(), u"Narrow"_s);
        setPlainToolTip(&button, u"Long"_s);
        QCOMPARE(button.accessibleDescription(), u"Long"_s);
        uncoverDescription(&button);
        QCOMPARE(button.accessibleDescription(), u"Long"_s);
    }

    void whatSeveralHaveCoveredComesBackWithTheLastOfThem()
    {
        QToolButton button;
        button.setAccessibleDescription(u"Wide"_s);
        coverDescription(&button);
        coverDescription(&button);
        button.setAccessibleDescription(u"Changed. Wide"_s);
        uncoverDescription(&button);
        QCOMPARE(button.accessibleDescription(), u"Changed. Wide"_s);
        QCOMPARE(coveredDescription(&button), u"Wide"_s);
        uncoverDescription(&button);
        QCOMPARE(button.accessibleDescription(), u"Wide"_s);
        uncoverDescription(&button);
        coverDescription(&button);
        uncoverDescription(&button);
        QCOMPARE(coveredDescription(&button), QString());
    }

    void theButtonsInsideAFieldHaveNames()
    {
        QLineEdit field;
        field.setAccessibleName(u"Find"_s);
        field.setClearButtonEnabled(true);
        field.addAction(QIcon(QPixmap(8, 8)), QLineEdit::LeadingPosition);
        setFieldButtonNames(&field, u"Clear"_s);
        QStringList names;
        for (QToolButton *button : field.findChildren<QToolButton *>())
            names += accessible(button)->text(QAccessible::Name);
        names.sort();
        QCOMPARE(names, (QStringList{u"Clear"_s, u"Find"_s}));
    }

    void theArrowsOfAStepperHaveNames()
    {
        Stepper stepper;
        QStringList names;
        for (QToolButton *arrow : stepper.findChildren<QToolButton *>())
            names += accessible(arrow)->text(QAccessible::Name);
        QCOMPARE(names, (QStringList{u"+"_s, u"−"_s}));
    }

    void whatPaintsItselfOrGroupsOthersSaysSo()
    {
        FilterImageView picture;
        QCOMPARE(accessible(&picture)->role(), QAccessible::Graphic);
        RadioMatrix matrix;
        QCOMPARE(accessible(&matrix)->role(), QAccessible::Grouping);
    }
};

QTEST_MAIN(ScreenReaderTest)

#include "screen_reader_test.moc"
