#include "dialog/window/pages/OptionsModel.h"

#include <algorithm>

#include <QApplication>
#include <QFont>
#include <QSet>

#include "dialog/session/CustomValue.h"
#include "dialog/session/OptionTexts.h"
#include "dialog/session/PpdSession.h"
#include "dialog/session/SearchForm.h"
#include "dialog/session/Summary.h"
#include "dialog/window/pages/ControlLock.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr quintptr kGroupId = 0; // options have the row of their group, from 1

// In the colours of the moment, which may be those of a dark desktop.
QVariant lockIcon()
{
    constexpr int kSize = 16;
    const qreal ratio = qApp->devicePixelRatio();
    return lockPicture(qRound(kSize * ratio), QGuiApplication::palette().color(QPalette::Text),
                       ratio);
}

} // namespace

OptionsModel::OptionsModel(PpdSession &session, const ListedOptions &listed, QObject *parent)
    : QAbstractItemModel(parent), m_session(session), m_values(session, listed.jobValues)
{
    const QList<ppd_option_t *> offered = listed.which == ListedOptions::Which::All
                                              ? choosableOptions(session)
                                              : furtherOptions(session);
    const QSet<const ppd_option_t *> isOffered(offered.cbegin(), offered.cend());
    const ppd_file_t *ppd = session.ppd();
    // libcups puts the options of a subgroup into the group around it.
    for (int g = 0; g < ppd->num_groups; ++g) {
        const ppd_group_t &group = ppd->groups[g];
        Group found{groupTitle(group), {}};
        for (int o = 0; o < group.num_options; ++o) {
            ppd_option_t *option = &group.options[o];
            if (!isOffered.contains(option))
                continue;
            const QString keyword = ppdKeyword(option->keyword);
            Option row;
            row.option = option;
            row.keyword = keyword;
            row.title = ppdText(option->text).value_or(keyword);
            row.isHidden = isSecret(session.ppd(), keyword);
            readMark(row);
            found.options += row;
        }
        if (!found.options.isEmpty())
            m_groups += found;
    }
}

int OptionsModel::optionCount() const
{
    int count = 0;
    for (const Group &group : m_groups)
        count += static_cast<int>(group.options.size());
    return count;
}

// False when that is what is shown already.
bool OptionsModel::readMark(Option &option) const
{
    const OptionValues::Value at = m_values.of(option.keyword);
    if (at == option.at)
        return false;
    option.at = at;
    option.value = m_values.text(option.keyword);
    const ppd_choice_t *choice = ppdChoice(option.option, at.choice);
    if (choice && !at.custom.isNull())
        option.value = tr("%1: %2").arg(choiceText(*choice), option.value);
    return true;
}

QModelIndex OptionsModel::indexOf(const QString &keyword) const
{
    for (int g = 0; g < m_groups.size(); ++g) {
        const QList<Option> &options = m_groups.at(g).options;
        const auto found =
            std::find_if(options.cbegin(), options.cend(),
                         [&](const Option &option) { return option.keyword == keyword; });
        if (found != options.cend())
            return index(static_cast<int>(found - options.cbegin()), Choice, index(g, Title));
    }
    return {};
}

void OptionsModel::refresh()
{
    m_values.refresh();
    for (int g = 0; g < m_groups.size(); ++g) {
        QList<Option> &options = m_groups[g].options;
        int first = -1;
        int last = -1;
        for (int o = 0; o < options.size(); ++o) {
            if (!readMark(options[o]))
                continue;
            first = first < 0 ? o : first;
            last = o;
        }
        // Once for a group: what shows it looks for the place of each row that it is told.
        if (first >= 0) {
            const QModelIndex group = index(g, Title);
            Q_EMIT dataChanged(index(first, Title, group), index(last, Choice, group));
        }
    }
}

const OptionsModel::Option *OptionsModel::optionAt(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == kGroupId)
        return nullptr;
    return &m_groups.at(static_cast<qsizetype>(index.internalId()) - 1).options.at(index.row());
}

void OptionsModel::showChanges(const ShownChanges &changes)
{
    if (m_changes == changes)
        return;
    m_changes = changes;
    for (int g = 0; g < m_groups.size(); ++g) {
        const QModelIndex group = index(g, Title);
        Q_EMIT dataChanged(index(0, Title, group), index(rowCount(group) - 1, Choice, group));
    }
}

bool OptionsModel::isChanged(const Option &option) const
{
    return m_changes ? m_changes->settings.contains(option.keyword)
                     : m_values.differsFromDefault(option.keyword);
}

bool OptionsModel::isChanged(const QModelIndex &index) const
{
    const Option *option = optionAt(index);
    return option && isChanged(*option);
}

void OptionsModel::proposeDefault(const QModelIndex &index)
{
    if (const Option *option = optionAt(index))
        setData(index, ppdKeyword(option->option->defchoice), Qt::EditRole);
}

