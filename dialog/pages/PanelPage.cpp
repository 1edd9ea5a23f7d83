#include "dialog/pages/PanelPage.h"

#include <QLabel>

namespace corvana {

PanelPage::PanelPage(QWidget *parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    // The page looks like the other pages, not like a text field.
    viewport()->setBackgroundRole(QPalette::NoRole);
    viewport()->setAutoFillBackground(false);
}

PanelPage::~PanelPage()
{
    if (QWidget *view = takeWidget())
        view->setParent(nullptr);
}

void PanelPage::setPanelView(QWidget *view)
{
    view->setAutoFillBackground(false);
    setWidget(view);
    setFocusProxy(view);
}

void PanelPage::setProblem(const QString &problem)
{
    auto *label = new QLabel(problem);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setMargin(12);
    setWidget(label);
}

} // namespace corvana
