#pragma once

#include <functional>

#include <QString>
#include <QWidget>

class QLabel;
class QPushButton;

namespace corvana {

class ElidedLabel;

/// What stands below the list of printers, and what can be done about it.
struct PrinterFooter
{
    QString text;
    QString buttonText; ///< empty for no button
    std::function<void()> action;
};

/// The row below the list of printers: what is wrong with the list, and how many there are. It is
/// hidden while it has nothing to say.
class PrinterFooterRow : public QWidget
{
    Q_OBJECT

public:
    explicit PrinterFooterRow(QWidget *parent = nullptr);

    void setFooter(const PrinterFooter &footer);
    /// How many printers there are; null where anybody sees that at a glance.
    void setCount(const QString &count);

private:
    void update();

    PrinterFooter m_footer;
    ElidedLabel *m_text;
    QPushButton *m_button;
    QLabel *m_count;
};

} // namespace corvana
