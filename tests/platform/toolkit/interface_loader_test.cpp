#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>
#include <QStackedWidget>
#include <QTableView>

#include "platform/toolkit/FrameLayout.h"
#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/RadioMatrix.h"

#include "UserActs.h"
#include "tests/support/TestPaths.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class InterfaceLoaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theViewIsTheRootOfTheFile();
    void outletsAreConnectedByName();
    void anOutletThatTheFileLacksStaysNull();
    void anOutletMayBeOfABaseClass();
    void anActionRunsForItsControl();
    void nothingFiresWhileAFileIsLoaded();
    void tagsAreRead();
    void aRadioMatrixHasItsRows();
    void bindingsShowAndWriteBack();
    void aBindingIsWrittenBackBeforeTheActionRuns();
    void theViewOwnsItsDictionary();
    void theWheelOverAnUnfocusedControlDoesNothing();
    void theLibraryPathsAreKept();
    void twoViewsOfOneFileAreIndependent();
    void tableAndPagesShareTheirRows();
    void aFieldHasItsDelegate();
    void companionsWorkTogether();
    void aViewIsLaidOutByFramesWhereItSaysSo();
    void aClassOfTheOwnersIsMadeByTheOwner();
    void theShippedInterfacesLoad_data();
    void theShippedInterfacesLoad();

private:
    InterfaceConnections owner();
    LoadedInterface loadControls(const QByteArray &controls);

    QString m_file;
    std::unique_ptr<QTemporaryDir> m_folder;
    QPointer<QSlider> m_slider;
    QPointer<QCheckBox> m_box;
    QPointer<RadioMatrix> m_matrix;
    QPointer<QLabel> m_missing;
    QPointer<QWidget> m_anyWidget;
    QPointer<BindingDictionary> m_dictionary;
    QList<QWidget *> m_fired;
    InterfaceConnections m_owner;
};

namespace {

constexpr char kInterface[] = R"ui(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Test</class>
 <widget class="QWidget" name="panelView">
  <layout class="QVBoxLayout" name="mainLayout">
   <item>
    <widget class="QCheckBox" name="box">
     <property name="text"><string>A &amp;&amp; B</string></property>
     <property name="action" stdset="0"><string>act</string></property>
     <property name="tag" stdset="0"><number>42</number></property>
     <property name="checked"><bool>true</bool></property>
    </widget>
   </item>
   <item>
    <widget class="QSlider" name="slider">
     <property name="action" stdset="0"><string>act</string></property>
     <property name="bindValue" stdset="0"><string>density</string></property>
     <property name="maximum"><number>10</number></property>
     <property name="value"><number>3</number></property>
    </widget>
   </item>
   <item>
    <widget class="RadioMatrix" name="matrix">
     <property name="rows" stdset="0"><number>3</number></property>
     <property name="action" stdset="0"><string>act</string></property>
     <property name="bindEnabled" stdset="0"><string>isColor</string></property>
     <property name="bindVisible" stdset="0"><string>hasMatrix</string></property>
    </widget>
   </item>
   <item>
    <widget class="QComboBox" name="popUp">
     <property name="action" stdset="0"><string>act</string></property>
     <item><property name="text"><string>One</string></property></item>
     <item><property name="text"><string>Two</string></property></item>
    </widget>
   </item>
   <item><widget class="Line" name="line"/></item>
   <item><widget class="QLineEdit" name="field"/></item>
  </layout>
 </widget>
 <customwidgets>
  <customwidget>
   <class>RadioMatrix</class>
   <extends>QWidget</extends>
   <header>platform/toolkit/RadioMatrix.h</header>
  </customwidget>
 </customwidgets>
</ui>
)ui";

} // namespace

void InterfaceLoaderTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(u"Test.ui"_s);
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(kInterface);
    m_fired.clear();
    m_owner = {};
}

