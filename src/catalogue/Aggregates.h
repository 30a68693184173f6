// The aggregates: the pieces of physics that a user selects, and how a command file selects them.
// Which kernels an aggregate brings in stands in Relations.h.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "catalogue/IDs.h"
#include "catalogue/Property.h"

namespace model {

extern const std::map<AggregateID, Property> AggregateProps;
extern const std::map<AggregateID, std::string> AggregateDescription;

/// An aggregate is selected if the command file holds every path of its row.
extern const std::map<AggregateID, std::vector<std::string>> Aggregate2CmdFilePaths;

}  // namespace model
