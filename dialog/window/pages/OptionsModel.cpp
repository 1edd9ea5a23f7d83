#include "dialog/window/pages/OptionsModel.h"

#include <algorithm>

#include <QApplication>
#include <QFont>
#include <QSet>

#include "dialog/session/CustomValue.h"
#include "dialog/session/PpdSession.h"
#include "dialog/session/Summary.h"
#include "dialog/window/pages/ControlLock.h"
#include "platform/toolkit/PlainText.h"

namespace corvana {

using namespace Qt::StringLiterals;

namespace {

constexpr quintptr kGroupId = 0; // options have the row of their group, from 1

// Options outside any group are put into groups by libcups, whose names for them are not the
// printer's words.
QString groupTitle(const ppd_group_t &group)
{
    const QString name = ppdKeyword(group.name);
    const QString title = ppdText(group.text).value_or(name);
    if (title == "General"_L1)
        return OptionsModel::tr("General");
    if (title == "Installable Options"_L1)
        return OptionsModel::tr("Installable Options");
    return title;
}

// In the colours of the moment, which may be those of a dark desktop.
QVariant lockIcon()
{
    constexpr int kSize = 16;
    const qreal ratio = qApp->devicePixelRatio();
    return lockPicture(qRound(kSize * ratio), QGuiApplication::palette().color(QPalette::Text),
                       ratio);
}

// Marks that change the sound of a kana are no accents.
bool isAccent(QChar c)
{
    constexpr char16_t kVoiced = 0x3099;
    constexpr char16_t kSemiVoiced = 0x309a;
    return c.category() == QChar::Mark_NonSpacing && c != kVoiced && c != kSemiVoiced;
}

} // namespace

QString choiceText(const ppd_choice_t &choice)
{
    return ppdText(choice.text).value_or(ppdKeyword(choice.choice));
}

QString searchForm(const QString &text)
{
    QString form = text.normalized(QString::NormalizationForm_KD);
    form.removeIf(isAccent);
    return form.toCaseFolded();
}

OptionsModel::OptionsModel(PpdSession &session, QObject *parent)
    : QAbstractItemModel(parent), m_session(session)
{
    const QList<ppd_option_t *> offered = furtherOptions(session);
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
    const QString choice = m_session.markedChoice(option.keyword);
    const QString custom = m_session.customValue(option.keyword);
    if (choice == option.choice && custom == option.custom)
        return false;
    option.choice = choice;
    option.custom = custom;
    option.value = optionLine(m_session, option.keyword).value;
    if (const ppd_choice_t *marked = ppdChoice(option.option, choice); marked && !custom.isNull())
        option.value = tr("%1: %2").arg(choiceText(*marked), option.value);
    return true;
}

void OptionsModel::refresh()
{
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

bool OptionsModel::differsFromDefault(const QModelIndex &index) const
{
    const Option *option = optionAt(index);
    return option && m_session.differsFromDefault(option->keyword);
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
        return title ? QVariant() : option->custom.isNull() ? option->choice : option->custom;
    case Qt::FontRole: {
        QFont font;
        font.setBold(m_session.differsFromDefault(option->keyword));
        return font.bold() ? font : QVariant();
    }
    case Qt::ToolTipRole:
        return plainToolTip(title ? titleToolTip(*option) : remark(*option));
    case Qt::DecorationRole:
        return !title && m_session.locks().contains(option->keyword) ? lockIcon() : QVariant();
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
    const QString custom = m_session.customValue(keyword);
    return (custom.isNull() ? m_session.markedChoice(keyword) : custom) == choice;
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
    const QString choice = option.custom.isNull() ? option.choice : option.custom;
    if (option.isHidden && !option.custom.isNull())
        return option.title;
    // The title is cut where it is too long; scripts want the keyword.
    return tr("%1\nFor the command line: %2")
        .arg(option.title, u"-o %1=%2"_s.arg(option.keyword, choice));
}

QString OptionsModel::defaultText(const Option &option) const
{
    const ppd_choice_t *byDefault = ppdChoice(option.option, ppdKeyword(option.option->defchoice));
    return byDefault && m_session.differsFromDefault(option.keyword)
               ? tr("Default: %1").arg(choiceText(*byDefault))
               : QString();
}

// Who has chosen, where that is somebody else; else what the printer has by default.
QString OptionsModel::remark(const Option &option) const
{
    const QString by = m_session.lockedBy(option.keyword);
    return by.isNull() ? defaultText(option) : lockedText(by);
}

OptionsFilter::OptionsFilter(QObject *parent) : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

void OptionsFilter::search(const QString &text)
{
    m_words = searchForm(text).simplified().split(u' ', Qt::SkipEmptyParts);
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
