// Runs the fuzzed function on every file below the given folders, for compilers that cannot make
// inputs of their own; with --mutants=N before them also on N changed ones of each that is short.

#include "FuzzTarget.h"
#include "Mutation.h"

#include <QDirIterator>
#include <QFile>

#include <cstdio>
#include <random>

namespace {

constexpr qsizetype longestToChange = 20'000;

void take(const QByteArray &bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
}

void takeChanged(const QByteArray &bytes, int mutants)
{
    std::mt19937 random(static_cast<quint32>(bytes.size()));
    for (int i = 0; i < mutants; ++i)
        take(quillet::fuzzing::mutated(bytes, random));
}

} // namespace

int main(int argc, char *argv[])
{
    LLVMFuzzerInitialize(&argc, &argv);
    const QByteArray option("--mutants=");
    int mutants = 0, count = 0, changed = 0;
    for (int i = 1; i < argc; ++i) {
        if (QByteArrayView(argv[i]).startsWith(option)) {
            mutants = QByteArrayView(argv[i]).sliced(option.size()).toInt();
            continue;
        }
        QDirIterator files(QFile::decodeName(argv[i]), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            // Told before, so that the last line names the input that ended the process.
            std::printf("%s\n", qPrintable(file.fileName()));
            std::fflush(stdout);
            if (!file.open(QIODevice::ReadOnly))
                return 1;
            const QByteArray bytes = file.readAll();
            take(bytes);
            ++count;
            if (bytes.size() <= longestToChange) {
                takeChanged(bytes, mutants);
                changed += mutants;
            }
        }
    }
    std::printf("%d inputs, %d changed ones\n", count, changed);
    return count > 0 && (mutants == 0 || changed > 0) ? 0 : 1;
}
