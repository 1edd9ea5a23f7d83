#pragma once

#include <QHash>
#include <QImage>
#include <QSet>

#include "dialog/preview/PageDrawer.h"

namespace corvana {

/// Pictures of pages, as many as fit. What has not been used for longest goes first; what is wanted
/// now stays.
class PictureCache
{
public:
    /// `room` in bytes.
    explicit PictureCache(qint64 room) : m_room(room) {}

    /// What is not to go from now on.
    void setWanted(const QList<PageToDraw> &pages);
    bool isWanted(const PageToDraw &page) const { return m_wanted.contains(page); }
    bool contains(const PageToDraw &page) const { return m_pictures.contains(page); }
    /// Null without one.
    QImage picture(const PageToDraw &page);
    /// The largest one of that page, of whatever size; null without one.
    QImage anyPicture(const QString &file, int page);
    void insert(const PageToDraw &page, const QImage &picture);
    void forget(const QString &file);
    /// The pictures of one file are those of another one from now on.
    void rename(const QString &file, const QString &other);
    qint64 bytes() const { return m_bytes; }

private:
    struct Entry
    {
        QImage picture;
        quint64 used = 0;
    };
    using Pictures = QHash<PageToDraw, Entry>;

    Pictures::iterator remove(Pictures::iterator entry);
    /// False when all that is left is wanted.
    bool removeOldest();

    qint64 m_room;
    qint64 m_bytes = 0;
    quint64 m_uses = 0;
    Pictures m_pictures;
    QSet<PageToDraw> m_wanted;
};

} // namespace corvana
