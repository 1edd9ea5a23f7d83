#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <variant>

#include "renderer/protocol/Messages.h"

namespace corvana::renderer {

using Request = std::variant<OpenDocument, ListSizes, ListLabels, DrawPage, CloseDocument,
                             CheckDocument, CopyDocument>;

/// Reads what the renderer was asked.
/// Errors: nothing for a message that is not exactly a request of this version with all its values
/// within their bounds, or that brings a descriptor along (or none) where it should not. Whoever
/// sends such a thing is not to be talked to any more.
std::optional<Request> readRequest(std::span<const std::byte> bytes, bool hasDescriptor);

/// Reads the answer to the request `sequence`. Errors: as above; an answer of another kind or to
/// another request is one. An answer brings no descriptor.
template <typename Answer>
std::optional<Answer> readAnswer(std::span<const std::byte> bytes, bool hasDescriptor,
                                 std::uint32_t sequence);

extern template std::optional<Ready> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
extern template std::optional<Opened> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
extern template std::optional<Sizes> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
extern template std::optional<Drawn> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
extern template std::optional<Closed> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
extern template std::optional<Checked> readAnswer(std::span<const std::byte>, bool, std::uint32_t);
extern template std::optional<Copied> readAnswer(std::span<const std::byte>, bool, std::uint32_t);

/// Whether a picture of that size may be asked for.
bool isPictureSize(std::uint32_t width, std::uint32_t height);

/// The bytes of a picture of that size.
inline std::size_t pictureBytes(std::uint32_t width, std::uint32_t height)
{
    return std::size_t{4} * width * height;
}

} // namespace corvana::renderer
