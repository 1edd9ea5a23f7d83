#include <cmath>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>

#include "fuzz/support/MemoryFile.h"
#include "fuzz/support/Target.h"
#include "platform/foundation/ValueTransformer.h"
#include "platform/toolkit/BindingDictionary.h"
#include "platform/toolkit/InterfaceLoader.h"
#include "platform/toolkit/LabelColor.h"
#include "platform/toolkit/ViewFrame.h"

namespace corvana::fuzz {

using namespace Qt::StringLiterals;

namespace {

// What a panel writes to controls that are bound, some of it of another type than theirs.
void giveValues(BindingDictionary &values)
{
    const QList<QVariant> some{
        5, -1, u"7"_s, true, 0.5, {}, QStringList{u"a"_s, u"b"_s}, QString(300, u'9')};
    for (const char *key : {"v", "b", "p", "e", "h", "n"}) {
        for (const QVariant &value : some) {
            values.setValue(QString::fromLatin1(key), value);
            require(values.contains(QString::fromLatin1(key)), "a value that is written is there");
        }
    }
}

class Grey : public ValueTransformer
{
public:
    QVariant transformedValue(const QVariant &value) const override
    {
        if (value.isNull())
            return {};
        return QVariant::fromValue(value.toBool() ? ControlTextColor::Normal
                                                  : ControlTextColor::Disabled);
    }
    QVariant reverseTransformedValue(const QVariant &) const override { return {}; }
};

// What a user does to controls that are bound.
void useControls(QWidget &view, const BindingDictionary &values)
{
    for (QAbstractSlider *slider : view.findChildren<QAbstractSlider *>()) {
        slider->setValue(slider->maximum());
        slider->setRange(-5, 5);
    }
    for (QLineEdit *field : view.findChildren<QLineEdit *>()) {
        for (const char16_t *text : {u"12", u"-3.5", u"\uff0b\uff11", u"x", u""}) {
            field->setText(QString::fromUtf16(text));
            Q_EMIT field->editingFinished();
        }
    }
    for (QAbstractButton *button : view.findChildren<QAbstractButton *>())
        button->toggle();
    for (const QAbstractSlider *slider : view.findChildren<QAbstractSlider *>()) {
        const QString key = slider->property("bindValue").toString();
        require(key.isEmpty() || !values.contains(key) || slider->value() >= slider->minimum(),
                "a slider is within its range", key);
    }
}

// What a panel does to its view: it moves and resizes parts of it.
void moveParts(QWidget &view)
{
    for (QWidget *part : view.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        ViewFrame frame = viewFrame(part);
        frame.y -= 10;
        frame.height += 40;
        setViewFrame(part, frame);
    }
    ViewFrame whole = viewFrame(&view);
    whole.height += 100;
    setViewFrame(&view, whole);
    for (QWidget *part : view.findChildren<QWidget *>()) {
        const ViewFrame frame = viewFrame(part);
        require(std::isfinite(frame.x) && std::isfinite(frame.y) && std::isfinite(frame.width) &&
                    std::isfinite(frame.height),
                "a part of a view has a frame", part->objectName());
    }
}

/// Input: an interface file of a bundle. There is a view without problems, or no view and a problem
/// that names the file; the outlets are controls of the view, and texts are plain.
void run(const QByteArray &input)
{
    ValueTransformer::setValueTransformer(std::make_shared<Grey>(), u"grey"_s);
    const MemoryFile file(input);
    QPointer<QLineEdit> field;
    QPointer<ArrayController> rows;
    QPointer<BindingDictionary> values;
    InterfaceConnections owner;
    owner.outlet(u"field"_s, field);
    owner.arrayController(u"rows"_s, rows);
    owner.bindingDictionary(values);
    owner.localizer([](const QString &key) { return key; });
    owner.action(u"act"_s, [](QWidget *) {});
    owner.textFieldDelegate(u"digits"_s,
                            {[](const Notification &) {},
                             [](QWidget *, const QString &text) { return text.size() < 3; }});
    {
        const LoadedInterface loaded = loadInterface(file.path(), owner);
        require((loaded.view != nullptr) == loaded.problems.isEmpty(),
                "an interface is loaded or has a problem", loaded.problems.join(u'\n'));
        for (const QString &problem : loaded.problems)
            require(problem.startsWith(file.path()), "a problem names the file", problem);
        require(takeInterfaceProblems() == loaded.problems, "a problem is kept for the host");
        if (loaded.view && values)
            giveValues(*values);
        if (loaded.view) {
            loaded.view->show();
            loaded.view->resize(300, 50);
            QCoreApplication::sendPostedEvents();
            if (values)
                useControls(*loaded.view, *values);
            moveParts(*loaded.view);
            QCoreApplication::sendPostedEvents();
            require(!field || field == loaded.view.get() || loaded.view->isAncestorOf(field),
                    "an outlet is a control of the view");
            for (const QLabel *label : loaded.view->findChildren<QLabel *>())
                require(label->textFormat() == Qt::PlainText, "a label takes no markup",
                        label->objectName());
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents();
    require(!field && !rows, "nothing of a view outlives it");
}

const Target target("interface_file", run);

} // namespace

} // namespace corvana::fuzz
