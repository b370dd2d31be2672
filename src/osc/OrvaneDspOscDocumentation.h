#pragma once
#include "osc/OrvaneDspOscAddress.h"

namespace qel
{

/** The list of addresses that an object answers, for its documentation. */
class OscDocumentation
{
public:
    struct Entry
    {
        OscAddress address;
        String arguments; ///< such as "[string]"
        String description;

        /** By the three texts. */
        friend bool operator== (const Entry& a, const Entry& b) noexcept
        {
            return a.address.text() == b.address.text() && a.arguments == b.arguments && a.description == b.description;
        }
        friend bool operator!= (const Entry& a, const Entry& b) noexcept { return ! (a == b); }
    };

    /** Adds an entry at the end, unless its address is the root or an equal entry is there already. */
    void add (const OscAddress& address, const String& arguments, const String& description);

    [[nodiscard]] const Vector<Entry>& entries() const noexcept { return list; }

private:
    Vector<Entry> list;
};

}
