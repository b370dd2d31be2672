#pragma once

/** The Max operations that an external calls, with the binary interface of 64-bit Windows: plain C linkage,
    declarations only. In Max the host's library defines them, on the bench host/bench. */
#include "host/api/MaxAtoms.h"
#include "host/api/MaxCommonSymbols.h"
#include "host/api/MaxConstants.h"
#include "host/api/MaxDictionaries.h"
#include "host/api/MaxFiles.h"
#include "host/api/MaxHelpers.h"
#include "host/api/MaxLinkage.h"
#include "host/api/MaxObjects.h"
#include "host/api/MaxOutput.h"
#include "host/api/MaxQueues.h"
#include "host/api/MaxTypes.h"
