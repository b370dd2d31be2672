#include "common/OrvaneDspMaxConsoleNotifier.h"

namespace qel
{

void MaxConsoleNotifier::postToMaxConsole (const String& text)
{
    listeners.call ([&] (Listener& listener) { listener.postToMaxConsole (text); });
}

}
