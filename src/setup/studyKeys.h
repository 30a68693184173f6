// The keys of a study document.
#pragma once

#include "setup/KeyTable.h"

namespace setup {

/// Groups and lists of groups have names in capitals, values in lower case. What a key means stands
/// in docs/setup.md.
const KeyTable& studyKeys();

}  // namespace setup
