// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Opens a file so that nobody else can open, rename or remove it, says "held", and closes it when
// standard input ends.
//
//     hold_file PATH
#include <cstdio>

#include <windows.h>

int wmain(int argc, wchar_t** argv)
{
    if (argc != 2) {
        std::fputs("hold_file: expected PATH\n", stderr);
        return 2;
    }
    const HANDLE file = CreateFileW(argv[1], GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        std::fprintf(stderr, "hold_file: error %lu\n", GetLastError());
        return 1;
    }
    std::puts("held");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    CloseHandle(file);
    return 0;
}
