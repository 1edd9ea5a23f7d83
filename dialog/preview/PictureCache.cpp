#include "dialog/preview/PictureCache.h"

namespace corvana {

void PictureCache::setWanted(const QList<PageToDraw> &pages)
{
    m_wanted = QSet<PageToDraw>(pages.begin(), pages.end());
    for (const PageToDraw &page : pages) {
        if (const auto found = m_pictures.find(page); found != m_pictures.end())
            found->used = ++m_uses;
    }
}

QImage PictureCache::picture(const PageToDraw &page)
{
    const auto found = m_pictures.find(page);
    if (found == m_pictures.end())
        return {};
    found->used = ++m_uses;
    return found->picture;
}

QImage PictureCache::anyPicture(const QString &file, int page)
{
    Entry *best = nullptr;
    for (auto entry = m_pictures.begin(); entry != m_pictures.end(); ++entry) {
        if (entry.key().page == page && entry.key().file == file &&
            (!best || entry->picture.sizeInBytes() > best->picture.sizeInBytes()))
            best = &*entry;
    }
    if (!best)
        return {};
    best->used = ++m_uses;
    return best->picture;
}

void PictureCache::insert(const PageToDraw &page, const QImage &picture)
{
    if (const auto old = m_pictures.find(page); old != m_pictures.end())
        remove(old);
    while (m_bytes + picture.sizeInBytes() > m_room && removeOldest()) {
    }
    if (m_bytes + picture.sizeInBytes() > m_room)
        return;
    m_bytes += picture.sizeInBytes();
    m_pictures.insert(page, {picture, ++m_uses});
}

void PictureCache::forget(const QString &file)
{
    for (auto entry = m_pictures.begin(); entry != m_pictures.end();)
        entry = entry.key().file == file ? remove(entry) : std::next(entry);
}

void PictureCache::rename(const QString &file, const QString &other)
{
    Pictures pictures;
    for (auto entry = m_pictures.cbegin(); entry != m_pictures.cend(); ++entry) {
        PageToDraw page = entry.key();
        if (page.file == file)
            page.file = other;
        pictures.insert(page, *entry);
    }
    m_pictures = pictures;
    m_bytes = 0; // one of both may have replaced the other
    for (const Entry &entry : std::as_const(m_pictures))
        m_bytes += entry.picture.sizeInBytes();
}

PictureCache::Pictures::iterator PictureCache::remove(Pictures::iterator entry)
{
    m_bytes -= entry->picture.sizeInBytes();
    return m_pictures.erase(entry);
}

bool PictureCache::removeOldest()
{
    auto oldest = m_pictures.end();
    for (auto entry = m_pictures.begin(); entry != m_pictures.end(); ++entry) {
        if (!m_wanted.contains(entry.key()) &&
            (oldest == m_pictures.end() || entry->used < oldest->used))
            oldest = entry;
    }
    if (oldest == m_pictures.end())
        return false;
    remove(oldest);
    return true;
}

} // namespace corvana
