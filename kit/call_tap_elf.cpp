// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// An ELF library calls imported functions through addresses that the dynamic linker fills in. The
// relocations say where these are and which symbols they stand for.
#include "call_tap.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstring>

#include <dlfcn.h>
#include <elf.h>
#include <link.h>
#include <sys/mman.h>
#include <unistd.h>

namespace VxKit::call_tap {

namespace {

#if defined(__aarch64__)
constexpr ElfW(Xword) importKinds[] = {R_AARCH64_JUMP_SLOT, R_AARCH64_GLOB_DAT};
#else
constexpr ElfW(Xword) importKinds[] = {R_X86_64_JUMP_SLOT, R_X86_64_GLOB_DAT};
#endif

/// Memory that is read-only once the library has been loaded.
struct ReadOnlyPart
{
    ElfW(Addr) base = 0; ///< where the library is loaded
    ElfW(Addr) begin = 0;
    ElfW(Addr) end = 0;

    bool contains(ElfW(Addr) address) const { return address >= begin && address < end; }
};

int findReadOnlyPart(dl_phdr_info* info, std::size_t /*size*/, void* result)
{
    auto& part = *static_cast<ReadOnlyPart*>(result);
    if (info->dlpi_addr != part.base)
        return 0;
    for (int i = 0; i < info->dlpi_phnum; ++i) {
        const ElfW(Phdr)& header = info->dlpi_phdr[i];
        if (header.p_type != PT_GNU_RELRO)
            continue;
        part.begin = part.base + header.p_vaddr;
        part.end = part.begin + header.p_memsz;
    }
    return 1;
}

/// The tables of a loaded library.
struct Tables
{
    ElfW(Addr) base = 0;
    const ElfW(Sym) * symbols = nullptr;
    const char* names = nullptr;
    struct Relocations
    {
        const ElfW(Rela) * first = nullptr;
        std::size_t bytes = 0;
        std::size_t count() const { return first ? bytes / sizeof(ElfW(Rela)) : 0; }
    };
    Relocations calls; ///< bound when they are called first
    Relocations others;

    explicit Tables(const link_map& map)
        : base(map.l_addr)
    {
        for (const ElfW(Dyn)* entry = map.l_ld; entry->d_tag != DT_NULL; ++entry) {
            switch (entry->d_tag) {
            case DT_SYMTAB:
                symbols = at<ElfW(Sym)>(entry->d_un.d_ptr);
                break;
            case DT_STRTAB:
                names = at<char>(entry->d_un.d_ptr);
                break;
            case DT_JMPREL:
                calls.first = at<ElfW(Rela)>(entry->d_un.d_ptr);
                break;
            case DT_PLTRELSZ:
                calls.bytes = entry->d_un.d_val;
                break;
            case DT_RELA:
                others.first = at<ElfW(Rela)>(entry->d_un.d_ptr);
                break;
            case DT_RELASZ:
                others.bytes = entry->d_un.d_val;
                break;
            default:
                break;
            }
        }
    }

private:
    /// Some dynamic linkers have added the base to these addresses already.
    template <typename Table>
    const Table* at(ElfW(Addr) address) const
    {
        return reinterpret_cast<const Table*>(address < base ? base + address : address);
    }
};

void setEntry(ElfW(Addr) address, void* value, const ReadOnlyPart& readOnly)
{
    auto& entry = *reinterpret_cast<void**>(address);
    if (std::atomic_ref(entry).load() == value)
        return;
    const auto pageSize = static_cast<ElfW(Addr)>(sysconf(_SC_PAGESIZE));
    auto* const page = reinterpret_cast<void*>(address / pageSize * pageSize);
    const bool isReadOnly = readOnly.contains(address);
    if (isReadOnly && mprotect(page, pageSize, PROT_READ | PROT_WRITE) != 0)
        return;
    std::atomic_ref(entry).store(value);
    if (isReadOnly)
        mprotect(page, pageSize, PROT_READ);
}

} // namespace

int redirectImports(const void* inLibrary, std::span<const Redirection> redirections)
{
    Dl_info info{};
    link_map* map = nullptr;
    if (!dladdr1(inLibrary, &info, reinterpret_cast<void**>(&map), RTLD_DL_LINKMAP) || !map)
        return 0;
    ReadOnlyPart readOnly{map->l_addr};
    dl_iterate_phdr(findReadOnlyPart, &readOnly);

    const Tables tables(*map);
    if (!tables.symbols || !tables.names)
        return 0;
    int redirected = 0;
    for (const Tables::Relocations& relocations : {tables.calls, tables.others}) {
        for (const ElfW(Rela) & relocation : std::span(relocations.first, relocations.count())) {
            const auto kind = ELF64_R_TYPE(relocation.r_info);
            if (std::ranges::find(importKinds, kind) == std::end(importKinds))
                continue;
            const char* const name =
                tables.names + tables.symbols[ELF64_R_SYM(relocation.r_info)].st_name;
            const auto found = std::ranges::find_if(redirections, [name](const Redirection& entry) {
                return std::strcmp(entry.name, name) == 0;
            });
            if (found == redirections.end())
                continue;
            setEntry(tables.base + relocation.r_offset, found->replacement, readOnly);
            ++redirected;
        }
    }
    return redirected;
}

void pin(const void* inLibrary)
{
    Dl_info info{};
    if (dladdr(inLibrary, &info) && info.dli_fname)
        dlopen(info.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
}

} // namespace VxKit::call_tap
