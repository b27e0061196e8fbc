// The exported surface of the built libraries, read from their files: libpxlipx exports exactly the
// listed names, each one a single indirect jump through its own slot of one table in the order of
// the names; libpxlcore exports its three functions.
#include <elf.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

struct Symbol {
    std::string name;
    uint64_t value = 0, size = 0;
    unsigned type = 0, bind = 0;
    bool defined = false;
};

class ElfFile {
public:
    explicit ElfFile(const std::string& path)
    {
        std::ifstream in(path, std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(in), {});
        if (bytes_.size() < sizeof(Elf64_Ehdr) || std::memcmp(bytes_.data(), ELFMAG, SELFMAG) != 0 ||
            bytes_[EI_CLASS] != ELFCLASS64)
            return;
        const auto* eh = at<Elf64_Ehdr>(0);
        for (int i = 0; i < eh->e_shnum; ++i) sections_.push_back(*at<Elf64_Shdr>(eh->e_shoff + i * eh->e_shentsize));
        ok_ = true;
    }
    bool ok() const { return ok_; }

    std::vector<Symbol> symbols(uint32_t tableType) const
    {
        std::vector<Symbol> out;
        for (const auto& sh : sections_) {
            if (sh.sh_type != tableType) continue;
            const auto& strtab = sections_[sh.sh_link];
            for (uint64_t off = sh.sh_offset; off + sizeof(Elf64_Sym) <= sh.sh_offset + sh.sh_size; off += sizeof(Elf64_Sym)) {
                const auto* s = at<Elf64_Sym>(off);
                Symbol sym;
                sym.name = reinterpret_cast<const char*>(bytes_.data() + strtab.sh_offset + s->st_name);
                sym.value = s->st_value;
                sym.size = s->st_size;
                sym.type = ELF64_ST_TYPE(s->st_info);
                sym.bind = ELF64_ST_BIND(s->st_info);
                sym.defined = s->st_shndx != SHN_UNDEF;
                out.push_back(sym);
            }
        }
        return out;
    }

    // The bytes at a virtual address, through the section that holds it in the file.
    const uint8_t* atAddress(uint64_t addr, uint64_t len) const
    {
        for (const auto& sh : sections_)
            if (sh.sh_type == SHT_PROGBITS && addr >= sh.sh_addr && addr + len <= sh.sh_addr + sh.sh_size)
                return bytes_.data() + sh.sh_offset + (addr - sh.sh_addr);
        return nullptr;
    }
    std::string sectionOf(uint64_t addr) const
    {
        const auto& names = sections_[at<Elf64_Ehdr>(0)->e_shstrndx];
        for (const auto& sh : sections_)
            if (sh.sh_addr && addr >= sh.sh_addr && addr < sh.sh_addr + sh.sh_size)
                return reinterpret_cast<const char*>(bytes_.data() + names.sh_offset + sh.sh_name);
        return "";
    }
    // Load-time relocations: where each relative relocation writes, and the address it writes.
    std::map<uint64_t, uint64_t> relativeRelocations() const
    {
        std::map<uint64_t, uint64_t> out;
        for (const auto& sh : sections_) {
            if (sh.sh_type != SHT_RELA) continue;
            for (uint64_t off = sh.sh_offset; off + sizeof(Elf64_Rela) <= sh.sh_offset + sh.sh_size; off += sizeof(Elf64_Rela)) {
                const auto* r = at<Elf64_Rela>(off);
                if (ELF64_R_TYPE(r->r_info) == R_X86_64_RELATIVE) out[r->r_offset] = static_cast<uint64_t>(r->r_addend);
            }
        }
        return out;
    }

private:
    template <class T> const T* at(uint64_t off) const { return reinterpret_cast<const T*>(bytes_.data() + off); }
    std::vector<uint8_t> bytes_;
    std::vector<Elf64_Shdr> sections_;
    bool ok_ = false;
};

std::set<std::string> exportedFunctions(const ElfFile& elf)
{
    std::set<std::string> out;
    for (const auto& s : elf.symbols(SHT_DYNSYM))
        if (s.defined && s.bind == STB_GLOBAL && s.type != STT_NOTYPE) out.insert(s.name);
    return out;
}

std::vector<std::string> listedNames()
{
    std::ifstream in(PXL_EXPORTS_FILE);
    std::vector<std::string> names;
    for (std::string line; std::getline(in, line);)
        if (!line.empty()) names.push_back(line);
    return names;
}

}  // namespace

