#pragma once
#include "host/bench/Event.h"
#include <string>
#include <vector>

/** Text to atoms and back: the syntax of the bench's language, of box texts and of attribute properties. */
namespace bench
{

/** A word of a line; a quoted one is always a symbol. */
struct Word
{
    std::string text;
    bool quoted = false;
};

/** Words are separated by blanks; double quotes preserve blanks, a backslash escapes the next character. */
std::vector<Word> wordsOf (const std::string& line);

/** Digits with an optional sign become a long, a number with a point or an exponent a float, anything else a symbol. */
t_atom atomOf (const Word& word);
Atoms atomsOf (const std::vector<Word>& words, std::size_t first = 0);
Atoms atomsOf (const std::string& text);

/** Splits a message into selector and arguments: a leading number makes the selector "int", "float" or "list". */
struct Message
{
    t_symbol* selector = nullptr;
    Atoms atoms;
};
Message messageOf (const std::vector<Word>& words, std::size_t first = 0);

/** The shortest decimal that parses back to the same 32-bit float, with a point or an exponent. */
std::string textOf (float value);

/** Adds double quotes if the text would not parse back as the same symbol. */
std::string quotedIfNeeded (const std::string& symbol);

/** Replaces line feeds by "\n". */
std::string onOneLine (const std::string& text);

}
