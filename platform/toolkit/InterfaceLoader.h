#pragma once

#include <functional>
#include <map>
#include <memory>

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "platform/PlatformExport.h"
#include "platform/toolkit/ArrayController.h"
#include "platform/toolkit/BindingDictionary.h"
#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/TextFieldDelegate.h"

namespace corvana {

struct LoadedInterface;

/// What the owner of an interface file offers it to connect to: outlets by the object names of the
/// file's controls, actions by the names that the controls' `action` property gives, and the place
/// for the file's binding dictionary.
class CORVANA_PLATFORM_EXPORT InterfaceConnections
{
public:
    /// The control called `name` goes into `slot`. A file without that control leaves it null.
    template <typename Control> void outlet(const QString &name, QPointer<Control> &slot)
    {
        m_outlets[name] = {QString::fromLatin1(Control::staticMetaObject.className()),
                           [&slot](QWidget *widget) {
                               auto *control = qobject_cast<Control *>(widget);
                               if (control)
                                   slot = control;
                               return control != nullptr;
                           }};
    }
    /// The array controller called `name`, which tables and pages of the file share.
    void arrayController(const QString &name, QPointer<ArrayController> &slot)
    {
        m_arrayControllers[name] = &slot;
    }
    /// A class of the owner's own that the file may use.
    void controlClass(const QString &name, std::function<QWidget *(QWidget *parent)> create)
    {
        m_classes[name] = std::move(create);
    }
    /// Gives the texts of the file's `textKey` and `accessibleNameKey` properties.
    void localizer(std::function<QString(const QString &key)> localize)
    {
        m_localizer = std::move(localize);
    }
    void textFieldDelegate(const QString &name, TextFieldDelegate delegate)
    {
        m_delegates[name] = std::move(delegate);
    }
    void action(const QString &name, ControlAction action) { m_actions[name] = std::move(action); }
    void bindingDictionary(QPointer<BindingDictionary> &slot) { m_dictionary = &slot; }

private:
    friend class InterfaceConnector;
    friend LoadedInterface loadInterface(const QString &file, const InterfaceConnections &owner);
    struct Outlet
    {
        QString className;
        std::function<bool(QWidget *)> connect;
    };
    std::map<QString, Outlet> m_outlets;
    std::map<QString, ControlAction> m_actions;
    std::function<QString(const QString &)> m_localizer;
    std::map<QString, TextFieldDelegate> m_delegates;
    std::map<QString, std::function<QWidget *(QWidget *)>> m_classes;
    std::map<QString, QPointer<ArrayController> *> m_arrayControllers;
    QPointer<BindingDictionary> *m_dictionary = nullptr;
};

/// A loaded interface: the view, or what is wrong with the file.
struct LoadedInterface
{
    /// Ownership: the caller's. Null when there are problems. It owns its binding dictionary.
    std::unique_ptr<QWidget> view;
    /// Each names the file, the line where it is known, and what was expected.
    QStringList problems;
};

/// Loads an interface file, a Qt Designer `.ui` file, and connects it to its owner.
///
/// Beside the properties of the controls themselves these dynamic properties are understood, all
/// texts but `tag`: `action` (name of an action), `bindValue`, `bindEnabled`, `bindVisible`,
/// `bindTextColor` (key of the binding dictionary; the colour comes from the value transformer
/// named by `textColorTransformer`), `tag` (whole number), `textKey` and
/// `accessibleNameKey` (of the owner's texts), `delegate` (of a text field, by name),
/// `arrayController` (of a table and of a stack of pages, by name), `layoutByFrames` (true: the
/// children keep the frames of the file, see FrameLayout, also for their
/// `stretch`), and `companion`, the name of the control
/// that another one works with: the field of a Stepper, the heading of a DisclosureButton, the
/// slider that gives a field with a bound number its range. The classes `RadioMatrix`,
/// `FilterImageView`, `Stepper`
/// and `DisclosureButton` are available as custom widgets, with those that the owner adds. Bindings
/// are connected before actions, and nothing acts while a file is loaded.
///
/// Errors: a file that is malformed, or that names a class, an action or a binding which does not
/// exist, loads no view at all rather than one with a dead control.
CORVANA_PLATFORM_EXPORT LoadedInterface loadInterface(const QString &file,
                                                      const InterfaceConnections &owner);

/// The problems of all interface files that were refused since the last call. Panels swallow a view
/// that could not be loaded; with this their host can still tell its user why.
CORVANA_PLATFORM_EXPORT QStringList takeInterfaceProblems();

} // namespace corvana
