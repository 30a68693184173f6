#include "setup/study/bedload.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace setup {

namespace {

Coefficient fixed(double value) {
  return {false, value};
}

Coefficient usually(double value) {
  return {true, value};
}

const Coefficient GIVEN = {true, std::nullopt};

constexpr auto Mpm = model::BedloadCode::MeyerPeterMueller;
using enum model::BedloadCode;

// clang-format off
const std::vector<BedloadFormula> FORMULAS = {
  // name                            form      A             B             critical         from a Chezy value
  {"meyer_peter_mueller_1948",       Mpm,      fixed(8.0),   fixed(1.5),   usually(0.047),  false},
  {"fernandez_luque_van_beek_1976",  Mpm,      fixed(5.7),   fixed(1.5),   usually(0.05),   false},
  {"hunziker_1995",                  Mpm,      fixed(5.0),   fixed(1.5),   usually(0.05),   false},
  {"wong_parker_2006",               Mpm,      fixed(3.97),  fixed(1.5),   usually(0.0495), false},
  {"wong_parker_2006_power_1_6",     Mpm,      fixed(4.93),  fixed(1.6),   usually(0.047),  false},
  {"mpm",                            Mpm,      GIVEN,        GIVEN,        GIVEN,           false},
  {"grass_1981",                     Grass,    GIVEN,        usually(3.0), usually(0.0),    false},
  {"engelund_hansen_1967",           Grass,    fixed(0.0),   fixed(5.0),   fixed(0.0),      true},
  {"power_law",                      PowerLaw, fixed(0.0),   fixed(0.0),   fixed(0.0),      false},
};
// clang-format on

class BedloadReader {
 public:
  BedloadReader(const StudyGroup& newGroup, const BedMaterial& newMaterial, double newGravity,
                bool newHasFriction)
      : group(newGroup.group("FORMULA")),
        material(newMaterial),
        gravity(newGravity),
        hasFriction(newHasFriction),
        formula(*std::find_if(FORMULAS.begin(), FORMULAS.end(),
                              [this](const auto& item) { return group["type"] == item.name; })) {}

  Bedload read() const {
    refuseOtherKeys();
    Bedload bedload;
    bedload.form = formula.form;
    bedload.coefficient = take("coefficient", formula.coefficient);
    bedload.exponent = take("exponent", formula.exponent);
    bedload.critical = take(criticalKeyOf(formula.form).c_str(), formula.critical);
    group.take("factor", bedload.factor);
    if (formula.form != model::BedloadCode::Grass && !hasFriction) {
      refuse(
          "needs bed friction, without which it gives no transport: the study must hold "
          "HYDRAULICS/FRICTION");
    }
    const bool needsGrains = formula.form != model::BedloadCode::Grass || formula.takesChezy;
    if (needsGrains && !material.grainSize) refuse("needs the key grain_size in BEDMATERIAL");
    if (formula.takesChezy) bedload.coefficient = engelundHansen();
    return bedload;
  }

 private:
  template <class... Parts>
  [[noreturn]] void refuse(const Parts&... parts) const {
    group.refuse("of type <", formula.name, "> ", parts...);
  }

  void refuseOtherKeys() const {
    std::vector<std::string> known{"type", "factor"};
    if (formula.coefficient.isTaken) known.emplace_back("coefficient");
    if (formula.exponent.isTaken) known.emplace_back("exponent");
    if (formula.critical.isTaken) known.push_back(criticalKeyOf(formula.form));
    if (formula.takesChezy) known.emplace_back("chezy");
    for (const std::string& key : group.keys()) {
      if (std::find(known.begin(), known.end(), key) == known.end()) {
        refuse("does not take the key ", key, ", but these: ", listOf(known, std::identity()));
      }
    }
  }

  double take(const char* key, const Coefficient& coefficient) const {
    if (coefficient.isTaken && group.has(key)) return group[key].get<double>();
    if (!coefficient.value) refuse("needs the key ", key);
    return *coefficient.value;
  }

  /// 0.05 u^5 / (C^3 g^2 s^2 d) as A u^5, which is exact where C and d are the same everywhere.
  double engelundHansen() const {
    if (!group.has("chezy")) refuse("needs the key chezy");
    if (!material.zones.empty()) {
      refuse("takes one grain size for all cells: BEDMATERIAL must not hold ZONES");
    }
    const auto C = group["chezy"].get<double>();
    const double g = gravity;
    const double s = (material.density - material.waterDensity) / material.waterDensity;
    return 0.05 / (C * C * C * g * g * s * s * *material.grainSize);
  }

  const StudyGroup group;
  const BedMaterial& material;
  const double gravity;
  const bool hasFriction;
  const BedloadFormula& formula;
};

void readDirection(const StudyGroup& group, const BedMaterial& material, bool hasFriction,
                   Bedload& bedload) {
  if (group.has("CURVATURE")) group.group("CURVATURE").take("factor", bedload.curvatureFactor);
  if (!group.has("IKEDA")) return;
  const StudyGroup ikeda = group.group("IKEDA");
  ikeda.take("factor", bedload.lateralSlope);
  if (!hasFriction) {
    ikeda.refuse("needs bed friction: the study must hold HYDRAULICS/FRICTION");
  }
  if (!material.grainSize) ikeda.refuse("needs the key grain_size in BEDMATERIAL");
}

}  // namespace

const std::vector<BedloadFormula>& bedloadFormulas() {
  return FORMULAS;
}

std::string criticalKeyOf(model::BedloadCode form) {
  return form == model::BedloadCode::Grass ? "critical_velocity" : "critical_shields";
}

Bedload readBedload(const StudyGroup& group, const BedMaterial& material, double gravity,
                    bool hasFriction) {
  Bedload bedload = BedloadReader(group, material, gravity, hasFriction).read();
  if (group.has("DIRECTION")) {
    readDirection(group.group("DIRECTION"), material, hasFriction, bedload);
  }
  return bedload;
}

}  // namespace setup
