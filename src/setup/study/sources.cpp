#include "setup/study/sources.h"

#include <algorithm>

namespace setup {

namespace {

Source readSource(const StudyGroup& group, const std::vector<SourceType>& types,
                  const std::vector<Region>& regions) {
  Source source;
  source.path = group.path();
  source.region = regionNamed(group["region"].get<std::string>(), regions).value();
  const SourceType& type = *std::find_if(
      types.begin(), types.end(), [&](const auto& known) { return group["type"] == known.name; });
  source.type = &type;
  std::string sink = "available";
  group.take("sink", sink);
  const auto number = std::find(sinkNames().begin(), sinkNames().end(), sink) - sinkNames().begin();
  source.sink = type.sinks.at(static_cast<std::size_t>(number));
  const std::string fileKey = type.key + "_file";
  if (!group.has(type.key.c_str()) && !group.has(fileKey.c_str())) {
    group.refuse("of type <", type.name, "> must hold either ", type.key, " or ", fileKey);
  }
  group.take(type.key.c_str(), source.value);
  if (group.has(fileKey.c_str())) source.file = group.fileName(fileKey.c_str());
  return source;
}

}  // namespace

const std::vector<SourceType>& sourceTypes() {
  using enum model::CellModificationCode;
  using enum model::SinkCode;
  // clang-format off
  static const std::vector<SourceType> types = {
    // name       key          modification        sinks
    {"discharge", "discharge", OverRegionArea,     {DischargeExact, DischargeAvailable, DischargeInfinity}},
    {"rain",      "intensity", MillimetresPerHour, {RainExact,      RainAvailable,      RainInfinity}},
  };
  // clang-format on
  return types;
}

const std::vector<SourceType>& bedSourceTypes() {
  using enum model::CellModificationCode;
  using enum model::SinkCode;
  // clang-format off
  static const std::vector<SourceType> types = {
    // name       key          modification        sinks
    {"discharge", "discharge", OverRegionArea,     {SedimentExact, SedimentAvailable, SedimentInfinity}},
    {"rise",      "rate",      MillimetresPerHour, {SedimentExact, SedimentAvailable, SedimentInfinity}},
  };
  // clang-format on
  return types;
}

const std::vector<std::string>& sinkNames() {
  static const std::vector<std::string> names = {"exact", "available", "infinity"};
  return names;
}

std::vector<Source> readSources(const StudyGroup& group, const std::vector<SourceType>& types,
                                const std::vector<Region>& regions) {
  std::vector<Source> sources;
  for (const StudyGroup& item : group.groups("SOURCE")) {
    sources.push_back(readSource(item, types, regions));
  }
  return sources;
}

}  // namespace setup
