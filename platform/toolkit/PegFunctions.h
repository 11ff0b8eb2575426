#pragma once

#include "toolkit/PString.h"

/// Starts the toolkit: free pool, main queue, screen and presentation manager exist afterwards.
/// Starts count: a further one changes nothing, and the toolkit stops with the clean-up of the first.
void pegInit();

/// Stops the toolkit: the presentation manager deletes what it owns and is gone; queued messages go back to the pool,
/// but for requests, which the library completes. The main queue itself stays, so that a late post finds it.
void pegCleanUp();

/// The decimal number at the start of `text`, with an optional sign; 0 where there is none.
int PegAtoI(const char* text);

/// Characters before the terminating zero; 0 for null.
int PegStrLen(const PegChar* text);
