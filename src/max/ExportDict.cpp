#include "max/ExportDict.h"

#include "max/Atoms.h"
#include "max/AttributeList.h"
#include "max/DictionaryKeys.h"
#include "max/DictionaryState.h"
#include "max/FileDialogs.h"
#include "max/Guarded.h"
#include "max/MaxErrorText.h"

#include <filesystem>
#include <fstream>

namespace orvanemax
{
namespace
{

constexpr t_fourcc jsonType = 0x4A534F4E;

/** Escapes characters that would end or break a quoted string. */
std::string quoted (const char* text)
{
    constexpr auto* digits = "0123456789abcdef";
    std::string out = "\"";
    for (; *text != '\0'; ++text) {
        const auto byte = static_cast<unsigned char> (*text);
        if (byte == '"' || byte == '\\')
            out += '\\';
        if (byte < 0x20)
            (out += "\\u00") += { digits[byte >> 4], digits[byte & 15] };
        else
            out += *text;
    }
    return out + "\"";
}

std::string valueText (const t_atom& atom)
{
    switch (atom_gettype (&atom)) {
    case A_LONG:
        return std::to_string (atom_getlong (&atom));
    case A_FLOAT:
        return fixedText (atom_getfloat (&atom));
    default:
        return quoted (atom_getsym (&atom)->s_name);
    }
}

/** In brackets, the last number gets a blank of its own before the bracket's. */
std::string valueText (Atoms atoms)
{
    if (atoms.size() == 1)
        return valueText (atoms[0]);
    std::string out = "[ ";
    for (std::size_t i = 0; i < atoms.size(); ++i) {
        const bool isLast = i + 1 == atoms.size();
        out += valueText (atoms[i]);
        out += ! isLast ? ", " : atom_gettype (&atoms[i]) != A_SYM ? " " : "";
    }
    return out + " ]";
}

}

void writeJson (void* object, t_dictionary* dictionary, std::ostream& out)
{
    const DictionaryKeys keys (dictionary, DictionaryKeys::Order::asAdded);
    if (keys.error() != MAX_ERR_NONE)
        tellError (object, std::string ("couldnt get dict key : ") + errorText (keys.error()));
    const char* separator = "";
    out << "{\n";
    for (auto* key : keys) {
        t_clong count = 0;
        t_atom* atoms = nullptr;
        if (dictionary_getatoms (dictionary, key, &count, &atoms) != MAX_ERR_NONE || count < 1) {
            tellError (object, std::string ("entry ") + key->s_name + " is not atom ? ");
            continue;
        }
        out << separator << "    " << quoted (key->s_name) << " : " << valueText (Atoms (count, atoms));
        separator = ", \n";
    }
    out << (*separator != '\0' ? "\n}\n" : "}\n");
}

}

using namespace orvanemax;

void orvanemax_exportdict (void* x, t_symbol*, t_clong argc, t_atom* argv)
{
    guarded (x, [=] {
        const Atoms atoms (argc, argv);
        if (! atoms.empty() && ! atoms.fitExactly ("s"))
            return invalidMessage (x, "invalid message : exportdict", atoms);
        const auto path = atoms.empty() ? askForFileToSave ("file.json", jsonType) : atoms.symbol (0)->s_name;
        if (path.empty())
            return;
        std::ofstream file (std::filesystem::u8path (path), std::ios::out | std::ios::trunc);
        if (! file)
            return;
        OwnedDictionary dictionary;
        for (auto* name : visibleAttributes (x))
            appendAttributeToDictionary (x, name, dictionary.get());
        writeJson (x, dictionary.get(), file);
    });
}
