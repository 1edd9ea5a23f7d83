#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/RadioMatrix.h"

#include "UserActs.h"

using namespace corvana;

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
    void theShippedInterfacesLoad_data();
    void theShippedInterfacesLoad();

private:
    InterfaceConnections owner();

    QString m_file;
    std::unique_ptr<QTemporaryDir> m_folder;
    QPointer<QSlider> m_slider;
    QPointer<QCheckBox> m_box;
    QPointer<RadioMatrix> m_matrix;
    QPointer<QLabel> m_missing;
    QPointer<QWidget> m_anyWidget;
    QPointer<BindingDictionary> m_dictionary;
    QList<QWidget *> m_fired;
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
    m_file = m_folder->filePath(QStringLiteral("Test.ui"));
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(kInterface);
    m_fired.clear();
}

InterfaceConnections InterfaceLoaderTest::owner()
{
    InterfaceConnections connections;
    connections.outlet(QStringLiteral("slider"), m_slider);
    connections.outlet(QStringLiteral("box"), m_box);
    connections.outlet(QStringLiteral("matrix"), m_matrix);
    connections.outlet(QStringLiteral("missing"), m_missing);
    connections.outlet(QStringLiteral("popUp"), m_anyWidget);
    connections.action(QStringLiteral("act"), [this](QWidget *control) { m_fired += control; });
    connections.bindingDictionary(m_dictionary);
    return connections;
}

void InterfaceLoaderTest::theViewIsTheRootOfTheFile()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY2(loaded.view, qPrintable(loaded.problems.join(u'\n')));
    QVERIFY(loaded.problems.isEmpty());
    QCOMPARE(loaded.view->objectName(), QStringLiteral("panelView"));
    QVERIFY(!loaded.view->isVisible());
    QVERIFY(takeInterfaceProblems().isEmpty());
}

void InterfaceLoaderTest::outletsAreConnectedByName()
{
    const LoadedInterface loaded = loadInterface(m_file, owner());
    QVERIFY(loaded.view);
    QCOMPARE(m_slider.data(), loaded.view->findChild<QSlider *>(QStringLiteral("slider")));
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
    QVERIFY(!m_dictionary->contains(QStringLiteral("density")));
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
    m_dictionary->setValue(QStringLiteral("density"), 6);
    QCOMPARE(m_slider->value(), 6);
    m_dictionary->setValue(QStringLiteral("isColor"), false);
    QVERIFY(!isControlEnabled(m_matrix));
    m_dictionary->setValue(QStringLiteral("hasMatrix"), false);
    QVERIFY(m_matrix->isHidden());
    QVERIFY(m_fired.isEmpty());
    QVERIFY(user::setValue(m_slider, 9));
    QCOMPARE(m_dictionary->value(QStringLiteral("density")).toInt(), 9);
}

void InterfaceLoaderTest::aBindingIsWrittenBackBeforeTheActionRuns()
{
    InterfaceConnections connections = owner();
    int seen = -1;
    connections.action(QStringLiteral("act"), [&](QWidget *) {
        seen = m_dictionary->value(QStringLiteral("density")).toInt();
    });
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
    firstDictionary->setValue(QStringLiteral("density"), 9);
    QCOMPARE(firstSlider->value(), 9);
    QCOMPARE(m_slider->value(), 3);
}

void InterfaceLoaderTest::theShippedInterfacesLoad_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("print setting") << QStringLiteral("QXLaserPrintSetting");
    QTest::newRow("color setting") << QStringLiteral("QXLaserColorSetting");
}

void InterfaceLoaderTest::theShippedInterfacesLoad()
{
    QFETCH(QString, name);
    const QString file = QStringLiteral(CORVANA_TEST_BUNDLE_DIR "/interface/%1.ui").arg(name);
    // Every action that the file names; the panels check that they offer them.
    QFile source(file);
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(source.readAll());
    InterfaceConnections connections;
    QRegularExpression action(QStringLiteral("name=\"action\"[^>]*>\\s*<string[^>]*>([^<]+)<"));
    for (auto match = action.globalMatch(text); match.hasNext();)
        connections.action(match.next().captured(1), [](QWidget *) {});
    const LoadedInterface loaded = loadInterface(file, connections);
    QVERIFY2(loaded.view, qPrintable(loaded.problems.join(u'\n')));
}

QTEST_MAIN(InterfaceLoaderTest)
#include "interface_loader_test.moc"
