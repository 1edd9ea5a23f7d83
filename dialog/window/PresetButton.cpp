#include "dialog/window/PresetButton.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QToolTip>

#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFewestCharacters = 8;
constexpr int kUsualCharacters = 24;
constexpr int kBesideText = 2; // styles leave a pixel at both ends. Units: pixels.

} // namespace

PresetButton::PresetButton(QWidget *parent) : QToolButton(parent)
{
    setPopupMode(InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QStyleOptionComboBox PresetButton::asList() const
{
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.currentText =
        QString(text()).replace("&&"_L1, "&"_L1); // a list knows no keys in its text
    const bool isOpen = isDown() || (menu() && menu()->isVisible());
    option.state.setFlag(isOpen ? QStyle::State_On : QStyle::State_Raised);
    return option;
}

QSize PresetButton::sizeFor(int characters) const
{
    const QStyleOptionComboBox option = asList();
    const QSize contents(characters * fontMetrics().averageCharWidth(), fontMetrics().height());
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, contents, this);
}

// No more than is read: the rest is its neighbours'.
QSize PresetButton::sizeHint() const
{
    const QSize usual = sizeFor(kUsualCharacters);
    return {qMin(usual.width(), wholeWidth()), usual.height()};
}

int PresetButton::wholeWidth() const
{
    const QStyleOptionComboBox option = asList();
    const QSize contents = fontMetrics().size(Qt::TextSingleLine, option.currentText);
    return style()
        ->sizeFromContents(QStyle::CT_ComboBox, &option, contents + QSize(kBesideText, 0), this)
        .width();
}

QSize PresetButton::minimumSizeHint() const
{
    return sizeFor(kFewestCharacters);
}

int PresetButton::roomForText() const
{
    const QStyleOptionComboBox option = asList();
    return style()
               ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
               .width() -
           kBesideText;
}

void PresetButton::paintEvent(QPaintEvent *)
{
    QStyleOptionComboBox option = asList();
    option.currentText =
        fontMetrics().elidedText(option.currentText, Qt::ElideMiddle, roomForText());
    QStylePainter painter(this);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

// The keys that open a list.
void PresetButton::keyPressEvent(QKeyEvent *event)
{
    const bool opens =
        event->key() == Qt::Key_Down || event->key() == Qt::Key_Up || event->key() == Qt::Key_F4;
    if (!opens || !menu())
        return QToolButton::keyPressEvent(event);
    showMenu();
}

bool PresetButton::event(QEvent *event)
{
    const QString whole = asList().currentText;
    if (event->type() != QEvent::ToolTip || fontMetrics().horizontalAdvance(whole) <= roomForText())
        return QToolButton::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(whole), this);
    return true;
}

} // namespace corvana
