#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "renderer/OpenedDocument.h"
#include "renderer/PictureTurn.h"
#include "renderer/protocol/Messages.h"

namespace corvana::renderer {

/// A PDF that is looked at before it is printed: whether it opens without a password, whether it
/// may be printed, which of its pages can be read; and of which a copy is made that has no password
/// and no pages but those. Or a JPEG that a camera notes to be turned, of which a copy is made that
/// is seen as it lies, or one that CUPS does not know for a JPEG; any other picture is none of
/// these.
class CheckedDocument
{
public:
    /// `descriptor` can be closed afterwards. `answer` gets everything but its header.
    /// Errors: null, with the answer's status.
    static std::unique_ptr<CheckedDocument> check(int descriptor, const std::string &password,
                                                  Checked &answer);
    ~CheckedDocument();

    /// Writes the copy into the empty file `file`.
    Status copy(int file);

private:
    struct Content;

    explicit CheckedDocument(int descriptor);
    static std::unique_ptr<Content> opened(std::string_view bytes, const std::string &password);
    void open(const std::string &password, Checked &answer);
    void describe(const std::string &password, Checked &answer);
    bool describePicture(Checked &answer);
    Status copyPicture(int file) const;

    MappedFile m_file;       // outlives what is read of it
    std::string m_completed; // the same of a file whose end is missing, with an end
    std::unique_ptr<Content> m_content;
    PictureNotes m_picture;
};

} // namespace corvana::renderer
