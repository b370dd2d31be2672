#pragma once
#include "osc/OrvaneDspOscAddress.h"

namespace qel
{

/** The addresses that an object accepts, for its documentation. */
class OscDocumentation
{
public:
    struct Entry
    {
        OscAddress address;
        String arguments; ///< for example "[string]"
        String description;

        /** Compares all three texts. */
        friend bool operator== (const Entry& a, const Entry& b) noexcept
        {
            return a.address.text() == b.address.text() && a.arguments == b.arguments && a.description == b.description;
        }
        friend bool operator!= (const Entry& a, const Entry& b) noexcept { return ! (a == b); }
    };

    /** Appends an entry, unless its address is the root or the same entry exists. */
    void add (const OscAddress& address, const String& arguments, const String& description);

    [[nodiscard]] const Vector<Entry>& entries() const noexcept { return list; }

private:
    Vector<Entry> list;
};

}
