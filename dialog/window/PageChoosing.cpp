#include "dialog/window/PageChoosing.h"

#include "dialog/task/PrintTask.h"
#include "dialog/window/thumbnails/PageChooser.h"

namespace corvana {

void choosePages(PrintTask &task, QWidget *window)
{
    auto *chooser = new PageChooser(task.choosablePages(), window);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(&task, &PrintTask::sheetsCounted, chooser,
                     [chooser, &task] { chooser->setPages(task.choosablePages()); });
    QObject::connect(&task, &PrintTask::printerClosed, chooser, &QDialog::reject);
    QObject::connect(chooser, &QDialog::accepted, &task, [chooser, &task] {
        if (chooser->hasChanged())
            task.choosePages(chooser->value());
    });
    chooser->open();
}

} // namespace corvana