InterfaceConnections InterfaceLoaderTest::owner()
{
    InterfaceConnections connections;
    connections.outlet(u"slider"_s, m_slider);
    connections.outlet(u"box"_s, m_box);
    connections.outlet(u"matrix"_s, m_matrix);
    connections.outlet(u"missing"_s, m_missing);
    connections.outlet(u"popUp"_s, m_anyWidget);
    connections.action(u"act"_s, [this](QWidget *control) { m_fired += control; });
    connections.bindingDictionary(m_dictionary);
    return connections;
}

void InterfaceLoaderTest::theViewIsTheRootOfTheFile()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY2(loaded.view, qPrintable(loaded.problems.join(u'\n')));
    QVERIFY(loaded.problems.isEmpty());
    QCOMPARE(loaded.view->objectName(), u"panelView"_s);
    QVERIFY(!loaded.view->isVisible());
    QVERIFY(takeInterfaceProblems().isEmpty());
}

void InterfaceLoaderTest::outletsAreConnectedByName()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(loaded.view);
    QCOMPARE(m_slider.data(), loaded.view->findChild<QSlider *>(u"slider"_s));
    QVERIFY(m_slider);
    QVERIFY(m_box);
    QVERIFY(m_matrix);
}

void InterfaceLoaderTest::anOutletThatTheFileLacksStaysNull()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(loaded.view);
    QVERIFY(!m_missing);
}

void InterfaceLoaderTest::anOutletMayBeOfABaseClass()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(loaded.view);
    QVERIFY(qobject_cast<QComboBox *>(m_anyWidget));
}

void InterfaceLoaderTest::anActionRunsForItsControl()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(loaded.view);
    m_box->click();
    m_matrix->cell(1)->click();
    m_slider->setValue(7);
    QCOMPARE(m_fired, (QList<QWidget *>{m_box, m_matrix, m_slider}));
}

void InterfaceLoaderTest::nothingFiresWhileAFileIsLoaded()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(loaded.view);
    QVERIFY(m_box->isChecked());
    QCOMPARE(m_slider->value(), 3);
    QCoreApplication::processEvents();
    QVERIFY(m_fired.isEmpty());
    // Nothing was written back either.
    QVERIFY(m_dictionary);
    QVERIFY(!m_dictionary->contains(u"density"_s));
}

void InterfaceLoaderTest::tagsAreRead()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(loaded.view);
    QCOMPARE(controlTag(m_box), 42);
    QCOMPARE(controlTag(m_slider), 0);
}

void InterfaceLoaderTest::aRadioMatrixHasItsRows()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(loaded.view);
    QCOMPARE(m_matrix->numberOfRows(), 3);
    QCOMPARE(m_matrix->selectedRow(), -1);
}

void InterfaceLoaderTest::bindingsShowAndWriteBack()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(loaded.view);
    m_dictionary->setValue(u"density"_s, 6);
    QCOMPARE(m_slider->value(), 6);
    m_dictionary->setValue(u"isColor"_s, false);
    QVERIFY(!isControlEnabled(m_matrix));
    m_dictionary->setValue(u"hasMatrix"_s, false);
    QVERIFY(m_matrix->isHidden());
    QVERIFY(m_fired.isEmpty());
    QVERIFY(user::setValue(m_slider, 9));
    QCOMPARE(m_dictionary->value(u"density"_s).toInt(), 9);
}

void InterfaceLoaderTest::aBindingIsWrittenBackBeforeTheActionRuns()
{
    InterfaceConnections connections = owner();
    int seen = -1;
    connections.action(u"act"_s,
                       [&](QWidget *) { seen = m_dictionary->value(u"density"_s).toInt(); });
    const LoadedInterface loaded = loadInterface(m_file, connections);
    QVERIFY(loaded.view);
    m_slider->setValue(8);
    QCOMPARE(seen, 8);
}

void InterfaceLoaderTest::theViewOwnsItsDictionary()
{
    LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(m_dictionary);
    loaded.view.reset();
    QVERIFY(!m_dictionary);
    QVERIFY(!m_slider);
}

void InterfaceLoaderTest::theWheelOverAnUnfocusedControlDoesNothing()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(loaded.view);
    auto *popUp = qobject_cast<QComboBox *>(m_anyWidget);
    const int before = popUp->currentIndex();
    QWheelEvent event({5, 5}, popUp->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(popUp, &event);
    QCOMPARE(popUp->currentIndex(), before);
    QVERIFY(m_fired.isEmpty());
}

