#include "dialog/window/chooser/PrinterFooterRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "dialog/window/chooser/ElidedLabel.h"
#include "dialog/window/chooser/PrinterTexts.h"
#include "platform/toolkit/Mnemonics.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

PrinterFooterRow::PrinterFooterRow(QWidget *parent)
    : QWidget(parent), m_text(new ElidedLabel(this)), m_button(new QPushButton(this)),
      m_count(plainLabel({}, this))
{
    m_text->setObjectName(u"printerFooter"_s);
    m_button->setObjectName(u"printerFooterAction"_s);
    m_button->setAutoDefault(false);
    m_count->setObjectName(u"printerCount"_s);
    m_count->setForegroundRole(QPalette::PlaceholderText);
    const int gap = fontMetrics().height() / 2;
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(gap, gap / 2, gap, gap / 2);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_button);
    layout->addWidget(m_count);
    connect(m_button, &QPushButton::clicked, this, [this] {
        const std::function<void()> action = m_footer.action; // it may set another footer
        if (action)
            action();
    });
}

void PrinterFooterRow::setFooter(const PrinterFooter &footer)
{
    m_footer = footer;
    m_text->setLine(plainLine(footer.text));
    m_button->setText(withoutMnemonic(plainLine(footer.buttonText)));
    m_button->setVisible(!footer.buttonText.isEmpty());
    update();
}

void PrinterFooterRow::setCount(const QString &count)
{
    m_count->setText(count);
    m_count->setVisible(!count.isNull());
    update();
}

void PrinterFooterRow::update()
{
    setVisible(!m_count->text().isEmpty() || !m_footer.text.isEmpty());
}

} // namespace corvana
