// Random but well-formed model files for round-trip tests and fuzz seeds: every kind, display
// prefixes, empty elements, long lists, and streams laid out with gaps and out of order.
#pragma once

#include "moxbuilder.h"

#include <random>

struct RandomMoxOptions {
    // Entries of a display prefix and the NULL kind ("COD Flag FF"), which a save drops.
    bool prefixedNulls = false;
    // Now and then an element with more than 100 piggybacks.
    bool longLists = true;
};

MoxBuilder RandomMox(std::mt19937& random, const RandomMoxOptions& options = {});
