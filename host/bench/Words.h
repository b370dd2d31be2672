#pragma once
#include "host/bench/Event.h"
#include <string>
#include <vector>

/** Text to atoms and back: the rule of the bench's language, of box texts and of attribute properties. */
namespace bench
{

/** A word of a line; a quoted one is a symbol whatever it looks like. */
struct Word
{
    std::string text;
    bool quoted = false;
};

/** Words are separated by blanks; double quotes keep blanks, a backslash takes the next character as it stands. */
std::vector<Word> wordsOf (const std::string& line);

/** Digits with an optional sign are a long, a number with a point or an exponent a float, all else a symbol. */
t_atom atomOf (const Word& word);
Atoms atomsOf (const std::vector<Word>& words, std::size_t first = 0);
Atoms atomsOf (const std::string& text);

/** Splits a message into its selector and the rest: a leading number makes it "int", "float" or "list". */
struct Message
{
    t_symbol* selector = nullptr;
    Atoms atoms;
};
Message messageOf (const std::vector<Word>& words, std::size_t first = 0);

/** The shortest decimal that reads back to the same 32-bit float, with a point or an exponent. */
std::string textOf (float value);

/** In double quotes if it would not read back as a symbol of this text. */
std::string quotedIfNeeded (const std::string& symbol);

/** Line feeds as "\n". */
std::string onOneLine (const std::string& text);

}
