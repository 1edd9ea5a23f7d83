#pragma once

#include <memory>

#include "dialog/window/preview/SidePictures.h"

namespace corvana {

class PagePictures;

/// Pictures of sides that are drawn by a process of its own. It is started with the first wish.
class DrawnPages : public SidePictures
{
    Q_OBJECT

public:
    explicit DrawnPages(QObject *parent = nullptr);
    ~DrawnPages() override;

    /// Gets ready to draw, so that the first side does not wait for that.
    void prepare();
    /// Another file begins with the pages of one that is shown, and takes its place.
    void replace(const QString &file, const QString &longer);
    /// Forgets files of an older layout.
    void keepOnly(const QStringList &files);

    void want(const QList<Wish> &wishes) override;
    QImage picture(const Wish &wish) const override;
    QImage anyPicture(const QString &file, int page) const override;
    QString problem(const QString &file, int page) const override;

private:
    std::unique_ptr<PagePictures> m_pages;
    QStringList m_files; // that were wished for
};

} // namespace corvana
