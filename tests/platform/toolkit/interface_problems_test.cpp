#include <QtTest>

#include <QCheckBox>
#include <QSlider>

#include "platform/toolkit/InterfaceLoader.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class InterfaceProblemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aFileThatCannotBeUsedLoadsNoView_data();
    void aFileThatCannotBeUsedLoadsNoView();
    void aMissingFileIsNamed();
    void anEntityBombIsRefusedQuickly();
    void anOutletOfAnotherClassIsRefused();
    void nothingIsConnectedWhenAFileIsRefused();
    void everyProblemIsToldAtOnce();
    void problemsAreLogged();
    void problemsAreHandedOutOnce();

private:
    LoadedInterface load(const QByteArray &text);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    InterfaceConnections m_owner;
    QPointer<ArrayController> m_rows;
};

namespace {

// `controls` begins on line 4 of the file.
QByteArray form(const QByteArray &controls)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<ui version=\"4.0\">\n"
           " <widget class=\"QWidget\" name=\"panelView\">\n" +
           controls + "\n </widget>\n</ui>\n";
}

QByteArray stringProperty(const QByteArray &name, const QByteArray &text)
{
    return "<property name=\"" + name + "\" stdset=\"0\">\n<string>" + text +
           "</string>\n</property>\n";
}

} // namespace

void InterfaceProblemsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(u"Test.ui"_s);
    m_owner = {};
    m_owner.action(u"requestNewOutputBin"_s, [](QWidget *) {});
    m_owner.textFieldDelegate(u"panel"_s, {});
    m_owner.arrayController(u"rows"_s, m_rows);
    takeInterfaceProblems();
}

LoadedInterface InterfaceProblemsTest::load(const QByteArray &text)
{
    QFile file(m_file);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        return {};
    file.close();
    return loadInterface(m_file, m_owner);
}

