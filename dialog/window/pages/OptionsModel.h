#pragma once

#include <QAbstractItemModel>
#include <QList>
#include <QSortFilterProxyModel>
#include <QString>
#include <QStringList>

#include "platform/printcore/Ppd.h"

namespace corvana {

class PpdSession;

/// The options of a printer that the General page does not offer, under the groups of its PPD and
/// in their order, with the choices that the session has marked.
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

    /// Borrows the session.
    explicit OptionsModel(PpdSession &session, QObject *parent = nullptr);

    PpdSession &session() const { return m_session; }
    int optionCount() const;
    /// Shows the session's marks.
    void refresh();
    /// Whether the option of this row differs from the printer's default.
    bool differsFromDefault(const QModelIndex &index) const;
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
        QString choice; ///< the mark that is shown
        QString custom;
        QString value;         ///< its text
        bool isHidden = false; ///< its custom value is a password
        mutable QString search;
    };
    struct Group
    {
        QString title;
        QList<Option> options;
    };

    const Option *optionAt(const QModelIndex &index) const;
    bool readMark(Option &option) const;
    QString searchText(const Group &group, const Option &option) const;
    QString titleToolTip(const Option &option) const;
    QString defaultText(const Option &option) const;
    QString remark(const Option &option) const;

    PpdSession &m_session;
    QList<Group> m_groups;
};

/// The text of an option's choice as the PPD says it; its keyword where that cannot be read.
QString choiceText(const ppd_choice_t &choice);

/// The form in which texts are compared when somebody searches: without regard to case, accents and
/// the width of letters.
QString searchForm(const QString &text);

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
