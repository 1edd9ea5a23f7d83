#include "dialog/window/chooser/PrinterComboBox.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QToolTip>

#include "platform/toolkit/ControlActions.h"
#include "platform/toolkit/ProgrammaticChange.h"

namespace corvana {

PrinterComboBox::PrinterComboBox(QWidget *parent)
    : NarrowComboBox(parent), m_printers(new PrinterModel(this))
{
    // With a placeholder, no printer is chosen just because it was found first.
    setPlaceholderText(tr("Choose a printer"));
    // The width must neither depend on thousands of names nor change as they come.
    setMinimumContentsLength(20);
    setModel(m_printers);
    setCurrentIndex(-1);
    ignoreWheelWithoutFocus(this);
    connect(this, &QComboBox::currentIndexChanged, m_printers, &PrinterModel::keep);
}

void PrinterComboBox::setPrinters(const QList<Printer> &printers)
{
    m_printers->setPrinters(printers);
}

bool PrinterComboBox::setCurrentPrinter(const PrinterId &id)
{
    const int row = m_printers->rowOf(id);
    if (row < 0)
        return false;
    const ProgrammaticChange change;
    setCurrentIndex(row);
    return true;
}

std::optional<Printer> PrinterComboBox::currentPrinter() const
{
    if (currentIndex() < 0)
        return std::nullopt;
    return m_printers->printer(currentIndex());
}

bool PrinterComboBox::isCurrentPrinterGone() const
{
    return currentIndex() >= 0 && m_printers->isGone(currentIndex());
}

void PrinterComboBox::setFooter(const QString &text, const QString &buttonText,
                                const std::function<void()> &action)
{
    m_footer = {text, text.isEmpty() ? QString() : buttonText, action};
    if (m_popup)
        m_popup->setFooter(m_footer);
}

void PrinterComboBox::showPopup()
{
    if (!m_popup) {
        m_popup = new PrinterPopup(this);
        m_popup->setFooter(m_footer);
        connect(m_popup, &PrinterPopup::picked, this, &PrinterComboBox::userPicked);
        connect(m_popup, &PrinterPopup::closed, this, qOverload<>(&QWidget::update));
    }
    if (m_popup->isVisible())
        return;
    QToolTip::hideText();
    m_popup->open(m_printers, currentIndex());
    update();
}

void PrinterComboBox::hidePopup()
{
    if (m_popup)
        m_popup->hide();
}

// As Qt's own list does: the new index, and then in any case that the user picked it.
void PrinterComboBox::userPicked(int row)
{
    setCurrentIndex(row);
    Q_EMIT activated(currentIndex());
    Q_EMIT textActivated(currentText());
}

void PrinterComboBox::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    if (m_popup && m_popup->isVisible())
        option->state |= QStyle::State_On;
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField, this);
    const int icon = option->currentIcon.isNull() ? 0 : option->iconSize.width() + 4;
    option->currentText =
        fontMetrics().elidedText(option->currentText, Qt::ElideRight, field.width() - icon - 2);
}

bool PrinterComboBox::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QComboBox::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       currentData(Qt::ToolTipRole).toString(), this);
    return true;
}

void PrinterComboBox::keyPressEvent(QKeyEvent *event)
{
    const QString text = event->text();
    const bool typed =
        !text.isEmpty() && text.at(0).isPrint() && !text.at(0).isSpace() &&
        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!typed)
        return QComboBox::keyPressEvent(event);
    // Qt would choose another printer with every letter.
    showPopup();
    m_popup->setSearchText(text);
}

// Qt's handler would build the list that this one replaces, for all the printers.
void PrinterComboBox::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        showPopup();
    else
        event->ignore();
}

void PrinterComboBox::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
}

} // namespace corvana
