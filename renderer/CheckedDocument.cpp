#include "renderer/CheckedDocument.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>
#include <string_view>

#include <unistd.h>

#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFExc.hh>
#include <qpdf/QPDFWriter.hh>
#include <qpdf/QUtil.hh>

#include "renderer/PdfPageTree.h"

namespace corvana::renderer {

struct CheckedDocument::Content
{
    QPDF pdf;
    PdfPageTree tree;
};

namespace {

// Writes to a file that may not be written to in any other way than at a place.
class FileWriter : public Pipeline
{
public:
    explicit FileWriter(int file) : Pipeline("copy", nullptr), m_file(file) {}

    using Pipeline::write;
    void write(const unsigned char *data, size_t size) override
    {
        while (size > 0) {
            const std::size_t part = std::min(size, m_room.size() - m_used);
            std::memcpy(m_room.data() + m_used, data, part);
            m_used += part;
            data += part;
            size -= part;
            if (m_used == m_room.size())
                flush();
        }
    }
    void finish() override { flush(); }

private:
    void flush()
    {
        for (std::size_t at = 0; at < m_used;) {
            const ssize_t written = ::pwrite(m_file, m_room.data() + at, m_used - at, m_offset);
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                throw std::runtime_error("the copy cannot be written");
            at += static_cast<std::size_t>(written);
            m_offset += written;
        }
        m_used = 0;
    }

