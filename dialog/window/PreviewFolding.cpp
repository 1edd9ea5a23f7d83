#include "dialog/window/PreviewFolding.h"

#include <QBoxLayout>
#include <QScreen>
#include <QWidget>

#include "dialog/session/DialogPreferences.h"
#include "dialog/window/SettingsColumn.h"
#include "dialog/window/preview/PreviewPane.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/foundation/Values.h"

namespace corvana {

namespace {

constexpr QLatin1StringView kFolded{"previewFolded"};

// Less shows no sheet that tells anything. Units: pixels.
constexpr int kLeastPreview = 320;
// What a window gets for a preview that it was opened without. Units: heights of the font.
constexpr int kUsualPreview = 40;

QVariantMap preferences()
{
    return UserDefaults::standardUserDefaults()
        .persistentDomainForName(kDialogDomain)
        .value_or(QVariantMap());
}

} // namespace

PreviewFolding::PreviewFolding(QWidget &window, QBoxLayout &columns, PreviewPane &preview,
                               SettingsColumn &settings)
    : m_window(window), m_columns(columns), m_preview(preview), m_settings(settings),
      m_byHand(booleanValue(preferences().value(kFolded)))
{
}

// What is in the window beside the two.
int PreviewFolding::around() const
{
    const QMargins margins = m_window.layout()->contentsMargins();
    return margins.left() + margins.right();
}

int PreviewFolding::leastWidth() const
{
    return m_settings.usualWidth() + kLeastPreview + around();
}

int PreviewFolding::openingWidth(int wanted) const
{
    const int room = m_window.screen()->availableSize().width();
    const bool folded = m_byHand || qMin(wanted, room) < leastWidth();
    return folded ? m_settings.usualWidth() + around() : wanted;
}

void PreviewFolding::follow()
{
    apply();
}

void PreviewFolding::apply()
{
    const bool folded = m_byHand || m_window.width() < leastWidth();
    const bool canUnfold = m_window.screen()->availableSize().width() >= leastWidth();
    m_columns.setDirection(folded ? QBoxLayout::BottomToTop : QBoxLayout::LeftToRight);
    // Beside the settings the preview gets every pixel that they do not ask for, below them none.
    m_columns.setStretchFactor(&m_preview, folded ? 0 : 1);
    m_columns.setStretchFactor(&m_settings, folded ? 1 : 0);
    m_preview.setFolded(folded, canUnfold);
}

void PreviewFolding::fold(bool fold)
{
    m_byHand = fold;
    QVariantMap domain = preferences();
    domain.insert(kFolded, fold);
    UserDefaults::standardUserDefaults().setPersistentDomain_forName(domain, kDialogDomain);
    const bool isWhole = m_window.isMaximized() || m_window.isFullScreen();
    const int width = m_window.width();
    if (fold) {
        m_givenUp = width - m_settings.usualWidth() - around();
        apply();
        if (!isWhole && m_givenUp > 0)
            m_window.resize(width - m_givenUp, m_window.height());
        return;
    }
    const int more = m_givenUp > 0 ? m_givenUp : kUsualPreview * m_window.fontMetrics().height();
    const int most = m_window.screen()->availableSize().width();
    if (!isWhole && width < leastWidth())
        m_window.resize(qMin(qMax(width + more, leastWidth()), most), m_window.height());
    apply();
}

} // namespace corvana
