#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace corvana::renderer {

/// What a camera notes in a JPEG file: how the picture lies there, and what is kept of the file
/// when it is turned. The rest is left out: previews, further pictures, and whatever would have the
/// picture turned once more.
struct PictureNotes
{
    /// As EXIF numbers it: 2 is mirrored, 3 upside down, 6 and 8 lie on their side.
    /// Range: 1 (as it is seen) to 8.
    int orientation = 1;
    /// Its resolution and its colour space, as they are to stand in the turned file: segments with
    /// their marks and lengths.
    std::string segments{};
    bool hasAdobeMark = false; ///< which says how four colours are to be read
    /// Whether it begins with what no program that goes by the first four bytes takes for a JPEG:
    /// programs that make pictures small for the web leave all but the picture out. CUPS' filters
    /// print no such file.
    bool isBare = false;

    bool needsCopy() const { return orientation != 1 || isBare; }
};

/// Whether width and height change places when such a picture is turned.
inline bool swapsSides(int orientation)
{
    return orientation >= 5;
}

/// Range of `file`: any bytes. Errors: an orientation of 1 where these are no JPEG, or nothing in
/// it that could be relied on says otherwise.
PictureNotes notesOfPicture(std::string_view file);

/// A JPEG that is seen as it lies, and known as one by its beginning. A turned copy is the very
/// same picture where its edges allow that; else it is compressed anew, as well as JPEG can. One
/// that is only bare gets an empty segment before everything else, which says nothing. Errors:
/// empty, where it is damaged, or takes more memory than there is for it.
std::vector<unsigned char> turnedPicture(std::string_view file, const PictureNotes &notes);

} // namespace corvana::renderer
