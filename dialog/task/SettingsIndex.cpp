#include "dialog/task/SettingsIndex.h"

#include <algorithm>
#include <cstring>

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QSet>

#include "dialog/session/CustomValue.h"
#include "dialog/session/JobAttributes.h"
#include "dialog/session/OptionNames.h"
#include "dialog/session/OptionTexts.h"
#include "dialog/session/OptionValues.h"
#include "dialog/session/SearchForm.h"
#include "dialog/session/Summary.h"
#include "dialog/task/OfferedAttributes.h"
#include "dialog/task/OpenedPrinter.h"
#include "dialog/task/PrintTask.h"
#include "platform/pde/PDEPanel.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SettingsIndex)
};

constexpr auto kCopies = QT_TRANSLATE_NOOP("SettingsIndex", "Copies");
constexpr auto kPages = QT_TRANSLATE_NOOP("SettingsIndex", "Pages");

// Whether texts in the user's language stand in the place of those that the PPD itself has.
bool isTranslated(const ppd_file_t *ppd)
{
    for (int i = 0; i < ppd->num_attrs; ++i) {
        if (std::strchr(ppd->attrs[i]->name, '.'))
            return true;
    }
    return false;
}

// A keyword is looked for as a whole and by the words in it: "qxmediatype qx media type".
QString keywordForm(const QString &keyword)
{
    QString words;
    for (qsizetype i = 0; i < keyword.size(); ++i) {
        const QChar c = keyword.at(i);
        const bool isNext = i > 0 && c.isUpper() &&
                            (!keyword.at(i - 1).isUpper() ||
                             (i + 1 < keyword.size() && keyword.at(i + 1).isLower()));
        if (isNext)
            words += u' ';
        words += c.isLetterOrNumber() ? c : QChar(u' ');
    }
    return searchForm(keyword + u' ' + words);
}

} // namespace

// Goes through the pages in their order.
class SettingsIndex::Builder
{
public:
    Builder(const OpenedPrinter &printer, QList<Entry> &entries)
        : m_printer(printer), m_entries(entries)
    {
        if (isTranslated(ppd()))
            m_untranslated.reset(
                ppdOpenFile(QFile::encodeName(printer.fetched.ppd->path).constData()));
    }

    void addGeneral(const QList<OfferedAttribute> &offered, bool offersPages)
    {
        addField(Setting::Kind::Copies, kCopies);
        addAttributes(offered, OfferedAttribute::Place::BesideCopies);
        if (offersPages)
            addField(Setting::Kind::Pages, kPages);
        const QStringList options = generalOptionsOf(*m_printer.session, m_printer.jobValues);
        for (const QString &keyword : options)
            addOption(keyword, {SettingPlace::Page::General, -1, {Texts::tr("General")}});
        addAttributes(offered, OfferedAttribute::Place::Front);
        addAttributes(offered, OfferedAttribute::Place::More);
    }

    void addPanels()
    {
        const auto &panels = m_printer.panels->panels();
        // The page General has it as well, and one place is enough to be found at.
        const QString color = colorOptionOf(*m_printer.session, m_printer.jobValues);
        for (int i = 0; i < panels.size(); ++i) {
            for (const PanelControl &control : m_printer.panels->controls(i)) {
                if (control.keyword != color)
                    addControl(control,
                               {SettingPlace::Page::Panel, i,
                                QStringList(panels.at(i)->panelName()) + control.sections});
            }
        }
    }

    void addOptions()
    {
        const QStringList beside = optionsBesidePages(m_printer);
        const QSet<QString> further(beside.cbegin(), beside.cend());
        const QString page =
            m_printer.panels->panels().isEmpty() ? Texts::tr("Options") : Texts::tr("All Options");
        for (int g = 0; g < ppd()->num_groups; ++g) {
            const ppd_group_t &group = ppd()->groups[g];
            const SettingPlace place{SettingPlace::Page::Options, -1, {page, groupTitle(group)}};
            for (int o = 0; o < group.num_options; ++o) {
                const QString keyword = ppdKeyword(group.options[o].keyword);
                if (further.contains(keyword))
                    addOption(keyword, place);
            }
        }
    }

private:
    ppd_file_t *ppd() const { return m_printer.session->ppd(); }

    static QList<Text> texts(const QString &own, const QString &foreign)
    {
        QList<Text> all{{searchForm(own), false}};
        if (!foreign.isEmpty() && foreign != own)
            all += Text{searchForm(foreign), true};
        return all;
    }

    void addField(Setting::Kind kind, const char *name)
    {
        const QString own = QCoreApplication::translate("SettingsIndex", name);
        const QString keyword =
            kind == Setting::Kind::Copies ? u"copies"_s : QString(kPageRangesAttribute);
        add({{kind, keyword, own, {SettingPlace::Page::General, -1, {Texts::tr("General")}}},
             texts(own, QString::fromLatin1(name)),
             {},
             {},
             {},
             {}});
    }

    void addAttributes(const QList<OfferedAttribute> &offered, OfferedAttribute::Place place)
    {
        for (const OfferedAttribute &one : offered) {
            if (one.place == place)
                addAttribute(*jobAttribute(one.name), place == OfferedAttribute::Place::More);
        }
    }

