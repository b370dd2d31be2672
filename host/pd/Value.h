#pragma once
#include <string>
#include <vector>

namespace pdhost
{

/** A word or, if the word is null, a number: what both hosts' atoms have in common. Both define t_symbol and t_atom, so
    no file can include both, and values pass between them in this form. Words live as long as the process. */
struct Value
{
    const char* word = nullptr;
    double number = 0;
};
using Values = std::vector<Value>;

/** The value of one attribute. */
struct NamedValues
{
    std::string name;
    Values values;
};

}
