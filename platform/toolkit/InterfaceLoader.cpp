#include "platform/toolkit/InterfaceLoader.h"

#include <utility>

#include <QBuffer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QStackedWidget>
#include <QTableView>
#include <QXmlStreamReader>

#include "platform/toolkit/Bindings.h"
#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/FilterImageView.h"
#include "platform/toolkit/Forms.h"
#include "platform/toolkit/FrameLayout.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ProgrammaticChange.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/Stepper.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcInterface, "corvana.toolkit.interface", QtWarningMsg)

namespace {

QStringList &untoldProblems()
{
    static QStringList problems;
    return problems;
}

// The classes of the owner's, and those that every interface file may use.
FormClasses allClasses(FormClasses classes)
{
    classes[u"RadioMatrix"_s] = [](QWidget *p) { return new RadioMatrix(p); };
    classes[u"FilterImageView"_s] = [](QWidget *p) { return new FilterImageView(p); };
    classes[u"Stepper"_s] = [](QWidget *p) { return new Stepper(p); };
    classes[u"DisclosureButton"_s] = [](QWidget *p) { return new DisclosureButton(p); };
    return classes;
}

// How far controls may stand within controls; QUiLoader goes down by recursion.
constexpr int kDeepest = 100;
// More rows and columns than any grid of ours has. QUiLoader takes a place as it is, and makes room
// for all that are in front of it.
constexpr int kMostCells = 1000;

// What is wrong with a file that would bring QUiLoader down: the fragment that is, or nothing.
QByteArray impossiblePart(const QByteArray &text)
{
    QXmlStreamReader xml(text);
    int depth = 0;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        depth += token == QXmlStreamReader::StartElement ? 1 : 0;
        depth -= token == QXmlStreamReader::EndElement ? 1 : 0;
        if (token != QXmlStreamReader::StartElement)
            continue;
        if (depth > kDeepest)
            return '<' + xml.name().toUtf8();
        for (const char *name : {"row", "column", "rowspan", "colspan"}) {
            if (xml.name() != "item"_L1 || !xml.attributes().hasAttribute(QLatin1StringView(name)))
                continue;
            const QString value = xml.attributes().value(QLatin1StringView(name)).toString();
            bool isNumber = false;
            const int number = value.toInt(&isNumber);
            const bool isSpan = QByteArrayView(name).endsWith("span");
            if (!isNumber || number < (isSpan ? 1 : 0) || number > kMostCells)
                return name + QByteArray("=\"") + value.toUtf8() + '"';
        }
    }
    return {};
}

// The line of the last of `fragments`, each sought behind the one before it; 0 when one is missing.
qsizetype lineOf(const QByteArray &text, const QByteArrayList &fragments)
{
    qsizetype at = 0;
    for (const QByteArray &fragment : fragments) {
        at = text.indexOf(fragment, at);
        if (at < 0)
            return 0;
    }
    return text.left(at).count('\n') + 1;
}

} // namespace

/// Connects one loaded file to its owner and collects what does not fit.
class InterfaceConnector
{
public:
    InterfaceConnector(const InterfaceConnections &owner, QString file, QByteArray text)
        : m_owner(owner), m_file(std::move(file)), m_text(std::move(text))
    {
    }

    QStringList problems;

    void connectAll(QWidget *view)
    {
        makeLabelsPlain(view); // what a panel shows in them comes from a PPD
        QList<QWidget *> widgets = view->findChildren<QWidget *>();
        widgets.prepend(view);
        auto *dictionary = new BindingDictionary(view);
        for (QWidget *widget : widgets) {
            connectOutlet(widget);
            localize(widget);
            connectBindings(widget, dictionary);
            connectDelegate(widget);
            connectArrayController(widget);
            ignoreWheelWithoutFocus(widget);
            connectCompanion(widget); // last: a companion may decide who takes the focus
        }
        for (QWidget *widget : widgets)
            connectAction(widget);
        for (QWidget *widget : widgets) {
            if (widget->property("layoutByFrames").toBool())
                new FrameLayout(widget);
        }
        if (problems.isEmpty() && m_owner.m_dictionary)
            *m_owner.m_dictionary = dictionary;
    }

