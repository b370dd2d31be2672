#pragma once
#include "host/api/MaxApi.h"
#include "max/AttributeList.h"

#include <string>

/** Writes an object's reference page, in the host's .maxref.xml form, from what its class knows about itself: the
    documentation attributes, the dictionaries under `classdescription`, and the attributes' properties. Main thread. */
class MaxXmlDocumentation
{
public:
    /** The object is not owned. */
    MaxXmlDocumentation (void* object, const char* stylesheet, orvanemax::SortMode sortMode);

    /** The whole page as text. */
    [[nodiscard]] std::string page() const;

private:
    [[nodiscard]] std::string label (const char* attribute) const;

    void* object;
    const char* stylesheet;
    orvanemax::SortMode sortMode;
};

/** Writes the page into the current folder, named by the class, and tells where it is. */
void orvanemax_generatexml (void* x);