void InterfaceLoaderTest::theLibraryPathsAreKept()
{
    const QStringList before = QCoreApplication::libraryPaths();
    QVERIFY(!before.isEmpty());
    QVERIFY(loadInterface(m_file, owner()).view);
    QCOMPARE(QCoreApplication::libraryPaths(), before);
}

void InterfaceLoaderTest::twoViewsOfOneFileAreIndependent()
{
    const LoadedInterface first = loadInterface(m_file, owner());
    const QPointer<BindingDictionary> firstDictionary = m_dictionary;
    const QPointer<QSlider> firstSlider = m_slider;
    const LoadedInterface second = loadInterface(m_file, owner());
    QVERIFY(first.view && second.view);
    QVERIFY(firstDictionary != m_dictionary);
    firstDictionary->setValue(u"density"_s, 9);
    QCOMPARE(firstSlider->value(), 9);
    QCOMPARE(m_slider->value(), 3);
}

LoadedInterface InterfaceLoaderTest::loadControls(const QByteArray &controls)
{
    QFile file(m_file);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write("<ui version=\"4.0\"><widget class=\"QWidget\" name=\"panelView\">" + controls +
               "</widget></ui>");
    file.close();
    return loadInterface(m_file, m_owner);
}

void InterfaceLoaderTest::tableAndPagesShareTheirRows()
{
    QPointer<ArrayController> rows;
    m_owner.arrayController(u"rows"_s, rows);
    const QByteArray property =
        "<property name=\"arrayController\" stdset=\"0\"><string>rows</string></property>";
    const LoadedInterface loaded = loadControls(
        "<widget class=\"QTableView\" name=\"table\">" + property +
        "</widget><widget class=\"QStackedWidget\" name=\"pages\">" + property +
        "<widget class=\"QWidget\" name=\"a\"/><widget class=\"QWidget\" name=\"b\"/></widget>");
    QVERIFY(loaded.view);
    QVERIFY(rows);
    rows->addObject({{u"id"_s, u"a"_s}});
    rows->addObject({{u"id"_s, u"b"_s}});
    auto *table = loaded.view->findChild<QTableView *>();
    auto *pages = loaded.view->findChild<QStackedWidget *>();
    table->setCurrentIndex(rows->index(0));
    QCOMPARE(pages->currentWidget()->objectName(), u"a"_s);
    table->setCurrentIndex(rows->index(1));
    QCOMPARE(pages->currentWidget()->objectName(), u"b"_s);
    QCOMPARE(rows->parent(), loaded.view.get());
}

void InterfaceLoaderTest::aFieldHasItsDelegate()
{
    int told = 0;
    m_owner.textFieldDelegate(u"panel"_s, {[&told](const Notification &) { ++told; },
                                           [](QWidget *, const QString &) { return true; }});
    const LoadedInterface loaded = loadControls(
        "<widget class=\"QLineEdit\" name=\"field\"><property name=\"text\"><string>5</string>"
        "</property><property name=\"delegate\" stdset=\"0\"><string>panel</string></property>"
        "</widget>");
    QVERIFY(loaded.view);
    QCOMPARE(told, 0);
    QTest::keyClicks(loaded.view->findChild<QLineEdit *>(), u"7"_s);
    QCOMPARE(told, 1);
}

