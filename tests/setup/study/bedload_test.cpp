#include "setup/study/bedload.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "setup/MovingBed.h"

using model::BedloadCode;
using setup::BedloadFormula;

namespace {

class Bedload : public studies::MovingBed {
 protected:
  setup::Bedload read(const std::string& bedload) const {
    return folder.read(GEOMETRY, ROUGH_FLOW, bed(GRAINS, bedload)).morphology.value().bedload;
  }

  setup::Bedload readFormula(const std::string& keys) const {
    return read(R"("FORMULA": {)" + keys + "}");
  }

  /// Behind the place of the formula.
  std::string refusalOf(const std::string& keys) const {
    return refusalOf(ROUGH_FLOW, GRAINS, keys);
  }

  std::string refusalOf(const std::string& flow, const std::string& material,
                        const std::string& keys) const {
    const std::string refusal =
        folder.refusalOf(GEOMETRY, flow, bed(material, R"("FORMULA": {)" + keys + "}"));
    const std::string start = "<" + BEDLOAD + "/FORMULA> of type ";
    return refusal.starts_with(start) ? refusal.substr(start.size()) : refusal;
  }
};

}  // namespace

TEST(BedloadFormulas, NamesStandOnce) {
  std::set<std::string> names;
  for (const BedloadFormula& formula : setup::bedloadFormulas()) {
    EXPECT_TRUE(names.insert(formula.name).second) << formula.name;
  }
}

TEST_F(Bedload, FormulasBringTheCoefficientsOfTheirLiterature) {
  const auto check = [this](const std::string& type, double A, double B, double critical) {
    const setup::Bedload found = readFormula(R"("type": ")" + type + "\"");
    EXPECT_EQ(found.form, BedloadCode::MeyerPeterMueller) << type;
    EXPECT_EQ(found.coefficient, A) << type;
    EXPECT_EQ(found.exponent, B) << type;
    EXPECT_EQ(found.critical, critical) << type;
    EXPECT_EQ(found.factor, 1.0) << type;
  };
  check("meyer_peter_mueller_1948", 8.0, 1.5, 0.047);
  check("fernandez_luque_van_beek_1976", 5.7, 1.5, 0.05);
  check("hunziker_1995", 5.0, 1.5, 0.05);
  check("wong_parker_2006", 3.97, 1.5, 0.0495);
  check("wong_parker_2006_power_1_6", 4.93, 1.6, 0.047);
}

TEST_F(Bedload, TheStudyMayGiveAnotherCriticalValueAndAFactor) {
  const setup::Bedload found =
      readFormula(R"("type": "hunziker_1995", "critical_shields": 0.03, "factor": 0.7)");
  EXPECT_EQ(found.critical, 0.03);
  EXPECT_EQ(found.factor, 0.7);
}

TEST_F(Bedload, CoefficientsCanBeThoseOfTheUser) {
  const setup::Bedload mpm =
      readFormula(R"("type": "mpm", "coefficient": 12, "exponent": 1.7, "critical_shields": 0)");
  EXPECT_EQ(mpm.coefficient, 12.0);
  EXPECT_EQ(mpm.exponent, 1.7);
  EXPECT_EQ(mpm.critical, 0.0);
  const setup::Bedload grass =
      readFormula(R"("type": "grass_1981", "coefficient": 0.01, "critical_velocity": 0.3)");
  EXPECT_EQ(grass.form, BedloadCode::Grass);
  EXPECT_EQ(grass.coefficient, 0.01);
  EXPECT_EQ(grass.exponent, 3.0);
  EXPECT_EQ(grass.critical, 0.3);
}

TEST_F(Bedload, EngelundAndHansenBecomesAPowerOfTheVelocity) {
  const setup::Bedload found = readFormula(R"("type": "engelund_hansen_1967", "chezy": 15)");
  EXPECT_EQ(found.form, BedloadCode::Grass);
  EXPECT_EQ(found.exponent, 5.0);
  EXPECT_EQ(found.critical, 0.0);
  // With C^2 = 225, s = 1.65, d = 0.002 m: phi = 0.05 C^2 t^2.5 at u = 1 m/s.
  const double shields = 1.0 / (225.0 * 1.65 * 9.81 * 0.002);
  const double unit = std::sqrt(1.65 * 9.81 * std::pow(0.002, 3));
  EXPECT_NEAR(found.coefficient, 0.05 * 225.0 * std::pow(shields, 2.5) * unit, 1e-15);
}

TEST_F(Bedload, ThePowerLawTakesAFactorOnly) {
  EXPECT_EQ(readFormula(R"("type": "power_law", "factor": 3)").form, BedloadCode::PowerLaw);
  EXPECT_EQ(refusalOf(R"("type": "power_law", "critical_shields": 0.05)"),
            "<power_law> does not take the key critical_shields, but these: type, factor");
}

