#include "common/OrvaneDspGuard.h"

#include <new>

namespace qel
{

void raiseGuarded (const SourcePlace& where, GuardText text)
{
    try {
        throw;
    } catch (const std::bad_alloc&) {
        throw Exception ("out of memory", where);
    } catch (const std::exception& e) {
        if (text == GuardText::whatAlone)
            throw Exception (e, where);
        throw Exception ("exception " + String (e.what()) + " occurred", where);
    } catch (...) {
        throw exceptions::Unknown (where);
    }
}

}
