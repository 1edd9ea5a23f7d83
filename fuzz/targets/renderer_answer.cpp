#include <algorithm>
#include <cmath>
#include <cstring>

#include "fuzz/support/Target.h"
#include "renderer/protocol/MessageReading.h"

namespace corvana::fuzz {

namespace {

using namespace renderer;

constexpr std::uint32_t kSequence = 7;

void requireSense(const Ready &answer)
{
    require(answer.filtersCalls <= 1, "a lock is there or not");
}

void requireSense(const Opened &answer)
{
    require(answer.pages <= kMaxPages, "a document has bounds");
    require((answer.status == Status::Done) == (answer.pages > 0),
            "a document that opens has pages");
}

void requireSense(const Sizes &answer)
{
    require(answer.count <= kSizesAtOnce, "sizes lie within the message");
    for (const PageSize &size : answer.sizes)
        require(std::isfinite(size.width) && std::isfinite(size.height) && size.width >= 0 &&
                    size.height >= 0 && size.width <= kMaxPaper && size.height <= kMaxPaper,
                "a page has a size that can be drawn");
}

void requireSense(const Labels &answer)
{
    require(answer.count <= kLabelsAtOnce, "labels lie within the message");
    for (const PageLabel &label : answer.labels) {
        require(label.bytes <= kLabelRoom, "a label ends within its room");
        require(std::none_of(label.text.begin(), label.text.end(),
                             [](char c) { return c == 0x1b || c == '\n'; }),
                "a label has no control characters");
    }
}

void requireSense(const Checked &answer)
{
    require(answer.detailBytes <= kDetailRoom, "a detail ends within its room");
    require(answer.pages <= kMaxPages && answer.lostPages <= kMaxPages, "a document has bounds");
}

template <typename Answer> void requireSense(const Answer &answer)
{
    require(static_cast<std::uint32_t>(answer.status) <= 4,
            "a status is one of those that there are");
}

template <typename Answer> void read(const QByteArray &input)
{
    const auto bytes =
        std::as_bytes(std::span(input.constData(), static_cast<std::size_t>(input.size())));
    const std::uint32_t sequence = std::is_same_v<Answer, Ready> ? 0 : kSequence;
    require(!readAnswer<Answer>(bytes, true, sequence), "an answer brings no descriptor");
    const std::optional<Answer> answer = readAnswer<Answer>(bytes, false, sequence);
    if (!answer)
        return;
    require(input.size() == sizeof(Answer) &&
                std::memcmp(input.constData(), &*answer, sizeof(Answer)) == 0,
            "an answer that is read is exactly what came");
    require(!readAnswer<Answer>(bytes, false, sequence + 1), "an answer is to one request only");
    requireSense(*answer);
}

/// Input: what the renderer says, or whatever has taken its place. An answer that is taken is
/// exactly what came, is the answer to that one request, brings nothing along, and has all its
/// values within their bounds.
void run(const QByteArray &input)
{
    read<Ready>(input);
    read<Opened>(input);
    read<Sizes>(input);
    read<Labels>(input);
    read<Drawn>(input);
    read<Closed>(input);
    read<Checked>(input);
    read<Copied>(input);
}

const Target target("renderer_answer", run);

} // namespace

} // namespace corvana::fuzz
