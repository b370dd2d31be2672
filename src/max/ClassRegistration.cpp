#include "max/ClassRegistration.h"

#include "max/AttributeValue.h"
#include "max/OrvanemaxSymbols.h"
#include "registry/MaxMspExternal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

namespace orvanemax
{
namespace
{

void addWord (t_class* c, const char* attribute, const char* property, t_symbol* word)
{
    class_attr_addattr_format (c, attribute, property, gensym ("symbol"), 0, "s", word);
}

void addText (t_class* c, const char* attribute, const char* property, const char* text)
{
    if (text != nullptr)
        addWord (c, attribute, property, gensym (text));
}

/** Translated into the user's language. */
void addTranslated (t_class* c, const char* attribute, const char* property, const char* text)
{
    if (text != nullptr)
        addWord (c, attribute, property, gensym_tr (text));
}

void addParsed (t_class* c, const char* attribute, const char* property, const char* type, const char* text)
{
    if (text != nullptr)
        class_attr_addattr_parse (c, attribute, property, gensym (type), 0, text);
}

/** At most six significant digits, with a point whatever the locale. */
std::string shortText (double value)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars (text.begin(), text.end(), value, std::chars_format::general, 6);
    return { text.begin(), end.ptr };
}

void addFilterAndBounds (t_class* c, const AttributeRow& row)
{
    using Filter = AttributeRow::Filter;
    if (row.filter != Filter::none)
        attr_addfilter_clip (class_attr_get (c, gensym (row.name)), row.low, row.high,
                             row.filter != Filter::highOnly ? 1 : 0, row.filter != Filter::lowOnly ? 1 : 0);
    if (! row.hasBounds)
        return;
    addParsed (c, row.name, "minvalue", row.type, shortText (row.low).c_str());
    addParsed (c, row.name, "maxvalue", row.type, shortText (row.high).c_str());
}

t_dictionary* dictionaryOf (void* attribute, const char* property)
{
    if (attribute == nullptr)
        return nullptr;
    const AttributeValue value (attribute, gensym (property));
    return value.atoms().empty() ? nullptr : static_cast<t_dictionary*> (atom_getobj (value.data()));
}

/** A class's dictionary, created on first use. */
t_dictionary* classDictionary (t_class* c, const char* property)
{
    if (auto* existing = dictionaryOf (class_attr_get (c, gensym ("classdescription")), property))
        return existing;
    auto* made = dictionary_new();
    class_attr_addattr_format (c, "classdescription", property, gensym ("object"), 0, "o", made);
    return made;
}

void addTexts (t_dictionary* target, const char* key, const std::vector<const char*>& texts)
{
    std::vector<t_atom> atoms (texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (texts[i] == nullptr)
            atom_setlong (&atoms[i], 0);
        else
            atom_setsym (&atoms[i], gensym (texts[i]));
    }
    dictionary_appendatoms (target, gensym (key), static_cast<t_clong> (atoms.size()), atoms.data());
}

/** Stores the description, 0, then pairs of argument name and type. */
void document (t_class* c, const MessageRow& row)
{
    const auto* name = row.documentedName != nullptr ? row.documentedName : row.name;
    const auto help = row.help != nullptr ? qel::String (row.help) : Ambrel::MaxMspExternal::methodHelp (name);
    std::vector<const char*> texts{ help.c_str(), nullptr };
    for (const auto& argument : row.arguments)
        if (argument.name != nullptr)
            texts.insert (texts.end(), { argument.name, argument.type });
    addTexts (classDictionary (c, "methods"), name, texts);
}

}

void addMessages (t_class* c, Rows<MessageRow> rows)
{
    for (const auto& row : rows) {
        if (class_addmethod (c, row.function, row.name, row.pattern, 0) != MAX_ERR_NONE)
            object_post (nullptr, "error when adding method %s", row.name);
        else if (row.pattern != A_CANT || row.help != nullptr)
            document (c, row);
    }
}

void addDocumentationAttributes (t_class* c, const char* className, const char* version,
                                 const DocumentationFields& fields)
{
    const auto add = [c] (const char* name, t_clong offset, const qel::String& label) {
        class_addattr (c, attr_offset_new (name, gensym ("symbol"), ATTR_GET_OPAQUE_USER | ATTR_SET_OPAQUE_USER,
                                           nullptr, nullptr, offset));
        addParsed (c, name, "invisible", "long", "1");
        addText (c, name, "category", "documentation");
        addText (c, name, "label", label.c_str());
    };
    add ("classdigest", fields.digest, Ambrel::MaxMspExternal::digestOf (className));
    add ("classdescription", fields.description, Ambrel::MaxMspExternal::descriptionOf (className));
    add ("classseealso", fields.seeAlso, Ambrel::MaxMspExternal::seeAlsoOf (className));
    add ("externalversion", fields.version, version);
}

void addPortDocumentation (t_class* c, const char* list, std::initializer_list<PortRow> ports)
{
    auto* target = classDictionary (c, list);
    for (const auto& port : ports)
        addTexts (target, port.name, { port.help });
}

void addAttribute (t_class* c, const AttributeRow& row, const char* category, t_clong flags, HostFunction get,
                   HostFunction set)
{
    auto* type = gensym (row.type);
    class_addattr (c, row.capacity == 0 ? attr_offset_new (row.name, type, flags, get, set, row.offset)
                                        : attr_offset_array_new (row.name, type, row.capacity, flags, get, set,
                                                                 row.countOffset, row.offset));
    addFilterAndBounds (c, row);
    if (row.defaultText != nullptr)
        addParsed (c, row.name, "default", row.type, defaultTextOf (row).c_str());
    addTranslated (c, row.name, "label", row.label);
    addText (c, row.name, "category", category);
    addText (c, row.name, "style", row.style);
    addTranslated (c, row.name, "units", row.units);
    addText (c, row.name, "description", row.description);
    addParsed (c, row.name, "enumvals", "atom", row.choices);
    addParsed (c, row.name, "dontreset", "long", row.canBeReset ? nullptr : "1");
    // A patcher saves such attributes with the box.
    addParsed (c, row.name, "save", "long", "1");
}

void addOrder (t_class* c, const char* name, int order)
{
    addParsed (c, name, "order", "long", std::to_string (order).c_str());
}

std::string defaultTextOf (const AttributeRow& row)
{
    if (! row.defaultForEach)
        return row.defaultText;
    std::string text = row.defaultText;
    for (t_clong i = 1; i < row.capacity; ++i)
        text += std::string (" ") + row.defaultText;
    return text;
}

t_dictionary* documentationDictionary (void* object, const char* property)
{
    return dictionaryOf (object_attr_get (object, gensym ("classdescription")), property);
}

}
