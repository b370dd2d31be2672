#include "max/MaxXmlDocumentation.h"

#include "files/OrvaneDspFile.h"
#include "max/Atoms.h"
#include "max/ClassRegistration.h"
#include "max/DictionaryKeys.h"
#include "max/Guarded.h"
#include "max/MaxAttribute.h"
#include "max/OrvanemaxSymbols.h"
#include "max/XmlPage.h"

#include <filesystem>
#include <fstream>

namespace
{

using namespace orvanemax;

constexpr auto* author = "The halcyra developers";
constexpr auto* copyright =
    "Copyright (c) 2026 the halcyra developers. Free software under the GPL, version 3 or later.";

/** Calls use for each entry of a documentation list, with its key and atoms. */
template <typename Use>
void forEachEntry (void* object, const char* list, const char* operation, Use&& use)
{
    if (! MaxAttribute (object, gensym ("classdescription")).exists())
        return tellError (object,
                          std::string ("MaxXmlDocumentation::") + operation + " no classdescription class attribute");
    auto* dictionary = documentationDictionary (object, list);
    if (dictionary == nullptr)
        return;
    const DictionaryKeys keys (dictionary, DictionaryKeys::Order::asAdded);
    for (auto* key : keys) {
        t_clong count = 0;
        t_atom* atoms = nullptr;
        if (dictionary_getatoms (dictionary, key, &count, &atoms) == MAX_ERR_NONE)
            use (key->s_name, Atoms (count, atoms));
    }
}

void addTexts (XmlPage& page, const std::string& digest, const std::string& description)
{
    page.element ("digest", digest);
    page.element ("description", description);
}

void addMetadata (XmlPage& page, const std::string& version)
{
    page.line ("<!--METADATA-->");
    page.open ("metadatalist");
    page.element ("metadata", escaped (author), { { "name", "author" } });
    page.element ("metadata", escaped (copyright), { { "name", "copyright" } });
    page.element ("metadata", escaped (version), { { "name", "version" } });
    page.close ("metadatalist");
}

void addPorts (XmlPage& page, void* object, const char* element, const char* list, const char* operation)
{
    int id = 0;
    forEachEntry (object, list, operation, [&] (const char* name, Atoms texts) {
        page.open (element, { { "id", std::to_string (id++) }, { "name", name } });
        addTexts (page, escaped (name), escaped (texts.symbol (0)->s_name));
        page.close (element);
    });
}

void addArguments (XmlPage& page, void* object)
{
    forEachEntry (object, "arguments", "GetObjectListOfArguments", [&] (const char* name, Atoms texts) {
        page.open ("objarg", { { "name", name }, { "type", texts.symbol (0)->s_name }, { "optional", "1" } });
        addTexts (page, escaped (name), escaped (texts.symbol (1)->s_name));
        page.close ("objarg");
    });
}

/** The page's word for a host type. */
const char* typeWord (const t_symbol* type)
{
    const std::string name = type == nullptr ? "" : type->s_name;
    if (name == "long")
        return "int";
    if (name == "float32" || name == "float64")
        return "float";
    return name == "symbol" ? "symbol" : "unknown";
}

const char* accessOf (const MaxAttribute& attribute, t_clong opaque)
{
    return (attribute.flags() & opaque) != 0 ? "0" : "1";
}

void addChoices (XmlPage& page, const MaxAttribute& attribute)
{
    page.open ("enumlist");
    for (const auto& choice : attribute.GetEnumChoices ({}))
        page.empty ("enum", { { "name", choice.str() } });
    page.close ("enumlist");
}

void addProperties (XmlPage& page, const MaxAttribute& attribute)
{
    const auto& words = symbols();
    page.open ("attributelist");
    bool hasChoices = false;
    for (auto* property : attributeNames (attribute.object(), SortMode::byName)) {
        hasChoices = hasChoices || property == words.enumvals;
        if (property == words.description || property == words.digest || property == words.enumvals)
            continue;
        const MaxAttribute detail (attribute.object(), property);
        page.empty ("attribute", { { "name", property->s_name },
                                   { "get", accessOf (detail, ATTR_GET_OPAQUE_USER) },
                                   { "set", accessOf (detail, ATTR_SET_OPAQUE_USER) },
                                   { "type", typeWord (detail.type()) },
                                   { "value", attribute.GetValueOf (property).str() } });
    }
    page.close ("attributelist");
    if (hasChoices)
        addChoices (page, attribute);
}

void addAttributes (XmlPage& page, void* object, SortMode mode)
{
    page.line ("<!--ATTRIBUTES-->");
    page.open ("attributelist");
    for (auto* name : visibleAttributes (object, mode)) {
        const MaxAttribute attribute (object, name);
        page.open ("attribute", { { "name", name->s_name },
                                  { "type", typeWord (attribute.type()) },
                                  { "get", accessOf (attribute, ATTR_GET_OPAQUE_USER) },
                                  { "set", accessOf (attribute, ATTR_SET_OPAQUE_USER) },
                                  { "size", "1" } });
        const auto label = attribute.label();
        const auto description = attribute.description();
        addTexts (page, escaped (label.str()), escaped ((description.empty() ? label : description).str()));
        addProperties (page, attribute);
        page.close ("attribute");
    }
    page.close ("attributelist");
}

/** The atoms of a message: its description, 0, then pairs of argument name and type. */
void addMethods (XmlPage& page, void* object)
{
    page.line ("<!--MESSAGES-->");
    page.open ("methodlist");
    forEachEntry (object, "methods", "getObjectMethodsDescription", [&] (const char* name, Atoms texts) {
        page.open ("method", { { "name", name } });
        page.open ("arglist");
        for (auto pair = texts.from (2); pair.size() > 1; pair = pair.from (2))
            page.empty ("arg", { { "name", pair.symbol (0)->s_name },
                                 { "type", pair.symbol (1)->s_name },
                                 { "optional", "0" },
                                 { "id", "0" } });
        page.close ("arglist");
        addTexts (page, escaped (texts.symbol (0)->s_name), escaped (texts.symbol (0)->s_name));
        page.close ("method");
    });
    page.close ("methodlist");
}

std::string withClassNameMarked (std::string text, const std::string& className)
{
    const auto marked = "<o>" + className + "</o>";
    for (std::size_t at = text.find (className); at != std::string::npos;
         at = text.find (className, at + marked.size()))
        text.replace (at, className.size(), marked);
    return text;
}

/** Names separated by commas or blanks. */
void addSeeAlso (XmlPage& page, const std::string& names)
{
    page.line ("<!--SEEALSO-->");
    page.open ("seealsolist");
    constexpr auto* separators = ", ";
    for (std::size_t begin = names.find_first_not_of (separators); begin != std::string::npos;) {
        const auto end = names.find_first_of (separators, begin);
        page.empty ("seealso", { { "name", names.substr (begin, end - begin) } });
        begin = names.find_first_not_of (separators, end);
    }
    page.close ("seealsolist");
}

void addEmptyList (XmlPage& page, const char* comment, const char* list)
{
    page.line (comment);
    page.open (list);
    page.close (list);
}

}

