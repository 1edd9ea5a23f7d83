#include "renderer/protocol/MessageReading.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace corvana::renderer {

namespace {

/// The message with a right header, its values still to be looked at.
template <typename Message> std::optional<Message> framed(std::span<const std::byte> bytes)
{
    if (bytes.size() != sizeof(Message))
        return std::nullopt;
    Message message;
    std::memcpy(&message, bytes.data(), sizeof(Message));
    const Header &header = message.header;
    if (header.magic != kMagic || header.version != kVersion || header.kind != Message::kKind ||
        header.bytes != sizeof(Message))
        return std::nullopt;
    return message;
}

// A string that ends within its room can be given to anyone.
template <typename Message> bool hasGoodPassword(const Message &request)
{
    return request.passwordBytes < kPasswordRoom &&
           std::all_of(request.password.begin() + request.passwordBytes, request.password.end(),
                       [](char c) { return c == 0; });
}

bool isGood(const OpenDocument &request)
{
    return request.document != 0 && hasGoodPassword(request);
}

bool isGood(const CheckDocument &request)
{
    return hasGoodPassword(request);
}

bool isGood(const CopyDocument &)
{
    return true;
}

bool isGood(const ListSizes &request)
{
    return request.document != 0 && request.first < kMaxPages;
}

bool isGood(const ListLabels &request)
{
    return request.document != 0 && request.first < kMaxPages;
}

bool isGood(const DrawPage &request)
{
    return request.document != 0 && request.page < kMaxPages &&
           isPictureSize(request.width, request.height);
}

bool isGood(const CloseDocument &request)
{
    return request.document != 0;
}

template <typename Message>
std::optional<Request> readAs(std::span<const std::byte> bytes, bool hasDescriptor)
{
    constexpr bool bringsDescriptor =
        std::is_same_v<Message, OpenDocument> || std::is_same_v<Message, DrawPage> ||
        std::is_same_v<Message, CheckDocument> || std::is_same_v<Message, CopyDocument>;
    const std::optional<Message> message = framed<Message>(bytes);
    if (!message || message->header.sequence == 0 || hasDescriptor != bringsDescriptor ||
        !isGood(*message))
        return std::nullopt;
    return *message;
}

bool isStatus(Status status)
{
    switch (status) {
    case Status::Done:
    case Status::Damaged:
    case Status::TooLarge:
    case Status::PasswordNeeded:
    case Status::Refused:
        return true;
    }
    return false;
}

bool isSize(const PageSize &size)
{
    const auto isSide = [](float side) {
        return std::isfinite(side) && side > 0 && side <= kMaxPaper;
    };
    return size == PageSize{} || (isSide(size.width) && isSide(size.height));
}

bool isLabel(const PageLabel &label)
{
    if (label.bytes > kLabelRoom)
        return false;
    const auto *end = label.text.begin() + label.bytes;
    return std::none_of(label.text.begin(), end,
                        [](char c) {
                            const auto byte = static_cast<unsigned char>(c);
                            return byte < 0x20 || byte == 0x7f;
                        }) &&
           std::all_of(end, label.text.end(), [](char c) { return c == 0; });
}

bool isGood(const Ready &answer)
{
    return answer.filtersCalls <= 1 && answer.fencesFiles <= 1000;
}

bool isGood(const Opened &answer)
{
    const bool done = answer.status == Status::Done;
    return isStatus(answer.status) && done == (answer.pages > 0) && answer.pages <= kMaxPages;
}

bool isGood(const Sizes &answer)
{
    const bool done = answer.status == Status::Done;
    return isStatus(answer.status) && answer.count <= kSizesAtOnce && done == (answer.count > 0) &&
           std::all_of(answer.sizes.begin(), answer.sizes.end(), isSize);
}

bool isGood(const Labels &answer)
{
    const bool done = answer.status == Status::Done;
    return isStatus(answer.status) && answer.count <= kLabelsAtOnce && done == (answer.count > 0) &&
           std::all_of(answer.labels.begin(), answer.labels.end(), isLabel);
}

bool isGood(const Drawn &answer)
{
    return isStatus(answer.status);
}

bool isGood(const Closed &answer)
{
    return isStatus(answer.status);
}

bool isGood(const Checked &answer)
{
    const bool done = answer.status == Status::Done;
    const bool hasGoodDetail =
        answer.detailBytes <= kDetailRoom &&
        std::all_of(answer.detail.begin(), answer.detail.begin() + answer.detailBytes,
                    [](char c) { return c >= ' ' && c <= '~'; }) &&
        std::all_of(answer.detail.begin() + answer.detailBytes, answer.detail.end(),
                    [](char c) { return c == 0; });
    return isStatus(answer.status) && hasGoodDetail && done == (answer.pages > 0) &&
           answer.pages <= kMaxPages && answer.lostPages <= kMaxPages && answer.isEncrypted <= 1 &&
           answer.mayPrint <= 1 && answer.isOwner <= 1 && answer.isDamaged <= 1;
}

bool isGood(const Copied &answer)
{
    return isStatus(answer.status);
}

} // namespace

bool isPictureSize(std::uint32_t width, std::uint32_t height)
{
    return width > 0 && height > 0 && width <= kMaxSide && height <= kMaxSide &&
           std::uint64_t{width} * height <= kMaxPixels;
}

std::optional<Request> readRequest(std::span<const std::byte> bytes, bool hasDescriptor)
{
    Header header;
    if (bytes.size() < sizeof(header))
        return std::nullopt;
    std::memcpy(&header, bytes.data(), sizeof(header));
    switch (header.kind) {
    case Kind::OpenDocument:
        return readAs<OpenDocument>(bytes, hasDescriptor);
    case Kind::ListSizes:
        return readAs<ListSizes>(bytes, hasDescriptor);
    case Kind::ListLabels:
        return readAs<ListLabels>(bytes, hasDescriptor);
    case Kind::DrawPage:
        return readAs<DrawPage>(bytes, hasDescriptor);
    case Kind::CloseDocument:
        return readAs<CloseDocument>(bytes, hasDescriptor);
    case Kind::CheckDocument:
        return readAs<CheckDocument>(bytes, hasDescriptor);
    case Kind::CopyDocument:
        return readAs<CopyDocument>(bytes, hasDescriptor);
    default:
        return std::nullopt;
    }
}

template <typename Answer>
std::optional<Answer> readAnswer(std::span<const std::byte> bytes, bool hasDescriptor,
                                 std::uint32_t sequence)
{
    std::optional<Answer> answer = framed<Answer>(bytes);
    if (!answer || hasDescriptor || answer->header.sequence != sequence || !isGood(*answer))
        return std::nullopt;
    return answer;
}

template std::optional<Ready> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
template std::optional<Opened> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
template std::optional<Sizes> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
template std::optional<Labels> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
template std::optional<Drawn> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
template std::optional<Closed> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
template std::optional<Checked> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
template std::optional<Copied> readAnswer(std::span<const std::byte>, bool, std::uint32_t);

} // namespace corvana::renderer
