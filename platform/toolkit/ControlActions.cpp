#include "platform/toolkit/ControlActions.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QLineEdit>

#include "platform/toolkit/FilterImageView.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/ReportedActs.h"

namespace corvana {

namespace {

// Lets a signal through when it is the user's doing.
template <typename Sender, typename Signal>
void onUserChange(Sender *control, Signal signal, const ControlAction &action)
{
    QObject::connect(control, signal, control, [control, action] {
        if (!ProgrammaticChange::isInProgress())
            action(control);
    });
}

// A pop-up reports a change of the index (assistive technology, type-ahead) and, when the user
// picked from the list, also "activated", which comes alone when the same item was picked again.
void onUserPick(QComboBox *popUp, const ControlAction &action)
{
    const auto reported = std::make_shared<ReportedActs>(popUp);
    QObject::connect(popUp, &QComboBox::currentIndexChanged, popUp, [popUp, action, reported](int) {
        if (!ProgrammaticChange::isInProgress())
            reported->report(popUp, [&] { action(popUp); });
    });
    QObject::connect(popUp, &QComboBox::activated, popUp, [popUp, action, reported](int) {
        if (!reported->endsReportedAct(popUp))
            action(popUp);
    });
}

// A slider moves its value into a new range by itself, which is nobody's act. Told of the range
// before that, we move it as the program's own doing.
void onUserMove(QAbstractSlider *slider, const ControlAction &action)
{
    QObject::connect(slider, &QAbstractSlider::rangeChanged, slider, [slider] {
        const ProgrammaticChange change;
        slider->setValue(slider->value());
    });
    onUserChange(slider, &QAbstractSlider::valueChanged, action);
}

class WheelGuard : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Wheel && !static_cast<QWidget *>(watched)->hasFocus()) {
            event->ignore(); // the page behind scrolls instead
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

bool connectControlAction(QWidget *control, const ControlAction &action)
{
    if (auto *matrix = qobject_cast<RadioMatrix *>(control)) {
        QObject::connect(matrix, &RadioMatrix::activated, matrix,
                         [matrix, action] { action(matrix); });
    } else if (auto *popUp = qobject_cast<QComboBox *>(control)) {
        onUserPick(popUp, action);
    } else if (auto *button = qobject_cast<QAbstractButton *>(control)) {
        if (button->isCheckable())
            onUserChange(button, &QAbstractButton::toggled, action);
        else
            onUserChange(button, &QAbstractButton::clicked, action);
    } else if (auto *slider = qobject_cast<QAbstractSlider *>(control)) {
        onUserMove(slider, action);
    } else if (auto *field = qobject_cast<QLineEdit *>(control)) {
        onUserChange(field, &QLineEdit::editingFinished, action);
    } else if (auto *view = qobject_cast<FilterImageView *>(control)) {
        QObject::connect(view, &FilterImageView::resized, view, [view, action] { action(view); });
    } else {
        return false;
    }
    return true;
}

int controlTag(const QObject *control)
{
    return control->property("tag").toInt();
}

bool isControlEnabled(const QWidget *control)
{
    const QWidget *parent = control->parentWidget();
    return parent ? control->isEnabledTo(parent) : control->isEnabled();
}

void ignoreWheelWithoutFocus(QWidget *control)
{
    const bool turnsWithTheWheel = qobject_cast<QComboBox *>(control) ||
                                   qobject_cast<QAbstractSlider *>(control) ||
                                   qobject_cast<QAbstractSpinBox *>(control);
    if (!turnsWithTheWheel)
        return;
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(new WheelGuard(control));
}

} // namespace corvana
