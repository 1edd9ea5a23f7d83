#include "dialog/window/preview/PreviewPane.h"

#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include "dialog/window/preview/DocumentArea.h"
#include "dialog/window/preview/DropHint.h"
#include "dialog/window/preview/PreviewPlaceholder.h"
#include "dialog/window/preview/PreviewRows.h"
#include "dialog/window/preview/ZoomControl.h"

namespace corvana {

using namespace Qt::StringLiterals;

PreviewPane::PreviewPane(QWidget *parent)
    : QWidget(parent), m_documents(new DocumentArea(this)), m_stack(new QStackedWidget(this)),
      m_view(new SheetView), m_placeholder(new PreviewPlaceholder),
      m_sheetsRow(new SheetsRow(*m_view, this)), m_colorsRow(new ColorsRow(this)),
      m_countsRow(new CountsRow(this))
{
    setObjectName(u"preview"_s);
    m_stack->addWidget(m_placeholder);
    m_stack->addWidget(m_view);
    // As narrow as the window lets it be: it folds before that gets too little to see anything.
    m_stack->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_documents);
    layout->addWidget(m_stack, 1);
    layout->addWidget(m_sheetsRow);
    layout->addWidget(m_colorsRow);
    layout->addWidget(m_countsRow);
    connect(m_countsRow, &CountsRow::foldPressed, this, &PreviewPane::foldPressed);
    connect(m_placeholder, &PreviewPlaceholder::choosePressed, m_documents, &DocumentArea::choose);
    connect(m_colorsRow, &ColorsRow::original, this,
            [this](bool original) { m_view->setColors(original ? ColorTransform() : m_colors); });
    arrange();
}

void PreviewPane::complete()
{
    m_isComplete = true;
    arrange();
}

void PreviewPane::showPreview(const ShownPreview &preview)
{
    using State = ShownPreview::State;
    const bool hasSheets = !preview.sheets.plan.sheets.isEmpty();
    const bool isUpdating = preview.state == State::Updating;
    if (preview.state == State::NoDocument)
        m_placeholder->showDropArea();
    else
        m_placeholder->showReason(preview.reason, preview.note);
    if (isUpdating && hasSheets) {
        m_view->setUpdating(true);
    } else {
        const bool shows =
            hasSheets && (preview.state == State::Known || preview.state == State::Begun);
        m_view->setSheets(shows ? preview.sheets : ShownSheets());
        m_stack->setCurrentWidget(shows ? static_cast<QWidget *>(m_view) : m_placeholder);
    }
    if (isUpdating || preview.state == State::Begun)
        m_countsRow->setCounts(
            preview.counts.isEmpty() ? tr("Counting the sheets…") : preview.counts, true);
    else
        m_countsRow->setCounts(preview.counts, false);
    arrange();
}

void PreviewPane::setColors(const ColorTransform &colors, const QString &text)
{
    m_colors = colors;
    m_colorsRow->setText(text, !colors.isIdentity());
    m_view->setColors(m_colorsRow->button()->isDown() ? ColorTransform() : colors);
    arrange();
}

void PreviewPane::setFolded(bool folded, bool canUnfold)
{
    m_isFolded = folded;
    m_countsRow->setFolded(folded, canUnfold);
    arrange();
}

void PreviewPane::setDropHovers(bool hovers)
{
    m_placeholder->setDropHovers(hovers);
    // Without a document the placeholder says all that is to be said.
    const bool isHinted = hovers && (m_isFolded || m_placeholder->chooseButton()->isHidden());
    if (isHinted && !m_dropHint)
        m_dropHint = new DropHint(this);
    if (!m_dropHint)
        return;
    const QRect shown = m_documents->geometry() | m_stack->geometry();
    m_dropHint->setGeometry(m_isFolded ? rect() : shown);
    m_dropHint->raise();
    m_dropHint->setVisible(isHinted);
}

void PreviewPane::arrange()
{
    const bool hasSheets = m_stack->currentWidget() == m_view;
    m_documents->setFolded(m_isFolded || !m_isComplete);
    m_countsRow->setVisible(m_isComplete);
    m_stack->setVisible(!m_isFolded);
    m_sheetsRow->setVisible(!m_isFolded && hasSheets);
    m_colorsRow->setVisible(!m_isFolded && hasSheets && !m_colorsRow->isEmpty());
}

QList<QWidget *> PreviewPane::focusOrder() const
{
    QList<QWidget *> order = m_documents->focusOrder();
    order += {m_placeholder->chooseButton(), m_view};
    order += m_sheetsRow->zoom()->focusOrder();
    order += {m_colorsRow->button(), m_countsRow->button()};
    return order;
}

QWidget *PreviewPane::focusTarget() const
{
    if (m_isFolded)
        return m_countsRow->button();
    if (m_stack->currentWidget() == m_view)
        return m_view;
    if (m_placeholder->chooseButton()->isVisible())
        return m_placeholder->chooseButton();
    return m_countsRow->button();
}

} // namespace corvana
