#include "dialog/window/thumbnails/PageDelegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QToolTip>

#include "dialog/preview/PagePictures.h"
#include "dialog/window/thumbnails/PageModel.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

namespace {

constexpr int kPaperHeights = 8; // of the font: the box that a page is fitted into
constexpr QSizeF kUsualPage{595, 842};
// Paper is white and what stands on it dark, whatever the desktop looks like.
constexpr QRgb kPaper = 0xffffffff;
constexpr QRgb kTextOnPaper = 0xff707070;
constexpr int kBoxFrame = 110; // of 255
constexpr int kFaded = 165; // of 255: how much of the background covers a page that is not chosen

int gapOf(const QFontMetrics &metrics)
{
    return metrics.height() / 2;
}

int paperBox(const QFontMetrics &metrics)
{
    return kPaperHeights * metrics.height();
}

QSize paperSize(const QModelIndex &index, const QFontMetrics &metrics)
{
    const QSizeF known = index.data(PageModel::SizeRole).toSizeF();
    const int box = paperBox(metrics);
    return (known.isEmpty() ? kUsualPage : known)
        .scaled(box, box, Qt::KeepAspectRatio)
        .toSize()
        .expandedTo({1, 1});
}

// In the middle, standing on the line below it.
QRect paperPlace(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QSize size = paperSize(index, option.fontMetrics);
    QRect place({0, 0}, size);
    place.moveCenter(option.rect.center());
    place.moveBottom(option.rect.top() + gapOf(option.fontMetrics) + paperBox(option.fontMetrics) -
                     1);
    return place;
}

QString lineText(const QModelIndex &index)
{
    const QString number = index.data(Qt::DisplayRole).toString();
    const QString label = index.data(PageModel::LabelRole).toString();
    return label.isEmpty() ? number
                           : PageDelegate::tr("%1 (%2)", "page, its label").arg(number, label);
}

int indicatorSize(const QStyleOptionViewItem &option)
{
    return option.widget->style()->pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget);
}

} // namespace

PageDelegate::PageDelegate(const PagePictures &pictures, QObject *parent)
    : QAbstractItemDelegate(parent), m_pictures(pictures)
{
}

void PageDelegate::setWidths(int heading, int page)
{
    m_headingWidth = heading;
    m_pageWidth = page;
}

int PageDelegate::leastWidth(const QFontMetrics &metrics)
{
    return paperBox(metrics) + 2 * gapOf(metrics);
}

PageToDraw PageDelegate::pictureOf(const QModelIndex &index, const QFontMetrics &metrics,
                                   double pixelRatio)
{
    const QSize size = (QSizeF(paperSize(index, metrics)) * pixelRatio).toSize();
    return {index.data(PageModel::FileRole).toString(), index.data(PageModel::PageRole).toInt() - 1,
            size};
}

QSize PageDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QFontMetrics &metrics = option.fontMetrics;
    const int line = qMax(metrics.height(), indicatorSize(option));
    if (index.data(PageModel::PageRole).toInt() > 0)
        return {m_pageWidth, paperBox(metrics) + line + 3 * gapOf(metrics)};
    const int reason =
        index.data(PageModel::ReasonRole).toString().isEmpty()
            ? 0
            : metrics
                  .boundingRect(QRect(0, 0, m_headingWidth - 2 * gapOf(metrics), 1),
                                Qt::TextWordWrap, index.data(PageModel::ReasonRole).toString())
                  .height();
    return {m_headingWidth, metrics.height() + 2 * gapOf(metrics) + reason};
}

void PageDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    painter->save();
    painter->setFont(option.font);
    if (index.data(PageModel::PageRole).toInt() == 0) {
        paintHeading(painter, option, index);
    } else {
        if (option.state.testFlag(QStyle::State_HasFocus)) {
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(QPen(option.palette.color(QPalette::Active, QPalette::Highlight), 2));
            painter->drawRoundedRect(QRectF(option.rect).adjusted(3, 3, -3, -3), 4, 4);
            painter->setRenderHint(QPainter::Antialiasing, false);
        }
        paintPaper(painter, option, index);
        paintLine(painter, option, index);
    }
    painter->restore();
}

