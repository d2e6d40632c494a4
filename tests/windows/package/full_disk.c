// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A disk that fills up, for one program and without mounting anything. Preloaded into Wine
// (LD_PRELOAD), it lets a program write VX_FULL_DISK_BYTES bytes to the files whose path contains
// VX_FULL_DISK_FOLDER. After that there is no space left.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static atomic_llong written;

static int isFull(int file, size_t size)
{
    const char* folder = getenv("VX_FULL_DISK_FOLDER");
    const char* bytes = getenv("VX_FULL_DISK_BYTES");
    if (!folder || !bytes)
        return 0;
    const int before = errno;
    char link[64];
    char path[4096];
    snprintf(link, sizeof(link), "/proc/self/fd/%d", file);
    const ssize_t length = readlink(link, path, sizeof(path) - 1);
    errno = before;
    if (length <= 0)
        return 0;
    path[length] = '\0';
    if (!strstr(path, folder))
        return 0;
    if (atomic_fetch_add(&written, (long long)size) + (long long)size <= atoll(bytes))
        return 0;
    errno = ENOSPC;
    return 1;
}

ssize_t write(int file, const void* data, size_t size)
{
    static ssize_t (*next)(int, const void*, size_t);
    if (!next)
        *(void**)&next = dlsym(RTLD_NEXT, "write");
    return isFull(file, size) ? -1 : next(file, data, size);
}

ssize_t pwrite(int file, const void* data, size_t size, off_t offset)
{
    static ssize_t (*next)(int, const void*, size_t, off_t);
    if (!next)
        *(void**)&next = dlsym(RTLD_NEXT, "pwrite");
    return isFull(file, size) ? -1 : next(file, data, size, offset);
}

ssize_t pwrite64(int file, const void* data, size_t size, off64_t offset)
{
    static ssize_t (*next)(int, const void*, size_t, off64_t);
    if (!next)
        *(void**)&next = dlsym(RTLD_NEXT, "pwrite64");
    return isFull(file, size) ? -1 : next(file, data, size, offset);
}
