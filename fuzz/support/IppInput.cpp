#include "fuzz/support/IppInput.h"

#include <cstring>

#include "dialog/server/IppGate.h"

namespace corvana::fuzz {

namespace {

struct Source
{
    const QByteArray &bytes;
    qsizetype taken = 0;
    IppGate gate{};
};

ssize_t take(void *context, ipp_uchar_t *to, size_t bytes)
{
    auto *source = static_cast<Source *>(context);
    if (static_cast<size_t>(source->bytes.size() - source->taken) < bytes)
        return -1;
    std::memcpy(to, source->bytes.constData() + source->taken, bytes);
    source->taken += static_cast<qsizetype>(bytes);
    return source->gate.pass(to, bytes) ? static_cast<ssize_t>(bytes) : -1;
}

} // namespace

IppMessage ippMessageOf(const QByteArray &bytes)
{
    Source source{bytes};
    IppMessage message(ippNew());
    ipp_state_t state = IPP_STATE_IDLE;
    do
        state = ippReadIO(&source, take, 1, nullptr, message.get());
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR);
    return state == IPP_STATE_DATA ? std::move(message) : nullptr;
}

} // namespace corvana::fuzz
