#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "dialog/window/pages/ChangeMarks.h"
#include "platform/toolkit/ScreenReader.h"

using namespace corvana;
using namespace Qt::StringLiterals;

/// Dots beside titles that come and go.
class ChangeMarksTest : public QObject
{
    Q_OBJECT

private:
    static ShownChanges changes(const QString &name)
    {
        ShownChanges changes;
        changes.settings.insert(name, u"Was: A4"_s);
        return changes;
    }

private Q_SLOTS:
    void aTitleThatGoesLeavesNoDotToBePlaced()
    {
        QWidget page;
        page.resize(200, 100);
        auto *title = new QLabel(u"Paper"_s, &page);
        auto *control = new QPushButton(u"A5"_s, &page);
        control->setGeometry(80, 10, 60, 30);
        page.show();
        ChangeMarks marks;
        marks.show({{u"PageSize"_s, control, title}}, changes(u"PageSize"_s));
        delete title;
        control->move(90, 20); // the dot is still there
        control->resize(40, 20);
        auto *other = new QLabel(u"Size"_s, &page);
        marks.show({{u"PageSize"_s, control, other}}, changes(u"PageSize"_s));
        QTest::qWait(1);
        QCOMPARE(page.findChildren<QWidget *>(u"changed"_s).size(), 1);
        QCOMPARE(control->accessibleDescription(), u"Changed. Was: A4"_s);
    }

    void aToolTipThatChangesUnderAMarkIsNotLost()
    {
        QWidget page;
        auto *control = new QPushButton(u"A5"_s, &page);
        setPlainToolTip(control, u"148 mm wide"_s);
        ChangeMarks marks;
        marks.show({{u"PageSize"_s, control, {}}}, changes(u"PageSize"_s));
        QCOMPARE(control->accessibleDescription(), u"Changed. Was: A4 148 mm wide"_s);
        setPlainToolTip(control, u"210 mm wide"_s);
        marks.show({}, {});
        QCOMPARE(control->accessibleDescription(), u"210 mm wide"_s);
    }
};

QTEST_MAIN(ChangeMarksTest)

#include "change_marks_test.moc"
