#pragma once
#include "host/api/MaxTypes.h"

/** Max's predefined symbols. The table has only ever grown at its end, so indices are stable. */
struct t_common_symbols_table
{
    t_clong version;
    t_clong padding;
    t_symbol* symbols[1454];

    /** The symbol at an index, from 1 as in CommonSymbol. */
    [[nodiscard]] t_symbol* at (int index) const { return symbols[index - 1]; }
};

/** Word and index of each entry named here; the single list behind the enum and the bench's table. */
#define MAX_COMMON_SYMBOLS(ROW)                                                                                        \
    ROW (preset_binbuf, "_preset", 1)                                                                                  \
    ROW (anything, "anything", 41)                                                                                     \
    ROW (atom, "atom", 60)                                                                                             \
    ROW (attr_modified, "attr_modified", 67)                                                                           \
    ROW (bang, "bang", 85)                                                                                             \
    ROW (box, "box", 108)                                                                                              \
    ROW (category, "category", 153)                                                                                    \
    ROW (character, "char", 160)                                                                                       \
    ROW (classname, "classname", 175)                                                                                  \
    ROW (default_value, "default", 245)                                                                                \
    ROW (description, "description", 275)                                                                              \
    ROW (dictionary, "dictionary", 282)                                                                                \
    ROW (digest, "digest", 283)                                                                                        \
    ROW (dumpout, "dumpout", 335)                                                                                      \
    ROW (enumvals, "enumvals", 367)                                                                                    \
    ROW (float_message, "float", 418)                                                                                  \
    ROW (float32, "float32", 419)                                                                                      \
    ROW (float64, "float64", 420)                                                                                      \
    ROW (get, "get", 476)                                                                                              \
    ROW (getname, "getname", 529)                                                                                      \
    ROW (gettype, "gettype", 559)                                                                                      \
    ROW (getvalueof, "getvalueof", 563)                                                                                \
    ROW (int_message, "int", 667)                                                                                      \
    ROW (int32, "int32", 670)                                                                                          \
    ROW (invisible, "invisible", 682)                                                                                  \
    ROW (label, "label", 767)                                                                                          \
    ROW (list, "list", 783)                                                                                            \
    ROW (long_type, "long", 797)                                                                                       \
    ROW (max, "max", 812)                                                                                              \
    ROW (min, "min", 837)                                                                                              \
    ROW (modified, "modified", 843)                                                                                    \
    ROW (name, "name", 872)                                                                                            \
    ROW (nobox, "nobox", 903)                                                                                          \
    ROW (nothing, "", 921)                                                                                             \
    ROW (notify, "notify", 922)                                                                                        \
    ROW (object, "object", 944)                                                                                        \
    ROW (order, "order", 974)                                                                                          \
    ROW (parameter_enable, "parameter_enable", 1000)                                                                   \
    ROW (patching_rect, "patching_rect", 1023)                                                                         \
    ROW (pointer, "pointer", 1038)                                                                                     \
    ROW (preset, "preset", 1055)                                                                                       \
    ROW (save, "save", 1158)                                                                                           \
    ROW (set, "set", 1201)                                                                                             \
    ROW (setmethod, "setmethod", 1222)                                                                                 \
    ROW (setvalueof, "setvalueof", 1231)                                                                               \
    ROW (style, "style", 1291)                                                                                         \
    ROW (symbol, "symbol", 1298)                                                                                       \
    ROW (type, "type", 1361)

/** Indices into t_common_symbols_table::at. */
namespace common_symbol
{
#define MAX_COMMON_SYMBOL_INDEX(field, text, index) field = index,
enum Index : int
{
    MAX_COMMON_SYMBOLS (MAX_COMMON_SYMBOL_INDEX)
};
#undef MAX_COMMON_SYMBOL_INDEX
}
