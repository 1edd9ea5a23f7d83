#include "dialog/preview/PictureMemory.h"

#include <cerrno>
#include <memory>

#include <fcntl.h>
#include <sys/mman.h>

#include "renderer/protocol/MessageReading.h"

namespace corvana {

namespace {

std::size_t bytesOf(QSize size)
{
    return renderer::pictureBytes(static_cast<std::uint32_t>(size.width()),
                                  static_cast<std::uint32_t>(size.height()));
}

// Memory of its own for each picture, which goes back to the system with it. What malloc() gets
// back of a dozen megabytes it keeps, and in holes between which the next picture does not fit.
QImage emptyPicture(QSize size)
{
    struct Memory
    {
        void *begin;
        std::size_t bytes;
    };
    auto memory = std::make_unique<Memory>(Memory{MAP_FAILED, bytesOf(size)});
    memory->begin =
        ::mmap(nullptr, memory->bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory->begin == MAP_FAILED)
        return {};
    const auto giveBack = [](void *info) {
        const std::unique_ptr<Memory> own(static_cast<Memory *>(info));
        ::munmap(own->begin, own->bytes);
    };
    // Rows of 32 bits a pixel have no gaps.
    return {static_cast<uchar *>(memory->begin),
            size.width(),
            size.height(),
            qsizetype{4} * size.width(),
            QImage::Format_RGB32,
            giveBack,
            memory.release()};
}

} // namespace

PictureMemory::PictureMemory(QSize size) : m_size(size)
{
    renderer::Descriptor memory(::memfd_create("corvana-page", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    // Sealed before anybody else has it, and against further seals: one against writing would stop
    // the renderer in the midst of a page.
    if (memory && ::ftruncate(memory.get(), static_cast<off_t>(bytesOf(size))) == 0 &&
        ::fcntl(memory.get(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) == 0)
        m_memory = std::move(memory);
}

QImage PictureMemory::copy() const
{
    QImage picture = emptyPicture(m_size);
    if (picture.isNull())
        return picture;
    uchar *bytes = picture.bits();
    const std::size_t size = bytesOf(m_size);
    for (std::size_t at = 0; at < size;) {
        const ssize_t read = ::pread(m_memory.get(), bytes + at, size - at, static_cast<off_t>(at));
        if (read < 0 && errno == EINTR)
            continue;
        if (read <= 0)
            return {};
        at += static_cast<std::size_t>(read);
    }
    auto *pixels = reinterpret_cast<QRgb *>(bytes);
    for (std::size_t i = 0; i < size / sizeof(QRgb); ++i)
        pixels[i] |= 0xff000000U;
    return picture;
}

} // namespace corvana
