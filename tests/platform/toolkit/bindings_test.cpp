#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "platform/foundation/ValueTransformer.h"
#include "platform/toolkit/BindingDictionary.h"
#include "platform/toolkit/Bindings.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/LabelColor.h"
#include "platform/toolkit/ProgrammaticChange.h"

#include "UserActs.h"

using namespace corvana;
using namespace Qt::StringLiterals;

class BindingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCheckBoxShowsTheBoolean_data();
    void aCheckBoxShowsTheBoolean();
    void aCheckBoxWritesTheUsersChangesBack();
    void aProgrammaticChangeOfACheckBoxWritesNothingBack();
    void aFieldShowsTheText_data();
    void aFieldShowsTheText();
    void aFieldWritesBackWhenItIsLeftOrConfirmed();
    void aFieldThatIsBeingTypedInWritesNothingBack();
    void aFieldRewritesWhatTheDictionarySays();
    void aLabelShowsTheText();
    void aControlWithoutAValueCannotBeBound();
    void enabledFollowsTheDictionary();
    void visibleFollowsTheDictionary();
    void theTransformerChoosesTheTextColor();
    void aTransformerRegisteredLaterIsFound();
    void aTransformerThatGivesNoColorIsLogged();
};

namespace {

const QString key = u"key"_s;

class GreyWhenFalse : public ValueTransformer
{
public:
    QVariant transformedValue(const QVariant &value) const override
    {
        return QVariant::fromValue(value.toBool() ? ControlTextColor::Normal
                                                  : ControlTextColor::Disabled);
    }
    QVariant reverseTransformedValue(const QVariant &) const override { return {}; }
};

class NoColor : public GreyWhenFalse
{
public:
    QVariant transformedValue(const QVariant &) const override { return QStringList{u"red"_s}; }
};

} // namespace

void BindingsTest::aCheckBoxShowsTheBoolean_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("checked");
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("number") << QVariant(2) << true;
    QTest::newRow("text") << QVariant(u"True"_s) << true;
    QTest::newRow("text that is no word for true") << QVariant(u"ON"_s) << false;
    QTest::newRow("nothing") << QVariant() << false;
}

void BindingsTest::aCheckBoxShowsTheBoolean()
{
    QFETCH(QVariant, value);
    QFETCH(bool, checked);
    QCheckBox box;
    box.setChecked(!checked);
    BindingDictionary dictionary;
    QVERIFY(bindValue(&box, &dictionary, key));
    dictionary.setValue(key, value);
    QCOMPARE(box.isChecked(), checked);
    QCOMPARE(dictionary.value(key), value);
    QCOMPARE(dictionary.value(key).typeId(), value.typeId()); // not written back as a boolean
}

void BindingsTest::aCheckBoxWritesTheUsersChangesBack()
{
    QCheckBox box;
    BindingDictionary dictionary;
    QVERIFY(bindValue(&box, &dictionary, key));
    QVERIFY(user::show(&box));
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(5, box.height() / 2));
    QCOMPARE(dictionary.value(key), QVariant(true));
    QTest::keyClick(&box, Qt::Key_Space);
    QCOMPARE(dictionary.value(key), QVariant(false));
    QVERIFY(user::act(&box, QAccessibleActionInterface::toggleAction()));
    QTRY_COMPARE(dictionary.value(key), QVariant(true));
}

void BindingsTest::aProgrammaticChangeOfACheckBoxWritesNothingBack()
{
    QCheckBox box;
    BindingDictionary dictionary;
    QVERIFY(bindValue(&box, &dictionary, key));
    const ProgrammaticChange change;
    box.setChecked(true);
    QVERIFY(!dictionary.contains(key));
}

void BindingsTest::aFieldShowsTheText_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QVariant(u"濃度 0x"_s) << u"濃度 0x"_s;
    QTest::newRow("empty text") << QVariant(u""_s) << QString();
    QTest::newRow("number") << QVariant(qint64(-2)) << u"-2"_s;
    QTest::newRow("fraction") << QVariant(-2.9) << u"-2"_s;
    QTest::newRow("64 bits") << QVariant(std::numeric_limits<qint64>::min())
                             << u"-9223372036854775808"_s;
}

void BindingsTest::aFieldShowsTheText()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QLineEdit field;
    BindingDictionary dictionary;
    QVERIFY(bindValue(&field, &dictionary, key));
    dictionary.setValue(key, value);
    QCOMPARE(field.text(), text);
    QCOMPARE(dictionary.value(key), value);
}

