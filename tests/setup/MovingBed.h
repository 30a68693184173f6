// Studies with a moving bed to test with, on a square of 4 m by 4 m of 8 cells.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "setup/StudyFolder.h"

namespace studies {

class MovingBed : public ::testing::Test {
 protected:
  /// The group of the moving bed.
  /// @param further groups beside BEDMATERIAL and BEDLOAD
  static std::string bed(const std::string& material, const std::string& bedload,
                         const std::string& further = "") {
    return R"("BEDMATERIAL": {)" + material + R"(}, "BEDLOAD": {)" + bedload + "}" +
           (further.empty() ? "" : ", ") + further;
  }

  const Folder folder;
  const std::string GEOMETRY = R"("REGIONDEF": [{"index": 1, "name": "all"}],
      "STRINGDEF": [{"name": "west",   "nodes": [1, 4, 7]},
                    {"name": "east",   "nodes": [9, 6, 3]},
                    {"name": "middle", "nodes": [2, 5, 8]}])";
  const std::string FLOW = R"("INITIAL": {"water_level": 1})";
  const std::string ROUGH_FLOW = FLOW + R"(, "FRICTION": {"type": "manning", "value": 0.03})";
  const std::string GRAINS = R"("grain_size": 0.002)";
  const std::string GRASS = R"("FORMULA": {"type": "grass_1981", "coefficient": 0.001})";
  const std::string MPM = R"("FORMULA": {"type": "meyer_peter_mueller_1948"})";
  const std::string MATERIAL = MORPHOLOGY + "/BEDMATERIAL";
  const std::string BEDLOAD = MORPHOLOGY + "/BEDLOAD";
};

}  // namespace studies
