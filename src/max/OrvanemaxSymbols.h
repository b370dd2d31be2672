#pragma once
#include "host/api/MaxApi.h"
#include "max/SymbolWords.h"

/** The family's interned symbols, one field per word, so that selectors compare as pointers. */
struct t_orvanemax_symbols
{
#define ORVANEMAX_WORD(word) t_symbol* word;
#define ORVANEMAX_WORD_AS(field, text) t_symbol* field;
    ORVANEMAX_SYMBOL_WORDS (ORVANEMAX_WORD, ORVANEMAX_WORD_AS)
#undef ORVANEMAX_WORD
#undef ORVANEMAX_WORD_AS
};

/** A field of the table: lets rows of other tables name a word before the table is filled. */
using SymbolField = t_symbol* t_orvanemax_symbols::*;

namespace orvanemax
{

/** Builds the table, after saving the host's own. Main thread, at load; a second call does nothing.
    The table lives as long as the process. */
void buildSymbols();

/** The table; built before anything else runs, readable from any thread. */
[[nodiscard]] const t_orvanemax_symbols& symbols() noexcept;
[[nodiscard]] inline t_symbol* symbol (SymbolField field) noexcept { return symbols().*field; }

/** The host's symbols that we use. */
[[nodiscard]] t_symbol* dumpout() noexcept;
[[nodiscard]] t_symbol* modified() noexcept;

}
