#pragma once

#include <QWidget>

#include "dialog/task/ByHand.h"

namespace corvana {

/// A drawing of how printed sheets go back into the tray: a page as it is read, with the edge
/// marked that goes into the printer first, and the stack before the printer with the same mark. It
/// says nothing that is not said in words as well.
class TurnPicture : public QWidget
{
    Q_OBJECT

public:
    explicit TurnPicture(const TurnQuestion &question, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    HandFeed::Printed m_inTray;
    Qt::Edge m_leadingEdge;
    bool m_isWide;
};

} // namespace corvana
