// Generates the entry table and the one-jump stubs from the list of exported names.
//
// Reads src/exports.list and the preprocessed public header, and writes into the output folder:
//   table.hpp      the typed table, one slot per name in byte order of the names, with a check of
//                  every target's type against the name's prototype;
//   entries.cpp    the table of one build of the kernels (named by PXL_LEVEL_TABLE);
//   dispatch.cpp   the table of the exported entries where the kernels are built for several
//                  processor levels: each slot picks the level's table at every call;
//   stubs.S        one stub per name: a single indirect jump through its own slot;
//   inst/<f>.inc   the instantiations that source file <f> must emit for the table;
//   exports.txt    the names in table order, for the tests;
//   families.h     entry counts by family, for the pxl command.
// Fails (exit 1) when the list and the header disagree, or the list is malformed. Built and run
// at build time, so that the library needs nothing but a C++ compiler and CMake.
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

struct Entry {
    std::string name, target, unit;
    bool shared;  // a body shared by names whose prototypes differ only in pointee types
};

[[noreturn]] void fail(const std::string& msg)
{
    std::fprintf(stderr, "gen_entries: %s\n", msg.c_str());
    std::exit(1);
}

std::string readFile(const fs::path& p)
{
    std::ifstream in(p, std::ios::binary);
    if (!in) fail("cannot read " + p.string());
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

void writeIfChanged(const fs::path& p, const std::string& text)
{
    fs::create_directories(p.parent_path());
    if (fs::exists(p) && readFile(p) == text) return;
    std::ofstream out(p, std::ios::binary);
    out << text;
    if (!out) fail("cannot write " + p.string());
}

std::string trim(const std::string& s)
{
    const auto b = s.find_first_not_of(" \t\r\n");
    if (b == std::string::npos) return "";
    return s.substr(b, s.find_last_not_of(" \t\r\n") - b + 1);
}

bool isIdent(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

// pxli or pxlr, an upper-case letter, then letters, digits and underscores.
bool exportedName(const std::string& s)
{
    if (s.size() < 5 || s.compare(0, 3, "pxl") != 0 || (s[3] != 'i' && s[3] != 'r') || !std::isupper(static_cast<unsigned char>(s[4])))
        return false;
    return std::all_of(s.begin(), s.end(), isIdent);
}

std::vector<Entry> readList(const fs::path& list, const fs::path& src)
{
    std::vector<Entry> entries;
    std::set<std::string> seen;
    std::string unit;
    std::istringstream in(readFile(list));
    std::string raw;
    for (int lineno = 1; std::getline(in, raw); ++lineno) {
        const std::string line = trim(raw.substr(0, raw.find('#')));
        if (line.empty()) continue;
        const std::string where = list.string() + ":" + std::to_string(lineno);
        if (line[0] == '[') {
            if (line.back() != ']') fail(where + ": bad section line '" + line + "'");
            unit = trim(line.substr(1, line.size() - 2));
            if (unit.size() < 5 || unit.compare(unit.size() - 4, 4, ".cpp") != 0)
                fail(where + ": a section names a .cpp file below src/, not '" + unit + "'");
            const fs::path unitPath = src / unit;
            if (!fs::is_regular_file(unitPath)) fail(where + ": no source file " + unitPath.string());
            const std::string inc = "#include \"inst/" + unit.substr(0, unit.size() - 4) + ".inc\"";
            if (readFile(unitPath).find(inc) == std::string::npos) fail(unitPath.string() + " must end with " + inc);
            continue;
        }
        const auto cut = line.find_first_of(" \t");
        if (cut == std::string::npos) fail(where + ": expected a name and its target");
        const std::string name = line.substr(0, cut);
        std::string target = trim(line.substr(cut));
        if (unit.empty()) fail(where + ": '" + name + "' comes before any [file] section");
        if (!exportedName(name)) fail(where + ": '" + name + "' is not an exported name");
        if (!seen.insert(name).second) fail(where + ": '" + name + "' is listed twice");
        const bool shared = target[0] == '~';
        if (shared) target = trim(target.substr(1));
        entries.push_back({name, target, unit, shared});
    }
    return entries;
}

// Every name the header declares: an exported name followed by an opening parenthesis.
std::set<std::string> declaredNames(const std::string& text)
{
    std::set<std::string> names;
    for (std::size_t i = 0; i < text.size();) {
        if (!isIdent(text[i])) {
            ++i;
            continue;
        }
        std::size_t j = i;
        while (j < text.size() && isIdent(text[j])) ++j;
        std::size_t k = j;
        while (k < text.size() && std::isspace(static_cast<unsigned char>(text[k]))) ++k;
        const std::string word = text.substr(i, j - i);
        if (k < text.size() && text[k] == '(' && exportedName(word)) names.insert(word);
        i = j;
    }
    return names;
}

std::string firstOf(const std::vector<std::string>& names)
{
    std::string s;
    for (std::size_t i = 0; i < names.size() && i < 20; ++i) s += (i ? ", " : "") + names[i];
    return s;
}

}  // namespace

int main(int argc, char** argv)
{
    std::map<std::string, std::string> arg;
    for (int i = 1; i + 1 < argc; i += 2) arg[argv[i]] = argv[i + 1];
    for (const char* need : {"--list", "--header", "--src", "--out"})
        if (!arg.count(need)) fail(std::string("usage: gen_entries --list F --header F --src DIR --out DIR (missing ") + need + ")");
    const fs::path out = arg["--out"];

    std::vector<Entry> entries = readList(arg["--list"], arg["--src"]);
    const std::set<std::string> declared = declaredNames(readFile(arg["--header"]));
    std::set<std::string> listed;
    for (const auto& e : entries) listed.insert(e.name);
    std::vector<std::string> missing, undeclared;
    std::set_difference(declared.begin(), declared.end(), listed.begin(), listed.end(), std::back_inserter(missing));
    std::set_difference(listed.begin(), listed.end(), declared.begin(), declared.end(), std::back_inserter(undeclared));
    if (!missing.empty()) fail("declared in the public header but not listed in exports.list: " + firstOf(missing));
    if (!undeclared.empty()) fail("listed in exports.list but not declared in the public header: " + firstOf(undeclared));

    // Byte order of the names (std::string compares by char; names are ASCII).
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) { return a.name < b.name; });
    const std::size_t n = entries.size();
    const std::string head = "// Generated by tools/gen_entries.cpp from src/exports.list. Do not edit.\n";

    std::string hpp = head + "#pragma once\n#include <cstddef>\n#include <type_traits>\n#include \"pxlipx.h\"\n"
                             "#include \"targets.hpp\"\n#include \"frame/entry_abi.hpp\"\n\nnamespace pxl {\nstruct EntryTable {\n";
    for (const auto& e : entries) hpp += "    decltype(&" + e.target + ") " + e.name + ";\n";
    hpp += "};\n}  // namespace pxl\n\n";
    for (std::size_t k = 0; k < n; ++k) {
        const auto& e = entries[k];
        hpp += "static_assert(" + std::string(e.shared ? "pxl::SameAbi" : "std::is_same") + "<decltype(&::" + e.name +
               "), decltype(&" + e.target + ")>::value, \"" + e.name + "\");\n";
        hpp += "static_assert(offsetof(pxl::EntryTable, " + e.name + ") == " + std::to_string(k) + " * sizeof(void*));\n";
    }
    hpp += "static_assert(sizeof(pxl::EntryTable) == " + std::to_string(n) + " * sizeof(void*));\n";
    writeIfChanged(out / "table.hpp", hpp);

    const std::string fixed = "// Fixed at link time, relocated at load, never written at run time.\n";
    std::string cpp = head + "#include \"table.hpp\"\n\n" + fixed +
                      "extern \"C\" [[gnu::visibility(\"hidden\")]] constinit const pxl::EntryTable PXL_LEVEL_TABLE = {\n";
    for (const auto& e : entries) cpp += "    &" + e.target + ",\n";
    cpp += "};\n";
    writeIfChanged(out / "entries.cpp", cpp);

    std::string dsp = head + "#include \"table.hpp\"\n#include \"frame/dispatch.hpp\"\n\n" + fixed +
                      "extern \"C\" [[gnu::visibility(\"hidden\")]] constinit const pxl::EntryTable pxl_entries = {\n";
    for (const auto& e : entries) dsp += "    &pxl::Pick<&pxl::EntryTable::" + e.name + ">::call,\n";
    dsp += "};\n";
    writeIfChanged(out / "dispatch.cpp", dsp);

    std::string asmText = "# Generated by tools/gen_entries.cpp from src/exports.list. Do not edit.\n    .text\n";
    for (std::size_t k = 0; k < n; ++k) {
        const std::string& name = entries[k].name;
        asmText += "    .p2align 4\n    .globl " + name + "\n    .type " + name + ", @function\n" + name + ":\n" +
                   "    jmp *pxl_entries+" + std::to_string(8 * k) + "(%rip)\n    .size " + name + ", .-" + name + "\n";
    }
    asmText += "    .section .note.GNU-stack,\"\",@progbits\n";
    writeIfChanged(out / "stubs.S", asmText);

    // Each source file's instantiations, each target once, in table order.
    std::map<std::string, std::vector<std::string>> units;
    std::set<std::pair<std::string, std::string>> targets;
    for (const auto& e : entries) {
        auto& list = units[e.unit];
        if (std::find(list.begin(), list.end(), e.target) == list.end()) list.push_back(e.target);
        targets.insert({e.unit, e.target});
    }
    for (const auto& [unit, list] : units) {
        std::string inc = head;
        for (const auto& t : list) inc += "PXL_INSTANTIATE(" + t + ")\n";
        writeIfChanged(out / "inst" / (unit.substr(0, unit.size() - 4) + ".inc"), inc);
    }

    std::string names;
    for (const auto& e : entries) names += e.name + "\n";
    writeIfChanged(out / "exports.txt", names);

    std::map<std::string, int> families;
    for (const auto& e : entries) ++families[e.name.substr(0, e.name.find('_'))];
    std::string fam = head + "#pragma once\n#define PXL_ENTRY_COUNT " + std::to_string(n) + "\n#define PXL_TARGET_COUNT " +
                      std::to_string(targets.size()) + "\nstatic const struct { const char* family; int count; } kPxlFamilies[] = {\n";
    for (const auto& [f, c] : families) fam += "    {\"" + f + "\", " + std::to_string(c) + "},\n";
    fam += "};\n";
    writeIfChanged(out / "families.h", fam);

    std::ofstream(out / "inst.stamp") << n << "\n";
    return 0;
}
