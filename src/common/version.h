// The version of RHEOMARK, as the banner, --version and every failed check show it.
#pragma once

namespace common {

inline constexpr const char* VERSION = "v3.0.1";

}  // namespace common
