#include "export/results/Field.h"

#include <algorithm>
#include <cmath>

#include "common/console.h"
#include "export/results/Csv.h"
#include "export/results/values.h"

namespace console = common::console;

namespace exporter {

namespace {

struct Place {
  const api::IOutput* output;
  std::size_t value;

  const Quantity& quantity() const { return quantitiesOf(output->getID())[value]; }
};

Place find(const Results& results, const std::string& name) {
  std::string known;
  for (const api::IOutput* output : results.outputsOn(model::SetID::CellsAll)) {
    const std::vector<Quantity>& quantities = quantitiesOf(output->getID());
    for (std::size_t i = 0; i < quantities.size(); ++i) {
      if (quantities[i].name == name || quantities[i].formerName == name) return {output, i};
      known += (known.empty() ? "" : ", ") + quantities[i].name;
    }
  }
  console::fail("quantity <", name, "> is not in the results file, which holds ", known);
}

/// Times that are typed have fewer digits than those that are computed.
bool isSame(double typed, double time) {
  return std::fabs(typed - time) <= 1e-6 * std::max(1.0, std::fabs(time));
}

Record recordOf(const Results& results, const Place& place, const std::optional<double>& time) {
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
  console::fail("quantity <", place.quantity().name, "> is not in the results file at ",
                numberText(*time), " s; nearest is ", numberText(nearest->time), " s");
}

}  // namespace

Field fieldOf(const Results& results, const std::string& name, const std::optional<double>& time) {
  const Place place = find(results, name);
  const Record record = recordOf(results, place, time);
  const std::vector<double> all = definedValues(results, *place.output, record);
  const auto size = static_cast<std::size_t>(place.output->getSize());
  Field field{place.quantity(), {}, {}};
  if (!results.isConstant(*place.output)) field.time = record.time;
  for (std::size_t i = place.value; i < all.size(); i += size) field.values.push_back(all[i]);
  return field;
}

}  // namespace exporter
