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

// A page that says what is on it, where that lies in a part of the file that cannot be read, would
// come out blank.
bool hasLostItsContents(QPDFObjectHandle page)
{
    const Attributes keys = page.getDictAsMap();
    const auto contents = keys.find("/Contents");
    return contents != keys.end() && QPDFObjectHandle(contents->second).isNull();
}

class Reader
{
public:
    explicit Reader(QPDF &pdf) : m_pdf(pdf) {}

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
        if (m_pdf.anyWarnings() && hasLostItsContents(page)) {
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
    PdfPageTree m_tree;
    std::set<QPDFObjGen> m_branches;
};

} // namespace

PdfPageTree readPageTree(QPDF &pdf)
{
    return Reader(pdf).read();
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