void InterfaceProblemsTest::aFileThatCannotBeUsedLoadsNoView_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("what");
    const auto row = [](const char *name, const QByteArray &text, const char *where,
                        const char *what) {
        QTest::newRow(name) << text << QString::fromLatin1(where) << QString::fromLatin1(what);
    };
    row("empty", "", "", "");
    row("not XML", "window { }", "line 1", "");
    row("tag that does not fit", form("<widget class=\"QLabel\" name=\"a\">\n</wodget>"), "line 5",
        "");
    row("cut in the middle", form("<widget class=\"QLabel\" name=\"a\"/>").left(120), "line 4", "");
    row("another kind of XML", "<html/>", "", "ui");
    row("no widget", "<ui version=\"4.0\"></ui>", "", "");
    row("unknown control class", form("\n\n<widget class=\"QKnob\" name=\"knob\"/>"),
        "Test.ui:6:", "\"QKnob\"");
    row("unknown class in single quotes", form("<widget class='QKnob' name='knob'/>"),
        "Test.ui: ", "\"QKnob\"");
    row("unknown class of the root",
        "<ui version=\"4.0\">\n<widget class=\"QKnob\" name=\"panelView\"/>\n</ui>",
        "Test.ui:2:", "\"QKnob\"");
    row("unknown class that says what it extends",
        "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"panelView\">\n"
        "<widget class=\"QKnob\" name=\"knob\"/></widget>\n<customwidgets><customwidget>"
        "<class>QKnob</class><extends>QWidget</extends></customwidget></customwidgets></ui>",
        "Test.ui:2:", "\"QKnob\"");
    row("unknown layout",
        form("<layout class=\"QSpiralLayout\" name=\"layout\">\n"
             "<item><widget class=\"QLabel\" name=\"a\"/></item></layout>"),
        "Test.ui:4:", "\"QSpiralLayout\"");
    row("unknown layout of a widget within",
        form("<widget class=\"QWidget\" name=\"inner\">\n"
             "<layout class=\"QSpiralLayout\" name=\"layout\">\n"
             "<item><widget class=\"QLabel\" name=\"a\"/></item></layout></widget>"),
        "Test.ui:5:", "\"QSpiralLayout\"");
    const auto grid = [](const QByteArray &place) {
        return form("<layout class=\"QGridLayout\" name=\"layout\">\n<item " + place +
                    "><widget class=\"QLabel\" name=\"a\"/></item></layout>");
    };
    row("a row that there cannot be", grid("row=\"-1\" column=\"0\""), "Test.ui:5:", "row=");
    row("a row far away", grid("row=\"2000000000\" column=\"0\""), "Test.ui:5:", "row=");
    row("no columns", grid("row=\"0\" column=\"0\" colspan=\"0\""), "Test.ui:5:", "colspan=");
    row("columns that are no number", grid("row=\"0\" column=\"x\""), "Test.ui:5:", "column=");
    row("controls within controls",
        form(QByteArray("<widget class=\"QWidget\" name=\"a\">").repeated(10'000) +
             QByteArray("</widget>").repeated(10'000)),
        "Test.ui:", "<widget");
    row("unknown action",
        form("<widget class=\"QCheckBox\" name=\"box\">\n" +
             stringProperty("action", "requestNothing") + "</widget>"),
        "Test.ui:6:", "\"requestNothing\"");
    row("unknown action, part of another",
        form("<widget class=\"QCheckBox\" name=\"first\">\n" +
             stringProperty("action", "requestNewOutputBin") +
             "</widget><widget class=\"QCheckBox\" name=\"box\">\n" +
             stringProperty("action", "request") + "</widget>"),
        "Test.ui:10:", "\"request\"");
    row("unknown action, named like a key",
        form("<widget class=\"QCheckBox\" name=\"first\">\n" +
             stringProperty("bindValue", "density") +
             "</widget><widget class=\"QCheckBox\" name=\"box\">\n" +
             stringProperty("action", "density") + "</widget>"),
        "Test.ui:10:", "\"density\"");
    row("action of a label",
        form("<widget class=\"QLabel\" name=\"label\">\n" +
             stringProperty("action", "requestNewOutputBin") + "</widget>"),
        "Test.ui:6:", "\"label\"");
    row("unknown delegate",
        form("<widget class=\"QLineEdit\" name=\"field\">\n" +
             stringProperty("delegate", "nobody") + "</widget>"),
        "Test.ui:6:", "\"nobody\"");
    row("delegate of a label",
        form("<widget class=\"QLabel\" name=\"label\">\n" + stringProperty("delegate", "panel") +
             "</widget>"),
        "Test.ui:6:", "\"label\"");
    row("unknown array controller",
        form("<widget class=\"QTableView\" name=\"table\">\n" +
             stringProperty("arrayController", "nothing") + "</widget>"),
        "Test.ui:6:", "\"nothing\"");
    row("array controller of a label",
        form("<widget class=\"QLabel\" name=\"label\">\n" +
             stringProperty("arrayController", "rows") + "</widget>"),
        "Test.ui:6:", "\"label\"");
    row("companion that does not exist",
        form("<widget class=\"Stepper\" name=\"stepper\">\n" +
             stringProperty("companion", "field") + "</widget>"),
        "Test.ui:6:", "\"field\"");
    row("companion of another kind",
        form("<widget class=\"Stepper\" name=\"stepper\">\n" +
             stringProperty("companion", "label") +
             "</widget><widget class=\"QLabel\" name=\"label\"/>"),
        "Test.ui:6:", "\"stepper\"");
    row("companion of a control that works alone",
        form("<widget class=\"QCheckBox\" name=\"box\">\n" + stringProperty("companion", "field") +
             "</widget><widget class=\"QLineEdit\" name=\"field\"/>"),
        "Test.ui:6:", "\"box\"");
    row("value of a pop-up",
        form("<widget class=\"QComboBox\" name=\"popUp\">\n" +
             stringProperty("bindValue", "density") + "</widget>"),
        "Test.ui:6:", "\"density\"");
}

void InterfaceProblemsTest::aFileThatCannotBeUsedLoadsNoView()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, where);
    QFETCH(QString, what);
    const LoadedInterface loaded = load(text);
    QVERIFY(!loaded.view);
    QCOMPARE(loaded.problems.count(), 1);
    const QString &problem = loaded.problems.first();
    QVERIFY2(problem.startsWith(m_file + u':'), qPrintable(problem));
    QVERIFY2(problem.contains(where), qPrintable(problem));
    QVERIFY2(problem.contains(what), qPrintable(problem));
    // The file's name alone explains nothing.
    QVERIFY2(problem.size() > m_file.size() + 5, qPrintable(problem));
}

