#pragma once

#include <memory>
#include <string>
#include <vector>

#include "renderer/protocol/Messages.h"

namespace poppler {
class document;
class page;
} // namespace poppler

namespace corvana::renderer {

/// A file that is looked at where it lies, read only. Its bytes are no memory of this program's
/// own, so that a document may be larger than the memory that there is for drawing.
class MappedFile
{
public:
    /// Errors: an empty one, for a file that is empty or cannot be mapped; isTooLarge() tells
    /// which.
    explicit MappedFile(int descriptor);
    ~MappedFile();
    MappedFile(const MappedFile &) = delete;
    MappedFile &operator=(const MappedFile &) = delete;

    const char *data() const { return m_data; }
    std::size_t size() const { return m_size; }
    bool isTooLarge() const { return m_isTooLarge; }

private:
    const char *m_data = nullptr;
    std::size_t m_size = 0;
    bool m_isTooLarge = false;
};

/// A document whose pages are drawn.
class OpenedDocument
{
public:
    /// `descriptor` can be closed afterwards. `status` is why there is none, else Done.
    static std::unique_ptr<OpenedDocument> open(int descriptor, const std::string &password,
                                                Status &status);
    ~OpenedDocument();

    int pages() const { return m_pages; }
    /// Both sides 0 for a page that cannot be read.
    PageSize size(int page) const;
    /// What the document calls a page; nothing where that is its number.
    PageLabel label(int page) const;
    /// Draws a page of exactly that many pixels into the file `picture`.
    Status draw(const DrawPage &request, int picture) const;

private:
    explicit OpenedDocument(int descriptor);

    MappedFile m_file; // outlives the document, which reads it
    std::unique_ptr<poppler::document> m_document;
    int m_pages = 0;
};

} // namespace corvana::renderer