MaxXmlDocumentation::MaxXmlDocumentation (void* described, const char* sheet, SortMode mode)
    : object (described), stylesheet (sheet), sortMode (mode)
{}

std::string MaxXmlDocumentation::label (const char* attribute) const
{
    const MaxAttribute found (object, gensym (attribute));
    return found.exists() ? found.label().str() : std::string();
}

std::string MaxXmlDocumentation::page() const
{
    const std::string className = object_classname (object)->s_name;
    const auto version = label ("externalversion");
    XmlPage page;
    page.line (R"(<?xml version="1.0" encoding="utf-8" standalone="yes"?>)");
    page.line (std::string ("<?xml-stylesheet href=\"") + stylesheet + "\" type=\"text/xsl\"?>");
    page.open ("c74object", { { "name", className } });
    addTexts (page, label ("classdigest"), withClassNameMarked (label ("classdescription"), className));
    addMetadata (page, version.empty() ? "unknown version" : version);
    page.line ("<!--INLETS-->");
    page.open ("inletlist");
    addPorts (page, object, "inlet", "inlets", "GetObjectListOfInletsDescription");
    page.close ("inletlist");
    page.line ("<!--OUTLETS-->");
    page.open ("outletlist");
    addPorts (page, object, "outlet", "outlets", "GetObjectListOfOutletsDescription");
    page.close ("outletlist");
    page.line ("<!--ARGUMENTS-->");
    page.open ("objarglist");
    addArguments (page, object);
    page.close ("objarglist");
    addAttributes (page, object, sortMode);
    addMethods (page, object);
    addSeeAlso (page, label ("classseealso"));
    addEmptyList (page, "<!--MENU ITEMS-->", "menuitemlist");
    addEmptyList (page, "<!--EXAMPLE-->", "examplelist");
    page.close ("c74object");
    return page.text();
}

void orvanemax_generatexml (void* x)
{
    guarded (x, [=] {
        const auto name = std::string (object_classname (x)->s_name) + ".maxref.xml";
        const auto path = qel::File (qel::String (name)).path().str();
        std::ofstream file (std::filesystem::u8path (path), std::ios::binary | std::ios::trunc);
        file << MaxXmlDocumentation (x, "./_c74_ref.xsl", SortMode::byName).page();
        file.close();
        if (! file)
            return tellError (x, "could not create " + path);
        tellPost (x, "documentation generated in " + path);
    });
}
