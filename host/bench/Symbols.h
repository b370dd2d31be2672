#pragma once
#include "host/api/MaxTypes.h"
#include <string>

namespace bench
{

/** What gensym_tr and str_tr give for a text from now on. */
void setTranslation (const std::string& text, const std::string& translation);
void clearTranslations();

}
