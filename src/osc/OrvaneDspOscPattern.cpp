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

/** The length of the well-formed UTF-8 sequence at a place, by its first byte and the bytes behind it; 0 for none. */
std::size_t sequenceLength (const std::string& bytes, std::size_t at)
{
    const auto lead = static_cast<unsigned char> (bytes[at]);
    const std::size_t length = lead < 0x80                   ? 1
                               : lead >= 0xc2 && lead < 0xe0 ? 2
                               : lead >= 0xe0 && lead < 0xf0 ? 3
                               : lead >= 0xf0 && lead < 0xf5 ? 4
                                                             : 0;
    if (length > bytes.size() - at)
        return 0;
    const auto isContinuation = [] (char c) { return (static_cast<unsigned char> (c) & 0xc0) == 0x80; };
    const auto* const first = bytes.data() + at;
    return std::all_of (first + (length > 0 ? 1 : 0), first + length, isContinuation) ? length : 0;
}

Characters decode (const std::string& bytes)
{
    constexpr char32_t strayByte = 0xdc00; // a range that no character uses
    constexpr unsigned char leadMask[] = { 0, 0x7f, 0x1f, 0x0f, 0x07 };
    Characters characters;
    for (std::size_t at = 0; at < bytes.size();) {
        const auto lead = static_cast<unsigned char> (bytes[at]);
        const auto length = sequenceLength (bytes, at);
        char32_t character = length == 0 ? strayByte + lead : char32_t (lead & leadMask[length]);
        for (std::size_t i = 1; i < length; ++i)
            character = (character << 6) | (static_cast<unsigned char> (bytes[at + i]) & 0x3f);
        characters += character;
        at += std::max<std::size_t> (length, 1);
    }
    return characters;
}

/** Walks a pattern once, and keeps the set of all places of the text that can have been reached so far. That is what
    trying each way in turn would find, without trying any place twice. */
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
    /** Takes one construct of the pattern; false if it is malformed. */
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

    /** From each reached place, one character further if the text's character there is accepted. */
    template <typename Accept>
    void advance (Accept&& accept)
    {
        for (auto place = text.size(); place > 0; --place)
            reached[place] = reached[place - 1] && accept (text[place - 1]);
        reached[0] = false;
    }

    /** All places from the first on; but the text's end counts only for the last character of a pattern. */
    void star()
    {
        std::fill (std::find (reached.begin(), reached.end(), true), reached.end(), true);
        if (at < pattern.size())
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

    /** Behind a "-" in a class: from the last member up to the next character. */
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

    /** Adds the places behind the next characters of the pattern, wherever the text holds them. */
    void alternative (const std::vector<bool>& before, std::size_t length)
    {
        for (std::size_t place = 0; place + length < reached.size(); ++place)
            if (before[place] && text.compare (place, length, pattern, at, length) == 0)
                reached[place + length] = true;
    }

    const Characters pattern, text;
    std::vector<bool> reached; ///< one for each character of the text, and its end
    std::size_t at = 0;        ///< in the pattern
};

}

bool matchOscPattern (const String& pattern, const String& text)
{
    return Matcher (decode (pattern.str()), decode (text.str())).run();
}

}
