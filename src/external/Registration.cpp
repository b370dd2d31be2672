#include "external/Registration.h"

#include "external/ControlAttributes.h"
#include "external/HalcyraControl.h"
#include "external/ProductVersion.h"
#include "external/ReverbMessages.h"
#include "external/SnapshotMessages.h"
#include "external/ViewerAttributes.h"
#include "external/ViewerMessages.h"
#include "max/Atoms.h"
#include "max/AttributeServices.h"
#include "max/ClassRegistration.h"
#include "max/DictionaryState.h"
#include "max/ExportDict.h"
#include "max/Guarded.h"
#include "max/MainThread.h"
#include "max/MaxXmlDocumentation.h"
#include "max/OrvanemaxSymbols.h"
#include "max/PattrState.h"
#include "max/Recall.h"
#include "max/window/NativeWindow.h"

#include <algorithm>
#include <vector>

namespace halcyra
{
namespace
{

using namespace orvanemax;

constexpr auto* className = "halcyra~.control";
t_class* registeredClass = nullptr;

/** Attributes that a recall sets last: constraints and locks, lifted because they would modify or reject others, and
    display and defer. showheadphones locks the speakers, so it follows them. globalproportion limits the zoom only when
    the zoom is set, possibly earlier; lifted it is at its minimum. */
constexpr LateAttribute lateAttributesOfControl[] = {
    { "radiusconstraint", 0, "sourcespositions" },
    { "zoomlock", 0, "zoom" },
    { "globalproportion", 0, "zoom" },
    { "showheadphones", 0, "showspeakers" },
    { "speakerseditable", {} },
    { "windowmoveable", 1, "windowtopleft" },
    { "display", {} },
    { "defer", {} },
};

/** `dictionary` takes a single symbol, passed on as an atom. */
void readDictionary (void* x, t_symbol*, t_clong, t_atom* argv) { orvanemax_dictionary (x, atom_getsym (argv)); }
void dictionaryMessage (void* x, t_symbol* name)
{
    t_atom atom{};
    atom_setsym (&atom, name);
    mainThreadEntry<readDictionary> (x, nullptr, 1, &atom);
}

/** Validates the arguments before queueing. */
void rotateMessage (void* x, t_symbol* selector, t_clong argc, t_atom* argv)
{
    if (Atoms (argc, argv).fit ("innn"))
        queuedEntry<rotateSources> (x, selector, argc, argv);
    else
        tellError (x, "invalid rotate message");
}

/** Messages for the main thread only, messages that are always queued, and messages for any thread. */
template <Handler handler>
HostFunction onMain()
{
    return hostFunction<static_cast<Handler> (mainThreadEntry<handler>)>();
}
template <void (*handler) (void*)>
HostFunction onMain()
{
    return hostFunction<static_cast<void (*) (void*)> (mainThreadEntry<handler>)>();
}
template <Handler handler>
HostFunction queued()
{
    return hostFunction<static_cast<Handler> (queuedEntry<handler>)>();
}
template <void (*handler) (void*)>
HostFunction queued()
{
    return hostFunction<static_cast<void (*) (void*)> (queuedEntry<handler>)>();
}

std::vector<MessageRow> serviceMessages()
{
    constexpr int none = A_NOTHING;
    return {
        { "generatexml", onMain<orvanemax_generatexml>(), none, "this method is for service use only." },
        { "version", onMain<orvanemax_version>(), none },
        { "postattributes", onMain<orvanemax_postattributes>(), A_GIMME, nullptr, { { "attribute", "symbol" } } },
        { "getvalueof", hostFunction<orvanemax_getvalueof>(), A_CANT },
        { "setvalueof", hostFunction<orvanemax_setvalueof>(), A_CANT },
        { "preset", onMain<orvanemax_preset>(), none },
        { "recallpreset", onMain<orvanemax_recallpreset>(), A_GIMME, nullptr, { { "values", "list" } } },
        { "exportdict", onMain<orvanemax_exportdict>(), A_GIMME, nullptr, { { "file", "symbol" } } },
        { "dumpdict", onMain<orvanemax_dumpdict>(), A_GIMME, nullptr, { { "attributes", "list of symbol" } } },
        { "dictionary", hostFunction<dictionaryMessage>(), A_SYM, nullptr, { { "dictionary", "symbol" } }, "readdict" },
        { "dump", onMain<orvanemax_dump>(), A_GIMME, nullptr, { { "attribute", "symbol" } } },
        { "reset", onMain<orvanemax_reset>(), A_GIMME, nullptr, { { "attribute", "symbol" } } },
        { "assist", hostFunction<halcyra_control_assist>(), A_CANT },
    };
}

std::vector<MessageRow> ownMessages()
{
    constexpr int none = A_NOTHING;
    const ArgumentRow index{ "index", "int" }, values{ "values", "list of int or float or symbol" };
    const ArgumentRow name{ "name", "symbol" }, file{ "file", "symbol" };
    constexpr auto* openHelp =
        "opens the Graphical User Interface window. (or brings the window to front if it was already opened)";
    return {
        { "writesnapshot", queued<writeSnapshot>(), A_GIMME, nullptr, { file } },
        { "readsnapshot", queued<readSnapshot>(), A_GIMME, nullptr, { file } },
        { "clearsnapshot", queued<clearSnapshot>(), A_GIMME, nullptr, { name } },
        { "store", queued<storeSnapshot>(), A_GIMME, nullptr, { name } },
        { "recall", queued<recallSnapshot>(), A_GIMME, nullptr, { name } },
        { "xsnapshot",
          queued<interpolateSnapshots>(),
          A_GIMME,
          nullptr,
          { { "first", "symbol" }, { "second", "symbol" }, { "amount", "float" } } },
        { "listener", onMain<changeListener>(), A_GIMME, nullptr, { values } },
        { "rotate", hostFunction<rotateMessage>(), A_GIMME, nullptr, { index, { "yaw pitch roll", "list of float" } } },
        { "areas", queued<changeArea>(), A_GIMME, nullptr, { index, values } },
        { "area", queued<changeArea>(), A_GIMME, nullptr, { index, values } },
        { "anchor", queued<changeAnchor>(), A_GIMME, nullptr, { index, values } },
        { "adjustzoom", queued<adjustZoom>(), none },
        { "roomsize", hostFunction<halcyra_control_roomsize>(), A_GIMME, nullptr, { { "size", "float" } } },
        { "bang", hostFunction<halcyra_control_bang>(), none },
        { "reset", hostFunction<halcyra_control_reset>(), none },
        { "source",
          onMain<changeSource>(),
          A_GIMME,
          nullptr,
          { index, { "property or coordinates", "symbol" }, values } },
        { "direct", hostFunction<halcyra_control_direct>(), A_GIMME, nullptr, { values } },
        { "room", hostFunction<halcyra_control_room>(), A_GIMME, nullptr, { values } },
        { "early", hostFunction<halcyra_control_early>(), A_GIMME, nullptr, { values } },
        { "cluster", hostFunction<halcyra_control_cluster>(), A_GIMME, nullptr, { values } },
        { "reverb",
          hostFunction<halcyra_control_reverb>(),
          A_GIMME,
          nullptr,
          { { "parameter", "symbol" }, { "value", "float" } } },
        { "loudspeakers", onMain<changeSpeakers>(), A_GIMME, nullptr, { values } },
        { "speakers", onMain<changeSpeakers>(), A_GIMME, nullptr, { values } },
        { "loudspeaker", onMain<changeSpeaker>(), A_GIMME },
        { "speaker",
          onMain<changeSpeaker>(),
          A_GIMME,
          nullptr,
          { { "speaker index", "int" },
            { "name of the property", "symbol" },
            { "value", "list of int or float or symbol" } } },
        { "open", onMain<halcyra_control_open>(), none, openHelp },
        { "wclose", onMain<halcyra_control_wclose>(), none, "closes the Graphical User Interface window." },
        { "dblclick", hostFunction<halcyra_control_open>(), A_CANT, openHelp },
    };
}

void addAllMessages (t_class* c)
{
    for (const auto& rows : { serviceMessages(), ownMessages() })
        addMessages (c, { rows.data(), rows.size() });
}

void addAllAttributes (t_class* c)
{
    std::vector<const AttributeRow*> ordered;
    for (const auto& attribute : controlAttributes()) {
        addAttribute (c, attribute.row, attribute.category, 0, {}, hostFunction<halcyra_control_set>());
        if (attribute.row.order != 0)
            ordered.push_back (&attribute.row);
    }
    constexpr std::size_t withoutCategory = 2; // showfps and useopengl, which come first
    std::size_t place = 0;
    for (const auto& attribute : viewerAttributes())
        addAttribute (c, attribute.row, place++ < withoutCategory ? nullptr : "viewer", ATTR_SET_DEFER_LOW,
                      attribute.isPerSource ? hostFunction<halcyra_control_per_source_get>() : HostFunction(),
                      hostFunction<halcyra_control_viewer_set>());
    std::sort (ordered.begin(), ordered.end(),
               [] (const AttributeRow* a, const AttributeRow* b) { return a->order < b->order; });
    for (const auto* row : ordered)
        addOrder (c, row->name, row->order);
}

void addPorts (t_class* c)
{
    addPortDocumentation (c, "inlets", { { "inlet", "messages for the reverberator, the scene and the window" } });
    addPortDocumentation (c, "outlets",
                          { { "outlet", "messages for halcyra~" }, { "dumpout", "answers and dictionaries" } });
}

}

t_class* controlClass() noexcept { return registeredClass; }

}

namespace
{

void registerControlClass()
{
    using namespace halcyra;
    orvanemax::buildSymbols();
    orvanemax::startJuceInHost();
    auto* c = class_new (className, hostConstructor<halcyra_control_new>(), hostDestructor<halcyra_control_free>(),
                         static_cast<t_clong> (sizeof (t_halcyra_control)), nullptr, A_GIMME, 0);
    c->c_flags |= CLASS_FLAG_NEWDICTIONARY;
    orvanemax::addDocumentationAttributes (
        c, className, buildText().c_str(),
        { calcoffset (t_halcyra_control, classdescription), calcoffset (t_halcyra_control, classdigest),
          calcoffset (t_halcyra_control, externalversion), calcoffset (t_halcyra_control, classseealso) });
    addAllMessages (c);
    addPorts (c);
    addAllAttributes (c);
    setLateAttributes (lateAttributesOfControl);
    class_register (CLASS_BOX, c);
    registeredClass = c;
}

}

t_clong ext_main (void*)
{
    t_clong result = MAX_ERR_GENERIC;
    orvanemax::guarded (nullptr, [&result] {
        registerControlClass();
        result = MAX_ERR_NONE;
    });
    return result;
}
