#pragma once

#include <cstdint>
#include <vector>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

namespace corvana::renderer {

/// The pages of a PDF that can be read, found without a library that gives up at the first one that
/// cannot.
struct PdfPageTree
{
    std::vector<QPDFObjectHandle> pages; ///< each has what it inherits
    std::uint32_t lost = 0;              ///< as far as is known
    bool isLoose = false;                ///< nobody knows their order
};

/// `end`: where the file was cut off, so that what reaches it is not whole; 0 for a file that has
/// its end. In the order of the document. Where it has no order any more, the pages that lie in the
/// file come in the order of their numbers.
PdfPageTree readPageTree(QPDF &pdf, qpdf_offset_t end);

/// Gives the document these pages and no others.
void setPages(QPDF &pdf, const PdfPageTree &tree);

} // namespace corvana::renderer
