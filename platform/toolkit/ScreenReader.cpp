#include "platform/toolkit/ScreenReader.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVariant>

#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr char kRole[] = "corvana.accessibleRole";
constexpr char kDescription[] = "corvana.toolTipDescription";
constexpr char kCovered[] = "corvana.coveredDescription";
constexpr char kCoverings[] = "corvana.coveringsOfDescription";      // how many there are
constexpr QLatin1StringView kClearAction{"_q_qlineeditclearaction"}; // of QLineEdit
// Several things may be said at once; a screen reader asks for each text only afterwards.
constexpr qsizetype kKeptAnnouncements = 4;

/// Takes no room, paints nothing, and is there for those who listen.
class Announcement : public QWidget
{
public:
    explicit Announcement(QWidget *window) : QWidget(window)
    {
        setObjectName(u"announcement"_s);
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(0, 0, 0, 0);
        hide();
    }

    quint64 number = 0;
};

class AccessibleAnnouncement : public QAccessibleWidget
{
public:
    explicit AccessibleAnnouncement(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::Notification)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invisible = text(QAccessible::Name).isEmpty();
        state.readOnly = true;
        return state;
    }
};

/// Qt takes a button with two states for a check box. Whether something is disclosed is another
/// state.
class AccessibleDisclosure : public QAccessibleWidget
{
public:
    explicit AccessibleDisclosure(DisclosureButton *button)
        : QAccessibleWidget(button, QAccessible::Button), m_button(button)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = m_button->isChecked();
        state.collapsed = !m_button->isChecked();
        return state;
    }

    QStringList actionNames() const override
    {
        if (!m_button->isEnabled())
            return {};
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &action) override
    {
        if (action != pressAction())
            return QAccessibleWidget::doAction(action);
        if (m_button->isEnabled())
            m_button->click();
    }

private:
    DisclosureButton *m_button;
};

QAccessibleInterface *interfaceFor(const QString &, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    if (!widget)
        return nullptr;
    if (dynamic_cast<Announcement *>(widget))
        return new AccessibleAnnouncement(widget);
    if (auto *disclosure = qobject_cast<DisclosureButton *>(widget))
        return new AccessibleDisclosure(disclosure);
    const QVariant role = widget->property(kRole);
    if (!role.isValid())
        return nullptr;
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

void installInterfaces()
{
    static const bool installed = [] {
        QAccessible::installFactory(interfaceFor);
        return true;
    }();
    Q_UNUSED(installed)
}

// The one that was said the longest time ago is said anew.
Announcement *announcementIn(QWidget *window)
{
    QList<Announcement *> kept;
    const auto children = window->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (auto *one = dynamic_cast<Announcement *>(child))
            kept += one;
    }
    if (kept.size() < kKeptAnnouncements)
        return new Announcement(window);
    return *std::min_element(kept.cbegin(), kept.cend(), [](const auto *one, const auto *other) {
        return one->number < other->number;
    });
}

} // namespace

void announce(QWidget *near, const QString &text)
{
    static quint64 spoken = 0;
    if (text.isEmpty() || !near)
        return;
    installInterfaces();
    Announcement *announcement = announcementIn(near->window());
    announcement->number = ++spoken;
    announcement->setAccessibleName(text);
    QAccessibleEvent event(announcement, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

void setAccessibleRole(QWidget *widget, QAccessible::Role role)
{
    installInterfaces();
    widget->setProperty(kRole, static_cast<int>(role));
}

void setAccessibleLabel(QWidget *control, const QString &name)
{
    control->setAccessibleName(name);
    QLabel *label = plainLabel({}, control->parentWidget());
    label->hide();
    label->setBuddy(control);
    setLiteralText(label, name);
}

void nameListsOfPopUps(QObject *owner)
{
    QObject::connect(qApp, &QApplication::focusChanged, owner, [](QWidget *, QWidget *list) {
        // Whoever asks a pop-up button for its list has it made, also where another one opens.
        if (!qobject_cast<QAbstractItemView *>(list) || list->window()->windowType() != Qt::Popup)
            return;
        auto *popUp = qobject_cast<QComboBox *>(list->window()->parentWidget());
        if (!popUp || popUp->view() != list)
            return;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(popUp);
        const auto labels = accessible->relations(QAccessible::Label);
        const QString name = labels.isEmpty() ? popUp->accessibleName()
                                              : labels.constFirst().first->text(QAccessible::Name);
        if (list->accessibleName() != name)
            list->setAccessibleName(name);
    });
}

void setFieldButtonNames(QLineEdit *field, const QString &clear)
{
    const auto buttons = field->findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QToolButton *button : buttons) {
        const QAction *action = button->defaultAction();
        if (!action || action->objectName() == kClearAction) {
            button->setAccessibleName(clear);
            continue;
        }
        button->setAccessibleName(field->accessibleName());
        QObject::connect(button, &QToolButton::clicked, field,
                         [field] { field->setFocus(Qt::OtherFocusReason); });
    }
}

void setPlainToolTip(QWidget *widget, const QString &text)
{
    widget->setToolTip(plainToolTip(text));
    const QString former = widget->property(kDescription).toString();
    // What somebody else says of it is worth more. Under what is said for a while it is changed
    // where it is.
    const QVariant covered = widget->property(kCovered);
    if ((covered.isValid() ? covered.toString() : widget->accessibleDescription()) != former)
        return;
    widget->setProperty(kDescription, text);
    if (covered.isValid())
        widget->setProperty(kCovered, text);
    else
        widget->setAccessibleDescription(text);
}

void coverDescription(QWidget *widget)
{
    if (!widget->property(kCovered).isValid())
        widget->setProperty(kCovered, widget->accessibleDescription());
    widget->setProperty(kCoverings, widget->property(kCoverings).toInt() + 1);
}

QString coveredDescription(const QWidget *widget)
{
    return widget->property(kCovered).toString();
}

void uncoverDescription(QWidget *widget)
{
    const QVariant covered = widget->property(kCovered);
    if (!covered.isValid())
        return;
    const int left = widget->property(kCoverings).toInt() - 1;
    widget->setProperty(kCoverings, left > 0 ? QVariant(left) : QVariant());
    if (left > 0)
        return;
    widget->setProperty(kCovered, QVariant());
    widget->setAccessibleDescription(covered.toString());
}

} // namespace corvana
