#include "printsetting/QXLaserPrintSettingPDE.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QScreen>

#include "panel/OptionKeywords.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/ViewFrame.h"
#include "printsetting/PrintSettingKeys.h"

namespace corvana {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(lcAlerts, "corvana.printsetting.alerts", QtWarningMsg)

namespace {

// The instructions for one way of loading a medium. Every text is a key of the string table.
struct MediaInstructions
{
    QLatin1StringView medium; // empty: any other
    bool canBeSilenced;
    QLatin1StringView pieces[3];
};
constexpr QLatin1StringView kRecommendTray{"STR_MES_TRAY_RECOMMEND_INSTRUCTIONS"};
constexpr QLatin1StringView kRequestTray{"STR_MES_TRAY_REQUEST_INSTRUCTIONS"};
constexpr QLatin1StringView kSelectTray{"STR_MES_TRAY_SELECT_MP"};
constexpr QLatin1StringView kUseTray{"STR_MES_TRAY_USEMP"};
constexpr QLatin1StringView kUseTrayForOneSheet{"STR_MES_TRAY_USEMP_ONESHEET"};
constexpr MediaInstructions kMediaInstructions[] = {
    // Labels that are fed from elsewhere can come off inside the printer.
    {kLabel, false, {kRequestTray, kSelectTray, kUseTray}},
    {kGlossy, true, {kRecommendTray, kSelectTray, kUseTrayForOneSheet}},
    {""_L1, true, {kRecommendTray, kSelectTray, kUseTray}},
};

const MediaInstructions &instructionsFor(const QString &medium)
{
    const auto *found = std::begin(kMediaInstructions);
    while (!found->medium.isEmpty() && found->medium != medium)
        ++found;
    return *found;
}

// One piece of the instructions for the back cover: what stands before it, and its text.
struct CoverPiece
{
    QLatin1StringView before;
    QLatin1StringView text;
};
constexpr QLatin1StringView kNothing{""};
constexpr QLatin1StringView kFirstItem{"\n\n - "};
constexpr QLatin1StringView kNextItem{"\n - "};
constexpr QLatin1StringView kParagraph{"\n\n"};

constexpr CoverPiece kRecommend{kNothing, "STR_MES_BACKCOVER_RECOMMEND_INSTRUCTIONS"_L1};
constexpr CoverPiece kOpen{kFirstItem, "STR_MES_BACKCOVER_OPEN"_L1};
constexpr CoverPiece kPullLevers{kNextItem, "STR_MES_BACKCOVER_PULLDOWN_GRAY"_L1};
constexpr CoverPiece kStartPrint{kNextItem, "STR_MES_BACKCOVER_STARTPRINT"_L1};
constexpr CoverPiece kUseFeed{kParagraph, "STR_MES_BACKCOVER_NOTE_USEMP"_L1};
// Envelopes have a note of their own on two-sided printing.
constexpr CoverPiece kEnvelopeNote{kParagraph, "DLG_BACKCOVER_INSTRUCTION_NOTE"_L1};
constexpr CoverPiece kDuplexNote{kParagraph, "STR_MES_BACKCOVER_NOTE_DUPLEX"_L1};

struct CoverVariant
{
    std::initializer_list<QLatin1StringView> media;
    std::initializer_list<CoverPiece> pieces;
    CoverPiece twoSidedNote;
    QLatin1StringView picture;
};

const CoverVariant *coverVariantFor(const QString &medium)
{
    static const CoverVariant kVariants[] = {
        {{kEnv, kEnvThin, kEnvThick},
         {kRecommend, kOpen, kPullLevers},
         kEnvelopeNote,
         kBackCoverLeverImage},
        {{kLabel}, {kRecommend, kOpen, kUseFeed}, kDuplexNote, kBackCoverWithoutLeverImage},
        {{kPostCard},
         {kRecommend, kOpen, kPullLevers, kStartPrint},
         kDuplexNote,
         kBackCoverWithoutLeverImage},
    };
    for (const CoverVariant &variant : kVariants) {
        for (const QLatin1StringView candidate : variant.media) {
            if (medium == candidate)
                return &variant;
        }
    }
    return nullptr;
}

} // namespace

void QXLaserPrintSettingPDE::showAlertWhenSelectMediaKey_withAlertKey(const QString &keyword,
                                                                      const QString &alertKey)
{
    const ppd_option_t *option = ppdOption(ppd, keyword);
    const ppd_choice_t *marked = ppdMarkedChoice(ppd, keyword);
    const MediaInstructions &instructions = instructionsFor(m_outputBin.value(keyword).toString());
    Alert alert;
    alert.style = Alert::Style::Informational;
    if (marked || option)
        alert.messageText = ppdText(marked ? marked->text : option->text).value_or(QString());
    alert.informativeText = u"%1\n\n - %2\n - %3"_s.arg(localized(instructions.pieces[0]),
                                                        localized(instructions.pieces[1]),
                                                        localized(instructions.pieces[2]));
    alert.buttons = {localized(u"OK"_s)};
    alert.showsSuppressionButton = instructions.canBeSilenced;
    const std::optional<AlertAnswer> answer = runIllustratedAlert(alert, kFrontCoverImage);
    if (answer)
        alertDidEnd_returnCode_contextInfo(*answer, answer->button, alertKey);
}

bool QXLaserPrintSettingPDE::shouldPrint()
{
    const bool allowed = QXPrintQualityPDE::shouldPrint();
    if (hasMode(kModeFaxOutput))
        return true;
    return allowed && confirmBackCover(storedChoice(kQXMediaType));
}

bool QXLaserPrintSettingPDE::confirmBackCover(const QString &mediaType)
{
    const CoverVariant *variant = coverVariantFor(mediaType);
    if (!variant)
        return true;
    QList<CoverPiece> pieces = variant->pieces;
    if (!isSimplexMode()) {
        // These media would jam on their way back through the printer: the job stays one-sided,
        // also when it is cancelled here.
        PMSetDuplex(printSettings(), kPMDuplexNone);
        pieces += variant->twoSidedNote;
    }
    Alert alert;
    alert.style = Alert::Style::Informational;
    alert.messageText = localized(u"DLG_TITLE_BACKCOVER"_s);
    // A piece without a translation is left out.
    for (const CoverPiece &piece : std::as_const(pieces)) {
        alert.informativeText += piece.before;
        if (pluginBundle)
            alert.informativeText += pluginBundle->localizedString(piece.text);
    }
    alert.buttons = {localized(u"OK"_s), localized(u"Cancel"_s)};
    const std::optional<AlertAnswer> answer = runIllustratedAlert(alert, variant->picture);
    return !answer || answer->button != 1;
}

// Runs the alert with a picture of the bundle. There is no answer if the host cannot show alerts.
std::optional<AlertAnswer> QXLaserPrintSettingPDE::runIllustratedAlert(Alert alert,
                                                                       QLatin1StringView picture)
{
    if (!pdePluginCallbackObject->respondsTo(PDECallbackOperation::alertPresenter)) {
        qCWarning(lcAlerts) << "the host can show no alert:" << alert.messageText;
        return std::nullopt;
    }
    panelView();
    const QString file =
        pluginBundle ? pluginBundle->pathForResource(picture, kImageExtension) : QString();
    if (file.isNull())
        qCWarning(lcAlerts) << "the bundle has no illustration" << picture;
    // The view keeps whatever it is given: what it is given twice is the same picture, read once.
    QImage image = m_illustrations.value(file);
    if (image.isNull() && !file.isNull())
        image = readPicture(file, 1.0);
    if (!image.isNull())
        m_illustrations.insert(file, image);
    if (accessoryView && !image.isNull()) {
        const QSizeF size = image.deviceIndependentSize();
        setViewFrame(accessoryView, {0, 0, size.width(), size.height()});
        accessoryView->setImage(image);
        alert.accessoryView = accessoryView;
    }
    return pdePluginCallbackObject->alertPresenter()->runModal(alert, m_panelView);
}

bool QXLaserPrintSettingPDE::isRetinaScreen()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen && screen->devicePixelRatio() == 2.0;
}

} // namespace corvana
