#include "dialog/window/preview/PreviewRows.h"

#include <chrono>

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QToolButton>

#include "dialog/window/chooser/ElidedLabel.h"
#include "dialog/window/preview/SheetView.h"
#include "dialog/window/preview/ZoomControl.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ScreenReader.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// Whoever tries several settings hears of the last one.
constexpr std::chrono::milliseconds kAnnounceAfter{1000};

QHBoxLayout *rowLayout(QWidget *row)
{
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
}

} // namespace

SheetsRow::SheetsRow(SheetView &view, QWidget *parent)
    : QWidget(parent), m_view(view), m_lookedAt(new ElidedLabel(this)),
      m_zoom(new ZoomControl(view, this))
{
    m_lookedAt->setObjectName(u"lookedAt"_s);
    QHBoxLayout *layout = rowLayout(this);
    layout->addWidget(m_lookedAt, 1);
    layout->addWidget(m_zoom);
    connect(&view, &SheetView::lookedAtChanged, this, &SheetsRow::refresh);
    refresh();
}

void SheetsRow::refresh()
{
    const int sheet = m_view.lookedAt();
    if (sheet < 0)
        m_lookedAt->setLine({});
    else if (!m_view.sheets().areAll)
        m_lookedAt->setLine(tr("Sheet %L1").arg(sheet + 1));
    else
        m_lookedAt->setLine(tr("Sheet %L1 of %L2")
                                .arg(QLocale().toString(sheet + 1),
                                     QLocale().toString(m_view.sheetLayout().sheets())));
}

ColorsRow::ColorsRow(QWidget *parent)
    : QWidget(parent), m_text(plainLabel({}, this)), m_compare(new QPushButton(this))
{
    m_text->setObjectName(u"colorsText"_s);
    m_text->setWordWrap(true);
    m_text->setMinimumWidth(1);
    m_compare->setObjectName(u"compare"_s);
    m_compare->setText(tr("Hold to Compare"));
    setPlainToolTip(m_compare,
                    tr("While it is held, the document is shown as it is, without adjustments."));
    m_compare->setAutoDefault(false);
    QHBoxLayout *layout = rowLayout(this);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_compare);
    connect(m_compare, &QPushButton::pressed, this, [this] { Q_EMIT original(true); });
    connect(m_compare, &QPushButton::released, this, [this] { Q_EMIT original(false); });
}

void ColorsRow::setText(const QString &text, bool canCompare)
{
    m_text->setText(text);
    m_compare->setVisible(canCompare);
}

bool ColorsRow::isEmpty() const
{
    return m_text->text().isEmpty() && m_compare->isHidden();
}

CountsRow::CountsRow(QWidget *parent)
    : QWidget(parent), m_counts(new ElidedLabel(this)), m_fold(new QToolButton(this))
{
    m_counts->setObjectName(u"counts"_s);
    m_counts->setAccessibleName(tr("Sheets"));
    QFont font = m_counts->font();
    font.setBold(true);
    m_counts->setFont(font);
    m_fold->setObjectName(u"foldPreview"_s);
    m_fold->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QHBoxLayout *layout = rowLayout(this);
    layout->addWidget(m_counts, 1);
    layout->addWidget(m_fold);
    m_announcing.setSingleShot(true);
    m_announcing.setInterval(kAnnounceAfter);
    connect(&m_announcing, &QTimer::timeout, this, &CountsRow::announce);
    connect(m_fold, &QToolButton::clicked, this, [this] { Q_EMIT foldPressed(!m_isFolded); });
    setFolded(false, true);
}

void CountsRow::setCounts(const QString &counts, bool areOld)
{
    m_counts->setEnabled(!areOld);
    if (counts == m_counts->text())
        return;
    m_counts->setLine(counts);
    m_counts->setAccessibleName(counts);
    m_announcing.start();
}

void CountsRow::announce()
{
    const QString counts = m_counts->text();
    if (counts.isEmpty() || !m_counts->isEnabled() || counts == m_announced)
        return;
    m_announced = counts;
    corvana::announce(this, counts);
}

void CountsRow::setFolded(bool folded, bool canUnfold)
{
    m_isFolded = folded;
    m_fold->setText(folded ? tr("Show Preview") : tr("Hide Preview"));
    const bool toTheLeft = folded == isRightToLeft();
    m_fold->setArrowType(toTheLeft ? Qt::LeftArrow : Qt::RightArrow);
    m_fold->setVisible(!folded || canUnfold);
}

} // namespace corvana