void BindingsTest::aFieldWritesBackWhenItIsLeftOrConfirmed()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *field = new QLineEdit;
    auto *other = new QLineEdit;
    layout->addWidget(field);
    layout->addWidget(other);
    BindingDictionary dictionary;
    QVERIFY(bindValue(field, &dictionary, key));
    QVERIFY(user::show(&window));
    field->setFocus();
    QTest::keyClicks(field, u"12"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(dictionary.value(key), QVariant(u"12"_s));
    QTest::keyClicks(field, u"3"_s);
    QTest::keyClick(field, Qt::Key_Tab);
    QVERIFY(other->hasFocus());
    QCOMPARE(dictionary.value(key), QVariant(u"123"_s));
}

void BindingsTest::aFieldThatIsBeingTypedInWritesNothingBack()
{
    QLineEdit field;
    BindingDictionary dictionary;
    QVERIFY(bindValue(&field, &dictionary, key));
    QVERIFY(user::show(&field));
    QTest::keyClicks(&field, u"12"_s);
    QVERIFY(!dictionary.contains(key));
}

void BindingsTest::aFieldRewritesWhatTheDictionarySays()
{
    QLineEdit field;
    BindingDictionary dictionary;
    QVERIFY(bindValue(&field, &dictionary, key));
    dictionary.setValue(key, qint64(6));
    field.setText(u"999"_s);
    dictionary.setValue(key, qint64(6));
    QCOMPARE(field.text(), u"6"_s);
}

void BindingsTest::aLabelShowsTheText()
{
    QLabel label;
    BindingDictionary dictionary;
    QVERIFY(bindValue(&label, &dictionary, key));
    dictionary.setValue(key, u"用紙"_s);
    QCOMPARE(label.text(), u"用紙"_s);
    dictionary.setValue(key, qint64(5));
    QCOMPARE(label.text(), u"5"_s);
}

void BindingsTest::aControlWithoutAValueCannotBeBound()
{
    QWidget plain;
    QComboBox popUp; // which value would that be: the title, the index, the represented object?
    BindingDictionary dictionary;
    QVERIFY(!bindValue(&plain, &dictionary, key));
    QVERIFY(!bindValue(&popUp, &dictionary, key));
}

void BindingsTest::enabledFollowsTheDictionary()
{
    QWidget window;
    QCheckBox box(&window);
    BindingDictionary dictionary;
    bindEnabled(&box, &dictionary, key);
    QVERIFY(box.isEnabled()); // nothing was written yet
    dictionary.setValue(key, false);
    QVERIFY(!isControlEnabled(&box));
    box.setEnabled(true);
    dictionary.setValue(key, false);
    QVERIFY(!isControlEnabled(&box));
    dictionary.setValue(key, u"YES"_s);
    QVERIFY(isControlEnabled(&box));
}

void BindingsTest::visibleFollowsTheDictionary()
{
    QWidget window;
    QCheckBox box(&window);
    BindingDictionary dictionary;
    bindVisible(&box, &dictionary, key);
    QVERIFY(box.isVisibleTo(&window));
    dictionary.setValue(key, 0);
    QVERIFY(!box.isVisibleTo(&window));
    dictionary.setValue(key, 1);
    QVERIFY(box.isVisibleTo(&window));
}

void BindingsTest::theTransformerChoosesTheTextColor()
{
    ValueTransformer::setValueTransformer(std::make_shared<GreyWhenFalse>(), u"GreyWhenFalse"_s);
    QLabel label;
    BindingDictionary dictionary;
    bindTextColor(&label, &dictionary, key, u"GreyWhenFalse"_s);
    dictionary.setValue(key, false);
    QCOMPARE(textColor(&label), ControlTextColor::Disabled);
    dictionary.setValue(key, true);
    QCOMPARE(textColor(&label), ControlTextColor::Normal);
}

void BindingsTest::aTransformerRegisteredLaterIsFound()
{
    QLabel label;
    BindingDictionary dictionary;
    bindTextColor(&label, &dictionary, key, u"Later"_s);
    dictionary.setValue(key, false);
    QCOMPARE(textColor(&label), ControlTextColor::Normal);
    ValueTransformer::setValueTransformer(std::make_shared<GreyWhenFalse>(), u"Later"_s);
    dictionary.setValue(key, false);
    QCOMPARE(textColor(&label), ControlTextColor::Disabled);
}

void BindingsTest::aTransformerThatGivesNoColorIsLogged()
{
    ValueTransformer::setValueTransformer(std::make_shared<NoColor>(), u"NoColor"_s);
    QLabel label;
    BindingDictionary dictionary;
    bindTextColor(&label, &dictionary, key, u"NoColor"_s);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"NoColor"_s));
    dictionary.setValue(key, false);
    QCOMPARE(textColor(&label), ControlTextColor::Normal);
}

QTEST_MAIN(BindingsTest)
#include "bindings_test.moc"
