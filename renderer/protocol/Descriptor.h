#pragma once

#include <utility>

#include <unistd.h>

namespace corvana::renderer {

/// A file descriptor with an owner, who closes it.
class Descriptor
{
public:
    Descriptor() = default;
    explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
    ~Descriptor() { reset(); }
    Descriptor(Descriptor &&other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        if (this != &other) {
            reset();
            m_descriptor = std::exchange(other.m_descriptor, -1);
        }
        return *this;
    }

    explicit operator bool() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }
    void reset()
    {
        if (m_descriptor >= 0)
            ::close(std::exchange(m_descriptor, -1));
    }

private:
    int m_descriptor = -1;
};

} // namespace corvana::renderer
