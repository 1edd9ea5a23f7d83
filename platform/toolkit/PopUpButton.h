#pragma once

#include <QIcon>
#include <QList>
#include <QString>
#include <QVariant>

#include "platform/PlatformExport.h"

class QComboBox;

/// What a pop-up button offers the panels, over QComboBox. Each item has a title and carries a
/// represented object; nothing here fires an action.
namespace corvana::popup {

/// Removes every item; nothing is selected then.
CORVANA_PLATFORM_EXPORT void removeAllItems(QComboBox *popUp);

/// Adds an item at the end and leaves the selection alone. Titles are unique: an item that has the
/// title already is removed first, so that "the item with that title" is always the new one.
CORVANA_PLATFORM_EXPORT void addItemWithTitle(QComboBox *popUp, const QString &title);

/// An item to be.
struct Item
{
    QString title;
    QVariant object; ///< what it represents
};

/// Replaces all items, as addItemWithTitle() would one after the other, in the time of one walk.
/// Nothing is selected then.
CORVANA_PLATFORM_EXPORT void setItems(QComboBox *popUp, const QList<Item> &items);

/// Removes one item. Removing the selected item selects nothing.
/// Range: an index that does not exist is ignored.
CORVANA_PLATFORM_EXPORT void removeItemAt(QComboBox *popUp, int index);

/// The index of the item, or -1.
CORVANA_PLATFORM_EXPORT int indexOfItemWithTitle(const QComboBox *popUp, const QString &title);
/// The index of the first item that carries exactly `object`, or -1.
CORVANA_PLATFORM_EXPORT int indexOfItemWithRepresentedObject(const QComboBox *popUp,
                                                             const QVariant &object);

CORVANA_PLATFORM_EXPORT void setRepresentedObject(QComboBox *popUp, int index,
                                                  const QVariant &object);
/// Invalid for an item that carries none and for an index that does not exist.
CORVANA_PLATFORM_EXPORT QVariant representedObject(const QComboBox *popUp, int index);

CORVANA_PLATFORM_EXPORT void setItemImage(QComboBox *popUp, int index, const QIcon &image);

/// Lets an item be picked or not. Range: an index that does not exist is ignored.
CORVANA_PLATFORM_EXPORT void setItemEnabled(QComboBox *popUp, int index, bool enabled);
/// False for an index that does not exist.
CORVANA_PLATFORM_EXPORT bool isItemEnabled(const QComboBox *popUp, int index);

/// Selects the item at `index`, or nothing with -1.
CORVANA_PLATFORM_EXPORT void selectItemAt(QComboBox *popUp, int index);

} // namespace corvana::popup
