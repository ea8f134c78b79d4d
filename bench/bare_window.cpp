// What the program's start is compared with: a window with a table and nothing else.

#include "bench/FirstPaint.h"

#include <QMainWindow>
#include <QStandardItemModel>
#include <QTableView>

int main(int argc, char *argv[])
{
    const QApplication app(argc, argv);
    const quillet::bench::FirstPaint firstPaint;
    QStandardItemModel model(0, 5);
    QMainWindow window;
    auto *table = new QTableView(&window);
    table->setModel(&model);
    window.setCentralWidget(table);
    window.resize(1000, 700);
    window.show();
    return QApplication::exec();
}
