#include "ControlFuzz.h"
#include "FuzzBytes.h"

#include <utility>

namespace
{

using Message = std::pair<t_symbol*, bench::Atoms>;

std::vector<Message> messages (FuzzBytes& input)
{
    std::vector<Message> all (input.choice (24));
    for (auto& [selector, atoms] : all) {
        selector = gensym (input.oneOf (ControlFuzz::selectors()).c_str());
        atoms = input.atoms (8);
    }
    return all;
}

}

/** Arbitrary messages from the main and the scheduler thread at the same time: the object survives, and its state stays
    finite. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    FuzzBytes input (data, size);
    const ScratchFolder folder;
    ControlFuzz fuzz;
    auto* box = fuzz.patch.make ("a", "halcyra~.control @numsources 3 @numspeakers 2");
    require (box != nullptr);
    fuzz.patch.settle();
    while (! input.isOver()) {
        const auto fromMain = messages (input), fromScheduler = messages (input);
        fuzz.patch.postToScheduler ([&] {
            for (const auto& [selector, atoms] : fromScheduler)
                fuzz.patch.send (*box, selector, atoms);
        });
        for (const auto& [selector, atoms] : fromMain) {
            fuzz.patch.send (*box, selector, atoms);
            fuzz.patch.pump();
        }
        fuzz.patch.runOnScheduler ([] {});
    }
    fuzz.patch.settle();
    ControlFuzz::requireFiniteState (*box);
    return 0;
}
