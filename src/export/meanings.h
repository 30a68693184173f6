// What the values of an output mean, for formats that carry their own explanation.
//
//   exporter::meaningsOf(model::OutputID::flow_velocity)[1].longName   // "flow velocity,
//   y-component"
#pragma once

#include <string>
#include <vector>

#include "catalogue/IDs.h"

namespace exporter {

struct Meaning {
  std::string longName;
  std::string standardName;  ///< of the CF conventions; empty where they have none that fits
  bool needsWater;           ///< a dry cell has no such value
};

/// One for each value per element, in their order.
///
/// Viewers join components to a vector if their names end in ", x-component" and ", y-component".
/// The standard names of floods stand for water on land that is dry otherwise, so that they do not
/// fit a river.
const std::vector<Meaning>& meaningsOf(model::OutputID id);

}  // namespace exporter
