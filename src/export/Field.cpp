#include "export/Field.h"

#include <algorithm>
#include <cmath>

#include "common/console.h"
#include "export/Csv.h"
#include "export/definedValues.h"

namespace console = common::console;

namespace exporter {

namespace {

struct Place {
  const api::IOutput* output;
  std::size_t component;
};

Place find(const Results& results, const std::string& quantity) {
  std::string known;
  for (const api::IOutput* output : results.outputsOn(model::SetID::CellsAll)) {
    const std::vector<Component>& components = componentsOf(output->getID());
    for (std::size_t i = 0; i < components.size(); ++i) {
      if (components[i].name == quantity) return {output, i};
      known += (known.empty() ? "" : ", ") + components[i].name;
    }
  }
  console::fail("quantity <", quantity, "> is not in the results file, which holds ", known);
}

/// Times that are typed have fewer digits than those that are computed.
bool isSame(double typed, double time) {
  return std::fabs(typed - time) <= 1e-6 * std::max(1.0, std::fabs(time));
}

Record recordOf(const Results& results, const Place& place, const std::string& quantity,
                const std::optional<double>& time) {
  std::vector<Record> holding;
  for (const Record& record : results.steps()) {
    if (results.holds(*place.output, record)) holding.push_back(record);
  }
  if (!time || results.isConstant(*place.output)) return holding.back();
  const auto nearest = std::min_element(
      holding.begin(), holding.end(), [&](const Record& left, const Record& right) {
        return std::fabs(left.time - *time) < std::fabs(right.time - *time);
      });
  if (isSame(*time, nearest->time)) return *nearest;
  console::fail("quantity <", quantity, "> is not in the results file at ", numberText(*time),
                " s; nearest is ", numberText(nearest->time), " s");
}

}  // namespace

Field fieldOf(const Results& results, const std::string& quantity,
              const std::optional<double>& time) {
  const Place place = find(results, quantity);
  const Record record = recordOf(results, place, quantity, time);
  const std::vector<double> all = definedValues(results, *place.output, record);
  const std::size_t size = componentsOf(place.output->getID()).size();
  Field field{componentsOf(place.output->getID())[place.component],
              meaningsOf(place.output->getID())[place.component],
              {},
              {}};
  if (!results.isConstant(*place.output)) field.time = record.time;
  for (std::size_t i = place.component; i < all.size(); i += size) field.values.push_back(all[i]);
  return field;
}

}  // namespace exporter
