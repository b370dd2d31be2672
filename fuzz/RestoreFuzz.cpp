#include "ControlFuzz.h"
#include "FuzzBytes.h"

#include <iostream>

namespace
{

constexpr const char* creation = "halcyra~.control @numsources 2 @numspeakers 3 @numinternals 8";

std::string stateTextOf (const bench::Box& box)
{
    return bench::textOf (bench::stateOf (box).value_or (bench::Atoms()));
}

}

/** A new object that is given another object's state has the same state, whatever was done to the other. */
extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    FuzzBytes input (data, size);
    const ScratchFolder folder;
    ControlFuzz fuzz (input.choice (2) == 0 ? bench::DeferMedium::queue : bench::DeferMedium::now);
    auto* played = fuzz.patch.make ("played", creation);
    require (played != nullptr);
    fuzz.patch.settle();
    while (! input.isOver()) {
        if (input.choice (2) == 0)
            bench::setAttribute (*played, input.oneOf (ControlFuzz::attributes()), input.atoms (9));
        else
            fuzz.patch.send (*played, gensym (input.oneOf (ControlFuzz::selectors()).c_str()), input.atoms (9));
        if (input.choice (4) == 3)
            fuzz.patch.settle();
        if (input.choice (32) == 31)
            bench::presetOf (*played);
    }
    fuzz.patch.settle();
    const auto saved = bench::stateOf (*played);
    require (saved.has_value());
    auto* restored = fuzz.patch.make ("restored", creation);
    require (restored != nullptr);
    fuzz.patch.settle();
    require (bench::setState (*restored, *saved));
    fuzz.patch.settle();
    const auto before = stateTextOf (*played), after = stateTextOf (*restored);
    if (before != after)
        std::cerr << before << '\n' << after << '\n';
    require (before == after);
    return 0;
}
