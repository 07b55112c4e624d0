// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Stands in for libFuzzer where there is none: runs a target on every file of a folder, and on
// bytes drawn at random, which differ from target to target only by what the target makes of them.
// With a file's name it runs every truncation of that file, and the file with each byte in turn
// replaced: by every other value, or in a large file by one of those that have a meaning in text
// (by every one if VNA_EVERY_CHANGE is set, which takes minutes).
//   fuzz_<target> FOLDER [RUNS [FILE]]
#include "input.h"

#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace
{

constexpr int largestForEveryValue = 1024;

void runOn(const QByteArray &bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
}

int damage(const QByteArray &bytes)
{
    int runs = 0;
    for (int size = 0; size < bytes.size(); ++size, ++runs)
        runOn(bytes.left(size));
    const bool everyValue =
        bytes.size() <= largestForEveryValue || qEnvironmentVariableIsSet("VNA_EVERY_CHANGE");
    const QByteArray meaningful("\n\"\\=@\xff\0[", 8);
    for (int at = 0; at < bytes.size(); ++at) {
        QByteArray changed = bytes;
        for (int value = 0; value < 256; ++value) {
            const char c = static_cast<char>(value);
            if (c == bytes.at(at) || (!everyValue && c != meaningful.at(at % meaningful.size())))
                continue;
            changed[at] = c;
            runOn(changed);
            ++runs;
        }
    }
    return runs;
}

} // namespace

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    if (argc < 2)
        return 2;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 2;
        std::printf("%s\n", qPrintable(name)); // so that a crash tells which one it was
        std::fflush(stdout);
        const QByteArray bytes = file.readAll();
        runOn(bytes);
        if (argc > 3 && name == QString::fromLocal8Bit(argv[3]))
            std::printf("damaged in %d ways\n", damage(bytes));
    }

    const unsigned runs = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : 0;
    for (unsigned seed = 1; seed <= runs; ++seed) {
        std::mt19937 random(seed);
        std::vector<std::uint8_t> bytes(random() % 4096);
        for (std::uint8_t &b : bytes)
            b = static_cast<std::uint8_t>(random());
        std::printf("seed %u\n", seed);
        std::fflush(stdout);
        LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    }
    std::printf("%d files, %u random inputs\n", static_cast<int>(names.size()), runs);
    Fuzz::finish();
    // An empty folder would pass whatever happens.
    return names.isEmpty() ? 1 : 0;
}