    /// `where` leads to the place in the file, as for lineOf().
    void reject(const QByteArrayList &where, const QString &what)
    {
        const qsizetype line = lineOf(m_text, where);
        const QString place = line > 0 ? u"%1:%2"_s.arg(m_file, QString::number(line)) : m_file;
        problems += u"%1: %2"_s.arg(place, what);
    }

private:
    static QByteArray nameOf(const QWidget *widget)
    {
        return "name=\"" + widget->objectName().toUtf8() + "\"";
    }

    void connectOutlet(QWidget *widget)
    {
        const auto outlet = m_owner.m_outlets.find(widget->objectName());
        if (outlet == m_owner.m_outlets.end() || outlet->second.connect(widget))
            return;
        reject({nameOf(widget)},
               u"\"%1\" is a %2, a %3 was expected"_s.arg(
                   widget->objectName(), QString::fromLatin1(widget->metaObject()->className()),
                   outlet->second.className));
    }

    void localize(QWidget *widget)
    {
        const auto text = [&](const char *property) {
            const QString key = widget->property(property).toString();
            return key.isEmpty() || !m_owner.m_localizer ? key : m_owner.m_localizer(key);
        };
        if (const QString shown = text("textKey"); !shown.isEmpty())
            widget->setProperty("text", shown);
        if (const QString name = text("accessibleNameKey"); !name.isEmpty())
            widget->setAccessibleName(name);
    }

    void connectBindings(QWidget *widget, BindingDictionary *dictionary)
    {
        const auto key = [widget](const char *property) {
            return widget->property(property).toString();
        };
        if (const QString value = key("bindValue"); !value.isEmpty()) {
            if (!bindToValue(widget, dictionary, value)) {
                reject({nameOf(widget), "name=\"bindValue\"", value.toUtf8()},
                       u"\"%1\" has no value to bind to \"%2\""_s.arg(widget->objectName(), value));
            }
        }
        if (const QString enabled = key("bindEnabled"); !enabled.isEmpty())
            bindEnabled(widget, dictionary, enabled);
        if (const QString visible = key("bindVisible"); !visible.isEmpty())
            bindVisible(widget, dictionary, visible);
        if (const QString color = key("bindTextColor"); !color.isEmpty())
            bindTextColor(widget, dictionary, color, key("textColorTransformer"));
    }

    static bool bindToValue(QWidget *widget, BindingDictionary *dictionary, const QString &key)
    {
        auto *field = qobject_cast<QLineEdit *>(widget);
        auto *slider = qobject_cast<QAbstractSlider *>(companionOf(widget));
        if (field && slider) {
            bindNumber(field, dictionary, key, slider);
            return true;
        }
        return bindValue(widget, dictionary, key);
    }

    static QWidget *companionOf(const QWidget *widget)
    {
        const QString name = widget->property("companion").toString();
        return name.isEmpty() ? nullptr : widget->window()->findChild<QWidget *>(name);
    }

    void connectCompanion(QWidget *widget)
    {
        const QString name = widget->property("companion").toString();
        if (name.isEmpty())
            return;
        QWidget *companion = companionOf(widget);
        auto *stepper = qobject_cast<Stepper *>(widget);
        auto *disclosure = qobject_cast<DisclosureButton *>(widget);
        auto *field = qobject_cast<QLineEdit *>(companion);
        auto *heading = qobject_cast<QLabel *>(companion);
        if (stepper && field)
            stepper->setField(field);
        else if (disclosure && heading)
            disclosure->setHeading(heading);
        else if (!qobject_cast<QLineEdit *>(widget) || !qobject_cast<QAbstractSlider *>(companion))
            reject({nameOf(widget), "name=\"companion\"", name.toUtf8()},
                   u"\"%1\" cannot work with \"%2\""_s.arg(widget->objectName(), name));
    }

