#include "dialog/window/pages/SummaryPage.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QTableWidget>
#include <QVBoxLayout>

#include "dialog/session/DialogPreferences.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kOnlyChangedPreference{"summaryShowsOnlyChanges"};
constexpr int kSettingRole = Qt::UserRole;

QVariantMap preferences()
{
    return UserDefaults::standardUserDefaults()
        .persistentDomainForName(kDialogDomain)
        .value_or(QVariantMap());
}

void rememberOnlyChanged(bool only)
{
    QVariantMap domain = preferences();
    domain.insert(kOnlyChangedPreference, only);
    UserDefaults::standardUserDefaults().setPersistentDomain_forName(domain, kDialogDomain);
}

// The same dot as on the other pages; nothing for a line that was not changed, but as wide.
QIcon markOf(bool isChanged, const QWidget &page)
{
    const int side = page.fontMetrics().height() / 2;
    const qreal scale = page.devicePixelRatioF();
    QPixmap pixmap(QSize(side, side) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    if (isChanged) {
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(page.palette().color(QPalette::Highlight));
        painter.drawEllipse(QRectF(side * 0.15, side * 0.15, side * 0.7, side * 0.7));
    }
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

} // namespace

SummaryPage::SummaryPage(QWidget *parent) : QWidget(parent) {}

void SummaryPage::build()
{
    if (m_table)
        return;
    buildTable();
    m_onlyChanged = new QCheckBox(tr("Only what is changed"), this);
    m_onlyChanged->setObjectName(u"onlyChanged"_s);
    m_onlyChanged->setChecked(booleanValue(preferences().value(kOnlyChangedPreference)));
    connect(m_onlyChanged, &QCheckBox::toggled, this, [this](bool only) {
        rememberOnlyChanged(only);
        showLines();
    });
    m_nothing = plainLabel(tr("Nothing is changed."), this);
    m_nothing->setObjectName(u"nothingChanged"_s);
    m_nothing->setForegroundRole(QPalette::PlaceholderText);
    m_nothing->hide();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_onlyChanged);
    layout->addWidget(m_nothing);
    layout->addWidget(m_table, 1);
    setFocusProxy(m_table);
}

void SummaryPage::buildTable()
{
    m_table = new QTableWidget(0, 2, this);
    m_table->setObjectName(u"summary"_s);
    m_table->setAccessibleName(tr("Summary"));
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->hide();
    m_table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setStretchLastSection(true);
    const int side = fontMetrics().height() / 2;
    m_table->setIconSize({side, side});
    m_table->installEventFilter(this);
    connect(m_table, &QTableWidget::cellClicked, this, [this](int row, int) { goToLine(row); });
}

void SummaryPage::setLines(const QList<SummaryLine> &lines, const ShownChanges &changes)
{
    build();
    m_lines = lines;
    m_changes = changes;
    showLines();
}

void SummaryPage::showLines()
{
    QList<SummaryLine> shown = m_lines;
    if (m_onlyChanged->isChecked()) {
        shown.removeIf([&](const SummaryLine &line) {
            return !line.isHeading && !m_changes.settings.contains(line.keyword);
        });
        if (!shown.isEmpty() && shown.constLast().isHeading)
            shown.removeLast();
    }
    m_table->clearSpans();
    m_table->setRowCount(static_cast<int>(shown.size()));
    for (int row = 0; row < m_table->rowCount(); ++row)
        setRow(row, shown.at(row));
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_nothing->setVisible(shown.isEmpty());
}

void SummaryPage::setRow(int row, const SummaryLine &line)
{
    const auto change = m_changes.settings.constFind(line.keyword);
    const bool isChanged = change != m_changes.settings.cend();
    auto *title = new QTableWidgetItem(line.title);
    title->setData(kSettingRole, line.keyword);
    title->setIcon(markOf(isChanged, *this));
    if (isChanged) {
        title->setToolTip(plainToolTip(tr("Changed. %1").arg(*change)));
        title->setData(Qt::AccessibleTextRole, tr("%1, changed").arg(line.title));
        title->setData(Qt::AccessibleDescriptionRole, *change);
    }
    m_table->setItem(row, 0, title);
    m_table->setItem(row, 1, new QTableWidgetItem(line.value));
    if (line.isHeading) {
        QFont bold = m_table->font();
        bold.setBold(true);
        title->setFont(bold);
        m_table->setSpan(row, 0, 1, 2);
    }
}

bool SummaryPage::goToLine(int row)
{
    const QTableWidgetItem *title = m_table->item(row, 0);
    const QString name = title ? title->data(kSettingRole).toString() : QString();
    if (name.isEmpty())
        return false;
    // Later: where it leads to may show other lines.
    QMetaObject::invokeMethod(
        this, [this, name] { Q_EMIT settingWanted(name); }, Qt::QueuedConnection);
    return true;
}

// On a line that leads somewhere Enter goes there; elsewhere it prints, as in the whole window.
bool SummaryPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_table && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && goToLine(m_table->currentRow()))
            return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace corvana
