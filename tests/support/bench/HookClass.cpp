#include "support/bench/HookClass.h"

namespace
{

t_class* hookClass = nullptr;

void run()
{
    if (onHook())
        onHook()();
}

void* hook_new (t_symbol*, t_clong, t_atom*) { return object_alloc (hookClass); }
void hook_anything (void*, t_symbol*, t_clong, t_atom*) { run(); }

t_max_err hook_notify (void*, t_symbol*, t_symbol* message, void*, void* data)
{
    if (message == gensym ("modified"))
        run();
    if (message == gensym ("attr_modified") && onTouch())
        onTouch() (data);
    return MAX_ERR_NONE;
}

}

std::function<void()>& onHook()
{
    static std::function<void()> hook;
    return hook;
}

std::function<void (const void*)>& onTouch()
{
    static std::function<void (const void*)> hook;
    return hook;
}

t_clong hook_main (void*)
{
    hookClass = class_new ("test.hook", max_method (hook_new), nullptr, sizeof (t_object), nullptr, A_GIMME, 0);
    class_addmethod (hookClass, max_method (hook_anything), "anything", A_GIMME, 0);
    class_addmethod (hookClass, max_method (hook_notify), "notify", A_CANT, 0);
    class_register (CLASS_BOX, hookClass);
    return 0;
}
