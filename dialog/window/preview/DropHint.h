#pragma once

#include <QWidget>

namespace corvana {

/// Lies over what shows the documents and their pages while further ones are held above the window,
/// and says that they would be taken. Mouse and drops go through it.
class DropHint : public QWidget
{
    Q_OBJECT

public:
    explicit DropHint(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace corvana
