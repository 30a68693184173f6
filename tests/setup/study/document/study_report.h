// What the schema of studies says of a document.
#pragma once

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "jsv/StreamValidator.h"
#include "setup/study/document/study_document.h"

namespace studies {

struct Report {
  int verdict = 0;
  std::string text;
};

inline Report validate(const nlohmann::json& document) {
  std::istringstream documentStream(document.dump());
  std::istringstream schemaStream(setup::studySchema());
  std::ostringstream output;
  const int verdict = jsv::StreamValidator(&output).validate(documentStream, schemaStream);
  return {verdict, output.str()};
}

}  // namespace studies
