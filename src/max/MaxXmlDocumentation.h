#pragma once
#include "host/api/MaxApi.h"
#include "max/AttributeList.h"

#include <string>

/** Generates an object's reference page, in the host's .maxref.xml format, from its class: the documentation
    attributes, the dictionaries under `classdescription`, and the attributes' properties. Main thread. */
class MaxXmlDocumentation
{
public:
    /** Does not own the object. */
    MaxXmlDocumentation (void* object, const char* stylesheet, orvanemax::SortMode sortMode);

    /** The whole page as text. */
    [[nodiscard]] std::string page() const;

private:
    [[nodiscard]] std::string label (const char* attribute) const;

    void* object;
    const char* stylesheet;
    orvanemax::SortMode sortMode;
};

/** Writes the page, named after the class, into the current folder and logs its path. */
void orvanemax_generatexml (void* x);
