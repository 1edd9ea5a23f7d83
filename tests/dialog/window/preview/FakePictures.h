#pragma once

#include <QHash>
#include <QMap>

#include "dialog/window/preview/SheetView.h"
#include "dialog/window/preview/SidePictures.h"

namespace corvana::test {

/// Pictures that a test draws itself: nothing is there before draw() is called.
class FakePictures : public SidePictures
{
public:
    /// What is wanted now.
    QList<Wish> wishes;
    QHash<int, QString> problems; // of a page

    void want(const QList<Wish> &wanted) override { wishes = wanted; }
    QImage picture(const Wish &wish) const override
    {
        const QImage drawn = m_drawn.value(wish.page);
        return drawn.size() == wish.size ? drawn : QImage();
    }
    QImage anyPicture(const QString &, int page) const override { return m_drawn.value(page); }
    QString problem(const QString &, int page) const override { return problems.value(page); }

    /// Draws a page in one color.
    void draw(const QString &file, int page, QSize size, QColor color)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        m_drawn.insert(page, image);
        Q_EMIT drawn(file, page);
    }
    /// Draws everything that is wanted.
    void drawAll(QColor color)
    {
        const QList<Wish> now = wishes;
        for (const Wish &wish : now)
            draw(wish.file, wish.page, wish.size, color);
    }

private:
    QMap<int, QImage> m_drawn;
};

inline constexpr QSizeF kA4Points{595, 842};

/// So many pages of A4, each on a side of its own.
inline ShownSheets sheetsOfPages(int pages, bool twoSided = false, QSizeF paper = kA4Points)
{
    ShownSheets sheets;
    sheets.files = {QStringLiteral("/laid-out.pdf")};
    sheets.titles = {QStringLiteral("report.pdf")};
    sheets.plan.binding = twoSided ? SheetPlan::Binding::LongEdge : SheetPlan::Binding::None;
    for (int page = 0; page < pages; ++page) {
        PlannedSide side;
        side.laidOutPage = page;
        side.pages = {page + 1};
        side.paper = paper;
        if (twoSided && page % 2 == 1)
            sheets.plan.sheets.last().back = side;
        else
            sheets.plan.sheets += PlannedSheet{side};
    }
    return sheets;
}

} // namespace corvana::test