void InterfaceProblemsTest::aMissingFileIsNamed()
{
    const QString missing = m_folder->filePath(u"Nowhere.ui"_s);
    const LoadedInterface loaded = loadInterface(missing, m_owner);
    QVERIFY(!loaded.view);
    QCOMPARE(loaded.problems.count(), 1);
    QVERIFY(loaded.problems.first().contains(missing));
}

void InterfaceProblemsTest::anEntityBombIsRefusedQuickly()
{
    QByteArray bomb = "<?xml version=\"1.0\"?>\n<!DOCTYPE ui [\n<!ENTITY a0 \"laugh\">\n";
    for (int i = 1; i < 10; ++i) {
        const QByteArray inner = "&a" + QByteArray::number(i - 1) + ";";
        bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + inner.repeated(10) + "\">\n";
    }
    bomb += "]>\n<ui version=\"4.0\"><widget class=\"QLabel\" name=\"a\"><property name=\"text\">"
            "<string>&a9;</string></property></widget></ui>";
    QElapsedTimer timer;
    timer.start();
    const LoadedInterface loaded = load(bomb);
    QVERIFY(!loaded.view);
    QCOMPARE(loaded.problems.count(), 1);
    // Expanded, it would be five gigabytes; a refusal takes milliseconds.
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void InterfaceProblemsTest::anOutletOfAnotherClassIsRefused()
{
    QPointer<QSlider> slider;
    m_owner.outlet(u"density"_s, slider);
    const LoadedInterface loaded = load(form("<widget class=\"QCheckBox\" name=\"density\"/>"));
    QVERIFY(!loaded.view);
    QVERIFY(!slider);
    const QString problem = loaded.problems.value(0);
    for (const char *part : {":4:", "\"density\"", "QCheckBox", "QSlider"})
        QVERIFY2(problem.contains(QLatin1StringView(part)), qPrintable(problem));
}

void InterfaceProblemsTest::nothingIsConnectedWhenAFileIsRefused()
{
    QPointer<QCheckBox> box;
    QPointer<BindingDictionary> dictionary;
    m_owner.outlet(u"box"_s, box);
    m_owner.bindingDictionary(dictionary);
    const LoadedInterface loaded = load(form("<widget class=\"QCheckBox\" name=\"box\">" +
                                             stringProperty("action", "nobody") + "</widget>"));
    QVERIFY(!loaded.view);
    QVERIFY(!box);
    QVERIFY(!dictionary);
}

void InterfaceProblemsTest::everyProblemIsToldAtOnce()
{
    const LoadedInterface loaded =
        load(form("<widget class=\"QCheckBox\" name=\"a\">" + stringProperty("action", "nobody") +
                  "</widget><widget class=\"QComboBox\" name=\"b\">" +
                  stringProperty("bindValue", "density") + "</widget>"));
    QCOMPARE(loaded.problems.count(), 2);
    const LoadedInterface classes = load(form("<widget class=\"QKnob\" name=\"a\"/>"
                                              "<widget class=\"QDial2\" name=\"b\"/>"));
    QCOMPARE(classes.problems.count(), 2);
}

void InterfaceProblemsTest::problemsAreLogged()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Test\\.ui:4:.*\"QKnob\""_s));
    load(form("<widget class=\"QKnob\" name=\"a\"/>"));
}

void InterfaceProblemsTest::problemsAreHandedOutOnce()
{
    const QStringList first = load(form("<widget class=\"QKnob\" name=\"a\"/>")).problems;
    QVERIFY(load(form("<widget class=\"QLabel\" name=\"a\"/>")).view);
    const QStringList second = load("<html/>").problems;
    QVERIFY(!first.isEmpty() && !second.isEmpty());
    QCOMPARE(takeInterfaceProblems(), first + second);
    QCOMPARE(takeInterfaceProblems(), QStringList());
}

QTEST_MAIN(InterfaceProblemsTest)
#include "interface_problems_test.moc"
