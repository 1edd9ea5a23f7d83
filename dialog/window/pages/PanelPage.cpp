#include "dialog/window/pages/PanelPage.h"

#include <QLabel>

#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/ViewFrame.h"

namespace corvana {

PanelPage::PanelPage(QWidget *parent) : QScrollArea(parent)
{
    setFocusPolicy(Qt::NoFocus); // what it holds has the focus, and is scrolled into sight
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    viewport()->setAutoFillBackground(false);
}

PanelPage::~PanelPage()
{
    if (!m_holdsPanelView)
        return;
    if (QWidget *view = takeWidget())
        view->setParent(nullptr);
}

void PanelPage::setPanelView(QWidget *view)
{
    makeLabelsPlain(view); // a plug-in may have made it in its own way
    setWidget(view);
    m_holdsPanelView = true;
    // The page looks like the other pages; the scroll area has just decided otherwise.
    view->setAutoFillBackground(false);
    followView();
    setFocusProxy(view);
}

int PanelPage::followView()
{
    if (!widget())
        return 0;
    const int needed =
        qMax(requestedPixelSize(widget()).height(), widget()->minimumSizeHint().height());
    widget()->setMinimumHeight(needed);
    return needed - viewport()->height();
}

void PanelPage::setProblem(const QString &problem)
{
    QLabel *label = plainLabel(problem);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setMargin(12);
    setWidget(label);
}

} // namespace corvana
