#pragma once

class QWidget;

namespace corvana {

class PrintTask;

/// Lets the user choose pages of a task's documents, in a window before `window`. What is chosen
/// becomes the task's when that is accepted; nothing is lost when it is not.
void choosePages(PrintTask &task, QWidget *window);

} // namespace corvana
