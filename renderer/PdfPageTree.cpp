#include "renderer/PdfPageTree.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "renderer/protocol/Messages.h"

namespace corvana::renderer {

namespace {

// Deeper trees are made to be deep.
constexpr int kMostLevels = 64;
constexpr const char *kInherited[] = {"/Resources", "/MediaBox", "/CropBox", "/Rotate"};

using Attributes = std::map<std::string, QPDFObjectHandle>;

bool isOfType(QPDFObjectHandle object, const char *type)
{
    return object.isDictionary() && object.getKey("/Type").isNameAndEquals(type);
}

// Whether something that pages are drawn with is there, and not cut off.
bool isWhole(QPDFObjectHandle stream, qpdf_offset_t end)
{
    if (!stream.isStream())
        return false;
    QPDFObjectHandle length = stream.getDict().getKey("/Length");
    return end == 0 || !length.isInteger() || stream.getParsedOffset() + length.getIntValue() < end;
}

// A page that says what is on it, where that lies in a part of the file that cannot be read, would
// come out blank.
bool hasItsContents(QPDFObjectHandle page, qpdf_offset_t end)
{
    Attributes keys = page.getDictAsMap();
    const auto found = keys.find("/Contents");
    if (found == keys.end())
        return true;
    QPDFObjectHandle contents = found->second;
    if (!contents.isArray())
        return isWhole(contents, end);
    std::vector<QPDFObjectHandle> parts = contents.getArrayAsVector();
    return std::all_of(parts.begin(), parts.end(),
                       [end](const QPDFObjectHandle &part) { return isWhole(part, end); });
}

class Reader
{
public:
    Reader(QPDF &pdf, qpdf_offset_t end) : m_pdf(pdf), m_end(end) {}

    PdfPageTree read()
    {
        QPDFObjectHandle root = m_pdf.getRoot().getKey("/Pages");
        readNode(root, {}, 0);
        // What a branch has held that is not there any more, only the tree's own number can say.
        if (m_tree.lost > 0 && root.isDictionary())
            countPromised(root);
        if (m_tree.pages.empty())
            readLoosePages();
        return m_tree;
    }

private:
    void readNode(QPDFObjectHandle node, Attributes inherited, int level)
    {
        if (m_tree.pages.size() + m_tree.lost >= kMaxPages)
            return;
        if (!node.isDictionary() || level > kMostLevels) {
            ++m_tree.lost;
            return;
        }
        for (const char *name : kInherited) {
            if (QPDFObjectHandle value = node.getKey(name); !value.isNull())
                inherited[name] = value;
        }
        QPDFObjectHandle kids = node.getKey("/Kids");
        if (!kids.isArray())
            return readPage(node, inherited);
        // A branch of which it is itself a part.
        if (!m_branches.insert(node.getObjGen()).second)
            return;
        const int count = kids.getArrayNItems();
        for (int i = 0; i < count; ++i)
            readNode(kids.getArrayItem(i), inherited, level + 1);
    }

    void readPage(QPDFObjectHandle page, const Attributes &inherited)
    {
        if (isOfType(page, "/Pages"))
            return; // a branch without pages
        if (m_pdf.anyWarnings() && !hasItsContents(page, m_end)) {
            ++m_tree.lost;
            return;
        }
        for (const auto &[name, value] : inherited) {
            if (page.getKey(name).isNull())
                page.replaceKey(name, value);
        }
        m_tree.pages.push_back(page);
    }

    void countPromised(QPDFObjectHandle pages)
    {
        QPDFObjectHandle count = pages.getKey("/Count");
        if (!count.isInteger())
            return;
        const auto found = static_cast<long long>(m_tree.pages.size());
        const long long missing = std::min<long long>(count.getIntValue(), kMaxPages) - found;
        m_tree.lost = std::max(m_tree.lost, static_cast<std::uint32_t>(std::max(missing, 0LL)));
    }

    void readLoosePages()
    {
        m_tree.lost = 0;
        m_tree.isLoose = true;
        for (QPDFObjectHandle object : m_pdf.getAllObjects()) {
            if (isOfType(object, "/Page"))
                readPage(object, {});
        }
        for (QPDFObjectHandle object : m_pdf.getAllObjects()) {
            if (isOfType(object, "/Pages"))
                countPromised(object);
        }
    }

    QPDF &m_pdf;
    const qpdf_offset_t m_end;
    PdfPageTree m_tree;
    std::set<QPDFObjGen> m_branches;
};

} // namespace

PdfPageTree readPageTree(QPDF &pdf, qpdf_offset_t end)
{
    return Reader(pdf, end).read();
}

void setPages(QPDF &pdf, const PdfPageTree &tree)
{
    QPDFObjectHandle pages = pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
    pages.replaceKey("/Type", QPDFObjectHandle::newName("/Pages"));
    pages.replaceKey("/Kids", QPDFObjectHandle::newArray(tree.pages));
    pages.replaceKey("/Count",
                     QPDFObjectHandle::newInteger(static_cast<long long>(tree.pages.size())));
    for (QPDFObjectHandle page : tree.pages) {
        page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
        page.replaceKey("/Parent", pages);
    }
    pdf.getRoot().replaceKey("/Pages", pages);
}

} // namespace corvana::renderer
