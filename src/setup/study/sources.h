// The sources of a study: rain and other water, and sediment.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "catalogue/Codes.h"
#include "setup/study/Area.h"

namespace setup {

/// A kind of source under the name that a study gives it.
struct SourceType {
  std::string name;
  std::string key;                           ///< of its rate
  model::CellModificationCode modification;  ///< makes m/s, of water or of bed, of the rate
  std::array<model::SinkCode, 3> sinks;      ///< in the order of sinkNames()
};

/// Those of water.
const std::vector<SourceType>& sourceTypes();

/// Those of sediment; their rates count the bed with its pores.
const std::vector<SourceType>& bedSourceTypes();

/// What a negative rate takes away.
const std::vector<std::string>& sinkNames();

struct Source {
  std::string path;  ///< JSON pointer into the study document, for messages
  Region region;
  const SourceType* type = nullptr;
  model::SinkCode sink = model::SinkCode::DischargeAvailable;
  double value = 0.0;  ///< of the rate, if there is no file
  std::string file;    ///< of its series over time
};

/// Reads the list SOURCE of a group, if it has one.
/// @param types those that the list may name; @param regions those of the study
/// @throws BaseException for a rate of another type
std::vector<Source> readSources(const StudyGroup& group, const std::vector<SourceType>& types,
                                const std::vector<Region>& regions);

}  // namespace setup