TEST(Entries, ExportedSetIsTheListInByteOrder)
{
    ElfFile lib(PXL_LIBRARY_FILE);
    ASSERT_TRUE(lib.ok());
    const auto names = listedNames();
    ASSERT_FALSE(names.empty());
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));  // std::string compares bytes
    const auto exported = exportedFunctions(lib);
    EXPECT_EQ(exported, std::set<std::string>(names.begin(), names.end()));
    for (const auto& s : lib.symbols(SHT_DYNSYM)) {
        if (s.defined && s.bind == STB_GLOBAL) {
            EXPECT_EQ(s.type, STT_FUNC) << s.name << " is exported and not a function";
        }
    }
}

TEST(Entries, EveryStubIsOneJumpThroughItsOwnSlot)
{
    ElfFile lib(PXL_LIBRARY_FILE);
    ASSERT_TRUE(lib.ok());
    const auto names = listedNames();
    std::map<std::string, Symbol> dyn;
    for (const auto& s : lib.symbols(SHT_DYNSYM)) dyn[s.name] = s;

    // Where the kernels are built for several processor levels, each level has a table of its own
    // (pxl_entries_0 for the first x86-64, and so on) and the exported table's slots pick one.
    Symbol table;
    std::vector<Symbol> levels;
    for (const auto& s : lib.symbols(SHT_SYMTAB)) {
        if (s.name == "pxl_entries") table = s;
        if (s.name.rfind("pxl_entries_", 0) == 0) levels.push_back(s);
    }
    ASSERT_TRUE(table.defined) << "the table's symbol is not in the file";
    EXPECT_EQ(table.size, names.size() * 8) << "one slot per name";
    EXPECT_EQ(lib.sectionOf(table.value), ".data.rel.ro") << "the table is read-only after relocation";

    const auto relocs = lib.relativeRelocations();
    std::set<uint64_t> stubs, targets;
    for (const auto& n : names) stubs.insert(dyn[n].value);
    for (std::size_t k = 0; k < names.size(); ++k) {
        const Symbol& s = dyn[names[k]];
        SCOPED_TRACE(names[k]);
        ASSERT_TRUE(s.defined);
        const uint8_t* code = lib.atAddress(s.value, 6);
        ASSERT_NE(code, nullptr);
        // jmp *disp32(%rip): FF 25 followed by the displacement from the next instruction.
        ASSERT_EQ(code[0], 0xFF);
        ASSERT_EQ(code[1], 0x25);
        int32_t disp;
        std::memcpy(&disp, code + 2, 4);
        const uint64_t slot = s.value + 6 + static_cast<int64_t>(disp);
        EXPECT_EQ(slot, table.value + 8 * k) << "slot " << k << " in byte order of the names";
        EXPECT_EQ(s.size, 6u) << "the stub does nothing but jump";
        // The slot is filled at load with the implementation's address, which is not a stub.
        const auto r = relocs.find(slot);
        ASSERT_NE(r, relocs.end()) << "slot without a relocation";
        EXPECT_EQ(lib.sectionOf(r->second), ".text");
        EXPECT_EQ(stubs.count(r->second), 0u);
        targets.insert(r->second);
    }
    // Names that share a body share a target: every pxliMalloc form of the same bytes per pixel.
    for (const Symbol& level : levels) {
        SCOPED_TRACE(level.name);
        EXPECT_EQ(level.size, names.size() * 8) << "one slot per name";
        EXPECT_EQ(lib.sectionOf(level.value), ".data.rel.ro");
        targets.clear();
        for (std::size_t k = 0; k < names.size(); ++k) {
            const auto r = relocs.find(level.value + 8 * k);
            ASSERT_NE(r, relocs.end()) << "slot without a relocation";
            EXPECT_EQ(lib.sectionOf(r->second), ".text");
            EXPECT_EQ(stubs.count(r->second), 0u);
            targets.insert(r->second);
        }
        EXPECT_LT(targets.size(), names.size());
    }
    EXPECT_LT(targets.size(), names.size());
    RecordProperty("distinct_targets", static_cast<int>(targets.size()));
}

TEST(Entries, CoreExportsItsThreeFunctions)
{
    ElfFile core(PXL_CORE_FILE);
    ASSERT_TRUE(core.ok());
    EXPECT_EQ(exportedFunctions(core), (std::set<std::string>{"pxlFree", "pxlMalloc", "pxlMalloc_L"}));
}
