// What any program with a window of this kind costs: a main window with four empty tabs, as large as Korvel's.

#include <QApplication>
#include <QMainWindow>
#include <QTabWidget>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QMainWindow window;
    auto* tabs = new QTabWidget(&window);
    for (const char* title : {"One", "Two", "Three", "Four"})
        tabs->addTab(new QWidget, QLatin1String(title));
    window.setCentralWidget(tabs);
    window.resize(520, 655);
    window.show();
    return QApplication::exec();
}
