#pragma once

#include <stdexcept>

#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>

#include "tests/support/TestBundle.h"
#include "tests/support/TestPaths.h"

namespace corvana::test {

/// The text of the panel's interface file. Errors: throws std::runtime_error.
inline QByteArray shippedInterface()
{
    QFile interface(corvana::test::bundleFile(QStringLiteral("interface/QXLaserColorSetting.ui")));
    if (!interface.open(QIODevice::ReadOnly))
        throw std::runtime_error(interface.fileName().toStdString() + " cannot be read");
    return interface.readAll();
}

/// The options that the shipped bundle lists for the panel. Errors: throws std::runtime_error.
inline QJsonValue shippedOptions()
{
    QFile information(corvana::test::bundleFile(QStringLiteral("info.json")));
    if (!information.open(QIODevice::ReadOnly))
        throw std::runtime_error(information.fileName().toStdString() + " cannot be read");
    return QJsonDocument::fromJson(information.readAll())
        .object()
        .value(QStringLiteral("PMPPDKeysSupportedColor"));
}

/// A bundle of the test's own that has the panel's interface file, its options, and no reference
/// picture but those that the test puts into it.
inline TestBundle bundleWithoutPictures()
{
    TestBundle bundle(TestBundle::Information::Present,
                      {{QStringLiteral("PMPPDKeysSupportedColor"), shippedOptions()}});
    bundle.addInterface(QStringLiteral("QXLaserColorSetting"), shippedInterface());
    return bundle;
}

/// Where a reference picture of that name lies in a bundle.
inline QString pictureFile(const TestBundle &bundle, const QString &name)
{
    return bundle.bundle()->path() + QStringLiteral("/pictures/%1.tiff").arg(name);
}

/// Puts a reference picture into a bundle of the test's own. Errors: throws std::runtime_error.
inline void putPicture(const TestBundle &bundle, const QString &name, const QImage &picture)
{
    // What is read goes by the content, not by the name.
    if (!picture.save(pictureFile(bundle, name), "PNG"))
        throw std::runtime_error(name.toStdString() + " could not be written");
}

/// Puts any bytes into the place of a reference picture. Errors: throws std::runtime_error.
inline void putPicture(const TestBundle &bundle, const QString &name, const QByteArray &content)
{
    QFile file(pictureFile(bundle, name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error(name.toStdString() + " could not be written");
}

} // namespace corvana::test
