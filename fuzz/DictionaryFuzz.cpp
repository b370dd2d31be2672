#include "ControlFuzz.h"
#include "FuzzBytes.h"

/** Applies arbitrary dictionaries to an object: it survives, its state stays finite, and applying its own dictionary
    changes nothing. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    FuzzBytes input (data, size);
    const ScratchFolder folder;
    ControlFuzz fuzz (input.choice (2) == 0 ? bench::DeferMedium::queue : bench::DeferMedium::now);
    auto* box = fuzz.patch.make ("a", "halcyra~.control @numsources 2 @numspeakers 3");
    require (box != nullptr);
    fuzz.patch.settle();
    for (int round = 0; ! input.isOver(); ++round) {
        const auto name = "entries" + std::to_string (round);
        for (auto entries = input.choice (12); entries > 0; --entries)
            bench::putEntry (name, input.choice (8) == 7 ? input.word() : input.oneOf (ControlFuzz::attributes()),
                             input.atoms (13));
        const auto thread = input.choice (4) == 3 ? bench::Thread::scheduler : bench::Thread::main;
        fuzz.patch.send (*box, "dictionary " + name, thread);
        if (input.choice (2) == 0)
            fuzz.patch.settle();
    }
    fuzz.patch.settle();
    ControlFuzz::requireFiniteState (*box);
    return 0;
}