    void addAttribute(const JobAttribute &attribute, bool isMore)
    {
        const QString name = attribute.name;
        Entry entry;
        entry.setting = {Setting::Kind::Attribute, name, textOfJobAttribute({name, {}}).title, {}};
        entry.setting.place.titles = {Texts::tr("General")};
        if (isMore)
            entry.setting.place.titles += Texts::tr("More");
        entry.names = texts(entry.setting.name, QString::fromLatin1(attribute.title));
        const bool isBox = attribute.allowed.word(u"true"_s);
        for (const AllowedValues::Word &word : attribute.allowed.words) {
            if (isBox)
                break;
            const QString text = textOfJobAttribute({name, word.value}).value;
            const QString english =
                word.shown ? QString::fromLatin1(word.shown) : QString(word.value);
            entry.choices += Choice{text, texts(text, english), keywordForm(word.value)};
        }
        add(entry);
    }

    void addControl(const PanelControl &control, const SettingPlace &place)
    {
        addOption(control.keyword, place, control.text, &control.choices);
    }

    // `shown`: the texts of the choices that its control offers; null: all of them.
    void addOption(const QString &keyword, const SettingPlace &place, const QString &name = {},
                   const QStringList *shown = nullptr)
    {
        ppd_option_t *option = ppdOption(ppd(), keyword);
        ppd_option_t *foreign = ppdOption(m_untranslated.get(), keyword);
        const QString ownName =
            name.isEmpty() && option ? ppdText(option->text).value_or(keyword) : name;
        Entry entry;
        entry.setting = {Setting::Kind::Option, keyword, ownName, place};
        entry.names =
            texts(ownName, foreign ? ppdText(foreign->text).value_or(QString()) : QString());
        const QSet<QString> offered =
            shown ? QSet<QString>(shown->cbegin(), shown->cend()) : QSet<QString>();
        for (int i = 0; option && i < option->num_choices; ++i) {
            const QString text = choiceText(option->choices[i]);
            const QString choice = ppdKeyword(option->choices[i].choice);
            if ((shown && !offered.contains(text)) || isSecretChoice(ppd(), keyword, choice))
                continue;
            const ppd_choice_t *same = ppdChoice(foreign, choice);
            entry.choices += Choice{text, texts(text, same ? choiceText(*same) : QString()),
                                    keywordForm(choice)};
        }
        add(entry);
    }

    void add(Entry entry)
    {
        entry.keyword = keywordForm(entry.setting.keyword);
        entry.context = searchForm(entry.setting.place.titles.join(u' '));
        QStringList all{entry.keyword, entry.context};
        for (const Text &text : std::as_const(entry.names))
            all += text.form;
        for (const Choice &choice : std::as_const(entry.choices)) {
            all += choice.keyword;
            for (const Text &text : choice.names)
                all += text.form;
        }
        entry.all = all.join(u'\n');
        m_entries += entry;
    }

    const OpenedPrinter &m_printer;
    QList<Entry> &m_entries;
    PpdFile m_untranslated; // null where the printer's own texts are those that the user reads
};

SettingsIndex::SettingsIndex(const OpenedPrinter &printer, const QList<OfferedAttribute> &offered,
                             bool offersPages)
{
    Builder builder(printer, m_entries);
    builder.addGeneral(offered, offersPages);
    builder.addPanels();
    builder.addOptions();
}

QList<Setting> SettingsIndex::settings() const
{
    QList<Setting> all;
    for (const Entry &entry : m_entries)
        all += entry.setting;
    return all;
}

QStringList SettingsIndex::searchedTexts() const
{
    QStringList all;
    for (const Entry &entry : m_entries)
        all += entry.all;
    return all;
}

QStringList optionsBesidePages(const OpenedPrinter &printer)
{
    const bool hasPanels = !printer.panels->panels().isEmpty();
    // The box beside the copies stands for the printer's own option.
    const bool hasCollate = hasPanels && offersAttribute(kCollateAttribute, printer);
    const QString color = colorOptionOf(*printer.session, printer.jobValues);
    QStringList keywords;
    for (const ppd_option_t *option : furtherOptions(*printer.session)) {
        const QString keyword = ppdKeyword(option->keyword);
        const bool isBesideCopies = hasCollate && keyword == kCollateOption;
        if (!isBesideCopies && keyword != color && printer.panels->panelOf(keyword) < 0)
            keywords += keyword;
    }
    return keywords;
}

SettingsIndex settingsIndexOf(const PrintTask &task)
{
    if (!task.opened() || task.phase() == PrintTask::Phase::Opened)
        return {};
    return {*task.opened(), task.attributes(), !task.passesFilesOn()};
}

QString valueNow(const Setting &setting, PrintTask &task)
{
    const OpenedPrinter *printer = task.opened();
    if (!printer)
        return {};
    switch (setting.kind) {
    case Setting::Kind::Copies:
        return QLocale().toString(task.settings().copies());
    case Setting::Kind::Pages: {
        const QString ranges = task.settings().pageRanges();
        return ranges.isEmpty() ? Texts::tr("All") : ranges;
    }
    case Setting::Kind::Option:
        return OptionValues(*printer->session, printer->jobValues).text(setting.keyword);
    case Setting::Kind::Attribute:
        break;
    }
    const JobAttribute *attribute = jobAttribute(setting.keyword);
    for (const OfferedAttribute &one : task.attributes()) {
        if (one.name != setting.keyword)
            continue;
        const QString value = one.value.isNull() ? QString(attribute->usual) : one.value;
        return value.isEmpty() ? QString() : textOfJobAttribute({one.name, value}).value;
    }
    return {};
}

} // namespace corvana
