#pragma once

#include "toolkit/PString.h"

/// Starts the toolkit: free pool, main queue, screen and presentation manager exist afterwards.
/// A second call without a clean-up between them does nothing.
void pegInit();

/// Stops the toolkit: the presentation manager deletes what it owns and is gone; queued messages go back to the pool.
/// The main queue itself stays, so that a late post finds it.
void pegCleanUp();

/// The decimal number at the start of `text`, with an optional sign; 0 where there is none.
int PegAtoI(const char* text);

/// Characters before the terminating zero; 0 for null.
int PegStrLen(const PegChar* text);
