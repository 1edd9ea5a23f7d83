#include <QLabel>

#include "fuzz/support/MemoryFile.h"
#include "fuzz/support/Target.h"
#include "platform/imaging/FilterImage.h"
#include "platform/toolkit/ImageView.h"

namespace corvana::fuzz {

namespace {

/// Input: a picture of a bundle. It is no picture, or one whose size and resolution make sense on
/// any screen.
void run(const QByteArray &input)
{
    const MemoryFile file(input);
    for (const double ratio : {1.0, 2.0}) {
        const QImage picture = readPicture(file.path(), ratio);
        if (picture.isNull())
            continue;
        require(picture.width() > 0 && picture.height() > 0, "a picture has a size");
        QLabel view;
        setImage(&view, picture);
        setImageName(&view, QStringLiteral("a"));
        require(hasImage(&view) && imageName(&view) == QStringLiteral("a"),
                "a picture that was read can be shown");
        require(picture.devicePixelRatio() >= 1 && picture.devicePixelRatio() <= 8,
                "a picture is for a screen", QString::number(picture.devicePixelRatio()));
    }
}

const Target target("picture", run);

} // namespace

} // namespace corvana::fuzz