void PageDelegate::paintHeading(QPainter *painter, const QStyleOptionViewItem &option,
                                const QModelIndex &index) const
{
    const int gap = gapOf(option.fontMetrics);
    const QRect place = option.rect.adjusted(gap, gap, -gap, 0);
    QFont bold = option.font;
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(option.palette.color(QPalette::Active, QPalette::Text));
    const QRect line(place.topLeft(), QSize(place.width(), option.fontMetrics.height()));
    const int flags =
        int(Qt::AlignVCenter) | int(QStyle::visualAlignment(option.direction, Qt::AlignLeft));
    painter->drawText(line, flags,
                      QFontMetrics(bold).elidedText(index.data(Qt::DisplayRole).toString(),
                                                    Qt::ElideMiddle, line.width()));
    painter->setFont(option.font);
    painter->setPen(option.palette.color(QPalette::Active, QPalette::PlaceholderText));
    painter->drawText(place.adjusted(0, line.height(), 0, 0),
                      int(Qt::TextWordWrap) |
                          int(QStyle::visualAlignment(option.direction, Qt::AlignLeft)),
                      index.data(PageModel::ReasonRole).toString());
}

void PageDelegate::paintPaper(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    const QRect paper = paperPlace(option, index);
    const PageToDraw page =
        pictureOf(index, option.fontMetrics, painter->device()->devicePixelRatioF());
    QImage picture;
    QString instead = index.data(Qt::DisplayRole).toString();
    if (!page.file.isEmpty()) {
        picture = m_pictures.picture(page);
        if (picture.isNull())
            picture = m_pictures.anyPicture(page.file, page.page);
        instead = m_pictures.problem(page.file, page.page);
    }
    painter->fillRect(paper, QColor::fromRgb(kPaper));
    if (!picture.isNull()) {
        painter->setRenderHint(QPainter::SmoothPixmapTransform, picture.size() != page.size);
        painter->drawImage(paper, picture);
    } else {
        painter->setPen(QColor::fromRgb(kTextOnPaper));
        painter->setClipRect(paper);
        const int inset = gapOf(option.fontMetrics) / 2;
        painter->drawText(paper.adjusted(inset, inset, -inset, -inset),
                          int(Qt::AlignCenter) | int(Qt::TextWordWrap), instead);
        painter->setClipping(false);
    }
    if (index.data(Qt::CheckStateRole).toInt() != Qt::Checked) {
        QColor veil = option.palette.color(QPalette::Active, QPalette::Base);
        veil.setAlpha(kFaded);
        painter->fillRect(paper, veil);
    }
    // Around the paper, which has the color of many a background.
    painter->setPen(option.palette.color(QPalette::Active, QPalette::Mid));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(paper.adjusted(-1, -1, 0, 0));
}

void PageDelegate::paintLine(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    const QFontMetrics &metrics = option.fontMetrics;
    const int gap = gapOf(metrics);
    const int box = indicatorSize(option);
    const int height = qMax(metrics.height(), box);
    const QRect line(option.rect.left() + gap, option.rect.top() + 2 * gap + paperBox(metrics),
                     option.rect.width() - 2 * gap, height);
    const int between = gap / 2;
    const QString text =
        metrics.elidedText(lineText(index), Qt::ElideRight, line.width() - box - between);
    const int used = box + between + metrics.horizontalAdvance(text);
    const QRect both = QStyle::alignedRect(option.direction, Qt::AlignCenter, {used, height}, line);

    QStyleOptionViewItem check(option);
    check.rect =
        QStyle::alignedRect(option.direction, Qt::AlignLeft | Qt::AlignVCenter, {box, box}, both);
    const bool isTicked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    check.state = QStyle::State_Enabled | QStyle::State_Active |
                  (isTicked ? QStyle::State_On : QStyle::State_Off);
    option.widget->style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &check, painter,
                                          option.widget);
    // Some styles draw a box that nobody sees on a dark ground.
    QColor frame = option.palette.color(QPalette::Active, QPalette::Text);
    frame.setAlpha(kBoxFrame);
    painter->setPen(frame);
    painter->drawRect(check.rect.adjusted(0, 0, -1, -1));
    painter->setPen(option.palette.color(QPalette::Active, QPalette::Text));
    const QRect place = QStyle::alignedRect(option.direction, Qt::AlignRight | Qt::AlignVCenter,
                                            {used - box - between, height}, both);
    painter->drawText(place, int(Qt::AlignVCenter) | int(Qt::AlignHCenter), text);
}

bool PageDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                             const QStyleOptionViewItem &, const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || index.data(PageModel::PageRole).toInt() == 0)
        return false;
    QString text = index.data(Qt::AccessibleTextRole).toString();
    const QString problem = m_pictures.problem(index.data(PageModel::FileRole).toString(),
                                               index.data(PageModel::PageRole).toInt() - 1);
    if (!problem.isEmpty())
        text += u'\n' + problem;
    QToolTip::showText(event->globalPos(), plainToolTip(text), view);
    return true;
}

} // namespace corvana
