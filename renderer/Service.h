#pragma once

#include <map>
#include <memory>

#include "renderer/CheckedDocument.h"
#include "renderer/OpenedDocument.h"
#include "renderer/protocol/MessageReading.h"
#include "renderer/protocol/MessageSocket.h"

namespace corvana::renderer {

/// Answers the requests of one client.
class Service
{
public:
    explicit Service(int socket) : m_socket(socket) {}

    /// Until the client has gone. False when the client says what no client would say.
    bool run();

private:
    bool answer(const OpenDocument &request, const Descriptor &descriptor);
    bool answer(const ListSizes &request, const Descriptor &);
    bool answer(const ListLabels &request, const Descriptor &);
    bool answer(const DrawPage &request, const Descriptor &descriptor);
    bool answer(const CloseDocument &request, const Descriptor &);
    bool answer(const CheckDocument &request, const Descriptor &descriptor);
    bool answer(const CopyDocument &request, const Descriptor &descriptor);
    Status open(const OpenDocument &request, const Descriptor &descriptor, std::uint32_t &pages);

    int m_socket;
    std::map<std::uint32_t, std::unique_ptr<OpenedDocument>> m_documents;
    std::unique_ptr<CheckedDocument> m_checked; // the last one
};

} // namespace corvana::renderer
