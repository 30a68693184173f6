// Lines that the print operations of several kinds of components share.
#pragma once

#include "api/IBaseData.h"
#include "api/IBaseSet.h"

namespace model {

/// "<family>: <path> (dtype=<type>)"
void printTyped(const char* family, const api::IBaseData& component);

/// " -> with dimension (<set elements>/<values per element>)"
void printDimension(const api::IBaseSet& component);

/// " -> with size <values>"
void printSize(const api::IBase& component);

}  // namespace model
