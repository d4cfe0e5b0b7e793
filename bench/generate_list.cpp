// SPDX-License-Identifier: MIT
#include "fileformats/word_list_file.h"
#include "generator.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char *argv[])
{
    if (argc != 3) {
        std::fputs("usage: generate_list COUNT FILE\n", stderr);
        return 2;
    }
    CWordList list = GenerateList(std::atoi(argv[1]), 1);
    if (!WriteWordListFile(list, QString::fromLocal8Bit(argv[2]))) {
        std::fputs("The file could not be written.\n", stderr);
        return 1;
    }
    return 0;
}
