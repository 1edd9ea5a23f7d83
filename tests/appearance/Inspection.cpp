#include "tests/appearance/Inspection.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTableView>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace corvana::test {

namespace {

QString described(const QWidget *widget)
{
    return u"%1 \"%2\""_s.arg(QLatin1StringView(widget->metaObject()->className()),
                              widget->objectName());
}

// Controls whose whole text must be seen without scrolling.
bool showsItsText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return !label->wordWrap() && !label->text().isEmpty();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return !button->text().isEmpty();
    return qobject_cast<const QComboBox *>(widget);
}

bool isVisibleInside(const QWidget *ancestor, const QWidget *widget)
{
    return widget->isVisibleTo(ancestor) && !widget->size().isEmpty();
}

// The difference in brightness between the darkest and the lightest pixel of a label.
int contrastOf(QWidget *label)
{
    const QImage image = label->window()
                             ->grab(QRect(label->mapTo(label->window(), QPoint()), label->size()))
                             .toImage();
    int darkest = 255;
    int lightest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int gray = qGray(image.pixel(x, y));
            darkest = qMin(darkest, gray);
            lightest = qMax(lightest, gray);
        }
    }
    return lightest - darkest;
}

// Whether what does not fit into its page can be scrolled to.
bool isScrolledTo(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        const auto *area = qobject_cast<const QScrollArea *>(widget);
        if (area && area->horizontalScrollBar()->maximum() > 0)
            return true;
    }
    return false;
}

} // namespace

QStringList sidewaysScrolling(const QWidget *window)
{
    QStringList scrolling;
    const auto areas = window->findChildren<QScrollArea *>();
    for (const QScrollArea *area : areas) {
        if (isVisibleInside(window, area) && area->horizontalScrollBar()->maximum() > 0)
            scrolling += described(area) + u" scrolls sideways"_s;
    }
    const auto bars = window->findChildren<QTabBar *>();
    for (const QTabBar *bar : bars) {
        const auto buttons = bar->findChildren<QToolButton *>();
        for (const QToolButton *button : buttons) {
            if (isVisibleInside(window, button))
                scrolling += described(bar) + u" does not show all tabs"_s;
        }
    }
    return scrolling;
}

QStringList clippedControls(const QWidget *page)
{
    QStringList clipped;
    const auto widgets = page->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!isVisibleInside(page, widget) || !showsItsText(widget))
            continue;
        if (widget->minimumSizeHint().width() > widget->width())
            clipped += described(widget) + u" is narrower than its text"_s;
        const QRect inWindow(widget->mapTo(page, QPoint()), widget->size());
        if (!page->rect().contains(inWindow) && !isScrolledTo(widget))
            clipped += described(widget) + u" reaches out of its page"_s;
    }
    return clipped;
}

QStringList overlappingControls(const QWidget *page)
{
    QStringList overlapping;
    const auto parents = page->findChildren<QWidget *>();
    for (const QWidget *parent : parents) {
        // The parts inside one control are its own affair.
        if (qobject_cast<const QComboBox *>(parent) ||
            qobject_cast<const QAbstractScrollArea *>(parent) ||
            qobject_cast<const QTabBar *>(parent) || qobject_cast<const QLineEdit *>(parent))
            continue;
        const auto children = parent->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
        for (qsizetype i = 0; i < children.size(); ++i) {
            for (qsizetype j = i + 1; j < children.size(); ++j) {
                const QWidget *a = children.at(i);
                const QWidget *b = children.at(j);
                if (isVisibleInside(page, a) && isVisibleInside(page, b) && !a->isWindow() &&
                    !b->isWindow() && a->geometry().intersects(b->geometry()))
                    overlapping += described(a) + u" overlaps "_s + described(b);
            }
        }
    }
    return overlapping;
}

QStringList clippedTexts(const QWidget *page)
{
    QStringList clipped;
    const auto fields = page->findChildren<QLineEdit *>();
    for (const QLineEdit *field : fields) {
        // A long text scrolls; a number must be seen whole, and the longest ones have three digits.
        const bool number = field->width() < 8 * field->fontMetrics().height();
        if (!number || !isVisibleInside(page, field))
            continue;
        QStyleOptionFrame option;
        option.initFrom(field);
        option.lineWidth = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
        constexpr int kTextMargins = 4; // pixels that a field keeps free at both ends, together
        const int room =
            field->style()->subElementRect(QStyle::SE_LineEditContents, &option, field).width() -
            kTextMargins;
        if (field->fontMetrics().horizontalAdvance(u"240"_s) > room)
            clipped += described(field) + u" is narrower than its numbers"_s;
    }
    const auto tables = page->findChildren<QTableView *>();
    for (const QTableView *table : tables) {
        if (!isVisibleInside(page, table) || !table->model()->rowCount())
            continue;
        const QAbstractItemView *view = table; // asking a table is not public
        if (view->sizeHintForColumn(0) > table->columnWidth(0))
            clipped += described(table) + u" is narrower than its texts"_s;
        if (table->horizontalScrollBar()->maximum() > 0)
            clipped += described(table) + u" scrolls sideways"_s;
    }
    return clipped;
}

