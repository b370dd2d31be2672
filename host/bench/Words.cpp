#include "host/bench/Words.h"
#include "host/api/MaxApi.h"
#include <algorithm>
#include <cctype>
#include <charconv>
#include <cstdlib>

namespace bench
{

namespace
{
bool isBlank (char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
bool isDigit (char c) { return c >= '0' && c <= '9'; }

std::size_t skipDigits (const std::string& text, std::size_t at)
{
    while (at < text.size() && isDigit (text[at]))
        ++at;
    return at;
}

std::size_t skipSign (const std::string& text, std::size_t at)
{
    return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

bool isLong (const std::string& text)
{
    const auto first = skipSign (text, 0);
    return first < text.size() && skipDigits (text, first) == text.size();
}

/** Optional sign and digits, with a decimal point, an exponent, or both. */
bool isFloat (const std::string& text)
{
    const auto first = skipSign (text, 0);
    auto at = skipDigits (text, first);
    auto digits = at - first;
    const bool point = at < text.size() && text[at] == '.';
    if (point) {
        const auto fraction = at + 1;
        at = skipDigits (text, fraction);
        digits += at - fraction;
    }
    if (digits == 0)
        return false;
    if (at == text.size())
        return point;
    if (text[at] != 'e' && text[at] != 'E')
        return false;
    const auto exponent = skipSign (text, at + 1);
    return exponent < text.size() && skipDigits (text, exponent) == text.size();
}

/** Reads the word that starts at `at` and moves `at` past it. */
Word readWord (const std::string& line, std::size_t& at)
{
    Word word;
    bool inQuotes = false;
    for (; at < line.size() && (inQuotes || ! isBlank (line[at])); ++at) {
        if (line[at] == '\\' && at + 1 < line.size())
            word.text += line[++at];
        else if (line[at] == '"') {
            inQuotes = ! inQuotes;
            word.quoted = true;
        } else
            word.text += line[at];
    }
    return word;
}
}

std::vector<Word> wordsOf (const std::string& line)
{
    std::vector<Word> words;
    for (std::size_t at = 0; at < line.size();) {
        if (isBlank (line[at]))
            ++at;
        else
            words.push_back (readWord (line, at));
    }
    return words;
}

t_atom atomOf (const Word& word)
{
    t_atom atom{};
    if (! word.quoted && isLong (word.text))
        atom_setlong (&atom, std::strtoll (word.text.c_str(), nullptr, 10));
    else if (! word.quoted && isFloat (word.text))
        atom_setfloat (&atom, std::strtod (word.text.c_str(), nullptr));
    else
        atom_setsym (&atom, gensym (word.text.c_str()));
    return atom;
}

Atoms atomsOf (const std::vector<Word>& words, std::size_t first)
{
    Atoms atoms;
    for (auto i = first; i < words.size(); ++i)
        atoms.push_back (atomOf (words[i]));
    return atoms;
}

Atoms atomsOf (const std::string& text) { return atomsOf (wordsOf (text)); }

Message messageOf (const std::vector<Word>& words, std::size_t first)
{
    Message message{ gensym (""), atomsOf (words, first) };
    if (message.atoms.empty())
        return message;
    const auto type = message.atoms.front().a_type;
    if (type == A_SYM) {
        message.selector = atom_getsym (&message.atoms.front());
        message.atoms.erase (message.atoms.begin());
    } else if (message.atoms.size() > 1)
        message.selector = gensym ("list");
    else
        message.selector = gensym (type == A_LONG ? "int" : "float");
    return message;
}

std::string textOf (float value)
{
    char buffer[32];
    const auto end = std::to_chars (buffer, buffer + sizeof buffer, value).ptr;
    std::string text (buffer, end);
    const bool onlyDigits = std::all_of (text.begin(), text.end(), [] (char c) { return isDigit (c) || c == '-'; });
    return onlyDigits ? text + "." : text;
}

std::string quotedIfNeeded (const std::string& symbol)
{
    const auto words = wordsOf (symbol);
    const bool readsBack =
        words.size() == 1 && ! words[0].quoted && words[0].text == symbol && ! isLong (symbol) && ! isFloat (symbol);
    if (readsBack)
        return symbol;
    std::string quoted = "\"";
    for (const char c : symbol) {
        if (c == '"' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return onOneLine (quoted + "\"");
}

std::string onOneLine (const std::string& text)
{
    std::string line;
    for (const char c : text) {
        if (c == '\n')
            line += "\\n";
        else
            line += c;
    }
    return line;
}

}
