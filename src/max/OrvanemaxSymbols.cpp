#include "max/OrvanemaxSymbols.h"

namespace orvanemax
{
namespace
{

const t_orvanemax_symbols* table = nullptr;
const t_common_symbols_table* commonTable = nullptr;

}

void buildSymbols()
{
    if (table != nullptr)
        return;
    commonTable = common_symbols_gettable();
    static t_orvanemax_symbols words;
#define ORVANEMAX_WORD(word) words.word = gensym (#word);
#define ORVANEMAX_WORD_AS(field, text) words.field = gensym (text);
    ORVANEMAX_SYMBOL_WORDS (ORVANEMAX_WORD, ORVANEMAX_WORD_AS)
#undef ORVANEMAX_WORD
#undef ORVANEMAX_WORD_AS
    table = &words;
}

const t_orvanemax_symbols& symbols() noexcept { return *table; }

t_symbol* dumpout() noexcept { return commonTable->at (common_symbol::dumpout); }
t_symbol* modified() noexcept { return commonTable->at (common_symbol::modified); }

}
