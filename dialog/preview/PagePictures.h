#pragma once

#include <memory>

#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QString>

#include "dialog/preview/PageDrawer.h"
#include "dialog/preview/PictureCache.h"

namespace corvana {

/// Pictures of pages of PDF files, drawn by a process of its own and kept in a bounded cache. To be
/// used by whatever shows pages: it says what it needs now and shows what there is.
///
/// Files are known by their names; who writes another document under the same name calls forget().
/// Thread: GUI thread, which is never kept: drawing and copying happen elsewhere.
class PagePictures : public QObject
{
    Q_OBJECT

public:
    /// All pictures together, of somebody who names no other bound. A preview takes 64 MiB at most,
    /// of which the window's own pixels and a picture that is on its way need a part. Units: bytes.
    static constexpr qint64 kRoom = 32LL << 20;
    /// One picture. A larger one is drawn with fewer pixels of the same proportions, so that it has
    /// room. Units: pixels
    static constexpr qint64 kMostPixels = 8LL << 20;

    explicit PagePictures(QObject *parent = nullptr);
    /// `room` is for all pictures together. Units: bytes.
    explicit PagePictures(const RendererSettings &settings, QObject *parent = nullptr,
                          qint64 room = kRoom);
    ~PagePictures() override;

    /// Gets ready to draw, so that the first page does not wait for that.
    void prepare();
    /// What is needed now, most urgent first; replaces what was wanted before (what is in work is
    /// finished or dropped). Nothing is drawn for nobody, and nothing that there is no room for
    /// beside what is more urgent.
    void want(const QList<PageToDraw> &pages);
    /// The picture (RGB32, opaque white paper), null while it is not drawn. Of other proportions
    /// than the page the picture is distorted. It has fewer pixels than asked for where those would
    /// be more than kMostPixels.
    QImage picture(const PageToDraw &page) const;
    /// Any picture of that page, of another size, to be shown scaled meanwhile; null without one.
    QImage anyPicture(const QString &file, int page) const;
    /// Why a page cannot be drawn, translated, for its place; empty while it can.
    QString problem(const QString &file, int page) const;
    /// Has sizes and labels of the pages of a file read; described() follows.
    void describe(const QString &file);
    /// Forgets a file (it was replaced by another layout).
    void forget(const QString &file);
    /// Forgets a file, and takes its pictures for those of another one, which begins with the same
    /// pages: whoever shows that has no blank paper in between.
    void replace(const QString &file, const QString &longer);

Q_SIGNALS:
    /// picture() or problem() has another answer.
    void drawn(const QString &file, int page);
    /// What describe() has asked for.
    void described(const corvana::DescribedPages &pages);

private:
    /// Page of a trouble that all pages of the document have.
    static constexpr int kWholeDocument = -1;
    using Troubles = QHash<int, PageTrouble>;

    PageDrawer &drawer();
    void takeFinished();
    bool hasTrouble(const PageToDraw &page) const;

    RendererSettings m_settings;
    qint64 m_room;
    mutable PictureCache m_cache;         // looking at a picture keeps it
    QHash<QString, Troubles> m_troubles;  // of a file
    std::unique_ptr<PageDrawer> m_drawer; // last; nothing runs before the first wish
};

} // namespace corvana
