#include "platform/toolkit/PopUpButton.h"

#include <QComboBox>
#include <QHash>
#include <QStandardItemModel>

#include "platform/toolkit/ProgrammaticChange.h"

namespace corvana::popup {

void removeAllItems(QComboBox *popUp)
{
    const ProgrammaticChange change;
    popUp->clear();
}

void addItemWithTitle(QComboBox *popUp, const QString &title)
{
    const ProgrammaticChange change;
    removeItemAt(popUp, indexOfItemWithTitle(popUp, title));
    const int selected = popUp->currentIndex();
    popUp->addItem(title);
    // QComboBox selects the first item that it ever gets by itself.
    popUp->setCurrentIndex(selected);
}

void setItems(QComboBox *popUp, const QList<Item> &items)
{
    const ProgrammaticChange change;
    popUp->clear();
    QHash<QString, qsizetype> last; // of each title
    for (qsizetype i = 0; i < items.size(); ++i)
        last.insert(items.at(i).title, i);
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (last.value(items.at(i).title) == i)
            popUp->addItem(items.at(i).title, items.at(i).object);
    }
    popUp->setCurrentIndex(-1);
}

void removeItemAt(QComboBox *popUp, int index)
{
    if (index < 0 || index >= popUp->count())
        return;
    const ProgrammaticChange change;
    // QComboBox would select a neighbour of a removed item.
    if (popUp->currentIndex() == index)
        popUp->setCurrentIndex(-1);
    popUp->removeItem(index);
}

int indexOfItemWithTitle(const QComboBox *popUp, const QString &title)
{
    return popUp->findText(title, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

int indexOfItemWithRepresentedObject(const QComboBox *popUp, const QVariant &object)
{
    if (!object.isValid())
        return -1;
    const auto isText = [](const QVariant &value) { return value.typeId() == QMetaType::QString; };
    for (int i = 0; i < popUp->count(); ++i) {
        const QVariant item = popUp->itemData(i);
        // QVariant takes the text "12" and the number 12 for equal.
        if (isText(item) == isText(object) && item == object)
            return i;
    }
    return -1;
}

void setRepresentedObject(QComboBox *popUp, int index, const QVariant &object)
{
    popUp->setItemData(index, object);
}

QVariant representedObject(const QComboBox *popUp, int index)
{
    return popUp->itemData(index);
}

void setItemImage(QComboBox *popUp, int index, const QIcon &image)
{
    popUp->setItemIcon(index, image);
}

void setItemEnabled(QComboBox *popUp, int index, bool enabled)
{
    auto *model = qobject_cast<QStandardItemModel *>(popUp->model());
    if (QStandardItem *item = model ? model->item(index) : nullptr)
        item->setEnabled(enabled);
}

bool isItemEnabled(const QComboBox *popUp, int index)
{
    return popUp->model()->flags(popUp->model()->index(index, 0)).testFlag(Qt::ItemIsEnabled);
}

void selectItemAt(QComboBox *popUp, int index)
{
    const ProgrammaticChange change;
    popUp->setCurrentIndex(index);
}

} // namespace corvana::popup
