// The print dialog that Qt brings, in a program that does nothing else.

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QPrinter printer;
    QPrintDialog dialog(&printer);
    return dialog.exec();
}
