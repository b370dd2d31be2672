#include "host/bench/Symbols.h"
#include "host/api/MaxApi.h"
#include <algorithm>
#include <cstring>
#include <deque>
#include <mutex>
#include <string_view>
#include <unordered_map>

namespace bench
{

namespace
{
/** Interned forever: returned symbols never move and are never freed. */
class SymbolTable
{
public:
    t_symbol* intern (std::string_view text)
    {
        const std::lock_guard<std::mutex> lock (mutex);
        if (const auto found = byText.find (text); found != byText.end())
            return found->second;
        auto& entry = entries.emplace_back();
        entry.text = text;
        entry.symbol.s_name = entry.text.c_str();
        byText.emplace (entry.text, &entry.symbol);
        return &entry.symbol;
    }

    t_symbol* unique()
    {
        for (;;) {
            std::string text;
            {
                const std::lock_guard<std::mutex> lock (mutex);
                text = "u" + std::to_string (nextUnique++);
                if (byText.count (text) != 0)
                    continue;
            }
            return intern (text);
        }
    }

    void translate (const std::string& text, const std::string& translation)
    {
        auto* translated = intern (translation);
        const std::lock_guard<std::mutex> lock (mutex);
        translations[text] = translated;
    }

    void forgetTranslations()
    {
        const std::lock_guard<std::mutex> lock (mutex);
        translations.clear();
    }

    t_symbol* translated (const char* text)
    {
        {
            const std::lock_guard<std::mutex> lock (mutex);
            if (const auto found = translations.find (text); found != translations.end())
                return found->second;
        }
        return intern (text);
    }

private:
    struct Entry
    {
        std::string text;
        t_symbol symbol{};
    };

    std::mutex mutex;
    std::deque<Entry> entries;
    std::unordered_map<std::string_view, t_symbol*> byText;
    std::unordered_map<std::string, t_symbol*> translations;
    long long nextUnique = 100000001;
};

SymbolTable& symbols()
{
    static auto& table = *new SymbolTable;
    return table;
}

struct CommonSymbolRow
{
    const char* text;
    int index;
};

constexpr CommonSymbolRow commonSymbolRows[] = {
#define ROW(field, text, index) { text, index },
    MAX_COMMON_SYMBOLS (ROW)
#undef ROW
};

/** Entries without a row here hold the empty symbol: readable, but not meaningful. */
t_common_symbols_table makeCommonSymbols()
{
    t_common_symbols_table table{};
    table.version = 500;
    std::fill (std::begin (table.symbols), std::end (table.symbols), gensym (""));
    for (const auto& row : commonSymbolRows)
        table.symbols[row.index - 1] = gensym (row.text);
    return table;
}
}

void setTranslation (const std::string& text, const std::string& translation)
{
    symbols().translate (text, translation);
}
void clearTranslations() { symbols().forgetTranslations(); }

}

t_symbol* gensym (const char* text) { return bench::symbols().intern (text == nullptr ? "" : text); }
t_symbol* gensym_tr (const char* text) { return bench::symbols().translated (text == nullptr ? "" : text); }

// The result is a symbol's text, which persists; the interface lacks const.
char* str_tr (const char* text) { return const_cast<char*> (gensym_tr (text)->s_name); }

t_symbol* symbol_unique() { return bench::symbols().unique(); }

t_max_err symbolarray_sort (t_clong count, t_symbol** array)
{
    if (count < 0 || (count > 0 && array == nullptr))
        return MAX_ERR_GENERIC;
    std::sort (array, array + count,
               [] (const t_symbol* a, const t_symbol* b) { return std::strcmp (a->s_name, b->s_name) < 0; });
    return MAX_ERR_NONE;
}

t_common_symbols_table* common_symbols_gettable()
{
    static auto table = bench::makeCommonSymbols();
    return &table;
}
