#include "panel/QXPrintQualityPDE.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLoggingCategory>

#include "platform/foundation/HelpManager.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/foundation/Values.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/ViewFrame.h"
#include "platform/toolkit/Windows.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcServices, "corvana.panel.services", QtWarningMsg)

namespace {

constexpr QLatin1StringView kColorSettingSuffix{"ColorSetting"};
constexpr QLatin1StringView kAdvancedColorItem{"advancedcolorItem"};
constexpr QLatin1StringView kAdvancedItem{"advancedItem"};
constexpr QLatin1StringView kPrintSettingsPrefix{"com.corvana.print.PrintSettings."};
constexpr QLatin1StringView kHelpAnchor{"QxHelpAnchor"};
constexpr QLatin1StringView kNoImage{"None"};

// Illustrations are pictures or, where lines should stay sharp at any size, PDF pages.
constexpr QLatin1StringView kImageTypes[] = {"tiff"_L1, "pdf"_L1};

} // namespace

QString QXPrintQualityPDE::optionName()
{
    return thePDEName().endsWith(kColorSettingSuffix) ? kAdvancedColorItem : kAdvancedItem;
}

void QXPrintQualityPDE::restoreOptionState()
{
    const QString key = optionName();
    QVariant stored;
    const bool found =
        PMPrintSettingsGetValue(printSettings(), kPrintSettingsPrefix + key, &stored) == kPMNoError;
    if (!effectContent)
        return;
    const bool current = booleanValue(effectContent->value(key));
    const bool wanted = found && booleanValue(stored);
    if (wanted == current)
        return;
    effectContent->setValue(key, wanted);
    toggleShowOption(optionButton);
}

void QXPrintQualityPDE::saveOptionState()
{
    const QString key = optionName();
    const bool disclosed = effectContent && booleanValue(effectContent->value(key));
    PMPrintSettingsSetValue(printSettings(), kPrintSettingsPrefix + key, disclosed, false);
}

void QXPrintQualityPDE::toggleShowOption(QWidget *) {}

void QXPrintQualityPDE::openAdvancedPart()
{
    if (optionButton && !optionButton->isChecked())
        optionButton->click();
}

void QXPrintQualityPDE::setViewFrameSize(double width, double height)
{
    if (!pdePluginCallbackObject ||
        !pdePluginCallbackObject->respondsTo(PDECallbackOperation::panelViewDidResize))
        return;
    ViewFrame frame = viewFrame(m_panelView);
    frame.width = width;
    frame.height = height;
    setViewFrame(m_panelView, frame);
    const QWidget *window = keyWindow(m_panelView);
    if (!hasMode(kModePanelShown) || !window)
        return;
    if (window->frameGeometry().height() / pixelsPerPoint(window) > height + kHeightAroundPanel) {
        pdePluginCallbackObject->panelViewDidResize();
        return;
    }
    // The window has to grow. The host is told once the view has been laid out again.
    NotificationCenter::defaultCenter().addObserver(
        this, QLatin1StringView(kViewDidUpdateTrackingAreasNotification), m_panelView,
        [this](const Notification &notification) { dialogDidExpand(notification); });
}

void QXPrintQualityPDE::resizeForDisclosure(const QWidget *button, double height)
{
    const ViewFrame frame = viewFrame(m_panelView);
    const auto *disclosure = qobject_cast<const QAbstractButton *>(button);
    const bool discloses = disclosure && disclosure->isChecked();
    setViewFrameSize(frame.width, frame.height + (discloses ? height : -height));
}

void QXPrintQualityPDE::dialogDidExpand(const Notification &)
{
    NotificationCenter::defaultCenter().removeObserver(
        this, QLatin1StringView(kViewDidUpdateTrackingAreasNotification), m_panelView);
    pdePluginCallbackObject->panelViewDidResize();
}

void QXPrintQualityPDE::adjustUIPosition_forParts(double distance, const QList<QWidget *> &views)
{
    for (QWidget *view : views) {
        ViewFrame frame = viewFrame(view);
        frame.y += distance;
        setViewFrame(view, frame);
    }
}

void QXPrintQualityPDE::changeImage_ofView(const QString &name, QLabel *view)
{
    if (!view || (hasImage(view) && imageName(view) == name))
        return;
    QString file;
    for (const QLatin1StringView type : kImageTypes) {
        if (file.isNull() && pluginBundle)
            file = pluginBundle->pathForResource(name, type);
    }
    if (file.isNull()) {
        qCWarning(lcServices) << "the bundle has no illustration" << name;
        if (hasImage(view))
            setImageName(view, kNoImage);
        view->hide();
        return;
    }
    const QImage image = readPicture(file, view->devicePixelRatioF());
    if (!image.isNull()) {
        setImage(view, image);
        setImageName(view, name);
    }
    view->show();
}

bool QXPrintQualityPDE::registerHelp()
{
    if (!pluginBundle || pluginBundle->path().isEmpty())
        return false;
    // The help books of a bundle lie beside the folder that it is installed in.
    const QString book = QDir::cleanPath(
        u"%1/../../Help/%2.%3"_s.arg(pluginBundle->path(), thePDEName(), u"help"_s));
    if (!QFileInfo::exists(book)) {
        qCInfo(lcServices).noquote() << "there is no help book" << book;
        return false;
    }
    return HelpManager::sharedHelpManager().registerBooksInBundle(*pluginBundle, book);
}

QString QXPrintQualityPDE::helpAnchor()
{
    return kHelpAnchor;
}

QString QXPrintQualityPDE::helpBook()
{
    return pluginBundle ? pluginBundle->infoString(kCFBundleHelpBookNameKey) : QString();
}

bool QXPrintQualityPDE::shouldShowHelp()
{
    if (!hasMode(kModeHelpRegistered))
        return true;
    const QString anchor = helpAnchor();
    const QString book = helpBook();
    if (anchor.isNull() || book.isNull())
        return true;
    HelpManager::sharedHelpManager().openHelpAnchor_inBook(anchor, book);
    return false;
}

void QXPrintQualityPDE::showHelpFile(QWidget *)
{
    if (hasMode(kModeHelpRegistered))
        shouldShowHelp();
}

bool QXPrintQualityPDE::shouldShowAlert(const QString &key)
{
    const QString identifier = pluginBundle ? pluginBundle->identifier() : QString();
    if (identifier.isNull())
        return true;
    const std::optional<QVariantMap> domain =
        UserDefaults::standardUserDefaults().persistentDomainForName(identifier);
    if (!domain || !domain->contains(key))
        return true;
    return booleanValue(domain->value(key));
}

void QXPrintQualityPDE::alertDidEnd_returnCode_contextInfo(const AlertAnswer &answer, int,
                                                           const QString &key)
{
    const QString identifier = pluginBundle ? pluginBundle->identifier() : QString();
    if (key.isNull() || identifier.isNull())
        return;
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    QVariantMap domain = defaults.persistentDomainForName(identifier).value_or(QVariantMap());
    domain.insert(key, !answer.suppressed);
    defaults.setPersistentDomain_forName(domain, identifier);
}

} // namespace corvana