QStringList unreadableLabels(QWidget *page)
{
    QStringList unreadable;
    const auto labels = page->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (!isVisibleInside(page, label) || !showsItsText(label) || !label->isEnabled())
            continue;
        // Black on white is 255; people with weak sight need about half of it.
        if (contrastOf(label) < 110)
            unreadable += described(label) + u" cannot be read on its background"_s;
    }
    return unreadable;
}

// A pop-up button's own name is what is chosen in it.
static bool hasName(QWidget *widget, const QAccessibleInterface *accessible)
{
    const bool isPopUp = qobject_cast<QComboBox *>(widget) != nullptr;
    if (!isPopUp && !accessible->text(QAccessible::Name).isEmpty())
        return true;
    return !accessible->relations(QAccessible::Label).isEmpty();
}

QStringList namelessControls(const QWidget *page)
{
    QStringList nameless;
    const auto widgets = page->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isPart = qobject_cast<const QAbstractSpinBox *>(widget->parentWidget());
        if (!isVisibleInside(page, widget) || widget->focusPolicy() == Qt::NoFocus || isPart)
            continue;
        const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
        if (!accessible || !hasName(widget, accessible))
            nameless += described(widget) + u" has no name for a screen reader"_s;
        else if (accessible->text(QAccessible::Description).contains(u'<'))
            nameless += described(widget) + u" has its markup read out"_s;
    }
    return nameless;
}

QStringList sharedAccessKeys(const QWidget *window)
{
    QMap<QString, QStringList> controls;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!isVisibleInside(window, widget) || widget->window() != window)
            continue;
        QString text;
        if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy())
            text = label->text();
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            text = button->text();
        if (const QKeySequence key = QKeySequence::mnemonic(text); !key.isEmpty())
            controls[key.toString()] += described(widget);
    }
    QStringList shared;
    for (auto key = controls.cbegin(); key != controls.cend(); ++key) {
        if (key->size() > 1)
            shared += key.key() + u" is the key of "_s + key->join(u" and "_s);
    }
    return shared;
}

void savePicture(QWidget &window, const QString &name)
{
    const QString folder = qEnvironmentVariable("CORVANA_SCREENSHOTS");
    if (folder.isEmpty())
        return;
    QDir().mkpath(folder);
    window.grab().save(u"%1/%2_%3x_%4.png"_s.arg(folder,
                                                 qEnvironmentVariable("LC_ALL").section(u'.', 0, 0),
                                                 qEnvironmentVariable("QT_SCALE_FACTOR"), name));
}

QString faultsOf(QWidget *window)
{
    QStringList faults = clippedControls(window) + overlappingControls(window) +
                         unreadableLabels(window) + namelessControls(window);
    // A language that nobody chose the words of may need more room than there is.
    if (!qEnvironmentVariableIsSet("CORVANA_MAY_SCROLL_SIDEWAYS"))
        faults += sidewaysScrolling(window);
    return faults.join(u'\n');
}

AlertInspector::AlertInspector(const QString &name) : m_name(name)
{
    qApp->installEventFilter(this);
}

bool AlertInspector::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QMessageBox *>(watched);
    if (box && event->type() == QEvent::Show)
        QMetaObject::invokeMethod(
            box, [this, box] { inspect(*box); }, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void AlertInspector::inspect(QMessageBox &box)
{
    ++seen;
    savePicture(box, m_name);
    faults += clippedControls(&box) + overlappingControls(&box) + unreadableLabels(&box) +
              namelessControls(&box);
    const auto labels = box.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->wordWrap() && label->isVisible() &&
            label->height() < label->heightForWidth(label->width()))
            faults += described(label) + u" is lower than its text"_s;
    }
    const auto *picture = box.findChild<QWidget *>(u"accessoryView"_s);
    if (!picture || !picture->isVisible() ||
        !box.rect().contains(QRect(picture->mapTo(&box, QPoint()), picture->size())))
        faults += u"the picture is not seen whole"_s;
    const QSize room = box.screen()->availableSize();
    if (box.width() > room.width() || box.height() > room.height())
        faults += u"the alert is larger than the screen"_s;
    box.buttons().constFirst()->click();
}

} // namespace corvana::test
