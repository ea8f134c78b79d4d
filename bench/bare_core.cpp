// What the start of the tool without a window is compared with: a program that does nothing.

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    return 0;
}
