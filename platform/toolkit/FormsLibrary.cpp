// The whole of the library that makes the widgets of interface files; see Forms.h.

#include <type_traits>

#include <QCoreApplication>
#include <QUiLoader>

#include "platform/toolkit/Forms.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// QUiLoader leaves out silently what it cannot create; this one remembers it.
class FormLoader : public QUiLoader
{
public:
    explicit FormLoader(const FormClasses &classes) : m_classes(classes) {}

    QStringList unknownClasses;

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        QWidget *widget = nullptr;
        if (const auto own = m_classes.find(className); own != m_classes.end())
            widget = own->second(parent);
        else if (availableWidgets().contains(className) || className == "Line"_L1)
            widget = QUiLoader::createWidget(className, parent, name);
        if (widget)
            widget->setObjectName(name);
        else
            unknownClasses += className;
        return widget;
    }

    QLayout *createLayout(const QString &className, QObject *parent, const QString &name) override
    {
        QLayout *layout = nullptr;
        if (availableLayouts().contains(className))
            layout = QUiLoader::createLayout(className, parent, name);
        if (layout)
            return layout;
        unknownClasses += className;
        // The file is refused later. QUiLoader fills the layout of a widget unseen, there or not.
        return QUiLoader::createLayout(u"QVBoxLayout"_s, parent, name);
    }

private:
    const FormClasses &m_classes;
};

// The constructor of QUiLoader opens every designer plug-in that it can find, which costs time and
// runs code of others; no interface file of ours needs one.
std::unique_ptr<FormLoader> makeLoader(const FormClasses &classes)
{
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    auto loader = std::make_unique<FormLoader>(classes);
    QCoreApplication::setLibraryPaths(paths);
    // Texts of an interface file come from the bundle's string table, not from the program's.
    loader->setTranslationEnabled(false);
    return loader;
}

} // namespace

} // namespace corvana

// The name is corvana::kLoadForm.
extern "C" Q_DECL_EXPORT void corvanaLoadForm(QIODevice &file, const corvana::FormClasses &classes,
                                              corvana::LoadedForm *form)
{
    const std::unique_ptr<corvana::FormLoader> loader = corvana::makeLoader(classes);
    form->view.reset(loader->load(&file));
    form->unknownClasses = loader->unknownClasses;
    form->error = loader->errorString();
}

static_assert(std::is_same_v<decltype(&corvanaLoadForm), corvana::LoadForm>);
