#pragma once

#include <QList>
#include <QObject>

#include "dialog/task/SettingsIndex.h"

namespace corvana {

class FindField;
class MessageBar;
class SettingsPages;

/// Finds the settings of a task for the field in which they are searched for, and goes to the one
/// that is picked. What can be found is collected when somebody begins to search.
///
/// Ownership: borrows the task and the parts of its window.
class SettingFinder : public QObject
{
    Q_OBJECT

public:
    SettingFinder(PrintTask &task, FindField &field, SettingsPages &pages, MessageBar &message,
                  QObject *parent);

private:
    void search(const QString &text);
    void sayNothingFound(const QString &text);
    void go(int row);
    void collect();
    void forget();

    PrintTask &m_task;
    FindField &m_field;
    SettingsPages &m_pages;
    MessageBar &m_message;
    SettingsIndex m_index;
    QStringList m_collected; // what of the task the index was made from; empty: it has to be made
    QList<FoundSetting> m_found;
};

} // namespace corvana
