#include "host/bench/Presets.h"
#include "host/bench/HostCalls.h"

namespace bench
{

namespace
{
struct Binbuf
{
    t_object ob{};
    Atoms atoms;
};

ClassRecord& binbufClass()
{
    static auto& type = makeHostClass ("binbuf", sizeof (Binbuf), destroyHostObject<Binbuf>);
    return type;
}
}

Atoms writtenToPreset (t_object* x)
{
    auto* binbuf = makeHostObject<Binbuf> (binbufClass());
    auto* place = gensym ("_preset");
    place->s_thing = &binbuf->ob;
    object_method (x, gensym ("preset"));
    place->s_thing = nullptr;
    auto atoms = printable (binbuf->atoms);
    object_free (binbuf);
    return atoms;
}

}

using namespace bench;

void binbuf_insert (void* binbuf, t_symbol*, std::int16_t argc, t_atom* argv)
{
    const auto* head = headOf (binbuf);
    if (head == nullptr || head->type != &binbufClass())
        return;
    auto& atoms = static_cast<Binbuf*> (binbuf)->atoms;
    if (argc > 0 && argv != nullptr)
        atoms.insert (atoms.end(), argv, argv + argc);
    t_atom semicolon{};
    semicolon.a_type = A_SEMI;
    atoms.push_back (semicolon);
}
