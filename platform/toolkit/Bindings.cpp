#include "platform/toolkit/Bindings.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <optional>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPointer>
#include <QRegularExpression>
#include <QWidget>

#include "platform/foundation/ValueTransformer.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/BindingDictionary.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/LabelColor.h"
#include "platform/toolkit/ProgrammaticChange.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcBindings, "corvana.toolkit.bindings", QtWarningMsg)

namespace {

// Runs `show` for every write under `key` while the control lives, and for a value that is there.
void onWrite(QWidget *control, BindingDictionary *dictionary, const QString &key,
             const std::function<void(const QVariant &)> &show)
{
    QObject::connect(dictionary, &BindingDictionary::valueWritten, control,
                     [key, show](const QString &written, const QVariant &value) {
                         if (written == key)
                             show(value);
                     });
    if (dictionary->contains(key))
        show(dictionary->value(key));
}

// What a bound number or text is written as in a text field.
QString shownText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString ? value.toString()
                                                : QString::number(integerValue(value));
}

int sliderValue(const QVariant &value)
{
    constexpr qint64 lowest = std::numeric_limits<int>::min();
    constexpr qint64 highest = std::numeric_limits<int>::max();
    return static_cast<int>(qBound(lowest, integerValue(value), highest));
}

// Writes `value` back when the change was the user's.
void writeBack(BindingDictionary *dictionary, const QString &key, const QVariant &value)
{
    if (!ProgrammaticChange::isInProgress())
        dictionary->setValue(key, value);
}

void bindSlider(QAbstractSlider *slider, BindingDictionary *dictionary, const QString &key)
{
    const auto show = [slider](const QVariant &value) {
        const ProgrammaticChange change;
        slider->setValue(sliderValue(value));
    };
    onWrite(slider, dictionary, key, show);
    // Told between the new range and the slider's own correction of its value, which then has
    // nothing left to correct and so writes nothing back.
    QObject::connect(slider, &QAbstractSlider::rangeChanged, dictionary, [=] {
        show(dictionary->contains(key) ? dictionary->value(key) : slider->value());
    });
    QObject::connect(slider, &QAbstractSlider::valueChanged, dictionary,
                     [=](int value) { writeBack(dictionary, key, qint64(value)); });
}

// The number that a user wrote, in the digits and with the signs of any script, without its
// fraction; nothing for a text that is none.
std::optional<qint64> writtenNumber(const QString &text)
{
    static const QRegularExpression form(
        u"^\\s*([-+\\x{2212}\\x{ff0d}\\x{ff0b}]?)(\\d+)(?:[.,\\x{ff0e}]\\d*)?\\s*$"_s,
        QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QString sign = match.captured(1);
    const bool negative = !sign.isEmpty() && sign != u'+' && sign != u'\uff0b';
    QString plain = negative ? u"-"_s : QString();
    const QString digits = match.captured(2);
    for (const QChar digit : digits)
        plain += QString::number(digit.digitValue());
    return integerValue(plain);
}

// A field is enabled and disabled with the slider that it belongs to. Both are watched: what
// happens to a slider inside a disabled group is told to nobody before the group is enabled again.
class EnabledFollower : public QObject
{
public:
    EnabledFollower(QLineEdit *field, QAbstractSlider *slider)
        : QObject(field), m_field(field), m_slider(slider)
    {
        field->installEventFilter(this);
        slider->installEventFilter(this);
        follow();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::EnabledChange)
            follow();
        return QObject::eventFilter(watched, event);
    }

private:
    void follow()
    {
        if (m_slider)
            m_field->setEnabled(isControlEnabled(m_slider));
    }

    QLineEdit *m_field;
    QPointer<QAbstractSlider> m_slider;
};

} // namespace

void bindNumber(QLineEdit *field, BindingDictionary *dictionary, const QString &key,
                QAbstractSlider *slider)
{
    new EnabledFollower(field, slider);
    const auto show = [field](const QVariant &value) {
        const ProgrammaticChange change;
        field->setText(QString::number(integerValue(value)));
    };
    onWrite(field, dictionary, key, show);
    QObject::connect(field, &QLineEdit::editingFinished, dictionary, [=] {
        const qint64 bound = integerValue(dictionary->value(key));
        const qint64 number = writtenNumber(field->text()).value_or(bound);
        if (number == bound)
            return show(bound);
        writeBack(dictionary, key,
                  std::clamp<qint64>(number, slider->minimum(), slider->maximum()));
    });
}

bool bindValue(QWidget *control, BindingDictionary *dictionary, const QString &key)
{
    if (auto *slider = qobject_cast<QAbstractSlider *>(control)) {
        bindSlider(slider, dictionary, key);
    } else if (auto *field = qobject_cast<QLineEdit *>(control)) {
        onWrite(field, dictionary, key, [field](const QVariant &value) {
            const ProgrammaticChange change;
            field->setText(shownText(value));
        });
        QObject::connect(field, &QLineEdit::editingFinished, dictionary,
                         [=] { writeBack(dictionary, key, field->text()); });
    } else if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        onWrite(button, dictionary, key, [button](const QVariant &value) {
            const ProgrammaticChange change;
            button->setChecked(booleanValue(value));
        });
        QObject::connect(button, &QAbstractButton::toggled, dictionary,
                         [=](bool on) { writeBack(dictionary, key, on); });
    } else if (auto *label = qobject_cast<QLabel *>(control)) {
        onWrite(label, dictionary, key,
                [label](const QVariant &value) { label->setText(shownText(value)); });
    } else {
        return false;
    }
    return true;
}

void bindEnabled(QWidget *control, BindingDictionary *dictionary, const QString &key)
{
    onWrite(control, dictionary, key,
            [control](const QVariant &value) { control->setEnabled(booleanValue(value)); });
}

void bindVisible(QWidget *control, BindingDictionary *dictionary, const QString &key)
{
    onWrite(control, dictionary, key,
            [control](const QVariant &value) { control->setVisible(booleanValue(value)); });
}

void bindTextColor(QWidget *label, BindingDictionary *dictionary, const QString &key,
                   const QString &transformer)
{
    onWrite(label, dictionary, key, [label, transformer](const QVariant &value) {
        const auto registered = ValueTransformer::valueTransformerForName(transformer);
        if (!registered)
            return; // logged by the registry
        const QVariant color = registered->transformedValue(value);
        if (color.canConvert<ControlTextColor>())
            setTextColor(label, color.value<ControlTextColor>());
        else
            qCWarning(lcBindings) << transformer << "gives no text colour for" << label;
    });
}

} // namespace corvana
