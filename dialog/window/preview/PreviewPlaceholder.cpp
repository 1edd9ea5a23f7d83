#include "dialog/window/preview/PreviewPlaceholder.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "dialog/window/preview/SidePainter.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

// A line of text is read well up to this width. Units: heights of the font.
constexpr int kWidestText = 26;
// How much larger what has to be read is than what may be.
constexpr double kReasonSize = 1.25;

QLabel *centered(QLabel *label, int em)
{
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMaximumWidth(kWidestText * em);
    label->setMinimumWidth(1);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    label->setSizePolicy(policy);
    return label;
}

} // namespace

PreviewPlaceholder::PreviewPlaceholder(QWidget *parent)
    : QFrame(parent), m_reason(plainLabel({}, this)), m_note(plainLabel({}, this)),
      m_choose(new QPushButton(tr("Choose &Documents…"), this))
{
    setObjectName(u"noPreview"_s);
    setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Sunken));
    const int em = fontMetrics().height();
    m_reason->setObjectName(u"noPreviewReason"_s);
    m_note->setObjectName(u"noPreviewNote"_s);
    m_choose->setObjectName(u"chooseDocuments"_s);
    m_choose->setAutoDefault(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * em, 2 * em, 2 * em, 2 * em);
    layout->setSpacing(em * 3 / 4);
    layout->addStretch(1);
    for (QLabel *label : {m_reason, m_note}) {
        auto *row = new QHBoxLayout;
        row->addWidget(centered(label, em));
        layout->addLayout(row);
    }
    layout->addWidget(m_choose, 0, Qt::AlignHCenter);
    layout->addStretch(1);
    connect(m_choose, &QPushButton::clicked, this, &PreviewPlaceholder::choosePressed);
    showReason({}, {});
}

// A font of another size takes a window that has nothing to say with it longer to come up.
void PreviewPlaceholder::setReason(const QString &reason)
{
    QFont wanted = font();
    if (!reason.isEmpty())
        wanted.setPointSizeF(wanted.pointSizeF() * kReasonSize);
    m_reason->setFont(wanted);
    m_reason->setText(reason);
}

void PreviewPlaceholder::showReason(const QString &reason, const QString &note)
{
    setReason(reason);
    m_note->setText(note);
    m_note->setVisible(!note.isEmpty());
    m_choose->hide();
    update();
}

void PreviewPlaceholder::showDropArea()
{
    setReason(tr("Drop documents here to print them."));
    m_note->setText(tr("PDF, PostScript, text, PNG and JPEG; several are one job."));
    m_note->show();
    m_choose->show();
    update();
}

void PreviewPlaceholder::setDropHovers(bool hovers)
{
    m_dropHovers = hovers;
    update();
}

void PreviewPlaceholder::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(contentsRect(), SidePainter::background(palette()));
    if (!m_choose->isHidden() || m_dropHovers) {
        // An outline says that something belongs here.
        const int em = fontMetrics().height();
        QColor color = palette().color(m_dropHovers ? QPalette::Highlight : QPalette::WindowText);
        if (!m_dropHovers)
            color.setAlpha(90);
        QPen pen(color, 2);
        pen.setDashPattern({4, 3});
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(pen);
        painter.drawRoundedRect(QRectF(rect()).adjusted(em, em, -em, -em), em / 2.0, em / 2.0);
    }
    painter.end();
    QFrame::paintEvent(event);
}

} // namespace corvana
