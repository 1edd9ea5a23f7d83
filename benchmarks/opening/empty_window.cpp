// What no program with a window can beat: one that shows nothing in it.

#include <QApplication>
#include <QWidget>

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(600, 500);
    window.show();
    return QApplication::exec();
}
