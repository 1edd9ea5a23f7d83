#include "renderer/Service.h"

#include <algorithm>
#include <new>
#include <string>

namespace corvana::renderer {

bool Service::run()
{
    while (true) {
        const Received received = receiveMessage(m_socket);
        if (received.state == Received::State::Ended)
            return true;
        if (received.state == Received::State::Wrong)
            return false;
        const std::optional<Request> request =
            readRequest(received.bytes(), static_cast<bool>(received.descriptor));
        if (!request)
            return false;
        const bool answered = std::visit(
            [&](const auto &message) { return answer(message, received.descriptor); }, *request);
        if (!answered)
            return true; // nobody is there to hear it
    }
}

Status Service::open(const OpenDocument &request, const Descriptor &descriptor,
                     std::uint32_t &pages)
{
    if (m_documents.size() >= kMaxDocuments || m_documents.contains(request.document))
        return Status::Refused;
    Status status = Status::Damaged;
    const std::string password(request.password.data(), request.passwordBytes);
    try {
        if (auto document = OpenedDocument::open(descriptor.get(), password, status)) {
            pages = static_cast<std::uint32_t>(document->pages());
            m_documents.emplace(request.document, std::move(document));
        }
    } catch (const std::bad_alloc &) {
        return Status::TooLarge;
    }
    return status;
}

bool Service::answer(const OpenDocument &request, const Descriptor &descriptor)
{
    auto opened = made<Opened>(request.header.sequence);
    opened.status = open(request, descriptor, opened.pages);
    return sendMessage(m_socket, opened);
}

bool Service::answer(const ListSizes &request, const Descriptor &)
{
    auto sizes = made<Sizes>(request.header.sequence);
    const auto found = m_documents.find(request.document);
    if (found == m_documents.end() ||
        request.first >= static_cast<std::uint32_t>(found->second->pages())) {
        sizes.status = Status::Refused;
    } else {
        const auto pages = static_cast<std::uint32_t>(found->second->pages());
        sizes.count = std::min(pages - request.first, kSizesAtOnce);
        for (std::uint32_t i = 0; i < sizes.count; ++i)
            sizes.sizes[i] = found->second->size(static_cast<int>(request.first + i));
    }
    return sendMessage(m_socket, sizes);
}

bool Service::answer(const ListLabels &request, const Descriptor &)
{
    auto labels = made<Labels>(request.header.sequence);
    const auto found = m_documents.find(request.document);
    if (found == m_documents.end() ||
        request.first >= static_cast<std::uint32_t>(found->second->pages())) {
        labels.status = Status::Refused;
        return sendMessage(m_socket, labels);
    }
    try {
        const auto pages = static_cast<std::uint32_t>(found->second->pages());
        labels.count = std::min(pages - request.first, kLabelsAtOnce);
        for (std::uint32_t i = 0; i < labels.count; ++i)
            labels.labels[i] = found->second->label(static_cast<int>(request.first + i));
    } catch (const std::bad_alloc &) {
        labels = made<Labels>(request.header.sequence);
        labels.status = Status::TooLarge;
    }
    return sendMessage(m_socket, labels);
}

bool Service::answer(const DrawPage &request, const Descriptor &descriptor)
{
    auto drawn = made<Drawn>(request.header.sequence);
    const auto found = m_documents.find(request.document);
    try {
        drawn.status = found == m_documents.end() ? Status::Refused
                                                  : found->second->draw(request, descriptor.get());
    } catch (const std::bad_alloc &) {
        drawn.status = Status::TooLarge;
    }
    return sendMessage(m_socket, drawn);
}

bool Service::answer(const CloseDocument &request, const Descriptor &)
{
    auto closed = made<Closed>(request.header.sequence);
    closed.status = m_documents.erase(request.document) == 1 ? Status::Done : Status::Refused;
    return sendMessage(m_socket, closed);
}

bool Service::answer(const CheckDocument &request, const Descriptor &descriptor)
{
    auto checked = made<Checked>(request.header.sequence);
    m_checked.reset();
    m_checked = CheckedDocument::check(descriptor.get(),
                                       {request.password.data(), request.passwordBytes}, checked);
    return sendMessage(m_socket, checked);
}

bool Service::answer(const CopyDocument &request, const Descriptor &descriptor)
{
    auto copied = made<Copied>(request.header.sequence);
    copied.status = m_checked ? m_checked->copy(descriptor.get()) : Status::Refused;
    return sendMessage(m_socket, copied);
}

} // namespace corvana::renderer
