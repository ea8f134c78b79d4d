// Runs the fuzzed function on every file below the given folders, for compilers that cannot make
// inputs of their own.

#include "FuzzTarget.h"

#include <QDirIterator>
#include <QFile>

#include <cstdio>

int main(int argc, char *argv[])
{
    LLVMFuzzerInitialize(&argc, &argv);
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator files(QFile::decodeName(argv[i]), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            // Told before, so that the last line names the input that ended the process.
            std::printf("%s\n", qPrintable(file.fileName()));
            std::fflush(stdout);
            if (!file.open(QIODevice::ReadOnly))
                return 1;
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                                   static_cast<std::size_t>(bytes.size()));
            ++count;
        }
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
