#include <string_view>

#include <turbojpeg.h>

#include "fuzz/support/Target.h"
#include "renderer/PictureTurn.h"

namespace corvana::fuzz {

namespace {

using namespace renderer;

constexpr int kMostPixels = 1 << 20; // the library's own time is nobody's find

struct Head
{
    int width = 0;
    int height = 0;
    bool isPicture = false;
};

Head headOf(std::string_view file)
{
    Head head;
    int sampling = 0;
    int colors = 0;
    const tjhandle library = tjInitDecompress();
    head.isPicture =
        tjDecompressHeader3(library, reinterpret_cast<const unsigned char *>(file.data()),
                            file.size(), &head.width, &head.height, &sampling, &colors) == 0;
    tjDestroy(library);
    return head;
}

/// Input: a JPEG with what a camera notes in it. It is left as it is, or a picture comes out that
/// is seen as it lies, with its sides swapped where it lay on its side.
void run(const QByteArray &input)
{
    const std::string_view file(input.constData(), static_cast<std::size_t>(input.size()));
    const PictureNotes notes = notesOfPicture(file);
    require(notes.orientation >= 1 && notes.orientation <= 8, "an orientation is one of eight");
    require(notes.segments.size() <= file.size() + 4, "nothing is kept that was not there");
    const Head before = headOf(file);
    if (before.isPicture && qint64(before.width) * before.height > kMostPixels)
        return;
    const std::vector<unsigned char> turned = turnedPicture(file, notes);
    if (turned.empty())
        return;
    const std::string_view picture(reinterpret_cast<const char *>(turned.data()), turned.size());
    require(notesOfPicture(picture).orientation == 1, "nothing turns it once more");
    const Head after = headOf(picture);
    const bool swaps = notes.orientation >= 5;
    require(after.isPicture, "what comes out is a picture");
    require(after.width == (swaps ? before.height : before.width) &&
                after.height == (swaps ? before.width : before.height),
            "it has the size of what was there");
}

const Target target("camera_picture", run);

} // namespace

} // namespace corvana::fuzz
