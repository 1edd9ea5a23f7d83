#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "dialog/session/OfferedAttribute.h"

namespace corvana {

class PrintTask;
struct OpenedPrinter;

/// Where a user finds a setting.
struct SettingPlace
{
    enum class Page {
        General,
        Panel,
        Options, ///< the list of the printer's options
    };

    Page page = Page::General;
    int panel = -1;       ///< the index of the panel, on a page of one
    QStringList titles{}; ///< of the page and of the parts in it that hold the setting

    bool operator==(const SettingPlace &) const = default;
};

/// One thing that a user can set.
struct Setting
{
    enum class Kind { Copies, Pages, Option, Attribute };

    Kind kind = Kind::Option;
    QString keyword{}; ///< of the option, or the name of the attribute
    QString name{};    ///< as the user reads it
    SettingPlace place{};

    bool operator==(const Setting &) const = default;
};

/// A setting that was found, by its own names or by those of one of its choices.
struct FoundSetting
{
    Setting setting{};
    QString choice{}; ///< the text of the choice that was found; null: the setting itself was

    bool operator==(const FoundSetting &) const = default;
};

/// Everything that can be set for a printer, to be found by name: options of the PPD wherever they
/// stand, controls of panels, attributes of the job. Each is known by its names and those of its
/// choices in the user's language and in English, and by its keywords.
///
/// A value of the moment: with other attributes or another printer it is made anew. Making it reads
/// the PPD again where that is translated, which costs some milliseconds.
class SettingsIndex
{
public:
    /// Nothing can be found.
    SettingsIndex() = default;
    /// `offered`: the attributes that the faces offer. `offersPages`: whether pages can be chosen.
    SettingsIndex(const OpenedPrinter &printer, const QList<OfferedAttribute> &offered,
                  bool offersPages);

    /// In the order of the pages.
    QList<Setting> settings() const;

    /// What was found for the words that were typed, in any order of the words, best first; nothing
    /// without a word. A word that begins a text or a word of it beats one in the midst of it; then
    /// a name beats a choice, and a choice beats a keyword; then the user's own language beats
    /// English. What is equal stands in the order of the pages.
    /// Range: the best hundred.
    QList<FoundSetting> find(const QString &typed) const;
    /// Other words for which something is found, where somebody may have mistyped; null for none.
    QString suggestionFor(const QString &typed) const;

    /// What is looked through, a text for each setting.
    QStringList searchedTexts() const;

private:
    struct Text
    {
        QString form;           ///< see searchForm()
        bool isForeign = false; ///< not what the user reads
    };
    struct Choice
    {
        QString text;
        QList<Text> names;
        QString keyword; ///< as it is looked for
    };
    struct Entry
    {
        Setting setting;
        QList<Text> names;
        QString keyword; ///< as it is looked for
        QString context; ///< where it is, as it is looked for
        QList<Choice> choices;
        QString all; ///< everything above
    };
    class Builder;
    class Search;

    QList<Entry> m_entries;
};

/// The options of the PPD that no page shows but the list of all of them: neither the General page,
/// nor a panel. For a printer without panels, those that the General page does not show.
QStringList optionsBesidePages(const OpenedPrinter &printer);

/// The index of a task as it stands; an empty one while no printer is ready.
SettingsIndex settingsIndexOf(const PrintTask &task);

/// What a setting is at now, as the user reads it; null where it is at nothing.
QString valueNow(const Setting &setting, PrintTask &task);

} // namespace corvana
