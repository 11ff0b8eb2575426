#pragma once

/// Marks what the shared object shows; everything else stays hidden.
#define DISPLAYAPI_EXPORT __attribute__((visibility("default")))
