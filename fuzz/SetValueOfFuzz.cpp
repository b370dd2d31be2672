#include "ControlFuzz.h"
#include "FuzzBytes.h"

/** Applies a state with values replaced, truncated or added: the object survives, its state keeps its length, and every
    number in it stays finite. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    FuzzBytes input (data, size);
    const ScratchFolder folder;
    ControlFuzz fuzz (input.choice (2) == 0 ? bench::DeferMedium::queue : bench::DeferMedium::now);
    auto* box = fuzz.patch.make ("a", "halcyra~.control @numsources 2 @numspeakers 3 @numinternals 4");
    require (box != nullptr);
    fuzz.patch.settle();
    const auto length = bench::stateOf (*box).value_or (bench::Atoms()).size();

    for (int round = 0; round < 4 && ! input.isOver(); ++round) {
        auto state = bench::stateOf (*box).value_or (bench::Atoms());
        for (auto changes = input.choice (20); changes > 0; --changes)
            state[input.choice (state.size())] = input.atom();
        if (input.choice (8) == 7)
            state.resize (input.choice (2 * state.size()));
        bench::setState (*box, state);
        if (input.choice (2) == 0)
            fuzz.patch.settle();
    }
    fuzz.patch.settle();
    require (bench::stateOf (*box).value_or (bench::Atoms()).size() == length);
    ControlFuzz::requireFiniteState (*box);
    return 0;
}
