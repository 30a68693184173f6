// The keys of a study document for friction, nodestrings, boundaries and sources.
#pragma once

#include "setup/KeyTable.h"

namespace setup {

const KeyTable& riverKeys();

}  // namespace setup