    int m_file;
    off_t m_offset = 0;
    std::array<unsigned char, 65536> m_room{};
    std::size_t m_used = 0;
};

void setDetail(const std::string &text, Checked &answer)
{
    // Only what is the same in every encoding.
    std::string plain;
    for (const char c : text.substr(0, kDetailRoom))
        plain += c >= ' ' && c <= '~' ? c : '?';
    answer.detailBytes = static_cast<std::uint32_t>(plain.size());
    answer.detail = {};
    std::copy(plain.begin(), plain.end(), answer.detail.begin());
}

// The first thing that was wrong is what the others follow from.
void noteDamage(const QPDFExc &problem, Checked &answer)
{
    if (answer.isDamaged == 0)
        setDetail(problem.getMessageDetail(), answer);
    answer.isDamaged = 1;
    if (answer.damagedAt == 0 && problem.getFilePosition() > 0)
        answer.damagedAt = static_cast<std::uint64_t>(problem.getFilePosition());
}

void noteWarnings(QPDF &pdf, Checked &answer)
{
    for (const QPDFExc &warning : pdf.getWarnings())
        noteDamage(warning, answer);
}

// Passwords of old documents are in an encoding that nobody says; those of new ones in UTF-8.
std::vector<std::string> spellingsOf(const std::string &password)
{
    std::vector<std::string> spellings{password};
    for (const std::string &other : QUtil::possible_repaired_encodings(password)) {
        if (other != password)
            spellings.push_back(other);
    }
    return spellings;
}

// The highest number of an object in a file that may be anything.
int highestObject(std::string_view file)
{
    constexpr std::string_view kMark = " 0 obj";
    constexpr int kMost = 8'000'000;
    int highest = 0;
    for (std::size_t at = file.find(kMark); at != std::string_view::npos;
         at = file.find(kMark, at + 1)) {
        int number = 0;
        int factor = 1;
        for (std::size_t i = at;
             i > 0 && file[i - 1] >= '0' && file[i - 1] <= '9' && factor < kMost; --i, factor *= 10)
            number += (file[i - 1] - '0') * factor;
        highest = std::max(highest, number);
    }
    return std::min(highest, kMost);
}

// A file whose end is missing has no list of its objects, and nobody knows which of them comes
// first; with an end of ours the objects are found where they lie.
std::string withAnEnd(std::string_view file)
{
    const int last = highestObject(file) + 1;
    const std::string root = std::to_string(last);
    // A copy has a size only where its original has.
    return std::string(file) + "\nendstream\nendobj\n" + root +
           " 0 obj\n<< /Type /Catalog >>\nendobj\ntrailer\n<< /Size " + std::to_string(last + 1) +
           " /Root " + root + " 0 R >>\n";
}

bool looksLikePdf(std::string_view file)
{
    constexpr std::size_t kBeginning = 1024;
    return file.substr(0, kBeginning).find("%PDF-") != std::string_view::npos;
}

} // namespace

CheckedDocument::CheckedDocument(int descriptor) : m_file(descriptor) {}

CheckedDocument::~CheckedDocument() = default;

std::unique_ptr<CheckedDocument> CheckedDocument::check(int descriptor, const std::string &password,
                                                        Checked &answer)
{
    std::unique_ptr<CheckedDocument> checked(new CheckedDocument(descriptor));
    answer.status = checked->m_file.isTooLarge() ? Status::TooLarge : Status::Damaged;
    if (!checked->m_file.data())
        return nullptr;
    try {
        if (!checked->describePicture(answer))
            checked->describe(password, answer);
    } catch (const QPDFExc &problem) {
        noteDamage(problem, answer);
        answer.status = Status::Damaged;
    } catch (const std::bad_alloc &) {
        answer.status = Status::TooLarge;
    } catch (const std::exception &problem) {
        setDetail(problem.what(), answer);
        answer.status = Status::Damaged;
    }
    if (answer.status != Status::Done) {
        answer.pages = answer.lostPages = 0;
        return nullptr;
    }
    return checked;
}

std::unique_ptr<CheckedDocument::Content> CheckedDocument::opened(std::string_view bytes,
                                                                  const std::string &password)
{
    auto content = std::make_unique<Content>();
    content->pdf.setSuppressWarnings(true);
    content->pdf.processMemoryFile("document", bytes.data(), bytes.size(), password.c_str());
    return content;
}

void CheckedDocument::open(const std::string &password, Checked &answer)
{
    const std::string_view file(m_file.data(), m_file.size());
    for (const std::string &spelling : spellingsOf(password)) {
        try {
            m_content = opened(file, spelling);
            return;
        } catch (const QPDFExc &problem) {
            if (problem.getErrorCode() == qpdf_e_password) {
                answer.status = Status::PasswordNeeded;
                continue;
            }
            if (!looksLikePdf(file))
                throw;
            noteDamage(problem, answer);
            break;
        }
    }
    if (answer.status == Status::PasswordNeeded)
        return;
    m_completed = withAnEnd(file);
    m_content = opened(m_completed, {});
}

void CheckedDocument::describe(const std::string &password, Checked &answer)
{
    open(password, answer);
    if (!m_content)
        return;
    Content &content = *m_content;
    answer.isEncrypted = content.pdf.isEncrypted() ? 1 : 0;
    answer.mayPrint = content.pdf.allowPrintLowRes() || content.pdf.allowPrintHighRes() ? 1 : 0;
    // Nobody has proved anything with an empty password.
    answer.isOwner = !password.empty() && content.pdf.ownerPasswordMatched() ? 1 : 0;
    content.tree = readPageTree(
        content.pdf, m_completed.empty() ? 0 : static_cast<qpdf_offset_t>(m_file.size()));
    noteWarnings(content.pdf, answer);
    answer.pages = static_cast<std::uint32_t>(content.tree.pages.size());
    answer.lostPages = content.tree.lost;
    if (content.tree.lost > 0 || content.tree.isLoose)
        answer.isDamaged = 1;
    // What lies behind its end is ours.
    answer.damagedAt = std::min<std::uint64_t>(answer.damagedAt, m_file.size());
    answer.status = answer.pages > 0 ? Status::Done : Status::Damaged;
}

// Answers whether it is one. One that is copied has a page, as every picture has; in any other
// there is nothing to be found.
bool CheckedDocument::describePicture(Checked &answer)
{
    const std::string_view file(m_file.data(), m_file.size());
    if (looksLikePdf(file) || !file.starts_with("\xff\xd8"))
        return false;
    m_picture = notesOfPicture(file);
    if (m_picture.needsCopy()) {
        answer.mayPrint = 1;
        answer.pages = 1;
        answer.status = Status::Done;
    }
    return true;
}

Status CheckedDocument::copyPicture(int file) const
{
    const std::vector<unsigned char> picture =
        turnedPicture({m_file.data(), m_file.size()}, m_picture);
    if (picture.empty())
        return Status::Damaged;
    FileWriter output(file);
    output.write(picture.data(), picture.size());
    output.finish();
    return Status::Done;
}

Status CheckedDocument::copy(int file)
{
    try {
        if (m_picture.needsCopy())
            return copyPicture(file);
        Content &content = *m_content;
        if (content.tree.lost > 0 || content.tree.isLoose)
            setPages(content.pdf, content.tree);
        FileWriter output(file);
        QPDFWriter writer(content.pdf);
        writer.setOutputPipeline(&output);
        writer.setPreserveEncryption(false);
        // What is on the pages stays as it is.
        writer.setDecodeLevel(qpdf_dl_none);
        writer.setCompressStreams(false);
        writer.write();
        output.finish();
        return Status::Done;
    } catch (const std::bad_alloc &) {
        return Status::TooLarge;
    } catch (const std::exception &) {
        return errno == EFBIG ? Status::TooLarge : Status::Refused;
    }
}

} // namespace corvana::renderer