void InterfaceLoaderTest::companionsWorkTogether()
{
    m_owner.bindingDictionary(m_dictionary);
    const auto companion = [](const QByteArray &name) {
        return "<property name=\"companion\" stdset=\"0\"><string>" + name + "</string></property>";
    };
    const QByteArray bound =
        "<property name=\"bindValue\" stdset=\"0\"><string>density</string></property>";
    const LoadedInterface loaded = loadControls(
        "<widget class=\"DisclosureButton\" name=\"more\">" + companion("heading") +
        "</widget><widget class=\"QLabel\" name=\"heading\"/>"
        "<widget class=\"QLineEdit\" name=\"number\">" +
        companion("slider") + bound +
        "</widget><widget class=\"QSlider\" name=\"slider\"><property name=\"maximum\"><number>6"
        "</number></property>" +
        bound + "</widget><widget class=\"Stepper\" name=\"stepper\">" + companion("minutes") +
        "</widget><widget class=\"QLineEdit\" name=\"minutes\"/>");
    QVERIFY2(loaded.view, qPrintable(loaded.problems.join(u'\n')));
    const auto named = [&loaded](const char *name) {
        return loaded.view->findChild<QWidget *>(QString::fromLatin1(name));
    };
    QCOMPARE(qobject_cast<QLabel *>(named("heading"))->buddy(), named("more"));
    QVERIFY(user::show(loaded.view.get()));
    auto *number = qobject_cast<QLineEdit *>(named("number"));
    number->setText(u"99"_s);
    QTest::keyClick(number, Qt::Key_Return);
    QCOMPARE(number->text(), u"6"_s);
    QCOMPARE(qobject_cast<QSlider *>(named("slider"))->value(), 6);
    QCOMPARE(m_dictionary->value(u"density"_s), QVariant(qint64(6)));
    auto *stepper = qobject_cast<QAbstractSlider *>(named("stepper"));
    named("minutes")->setFocus();
    QTest::keyClick(named("minutes"), Qt::Key_Up);
    QCOMPARE(stepper->value(), 1);
}

void InterfaceLoaderTest::aViewIsLaidOutByFramesWhereItSaysSo()
{
    const QByteArray controls =
        "<widget class=\"QWidget\" name=\"part\"><property name=\"geometry\"><rect><x>10</x>"
        "<y>20</y><width>30</width><height>40</height></rect></property></widget>";
    QVERIFY(!loadControls(controls).view->layout());
    const LoadedInterface loaded = loadControls(
        "<property name=\"layoutByFrames\" stdset=\"0\"><bool>true</bool></property>" + controls);
    QVERIFY(loaded.view);
    const auto *layout = qobject_cast<const FrameLayout *>(loaded.view->layout());
    QVERIFY(layout);
    QCOMPARE(layout->frame(loaded.view->findChild<QWidget *>()), QRectF(10, 20, 30, 40));
}

void InterfaceLoaderTest::aClassOfTheOwnersIsMadeByTheOwner()
{
    QWidget *made = nullptr;
    m_owner.controlClass(u"Knob"_s, [&made](QWidget *parent) {
        made = new QSlider(parent);
        return made;
    });
    const LoadedInterface loaded = loadControls("<widget class=\"Knob\" name=\"knob\"/>");
    QVERIFY(loaded.view);
    QVERIFY(made);
    QCOMPARE(loaded.view->findChild<QWidget *>(u"knob"_s), made);
}

void InterfaceLoaderTest::theShippedInterfacesLoad_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("print setting") << u"QXLaserPrintSetting"_s;
    QTest::newRow("color setting") << u"QXLaserColorSetting"_s;
}

void InterfaceLoaderTest::theShippedInterfacesLoad()
{
    QFETCH(QString, name);
    const QString file = corvana::test::bundleFile(u"interface/%1.ui"_s).arg(name);
    // Every action that the file names; the panels check that they offer them.
    QFile source(file);
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(source.readAll());
    InterfaceConnections connections;
    QRegularExpression action(u"name=\"action\"[^>]*>\\s*<string[^>]*>([^<]+)<"_s);
    for (auto match = action.globalMatch(text); match.hasNext();)
        connections.action(match.next().captured(1), [](QWidget *) {});
    connections.controlClass(u"ExtraAccessoryView"_s,
                             [](QWidget *parent) { return new QWidget(parent); });
    connections.textFieldDelegate(u"panel"_s, {});
    QPointer<ArrayController> rows;
    connections.arrayController(u"arrayController"_s, rows);
    const LoadedInterface loaded = loadInterface(file, connections);
    QVERIFY2(loaded.view, qPrintable(loaded.problems.join(u'\n')));
}

QTEST_MAIN(InterfaceLoaderTest)
#include "interface_loader_test.moc"
