#include "max/Guarded.h"

#include "common/OrvaneDspException.h"
#include "host/api/MaxApi.h"

#include <new>

namespace orvanemax
{

void reportException (void* object) noexcept
{
    auto* owner = objectIsGone() ? nullptr : static_cast<t_object*> (object);
    try {
        throw;
    } catch (const qel::Exception& e) {
        object_error (owner, "%s", e.what());
    } catch (const std::bad_alloc& e) {
        object_error (owner, "out of memory : %s", e.what());
    } catch (...) {
        object_error (owner, "unknown exception");
    }
}

}