TEST_F(Bedload, RefusesKeysOfOtherFormulas) {
  EXPECT_EQ(refusalOf(R"("type": "meyer_peter_mueller_1948", "coefficient": 4)"),
            "<meyer_peter_mueller_1948> does not take the key coefficient, but these: type, "
            "factor, critical_shields");
  EXPECT_EQ(refusalOf(R"("type": "grass_1981", "coefficient": 4, "critical_shields": 0.1)"),
            "<grass_1981> does not take the key critical_shields, but these: type, factor, "
            "coefficient, exponent, critical_velocity");
  EXPECT_EQ(refusalOf(R"("type": "mpm", "chezy": 15)"),
            "<mpm> does not take the key chezy, but these: type, factor, coefficient, exponent, "
            "critical_shields");
}

TEST_F(Bedload, RefusesAFormulaWithoutItsKeys) {
  EXPECT_EQ(refusalOf(R"("type": "mpm", "exponent": 1.5, "critical_shields": 0.05)"),
            "<mpm> needs the key coefficient");
  EXPECT_EQ(refusalOf(R"("type": "mpm", "coefficient": 8, "critical_shields": 0.05)"),
            "<mpm> needs the key exponent");
  EXPECT_EQ(refusalOf(R"("type": "mpm", "coefficient": 8, "exponent": 1.5)"),
            "<mpm> needs the key critical_shields");
  EXPECT_EQ(refusalOf(R"("type": "grass_1981")"), "<grass_1981> needs the key coefficient");
  EXPECT_EQ(refusalOf(R"("type": "engelund_hansen_1967")"),
            "<engelund_hansen_1967> needs the key chezy");
}

TEST_F(Bedload, RefusesFormulasOfTheStressWithoutFriction) {
  for (const std::string type : {"meyer_peter_mueller_1948", "power_law"}) {
    EXPECT_EQ(refusalOf(FLOW, GRAINS, R"("type": ")" + type + "\""),
              "<" + type +
                  "> needs bed friction, without which it gives no transport: the study "
                  "must hold HYDRAULICS/FRICTION");
  }
  EXPECT_NO_THROW(folder.read(GEOMETRY, FLOW, bed(GRAINS, GRASS)));
  EXPECT_NO_THROW(folder.read(
      GEOMETRY, FLOW, bed(GRAINS, R"("FORMULA": {"type": "engelund_hansen_1967", "chezy": 15})")));
}

TEST_F(Bedload, RefusesFormulasOfGrainsWithoutTheirSize) {
  const std::string noGrains = R"("porosity": 0.4)";
  EXPECT_EQ(refusalOf(ROUGH_FLOW, noGrains, R"("type": "power_law")"),
            "<power_law> needs the key grain_size in BEDMATERIAL");
  EXPECT_EQ(refusalOf(ROUGH_FLOW, noGrains, R"("type": "engelund_hansen_1967", "chezy": 15)"),
            "<engelund_hansen_1967> needs the key grain_size in BEDMATERIAL");
  EXPECT_NO_THROW(folder.read(GEOMETRY, FLOW, bed(noGrains, GRASS)));
}

TEST_F(Bedload, RefusesEngelundAndHansenWithSeveralGrainSizes) {
  EXPECT_EQ(refusalOf(ROUGH_FLOW, GRAINS + R"(, "ZONES": [{"region": "all", "grain_size": 0.001}])",
                      R"("type": "engelund_hansen_1967", "chezy": 15)"),
            "<engelund_hansen_1967> takes one grain size for all cells: BEDMATERIAL must not hold "
            "ZONES");
}

TEST_F(Bedload, DirectionIsThatOfTheFlowIfNothingElseIsSaid) {
  const setup::Bedload found = read(GRASS);
  EXPECT_FALSE(found.lateralSlope);
  EXPECT_FALSE(found.curvatureFactor);
  EXPECT_EQ(found.lateralSlopeInRunFile(9.81), 0.0);
}

TEST_F(Bedload, TheFactorOfTheLateralSlopeIsThatOfTheTextbookTimesGravity) {
  const setup::Bedload found =
      read(GRASS + R"(, "DIRECTION": {"IKEDA": {"factor": 0.5}, "CURVATURE": {"factor": 20}})");
  EXPECT_EQ(found.lateralSlope, 0.5);
  EXPECT_EQ(found.lateralSlopeInRunFile(9.81), 4.905);
  EXPECT_EQ(found.curvatureFactor, 20.0);
}

TEST_F(Bedload, RefusesTheLateralSlopeWithoutFrictionOrGrains) {
  const std::string ikeda = GRASS + R"(, "DIRECTION": {"IKEDA": {"factor": 0.5}})";
  EXPECT_EQ(folder.refusalOf(GEOMETRY, FLOW, bed(GRAINS, ikeda)),
            "<" + BEDLOAD +
                "/DIRECTION/IKEDA> needs bed friction: the study must hold "
                "HYDRAULICS/FRICTION");
  EXPECT_EQ(folder.refusalOf(GEOMETRY, ROUGH_FLOW, bed(R"("porosity": 0.4)", ikeda)),
            "<" + BEDLOAD + "/DIRECTION/IKEDA> needs the key grain_size in BEDMATERIAL");
}
