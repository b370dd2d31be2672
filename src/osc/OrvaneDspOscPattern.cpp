#include "osc/OrvaneDspOscPattern.h"
#include "math/OrvaneDspVector.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace qel
{

namespace
{

using Characters = std::u32string;
using Range = std::pair<char32_t, char32_t>;

struct Decoded
{
    char32_t character;
    std::size_t length; ///< in bytes
};

/** The character at a position. A byte that begins no well-formed sequence returns a value that no valid text
    contains. */
Decoded decodeAt (const std::string& bytes, std::size_t at)
{
    struct Form
    {
        unsigned char mask, lead;
        char32_t least;
    };
    constexpr Form forms[] = { { 0x80, 0, 0 }, { 0xe0, 0xc0, 0x80 }, { 0xf0, 0xe0, 0x800 }, { 0xf8, 0xf0, 0x10000 } };
    const auto byte = [&] (std::size_t i) { return static_cast<unsigned char> (bytes[at + i]); };
    const auto isSurrogate = [] (char32_t c) { return c >= 0xd800 && c < 0xe000; };

    for (std::size_t length = 1; length <= std::min<std::size_t> (4, bytes.size() - at); ++length) {
        const auto& form = forms[length - 1];
        if ((byte (0) & form.mask) != form.lead)
            continue;
        auto character = static_cast<char32_t> (byte (0) & ~form.mask);
        std::size_t taken = 1;
        for (; taken < length && (byte (taken) & 0xc0) == 0x80; ++taken)
            character = (character << 6) | (byte (taken) & 0x3f);
        if (taken == length && character >= form.least && character <= 0x10ffff && ! isSurrogate (character))
            return { character, length };
    }
    return { 0xdc00u + byte (0), 1 };
}

Characters decode (const std::string& bytes)
{
    Characters characters;
    for (std::size_t at = 0; at < bytes.size();) {
        const auto [character, length] = decodeAt (bytes, at);
        characters += character;
        at += length;
    }
    return characters;
}

/** Walks the pattern once with the set of all text positions reachable so far: equivalent to trying every alternative,
    but never tries a position twice. */
class Matcher
{
public:
    Matcher (Characters patternToWalk, Characters textToMeet)
        : pattern (std::move (patternToWalk)), text (std::move (textToMeet)), reached (text.size() + 1, false)
    {
        reached[0] = true;
    }

    bool run()
    {
        while (at < pattern.size())
            if (! step())
                return false;
        return reached.back();
    }

private:
    /** Consumes one construct of the pattern; false if it is malformed. */
    bool step()
    {
        const auto character = pattern[at++];
        switch (character) {
        case U'*':
            star();
            return true;
        case U'?':
            advance ([] (char32_t) { return true; });
            return true;
        case U'[':
            return characterClass();
        case U'{':
            return alternatives();
        default:
            advance ([=] (char32_t c) { return c == character; });
            return true;
        }
    }

    /** Advances each reached position by one character if that character is accepted. */
    template <typename Accept>
    void advance (Accept&& accept)
    {
        for (auto place = text.size(); place > 0; --place)
            reached[place] = reached[place - 1] && accept (text[place - 1]);
        reached[0] = false;
    }

    /** Reaches all positions from the first on; at the end of the text only a final star matches. */
    void star()
    {
        const auto first = std::find (reached.begin(), reached.end(), true);
        const bool textIsOver = std::distance (first, reached.end()) == 1;
        std::fill (first, reached.end(), true);
        if (textIsOver && at < pattern.size())
            reached.back() = false;
    }

    bool characterClass()
    {
        std::vector<Range> members;
        bool inverted = false;
        while (at < pattern.size()) {
            const auto character = pattern[at++];
            if (character == U']') {
                takeClass (members, inverted);
                return true;
            }
            if (character == U'!' && members.empty() && ! inverted)
                inverted = true;
            else if (character == U'-') {
                if (! range (members))
                    return false;
            } else
                members.emplace_back (character, character);
        }
        return false;
    }

    void takeClass (const std::vector<Range>& members, bool inverted)
    {
        if (members.empty())
            return;
        advance ([&] (char32_t c) {
            const auto holds = [=] (const Range& range) { return c >= range.first && c <= range.second; };
            return std::any_of (members.begin(), members.end(), holds) != inverted;
        });
    }

    /** After a "-" in a class: a range from the last member to the next character. */
    bool range (std::vector<Range>& members)
    {
        if (at == pattern.size() || members.empty())
            return false;
        const auto upper = pattern[at++];
        if (upper == U',' || upper == U'{' || upper == U'}')
            return false;
        const auto last = members.back().second;
        if (upper == U']')
            members.emplace_back (U'-', U'-');
        else if (upper > last)
            members.emplace_back (last + 1, upper);
        return true;
    }

    bool alternatives()
    {
        const auto end = pattern.find (U'}', at);
        if (end == Characters::npos)
            return false;
        const auto before = reached;
        std::fill (reached.begin(), reached.end(), false);
        while (at <= end) {
            const auto* const first = pattern.data() + at;
            const auto length = static_cast<std::size_t> (std::find (first, pattern.data() + end, U',') - first);
            alternative (before, length);
            at += length + 1;
        }
        return true;
    }

    /** Adds the positions after the pattern's next characters, wherever the text contains them. */
    void alternative (const std::vector<bool>& before, std::size_t length)
    {
        for (std::size_t place = 0; place + length < reached.size(); ++place)
            if (before[place] && text.compare (place, length, pattern, at, length) == 0)
                reached[place + length] = true;
    }

    const Characters pattern, text;
    std::vector<bool> reached; ///< one per character of the text, plus its end
    std::size_t at = 0;        ///< in the pattern
};

}

bool matchOscPattern (const String& pattern, const String& text)
{
    return Matcher (decode (pattern.str()), decode (text.str())).run();
}

}
