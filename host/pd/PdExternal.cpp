#include "host/pd/Box.h"
#include "host/pd/FileMessages.h"
#include "host/pd/FilePanel.h"
#include "host/pd/MessageLoop.h"
#include "host/pd/Pd.h"
#include "host/pd/SavedState.h"
#include <optional>
#include <string>
#include <utility>

/** The Pd side: the class with its messages, and Pd's callbacks. */
namespace
{

using namespace pdhost;

t_class* control = nullptr;

struct Object;

/** The parts of Pd's object that need a constructor: outlets, console, saved state, the file panel. */
struct Inside : Listener
{
    explicit Inside (Object* ownerToUse) : owner (ownerToUse), canvas (canvas_getcurrent()) {}

    void message (int outlet, const char* selector, const Values& values) override;
    void row (Row kind, const std::string& text) override;
    void editedByHand() override { canvas_dirty (canvas, 1); }

    [[nodiscard]] std::string folder() const { return canvas_getdir (canvas)->s_name; }

    /** Sends a message; a file message without a name first opens the panel. */
    void send (const char* selector, const Values& values);
    void askForFile (const FileMessage& toSend);
    void recall();

    Object* owner;
    t_glist* canvas;
    std::unique_ptr<Box> box;
    std::vector<t_outlet*> outlets;    // leftmost first
    std::vector<NamedValues> restored; // saved lines already read, waiting for the last one
    bool isRestored = false;
    std::optional<FilePanel> panel;
};

/** Allocated and zeroed by Pd. */
struct Object
{
    t_object head;
    Inside* inside;
};

void Inside::message (int outlet, const char* selector, const Values& values)
{
    if (outlet < 0 || outlet >= static_cast<int> (outlets.size()))
        return;
    auto atoms = atomsOf (values);
    auto* name = gensym (selector);
    if (name == gensym ("int"))
        name = &s_float;
    outlet_anything (outlets[static_cast<std::size_t> (outlet)], name, static_cast<int> (atoms.size()), atoms.data());
}

/** Pd truncates rows longer than 1000 characters, so they are split. */
void Inside::row (Row kind, const std::string& text)
{
    constexpr std::size_t longest = 900;
    for (std::size_t at = 0; at == 0 || at < text.size(); at += longest) {
        const auto piece = text.substr (at, longest);
        if (kind == Row::error || kind == Row::bug)
            pd_error (owner, "halcyra~.control: %s%s", kind == Row::bug ? "bug: " : "", piece.c_str());
        else
            post ("halcyra~.control: %s%s", kind == Row::warning ? "warning: " : "", piece.c_str());
    }
}

void Inside::send (const char* selector, const Values& values)
{
    box->setFolder (folder());
    const auto* file = fileMessage (selector);
    if (file != nullptr && values.empty())
        askForFile (*file);
    else
        box->send (selector, values);
}

void Inside::askForFile (const FileMessage& toSend)
{
    panel.emplace ([this, selector = toSend.selector] (const std::string& path) {
        box->send (selector, { { gensym (path.c_str())->s_name, 0 } });
    });
    if (! panel->ask (toSend.writes, folder()))
        row (Row::error,
             std::string (toSend.selector) + ": a file name is needed, since there is no GUI to ask for one");
}

void Inside::recall()
{
    box->setFolder (folder());
    box->restore (restored);
    restored.clear();
    isRestored = true;
}

void* make (t_symbol*, int count, t_atom* atoms)
{
    // Following lines of a file must not reach an older object, even if this one cannot be created.
    recordSymbol()->s_thing = nullptr;
    auto* x = reinterpret_cast<Object*> (pd_new (control));
    x->inside = new Inside (x);
    x->inside->box = Box::make (*x->inside, valuesOf (count, atoms));
    if (x->inside->box == nullptr) {
        pd_free (&x->head.ob_pd);
        return nullptr;
    }
    for (int i = 0; i < x->inside->box->numberOfOutlets(); ++i)
        x->inside->outlets.push_back (outlet_new (&x->head, &s_anything));
    pd_bind (&x->head.ob_pd, recordSymbol());
    return x;
}

void release (Object* x)
{
    while (auto* bound = pd_findbyclass (recordSymbol(), control))
        pd_unbind (bound, recordSymbol());
    delete x->inside;
}

void receive (Object* x, t_symbol* selector, int count, t_atom* atoms)
{
    x->inside->send (selector->s_name, valuesOf (count, atoms));
}

void open (Object* x) { x->inside->send ("open", {}); }

void vis (Object* x, t_floatarg isVisible) { x->inside->send (isVisible != 0 ? "open" : "wclose", {}); }

void properties (t_gobj* object, t_glist*) { open (reinterpret_cast<Object*> (object)); }

void save (t_gobj* object, t_binbuf* buffer)
{
    auto* x = reinterpret_cast<Object*> (object);
    binbuf_addv (buffer, "ssii", gensym ("#X"), gensym ("obj"), static_cast<int> (x->head.te_xpix),
                 static_cast<int> (x->head.te_ypix));
    binbuf_addbinbuf (buffer, x->head.te_binbuf);
    binbuf_addsemi (buffer);
    writeState (x->inside->box->changes(), buffer);
    obj_saveformat (&x->head, buffer); // the box's width
}

/** True until the next box of its patch is created, while a file's lines are read. */
bool isNewest (const Object& x)
{
    const auto* last = x.inside->canvas->gl_list;
    while (last != nullptr && last->g_next != nullptr)
        last = last->g_next;
    return last == &x.head.te_g;
}

/** "saved ATTRIBUTE VALUES", a line of a file; alone it ends the list. Lines after a newer box that could not be
    created are not for this object. */
void saved (Object* x, t_symbol*, int count, t_atom* atoms)
{
    if (! isNewest (*x))
        return;
    if (count > 0)
        x->inside->restored.push_back ({ atom_getsymbol (atoms)->s_name, valuesOf (count - 1, atoms + 1) });
    else
        x->inside->recall();
}

/** Sends the restored state once all cords are connected. */
void loadbang (Object* x, t_floatarg action)
{
    if (action != LB_LOAD)
        return;
    if (! x->inside->restored.empty()) // the closing line is missing
        x->inside->recall();
    if (std::exchange (x->inside->isRestored, false))
        x->inside->send ("bang", {});
}

t_clock* windowClock = nullptr;

void serve (void*)
{
    outlet_setstacklim();
    serveWindows();
}

template <typename Function>
t_method methodOf (Function* function)
{
    return reinterpret_cast<t_method> (function);
}

}

