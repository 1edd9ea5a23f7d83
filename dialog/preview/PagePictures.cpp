#include "dialog/preview/PagePictures.h"

#include <cmath>

namespace corvana {

namespace {

constexpr qint64 kBytesPerPixel = 4;

qint64 pixelsOf(QSize size)
{
    return qint64{size.width()} * size.height();
}

QSize drawnSize(QSize size)
{
    const double pixels = static_cast<double>(pixelsOf(size));
    const double most = static_cast<double>(PagePictures::kMostPixels);
    QSizeF fitting = size;
    if (pixels > most)
        fitting *= std::sqrt(most / pixels);
    constexpr double mostSide = renderer::kMaxSide;
    if (fitting.width() > mostSide || fitting.height() > mostSide)
        fitting.scale(mostSide, mostSide, Qt::KeepAspectRatio);
    return QSize(int(fitting.width()), int(fitting.height())).expandedTo(QSize(1, 1));
}

/// What is really drawn for a wish; the same for the same wish.
PageToDraw drawnFor(const PageToDraw &page)
{
    return {page.file, page.page, drawnSize(page.size)};
}

} // namespace

PagePictures::PagePictures(QObject *parent) : PagePictures(RendererSettings::shipped(), parent) {}

PagePictures::PagePictures(const RendererSettings &settings, QObject *parent, qint64 room)
    : QObject(parent), m_settings(settings), m_room(room), m_cache(room)
{
}

PagePictures::~PagePictures() = default;

PageDrawer &PagePictures::drawer()
{
    if (!m_drawer) {
        m_drawer = std::make_unique<PageDrawer>(m_settings, [this] {
            QMetaObject::invokeMethod(this, &PagePictures::takeFinished, Qt::QueuedConnection);
        });
    }
    return *m_drawer;
}

void PagePictures::prepare()
{
    drawer().prepare();
}

bool PagePictures::hasTrouble(const PageToDraw &page) const
{
    const auto troubles = m_troubles.constFind(page.file);
    return troubles != m_troubles.constEnd() &&
           (troubles->contains(page.page) || troubles->contains(kWholeDocument));
}

void PagePictures::want(const QList<PageToDraw> &pages)
{
    QList<PageToDraw> wanted;
    QList<PageToDraw> missing;
    qint64 room = m_room;
    for (const PageToDraw &page : pages) {
        if (page.page < 0 || page.size.isEmpty() || hasTrouble(page))
            continue;
        const PageToDraw toDraw = drawnFor(page);
        if (wanted.contains(toDraw))
            continue;
        room -= pixelsOf(toDraw.size) * kBytesPerPixel;
        if (room < 0)
            break;
        wanted.append(toDraw);
        if (!m_cache.contains(toDraw))
            missing.append(toDraw);
    }
    m_cache.setWanted(wanted);
    if (m_drawer || !missing.isEmpty())
        drawer().draw(missing);
}

QImage PagePictures::picture(const PageToDraw &page) const
{
    if (page.page < 0 || page.size.isEmpty())
        return {};
    return m_cache.picture(drawnFor(page));
}

QImage PagePictures::anyPicture(const QString &file, int page) const
{
    return m_cache.anyPicture(file, page);
}

QString PagePictures::problem(const QString &file, int page) const
{
    const Troubles troubles = m_troubles.value(file);
    return pageTroubleText(troubles.value(page, troubles.value(kWholeDocument, PageTrouble::None)));
}

void PagePictures::describe(const QString &file)
{
    drawer().describe(file);
}

void PagePictures::forget(const QString &file)
{
    m_cache.forget(file);
    m_troubles.remove(file);
    if (m_drawer)
        m_drawer->forget(file);
}

void PagePictures::replace(const QString &file, const QString &longer)
{
    m_cache.rename(file, longer);
    forget(file);
}

void PagePictures::takeFinished()
{
    for (const DescribedPages &pages : m_drawer->takeDescribed())
        Q_EMIT described(pages);
    for (const FinishedPage &finished : m_drawer->takeFinished()) {
        const PageToDraw &page = finished.page;
        if (finished.trouble == PageTrouble::None)
            m_cache.insert(page, finished.picture);
        else
            m_troubles[page.file][finished.concernsDocument ? kWholeDocument : page.page] =
                finished.trouble;
        Q_EMIT drawn(page.file, page.page);
    }
}

} // namespace corvana
