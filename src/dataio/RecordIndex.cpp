#include "dataio/RecordIndex.h"

#include <algorithm>
#include <exception>

#include "dataio/ResultReader.h"

namespace dataio {

namespace {

constexpr const char* TIME = "t";

/// What cannot be read has not been written to its end.
template <class Question>
auto answerOf(Question&& question, decltype(question()) otherwise) {
  try {
    return question();
  } catch (const std::exception&) {
    return otherwise;
  }
}

/// Positions that may be taken: groups of continued runs can begin at any of them.
int positionsOf(const api::IH5Reader& reader, const std::string& path) {
  return answerOf([&] { return reader.getNumberObjs(ResultReader::getOutputGroup(path)); }, 0);
}

std::map<int, double> timesOf(const api::IH5Reader& reader, const std::string& path,
                              int positions) {
  std::map<int, double> times;
  for (int position = 0; position < positions; ++position) {
    const std::string record = ResultReader::getOutputPath(path, position);
    if (!answerOf([&] { return reader.existDataset(record); }, false)) continue;
    times[position] = answerOf([&] { return reader.readAttributeDouble(record, TIME); },
                               ResultReader::NONVALIDRESULTTIME);
  }
  return times;
}

}  // namespace

RecordIndex::RecordIndex(const api::IH5Reader& reader, const std::vector<std::string>& state,
                         const std::vector<std::string>& others) {
  int positions = 0;
  for (const std::string& path : state) positions = std::max(positions, positionsOf(reader, path));
  for (const std::string& path : state) times[path] = timesOf(reader, path, positions);
  for (const std::string& path : others) {
    if (times.count(path) == 0) times[path] = timesOf(reader, path, positions);
  }

  std::map<double, int> found;
  for (int position = 0; !state.empty() && position < positions; ++position) {
    const auto entry = times[state.front()].find(position);
    const double time = entry == times[state.front()].end() ? -1.0 : entry->second;
    const Record record{time, position};
    const bool whole = std::all_of(state.begin(), state.end(),
                                   [&](const std::string& path) { return holds(path, record); });
    if (time >= 0.0 && whole) {
      found[time] = position;
    } else {
      ++dropped;
    }
  }
  for (const auto& [time, position] : found) valid.push_back({time, position});
}

std::vector<double> RecordIndex::restartTimes() const {
  std::vector<double> found;
  if (dropped > 1) return found;
  for (const Record& record : valid) {
    if (record.time > 0.0) found.push_back(record.time);
  }
  return found;
}

bool RecordIndex::holds(const std::string& path, const Record& record) const {
  const auto of = times.find(path);
  if (of == times.end()) return false;
  const auto entry = of->second.find(record.position);
  return entry != of->second.end() && entry->second == record.time;
}

}  // namespace dataio
