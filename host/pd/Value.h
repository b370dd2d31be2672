#pragma once
#include <string>
#include <vector>

namespace pdhost
{

/** A word or, with a null word, a number: what both hosts' atoms have in common. Each has a t_symbol and a t_atom of
    its own, so no file sees both, and this is what passes between them. Words live as long as the process. */
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
