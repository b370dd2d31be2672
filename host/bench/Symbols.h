#pragma once
#include "host/api/MaxTypes.h"
#include <string>

namespace bench
{

/** Sets what gensym_tr and str_tr return for a text. */
void setTranslation (const std::string& text, const std::string& translation);
void clearTranslations();

}
