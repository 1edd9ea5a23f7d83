#pragma once

#include <functional>
#include <map>
#include <memory>

#include <QString>
#include <QStringList>
#include <QWidget>

class QIODevice;

namespace corvana {

/// What makes controls of classes that are none of Qt's, by the names of the classes.
using FormClasses = std::map<QString, std::function<QWidget *(QWidget *parent)>>;

/// The widgets of an interface file, connected to nothing yet.
struct LoadedForm
{
    std::unique_ptr<QWidget> view; ///< null when the file cannot be read
    QStringList unknownClasses;
    QString error; ///< why there is no view
};

/// Makes the widgets of an interface file.
///
/// What makes them is a library of its own beside this one, which is loaded with the first call: it
/// brings Qt's form loader and Qt's OpenGL widgets along, which no window needs before the panels
/// come up. Errors: no view; also when the library is missing.
LoadedForm loadForm(QIODevice &file, const FormClasses &classes);

/// What the library offers, and under which name.
using LoadForm = void (*)(QIODevice &file, const FormClasses &classes, LoadedForm *form);
inline constexpr char kLoadForm[] = "corvanaLoadForm";

} // namespace corvana
