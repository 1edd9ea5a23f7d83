#include "dialog/window/preview/DrawnPages.h"

#include "dialog/preview/PagePictures.h"

namespace corvana {

DrawnPages::DrawnPages(QObject *parent)
    : SidePictures(parent), m_pages(std::make_unique<PagePictures>())
{
    connect(m_pages.get(), &PagePictures::drawn, this, &SidePictures::drawn);
}

DrawnPages::~DrawnPages() = default;

void DrawnPages::prepare()
{
    m_pages->prepare();
}

void DrawnPages::replace(const QString &file, const QString &longer)
{
    if (m_files.removeAll(file) > 0) {
        m_pages->replace(file, longer);
        m_files += longer;
    }
}

void DrawnPages::keepOnly(const QStringList &files)
{
    for (const QString &file : std::as_const(m_files)) {
        if (!files.contains(file))
            m_pages->forget(file);
    }
    m_files.removeIf([&](const QString &file) { return !files.contains(file); });
}

void DrawnPages::want(const QList<Wish> &wishes)
{
    QList<PageToDraw> pages;
    for (const Wish &wish : wishes) {
        pages += PageToDraw{wish.file, wish.page, wish.size};
        if (!m_files.contains(wish.file))
            m_files += wish.file;
    }
    m_pages->want(pages);
}

QImage DrawnPages::picture(const Wish &wish) const
{
    return m_pages->picture({wish.file, wish.page, wish.size});
}

QImage DrawnPages::anyPicture(const QString &file, int page) const
{
    return m_pages->anyPicture(file, page);
}

QString DrawnPages::problem(const QString &file, int page) const
{
    return m_pages->problem(file, page);
}

} // namespace corvana
