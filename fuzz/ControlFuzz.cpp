#include "ControlFuzz.h"

#include "external/HalcyraControl.h"
#include "host/bench/window/JuceWindowDriver.h"
#include "max/SymbolWords.h"

#include <cmath>
#include <cstdlib>

#include <unistd.h>

/** Short stack traces of allocations: unwinding them takes a fifth of the time. The corpus player has whole ones. */
extern "C" const char* __asan_default_options() { return "malloc_context_size=2"; }

namespace
{

/** Initialises JUCE for the life of the process. */
void bringUpWindows()
{
    static auto& windows = *new bench::JuceWindowDriver (bench::JuceWindowDriver::Place::memory);
    bench::setWindowDriver (&windows);
}

/** The folder that objects write to; removed when the process ends. */
struct FolderOfProcess
{
    ~FolderOfProcess() { std::filesystem::remove_all (path); }

    std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("halcyra_fuzz_control_" + std::to_string (getpid()));
};

struct Vocabulary
{
    std::vector<std::string> words, selectors, attributes;
};

/** Queries the class itself, and adds the words of its symbol table. */
const Vocabulary& vocabulary()
{
    static const Vocabulary all = [] {
        Vocabulary known;
        bench::Bench patch;
        patch.load (ext_main);
        const auto* box = patch.make ("asked", "halcyra~.control");
        require (box != nullptr);
        for (const auto& row : bench::methodsOf (*box))
            if (row.kinds.empty() || row.kinds.front() != "A_CANT")
                known.selectors.push_back (row.message);
        known.attributes = bench::visibleAttributes (*box);
        known.selectors.insert (known.selectors.end(), known.attributes.begin(), known.attributes.end());
        known.words = known.selectors;
#define HALCYRA_WORD(word) known.words.emplace_back (#word);
#define HALCYRA_WORD_AS(field, text) known.words.emplace_back (text);
        ORVANEMAX_SYMBOL_WORDS (HALCYRA_WORD, HALCYRA_WORD_AS)
#undef HALCYRA_WORD
#undef HALCYRA_WORD_AS
        for (const auto* word : { "open", "clear", "square", "polar", "top", "front", "autozoom", "rpy", "pitch",
                                  "a.xml", "b.xml", "1", "on" })
            known.words.emplace_back (word);
        patch.settle();
        return known;
    }();
    return all;
}

}

void require (bool holds)
{
    if (! holds)
        std::abort();
}

const std::vector<std::string>& ControlFuzz::words() { return vocabulary().words; }
const std::vector<std::string>& ControlFuzz::selectors() { return vocabulary().selectors; }
const std::vector<std::string>& ControlFuzz::attributes() { return vocabulary().attributes; }

ControlFuzz::ControlFuzz (bench::DeferMedium deferMedium)
    : patch ((bringUpWindows(), vocabulary(), deferMedium)) // the vocabulary needs a bench of its own first
{
    patch.setListener ([] (const bench::Event&) {});
}

void ControlFuzz::requireFiniteState (const bench::Box& box)
{
    const auto state = bench::stateOf (box);
    require (state.has_value());
    for (const auto& atom : *state)
        require (atom_gettype (&atom) != A_FLOAT || std::isfinite (atom_getfloat (&atom)));
}

ScratchFolder::ScratchFolder() : before (std::filesystem::current_path())
{
    static const FolderOfProcess folder;
    std::filesystem::remove_all (folder.path);
    std::filesystem::create_directories (folder.path);
    std::filesystem::current_path (folder.path);
}

ScratchFolder::~ScratchFolder() { std::filesystem::current_path (before); }
