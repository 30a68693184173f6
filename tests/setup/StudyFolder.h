// Studies of a folder to test with: a square of 4 m by 4 m in a grid of n by n rectangles, or other
// meshes.
#pragma once

#include <string>

#include "setup/domain/Domain.h"
#include "setup/faults.h"
#include "setup/studies.h"
#include "setup/study/Study.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace studies {

/// A folder with a study in it.
class Folder {
 public:
  /// @param mesh a group of GEOMETRY
  explicit Folder(std::string theMesh =
                      R"("RECTANGLE": {"length": 4, "width": 4, "cells": [2, 2],
                                       "pattern": "diagonal"})")
      : mesh(std::move(theMesh)) {}

  std::string file(const std::string& name) const { return dir.file(name); }

  /// The study of the further groups of GEOMETRY and of the groups of HYDRAULICS and MORPHOLOGY.
  setup::Study read(const std::string& geometry, const std::string& hydraulics,
                    const std::string& morphology = "") const {
    support::writeFile(
        study, R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {"GEOMETRY": {)" + mesh +
                   (geometry.empty() ? "" : ", ") + geometry + R"(}, "HYDRAULICS": {)" +
                   hydraulics + "}" +
                   (morphology.empty() ? "" : R"(, "MORPHOLOGY": {)" + morphology + "}") + "}}}}");
    return setup::readStudy(study);
  }

  setup::Domain build(const std::string& geometry, const std::string& hydraulics,
                      const std::string& morphology = "") const {
    return setup::buildDomain(read(geometry, hydraulics, morphology));
  }

  /// Why the study is refused, behind "study file <...>: ".
  std::string refusalOf(const std::string& geometry, const std::string& hydraulics,
                        const std::string& morphology = "") const {
    const std::string message = faults::messageOf([&] { build(geometry, hydraulics, morphology); });
    const std::string start = "study file <" + study + ">: ";
    return message.starts_with(start) ? message.substr(start.size()) : message;
  }

 private:
  support::TempDir dir;
  std::string study = dir.file("study.json");
  std::string mesh;
};

}  // namespace studies