extern "C" __attribute__ ((visibility ("default"))) void setup_halcyra0x7e0x2econtrol()
{
    windowClock = clock_new (nullptr, methodOf (serve));
    MessageLoop::setWatch ({ [] (int descriptor) {
                                sys_addpollfn (
                                    descriptor, [] (void*, int) { serve (nullptr); }, nullptr);
                            },
                             [] (int descriptor) { sys_rmpollfn (descriptor); },
                             [] { clock_delay (windowClock, 0); } });
    MessageLoop::atExit ([] (void*) { shutDown(); });
    FilePanel::registerClass();

    control = class_new (gensym ("halcyra~.control"), reinterpret_cast<t_newmethod> (methodOf (make)),
                         methodOf (release), sizeof (Object), CLASS_DEFAULT, A_GIMME, A_NULL);
    class_addanything (control, methodOf (receive));
    class_addmethod (control, methodOf (open), gensym ("click"), A_NULL);
    class_addmethod (control, methodOf (vis), gensym ("vis"), A_FLOAT, A_NULL);
    class_addmethod (control, methodOf (saved), gensym ("saved"), A_GIMME, A_NULL);
    class_addmethod (control, methodOf (loadbang), gensym ("loadbang"), A_DEFFLOAT, A_NULL);
    class_setpropertiesfn (control, properties);
    class_setsavefn (control, save);
}
