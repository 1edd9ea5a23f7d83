#pragma once

#include <optional>

#include <QAbstractItemModel>
#include <QList>
#include <QSortFilterProxyModel>
#include <QString>
#include <QStringList>

#include "dialog/session/OptionValues.h"
#include "dialog/window/pages/ListedOptions.h"
#include "dialog/window/pages/ShownChanges.h"
#include "platform/printcore/Ppd.h"

namespace corvana {

class PpdSession;

/// Options of a printer under the groups of its PPD and in their order, with the choices that they
/// are at.
///
/// A choice that is set here is proposed; what became of it is shown after refresh().
class OptionsModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { Title, Choice, ColumnCount };
    enum Role {
        KeywordRole = Qt::UserRole, ///< of the option; null for a group
        SearchRole                  ///< group, option and choices in the form of searchForm()
    };

    /// Borrows the session, and the plug-in's values.
    explicit OptionsModel(PpdSession &session, const ListedOptions &listed = {},
                          QObject *parent = nullptr);

    PpdSession &session() const { return m_session; }
    const OptionValues &values() const { return m_values; }
    /// The row of an option; invalid for one that is not listed.
    QModelIndex indexOf(const QString &keyword) const;
    int optionCount() const;
    /// Shows the session's marks.
    void refresh();
    /// Marks the options that were changed; until this was called, those that differ from the
    /// printer's own defaults.
    void showChanges(const ShownChanges &changes);
    /// Whether the option of this row is marked.
    bool isChanged(const QModelIndex &index) const;
    /// Proposes the printer's default for the option of this row.
    void proposeDefault(const QModelIndex &index);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    /// Proposes the keyword of a choice or `Custom.…`. True when it is marked then.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

Q_SIGNALS:
    /// The user picked a choice.
    void proposed(const QString &keyword, const QString &choice);

private:
    struct Option
    {
        ppd_option_t *option = nullptr;
        QString keyword;
        QString title;
        OptionValues::Value at; ///< what is shown
        QString value;          ///< its text
        bool isHidden = false;  ///< its custom value is a password
        mutable QString search;
    };
    struct Group
    {
        QString title;
        QList<Option> options;
    };

    const Option *optionAt(const QModelIndex &index) const;
    bool isChanged(const Option &option) const;
    bool readMark(Option &option) const;
    QString searchText(const Group &group, const Option &option) const;
    QString titleToolTip(const Option &option) const;
    QString formerText(const Option &option) const;
    QString remark(const Option &option) const;

    PpdSession &m_session;
    OptionValues m_values;
    QList<Group> m_groups;
    std::optional<ShownChanges> m_changes;
};

/// The options that hold all words of a search, each in its group.
class OptionsFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit OptionsFilter(QObject *parent = nullptr);

    void search(const QString &text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QStringList m_words;
};

} // namespace corvana