QModelIndex OptionsModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : kGroupId);
}

QModelIndex OptionsModel::parent(const QModelIndex &index) const
{
    if (!optionAt(index))
        return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, Title, kGroupId);
}

int OptionsModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_groups.size());
    if (parent.internalId() != kGroupId || parent.column() != Title)
        return 0;
    return static_cast<int>(m_groups.at(parent.row()).options.size());
}

int OptionsModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

Qt::ItemFlags OptionsModel::flags(const QModelIndex &index) const
{
    if (!optionAt(index))
        return Qt::NoItemFlags; // a heading: the keys pass it by
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    const bool isLocked = m_session.locks().contains(optionAt(index)->keyword);
    return index.column() == Choice && !isLocked ? flags | Qt::ItemIsEditable : flags;
}

QVariant OptionsModel::data(const QModelIndex &index, int role) const
{
    const Option *option = optionAt(index);
    if (!option) {
        const bool title = index.isValid() && index.column() == Title && role == Qt::DisplayRole;
        return title ? m_groups.at(index.row()).title : QVariant();
    }
    const bool title = index.column() == Title;
    switch (role) {
    case Qt::DisplayRole:
        return title ? option->title : option->value;
    case Qt::EditRole:
        return title                        ? QVariant()
               : option->at.custom.isNull() ? option->at.choice
                                            : option->at.custom;
    case Qt::FontRole: {
        QFont font;
        font.setBold(isChanged(*option));
        return font.bold() ? font : QVariant();
    }
    case Qt::ToolTipRole:
        return plainToolTip(title ? titleToolTip(*option) : remark(*option));
    case Qt::DecorationRole:
        return !title && m_session.locks().contains(option->keyword) ? lockIcon() : QVariant();
    case Qt::AccessibleTextRole:
        // The focus is on the value, of which a screen reader would not say what it is a value of.
        return title ? option->title : u"%1: %2"_s.arg(option->title, option->value);
    case Qt::AccessibleDescriptionRole:
        // A heading is not read to who goes through the rows.
        return title ? m_groups.at(index.parent().row()).title : remark(*option);
    case KeywordRole:
        return option->keyword;
    case SearchRole:
        if (option->search.isNull())
            option->search = searchText(m_groups.at(index.parent().row()), *option);
        return option->search;
    default:
        return {};
    }
}

bool OptionsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const Option *option = optionAt(index);
    if (!option || role != Qt::EditRole)
        return false;
    const QString keyword = option->keyword;
    const QString choice = value.toString();
    Q_EMIT proposed(keyword, choice);
    refresh();
    const OptionValues::Value now = m_values.of(keyword);
    return (now.custom.isNull() ? now.choice : now.custom) == choice;
}

QString OptionsModel::searchText(const Group &group, const Option &option) const
{
    QStringList texts{group.title, option.title};
    for (int i = 0; i < option.option->num_choices; ++i)
        texts += choiceText(option.option->choices[i]);
    return searchForm(texts.join(u'\n'));
}

QString OptionsModel::titleToolTip(const Option &option) const
{
    const QString choice = option.at.custom.isNull() ? option.at.choice : option.at.custom;
    if (option.isHidden && !option.at.custom.isNull())
        return option.title;
    // The title is cut where it is too long; scripts want the keyword.
    return tr("%1\nFor the command line: %2")
        .arg(option.title, u"-o %1=%2"_s.arg(option.keyword, choice));
}

// What a changed option would be otherwise.
QString OptionsModel::formerText(const Option &option) const
{
    if (m_changes)
        return isChanged(option) ? tr("Changed. %1").arg(m_changes->settings.value(option.keyword))
                                 : QString();
    const ppd_choice_t *byDefault = ppdChoice(option.option, ppdKeyword(option.option->defchoice));
    return byDefault && m_values.differsFromDefault(option.keyword)
               ? tr("Default: %1").arg(choiceText(*byDefault))
               : QString();
}

// Who has chosen, where that is somebody else; else what the printer has by default.
QString OptionsModel::remark(const Option &option) const
{
    const QString by = m_session.lockedBy(option.keyword);
    return by.isNull() ? formerText(option) : lockedText(by);
}

OptionsFilter::OptionsFilter(QObject *parent) : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

void OptionsFilter::search(const QString &text)
{
    m_words = searchWords(text);
    invalidateFilter();
}

bool OptionsFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    if (m_words.isEmpty())
        return true;
    if (!parent.isValid())
        return false; // a group is there when one of its options is
    const QString text = sourceModel()
                             ->index(row, OptionsModel::Title, parent)
                             .data(OptionsModel::SearchRole)
                             .toString();
    return std::all_of(m_words.cbegin(), m_words.cend(),
                       [&](const QString &word) { return text.contains(word); });
}

} // namespace corvana
