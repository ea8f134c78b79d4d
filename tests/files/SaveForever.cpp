// Replaces a file with the contents of two others in turn until it is killed.

#include "files/FileOperations.h"
#include "files/FileReplacement.h"

#include <QFile>

#include <array>
#include <cstdio>

int main(int argc, char *argv[])
{
    if (argc != 4)
        return 2;
    std::array<QByteArray, 2> contents;
    for (std::size_t i = 0; i < contents.size(); ++i) {
        QFile file(QFile::decodeName(argv[2 + i]));
        if (!file.open(QIODevice::ReadOnly))
            return 2;
        contents[i] = file.readAll();
    }
    std::puts("ready");
    std::fflush(stdout);

    quillet::FileOperations operations;
    quillet::FileReplacement replacement(operations);
    quillet::Error error;
    const QString path = QFile::decodeName(argv[1]);
    for (std::size_t i = 0; replacement.replace(path, contents[i], error); i = 1 - i) {
    }
    std::fprintf(stderr, "%s\n", qPrintable(error.text()));
    return 1;
}
