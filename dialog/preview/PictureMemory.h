#pragma once

#include <QImage>
#include <QSize>

#include "renderer/protocol/Descriptor.h"

namespace corvana {

/// Memory that another program writes a picture into. It is made and sized here, and nobody can
/// change that size any more: reading it can never fail halfway, whatever the other program does.
class PictureMemory
{
public:
    /// Errors: isValid() is false.
    explicit PictureMemory(QSize size);

    bool isValid() const { return static_cast<bool>(m_memory); }
    int descriptor() const { return m_memory.get(); }
    /// What stands in it now, as a picture that nobody else can write to: opaque, of the format
    /// RGB32. Errors: null when there is not enough memory.
    QImage copy() const;

private:
    QSize m_size;
    renderer::Descriptor m_memory;
};

} // namespace corvana