    void connectDelegate(QWidget *widget)
    {
        const QString name = widget->property("delegate").toString();
        if (name.isEmpty())
            return;
        auto *field = qobject_cast<QLineEdit *>(widget);
        const auto delegate = m_owner.m_delegates.find(name);
        if (field && delegate != m_owner.m_delegates.end())
            return setTextFieldDelegate(field, delegate->second);
        reject({nameOf(widget), "name=\"delegate\"", name.toUtf8()},
               u"\"%1\" cannot have the delegate \"%2\""_s.arg(widget->objectName(), name));
    }

    void connectArrayController(QWidget *widget)
    {
        const QString name = widget->property("arrayController").toString();
        if (name.isEmpty())
            return;
        const auto slot = m_owner.m_arrayControllers.find(name);
        auto *table = qobject_cast<QTableView *>(widget);
        auto *pages = qobject_cast<QStackedWidget *>(widget);
        if (slot == m_owner.m_arrayControllers.end() || (!table && !pages))
            return reject(
                {nameOf(widget), "name=\"arrayController\"", name.toUtf8()},
                u"\"%1\" cannot show the rows of \"%2\""_s.arg(widget->objectName(), name));
        if (!*slot->second)
            *slot->second = new ArrayController(widget->window());
        if (table)
            (*slot->second)->bindTable(table);
        else
            (*slot->second)->bindPages(pages);
    }

    void connectAction(QWidget *widget)
    {
        const QString name = widget->property("action").toString();
        if (name.isEmpty())
            return;
        const QByteArrayList where{nameOf(widget), "name=\"action\"", name.toUtf8()};
        const auto action = m_owner.m_actions.find(name);
        if (action == m_owner.m_actions.end()) {
            reject(where, u"there is no action \"%1\""_s.arg(name));
        } else if (!connectControlAction(widget, action->second)) {
            reject(where,
                   u"\"%1\" cannot have the action \"%2\""_s.arg(widget->objectName(), name));
        }
    }

    const InterfaceConnections &m_owner;
    QString m_file;
    QByteArray m_text;
};

static LoadedInterface refused(const QStringList &problems)
{
    for (const QString &problem : problems)
        qCWarning(lcInterface).noquote() << problem;
    untoldProblems() += problems;
    LoadedInterface loaded;
    loaded.problems = problems;
    return loaded;
}

QStringList takeInterfaceProblems()
{
    return std::exchange(untoldProblems(), {});
}

LoadedInterface loadInterface(const QString &file, const InterfaceConnections &owner)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return refused({u"%1: %2"_s.arg(file, source.errorString())});
    QByteArray text = source.readAll();
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);

    InterfaceConnector connector(owner, file, text);
    if (const QByteArray part = impossiblePart(text); !part.isEmpty()) {
        connector.reject({part}, u"\"%1\" is too much"_s.arg(QString::fromUtf8(part)));
        return refused(connector.problems);
    }
    const ProgrammaticChange change;
    LoadedForm form = loadForm(buffer, allClasses(owner.m_classes));
    for (const QString &className : std::as_const(form.unknownClasses)) {
        connector.reject({"class=\"" + className.toUtf8() + "\""},
                         u"there is no control class \"%1\""_s.arg(className));
    }
    if (!form.view && connector.problems.isEmpty())
        connector.problems += u"%1: %2"_s.arg(file, form.error);
    if (form.view && connector.problems.isEmpty())
        connector.connectAll(form.view.get());

    if (!connector.problems.isEmpty())
        return refused(connector.problems);
    LoadedInterface loaded;
    loaded.view = std::move(form.view);
    return loaded;
}

} // namespace corvana
